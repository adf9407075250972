#include "pictures/book_loader.h"

#include <gtest/gtest.h>

#include "pictures/drawing.h"
#include "pictures/drawstring_check.h"
#include "support/games/template_adventure.h"

namespace fabula::pictures {
namespace {

using store::TableNum;

void AddPicture(store::Adventure& adventure, int number, const std::string& kind, int paper, int ink,
                const std::string& drawstring) {
    store::Cursor& cursor = adventure.OpenTable(TableNum::Pictures, "def", "locnum=-1");
    cursor.AddNew();
    cursor.SetField("locnum", number);
    cursor.SetField("loctype", kind);
    cursor.SetField("locpaper", paper);
    cursor.SetField("locink", ink);
    cursor.SetField("drawstring", drawstring);
    cursor.Update();
}

TEST(LoadPictureBook, ReadsPicturesByNumber) {
    const test::OpenedAdventure adventure;
    AddPicture(*adventure, 5, "Subroutine", -1, 3, "LINE 0 3 0 END");
    AddPicture(*adventure, 6, "Picture", 2, -1, "END");
    const PictureBook book = LoadPictureBook(*adventure);
    ASSERT_EQ(book.pictures.size(), 2U);
    EXPECT_EQ(book.FindPicture(5)->kind, PictureKind::Subroutine);
    EXPECT_EQ(book.FindPicture(5)->paper, -1);
    EXPECT_EQ(book.FindPicture(5)->ink, 3);
    EXPECT_EQ(book.FindPicture(5)->drawstring, "LINE 0 3 0 END");
    EXPECT_EQ(book.FindPicture(6)->kind, PictureKind::Room);
    EXPECT_EQ(book.FindPicture(6)->paper, 2);
    EXPECT_EQ(book.FindPicture(7), nullptr);
}

TEST(LoadPictureBook, ReadsTheColoursOfTheAdventureByTheirNumbers) {
    const test::OpenedAdventure adventure;
    store::Cursor& settings = adventure->OpenTable(TableNum::Adventure, "def");
    settings.SetField("BackColor", 5);
    settings.SetField("textcolor", 10);
    settings.Update();
    const PictureBook book = LoadPictureBook(*adventure);
    EXPECT_EQ(book.backColour, IndexToColour(5));
    EXPECT_EQ(book.textColour, IndexToColour(10));
}

TEST(LoadPictureBook, ReadsTheNumbersOfLocations) {
    const test::OpenedAdventure adventure;
    const PictureBook book = LoadPictureBook(*adventure);
    EXPECT_TRUE(book.locations.contains(0));
    EXPECT_FALSE(book.locations.contains(700));
}

TEST(LoadPictureBook, FindsTheCharactersOfTheDefaultData) {
    const test::OpenedAdventure adventure;
    const PictureBook book = LoadPictureBook(*adventure);
    for (int shade = 0; shade <= kLastShade; ++shade) {
        EXPECT_NE(book.characters.Find(0, shade), nullptr) << shade;
    }
    for (int number = kFirstCharacter; number <= kLastCharacter; ++number) {
        EXPECT_NE(book.characters.Find(0, number), nullptr) << number;
    }
    EXPECT_EQ(book.characters.Find(0, kSolidCharacter)->glyph,
              (Glyph{255, 255, 255, 255, 255, 255, 255, 255}));
    EXPECT_EQ(book.characters.Find(0, 65)->setName, "Default");
}

TEST(LoadPictureBook, EveryWordOfADrawstringIsInTheDefaultData) {
    const test::OpenedAdventure adventure;
    AddPicture(*adventure, 5, "Subroutine", -1, -1, "END");
    const PictureBook book = LoadPictureBook(*adventure);
    const std::string drawstring =
        "INK 2 PAPER 6 BRIGHT 0 FLASH 1 ABSMOVE 20 20 PLOT 0 30 30 RELMOVE 5 -5 LINE 10 20 0 FILL 1 9 "
        "SHADE 0 1 9 16 "
        "TEXT 1 0 65 3 4 BLOCK 1 2 3 4 GOSUB sc=4 5 QSHADE 0 9 9 129 RPLOT 0 -1 1 QFILL 3 3 BSHADE 0 9 9 1 "
        "END";
    EXPECT_EQ(ValidateDrawString(book, drawstring, PictureKind::Room).fault, "");
    Drawing drawing(book);
    EXPECT_NO_THROW(drawing.CommDraw(Picture{}, drawstring));
    EXPECT_EQ(drawing.State().flash, 1);
}

TEST(LoadPictureBook, TypedWordsOfTheDefaultDataTakeWhatTheCursorCanNotSupply) {
    const test::OpenedAdventure adventure;
    AddPicture(*adventure, 5, "Subroutine", -1, -1, "END");
    const PictureBook book = LoadPictureBook(*adventure);
    for (const char* line : {"ABSMOVE", "PLOT", "RELMOVE", "LINE", "FILL", "SHADE 1 2", "TEXT 0 65",
                             "BLOCK", "INK 8", "PAPER 8", "BRIGHT 1", "INVERSE 1", "FLASH 1", "OVER 1",
                             "GOSUB 0 5", "QSHADE 9", "RPLOT", "QFILL", "BSHADE 9"}) {
        EXPECT_EQ(ValidateCommandLine(book, line, PictureKind::Room, false).fault, "") << line;
    }
}

}  // namespace
}  // namespace fabula::pictures
