#pragma once

#include <string>
#include <vector>

namespace fabula::authoring {

/// A line of a list: what it stands for, and what it shows.
struct ListItem {
    int number = 0;
    std::string text;

    friend bool operator==(const ListItem&, const ListItem&) = default;
};

/// A list from which one line is chosen.
struct DropList {
    std::vector<ListItem> items;
    int index = -1;  ///< of the chosen item; -1 when none is

    const ListItem* Chosen() const {
        const bool chosen = index >= 0 && index < static_cast<int>(items.size());
        return chosen ? &items[static_cast<std::size_t>(index)] : nullptr;
    }
    /// Chooses the first item of a number, or of a text; none when there is no such item.
    void ChooseNumber(int number);
    void ChooseText(const std::string& text);
};

/// A field in which something is typed, or taken from a list. Where the items stand for numbers (of
/// locations), `text` holds the number.
struct ComboBox {
    std::vector<ListItem> items;
    std::string text;
};

}  // namespace fabula::authoring
