#include "qt/look/icons.h"

#include <QGuiApplication>
#include <QImage>
#include <QPalette>
#include <QPixmap>

#include <gtest/gtest.h>

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

QImage Drawn(std::string_view name) {
    return qt::IconOf(name).pixmap(24, 24).toImage();
}

TEST(Icons, NameWithAShapeIsDrawn) {
    EXPECT_TRUE(qt::HasIcon("map"));
    EXPECT_TRUE(DrawsSomething(qt::IconOf("map")));
}

TEST(Icons, OpenFormWithoutAShapeOfItsOwnIsDrawnAsTheClosedOne) {
    EXPECT_TRUE(qt::HasIcon("map-open"));
    EXPECT_EQ(Drawn("map-open"), Drawn("map"));
    EXPECT_NE(Drawn("folder-open"), Drawn("folder"));
}

TEST(Icons, NameWithoutAShapeDrawsNothing) {
    EXPECT_FALSE(qt::HasIcon("no such icon"));
    EXPECT_FALSE(DrawsSomething(qt::IconOf("no such icon")));
}

TEST(Icons, DrawingsTakeTheColoursOfTheWindows) {
    const QPalette before = QGuiApplication::palette();
    QPalette palette = before;
    palette.setColor(QPalette::WindowText, QColor("#0000ff"));
    palette.setColor(QPalette::Link, QColor("#c02040"));
    QGuiApplication::setPalette(palette);
    const QImage image = qt::IconOf("find").pixmap(240, 240).toImage();
    QGuiApplication::setPalette(before);
    EXPECT_EQ(image.pixelColor(105, 40), QColor("#0000ff"));
    EXPECT_EQ(image.pixelColor(182, 182), QColor("#c02040"));
}

TEST(Icons, OfAThemeThatHasGoneAreDrawnAnewInTheOther) {
    const QPalette before = QGuiApplication::palette();
    const QIcon icon = qt::IconOf("find");
    const QImage usual = icon.pixmap(24, 24).toImage();
    QPalette palette = before;
    palette.setColor(QPalette::WindowText, QColor("#20c040"));
    QGuiApplication::setPalette(palette);
    const QImage green = icon.pixmap(24, 24).toImage();
    QGuiApplication::setPalette(before);
    EXPECT_NE(green, usual);
    EXPECT_EQ(icon.pixmap(24, 24).toImage(), usual);
    EXPECT_NE(icon.pixmap(24, 24, QIcon::Disabled).toImage(), usual);
}

}  // namespace
}  // namespace fabula::test
