#include "authoring/desk/grid/sort_order.h"

#include <gtest/gtest.h>

#include "support/games/template_adventure.h"

namespace fabula::authoring {
namespace {

using store::TableNum;

class SortOrderTest : public testing::Test {
  protected:
    SortOrderTest() : document_(Made(folder_ / "game.fbd")) {}

    static std::filesystem::path Made(const std::filesystem::path& file) {
        test::MakeAdventure(file);
        return file;
    }

    std::string Stored(const char* field) {
        return std::string(document_.Adventure().OpenTable(TableNum::Adventure, "def").Text(field));
    }

    test::TempFolder folder_;
    Document document_;
};

TEST_F(SortOrderTest, IsKeptForFiveTables) {
    const store::Adventure& adventure = document_.Adventure();
    EXPECT_EQ(StoredSort(adventure, TableNum::Objects), "objnum");
    EXPECT_EQ(StoredSort(adventure, TableNum::Vocabulary), "voctypen, vocnum, word");
    EXPECT_EQ(StoredSort(adventure, TableNum::CondActs), "canum");
    EXPECT_EQ(StoredSort(adventure, TableNum::Tables), "tablenum, fieldname");
    EXPECT_EQ(StoredSort(adventure, TableNum::Commands), "conum");
    EXPECT_EQ(StoredSort(adventure, TableNum::Locations), std::nullopt);
}

TEST_F(SortOrderTest, IsStoredInTheFieldOfItsTable) {
    StoreSort(document_, TableNum::Objects, "objnoun desc, objnum");
    StoreSort(document_, TableNum::Vocabulary, "word");
    StoreSort(document_, TableNum::CondActs, "caname");
    StoreSort(document_, TableNum::Tables, "tablekey");
    StoreSort(document_, TableNum::Commands, "coname");
    EXPECT_EQ(Stored("sortobjects"), "objnoun desc, objnum");
    EXPECT_EQ(Stored("sortvocabulary"), "word");
    EXPECT_EQ(Stored("sortcondacts"), "caname");
    EXPECT_EQ(Stored("sorttables"), "tablekey");
    EXPECT_EQ(Stored("sortcommands"), "coname");
    EXPECT_EQ(StoredSort(document_.Adventure(), TableNum::Vocabulary), "word");
}

TEST_F(SortOrderTest, ThatIsNoChangeStoresNothing) {
    StoreSort(document_, TableNum::Objects, "objnum");
    EXPECT_EQ(document_.UndoName(), std::nullopt);
}

TEST_F(SortOrderTest, IsAStepOfUndo) {
    StoreSort(document_, TableNum::Objects, "objweight");
    EXPECT_EQ(document_.UndoName(), "sort Objects by objweight");
    document_.Undo();
    EXPECT_EQ(StoredSort(document_.Adventure(), TableNum::Objects), "objnum");
}

TEST_F(SortOrderTest, NamesFieldsOfItsTable) {
    const store::Adventure& adventure = document_.Adventure();
    EXPECT_EQ(FaultOfSort(adventure, TableNum::Objects, "objweight desc, OBJNUM"), "");
    EXPECT_EQ(FaultOfSort(adventure, TableNum::Objects, "weight"),
              "'weight' is no order of the fields of Objects.");
    EXPECT_EQ(FaultOfSort(adventure, TableNum::Objects, "objnum; delete from objects"),
              "'objnum; delete from objects' is no order of the fields of Objects.");
    EXPECT_EQ(FaultOfSort(adventure, TableNum::Objects, "  "), "An order names at least one field.");
    EXPECT_EQ(FaultOfSort(adventure, TableNum::Objects, std::string(256, 'x')),
              "An order is at most 255 characters long.");
}

TEST_F(SortOrderTest, IsPlainUntilTheSettingsAreReadAgain) {
    store::Adventure& adventure = document_.Adventure();
    StoreSort(document_, TableNum::Vocabulary, "word desc");
    const std::string last(adventure.OpenTable(TableNum::Vocabulary, "def").Text("word"));
    ReadInPlainOrder(adventure);
    EXPECT_EQ(StoredSort(adventure, TableNum::Vocabulary), "voctypen, vocnum, word");
    EXPECT_NE(adventure.Table(TableNum::Vocabulary).Text("word"), last);
    adventure.ReadSettings();
    EXPECT_EQ(StoredSort(adventure, TableNum::Vocabulary), "word desc");
}

}  // namespace
}  // namespace fabula::authoring
