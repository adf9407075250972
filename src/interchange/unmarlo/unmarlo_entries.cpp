#include "interchange/listing/listed_entries.h"
#include "interchange/listing/listing_lines.h"
#include "interchange/unmarlo/unmarlo_section.h"
#include "text/encoding/utf8.h"

namespace fabula::interchange {
namespace {

// 0A1F: GET  LAMP
// 0A23:               GET      1
constexpr Columns kFirstWord{6, 4};
constexpr Columns kSecondWord{11, 4};
constexpr Columns kCondAct{20, 16};
constexpr Columns kFirstLetter{6, 1};

/// The response or the status table. The numbers of words are found when the vocabulary is known.
class MarloEntries final : public ListingSection {
  public:
    MarloEntries(ListingJob& job, condacts::ProcessNumber table) : job_(job), entries_(job.Adventure()) {
        pending_.table = table;
    }

    void Line(std::string_view line) override {
        if (!HasAddress(line)) return;
        if (Cut(line, kFirstLetter) == " ") {
            const auto condAct = TakeCondActs(job_, CutTrimmed(line, kCondAct), nullptr);
            if (condAct && !condAct->empty()) pending_.AddCondActs(*condAct);
            return;
        }
        Flush();
        pending_.w1 = Word(CutTrimmed(line, kFirstWord));
        pending_.w2 = Word(CutTrimmed(line, kSecondWord));
    }

    void Finish() override {
        Flush();
        job_.Status(pending_.table == condacts::kResponses ? "Loaded Marlo Response Table.\n"
                                                           : "Loaded Marlo Status Table.\n");
    }

  private:
    static std::string Word(std::string_view word) {
        if (word.empty() || word == kAnyWord) return std::string(condacts::kNoWord);
        return text::UpperCase(word);
    }

    void Flush() { entries_.Flush(pending_, job_.catalogue, {}); }

    ListingJob& job_;
    ListedEntries entries_;
    ListedEntry pending_;
};

}  // namespace

std::unique_ptr<ListingSection> UnMarloEntries(ListingJob& job, condacts::ProcessNumber table) {
    return std::make_unique<MarloEntries>(job, table);
}

}  // namespace fabula::interchange
