#pragma once

#include <QRect>

class QColor;
class QPainter;
class QStyleOption;
class QStyleOptionButton;
class QStyleOptionComboBox;
class QStyleOptionComplex;
class QStyleOptionFrame;

namespace fabula::qt {

/// The shapes of the controls, drawn from what a style is told of them, in the colours of its palette.

void DrawTick(QPainter& painter, const QStyleOption& option);
void DrawDot(QPainter& painter, const QStyleOption& option);
/// A button; the default one is filled.
void DrawButton(QPainter& painter, const QStyleOptionButton& option, bool isDefault);
/// A line in which is typed; one that can only be read looks like the window.
void DrawField(QPainter& painter, const QStyleOptionFrame& option);
/// A list that opens, with its arrow in `arrow`.
void DrawList(QPainter& painter, const QStyleOptionComboBox& option, const QRect& arrow);
/// What stands around texts and tables, and between it and them.
void DrawFrame(QPainter& painter, const QStyleOption& option, const QColor& fill);
void DrawHeader(QPainter& painter, const QStyleOption& option);
/// A bar of tools, with a line below it.
void DrawBar(QPainter& painter, const QStyleOption& option);
void DrawLineBelow(QPainter& painter, const QStyleOption& option);
void DrawScrollBar(QPainter& painter, const QStyleOptionComplex& option, const QRect& slider);

}  // namespace fabula::qt
