#include "ide/icons.h"

#include <QImage>
#include <QPixmap>

#include <gtest/gtest.h>

#include "ide/icon_shapes.h"

namespace fabula::test {
namespace {

bool DrawsSomething(const QIcon& icon) {
    const QImage image = icon.pixmap(24, 24).toImage().convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(image.pixel(x, y)) != 0) return true;
        }
    }
    return false;
}

TEST(Icons, NameWithAShapeIsDrawn) {
    EXPECT_TRUE(ide::HasIcon("map"));
    EXPECT_TRUE(DrawsSomething(ide::IconOf("map")));
}

TEST(Icons, OpenFormWithoutAShapeOfItsOwnIsDrawnAsTheClosedOne) {
    EXPECT_TRUE(ide::HasIcon("map-open"));
    EXPECT_EQ(ide::FindIconShape("map-open"), ide::FindIconShape("map"));
    EXPECT_NE(ide::FindIconShape("folder-open"), ide::FindIconShape("folder"));
}

TEST(Icons, NameWithoutAShapeDrawsNothing) {
    EXPECT_FALSE(ide::HasIcon("no such icon"));
    EXPECT_FALSE(DrawsSomething(ide::IconOf("no such icon")));
}

TEST(Icons, ShapesAreReadLetterByLetter) {
    EXPECT_EQ(ide::PathOf("M 1 2 L 3 4").boundingRect(), QRectF(1, 2, 2, 2));
    EXPECT_EQ(ide::PathOf("O 12 12 3").boundingRect(), QRectF(9, 9, 6, 6));
    EXPECT_EQ(ide::PathOf("R 2 3 10 5 0").boundingRect(), QRectF(2, 3, 10, 5));
    EXPECT_TRUE(ide::PathOf("").isEmpty());
}

}  // namespace
}  // namespace fabula::test
