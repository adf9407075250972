#include "authoring/desk/grid/sort_screen.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "authoring/desk.h"
#include "authoring/desk/grid/sort_order.h"

namespace fabula::authoring {
namespace {

using store::TableNum;
using testing::ElementsAre;
using testing::IsEmpty;

std::string LevelText(const SortScreen& screen, const SortLevel& level) {
    if (!level.field) return "(none)";
    return screen.Fields().at(*level.field).name + (level.down ? " down" : " up");
}

std::vector<std::string> Levels(const SortScreen& screen) {
    std::vector<std::string> texts;
    for (const SortLevel& level : screen.levels)
        texts.push_back(LevelText(screen, level));
    return texts;
}

std::size_t FieldNamed(const SortScreen& screen, const std::string& name) {
    for (std::size_t place = 0; place < screen.Fields().size(); ++place) {
        if (screen.Fields()[place].name == name) return place;
    }
    throw std::logic_error("there is no field " + name);
}

class SortScreenTest : public testing::Test {
  protected:
    std::string Stored(TableNum table) { return StoredSort(desk_.Adventure(), table).value(); }

    test::Desk desk_;
};

TEST_F(SortScreenTest, NamesItsTable) {
    EXPECT_EQ(SortScreen(desk_.context, TableNum::Vocabulary, "Vocabulary").Caption(), "Sort Vocabulary");
}

TEST_F(SortScreenTest, OffersTheFieldsOfTheTableByTheirOtherNames) {
    const SortScreen screen(desk_.context, TableNum::Vocabulary, "Vocabulary");
    std::vector<std::string> titles;
    for (const SortField& field : screen.Fields())
        titles.push_back(field.title);
    EXPECT_THAT(titles, ElementsAre("vocindex", "Number (vocnum)", "Word", "Type (voctype)", "voctypen",
                                    "comment"));
}

TEST_F(SortScreenTest, ShowsThePresentOrder) {
    EXPECT_THAT(Levels(SortScreen(desk_.context, TableNum::Vocabulary, "Vocabulary")),
                ElementsAre("voctypen up", "vocnum up", "word up"));
    EXPECT_THAT(Levels(SortScreen(desk_.context, TableNum::Objects, "Objects")),
                ElementsAre("objnum up", "(none)", "(none)"));
}

TEST_F(SortScreenTest, ShowsAsManyLinesAsTheOrderNeeds) {
    StoreSort(desk_.document, TableNum::Objects, "objweight DESC,objnoun asc , OBJLOC, objnum desc");
    EXPECT_THAT(Levels(SortScreen(desk_.context, TableNum::Objects, "Objects")),
                ElementsAre("objweight down", "objnoun up", "objloc up", "objnum down"));
}

TEST_F(SortScreenTest, ShowsAProposalInPlaceOfThePresentOrder) {
    EXPECT_THAT(Levels(SortScreen(desk_.context, TableNum::Objects, "Objects", "objweight desc, objnum")),
                ElementsAre("objweight down", "objnum up", "(none)"));
}

TEST_F(SortScreenTest, StoresTheOrderAsOneStepOfUndo) {
    SortScreen screen(desk_.context, TableNum::Vocabulary, "Vocabulary");
    screen.levels = {{FieldNamed(screen, "word"), true}, {std::nullopt}, {FieldNamed(screen, "vocnum")}};
    EXPECT_TRUE(screen.Update());
    EXPECT_EQ(Stored(TableNum::Vocabulary), "word desc, vocnum");
    EXPECT_EQ(desk_.document.UndoName(), "sort Vocabulary by word desc, vocnum");
}

TEST_F(SortScreenTest, WithoutAChangeStoresNothing) {
    SortScreen screen(desk_.context, TableNum::Vocabulary, "Vocabulary");
    EXPECT_TRUE(screen.Update());
    EXPECT_EQ(desk_.document.UndoName(), std::nullopt);
}

TEST_F(SortScreenTest, KeepsTheWordsOfAnOrderThatMeansTheSame) {
    StoreSort(desk_.document, TableNum::Objects, "OBJNUM asc");
    SortScreen screen(desk_.context, TableNum::Objects, "Objects");
    EXPECT_TRUE(screen.Update());
    EXPECT_EQ(Stored(TableNum::Objects), "OBJNUM asc");
}

TEST_F(SortScreenTest, StoresAProposalThatIsAgreedTo) {
    SortScreen screen(desk_.context, TableNum::Objects, "Objects", "objweight desc, objnum");
    EXPECT_TRUE(screen.Update());
    EXPECT_EQ(Stored(TableNum::Objects), "objweight desc, objnum");
}

TEST_F(SortScreenTest, RefusesAFieldThatStandsTwice) {
    SortScreen screen(desk_.context, TableNum::Vocabulary, "Vocabulary");
    screen.levels = {
        {FieldNamed(screen, "vocnum")}, {FieldNamed(screen, "word")}, {FieldNamed(screen, "vocnum"), true}};
    EXPECT_FALSE(screen.Update());
    EXPECT_THAT(desk_.Boxes(), ElementsAre("The field Number (vocnum) stands twice in the order."));
    EXPECT_EQ(Stored(TableNum::Vocabulary), "voctypen, vocnum, word");
}

TEST_F(SortScreenTest, RefusesAnOrderWithoutAField) {
    SortScreen screen(desk_.context, TableNum::Vocabulary, "Vocabulary");
    screen.levels = {{}, {}, {}};
    EXPECT_FALSE(screen.Update());
    EXPECT_THAT(desk_.Boxes(), ElementsAre("An order names at least one field."));
}

TEST_F(SortScreenTest, GoesBackToThePlainOrder) {
    StoreSort(desk_.document, TableNum::Vocabulary, "word");
    SortScreen screen(desk_.context, TableNum::Vocabulary, "Vocabulary");
    screen.OwnOrder();
    EXPECT_THAT(Levels(screen), ElementsAre("voctypen up", "vocnum up", "word up"));
    EXPECT_TRUE(screen.Update());
    EXPECT_EQ(Stored(TableNum::Vocabulary), "voctypen, vocnum, word");
    EXPECT_THAT(desk_.Boxes(), IsEmpty());
}

TEST_F(SortScreenTest, LeavesOutWhatIsNoFieldOfTheTable) {
    EXPECT_THAT(Levels(SortScreen(desk_.context, TableNum::Objects, "Objects", "size, , objnum")),
                ElementsAre("objnum up", "(none)", "(none)"));
}

TEST_F(SortScreenTest, OfATableWithoutAnOrderOfItsOwnIsAnErrorOfTheProgram) {
    EXPECT_THROW(SortScreen(desk_.context, TableNum::Locations, "Locations"), std::logic_error);
}

}  // namespace
}  // namespace fabula::authoring
