#include "condacts/limits.h"
#include "interchange/listing/listed_entries.h"
#include "interchange/listing/listing_lines.h"
#include "interchange/unvel/unvel_section.h"
#include "text/encoding/utf8.h"
#include "text/str_edit.h"

namespace fabula::interchange {
namespace {

using condacts::Word;
using store::TableNum;

// GET   LAMP       PRESENT        1
//                  GET            1
constexpr Columns kFirstWordColumns{0, 6};
constexpr Columns kSecondWordColumns{6, 5};
constexpr Columns kCondActColumns{17, 80};

class Entries final : public ListingSection {
  public:
    Entries(UnVelJob& job, condacts::ProcessNumber table)
        : job_(job), table_(table), entries_(job.Adventure()) {
        entry_.table = table;
    }

    void Line(std::string_view line) override {
        if (text::TrimBlanks(line).empty()) return;
        const std::string_view w1 = CutTrimmed(line, kFirstWordColumns);
        const std::string_view w2 = CutTrimmed(line, kSecondWordColumns);
        if (!w1.empty() || !w2.empty()) {
            Flush();
            SetWord(w1, FirstWord(w1), entry_.w1, entry_.w1Number);
            SetWord(w2, job_.words.Find(w2, condacts::IsNounOrReserved), entry_.w2, entry_.w2Number);
        }
        const std::string_view rest = CutTrimmed(line, kCondActColumns);
        if (rest.empty()) return;
        const auto condAct = TakeCondActs(job_.listing, rest, &job_.words);
        if (condAct) entry_.AddCondActs(*condAct);
    }

    void Finish() override {
        Flush();
        if (table_ <= condacts::limit::kLastFixedProcess) return;
        KeyedTable tables(job_.Adventure(), TableNum::ProcDesc);
        if (!tables.Has(table_.value)) StoreText(tables, "pmsgmsg", table_.value, "");
    }

  private:
    /// In a game of the older engine a verb may have come in as a noun.
    const Word* FirstWord(std::string_view word) const {
        if (!job_.isMarlo) return job_.words.Find(word, condacts::MayBeEntryVerb);
        const Word* found = job_.words.Find(word, condacts::IsMovementWordOrReserved);
        return found != nullptr ? found : job_.words.Find(word, condacts::IsNounOrReserved);
    }

    /// A word that the vocabulary does not have stays, as one that fits any.
    static void SetWord(std::string_view listed, const Word* found, std::string& word,
                        condacts::WordNumber& number) {
        number = found != nullptr ? found->number : condacts::kNoWordNumber;
        if (listed.empty() || listed == kAnyWord) {
            word = std::string(condacts::kNoWord);
            number = condacts::kNoWordNumber;
            return;
        }
        word = found != nullptr ? found->word : text::UpperCase(listed);
    }

    void Flush() { entries_.Flush(entry_, job_.listing.catalogue, job_.words); }

    UnVelJob& job_;
    condacts::ProcessNumber table_;
    ListedEntries entries_;
    ListedEntry entry_;
};

}  // namespace

std::unique_ptr<ListingSection> UnVelEntries(UnVelJob& job, condacts::ProcessNumber table) {
    return std::make_unique<Entries>(job, table);
}

}  // namespace fabula::interchange
