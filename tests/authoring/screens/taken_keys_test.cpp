// A key that another program takes while a screen for a new record is open.

#include <gtest/gtest.h>

#include "authoring/desk.h"
#include "authoring/screens/location_screen.h"
#include "authoring/screens/message_screen.h"
#include "authoring/screens/object_screen.h"
#include "authoring/screens/word_screen.h"
#include "support/raw_database.h"

namespace fabula::authoring {
namespace {

using store::TableNum;

class TakenKeys : public testing::Test {
  protected:
    /// What another program does to the file.
    void Elsewhere(const std::string& sql) { test::RawDatabase(desk_.document.File()).Run(sql); }

    test::Desk desk_;
};

TEST_F(TakenKeys, AMessageGetsTheNextNumberAndLeavesTheOtherOne) {
    desk_.Clear(TableNum::Messages);
    desk_.context.currentTable = TableNum::Messages;
    MessageScreen screen(desk_.context, {.key = 0, .isNew = true});
    screen.TypeMessage("mine");
    Elsewhere("INSERT INTO Messages(msgnum, msgmsg) VALUES(0, 'theirs')");
    EXPECT_TRUE(screen.Update());
    EXPECT_EQ(desk_.Rows(TableNum::Messages, "msgnum, msgmsg"),
              (std::vector<std::string>{"0|theirs", "1|mine"}));
    EXPECT_EQ(desk_.document.UndoName(), "add message 1");
}

TEST_F(TakenKeys, ALocationGetsTheLowestNumberThatIsFree) {
    desk_.Clear(TableNum::Locations);
    LocationScreen screen(desk_.context, {.key = 0, .isNew = true});
    screen.description = "Mine.";
    Elsewhere("INSERT INTO Locations(locnum, locdesc) VALUES(0, 'Theirs.')");
    EXPECT_TRUE(screen.Update());
    EXPECT_EQ(desk_.Rows(TableNum::Locations, "locnum, locdesc"),
              (std::vector<std::string>{"0|Theirs.", "1|Mine."}));
    EXPECT_EQ(desk_.document.UndoName(), "add location 1");
}

TEST_F(TakenKeys, AnObjectGetsTheNextNumber) {
    desk_.Clear(TableNum::Objects);
    ObjectScreen screen(desk_.context, {.key = 0, .isNew = true});
    screen.description = "my lamp";
    screen.initialPlace = InitialPlace::Carried;
    desk_.dialogs.AnswerNext(true);
    Elsewhere("INSERT INTO Objects(objnum, objdesc) VALUES(0, 'their lamp')");
    ASSERT_TRUE(screen.Update()) << testing::PrintToString(desk_.Boxes());
    EXPECT_EQ(desk_.Rows(TableNum::Objects, "objnum, objdesc"),
              (std::vector<std::string>{"0|their lamp", "1|my lamp"}));
}

TEST_F(TakenKeys, AWordGetsTheKeyBehindTheHighest) {
    desk_.Clear(TableNum::Vocabulary);
    WordScreen screen(desk_.context, {.key = 0, .isNew = true});
    screen.word = "LAMP";
    screen.type = condacts::kNoun;
    screen.number = "60";
    Elsewhere(
        "INSERT INTO Vocabulary(vocindex, word, vocnum, voctypen, voctype) VALUES(0,'BOX',61,2,'Noun')");
    EXPECT_TRUE(screen.Update());
    EXPECT_EQ(desk_.Rows(TableNum::Vocabulary, "vocindex, word", "", "vocindex"),
              (std::vector<std::string>{"0|BOX", "1|LAMP"}));
    EXPECT_EQ(desk_.context.nextWord, 2);
}

}  // namespace
}  // namespace fabula::authoring
