// The jobs of docs/keys-and-clicks.md, with the keys and clicks that it tells.

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QListWidget>
#include <QTableView>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ide/author.h"
#include "qt/strings.h"
#include "text/value.h"

namespace fabula::test {
namespace {

using store::TableNum;
using testing::ElementsAre;

constexpr QKeyCombination kAdd = Qt::CTRL | Qt::Key_N;
constexpr QKeyCombination kUpdate = Qt::CTRL | Qt::Key_Return;

/// An author who counts: a key with what is held with it, a click and a text that is typed into a field are
/// one each; a command of a menu is two clicks.
class KeysAndClicks : public testing::Test {
  protected:
    KeysAndClicks() {
        GameBuilder game;
        game.Location(0, "A kitchen.", "The kitchen").Word("NORTH", 2, 0).Word("SOUTH", 3, 0);
        game.Message(0, "It is dark.").Message(1, "The lamp is lit.");
        game.Entry(0, "DO", "_", "MESSAGE 1 DONE");
        game.Object(0, {.description = "a box"});
        for (int number = 1; number <= 3; ++number)
            game.Object(number, {.description = "a tin " + std::to_string(number)});
        // As the window has it on a screen with the room: the record stands beside the rows.
        author_.Desk().Window().resize(1280, 800);
        author_.Desk().Open(game);
        // The builder writes numbers only.
        store::Cursor& entry = author_.Desk().Logic().CurrentContext().document.Adventure().OpenTable(
            TableNum::Free25, "* from processtables");
        for (const auto& [field, text] :
             {std::pair("w1", "DO"), {"w2", "_"}, {"condacts", "MESSAGE 1 DONE"}})
            entry.SetField(field, std::string(text));
        entry.Update();
        author_.Desk().Logic().Refresh();
    }

    /// The author is in a row of a table: that is where each job begins.
    void In(const char* node, int row = 0) {
        author_.ClicksNode(node);
        auto& grid = author_.Desk().Part<QTableView>("Grid");
        grid.setFocus();
        for (int walked = 0; walked < row; ++walked)
            author_.Presses(Qt::Key_Down);
        EXPECT_EQ(grid.currentIndex().row(), row);
        count_ = 0;
    }
    void Types(const char* text) {
        ++count_;
        author_.Types(text);
    }
    void Presses(QKeyCombination key) {
        ++count_;
        author_.Presses(key);
    }
    void Clicks(const char* name) {
        ++count_;
        EXPECT_TRUE(author_.Sees(name)) << name << " is out of sight.";
        author_.Clicks(name);
    }
    void SaysYesTo(const char* title) {
        author_.Expects(title, [this] {
            ++count_;
            author_.ClicksButton("Yes");
        });
    }
    void Chooses(const char* path) {
        count_ += 2;
        author_.Chooses(path);
    }

    std::vector<std::string> Stored(const char* select) {
        std::vector<std::string> rows;
        auto& adventure = author_.Desk().Logic().CurrentContext().document.Adventure();
        for (store::Cursor& record = adventure.OpenTable(TableNum::Free25, select); !record.Eof();
             record.MoveNext()) {
            std::string row;
            for (std::size_t field = 0; field < record.Fields().size(); ++field)
                row += (field == 0 ? "" : "|") + text::ToText(record.Field(field));
            rows.push_back(row);
        }
        return rows;
    }
    int Key() {
        const auto& logic = author_.Desk().Logic();
        return logic.Grid().KeyOf(logic.CurrentRow());
    }
    /// What a label shows.
    std::string Shown(const char* label) {
        return qt::FromQt(author_.Front().findChild<QLabel*>(label)->text());
    }
    std::optional<int> RowOfWord(const std::string& word) {
        const auto keys = Stored(("vocindex from vocabulary where word='" + word + "'").c_str());
        return author_.Desk().Logic().Grid().RowOf(std::stoi(keys.at(0)));
    }
    /// The one step of Undo that the job was.
    std::string Undo() { return qt::FromQt(author_.Desk().Action("Undo").text()); }

