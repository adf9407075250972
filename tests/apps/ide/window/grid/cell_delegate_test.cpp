#include "ide/window/grid/cell_delegate.h"

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QPalette>
#include <QStandardItemModel>
#include <algorithm>

#include <gtest/gtest.h>

#include "ide/window/grid/grid_model.h"

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

/// A cell of conditions and actions, conditions in blue and actions in black.
QImage DrawnCondActs(const QStringList& condActs, int height, QStyle::State more = {}) {
    QStandardItemModel model;
    auto* item = new QStandardItem("not shown");
    item->setData(condActs, ide::GridModel::kCondActs);
    model.appendRow(item);
    QStyleOptionViewItem option;
    option.rect = QRect(0, 0, kCell.width(), height);
    option.showDecorationSelected = true;  // as in the grid: the text has the whole cell
    option.state = QStyle::State_Enabled | QStyle::State_Active | more;
    option.palette.setColor(QPalette::Text, Qt::black);
    option.palette.setColor(QPalette::Link, Qt::blue);
    option.palette.setColor(QPalette::Highlight, Qt::white);
    option.palette.setColor(QPalette::HighlightedText, Qt::black);
    option.font = QApplication::font();
    option.fontMetrics = QFontMetrics(option.font);
    QImage image(option.rect.size(), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    ide::CellDelegate().paint(&painter, option, model.index(0, 0));
    return image;
}

/// Whether something blue stands between two lines of points.
bool HasBlue(const QImage& image, int from, int to) {
    for (int y = from; y < to; ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor point = image.pixelColor(x, y);
            if (point.blue() > point.red() + 60) return true;
        }
    }
    return false;
}

TEST(CellDelegate, DrawsConditionsInAnotherColourThanActions) {
    EXPECT_TRUE(HasBlue(DrawnCondActs({"?HHHH"}, 24), 0, 24));
    const QImage action = DrawnCondActs({"!HHHH"}, 24);
    EXPECT_FALSE(HasBlue(action, 0, 24));
    EXPECT_LT(Darkest(action, 0, kCell.width()), 100);
}

TEST(CellDelegate, DrawsOneConditionOrActionToALineWhereThereIsRoom) {
    const int line = QFontMetrics(QApplication::font()).height();
    const QImage image = DrawnCondActs({"!HHHH", "?HHHH"}, 3 * line);
    EXPECT_FALSE(HasBlue(image, 0, 3 * line / 2));
    EXPECT_TRUE(HasBlue(image, 3 * line / 2, 3 * line));
}

TEST(CellDelegate, KeepsTheColourOfAChosenRow) {
    EXPECT_FALSE(HasBlue(DrawnCondActs({"?HHHH"}, 24, QStyle::State_Selected), 0, 24));
}

TEST(CellDelegate, WritesNothingBeyondItsCell) {
    QImage wide = Drawn("<b>HHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHH");
    EXPECT_EQ(Darkest(wide, kCell.width() - 2, kCell.width()), 255);
}

}  // namespace
}  // namespace fabula::test
