#include "authoring/fields/record_comment.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "authoring/desk.h"
#include "authoring/drawing/character_editor.h"
#include "authoring/drawing/picture_editor.h"
#include "authoring/screens/flag_screen.h"
#include "authoring/screens/location_screen.h"
#include "authoring/screens/message_screen.h"
#include "authoring/screens/object_screen.h"
#include "authoring/screens/process_entry_screen.h"
#include "authoring/screens/word_screen.h"
#include "references/renumber.h"

namespace fabula::authoring {
namespace {

using store::TableNum;
using testing::ElementsAre;
using testing::IsEmpty;

/// A game with a record of each table that can have a comment.
class RecordCommentTest : public testing::Test {
  protected:
    RecordCommentTest() {
        desk_.AddWord(500, "LAMP", 150, 2);
        desk_.Add(TableNum::Messages, {{"msgnum", std::int64_t{7}}, {"msgmsg", std::string("Seven")}});
        desk_.Add(TableNum::Objects, {{"objnum", std::int64_t{0}},
                                      {"objdesc", std::string("a lamp")},
                                      {"objnoun", std::string("LAMP")},
                                      {"objnumnoun", std::int64_t{150}},
                                      {"objadject", std::string("_")},
                                      {"objnumadject", std::int64_t{255}},
                                      {"objloc", std::int64_t{252}},
                                      {"objweight", std::int64_t{1}},
                                      {"objattrn", std::int64_t{0}}});
        desk_.Add(TableNum::Pictures, {{"locnum", std::int64_t{0}},
                                       {"loctype", std::string("Location")},
                                       {"locpaper", std::int64_t{7}},
                                       {"locink", std::int64_t{0}},
                                       {"drawstring", std::string("PLOT 0 1 1 END")},
                                       {"roompicnum", std::int64_t{-1}}});
        desk_.AddEntry(1, 0, {"_", 255}, {"_", 255}, "MESSAGE 7");
    }

    std::string Comment(TableNum table, const std::string& where) {
        return desk_.Rows(table, "comment", where).at(0);
    }

