#include "qt/look/look_shapes.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOption>
#include <algorithm>

namespace fabula::qt {
namespace {

constexpr double kRound = 4;
constexpr double kRoundOfTick = 0.16;  ///< of its side: a rounder one would pass for a dot
constexpr double kFocusWidth = 2;
constexpr double kRingWidth = 1.4;  ///< a thinner one fades between the points of the screen

// How much of the text's colour is in an outline. Half of it has a contrast of three to one in both themes.
constexpr double kOutline = 0.5;
constexpr double kSoftOutline = 0.3;
constexpr double kFaintOutline = 0.2;

QColor Mixed(const QColor& from, const QColor& to, double share) {
    const auto mix = [share](int a, int b) { return static_cast<int>(a + (b - a) * share); };
    return {mix(from.red(), to.red()), mix(from.green(), to.green()), mix(from.blue(), to.blue())};
}

/// The colour of an outline with this share of the text's colour; that of a disabled control is faint.
QColor Outline(const QStyleOption& option, double share) {
    const bool enabled = option.state & QStyle::State_Enabled;
    return Mixed(option.palette.color(QPalette::Active, QPalette::Window),
                 option.palette.color(QPalette::Active, QPalette::WindowText),
                 enabled ? share : kFaintOutline);
}

bool Has(const QStyleOption& option, QStyle::StateFlag flag) {
    return option.state & flag;
}

/// A rectangle with round corners, its line within `rect`.
void DrawBox(QPainter& painter, const QRect& rect, const QColor& fill, const QColor& line, double width = 1,
             double round = kRound) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(fill);
    painter.setPen(QPen(line, width));
    const double inset = width / 2;
    painter.drawRoundedRect(QRectF(rect).adjusted(inset, inset, -inset, -inset), round, round);
    painter.restore();
}

/// A box in the accent's colour while it has the keyboard.
void DrawInput(QPainter& painter, const QStyleOption& option, const QColor& fill) {
    if (Has(option, QStyle::State_HasFocus) && Has(option, QStyle::State_Enabled))
        return DrawBox(painter, option.rect, fill, option.palette.color(QPalette::Highlight), kFocusWidth);
    DrawBox(painter, option.rect, fill, Outline(option, kOutline));
}

/// The largest square in the middle of a rectangle.
QRect SquareIn(const QRect& rect) {
    const int side = std::min(rect.width(), rect.height());
    QRect square(0, 0, side, side);
    square.moveCenter(rect.center());
    return square;
}

/// The fill and the line of a mark that is set or not.
struct MarkColours {
    QColor fill;
    QColor line;
    QColor sign;
};

MarkColours ColoursOfMark(const QStyleOption& option, bool set) {
    const QColor base = option.palette.color(QPalette::Base);
    if (!Has(option, QStyle::State_Enabled)) {
        const QColor faint = Outline(option, kFaintOutline);
        return {option.palette.color(QPalette::Window), faint, Outline(option, kOutline)};
    }
    const QColor accent = option.palette.color(QPalette::Highlight);
    if (set) return {accent, accent, option.palette.color(QPalette::HighlightedText)};
    const bool pointedAt = Has(option, QStyle::State_MouseOver);
    return {base, pointedAt ? accent : Outline(option, kOutline), accent};
}

}  // namespace

