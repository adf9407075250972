// Listings that no decompiler has written: cut, out of order, with lines and numbers that are none. Each is
// refused or taken as far as it goes; what came in is an adventure that opens, and what was refused leaves
// nothing.

#include <algorithm>
#include <fstream>
#include <random>

#include <gtest/gtest.h>

#include "interchange/jobs.h"
#include "interchange/reading.h"
#include "support/games/listing_writers.h"
#include "support/places.h"
#include "support/trials.h"

namespace fabula::interchange {
namespace {

using Lines = std::vector<std::string>;
using store::TableNum;

Lines LinesOf(const std::string& text) {
    Lines lines;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = std::min(text.find('\n', at), text.size());
        lines.push_back(text.substr(at, end - at));
        at = end + 1;
    }
    return lines;
}

std::string Joined(const Lines& lines) {
    std::string text;
    for (const std::string& line : lines)
        text += line + "\n";
    return text;
}

/// How many listings are changed at random in each of the ways below. Each is a whole import.
int Listings() {
    return test::Trials("FABULA_LISTINGS", 4);
}

class BadListing : public testing::TestWithParam<const char*> {
  protected:
    BadListing() {
        const bool isMarlo = GetParam() == std::string("unmarlo");
        const test::ListedGame game = test::RandomListedGame(isMarlo, 8);
        lines_ = LinesOf(isMarlo ? UnMarloListing(game, 8) : UnVelListing(game));
    }

    /// Imports the lines as a job, in a folder of their own, and tells what is wrong with what is left; ""
    /// when nothing is.
    std::string Trouble(const Lines& lines) {
        const test::TempFolder folder;
        std::ofstream(folder / "listing", std::ios::binary) << Joined(lines);
        platform::ScriptedPerson person;
        const platform::FixedClock clock{{2026, 3, 9, 8, 5, 7}};
        platform::NoEvents events;
        NoObserver nobody;
        const JobResult result =
            ImportIt(*FindFileKind(GetParam()), folder / "listing", folder / "game.fbd",
                     {person, clock, events, nobody, test::DefaultData()});
        const bool there = std::filesystem::exists(folder / "game.fbd");
        if (result.done != there) return "done and there differ: " + result.status;
        if (!result.status.starts_with("Creating default database for ")) return "status: " + result.status;
        if (!there) {
            const bool told = result.status.ends_with("Deleting bad database\n");
            const auto files = std::distance(std::filesystem::directory_iterator(folder.Path()), {});
            return told && files == 1 ? "" : "something is left: " + result.status;
        }
        const auto adventure = store::Adventure::Open(folder / "game.fbd", store::OpenMode::ReadOnly);
        return adventure->AdventureType() == "Marlo" || adventure->AdventureType() == "VEL" ? "" : "type";
    }

    Lines lines_;
};

INSTANTIATE_TEST_SUITE_P(Kinds, BadListing, testing::Values("unmarlo", "unvel"),
                         [](const auto& kind) { return std::string(kind.param); });

TEST_P(BadListing, CutAtALineLeavesAGameOrNothing) {
    for (std::size_t count = 0; count <= lines_.size(); count += 1 + lines_.size() / 14) {
        const Lines cut(lines_.begin(), lines_.begin() + static_cast<std::ptrdiff_t>(count));
        ASSERT_EQ(Trouble(cut), "") << "cut behind line " << count;
    }
}

TEST_P(BadListing, CutWithinALineLeavesAGameOrNothing) {
    std::mt19937 random(1);
    for (int i = 0; i < Listings(); ++i) {
        Lines cut = lines_;
        cut.resize(random() % cut.size() + 1);
        cut.back().resize(random() % (cut.back().size() + 1));
        ASSERT_EQ(Trouble(cut), "") << "cut in line " << cut.size();
    }
}

TEST_P(BadListing, WithSectionsOutOfOrderLeavesAGameOrNothing) {
    std::mt19937 random(2);
    for (int i = 0; i < Listings(); ++i) {
        Lines moved = lines_;
        const auto middle = static_cast<std::ptrdiff_t>(random() % moved.size());
        std::rotate(moved.begin() + 2, moved.begin() + std::max<std::ptrdiff_t>(middle, 2), moved.end());
        ASSERT_EQ(Trouble(moved), "") << "begun at line " << middle;
    }
}

TEST_P(BadListing, WithRepeatedPartsLeavesAGameOrNothing) {
    std::mt19937 random(3);
    for (int i = 0; i < Listings(); ++i) {
        Lines twice = lines_;
        const auto from = static_cast<std::ptrdiff_t>(random() % lines_.size());
        const auto to =
            from + static_cast<std::ptrdiff_t>(random() % (lines_.size() - static_cast<std::size_t>(from)));
        twice.insert(twice.begin() + to, lines_.begin() + from, lines_.begin() + to);
        ASSERT_EQ(Trouble(twice), "") << "lines " << from << " to " << to;
    }
}

TEST_P(BadListing, WithNumbersThatAreNoneOrTooLargeLeavesAGameOrNothing) {
    std::mt19937 random(4);
    constexpr const char* kNumbers[] = {"x", "-1", "99999999999999999999", "1000", "", "0x", "256"};
    for (int i = 0; i < Listings(); ++i) {
        Lines wrong = lines_;
        for (std::string& line : wrong) {
            const std::size_t digit = line.find_first_of("0123456789", 5);
            if (digit == std::string::npos || random() % 8 != 0) continue;
            const std::size_t end = line.find_first_not_of("0123456789", digit);
            line.replace(digit, std::min(end, line.size()) - digit, kNumbers[random() % 7]);
        }
        ASSERT_EQ(Trouble(wrong), "") << "trial " << i;
    }
}

TEST_P(BadListing, WithWrongCountsComesInByWhatIsThere) {
    Lines wrong = lines_;
    for (std::string& line : wrong) {
        for (const char* count :
             {"There are ", "Locations      ", "Messages       ", "Objects       ", "Processes     "}) {
            if (!line.starts_with(count)) continue;
            const std::size_t digit = line.find_first_of("0123456789");
            if (digit == std::string::npos) continue;
            const std::size_t end = line.find_first_not_of("0123456789", digit);
            line.replace(digit, std::min(end, line.size()) - digit, "999");
        }
    }
    ASSERT_NE(wrong, lines_);
    const Reading right(GetParam(), Joined(lines_));
    const Reading read(GetParam(), Joined(wrong));
    ASSERT_TRUE(read.ok) << read.status;
    for (const TableNum table :
         {TableNum::Locations, TableNum::Messages, TableNum::Objects, TableNum::ProcessTables})
        EXPECT_EQ(read->OpenTable(table, "def").RecordCount(),
                  right->OpenTable(table, "def").RecordCount());
}

TEST_P(BadListing, WithALineOfTenMegabytesInEachSectionLeavesAGameOrNothing) {
    const std::string large(10'000'000, 'x');
    for (std::size_t at = 2; at < lines_.size(); at += lines_.size() / 3) {
        Lines wrong = lines_;
        wrong[at] += large;
        ASSERT_EQ(Trouble(wrong), "") << "line " << at;
    }
}

}  // namespace
}  // namespace fabula::interchange