    Author author_;
    int count_ = 0;
};

TEST_F(KeysAndClicks, APlaceJoinedBothWaysTakes3) {
    In("Locations");
    Clicks("exitWord");
    Types("NORTH The attic");
    EXPECT_EQ(Shown("whatAddDoes"), "Makes location 3, \u201CThe attic\u201D, with SOUTH back to here.");
    Presses(kUpdate);
    EXPECT_EQ(count_, 3);
    EXPECT_THAT(Stored("exits from locations where locnum=0"), ElementsAre("NORTH 3"));
    EXPECT_THAT(Stored("locshortdesc, exits from locations where locnum=3"),
                ElementsAre("The attic|SOUTH 0"));
    EXPECT_EQ(Shown("status"), "Done: edit location 0 with new location 3");
    EXPECT_EQ(Undo(), "&Undo edit location 0 with new location 3");
}

TEST_F(KeysAndClicks, AnObjectWithItsWordTakes4) {
    In("Objects");
    author_.Expects("Object 4", [this] {
        Types("a long ladder");
        Clicks("initialPlace2");
        const auto& offer = *author_.Front().findChild<QCheckBox*>("makeNoun");
        EXPECT_TRUE(offer.isVisible() && offer.isChecked());
        EXPECT_EQ(offer.text().remove('&'), "Make the noun LADDER");
        Presses(kUpdate);
    });
    Presses(kAdd);
    EXPECT_EQ(count_, 4);
    EXPECT_THAT(Stored("objdesc, objnoun, objnumnoun from objects where objnum=4"),
                ElementsAre("a long ladder|LADDER|51"));
    EXPECT_THAT(Stored("vocnum, voctype from vocabulary where word='LADDER'"), ElementsAre("51|Noun"));
    EXPECT_EQ(Undo(), "&Undo add object 4 with word LADDER");
}

TEST_F(KeysAndClicks, AWordCorrectedTakes2) {
    In("Vocabulary");
    In("Vocabulary", *RowOfWord("DO"));
    Types("MAKE");
    Presses(Qt::Key_Return);
    EXPECT_EQ(count_, 2);
    EXPECT_THAT(Stored("vocnum from vocabulary where word='MAKE'"), ElementsAre("100"));
    EXPECT_THAT(Stored("w1 from processtables"), ElementsAre("MAKE"));
    EXPECT_EQ(Shown("status"), "Done: edit word MAKE with 1 use");
    EXPECT_EQ(Undo(), "&Undo edit word MAKE with 1 use");
}

TEST_F(KeysAndClicks, ARuleThatSaysSomethingNewTakes6) {
    In("Response (P0)");
    author_.Expects("Process Table Editor", [this] {
        Clicks("line");
        Types("message \"It is raining.");
        Presses(Qt::Key_Tab);
        Types("done");
        Presses(kUpdate);
    });
    Presses(kAdd);
    EXPECT_EQ(count_, 6);
    EXPECT_THAT(Stored("condacts from processtables where canum=1"), ElementsAre("MESSAGE 2 DONE"));
    EXPECT_THAT(Stored("msgmsg from messages where msgnum=2"), ElementsAre("It is raining."));
}

TEST_F(KeysAndClicks, TheMessageOfARuleTakes3) {
    In("Response (P0)");
    author_.Expects("Go To What It Names", [this] {
        Types("message");
        Presses(Qt::Key_Return);
    });
    Presses(Qt::Key_F12);
    EXPECT_EQ(count_, 3);
    EXPECT_EQ(author_.Desk().Logic().Grid().View().table, TableNum::Messages);
    EXPECT_EQ(Key(), 1);
}

TEST_F(KeysAndClicks, WhatUsesAMessageTakes1) {
    In("Messages");
    Presses(Qt::SHIFT | Qt::Key_F12);
    EXPECT_EQ(count_, 1);
    EXPECT_EQ(author_.Desk().Part<QLabel>("UsesTitle").text(), "message 0: not used");
}

TEST_F(KeysAndClicks, ARecordByAPartOfItsTextTakes3) {
    In("Vocabulary");
    author_.Expects("Go To", [this] {
        Types("lamp is");
        Presses(Qt::Key_Return);
    });
    Presses(Qt::CTRL | Qt::Key_P);
    EXPECT_EQ(count_, 3);
    EXPECT_EQ(author_.Desk().Logic().Grid().View().table, TableNum::Messages);
    EXPECT_EQ(Key(), 1);
}

TEST_F(KeysAndClicks, AContainerWithItsPlaceTakes3) {
    In("Objects", 3);
    SaysYesTo("New location");
    Clicks("container");
    Presses(kUpdate);
    EXPECT_EQ(count_, 3);
    EXPECT_THAT(Stored("objattr from objects where objnum=3"), ElementsAre("C"));
    EXPECT_THAT(Stored("locshortdesc from locations where locnum=3"), ElementsAre("Inside a tin 3"));
}

TEST_F(KeysAndClicks, AnotherNumberForAMessageTakes4) {
    In("Messages", 1);
    author_.Expects("Change Number", [this] {
        Types("7");
        Presses(Qt::Key_Return);
    });
    Chooses("Edit > Change Number");
    EXPECT_EQ(count_, 4);
    EXPECT_THAT(Stored("condacts from processtables"), ElementsAre("MESSAGE 7 DONE"));
}

TEST_F(KeysAndClicks, ATableOfRulesWithNamesTakes1) {
    In("Response (P0)");
    Presses(Qt::Key_F8);
    EXPECT_EQ(count_, 1);
    const auto& model = *author_.Desk().Part<QTableView>("Grid").model();
    QString row;
    for (int column = 0; column < model.columnCount(); ++column)
        row += model.index(0, column).data().toString() + "|";
    EXPECT_TRUE(row.contains("The lamp is lit.")) << qt::FromQt(row);
}

}  // namespace
}  // namespace fabula::test
