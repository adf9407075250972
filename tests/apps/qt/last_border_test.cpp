#include "qt/last_border.h"

#include <stdexcept>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/error.h"
#include "support/doubles/scripted_dialogs.h"

namespace fabula::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class LastBorderTest : public testing::Test {
  protected:
    std::optional<bool> Fail(const std::function<bool()>& work) {
        return border_.Run(work, [] { return std::string("a key was pressed in \"Locations\""); });
    }
    std::optional<bool> Fail() {
        return Fail([]() -> bool { throw Error("The file is gone."); });
    }
    std::vector<std::string> Boxes() const {
        std::vector<std::string> texts;
        for (const auto& box : dialogs_.Boxes())
            texts.push_back(box.title + ": " + box.text);
        return texts;
    }

    platform::ScriptedDialogs dialogs_;
    std::vector<int> ends_;
    qt::LastBorder border_{dialogs_, [this](int status) { ends_.push_back(status); }};
};

TEST_F(LastBorderTest, GivesWhatTheWorkGives) {
    EXPECT_EQ(Fail([] { return true; }), true);
    EXPECT_EQ(Fail([] { return false; }), false);
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(LastBorderTest, TellsAFaultInOneSentenceAndGoesOn) {
    EXPECT_EQ(Fail(), std::nullopt);
    EXPECT_THAT(Boxes(),
                ElementsAre("Error: Something failed while a key was pressed in \"Locations\": The "
                            "file is gone."));
    EXPECT_THAT(ends_, IsEmpty());
}

TEST_F(LastBorderTest, TellsInWordsThatMemoryHasRunOut) {
    Fail([]() -> bool { throw std::bad_alloc(); });
    EXPECT_THAT(Boxes(),
                ElementsAre("Error: Something failed while a key was pressed in \"Locations\": There "
                            "is not enough memory for this."));
}

TEST_F(LastBorderTest, TellsAFaultThatIsNoException) {
    Fail([]() -> bool { throw 5; });
    EXPECT_THAT(Boxes(), ElementsAre("Error: Something failed while a key was pressed in \"Locations\": A "
                                     "fault without a name."));
}

TEST_F(LastBorderTest, KeepsWhatCouldBeLostAndTellsWhere) {
    border_.SetKeep([] { return std::string("A copy of the adventure is at /copies/a.fbd."); });
    Fail();
    EXPECT_THAT(Boxes(),
                ElementsAre("Error: Something failed while a key was pressed in \"Locations\": The "
                            "file is gone.\n\nA copy of the adventure is at /copies/a.fbd."));
}

TEST_F(LastBorderTest, TellsTheFaultAlsoWhenNothingCouldBeKept) {
    border_.SetKeep([]() -> std::string { throw Error("The disk is full."); });
    Fail();
    EXPECT_THAT(Boxes(),
                ElementsAre("Error: Something failed while a key was pressed in \"Locations\": The "
                            "file is gone.\n\nA copy of the work could not be kept: The disk is "
                            "full."));
}

TEST_F(LastBorderTest, TellsTheFaultAlsoWhenKeepingFailsWithoutAnException) {
    border_.SetKeep([]() -> std::string { throw 5; });
    Fail();
    EXPECT_THAT(Boxes(),
                ElementsAre("Error: Something failed while a key was pressed in \"Locations\": The "
                            "file is gone.\n\nA copy of the work could not be kept: A fault without a "
                            "name."));
}

TEST_F(LastBorderTest, EndsTheProgramWhenTheBoxFailsWithoutAnException) {
    dialogs_.whileTelling = [] { throw 5; };
    testing::internal::CaptureStderr();
    Fail();
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "The file is gone.\nThis could not be shown: A fault without a name.\n");
    EXPECT_THAT(ends_, ElementsAre(EXIT_FAILURE));
}

TEST_F(LastBorderTest, EndsTheProgramAtTheFourthFaultInARow) {
    for (int i = 0; i < 3; ++i)
        Fail();
    EXPECT_THAT(ends_, IsEmpty());
    Fail();
    EXPECT_THAT(ends_, ElementsAre(EXIT_FAILURE));
    EXPECT_EQ(Boxes().size(), 3u);
}

TEST_F(LastBorderTest, BeginsToCountAnewWhenSomethingWentWell) {
    for (int i = 0; i < 3; ++i)
        Fail();
    Fail([] { return true; });
    Fail();
    EXPECT_THAT(ends_, IsEmpty());
    EXPECT_EQ(Boxes().size(), 4u);
}

TEST_F(LastBorderTest, EndsTheProgramAtAFaultWithinItsOwnBox) {
    dialogs_.whileTelling = [this] { Fail(); };
    Fail();
    EXPECT_THAT(ends_, ElementsAre(EXIT_FAILURE));
    EXPECT_EQ(Boxes().size(), 1u);
}

TEST(RunProgram, MakesASentenceAndStatus1OfWhatTheBodyThrows) {
    testing::internal::CaptureStderr();
    EXPECT_EQ(qt::RunProgram("FabulaIDE", []() -> int { throw Error("The file is gone."); }), 1);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "FabulaIDE: The file is gone.\n");
}

TEST(RunProgram, TellsWhatWasBeingDoneWithAFaultThatDoesNot) {
    testing::internal::CaptureStderr();
    EXPECT_EQ(qt::RunProgram("FabulaIDE", []() -> int { throw std::bad_alloc(); }), 1);
    EXPECT_EQ(qt::RunProgram("FabulaIDE", []() -> int { throw 5; }), 1);
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "FabulaIDE: Something failed while the program began: There is not enough memory for this.\n"
              "FabulaIDE: Something failed while the program began: A fault without a name.\n");
}

TEST(RunProgram, GivesTheStatusOfTheBody) {
    EXPECT_EQ(qt::RunProgram("FabulaIDE", [] { return 7; }), 7);
}

}  // namespace
}  // namespace fabula::test
