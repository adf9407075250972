#include "condacts/limits.h"
#include "interchange/unvel/unvel_section.h"
#include "interchange/unvel/unvel_text.h"
#include "store/schema/record_fields.h"
#include "text/str_edit.h"

namespace fabula::interchange {
namespace {

using store::TableNum;

/// What stands before the numbers of a kind of texts, and what becomes of them. The rows are in the order
/// of UnVelTextKind.
struct TextRow {
    std::string_view label;
    TableNum table;
    const char* loaded;
};
constexpr TextRow kTextRows[] = {
    {"Message", TableNum::Messages, "Messages"},
    {"System Message", TableNum::SystemMessages, "System Messages"},
    {"Location", TableNum::Locations, "Locations"},
    {"Object", TableNum::Objects, "Object Names"},
};

/// Texts below lines "Message   12". Empty lines at the end of a text part it from what follows.
class ListedTexts final : public ListingSection {
  public:
    ListedTexts(UnVelJob& job, UnVelTextKind kind)
        : job_(job),
          kind_(kind),
          row_(kTextRows[static_cast<std::size_t>(kind)]),
          table_(job.Adventure(), row_.table) {}

    void Line(std::string_view line) override {
        if (const auto number = NumberAlone(line, row_.label)) {
            Flush();
            number_ = number;
            return;
        }
        if (!number_) {
            if (!line.empty()) job_.Fault(kBadLine);
            return;
        }
        if (line.empty()) {
            ++emptyLines_;
            return;
        }
        text_.append(hasText_ ? emptyLines_ + 1 : 0, '\n');
        text_ += line;
        hasText_ = true;
        emptyLines_ = 0;
    }

    void Finish() override {
        Flush();
        if (kind_ == UnVelTextKind::SystemMessages) AddScriptMessages(job_.Adventure());
        job_.Status(std::string("Loaded Vel ") + row_.loaded);
    }

  private:
    void Flush() {
        if (number_) Store(*number_, UnVelText(text_));
        number_.reset();
        text_.clear();
        hasText_ = false;
        emptyLines_ = 0;
    }

    void Store(int number, const std::string& text) {
        switch (kind_) {
            case UnVelTextKind::Messages:
            case UnVelTextKind::SystemMessages:
                return StoreText(table_, store::TextField(row_.table), number, text);
            case UnVelTextKind::Locations:
                return StoreLocation(table_, number, text);
            case UnVelTextKind::ObjectNames:
                return StoreObject(table_, number, text);
        }
    }

    UnVelJob& job_;
    UnVelTextKind kind_;
    const TextRow& row_;
    KeyedTable table_;
    std::optional<int> number_;  ///< of the text that is being read
    std::string text_;
    bool hasText_ = false;
    std::size_t emptyLines_ = 0;  ///< behind what was read so far
};

}  // namespace

std::unique_ptr<ListingSection> UnVelTexts(UnVelJob& job, UnVelTextKind kind) {
    return std::make_unique<ListedTexts>(job, kind);
}

std::optional<int> NumberAlone(std::string_view line, std::string_view label) {
    if (!line.starts_with(label)) return std::nullopt;
    line.remove_prefix(label.size());
    if (!line.starts_with(' ')) return std::nullopt;
    return ListedNumber(text::TrimBlanks(line), condacts::limit::kHighestRecord);
}

}  // namespace fabula::interchange
