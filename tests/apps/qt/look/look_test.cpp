#include "qt/look/look.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QStyleOptionSlider>
#include <algorithm>
#include <memory>

#include <gtest/gtest.h>

#include "player/panes/text_colours.h"
#include "qt/look/theme.h"

namespace fabula::qt {
namespace {

text::Rgb Of(const QColor& colour) {
    return {static_cast<std::uint8_t>(colour.red()), static_cast<std::uint8_t>(colour.green()),
            static_cast<std::uint8_t>(colour.blue())};
}

/// The highest contrast of anything in this part of a widget with the window.
double HighestContrast(QWidget& widget, const QRect& part) {
    widget.ensurePolished();
    QImage picture = widget.grab().toImage();
    const text::Rgb window = Of(QApplication::palette().color(QPalette::Window));
    double highest = 1;
    for (int y = part.top(); y <= part.bottom(); ++y) {
        for (int x = part.left(); x <= part.right(); ++x)
            highest = std::max(highest, player::Contrast(window, Of(picture.pixelColor(x, y))));
    }
    return highest;
}

/// What must be seen of a control without its text: its left edge, where its mark or its line stands.
double ContrastOfEdge(QWidget& widget) {
    widget.resize(120, 30);
    return HighestContrast(widget, {0, 0, 14, 30});
}

class LookTest : public testing::TestWithParam<Theme> {
  protected:
    LookTest() { ApplyTheme(GetParam()); }
    ~LookTest() override { ApplyTheme(Theme::System); }
};

TEST_P(LookTest, AMarkThatIsNotSetCanBeSeen) {
    QCheckBox box;
    QRadioButton option;
    EXPECT_GE(ContrastOfEdge(box), 3);
    EXPECT_GE(ContrastOfEdge(option), 3);
}

TEST_P(LookTest, AMarkThatIsSetLooksOtherwise) {
    QCheckBox box;
    box.resize(120, 30);
    const QImage clear = box.grab().toImage();
    box.setChecked(true);
    const QImage set = box.grab().toImage();
    box.setCheckState(Qt::PartiallyChecked);
    EXPECT_NE(clear, set);
    EXPECT_NE(set, box.grab().toImage());
}

TEST_P(LookTest, FieldsAndListsHaveALineThatCanBeSeen) {
    QLineEdit field;
    QComboBox list;
    EXPECT_GE(ContrastOfEdge(field), 3);
    EXPECT_GE(ContrastOfEdge(list), 3);
}

TEST_P(LookTest, ADefaultButtonIsFilledAndItsTextCanBeRead) {
    QPushButton button;
    button.setDefault(true);
    button.resize(120, 30);
    const QColor fill = button.grab().toImage().pixelColor(20, 15);
    const QPalette palette = QApplication::palette();
    EXPECT_EQ(fill, palette.color(QPalette::Highlight));
    EXPECT_GE(player::Contrast(Of(fill), Of(palette.color(QPalette::HighlightedText))), 4.5);
}

TEST_P(LookTest, ATextOfSeveralLinesShowsThatItHasTheKeyboard) {
    QWidget window;
    auto* text = new QPlainTextEdit(&window);
    auto* other = new QLineEdit(&window);
    window.show();
    QApplication::setActiveWindow(&window);
    const auto frame = [&] { return window.grab(text->geometry()).toImage().pixelColor(0, 40); };
    other->setFocus();
    const QColor without = frame();
    text->setFocus();
    EXPECT_EQ(frame(), QApplication::palette().color(QPalette::Highlight));
    EXPECT_NE(without, frame());
}

TEST_P(LookTest, MarksGrowWithTheText) {
    QCheckBox box;
    QFont large = box.font();
    large.setPointSizeF(large.pointSizeF() * 2);
    box.setFont(large);
    EXPECT_GE(box.style()->pixelMetric(QStyle::PM_IndicatorWidth, nullptr, &box),
              box.fontMetrics().height());
}

INSTANTIATE_TEST_SUITE_P(Themes, LookTest, testing::Values(Theme::Light, Theme::Dark),
                         [](const auto& given) { return given.param == Theme::Dark ? "Dark" : "Light"; });

class ScrollBarLook : public testing::Test {
  protected:
    ScrollBarLook() {
        ApplyTheme(Theme::System);
        bar_.resize(14, 200);
        bar_.setRange(0, 300);
        bar_.setPageStep(100);
    }
    QRect Part(QStyle::SubControl part) {
        QStyleOptionSlider option;
        option.initFrom(&bar_);
        option.orientation = Qt::Vertical;
        option.minimum = bar_.minimum();
        option.maximum = bar_.maximum();
        option.pageStep = bar_.pageStep();
        option.sliderPosition = bar_.value();
        return bar_.style()->subControlRect(QStyle::CC_ScrollBar, &option, part, &bar_);
    }
    QScrollBar bar_{Qt::Vertical};
};

TEST_F(ScrollBarLook, SliderIsAsLongAsItsShareOfThePage) {
    EXPECT_EQ(Part(QStyle::SC_ScrollBarSlider), QRect(0, 0, 14, 50));
}

TEST_F(ScrollBarLook, SliderEndsWhereTheBarEnds) {
    bar_.setValue(300);
    EXPECT_EQ(Part(QStyle::SC_ScrollBarSlider), QRect(0, 150, 14, 50));
}

TEST_F(ScrollBarLook, SliderOfAVeryLongPageCanStillBeTaken) {
    bar_.setRange(0, 1'000'000);
    EXPECT_EQ(Part(QStyle::SC_ScrollBarSlider).height(), 24);
}

TEST_F(ScrollBarLook, SliderFillsABarThatHasNothingToScroll) {
    bar_.setRange(0, 0);
    EXPECT_EQ(Part(QStyle::SC_ScrollBarSlider), QRect(0, 0, 14, 200));
}

TEST_F(ScrollBarLook, PagesLieBeforeAndBehindTheSlider) {
    bar_.setValue(150);
    EXPECT_EQ(Part(QStyle::SC_ScrollBarSubPage), QRect(0, 0, 14, 75));
    EXPECT_EQ(Part(QStyle::SC_ScrollBarAddPage), QRect(0, 125, 14, 75));
}

}  // namespace
}  // namespace fabula::qt
