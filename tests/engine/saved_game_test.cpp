// What LOAD makes of files that are no saved games, or no longer.

#include <sstream>

#include <gtest/gtest.h>

#include "engine/saved_world.h"

namespace fabula::test {
namespace {

using engine::Waiting;

/// What LOAD says of a save in which one text was replaced by another, after the state had moved on.
class DamagedSave : public testing::Test {
  protected:
    DamagedSave() : run_(SavedWorld().FlagCount(1019).Start()), content_(Save(*run_)) {
        run_->Type("TAKE");
        run_->Type("STEP");
    }

    /// True when the file is refused and nothing has changed.
    bool IsRefused(const std::string& content) {
        WriteState(run_->File("two.sav"), content);
        return Load(*run_, "two.sav") == "Invalid Save File for this Adventure" && run_->Flag(200) == 1 &&
               run_->Flag(38) == 1 && run_->PlaceOf(1) == 254;
    }

    std::string With(const std::string& from, const std::string& to) const {
        const std::size_t at = content_.find(from);
        return content_.substr(0, at) + to + content_.substr(at + from.size());
    }

    std::unique_ptr<GameRun> run_;
    std::string content_;
};

TEST_F(DamagedSave, EmptyIsRefused) {
    EXPECT_TRUE(IsRefused(""));
}

TEST_F(DamagedSave, CutAnywhereIsRefused) {
    for (std::size_t length = 0; length < content_.size(); length += 997) {
        EXPECT_TRUE(IsRefused(content_.substr(0, length))) << length;
    }
    EXPECT_TRUE(IsRefused(content_.substr(0, content_.size() - 1)));
}

TEST_F(DamagedSave, WithALineTooManyIsRefused) {
    EXPECT_TRUE(IsRefused(content_ + "0\n"));
}

TEST_F(DamagedSave, OfAnotherProgramIsRefused) {
    EXPECT_TRUE(IsRefused(With("Fabula", "fabula")));
}

TEST_F(DamagedSave, WithOtherBoundsIsRefused) {
    EXPECT_TRUE(IsRefused(With("10,10,1018", "10,9,1018")));
    EXPECT_TRUE(IsRefused(With("10,10,1018", "10,10,1019")));
    EXPECT_TRUE(IsRefused(With("\n10\n", "\n9\n")));
}

TEST_F(DamagedSave, WithLettersForANumberIsRefused) {
    EXPECT_TRUE(IsRefused(With("252,0\n", "252,x\n")));
    EXPECT_TRUE(IsRefused(With("252,0\n", "252, 0\n")));
    EXPECT_TRUE(IsRefused(With("252,0\n", "252,\n")));
}

TEST_F(DamagedSave, WithANumberTooManyOrTooFewIsRefused) {
    EXPECT_TRUE(IsRefused(With("252,0\n", "252,0,0\n")));
    EXPECT_TRUE(IsRefused(With("252,0\n", "252\n")));
}

TEST_F(DamagedSave, WithANumberOutOf16BitsIsRefused) {
    EXPECT_TRUE(IsRefused(With("252,0\n", "252,40000\n")));
    EXPECT_TRUE(IsRefused(With("252,0\n", "252,99999999999999999999\n")));
}

TEST_F(DamagedSave, WithAVisitedMarkThatIsNoneIsRefused) {
    EXPECT_TRUE(IsRefused(With("\n1,0,0\n", "\n2,0,0\n")));
}

TEST_F(DamagedSave, WithThePlayerWhereNoLocationIsIsRefused) {
    // Flag 37 is 10 and flag 38 the location 0.
    EXPECT_TRUE(IsRefused(With(",10,0,0,", ",10,3,0,")));
    EXPECT_TRUE(IsRefused(With(",10,0,0,", ",10,-1,0,")));
}

/// The saved game with another value in one flag of a slot.
std::string WithFlag(const std::string& content, int slot, int flag, int value) {
    constexpr int kFirstFlagLine = 24;
    std::istringstream lines(content);
    std::string changed;
    std::string line;
    for (int number = 0; std::getline(lines, line); ++number) {
        std::size_t at = 0;
        if (number == kFirstFlagLine + slot) {
            for (int before = 0; before < flag; ++before)
                at = line.find(',', at) + 1;
            line.replace(at, line.find(',', at) - at, std::to_string(value));
        }
        changed += line + "\n";
    }
    return changed;
}

TEST_F(DamagedSave, WhoseFlagsNameAnObjectOrAMessageThatIsNotThereIsRefused) {
    for (const int slot : {0, 10}) {
        EXPECT_TRUE(IsRefused(WithFlag(content_, slot, 51, 77))) << slot;
        EXPECT_TRUE(IsRefused(WithFlag(content_, slot, 51, -1))) << slot;
        EXPECT_TRUE(IsRefused(WithFlag(content_, slot, 42, 2000))) << slot;
        EXPECT_TRUE(IsRefused(WithFlag(content_, slot, 42, -1))) << slot;
    }
}

TEST_F(DamagedSave, WhoseFlagsNameWhatIsThereOrNothingIsTaken) {
    EXPECT_FALSE(IsRefused(WithFlag(content_, 0, 51, 1)));
    EXPECT_FALSE(IsRefused(WithFlag(content_, 0, 51, 255)));
    EXPECT_FALSE(IsRefused(WithFlag(content_, 0, 42, 2)));
}

TEST_F(DamagedSave, OfGiganticSizeIsRefused) {
    EXPECT_TRUE(IsRefused(std::string(10'000'000, '1')));
}

TEST_F(DamagedSave, WithTheMarksOfARunThatWaitsLoadsAndWaitsForASentence) {
    std::string content = content_;
    const std::size_t line = content.find("\n0,0,0,0,") + 1;  // flags of slot 0
    const std::size_t end = content.find('\n', line);
    std::string flags = content.substr(line, end - line);
    // The last five flags are 1014 to 1018.
    for (int i = 0; i < 5; ++i)
        flags.resize(flags.rfind(','));
    WriteState(run_->File("two.sav"),
               content.substr(0, line) + flags + ",255,255,255,255,255" + content.substr(end));
    EXPECT_EQ(Load(*run_, "two.sav"), "");
    EXPECT_EQ(run_->Waits(), Waiting::Sentence);
    run_->Type("STEP");
    EXPECT_EQ(run_->Waits(), Waiting::Sentence);
}

}  // namespace
}  // namespace fabula::test
