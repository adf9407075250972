#include "pictures/files/picture_folder.h"

#include <fstream>

#include <gtest/gtest.h>

#include "pictures/book_loader.h"
#include "pictures/files/image_reader.h"
#include "platform/error.h"
#include "support/games/template_adventure.h"

namespace fabula::pictures {
namespace {

using store::TableNum;

/// A new adventure, which has room 0, and a folder of drawings beside it.
class PictureFolder : public testing::Test {
  protected:
    PictureFolder() { std::filesystem::create_directory(Drawings()); }

    std::filesystem::path Drawings() const { return adventure_.Folder() / "drawings"; }

    void Write(const std::string& name, const std::string& text) const {
        std::ofstream(Drawings() / name) << text;
    }

    void Add() { AddPictureFolder(*adventure_, Drawings()); }

    std::string Failure() {
        try {
            Add();
        } catch (const Error& failure) {
            return failure.what();
        }
        return "";
    }

    std::string Field(TableNum table, const std::string& field, const std::string& where = "") {
        return std::string(adventure_->OpenTable(table, "def", where).Text(field));
    }

    std::int64_t Number(const std::string& field, const std::string& where = "locnum=0") {
        return adventure_->OpenTable(TableNum::Pictures, "def", where).Number(field);
    }

    bool Exists(const std::string& bitmap) const {
        return std::filesystem::exists(adventure_.Folder() / bitmap.c_str());
    }

    test::OpenedAdventure adventure_;
};

TEST_F(PictureFolder, DrawingBecomesThePictureOfItsRoom) {
    Write("0.draw", "DEFPAPER 0\nDEFINK 6\n# a dot\nPLOT 0 10 20\n\nEND\n");
    Add();
    EXPECT_EQ(Field(TableNum::Pictures, "drawstring", "locnum=0"), "PLOT 0 10 20 END");
    EXPECT_EQ(Number("locpaper"), 0);
    EXPECT_EQ(Number("locink"), 6);
    EXPECT_EQ(Field(TableNum::Locations, "pickey", "locnum=0"), "Room0");
    EXPECT_EQ(Field(TableNum::Locations, "picloc", "locnum=0"), "pictures/game/Room000.bmp");
    EXPECT_TRUE(Exists("pictures/game/Room000.bmp"));
}

TEST_F(PictureFolder, TurnsGraphicsOn) {
    Write("0.draw", "END");
    Add();
    adventure_->ReadSettings();
    EXPECT_TRUE(adventure_->GraphicsOn());
}

TEST_F(PictureFolder, DrawingWithoutColoursTakesThoseOfTheAdventure) {
    Write("0.draw", "END");
    Add();
    EXPECT_EQ(Number("locpaper"), kColourOfTheAdventure);
    EXPECT_EQ(Number("locink"), kColourOfTheAdventure);
}

TEST_F(PictureFolder, DefaultDrawingIsTheDefaultPicture) {
    Write("default.draw", "END");
    Add();
    EXPECT_EQ(Field(TableNum::Adventure, "defpickey"), "Default");
    EXPECT_EQ(Field(TableNum::Adventure, "defpicloc"), "pictures/game/Default.bmp");
    EXPECT_TRUE(Exists("pictures/game/Default.bmp"));
}

TEST_F(PictureFolder, TheDefaultPictureHasANumberThatNoLocationCanHave) {
    Write("default.draw", "END");
    Add();
    EXPECT_EQ(Number("locnum", ""), 1000);
}

TEST_F(PictureFolder, OnlyThePicturesOfRoomsNameARoom) {
    Write("0.draw", "GOSUB sc=4 500 END");
    Write("500.draw", "LINE 0 8 8 END");
    Write("default.draw", "END");
    Add();
    EXPECT_EQ(Number("roompicnum", "locnum=0"), 0);
    EXPECT_EQ(Number("roompicnum", "locnum=500"), -1);
    EXPECT_EQ(Number("roompicnum", "locnum=1000"), -1);
}

TEST_F(PictureFolder, NumberWithoutARoomIsASubroutineWithoutABitmap) {
    Write("0.draw", "GOSUB sc=4 500 END");
    Write("500.draw", "LINE 0 8 8 END");
    Add();
    EXPECT_EQ(Field(TableNum::Pictures, "loctype", "locnum=500"), "Subroutine");
    EXPECT_FALSE(Exists("pictures/game/Room500.bmp"));
}

TEST_F(PictureFolder, SecondTimeReplacesThePictures) {
    Write("0.draw", "PLOT 0 1 1 END");
    Add();
    Write("0.draw", "PLOT 0 2 2 END");
    Add();
    const PictureBook book = LoadPictureBook(*adventure_);
    EXPECT_EQ(book.FindPicture(0)->drawstring, "PLOT 0 2 2 END");
}

TEST_F(PictureFolder, DrawstringThatDoesNotPassLeavesTheAdventureAsItWas) {
    Write("0.draw", "PLOT 0 5 200 END");
    EXPECT_EQ(Failure(),
              (Drawings() / "0.draw").string() + ": 200 is an invalid relative Y number for command PLOT");
    EXPECT_EQ(Field(TableNum::Locations, "picloc", "locnum=0"), "");
}

TEST_F(PictureFolder, DrawingThatDoesNotPassLeavesTheBitmapsOfTheOthersAsTheyWere) {
    Write("0.draw", "PLOT 0 5 5 END");
    Write("default.draw", "PLOT 0 5 200 END");
    EXPECT_NE(Failure(), "");
    EXPECT_FALSE(Exists("pictures/game/Room000.bmp"));
}

TEST_F(PictureFolder, DrawingThatCannotBeDrawnLeavesTheBitmapsOfTheOthersAsTheyWere) {
    Write("0.draw", "PLOT 0 5 5 END");
    Add();
    const std::filesystem::path bitmap = adventure_.Folder() / "pictures/game/Room000.bmp";
    const std::vector<Colour> before = ReadImage(bitmap).pixels;
    Write("0.draw", "PLOT 0 6 6 END");
    Write("500.draw", "GOSUB sc=0 500 END");
    Write("default.draw", "GOSUB sc=0 500 END");
    EXPECT_NE(Failure(), "");
    EXPECT_EQ(ReadImage(bitmap).pixels, before);
    EXPECT_EQ(Field(TableNum::Pictures, "drawstring", "locnum=0"), "PLOT 0 5 5 END");
}

TEST_F(PictureFolder, WithoutADrawingIsRefused) {
    EXPECT_EQ(Failure(), "There is no drawing in the folder " + Drawings().string() + ".");
}

TEST_F(PictureFolder, ColourThatIsNoneIsRefused) {
    Write("0.draw", "DEFPAPER 16 END");
    EXPECT_EQ(Failure(), (Drawings() / "0.draw").string() + ": 16 is no colour for DEFPAPER.");
}

TEST_F(PictureFolder, FileNameThatIsNoNumberIsRefused) {
    Write("tower.draw", "END");
    EXPECT_EQ(Failure(), (Drawings() / "tower.draw").string() + " is named after no picture.");
}

TEST_F(PictureFolder, NumberThatNoPictureMayHaveIsRefused) {
    Write("1000.draw", "END");
    EXPECT_EQ(Failure(), (Drawings() / "1000.draw").string() + " is named after no picture.");
}

}  // namespace
}  // namespace fabula::pictures
