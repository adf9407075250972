#include "pictures/files/contact_sheet.h"

#include <gtest/gtest.h>

namespace fabula::pictures {
namespace {

constexpr Colour kRedSheet = MakeColour(200, 0, 0);
constexpr Colour kBlack = MakeColour(0, 0, 0);
constexpr Colour kSheet = MakeColour(64, 64, 64);
constexpr Colour kLabel = MakeColour(255, 255, 255);

NumberedPicture PictureOf(int number, Colour colour) {
    return {number, Image(kCanvasWidth, kCanvasHeight, colour)};
}

TEST(ContactSheet, PutsPicturesOfHalfTheSizeSideBySideAndInRows) {
    const Image sheet = ContactSheet(
        {PictureOf(1, kRedSheet), PictureOf(2, kBlack), PictureOf(3, kRedSheet)}, CharacterSets{}, 2);
    EXPECT_EQ(sheet.width, 8 + 2 * 136);
    EXPECT_EQ(sheet.height, 8 + 2 * 108);
    EXPECT_EQ(sheet.At(0, 0), kSheet);
    EXPECT_EQ(sheet.At(8, 8), kRedSheet);
    EXPECT_EQ(sheet.At(135, 95), kRedSheet);
    EXPECT_EQ(sheet.At(136, 8), kSheet);
    EXPECT_EQ(sheet.At(144, 8), kBlack);
    EXPECT_EQ(sheet.At(8, 116), kRedSheet);
    EXPECT_EQ(sheet.At(144, 116), kSheet);
}

TEST(ContactSheet, ShowsTheMeanOfFourPixels) {
    NumberedPicture picture = PictureOf(1, kBlack);
    picture.image.At(0, 0) = kRedSheet;
    EXPECT_EQ(ContactSheet({picture}, CharacterSets{}, 4).At(8, 8), MakeColour(50, 0, 0));
}

TEST(ContactSheet, WritesTheNumberBelowThePicture) {
    CharacterSets characters;
    characters.Add({0, '5', "Default", {128, 0, 0, 0, 0, 0, 0, 1}});
    const Image sheet = ContactSheet({PictureOf(55, kRedSheet)}, characters, 4);
    EXPECT_EQ(sheet.At(8, 98), kLabel);
    EXPECT_EQ(sheet.At(9, 98), kSheet);
    EXPECT_EQ(sheet.At(15, 105), kLabel);
    EXPECT_EQ(sheet.At(16, 98), kLabel);
}

TEST(ContactSheet, OfNothingIsAnEmptySheet) {
    const Image sheet = ContactSheet({}, CharacterSets{}, 4);
    EXPECT_EQ(sheet.width, 144);
    EXPECT_EQ(sheet.height, 8);
}

}  // namespace
}  // namespace fabula::pictures
