#include "ide/window/cell_delegate.h"

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QPalette>
#include <QStandardItemModel>
#include <algorithm>

#include <gtest/gtest.h>

namespace fabula::test {
namespace {

constexpr QSize kCell(300, 24);

/// A cell with this text, drawn in black on white.
QImage Drawn(const char* text, QStyle::State state = QStyle::State_Enabled | QStyle::State_Active) {
    QStandardItemModel model;
    model.appendRow(new QStandardItem(text));
    QStyleOptionViewItem option;
    option.rect = QRect(QPoint(), kCell);
    option.state = state;
    option.palette.setColor(QPalette::Text, Qt::black);
    option.palette.setColor(QPalette::Highlight, Qt::white);
    option.palette.setColor(QPalette::HighlightedText, Qt::black);
    option.font = QApplication::font();
    option.fontMetrics = QFontMetrics(option.font);
    QImage image(kCell, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    ide::CellDelegate().paint(&painter, option, model.index(0, 0));
    return image;
}

/// The lightness of the darkest point between two columns, 0 to 255.
int Darkest(const QImage& image, int from, int to) {
    int darkest = 255;
    for (int x = from; x < to; ++x) {
        for (int y = 0; y < image.height(); ++y)
            darkest = std::min(darkest, image.pixelColor(x, y).lightness());
    }
    return darkest;
}

TEST(CellDelegate, DrawsTagsPalerThanWords) {
    const int words = Darkest(Drawn("HHHH"), 0, kCell.width());
    const int tags = Darkest(Drawn("<HHHH>"), 0, kCell.width());
    EXPECT_GT(tags, words + 50);
    EXPECT_LT(tags, 200);
}

TEST(CellDelegate, DrawsTheWordsBesideTagsLikeAnyOthers) {
    const int words = Darkest(Drawn("HHHH"), 0, kCell.width());
    EXPECT_NEAR(Darkest(Drawn("<ink=1>HHHH<ink>"), 0, kCell.width()), words, 20);
}

TEST(CellDelegate, DrawsATagThatTheCellCutsOffPaleToItsEnd) {
    const std::string text = "<" + std::string(200, 'H') + ">";
    EXPECT_GT(Darkest(Drawn(text.c_str()), 0, kCell.width()), 50);
}

TEST(CellDelegate, DrawsASignThatBeginsNoTagLikeAnyOther) {
    const int words = Darkest(Drawn("HHHH"), 0, kCell.width());
    EXPECT_NEAR(Darkest(Drawn("3 < HHHH"), 0, kCell.width()), words, 20);
}

TEST(CellDelegate, WritesNothingBeyondItsCell) {
    QImage wide = Drawn("<b>HHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHH");
    EXPECT_EQ(Darkest(wide, kCell.width() - 2, kCell.width()), 255);
}

}  // namespace
}  // namespace fabula::test
