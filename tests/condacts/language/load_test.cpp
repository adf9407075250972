#include "condacts/language/load.h"

#include <gtest/gtest.h>

#include "condacts/language/recompile.h"
#include "support/games/template_adventure.h"

namespace fabula::condacts {
namespace {

using store::TableNum;

/// A fresh adventure whose condacts, words and entries are changed past the screens.
class LoadTest : public testing::Test {
  protected:
    void Set(TableNum table, const std::string& where, std::string_view field, text::Value value) {
        store::Cursor& record = adventure_->OpenTable(table, "def", where);
        record.SetField(field, std::move(value));
        record.Update();
    }
    void AddWord(std::string_view word, int number, WordType type) {
        store::Cursor& record = adventure_->OpenTable(TableNum::Vocabulary, "def");
        record.AddNew();
        record.SetField("vocindex", std::int64_t{500 + added_++});
        record.SetField("word", std::string(word));
        record.SetField("vocnum", std::int64_t{number});
        record.SetField("voctypen", std::int64_t{type});
        record.Update();
    }
    void AddEntry(std::string_view text, std::string_view numbers) {
        store::Cursor& record = adventure_->OpenTable(TableNum::ProcessTables, "def");
        record.AddNew();
        record.SetField("canum", std::int64_t{0});
        record.SetField("condacts", std::string(text));
        record.SetField("numericcondacts", std::string(numbers));
        record.Update();
    }
    /// Both forms of the entry.
    std::string Entry() {
        const store::Cursor& record =
            adventure_->OpenTable(TableNum::ProcessTables, "condacts, numericcondacts");
        return std::string(record.Text("condacts")) + " | " + std::string(record.Text("numericcondacts"));
    }

    test::OpenedAdventure adventure_;
    int added_ = 0;
};

TEST_F(LoadTest, EachParameterHasItsOwnKindAndBound) {
    const Catalogue catalogue = LoadCatalogue(*adventure_);
    const CondAct* time = catalogue.Find("TIME");
    ASSERT_NE(time, nullptr);
    EXPECT_EQ(time->paramCount, 2);
    EXPECT_EQ(time->params[0].kind, ParamKind::Value);
    EXPECT_EQ(time->params[0].maxValue, 25);
    EXPECT_EQ(time->params[1].kind, ParamKind::Value);
    EXPECT_EQ(time->params[1].maxValue, 127);
    const CondAct* copy = catalogue.Find("COPYFO");
    ASSERT_NE(copy, nullptr);
    EXPECT_EQ(copy->params[0].kind, ParamKind::Flag);
    EXPECT_EQ(copy->params[0].maxValue, 0);
    EXPECT_EQ(copy->params[1].kind, ParamKind::Object);
    EXPECT_EQ(copy->params[1].maxValue, kNoSpecialLocations);
}

TEST_F(LoadTest, ACountOfParametersBeyondTheTwoThatThereAreIsCut) {
    Set(TableNum::CondActs, "caname='DONE'", "canumparam", std::int64_t{100});
    Set(TableNum::CondActs, "caname='MESSAGE'", "canumparam", std::int64_t{-1});
    const Catalogue catalogue = LoadCatalogue(*adventure_);
    EXPECT_EQ(catalogue.Find("DONE")->paramCount, 2);
    EXPECT_EQ(catalogue.Find("MESSAGE")->paramCount, 0);
}

TEST_F(LoadTest, AnActionExistsWhereItsRowSaysSo) {
    Set(TableNum::CondActs, "caname='DONE'", "vel", false);
    Set(TableNum::CondActs, "caname='OK'", "pcvel", false);
    const Catalogue catalogue = LoadCatalogue(*adventure_);
    EXPECT_TRUE(catalogue.Find("DONE")->ExistsIn(Dialect::Fabula));
    EXPECT_FALSE(catalogue.Find("DONE")->ExistsIn(Dialect::Vel));
    EXPECT_TRUE(catalogue.Find("DONE")->ExistsIn(Dialect::Marlo));
    EXPECT_TRUE(catalogue.Find("DONE")->ExistsIn(Dialect::PCVel));
    EXPECT_TRUE(catalogue.Find("OK")->ExistsIn(Dialect::Vel));
    EXPECT_FALSE(catalogue.Find("OK")->ExistsIn(Dialect::PCVel));
}

TEST_F(LoadTest, RecompilingGivesAnEntryTheNumberThatItsWordHasNow) {
    AddWord("ATOP", 251, kPreposition);
    AddEntry("PREP ATOP DONE", "123 250 265");
    EXPECT_EQ(RecompileEntries(*adventure_), 0);
    EXPECT_EQ(Entry(), "PREP ATOP DONE | 123 251 265");
}

TEST_F(LoadTest, RecompilingNamesAnotherWordOfTheNumberWhereOneHasGone) {
    AddWord("ASTRIDE", 250, kPreposition);
    AddEntry("PREP ATOP DONE", "123 250 265");
    EXPECT_EQ(RecompileEntries(*adventure_), 1);
    EXPECT_EQ(Entry(), "PREP ASTRIDE DONE | 123 250 265");
}

TEST_F(LoadTest, RecompilingLeavesAnEntryThatCanNotBeHelpedAsItIs) {
    AddEntry("PREP ATOP DONE", "123 250 265");
    EXPECT_EQ(RecompileEntries(*adventure_), 0);
    EXPECT_EQ(Entry(), "PREP ATOP DONE | 123 250 265");
}

}  // namespace
}  // namespace fabula::condacts
