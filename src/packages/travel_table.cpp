#include "packages/travel_table.h"

#include <array>
#include <optional>

#include "interchange/shared/source_file.h"
#include "platform/error.h"
#include "text/numbers.h"
#include "text/str_edit.h"

namespace fabula::packages {
namespace {

using interchange::SourceFile;

constexpr int kTravelSection = 3;
constexpr int kWordSection = 4;
constexpr int kObjectSection = 5;
constexpr int kValueOfCondition = 1000;
constexpr std::int64_t kHighestValue = 1'000'999;
constexpr std::int64_t kHighestNumber = 99'999;
constexpr int kFirstMark = 100;  ///< from here on a number marks a message
constexpr std::string_view kSectionEnd = "-1";
constexpr std::string_view kNoObject = ">$<";
constexpr std::array<std::string_view, 6> kMessageMarks = {"000", "100", "200", "300", "400", "500"};

std::optional<int> Number(std::string_view word, std::int64_t highest) {
    const auto number = text::WholeNumber(word);
    if (!number || *number < 0 || *number > highest) return std::nullopt;
    return static_cast<int>(*number);
}

class Reader {
  public:
    Reader(const std::filesystem::path& file, interchange::JobStatus& status)
        : source_(file), status_(status) {}

    TravelTable Read() {
        while (source_.Next(line_)) {
            const auto words = interchange::SplitWords(line_);
            if (words.empty()) continue;
            const auto section = Number(words[0], kHighestNumber);
            if (!section || words.size() > 1) {
                Fault("This line is not the number of a section.");
                break;
            }
            if (*section == 0) break;
            ReadSection(*section);
        }
        return std::move(table_);
    }

  private:
    void ReadSection(int section) {
        const interchange::SourcePlace start = Here();
        while (source_.Next(line_)) {
            const auto words = interchange::SplitWords(line_);
            if (words.empty()) continue;
            if (words[0] == kSectionEnd) return;
            if (section == kTravelSection) ReadRow(words);
            if (section == kWordSection) ReadWord(words);
            if (section == kObjectSection) ReadObject(words[0]);
        }
        status_.AddFault("The section has no -1.", start);
    }

    void ReadRow(const std::vector<std::string_view>& words) {
        TravelRow row;
        const auto room = Number(words[0], kHighestRoom);
        const auto value = words.size() > 1 ? Number(words[1], kHighestValue) : std::nullopt;
        if (!room || *room == 0 || !value)
            return Fault("A travel row needs a room from 1 to 1000 and a value.");
        row.room = *room;
        row.condition = *value / kValueOfCondition;
        row.destination = *value % kValueOfCondition;
        for (std::size_t i = 2; i < words.size(); ++i) {
            const auto verb = Number(words[i], kHighestNumber);
            if (!verb) return Fault("A verb of a travel row is a number.");
            row.verbs.push_back(*verb);
        }
        if (table_.rows.size() >= kMostTravelRows)
            throw Error("Could not read " + source_.File().string() + ": it has too many travel rows.");
        table_.rows.push_back(std::move(row));
    }

    /// Of words with one number the first counts.
    void ReadWord(const std::vector<std::string_view>& words) {
        const auto number = Number(words[0], kHighestNumber);
        if (!number || words.size() < 2) return Fault("A word needs its number in front.");
        table_.words.try_emplace(*number, words[1]);
    }

    void ReadObject(std::string_view mark) {
        const auto number = Number(mark, kHighestNumber);
        if (!number) return Fault("The text of an object needs its number in front.");
        const std::string text = TextBehind(mark);
        // 000 is the mark of a message; an object's number has no noughts in front.
        const bool isMessage = mark == kMessageMarks[0] || *number >= kFirstMark;
        if (!isMessage) {
            inObject_ = text.find(kNoObject) == std::string::npos;
            if (inObject_) table_.objects.push_back({*number, text, {}});
            return;
        }
        bool known = false;
        for (const std::string_view each : kMessageMarks)
            known = known || each == mark;
        if (!known) return Fault("The marks of messages are 000, 100, 200, 300, 400 and 500.");
        if (inObject_ && text.find(kNoObject) == std::string::npos)
            table_.objects.back().messages.push_back(text);
    }

    /// What stands behind the first blank or tab.
    std::string TextBehind(std::string_view mark) const {
        const auto start = static_cast<std::size_t>(mark.data() - line_.data()) + mark.size();
        std::string_view rest = std::string_view(line_).substr(start);
        if (!rest.empty()) rest.remove_prefix(1);
        return std::string(interchange::TrimRight(rest));
    }

    interchange::SourcePlace Here() const { return {source_.File(), source_.LineNumber(), line_}; }
    void Fault(std::string_view message) { status_.AddFault(message, Here()); }

    SourceFile source_;
    interchange::JobStatus& status_;
    std::string line_;
    TravelTable table_;
    bool inObject_ = false;
};

constexpr int kAlways = 0;
constexpr int kNotForDwarves = 100;
constexpr int kHighestCarried = 200;
constexpr int kHighestPresent = 300;
constexpr int kHighestProperty = 900;
constexpr int kHighestLocation = 300;
constexpr int kHighestComputed = 500;

}  // namespace

TravelTable ReadTravelTable(const std::filesystem::path& file, interchange::JobStatus& status) {
    return Reader(file, status).Read();
}

std::string ConditionText(int condition) {
    if (condition == kAlways) return " Unconditional ";
    if (condition < kNotForDwarves) return std::to_string(condition) + " probability ";
    if (condition == kNotForDwarves) return " Unconditional but forbidden to dwarves";
    if (condition <= kHighestCarried)
        return " if carrying object " + std::to_string(condition - kNotForDwarves);
    if (condition <= kHighestPresent) {
        return " if carrying or in same room as object " + std::to_string(condition - kHighestCarried);
    }
    if (condition > kHighestProperty) return " unknown condition " + std::to_string(condition);
    const int property = (condition - 1 - kHighestPresent) / 100;
    return " if prop of object " + std::to_string(condition % 100) + " <> " + std::to_string(property);
}

std::string DestinationText(int destination) {
    if (destination <= kHighestLocation) return " To Location " + std::to_string(destination);
    if (destination <= kHighestComputed)
        return std::to_string(destination) + " used in computed GOTO in code";
    return " Print message " + std::to_string(destination - kHighestComputed);
}

}  // namespace fabula::packages
