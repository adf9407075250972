#include "authoring/fields/controls.h"

namespace fabula::authoring {
namespace {

template <typename Fits>
int IndexOf(const std::vector<ListItem>& items, Fits fits) {
    for (std::size_t i = 0; i < items.size(); ++i) {
        if (fits(items[i])) return static_cast<int>(i);
    }
    return -1;
}

}  // namespace

void DropList::ChooseNumber(int number) {
    index = IndexOf(items, [number](const ListItem& item) { return item.number == number; });
}

void DropList::ChooseText(const std::string& text) {
    index = IndexOf(items, [&text](const ListItem& item) { return item.text == text; });
}

}  // namespace fabula::authoring
