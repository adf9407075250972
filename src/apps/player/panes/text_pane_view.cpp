#include <QAbstractTextDocumentLayout>
#include <QPainter>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextFrame>
#include <algorithm>

#include "player/panes/text_pane.h"

// What of the text is in sight: the latest turn, the page, the margins.

namespace fabula::player {

namespace {

constexpr int kMargin = 18;
constexpr int kMarkWidth = 3;

}  // namespace

int TextPane::BlockTop(int position) const {
    const QTextBlock block = document()->findBlock(position);
    return static_cast<int>(document()->documentLayout()->blockBoundingRect(block).top());
}

void TextPane::KeepPage() {
    // A page that does not fill the pane begins at its top all the same, with empty space below.
    QScrollBar& bar = *verticalScrollBar();
    const int page = pageStart_.position();
    if (page > 0) bar.setMaximum(std::max(bar.maximum(), BlockTop(page) - kMargin / 2));
}

int TextPane::TurnScroll() const {
    return std::min(verticalScrollBar()->maximum(), BlockTop(turnStart_.position()) - kMargin / 2);
}

void TextPane::ShowTurn() {
    Settle();
    KeepPage();
    verticalScrollBar()->setValue(TurnScroll());
    viewport()->update();
}

TextPane::Reading TextPane::Place() const {
    return {verticalScrollBar()->value() >= TurnScroll(), cursorForPosition(QPoint(0, 0))};
}

void TextPane::Return(const Reading& place) {
    if (place.latest) return ShowTurn();
    KeepPage();
    verticalScrollBar()->setValue(verticalScrollBar()->value() + cursorRect(place.top).top());
}

void TextPane::FitMargins() {
    int side = kMargin;
    const int columns = choice_.columns > 0 ? choice_.columns : look_.columns;
    if (columns > 0) {
        const int widest = QFontMetrics(font()).averageCharWidth() * columns;
        side = std::max(side, (viewport()->width() - widest) / 2);
    }
    QTextFrameFormat frame = document()->rootFrame()->frameFormat();
    if (frame.leftMargin() == side && frame.topMargin() == kMargin) return;
    frame.setMargin(kMargin);
    frame.setLeftMargin(side);
    frame.setRightMargin(side);
    document()->rootFrame()->setFrameFormat(frame);
}

void TextPane::resizeEvent(QResizeEvent* event) {
    const Reading place = Place();
    QTextEdit::resizeEvent(event);
    FitMargins();
    Return(place);
}

void TextPane::paintEvent(QPaintEvent* event) {
    QTextEdit::paintEvent(event);
    if (TurnStart() == 0) return;
    const int scrolled = verticalScrollBar()->value();
    const int top = BlockTop(TurnStart()) - scrolled;
    const QRectF end = document()->documentLayout()->blockBoundingRect(document()->lastBlock());
    const int bottom = static_cast<int>(end.bottom()) - scrolled;
    const int side = static_cast<int>(document()->rootFrame()->frameFormat().leftMargin());
    QPainter painter(viewport());
    QColor mark = palette().color(QPalette::Highlight);
    mark.setAlpha(150);
    painter.fillRect(side - kMarkWidth * 3, top, kMarkWidth, bottom - top, mark);
}

}  // namespace fabula::player
