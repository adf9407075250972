#include "condacts/language/parser.h"
#include "condacts/limits.h"
#include "condacts/words.h"
#include "interchange/unvel/unvel_section.h"
#include "text/str_edit.h"

namespace fabula::interchange {
namespace {

using condacts::Word;
using store::TableNum;

// Location   0:  NORTH  5
//                SOUTH 12
// Some versions begin the words one column later.
constexpr Columns kLocationHead{0, 8};
constexpr Columns kLocation{8, 4};
constexpr std::size_t kWordColumn = 15;
constexpr std::size_t kWordWidth = 5;
constexpr std::size_t kDestinationWidth = 3;

class Connections final : public ListingSection {
  public:
    explicit Connections(UnVelJob& job)
        : job_(job), locations_(job.Adventure(), TableNum::Locations, "locnum") {}

    void Line(std::string_view line) override {
        if (text::TrimBlanks(line).empty()) return;
        if (Cut(line, kLocationHead) == "Location") {
            Flush();
            number_ = ListedNumber(CutTrimmed(line, kLocation), condacts::limit::kHighestRecord);
        }
        const std::size_t first = Cut(line, {kWordColumn, 1}) == " " ? kWordColumn + 1 : kWordColumn;
        const std::string word(CutTrimmed(line, {first, kWordWidth}));
        const auto destination = ListedNumber(CutTrimmed(line, {first + kWordWidth, kDestinationWidth}),
                                              condacts::limit::kHighestRecord);
        const Word* found = Find(word);
        if (!number_ || !destination || found == nullptr) {
            job_.Fault(kBadLine);
            return;
        }
        const std::string separator = exits_.empty() ? "" : " ";
        exits_ += separator + found->word + " " + std::to_string(*destination);
        numericExits_ +=
            separator + std::to_string(found->number.value) + " " + std::to_string(*destination);
    }

    void Finish() override {
        Flush();
        job_.Status("Loaded UnVel Location Connections");
    }

  private:
    /// In a game of the older engine the nouns below 20 are the movement words.
    const Word* Find(const std::string& word) const {
        return job_.words.Find(word, job_.isMarlo ? condacts::IsMovementWord : condacts::IsVerbOrNoun);
    }

    void Flush() {
        if (number_ && locations_.Has(*number_)) {
            store::Cursor& location = locations_.GoTo(*number_);
            location.SetField("exits", exits_);
            location.SetField("numericexits", numericExits_);
            location.SetField("numexits", std::int64_t{condacts::CountTokens(exits_)});
            locations_.Update();
        }
        number_.reset();
        exits_.clear();
        numericExits_.clear();
    }

    UnVelJob& job_;
    KeyedTable locations_;
    std::optional<int> number_;
    std::string exits_;
    std::string numericExits_;
};

}  // namespace

std::unique_ptr<ListingSection> UnVelConnections(UnVelJob& job) {
    return std::make_unique<Connections>(job);
}

}  // namespace fabula::interchange
