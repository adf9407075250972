#include "listings/pages/dot_picture.h"

#include <gtest/gtest.h>

#include "pictures/palette.h"

namespace fabula::listings {
namespace {

using pictures::Image;
using pictures::MakeColour;

constexpr auto kWhite = MakeColour(255, 255, 255);
constexpr auto kBlack = MakeColour(0, 0, 0);

TEST(DotPicture, EachDarkPointIsADotOfItsSign) {
    Image image(2, 4, kWhite);
    image.At(0, 0) = kBlack;
    image.At(1, 3) = kBlack;
    EXPECT_EQ(DotPicture(image, 1, 1), (std::vector<std::u32string>{U"\u2881"}));
}

TEST(DotPicture, WhiteIsEmptyAndBlackIsFull) {
    EXPECT_EQ(DotPicture(Image(2, 4, kWhite), 1, 1), (std::vector<std::u32string>{U"\u2800"}));
    EXPECT_EQ(DotPicture(Image(2, 4, kBlack), 1, 1), (std::vector<std::u32string>{U"\u28FF"}));
}

TEST(DotPicture, GreyIsMixed) {
    EXPECT_EQ(DotPicture(Image(2, 4, MakeColour(128, 128, 128)), 1, 1),
              (std::vector<std::u32string>{U"\u286A"}));
}

TEST(DotPicture, LargerImageIsMadeSmaller) {
    Image image(4, 8, kWhite);
    for (int y = 0; y < 2; ++y) {
        for (int x = 0; x < 2; ++x)
            image.At(x, y) = kBlack;
    }
    EXPECT_EQ(DotPicture(image, 1, 1), (std::vector<std::u32string>{U"\u2801"}));
}

TEST(DotPicture, SmallerImageFillsItsPlace) {
    EXPECT_EQ(DotPicture(Image(1, 1, kBlack), 2, 1), (std::vector<std::u32string>{U"\u28FF\u28FF"}));
}

}  // namespace
}  // namespace fabula::listings