void DrawTick(QPainter& painter, const QStyleOption& option) {
    const bool partly = Has(option, QStyle::State_NoChange);
    const bool set = partly || Has(option, QStyle::State_On);
    const MarkColours colours = ColoursOfMark(option, set);
    const QRect box = SquareIn(option.rect).adjusted(1, 1, -1, -1);
    DrawBox(painter, box, colours.fill, colours.line, 1, kRoundOfTick * box.width());
    if (!set) return;
    const auto at = [&](double x, double y) {
        return QPointF(box.left() + x * box.width(), box.top() + y * box.height());
    };
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(colours.sign, box.width() / 7.0, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const QPointF tick[] = {at(0.24, 0.54), at(0.43, 0.72), at(0.76, 0.32)};
    const QPointF dash[] = {at(0.27, 0.5), at(0.73, 0.5)};
    if (partly) {
        painter.drawPolyline(dash, 2);
    } else {
        painter.drawPolyline(tick, 3);
    }
    painter.restore();
}

void DrawDot(QPainter& painter, const QStyleOption& option) {
    const bool set = Has(option, QStyle::State_On);
    const MarkColours colours = ColoursOfMark(option, set);
    const QRectF ring = QRectF(SquareIn(option.rect)).adjusted(1.5, 1.5, -1.5, -1.5);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(colours.fill);
    painter.setPen(QPen(colours.line, kRingWidth));
    painter.drawEllipse(ring);
    if (set) {
        painter.setBrush(colours.sign);
        painter.setPen(Qt::NoPen);
        painter.drawEllipse(ring.center(), ring.width() / 5, ring.width() / 5);
    }
    painter.restore();
}

void DrawButton(QPainter& painter, const QStyleOptionButton& option, bool isDefault) {
    const QColor accent = option.palette.color(QPalette::Highlight);
    QColor fill = isDefault ? accent : option.palette.color(QPalette::Button);
    const bool down = option.state & (QStyle::State_Sunken | QStyle::State_On);
    if (down) {
        fill = Mixed(fill, option.palette.color(QPalette::Shadow), 0.2);
    } else if (Has(option, QStyle::State_MouseOver) && Has(option, QStyle::State_Enabled)) {
        fill = Mixed(fill, option.palette.color(QPalette::ButtonText), 0.08);
    }
    const bool focus = Has(option, QStyle::State_HasFocus) && Has(option, QStyle::State_Enabled);
    if (!focus)
        return DrawBox(painter, option.rect, fill, isDefault ? fill : Outline(option, kSoftOutline));
    DrawBox(painter, option.rect, fill, accent, kFocusWidth);
    // A filled button would hide a line in the same colour.
    if (isDefault)
        DrawBox(painter, option.rect.adjusted(2, 2, -2, -2), Qt::transparent,
                option.palette.color(QPalette::HighlightedText));
}

void DrawField(QPainter& painter, const QStyleOptionFrame& option) {
    const bool readOnly = Has(option, QStyle::State_ReadOnly);
    DrawInput(painter, option, option.palette.color(readOnly ? QPalette::Window : QPalette::Base));
}

void DrawList(QPainter& painter, const QStyleOptionComboBox& option, const QRect& arrow) {
    DrawInput(painter, option, option.palette.color(option.editable ? QPalette::Base : QPalette::Button));
    const double half = std::min(option.fontMetrics.height() / 4.0, arrow.width() / 2.0 - 3);
    const QPointF middle = QRectF(arrow).center();
    const QPointF sign[] = {middle + QPointF(-half, -half / 2), middle + QPointF(0, half / 2),
                            middle + QPointF(half, -half / 2)};
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(
        QPen(option.palette.color(QPalette::ButtonText), 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(sign, 3);
    painter.restore();
}

void DrawFrame(QPainter& painter, const QStyleOption& option, const QColor& fill) {
    if (Has(option, QStyle::State_HasFocus) && Has(option, QStyle::State_Enabled))
        return DrawInput(painter, option, fill);
    DrawBox(painter, option.rect, fill, Outline(option, kSoftOutline));
}

void DrawHeader(QPainter& painter, const QStyleOption& option) {
    const bool pointedAt = Has(option, QStyle::State_MouseOver) && Has(option, QStyle::State_Enabled);
    const QColor fill = option.palette.color(QPalette::Button);
    painter.fillRect(option.rect,
                     pointedAt ? Mixed(fill, option.palette.color(QPalette::ButtonText), 0.08) : fill);
    painter.save();
    painter.setPen(Outline(option, kFaintOutline));
    painter.drawLine(option.rect.bottomLeft(), option.rect.bottomRight());
    painter.drawLine(option.rect.topRight(), option.rect.bottomRight());
    painter.restore();
}

void DrawLineBelow(QPainter& painter, const QStyleOption& option) {
    const QRect line(option.rect.left(), option.rect.bottom(), option.rect.width(), 1);
    painter.fillRect(line, Mixed(option.palette.color(QPalette::Window),
                                 option.palette.color(QPalette::WindowText), kFaintOutline / 2));
}

void DrawBar(QPainter& painter, const QStyleOption& option) {
    painter.fillRect(option.rect, option.palette.color(QPalette::Window));
    DrawLineBelow(painter, option);
}

void DrawScrollBar(QPainter& painter, const QStyleOptionComplex& option, const QRect& slider) {
    painter.fillRect(option.rect, option.palette.color(QPalette::Window));
    const bool held = option.activeSubControls & QStyle::SC_ScrollBarSlider;
    const QRect inner = slider.adjusted(3, 3, -3, -3);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Outline(option, held ? kOutline : kSoftOutline));
    const double round = std::min(inner.width(), inner.height()) / 2.0;
    painter.drawRoundedRect(inner, round, round);
    painter.restore();
}

}  // namespace fabula::qt
