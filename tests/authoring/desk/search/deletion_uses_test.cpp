#include "authoring/desk/search/deletion_uses.h"

#include <set>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "authoring/main_screen_stand.h"
#include "condacts/words.h"

namespace fabula::authoring {
namespace {

using store::TableNum;
using testing::ElementsAre;
using testing::IsEmpty;

class DeletionUsesTest : public testing::Test, public test::MainScreenStand {
  protected:
    DeletionUsesTest() {
        OpenNew();
        AddMessage("You lower the wick.");
        AddMessage("It is dark.");
        main->beforeDelete = [this](const Deletion& deletion) {
            const DeletionUses uses(navigator, deletion);
            title = uses.Title();
            summary = uses.Summary();
            afterIt = uses.AfterIt();
            lines.clear();
            for (const JumpLine& line : uses.Lines())
                lines.push_back(line.text);
            affected = deletion.affected;
            return goesOn;
        };
    }

    void AddEntry(int key, std::pair<const char*, int> verb, std::pair<const char*, int> noun,
                  const char* line) {
        store::Cursor& entries = Adventure().OpenTable(TableNum::ProcessTables, "def");
        entries.AddNew();
        entries.SetField("canum", std::int64_t{key});
        entries.SetField("estype", std::int64_t{0});
        entries.SetField("w1", std::string(verb.first));
        entries.SetField("w2", std::string(noun.first));
        entries.SetField("w1num", std::int64_t{verb.second});
        entries.SetField("w2num", std::int64_t{noun.second});
        entries.SetField("condacts", std::string(line));
        entries.SetField("numericcondacts", std::string());
        entries.Update();
    }
    void AddWord(int key, const char* word, int number, int type) {
        store::Cursor& words = Adventure().OpenTable(TableNum::Vocabulary, "def");
        words.AddNew();
        words.SetField("vocindex", std::int64_t{key});
        words.SetField("word", std::string(word));
        words.SetField("vocnum", std::int64_t{number});
        words.SetField("voctypen", std::int64_t{type});
        words.SetField("voctype", std::string(condacts::WordTypeName(type)));
        words.Update();
    }
    void AddObject(int key, const char* noun, int number) {
        store::Cursor& objects = Adventure().OpenTable(TableNum::Objects, "def");
        objects.AddNew();
        objects.SetField("objnum", std::int64_t{key});
        objects.SetField("objdesc", std::string("a thing"));
        objects.SetField("objnoun", std::string(noun));
        objects.SetField("objnumnoun", std::int64_t{number});
        objects.SetField("objadject", std::string("_"));
        objects.SetField("objnumadject", std::int64_t{255});
        objects.Update();
    }
    std::set<int> Keys(TableNum table, const char* field) {
        std::set<int> keys;
        store::PreparedQuery rows = Adventure().Prepare(table, field, "");
        for (bool more = rows.First({}); more; more = rows.Next())
            keys.insert(static_cast<int>(rows.Number(0)));
        return keys;
    }
    void Delete(TableNum table, int key) {
        main->Refresh();
        main->Show({table});
        main->SelectRow(*main->Grid().RowOf(key));
        main->Run(Command::Delete);
    }

    Navigator navigator{*main};
    bool goesOn = false;
    std::string title;
    std::string summary;
    std::string afterIt;
    std::vector<std::string> lines;
    std::vector<Affected> affected;
};

TEST_F(DeletionUsesTest, OfAMessageAreThePlacesThatWillNameNothing) {
    AddEntry(900, {"_", 255}, {"_", 255}, "MESSAGE 0 DONE");
    AddEntry(901, {"_", 255}, {"_", 255}, "MESSAGE 0 MESSAGE 1");
    Delete(TableNum::Messages, 0);
    EXPECT_EQ(title, "message 0: 2 uses");
    EXPECT_EQ(summary, "They stay, and name what is not there any more.");
    EXPECT_EQ(afterIt, "2 places name it still.");
    EXPECT_THAT(lines, ElementsAre("process table 0, entry 900 (_ _): MESSAGE 0",
                                   "process table 0, entry 901 (_ _): MESSAGE 0"));
    EXPECT_THAT(Keys(TableNum::Messages, "msgnum"), ElementsAre(0, 1));
    EXPECT_THAT(dialogs.Boxes(), IsEmpty());
}

TEST_F(DeletionUsesTest, OfWhatNothingNamesAreNone) {
    goesOn = true;
    dialogs.AnswerNext(true);
    Delete(TableNum::Messages, 1);
    EXPECT_THAT(lines, IsEmpty());
    EXPECT_EQ(afterIt, "");
    EXPECT_THAT(Keys(TableNum::Messages, "msgnum"), ElementsAre(0));
}

TEST_F(DeletionUsesTest, OfAWordTellWhatGoesWithIt) {
    AddWord(900, "SWORD", 77, condacts::kNoun);
    AddEntry(900, {"_", 255}, {"SWORD", 77}, "DONE");
    AddObject(0, "SWORD", 77);
    Delete(TableNum::Vocabulary, 900);
    EXPECT_EQ(title, "word SWORD: 2 uses");
    EXPECT_EQ(summary, "1 entry goes with it, 1 object loses the word. You are asked whether you agree.");
    EXPECT_THAT(lines, ElementsAre("object 0: SWORD \u2013 loses the word",
                                   "process table 0, entry 900 (_ SWORD): SWORD \u2013 goes with it"));
}

TEST_F(DeletionUsesTest, OfAWordWithASynonymGoOnWithThat) {
    AddWord(900, "GRASP", 177, condacts::kVerb);
    AddWord(901, "SEIZE", 177, condacts::kVerb);
    AddEntry(900, {"GRASP", 177}, {"_", 255}, "DONE");
    Delete(TableNum::Vocabulary, 900);
    EXPECT_EQ(title, "word GRASP: 1 use");
    EXPECT_EQ(summary, "They go on with SEIZE, which means the same.");
    EXPECT_THAT(affected, IsEmpty());
}

/// What was told is what happens, word by word.
TEST_F(DeletionUsesTest, TellOfEveryWordWhatItsDeletionDoes) {
    AddEntry(900, {"N", 2}, {"_", 255}, "DONE");
    AddEntry(901, {"GET", 20}, {"LAMP", 2}, "DONE");
    AddObject(0, "N", 2);
    goesOn = true;
    for (const int word : Keys(TableNum::Vocabulary, "vocindex")) {
        const std::set<int> entries = Keys(TableNum::ProcessTables, "canum");
        const int changes = main->CurrentContext().document.Changes();
        affected.clear();
        // More answers than are asked for.
        dialogs.AnswerNext(true);
        dialogs.AnswerNext(true);
        Delete(TableNum::Vocabulary, word);
        if (main->CurrentContext().document.Changes() == changes) continue;
        std::set<int> left = entries;
        for (const Affected& each : affected)
            if (each.table == TableNum::ProcessTables) left.erase(each.key);
        EXPECT_EQ(Keys(TableNum::ProcessTables, "canum"), left) << word;
    }
}

}  // namespace
}  // namespace fabula::authoring
