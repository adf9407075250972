#include "pictures/characters/character_store.h"

#include <fstream>
#include <iterator>

#include <gtest/gtest.h>

#include "pictures/book_loader.h"
#include "pictures/characters/character_sets.h"
#include "platform/error.h"
#include "support/doubles/scripted_person.h"
#include "support/games/template_adventure.h"

namespace fabula::pictures {
namespace {

using platform::ScriptedPerson;
using Box = ScriptedPerson::Shown;
using Lines = std::vector<std::string>;
using store::TableNum;

/// An adventure of the default data, with a set 4 of the characters 65 and 66.
class CharacterStore : public testing::Test {
  protected:
    CharacterStore() {
        AddCharacter(4, 65, "Runes", "1 1 1 1 1 1 1 1");
        AddCharacter(4, 66, "Runes", "2 2 2 2 2 2 2 2");
    }

    void AddCharacter(int set, int number, const std::string& name, const std::string& values) {
        store::Cursor& cursor = adventure_->OpenTable(TableNum::Characters, "def", "charkey=-1");
        cursor.AddNew();
        cursor.SetField("charkey", set * 1000 + number);
        cursor.SetField("CharSet", "SET " + std::to_string(set));
        cursor.SetField("charsetnum", set);
        cursor.SetField("charnum", number);
        cursor.SetField("charsetname", name);
        cursor.SetField("charvals", values);
        cursor.Update();
    }

    std::filesystem::path File() const { return adventure_.Folder() / "sets.chr"; }

    void WriteFile(const std::string& text) const { std::ofstream(File(), std::ios::binary) << text; }

    std::string FileText() const {
        std::ifstream stream(File(), std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), {}};
    }

    /// The rows and the name of a character as the file has them now.
    std::string Stored(int set, int number) {
        const store::Cursor& cursor = adventure_->OpenTable(
            TableNum::Characters, "def", "charkey=" + std::to_string(set * 1000 + number));
        return std::string(cursor.Text("charvals")) + ", " + std::string(cursor.Text("charsetname"));
    }

    test::OpenedAdventure adventure_;
    ScriptedPerson person_;
};

TEST_F(CharacterStore, KeepsNamesOfSetsAsLongAsTheyMayBe) {
    const store::TableSchema& schema = adventure_->Schema(TableNum::Characters);
    EXPECT_EQ(schema.fields.at(*schema.Find("charsetname")).size, static_cast<int>(kLongestSetName));
}

TEST_F(CharacterStore, ListsItsSets) {
    EXPECT_EQ(ListSets(*adventure_), (Lines{"0 - Default", "4 - Runes"}));
}

TEST_F(CharacterStore, SavesSelectedSets) {
    EXPECT_TRUE(SaveSets(*adventure_, {"4 - Runes"}, File(), person_));
    EXPECT_EQ(FileText(),
              "CHARSETS\r\nDelim=|\r\nSET0004\r\nRunes\r\n65|1|1|1|1|1|1|1|1\r\n66|2|2|2|2|2|2|2|"
              "2\r\nENDSET\r\n");
    EXPECT_TRUE(person_.Boxes().empty());
}

TEST_F(CharacterStore, SavingSetZeroWritesSixteenShadesAnd21UserGraphics) {
    EXPECT_TRUE(SaveSets(*adventure_, {"0 - Default"}, File(), person_));
    const std::string text = FileText();
    EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 2 + 2 + 16 + 21 + 1);
    EXPECT_NE(text.find("\r\n15|"), std::string::npos);
    EXPECT_EQ(text.find("\r\n32|"), std::string::npos);
    EXPECT_EQ(text.find("\r\n143|"), std::string::npos);
    EXPECT_NE(text.find("\r\n144|"), std::string::npos);
    EXPECT_NE(text.find("\r\n164|"), std::string::npos);
}

TEST_F(CharacterStore, SavingNothingIsRefused) {
    EXPECT_FALSE(SaveSets(*adventure_, {}, File(), person_));
    EXPECT_EQ(person_.Boxes(), (std::vector<Box>{{"No Set is selected", "Error"}}));
    EXPECT_FALSE(std::filesystem::exists(File()));
}

TEST_F(CharacterStore, SavingANameThatTheFileCanNotHoldFailsAndLeavesTheFile) {
    AddCharacter(5, 65, "Руны", "1 1 1 1 1 1 1 1");
    WriteFile("old");
    EXPECT_THROW(SaveSets(*adventure_, {"5 - Руны"}, File(), person_), Error);
    EXPECT_EQ(FileText(), "old");
}

TEST_F(CharacterStore, ListsTheSetsOfAFile) {
    WriteFile("CHARSETS\nDelim=|\nSET0003\nRunes\n65|1|2|3|4|5|6|7|8\nENDSET\nSET0012\nStars\nENDSET\n");
    EXPECT_EQ(ListSetsInFile(File(), person_), (Lines{"SET0003 - Runes", "SET0012 - Stars"}));
    EXPECT_TRUE(person_.Boxes().empty());
}

TEST_F(CharacterStore, AFileOfAnotherKindIsToldByItsName) {
    WriteFile("SETS\n");
    EXPECT_EQ(ListSetsInFile(File(), person_), Lines{});
    EXPECT_FALSE(LoadSet(*adventure_, File(), {"SET0004"}, 4, person_));
    const Box box{File().string() + " is not a Character Set File", "Error"};
    EXPECT_EQ(person_.Boxes(), (std::vector<Box>{box, box}));
}

