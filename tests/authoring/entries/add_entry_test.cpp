#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "authoring/entries/entries.h"
#include "authoring/entry_commands.h"

namespace fabula::authoring {
namespace {

using store::AdventureKind;
using store::TableNum;
using test::Desk;
using testing::ElementsAre;
using testing::IsEmpty;

// Words

TEST(AddWord, OpensTheVocabularyScreenOnTheNextFreeKey) {
    Desk desk;
    desk.AddWord(500, "LAMP", 50, 2);
    desk.context.currentTable = TableNum::Vocabulary;
    const auto request = Entries(desk.context).AddEntry();
    ASSERT_TRUE(request);
    EXPECT_EQ(request->screen, Screen::Word);
    EXPECT_EQ(request->key.key, 501);
    EXPECT_EQ(desk.context.nextWord, 501);
}

// Flags

TEST(AddFlags, AddsTheTwentyFiveAfter1024) {
    Desk desk;
    desk.context.currentTable = TableNum::Flags;
    desk.dialogs.AnswerNext(true);
    const auto before = desk.Everything();
    EXPECT_FALSE(Entries(desk.context).AddEntry());
    EXPECT_THAT(desk.Boxes(), ElementsAre("Confirm add of flags 1025 to 1049"));
    const auto added =
        desk.Rows(TableNum::Flags, "flgnum, flgtype, flguse, flgmod, flgdesc, flgchg", "flgnum>1024");
    ASSERT_EQ(added.size(), 25U);
    EXPECT_EQ(added.front(), "1025|User|Unknown|2| |1");
    EXPECT_EQ(added.back(), "1049|User|Unknown|2| |1");
    EXPECT_EQ(desk.document.UndoName(), "add flags 1025 to 1049");
    desk.document.Undo();
    EXPECT_EQ(desk.Everything(), before);
}

TEST(AddFlags, GoesOnFromTheHighest) {
    Desk desk;
    desk.context.currentTable = TableNum::Flags;
    desk.dialogs.AnswerNext(true);
    desk.dialogs.AnswerNext(true);
    Entries(desk.context).AddEntry();
    Entries(desk.context).AddEntry();
    EXPECT_EQ(desk.Boxes().at(1), "Confirm add of flags 1050 to 1074");
    EXPECT_EQ(desk.Rows(TableNum::Flags, "flgnum", "flgnum>1024").size(), 50U);
}

TEST(AddFlags, AddsNoneWhenTheAuthorSaysNo) {
    Desk desk;
    desk.context.currentTable = TableNum::Flags;
    desk.dialogs.AnswerNext(false);
    Entries(desk.context).AddEntry();
    EXPECT_THAT(desk.Rows(TableNum::Flags, "flgnum", "flgnum>1024"), IsEmpty());
}

TEST(AddFlags, IsForFabulaAdventuresOnly) {
    Desk vel(AdventureKind::Vel);
    vel.context.currentTable = TableNum::Flags;
    Entries(vel.context).AddEntry();
    EXPECT_THAT(vel.Boxes(), ElementsAre("Extended flags cannot be used in a VEL type Adventure"));
    Desk marlo(AdventureKind::Marlo);
    marlo.context.currentTable = TableNum::Flags;
    Entries(marlo.context).AddEntry();
    EXPECT_THAT(marlo.Boxes(), ElementsAre("Extended flags cannot be used in a Marlo type Adventure"));
}

TEST(AddFlags, EndsWhenOver999WereAdded) {
    Desk desk;
    desk.context.currentTable = TableNum::Flags;
    desk.Add(TableNum::Flags, {{"flgnum", std::int64_t{2023}}});
    desk.dialogs.AnswerNext(true);
    Entries(desk.context).AddEntry();
    EXPECT_EQ(desk.Boxes().back(), "Confirm add of flags 2024 to 2048");
    Entries(desk.context).AddEntry();
    EXPECT_EQ(desk.Boxes().back(), "There are over 999 flags.\nNo more flags can be added.");
}

// Character sets

TEST(AddCharacterSet, CopiesTheFontOfSetZeroUnderANewName) {
    Desk desk;
    desk.context.currentTable = TableNum::Characters;
    desk.dialogs.AnswerText("Runes");
    const auto before = desk.Everything();
    EXPECT_FALSE(Entries(desk.context).AddEntry());
    const auto& question = desk.dialogs.TextQuestions().at(0);
    EXPECT_EQ(question.prompt, "Enter a name for your Set:");
    EXPECT_EQ(question.title, "Set Name");
    EXPECT_EQ(question.proposal, "My Set 1");
    const auto added = desk.Rows(TableNum::Characters, "charkey, charset, charsetnum, charsetname, charnum",
                                 "charsetnum=1", "charkey");
    ASSERT_EQ(added.size(), 96U);
    EXPECT_EQ(added.front(), "1032|SET 0001|1|Runes|32");
    EXPECT_EQ(added.back(), "1127|SET 0001|1|Runes|127");
    EXPECT_EQ(desk.Rows(TableNum::Characters, "charvals", "charkey=1065"),
              desk.Rows(TableNum::Characters, "charvals", "charkey=65"));
    EXPECT_THAT(desk.Boxes(), ElementsAre("Character Set 1 added."));
    EXPECT_EQ(desk.document.UndoName(), "add character set 1");
    desk.document.Undo();
    EXPECT_EQ(desk.Everything(), before);
}

TEST(AddCharacterSet, ComesBackUntilTheNameWillDo) {
    Desk desk;
    desk.context.currentTable = TableNum::Characters;
    desk.dialogs.AnswerText("");
    desk.dialogs.AnswerText("   ");
    desk.dialogs.AnswerText("ABCDEFGHIJKLMNOPQRSTU");
    desk.dialogs.AnswerText("ABCDEFGHIJKLMNOPQRST");
    Entries(desk.context).AddEntry();
    EXPECT_THAT(desk.Boxes(), ElementsAre("Set name cannot be blank or more than 20 characters",
                                          "Set name cannot be blank or more than 20 characters",
                                          "Set name cannot be blank or more than 20 characters",
                                          "Character Set 1 added."));
    EXPECT_THAT(desk.Rows(TableNum::Characters, "charsetname", "charkey=1032"),
                ElementsAre("ABCDEFGHIJKLMNOPQRST"));
}

TEST(AddCharacterSet, CountsTheLettersOfANameAndNotItsBytes) {
    Desk desk;
    desk.context.currentTable = TableNum::Characters;
    desk.dialogs.AnswerText("ÄÖÜÄÖÜÄÖÜÄÖÜÄÖÜÄÖÜÄÖ");
    Entries(desk.context).AddEntry();
    EXPECT_THAT(desk.Boxes(), ElementsAre("Character Set 1 added."));
}

TEST(AddCharacterSet, ThatWasCancelledAddsNothing) {
    Desk desk;
    desk.context.currentTable = TableNum::Characters;
    desk.dialogs.AnswerText(std::nullopt);
    const auto before = desk.Everything();
    Entries(desk.context).AddEntry();
    EXPECT_EQ(desk.Everything(), before);
    EXPECT_THAT(desk.Boxes(), IsEmpty());
}

TEST(AddCharacterSet, HasALimitOf998BesideSetZero) {
    Desk desk;
    desk.context.currentTable = TableNum::Characters;
    desk.Add(TableNum::Characters, {{"charkey", std::int64_t{997032}},
                                    {"charsetnum", std::int64_t{997}},
                                    {"charnum", std::int64_t{32}}});
    desk.dialogs.AnswerText("The last");
    Entries(desk.context).AddEntry();
    EXPECT_EQ(desk.Boxes().back(), "Character Set 998 added.");
    Entries(desk.context).AddEntry();
    EXPECT_EQ(desk.Boxes().back(), "There is a limit of 998 character sets");
    EXPECT_EQ(desk.dialogs.TextQuestions().size(), 1U);
}

}  // namespace
}  // namespace fabula::authoring
