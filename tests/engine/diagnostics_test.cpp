#include "engine/diagnostics.h"

#include <gtest/gtest.h>

#include "engine/game.h"
#include "support/games/game_builder.h"

namespace fabula::test {
namespace {

using engine::Diagnostics;
using store::AdventureKind;

class DiagnosticsTest : public testing::Test {
  protected:
    explicit DiagnosticsTest(AdventureKind kind = AdventureKind::Fabula)
        : run_(GameBuilder(kind).Object(0, {.place = 252}).Object(1, {.place = 2}).Start()),
          debug_(run_->engine) {}

    /// The refusal of a request; "" when it was carried out.
    std::string Ask(std::string_view request) { return debug_.DoIt(request).refusal; }

    std::unique_ptr<GameRun> run_;
    Diagnostics debug_;
};

TEST_F(DiagnosticsTest, HasFlag0InViewAtFirst) {
    EXPECT_EQ(debug_.DisplayVariable(), "F0 = 0");
}

TEST_F(DiagnosticsTest, ViewsAFlag) {
    EXPECT_EQ(Ask("F37"), "");
    EXPECT_EQ(debug_.DisplayVariable(), "F37 = 10");
    EXPECT_EQ(Ask(" f 38 "), "");
    EXPECT_EQ(debug_.DisplayVariable(), "F38 = 0");
}

TEST_F(DiagnosticsTest, RefusesAFlagThatDoesNotExist) {
    Ask("F37");
    EXPECT_EQ(Ask("F5000"), "Invalid value for a Flag #: 5000");
    EXPECT_EQ(Ask("F"), "Invalid value for a Flag #: ");
    EXPECT_EQ(Ask("F-1"), "Invalid value for a Flag #: -1");
    EXPECT_EQ(Ask("Fx"), "Invalid value for a Flag #: x");
    EXPECT_EQ(debug_.DisplayVariable(), "F37 = 10");
}

TEST_F(DiagnosticsTest, ViewsAnObject) {
    EXPECT_EQ(Ask("O1"), "");
    EXPECT_EQ(debug_.DisplayVariable(), "O1 Location = 2");
}

TEST_F(DiagnosticsTest, RefusesAnObjectThatDoesNotExist) {
    EXPECT_EQ(Ask("O2"), "Invalid value for an Object #:");
}

TEST_F(DiagnosticsTest, ANumberAloneIsOfTheKindInView) {
    Ask("O1");
    EXPECT_EQ(Ask("0"), "");
    EXPECT_EQ(debug_.DisplayVariable(), "O0 Location = 252");
    Ask("F1");
    EXPECT_EQ(Ask("37"), "");
    EXPECT_EQ(debug_.DisplayVariable(), "F37 = 10");
    EXPECT_EQ(Ask("5000"), "Invalid value for a Flag #: 5000");
}

TEST_F(DiagnosticsTest, SetsAndClearsTheFlagInView) {
    Ask("F100");
    EXPECT_EQ(Ask("S"), "");
    EXPECT_EQ(run_->Flag(100), 255);
    EXPECT_EQ(Ask("c"), "");
    EXPECT_EQ(run_->Flag(100), 0);
}

TEST_F(DiagnosticsTest, RefusesToSetAndClearObjects) {
    Ask("O1");
    EXPECT_EQ(Ask("S"), "S(et) cannot be used on Objects");
    EXPECT_EQ(Ask("C"), "C(lear) cannot be used on Objects");
}

TEST_F(DiagnosticsTest, GivesTheFlagANumber) {
    Ask("F100");
    EXPECT_EQ(Ask("=77"), "");
    EXPECT_EQ(run_->Flag(100), 77);
    EXPECT_EQ(debug_.DisplayVariable(), "F100 = 77");
}

TEST_F(DiagnosticsTest, RefusesAnythingElseBehindTheEqualsSign) {
    Ask("F100");
    EXPECT_EQ(Ask("="), "no number after the =");
    EXPECT_EQ(Ask("=x"), "Value after the = is not numeric");
    EXPECT_EQ(Ask("=99999"), "Value after the = is not numeric");
    EXPECT_EQ(run_->Flag(100), 0);
}

TEST_F(DiagnosticsTest, MovesThePlayerToLocationsThatExist) {
    Ask("F38");
    EXPECT_EQ(Ask("=2"), "");
    EXPECT_EQ(run_->Flag(38), 2);
    EXPECT_EQ(Ask("=9"), "Invalid location for Flag 38: 9");
    EXPECT_EQ(run_->Flag(38), 2);
}

TEST_F(DiagnosticsTest, LetsTheTraceFlagsBeSetOrClearedOnly) {
    for (const char* flag : {"F1004", "F1005"}) {
        Ask(flag);
        EXPECT_EQ(Ask("=1"), "Flags 1004 & 1005 can only be SET or CLEAR");
        EXPECT_EQ(Ask("S"), "");
        EXPECT_EQ(Ask("C"), "");
    }
}

TEST_F(DiagnosticsTest, MovesTheObjectInViewAndKeepsTheCount) {
    Ask("O1");
    EXPECT_EQ(Ask("=254"), "");
    EXPECT_EQ(run_->PlaceOf(1), 254);
    EXPECT_EQ(run_->Flag(1), 1);
}

TEST_F(DiagnosticsTest, PutsNoObjectAtLocation255) {
    Ask("O1");
    EXPECT_EQ(Ask("=255"), "An object cannot be put at location 255");
    EXPECT_EQ(run_->PlaceOf(1), 2);
}

TEST_F(DiagnosticsTest, AsksTheWindowForItsHelpFile) {
    EXPECT_TRUE(debug_.DoIt("h").help);
    EXPECT_FALSE(debug_.DoIt("F1").help);
}

TEST_F(DiagnosticsTest, RefusesEverythingElse) {
    EXPECT_EQ(Ask("X"), "Invalid option");
    EXPECT_EQ(Ask(""), "Invalid option");
}

TEST_F(DiagnosticsTest, WithoutAGameShowsNothing) {
    run_->SetFlag(200, 0);
    run_->engine.Initialize();
    const auto ended = GameBuilder().Do("SET 5000");
    Diagnostics debug(ended->engine);
    EXPECT_EQ(debug.DoIt("F1").refusal, "No game is running");
    EXPECT_EQ(debug.DisplayVariable(), "");
}

class DiagnosticsOfMarloTest : public DiagnosticsTest {
  protected:
    DiagnosticsOfMarloTest() : DiagnosticsTest(AdventureKind::Marlo) {}
};

TEST_F(DiagnosticsOfMarloTest, RefusesToChangeFlagsThatSuchGamesDoNotKnow) {
    Ask("F33");
    EXPECT_EQ(Ask("S"), "Cannot change that flag in Marlo");
    EXPECT_EQ(Ask("C"), "Cannot change that flag in Marlo");
    EXPECT_EQ(Ask("=1"), "Cannot change that flag in Marlo");
    EXPECT_EQ(run_->Flag(33), 255);
}

TEST_F(DiagnosticsOfMarloTest, ChangesFlags0To32AndThePlayersPlace) {
    Ask("F32");
    EXPECT_EQ(Ask("=5"), "");
    Ask("F38");
    EXPECT_EQ(Ask("=1"), "");
    EXPECT_EQ(run_->Flag(38), 1);
}

}  // namespace
}  // namespace fabula::test
