#include "qt/icons.h"

#include <QImage>
#include <QPixmap>

#include <gtest/gtest.h>

#include "qt/icon_shapes.h"

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
    EXPECT_TRUE(qt::HasIcon("map"));
    EXPECT_TRUE(DrawsSomething(qt::IconOf("map")));
}

TEST(Icons, OpenFormWithoutAShapeOfItsOwnIsDrawnAsTheClosedOne) {
    EXPECT_TRUE(qt::HasIcon("map-open"));
    EXPECT_EQ(qt::FindIconShape("map-open"), qt::FindIconShape("map"));
    EXPECT_NE(qt::FindIconShape("folder-open"), qt::FindIconShape("folder"));
}

TEST(Icons, NameWithoutAShapeDrawsNothing) {
    EXPECT_FALSE(qt::HasIcon("no such icon"));
    EXPECT_FALSE(DrawsSomething(qt::IconOf("no such icon")));
}

TEST(Icons, ShapesAreReadLetterByLetter) {
    EXPECT_EQ(qt::PathOf("M 1 2 L 3 4").boundingRect(), QRectF(1, 2, 2, 2));
    EXPECT_EQ(qt::PathOf("O 12 12 3").boundingRect(), QRectF(9, 9, 6, 6));
    EXPECT_EQ(qt::PathOf("R 2 3 10 5 0").boundingRect(), QRectF(2, 3, 10, 5));
    EXPECT_TRUE(qt::PathOf("").isEmpty());
}

}  // namespace
}  // namespace fabula::test
