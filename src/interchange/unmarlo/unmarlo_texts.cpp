#include "interchange/shared/source_file.h"
#include "interchange/unmarlo/spectrum_text.h"
#include "interchange/unmarlo/unmarlo_section.h"
#include "text/line_ends.h"

namespace fabula::interchange {
namespace {

using store::TableNum;

/// A kind of texts: what stands before their numbers, and what becomes of them.
struct TextKind {
    std::string_view label;
    int labelWords;
    TableNum table;
    const char* keyField;
    void (*store)(KeyedTable& table, std::int64_t number, const std::string& text);
    const char* loaded;    ///< the status at the end; nullptr for none
    const char* progress;  ///< the progress line of each, before its number; nullptr for none
};

void StoreMessage(KeyedTable& table, std::int64_t number, const std::string& text) {
    StoreText(table, "msgmsg", number, text);
}

void StoreSystemMessage(KeyedTable& table, std::int64_t number, const std::string& text) {
    StoreText(table, "smsgmsg", number, text);
}

constexpr TextKind kObjects{"Object ", 1, TableNum::Objects, "objnum", StoreObject, nullptr, nullptr};
constexpr TextKind kLocations{
    "Location ",       1, TableNum::Locations, "locnum", StoreLocation, "Loaded Marlo  Locations.",
    "Loaded Location "};
constexpr TextKind kMessages{
    "Message ", 1, TableNum::Messages, "msgnum", StoreMessage, "Loaded Marlo Messages.", nullptr};
constexpr TextKind kSystemMessages{"System message ",
                                   2,
                                   TableNum::SystemMessages,
                                   "smsgnum",
                                   StoreSystemMessage,
                                   "Loaded Marlo System Messages.",
                                   nullptr};

/// Texts below lines "0A1F: Message 3:". A line that has no such label is text, whatever stands in it.
class Texts final : public ListingSection {
  public:
    Texts(ListingJob& job, const TextKind& kind, std::string version)
        : job_(job),
          kind_(kind),
          version_(std::move(version)),
          table_(job.Adventure(), kind.table, kind.keyField) {}

    void Line(std::string_view line) override {
        if (HasAddress(line) && HasMark(line, kind_.label)) {
            Flush();
            number_ = NumberBehind(line, kind_.labelWords);
            if (!number_) job_.Fault(kBadLine);
            return;
        }
        text_ += TrimRight(line);
        text_ += text::kLineEndMarker;
    }

    void Finish() override {
        Flush();
        if (kind_.table == TableNum::SystemMessages) AddScriptMessages(job_.Adventure());
        if (kind_.loaded != nullptr) job_.Status(kind_.loaded);
    }

  private:
    void Flush() {
        if (number_) {
            if (text_.ends_with(text::kLineEndMarker))
                text_.resize(text_.size() - text::kLineEndMarker.size());
            if (text_.empty()) text_ = " ";
            kind_.store(table_, *number_, ConvertUnMarloDesc(text_, version_));
            if (kind_.progress != nullptr)
                job_.context.status.AddProgressLine(kind_.progress + std::to_string(*number_));
        }
        number_.reset();
        text_.clear();
    }

    ListingJob& job_;
    const TextKind& kind_;
    std::string version_;
    KeyedTable table_;
    std::optional<int> number_;  ///< of the text that is being read
    std::string text_;
};

}  // namespace

std::unique_ptr<ListingSection> UnMarloObjects(ListingJob& job, const std::string& version) {
    return std::make_unique<Texts>(job, kObjects, version);
}

std::unique_ptr<ListingSection> UnMarloLocations(ListingJob& job, const std::string& version) {
    return std::make_unique<Texts>(job, kLocations, version);
}

std::unique_ptr<ListingSection> UnMarloMessages(ListingJob& job, const std::string& version) {
    return std::make_unique<Texts>(job, kMessages, version);
}

std::unique_ptr<ListingSection> UnMarloSystemMessages(ListingJob& job, const std::string& version) {
    return std::make_unique<Texts>(job, kSystemMessages, version);
}

}  // namespace fabula::interchange
