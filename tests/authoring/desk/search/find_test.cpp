#include "authoring/desk/search/find.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/doubles/scripted_dialogs.h"
#include "support/games/template_adventure.h"

namespace fabula::authoring {
namespace {

using store::TableNum;
using testing::ElementsAre;

class FindTest : public testing::Test {
  protected:
    void AddMessage(int number, const std::string& text) {
        store::Cursor& messages = adventure_->OpenTable(TableNum::Messages, "def");
        messages.AddNew();
        messages.SetField("msgnum", std::int64_t{number});
        messages.SetField("msgmsg", text);
        messages.Update();
    }

    void Show(const TableView& view) {
        grid_.SetupGrid(*adventure_, view, false);
        box_.SetUpFindComboBox(*adventure_, view.table);
    }

    /// Messages 0 to 3, two of them with a lamp.
    void ShowMessages() {
        AddMessage(0, "The lamp is on.");
        AddMessage(1, "a door");
        AddMessage(2, "Your LAMP is off.");
        AddMessage(3, "a window");
        Show({TableNum::Messages});
    }

    void Choose(const char* name) {
        for (std::size_t i = 0; i < box_.Fields().size(); ++i) {
            if (box_.Fields()[i].name == name) return box_.Choose(i);
        }
        FAIL() << "no field " << name;
    }

    std::optional<int> Find(const char* field, const std::string& text, int row) {
        Choose(field);
        box_.text = text;
        return box_.Find(grid_, row, "Messages", person_);
    }

    std::vector<std::string> Fields() const {
        std::vector<std::string> names;
        for (const FindField& field : box_.Fields())
            names.push_back(field.name);
        return names;
    }

    void ExpectBox(const std::string& text) {
        ASSERT_EQ(person_.Boxes().size(), 1U);
        EXPECT_EQ(person_.Boxes()[0].text, text);
        EXPECT_EQ(person_.Boxes()[0].title, "Error");
    }