    test::Desk desk_;
};

/// A comment alone is typed into a screen and stored: one step of undo that changes nothing else.
template <typename Screen>
void Comments(test::Desk& desk, Screen& screen, TableNum table, const std::string& where) {
    const test::Snapshot before = desk.Everything();
    EXPECT_FALSE(screen.Changed());
    screen.Comment()->text = "One.\nTwo <b.";
    EXPECT_TRUE(screen.Changed());
    ASSERT_TRUE(screen.Update()) << where;
    EXPECT_FALSE(screen.Changed());
    EXPECT_THAT(desk.Rows(table, "comment", where), ElementsAre("One.\u008CTwo <b."));
    desk.document.Undo();
    EXPECT_EQ(desk.Everything(), before) << where;
    EXPECT_THAT(desk.Boxes(), IsEmpty());
}

TEST_F(RecordCommentTest, IsStoredByEveryScreenOfARecordWithoutACheck) {
    LocationScreen location(desk_.context, {0});
    Comments(desk_, location, TableNum::Locations, "locnum=0");
    ObjectScreen object(desk_.context, {0});
    Comments(desk_, object, TableNum::Objects, "objnum=0");
    WordScreen word(desk_.context, {500});
    Comments(desk_, word, TableNum::Vocabulary, "vocindex=500");
    FlagScreen flag(desk_.context, {60});
    Comments(desk_, flag, TableNum::Flags, "flgnum=60");
    ProcessEntryScreen entry(
        desk_.context, {.screen = Screen::ProcessEntry, .key = {1}, .table = TableNum::ProcessTables});
    Comments(desk_, entry, TableNum::ProcessTables, "canum=1");
    PictureEditor picture(desk_.context, {0});
    Comments(desk_, picture, TableNum::Pictures, "locnum=0");
    const int character =
        static_cast<int>(desk_.Adventure().OpenTable(TableNum::Characters, "charkey").Number("charkey"));
    CharacterEditor glyph(desk_.context, {character});
    Comments(desk_, glyph, TableNum::Characters, "charkey=" + std::to_string(character));
}

TEST_F(RecordCommentTest, OfATextIsStoredAloneAndWithTheText) {
    desk_.context.currentTable = TableNum::Messages;
    MessageScreen alone(desk_.context, {7});
    alone.Comment()->text = "Unlucky?";
    EXPECT_TRUE(alone.Update());
    EXPECT_THAT(desk_.Rows(TableNum::Messages, "msgmsg, comment", "msgnum=7"),
                ElementsAre("Seven|Unlucky?"));
    MessageScreen both(desk_.context, {7});
    EXPECT_EQ(both.Comment()->text, "Unlucky?");
    both.TypeMessage("Lucky seven");
    both.Comment()->text = "Lucky";
    EXPECT_TRUE(both.Update());
    EXPECT_THAT(desk_.Rows(TableNum::Messages, "msgmsg, comment", "msgnum=7"),
                ElementsAre("Lucky seven|Lucky"));
}

TEST_F(RecordCommentTest, OfATextIsStoredOnTheWayToTheNext) {
    desk_.Add(TableNum::Messages, {{"msgnum", std::int64_t{8}}, {"msgmsg", std::string("Eight")}});
    desk_.context.currentTable = TableNum::Messages;
    MessageScreen screen(desk_.context, {7});
    screen.Comment()->text = "Unlucky?";
    EXPECT_TRUE(screen.Step(1));
    EXPECT_EQ(screen.Comment()->text, "");
    EXPECT_EQ(Comment(TableNum::Messages, "msgnum=7"), "Unlucky?");
}

TEST_F(RecordCommentTest, GoesIntoTheFileWithItsRecord) {
    ObjectScreen object(desk_.context, {0});
    object.weight = "5";
    object.Comment()->text = "Heavy";
    EXPECT_TRUE(object.Update());
    EXPECT_THAT(desk_.Rows(TableNum::Objects, "objweight, comment", "objnum=0"), ElementsAre("5|Heavy"));
    LocationScreen location(desk_.context, {.key = 1, .isNew = true});
    location.description = "A hall.";
    location.Comment()->text = "Large";
    EXPECT_TRUE(location.Update());
    EXPECT_THAT(desk_.Rows(TableNum::Locations, "locdesc, comment", "locnum=1"),
                ElementsAre("A hall.|Large"));
}

TEST_F(RecordCommentTest, WaitsWithItsRecordForAFieldThatIsRefused) {
    ObjectScreen object(desk_.context, {0});
    object.weight = "heavy";
    object.Comment()->text = "Heavy";
    EXPECT_FALSE(object.Update());
    EXPECT_EQ(Comment(TableNum::Objects, "objnum=0"), "");
    EXPECT_TRUE(object.Changed());
}

TEST_F(RecordCommentTest, ThatIsEmptiedIsNone) {
    for (const char* typed : {"Heavy", " \n "}) {
        ObjectScreen object(desk_.context, {0});
        object.Comment()->text = typed;
        EXPECT_TRUE(object.Update());
    }
    EXPECT_TRUE(desk_.Adventure().OpenTable(TableNum::Objects, "def", "objnum=0").IsNull("comment"));
}

TEST_F(RecordCommentTest, FollowsItsRecordToAnotherNumber) {
    desk_.context.currentTable = TableNum::Messages;
    MessageScreen screen(desk_.context, {7});
    screen.Comment()->text = "Unlucky?";
    EXPECT_TRUE(screen.Update());
    desk_.Add(TableNum::Messages, {{"msgnum", std::int64_t{8}}, {"msgmsg", std::string("Eight")}});
    references::Renumber(desk_.Adventure(),
                         references::PlanRenumbering(desk_.Adventure(), {references::Kind::Message, 7}, 8));
    EXPECT_THAT(desk_.Rows(TableNum::Messages, "msgnum, msgmsg, comment", "msgnum>=7", "msgnum"),
                ElementsAre("7|Eight|", "8|Seven|Unlucky?"));
}

}  // namespace
}  // namespace fabula::authoring