TEST_F(CharacterStore, LoadsTheChosenSetOfAFileOverATarget) {
    WriteFile(
        "CHARSETS\nDelim=;\nSET0003\nThree\n65;9;9;9;9;9;9;9;9\nENDSET\n"
        "SET0007\nSeven\n65;1;2;3;4;5;6;7;8\nENDSET\n");
    EXPECT_TRUE(LoadSet(*adventure_, File(), {"SET0007 - Seven"}, 4, person_));
    EXPECT_EQ(Stored(4, 65), "1 2 3 4 5 6 7 8, Seven");
    EXPECT_EQ(person_.Boxes(),
              (std::vector<Box>{{"Seven Loaded into Character Set 4", "Load Character Set"}}));
}

TEST_F(CharacterStore, RowsThatTheFileDoesNotTouchKeepTheOldName) {
    WriteFile("CHARSETS\nDelim=|\nSET0007\nSeven\n65|1|2|3|4|5|6|7|8\nENDSET\n");
    EXPECT_TRUE(LoadSet(*adventure_, File(), {"SET0007"}, 4, person_));
    EXPECT_EQ(Stored(4, 66), "2 2 2 2 2 2 2 2, Runes");
}

TEST_F(CharacterStore, OnlyASetNamedDefaultMayBecomeSetZero) {
    WriteFile(
        "CHARSETS\nDelim=|\nSET0004\nRunes\n0|1|2|3|4|5|6|7|8\nENDSET\nSET0005\nDefault\n0|9|9|9|9|9|9|9|"
        "9\nENDSET\n");
    const std::string before = Stored(0, 0);
    EXPECT_FALSE(LoadSet(*adventure_, File(), {"SET0004 - Runes"}, 0, person_));
    EXPECT_EQ(person_.Boxes(), (std::vector<Box>{{"This is not a valid saveset for Set 0", "Error"}}));
    EXPECT_EQ(Stored(0, 0), before);
    EXPECT_TRUE(LoadSet(*adventure_, File(), {"SET0005 - Default"}, 0, person_));
    EXPECT_EQ(Stored(0, 0), "9 9 9 9 9 9 9 9, Default");
}

TEST_F(CharacterStore, TheFontAndTheBlocksOfSetZeroStayWhateverAFileCallsItself) {
    for (const char* number : {"16", "65", "143"}) {
        WriteFile("CHARSETS\nDelim=|\nSET0005\nDefault\n0|9|9|9|9|9|9|9|9\n" + std::string(number) +
                  "|9|9|9|9|9|9|9|9\nENDSET\n");
        const std::string before = Stored(0, 65) + Stored(0, 0);
        EXPECT_FALSE(LoadSet(*adventure_, File(), {"SET0005 - Default"}, 0, person_)) << number;
        EXPECT_EQ(Stored(0, 65) + Stored(0, 0), before);
    }
}

TEST_F(CharacterStore, ExactlyOneSetCanBeLoaded) {
    EXPECT_FALSE(LoadSet(*adventure_, File(), {}, 4, person_));
    EXPECT_FALSE(LoadSet(*adventure_, File(), {"SET0001", "SET0002"}, 4, person_));
    EXPECT_EQ(person_.Boxes(), (std::vector<Box>{{"No Set is selected", "Error"},
                                                 {"Only one Set can be selected", "Error"}}));
}

TEST_F(CharacterStore, ACharacterThatTheTargetLacksFailsAndChangesNothing) {
    WriteFile("CHARSETS\nDelim=|\nSET0007\nSeven\n65|1|2|3|4|5|6|7|8\n67|1|2|3|4|5|6|7|8\nENDSET\n");
    EXPECT_THROW(LoadSet(*adventure_, File(), {"SET0007"}, 4, person_), Error);
    EXPECT_EQ(Stored(4, 65), "1 1 1 1 1 1 1 1, Runes");
    EXPECT_TRUE(person_.Boxes().empty());
}

TEST_F(CharacterStore, WhatWasSavedIsLoadedAgain) {
    EXPECT_TRUE(SaveSets(*adventure_, {"0 - Default", "4 - Runes"}, File(), person_));
    AddCharacter(6, 65, "Six", "0 0 0 0 0 0 0 0");
    AddCharacter(6, 66, "Six", "0 0 0 0 0 0 0 0");
    EXPECT_TRUE(LoadSet(*adventure_, File(), {"SET0004 - Runes"}, 6, person_));
    EXPECT_EQ(Stored(6, 65), "1 1 1 1 1 1 1 1, Runes");
    EXPECT_EQ(Stored(6, 66), "2 2 2 2 2 2 2 2, Runes");
}

TEST_F(CharacterStore, AFileThatIsNotThereFails) {
    EXPECT_THROW(ListSetsInFile(File(), person_), Error);
    EXPECT_THROW(LoadSet(*adventure_, File(), {"SET0001"}, 4, person_), Error);
    EXPECT_THROW(ListSetsInFile(adventure_.Folder().Path(), person_), Error);
}

}  // namespace
}  // namespace fabula::pictures