    test::OpenedAdventure adventure_;
    TableGrid grid_;
    FindBox box_;
    platform::ScriptedDialogs person_;
};

TEST_F(FindTest, OffersTheFieldsThatAreMarkedForIt) {
    Show({TableNum::Locations});
    EXPECT_THAT(Fields(), ElementsAre("locnum", "exits", "picloc", "locshortdesc", "locdesc", "comment"));
}

TEST_F(FindTest, OffersTheProcessToo) {
    Show({TableNum::ProcessTables, kOtherProcesses});
    EXPECT_THAT(Fields(), ElementsAre("estype", "w1", "w2", "CondActs", "comment"));
}

TEST_F(FindTest, ChoosesTheLongTextAtFirst) {
    Show({TableNum::Messages});
    EXPECT_EQ(box_.Chosen(), 1U);
    Show({TableNum::Vocabulary});
    EXPECT_EQ(box_.Fields()[*box_.Chosen()].name, "Word");
}

TEST_F(FindTest, KeepsTheFieldThatWasChosen) {
    Show({TableNum::Messages});
    Choose("msgnum");
    Show({TableNum::Messages});
    EXPECT_EQ(box_.Chosen(), 0U);
}

TEST_F(FindTest, OfAnEmptyBoxHasNothingToFind) {
    ShowMessages();
    EXPECT_EQ(Find("msgmsg", "", 0), std::nullopt);
    ExpectBox("Nothing to find");
}

TEST_F(FindTest, WithoutAChosenFieldHasNoFieldToFindIn) {
    ShowMessages();
    box_.Choose(std::nullopt);
    box_.text = "lamp";
    EXPECT_EQ(box_.Find(grid_, 0, "Messages", person_), std::nullopt);
    ExpectBox("No Field to find 'lamp' in Messages");
}

TEST_F(FindTest, InATableWithoutSearchFieldsHasNoFieldToFindIn) {
    Show({TableNum::Package});
    EXPECT_TRUE(box_.Fields().empty());
    EXPECT_EQ(box_.Chosen(), std::nullopt);
    box_.text = "lamp";
    EXPECT_EQ(box_.Find(grid_, -1, "Package", person_), std::nullopt);
    ExpectBox("No Field to find 'lamp' in Package");
}

TEST_F(FindTest, TellsOfTheEmptyBoxBeforeTheMissingField) {
    Show({TableNum::Package});
    EXPECT_EQ(box_.Find(grid_, -1, "Package", person_), std::nullopt);
    ExpectBox("Nothing to find");
}

TEST_F(FindTest, RefusesAValueThatIsNotNumericInANumber) {
    ShowMessages();
    EXPECT_EQ(Find("msgnum", "two", 0), std::nullopt);
    ExpectBox("The value for msgnum is not numeric");
}

TEST_F(FindTest, RefusesANumberWithSomethingBehindIt) {
    ShowMessages();
    EXPECT_EQ(Find("msgnum", "2x", 0), std::nullopt);
    ExpectBox("The value for msgnum is not numeric");
}

TEST_F(FindTest, ReadsBlanksAroundANumberAndDecimals) {
    ShowMessages();
    EXPECT_EQ(Find("msgnum", " 2 ", 0), 2);
    EXPECT_EQ(Find("msgnum", "3.0", 0), 3);
    EXPECT_TRUE(person_.Boxes().empty());
}

TEST_F(FindTest, RefusesEachWildCardInAText) {
    ShowMessages();
    for (const char* text : {"la*p", "la_p", "%lamp"})
        EXPECT_EQ(Find("msgmsg", text, 0), std::nullopt);
    ASSERT_EQ(person_.Boxes().size(), 3U);
    for (const auto& box : person_.Boxes())
        EXPECT_EQ(box.text, "Wild cards are not necessary in msgmsg");
}

TEST_F(FindTest, ComparesAWholeNumber) {
    for (int number = 0; number < 22; ++number)
        AddMessage(number, "x");
    Show({TableNum::Messages});
    EXPECT_EQ(Find("msgnum", "2", 5), 2);
}

TEST_F(FindTest, LooksBehindTheCurrentRowFirst) {
    ShowMessages();
    EXPECT_EQ(Find("msgmsg", "lamp", 0), 2);
    EXPECT_EQ(Find("msgmsg", "lamp", -1), 0);
}

TEST_F(FindTest, GoesOnFromTheFirstRowAtTheEnd) {
    ShowMessages();
    EXPECT_EQ(Find("msgmsg", "lamp", 2), 0);
    EXPECT_EQ(Find("msgmsg", "door", 3), 1);
}

TEST_F(FindTest, FindsTheCurrentRowWhenItIsTheOnlyOne) {
    ShowMessages();
    EXPECT_EQ(Find("msgmsg", "DOOR", 1), 1);
}

TEST_F(FindTest, TellsThatATextWasNotFound) {
    ShowMessages();
    EXPECT_EQ(Find("msgmsg", "Ghost", 1), std::nullopt);
    ExpectBox("Ghost not found");
}

TEST_F(FindTest, InAnEmptyTableFindsNothing) {
    Show({TableNum::Messages});
    EXPECT_EQ(Find("msgmsg", "lamp", -1), std::nullopt);
    ExpectBox("lamp not found");
}

TEST_F(FindTest, TakesAQuoteForAQuote) {
    AddMessage(0, "It's here");
    Show({TableNum::Messages});
    EXPECT_EQ(Find("msgmsg", "it's", -1), 0);
}

TEST_F(FindTest, FollowsTheOrderAndTheFilterOfTheGrid) {
    ShowMessages();
    grid_.ClickColumn(1);
    EXPECT_EQ(Find("msgmsg", "lamp", -1), 2);
    grid_.SetFilter("off");
    EXPECT_EQ(Find("msgmsg", "lamp", -1), 0);
    EXPECT_EQ(grid_.KeyOf(0), 2);
    EXPECT_EQ(Find("msgmsg", "door", -1), std::nullopt);
}

TEST_F(FindTest, LooksIntoAFieldThatIsNoColumn) {
    store::Cursor& row =
        adventure_->OpenTable(TableNum::Tables, "def", "tablenum=2 and fieldname='msgmsg'");
    row.SetField("see", std::int64_t{3});
    row.Update();
    ShowMessages();
    EXPECT_EQ(grid_.Columns().size(), 1U);
    EXPECT_EQ(Find("msgmsg", "lamp", 0), 2);
}

}  // namespace
}  // namespace fabula::authoring
