#include "player/panes/text_pane.h"

#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QMenu>
#include <QPainter>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextDocumentFragment>
#include <QTextFrame>
#include <algorithm>

#include "qt/strings.h"

namespace fabula::player {

namespace {

constexpr int kStyleProperty = QTextFormat::UserProperty + 1;
constexpr int kMargin = 18;
constexpr int kMarkWidth = 3;
constexpr int kDefaultPoints = 12;
constexpr std::chrono::milliseconds kFlashTime{320};
constexpr std::size_t kMostFlashing = 200;

/// Lines stand a little apart, for long texts.
QTextBlockFormat LineFormat() {
    constexpr double kPercent = 118;
    QTextBlockFormat format;
    format.setLineHeight(kPercent, QTextBlockFormat::ProportionalHeight);
    return format;
}

QColor ToColour(text::Rgb rgb) {
    return QColor(rgb.red, rgb.green, rgb.blue);
}

}  // namespace

TextPane::TextPane(platform::Timers& timers, PaneHandlers handlers, QWidget* parent)
    : QTextEdit(parent), handlers_(std::move(handlers)), flash_(timers, [this] { ToggleFlash(); }) {
    setUndoRedoEnabled(false);
    setAcceptDrops(false);
    setAcceptRichText(false);
    setTabChangesFocus(true);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setCursorWidth(2);
    setAccessibleName(tr("Game text"));
    setAccessibleDescription(tr("The text of the game. Type a command at its end and press Enter."));
    StartGame({});
}

void TextPane::StartGame(const TextLook& look) {
    look_ = look;
    styles_.clear();
    flashing_.clear();
    clear();
    QTextCursor(document()).setBlockFormat(LineFormat());
    turnStart_ = pageStart_ = inputStart_ = 0;
    inputShown_ = false;
    ApplyColours();
    SetZoom(zoom_);
}

void TextPane::ApplyColours() {
    colours_ = TextColours(look_.style.paper, look_.style.ink, look_.page);
    QPalette shown = palette();
    shown.setColor(QPalette::Base, ToColour(colours_.Base()));
    shown.setColor(QPalette::Text, ToColour(colours_.Text()));
    setPalette(shown);
}

void TextPane::SetPage(Page page) {
    look_.page = page;
    ApplyColours();
    Restyle();
}

void TextPane::SetZoom(int percent) {
    const Reading place = Place();
    zoom_ = percent;
    QFont shown = look_.family.isEmpty() ? QApplication::font() : QFont(look_.family);
    const int points = look_.style.fontSize > 0 ? look_.style.fontSize : kDefaultPoints;
    shown.setPointSizeF(points * percent / 100.0);
    setFont(shown);
    Restyle();
    FitMargins();
    Return(place);
}

void TextPane::SetFlashing(bool allowed) {
    flashAllowed_ = allowed;
    flashOn_ = false;
    setExtraSelections({});
    if (allowed && !flashing_.empty()) flash_.Start(kFlashTime);
    if (!allowed) flash_.Stop();
}

QTextCursor TextPane::End() const {
    QTextCursor end(document());
    end.movePosition(QTextCursor::End);
    return end;
}

QTextCharFormat TextPane::FormatOf(const RunStyle& run) const {
    QTextCharFormat format;
    const engine::TextStyle& style = run.style;
    if (run.family != look_.family && !run.family.isEmpty()) format.setFontFamilies({run.family});
    if (style.fontSize != look_.style.fontSize && style.fontSize > 0)
        format.setFontPointSize(style.fontSize * zoom_ / 100.0);
    if (style.bright) format.setFontWeight(QFont::Bold);
    const TextColours::Run colours = colours_.Of(style);
    if (colours.ink != colours_.Text()) format.setForeground(ToColour(colours.ink));
    if (colours.paper) format.setBackground(ToColour(*colours.paper));
    return format;
}

QTextCharFormat TextPane::Format(const RunStyle& run) {
    if (run == RunStyle{look_.style, look_.family}) return {};
    QTextCharFormat format = FormatOf(run);
    const auto known = std::find(styles_.begin(), styles_.end(), run);
    format.setProperty(kStyleProperty, static_cast<int>(known - styles_.begin()));
    if (known == styles_.end()) styles_.push_back(run);
    return format;
}

void TextPane::Restyle() {
    if (styles_.empty()) return;
    std::vector<std::pair<QTextCursor, QTextCharFormat>> changes;
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        for (auto part = block.begin(); !part.atEnd(); ++part) {
            const QTextFragment fragment = part.fragment();
            const QVariant index = fragment.charFormat().property(kStyleProperty);
            if (!index.isValid()) continue;
            QTextCursor run(document());
            run.setPosition(fragment.position());
            run.setPosition(fragment.position() + fragment.length(), QTextCursor::KeepAnchor);
            QTextCharFormat format = FormatOf(styles_[static_cast<std::size_t>(index.toInt())]);
            format.setProperty(kStyleProperty, index);
            changes.emplace_back(run, format);
        }
    }
    for (auto& [run, format] : changes)
        run.setCharFormat(format);
}

void TextPane::Write(const QString& run, const engine::TextStyle& style, const QString& family) {
    inputShown_ = false;
    QTextCursor end = End();
    const int start = end.position();
    end.insertText(run, Format({style, family}));
    if (!style.flash) return;
    flashing_.emplace_back(start, end.position());
    if (flashing_.size() > kMostFlashing) flashing_.erase(flashing_.begin());
    if (flashAllowed_ && !flash_.IsRunning()) flash_.Start(kFlashTime);
}

void TextPane::EndLine() {
    inputShown_ = false;
    End().insertBlock(LineFormat(), QTextCharFormat());
}

void TextPane::ClearPage(int paper, int ink) {
    inputShown_ = false;
    look_.style.paper = paper;
    look_.style.ink = ink;
    ApplyColours();
    flashing_.clear();
    if (!document()->isEmpty()) {
        QTextCursor end = End();
        if (!end.atBlockStart()) end.insertBlock(LineFormat(), QTextCharFormat());
        end.insertBlock(LineFormat(), QTextCharFormat());
    }
    pageStart_ = turnStart_ = End().position();
}

void TextPane::ShowInput(const QString& typed, const QString& cursor) {
    QTextCursor end = End();
    if (!inputShown_) inputStart_ = end.position();
    inputShown_ = true;
    // Only what differs is replaced, so that a screen reader hears the one key and not the whole line.
    shownCursor_ = cursor;
    const QString shown = typed + cursor;
    QTextCursor input(document());
    input.setPosition(inputStart_);
    input.setPosition(end.position(), QTextCursor::KeepAnchor);
    const QString before = input.selectedText();
    const auto same = std::mismatch(before.begin(), before.end(), shown.begin(), shown.end()).first;
    const int kept = static_cast<int>(same - before.begin());
    input.setPosition(inputStart_ + kept);
    input.setPosition(end.position(), QTextCursor::KeepAnchor);
    input.insertText(shown.mid(kept), QTextCharFormat());
    QTextCursor caret(document());
    caret.setPosition(inputStart_ + static_cast<int>(typed.size()));
    const int scrolled = verticalScrollBar()->value();
    setTextCursor(caret);
    KeepPage();
    if (scrolled > verticalScrollBar()->value()) verticalScrollBar()->setValue(scrolled);
}

void TextPane::EndInput(const QString& typed) {
    ShowInput(typed, {});
    if (!typed.isEmpty()) turnStart_ = End().block().position();
    EndLine();
}

int TextPane::BlockTop(int position) const {
    const QTextBlock block = document()->findBlock(position);
    return static_cast<int>(document()->documentLayout()->blockBoundingRect(block).top());
}

void TextPane::KeepPage() {
    // A page that does not fill the pane begins at its top all the same, with empty space below.
    QScrollBar& bar = *verticalScrollBar();
    if (pageStart_ > 0) bar.setMaximum(std::max(bar.maximum(), BlockTop(pageStart_) - kMargin / 2));
}

int TextPane::TurnScroll() const {
    return std::min(verticalScrollBar()->maximum(), BlockTop(turnStart_) - kMargin / 2);
}

void TextPane::ShowTurn() {
    KeepPage();
    verticalScrollBar()->setValue(TurnScroll());
    viewport()->update();
}

TextPane::Reading TextPane::Place() const {
    return {verticalScrollBar()->value() >= TurnScroll(), cursorForPosition(QPoint(0, 0)).position()};
}

void TextPane::Return(const Reading& place) {
    if (place.latest) return ShowTurn();
    KeepPage();
    QTextCursor top(document());
    top.setPosition(place.position);
    verticalScrollBar()->setValue(verticalScrollBar()->value() + cursorRect(top).top());
}

void TextPane::FitMargins() {
    int side = kMargin;
    if (look_.columns > 0) {
        const int widest = QFontMetrics(font()).averageCharWidth() * look_.columns;
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
    if (turnStart_ == 0) return;
    const int scrolled = verticalScrollBar()->value();
    const int top = BlockTop(turnStart_) - scrolled;
    const QRectF end = document()->documentLayout()->blockBoundingRect(document()->lastBlock());
    const int bottom = static_cast<int>(end.bottom()) - scrolled;
    const int side = static_cast<int>(document()->rootFrame()->frameFormat().leftMargin());
    QPainter painter(viewport());
    QColor mark = palette().color(QPalette::Highlight);
    mark.setAlpha(150);
    painter.fillRect(side - kMarkWidth * 3, top, kMarkWidth, bottom - top, mark);
}

void TextPane::ToggleFlash() {
    flashOn_ = !flashOn_;
    QList<ExtraSelection> selections;
    for (const auto& [start, end] : flashing_) {
        ExtraSelection selection;
        selection.cursor = QTextCursor(document());
        selection.cursor.setPosition(start);
        const QTextCharFormat format = selection.cursor.charFormat();
        selection.cursor.setPosition(end, QTextCursor::KeepAnchor);
        selection.format.setForeground(palette().color(QPalette::Base));
        selection.format.setBackground(palette().color(QPalette::Text));
        if (flashOn_) selections.append(selection);
    }
    setExtraSelections(selections);
    if (!flashing_.empty()) flash_.Start(kFlashTime);
}

void TextPane::BackToInput() {
    QTextCursor caret = End();
    if (!shownCursor_.isEmpty())
        caret.movePosition(QTextCursor::Left, QTextCursor::MoveAnchor,
                           static_cast<int>(shownCursor_.size()));
    setTextCursor(caret);
    ensureCursorVisible();
}

void TextPane::keyPressEvent(QKeyEvent* event) {
    const PaneKey key = MeaningOf(*event);
    const bool inText = !textCursor().atEnd() && textCursor().position() < inputStart_;
    switch (key) {
        case PaneKey::Text:
            BackToInput();
            return handlers_.type(qt::FromQt(event->text()));
        case PaneKey::Older:
        case PaneKey::Newer:
            if (inText) return QTextEdit::keyPressEvent(event);
            [[fallthrough]];
        case PaneKey::Enter:
        case PaneKey::Backspace:
        case PaneKey::EraseLine:
            BackToInput();
            return handlers_.press(key);
        case PaneKey::Copy:
            return Copy();
        case PaneKey::Paste:
            return Paste();
        case PaneKey::SelectAll:
            return selectAll();
        case PaneKey::Move:
            return QTextEdit::keyPressEvent(event);
        case PaneKey::Other:
            return event->ignore();
    }
}

void TextPane::inputMethodEvent(QInputMethodEvent* event) {
    const QString committed = event->commitString();
    event->setCommitString({});
    BackToInput();
    QTextEdit::inputMethodEvent(event);
    if (!committed.isEmpty()) handlers_.type(qt::FromQt(committed));
}

void TextPane::mousePressEvent(QMouseEvent* event) {
    // A press on a selection would begin to drag it, and a drag may take the text away.
    if (event->button() == Qt::LeftButton && (event->modifiers() & Qt::ShiftModifier) == 0)
        setTextCursor(cursorForPosition(event->pos()));
    QTextEdit::mousePressEvent(event);
}

void TextPane::wheelEvent(QWheelEvent* event) {
    // With Ctrl the window zooms.
    if ((event->modifiers() & Qt::ControlModifier) != 0) return event->ignore();
    QTextEdit::wheelEvent(event);
}

void TextPane::contextMenuEvent(QContextMenuEvent* event) {
    QMenu menu(this);
    QAction* copying = menu.addAction(tr("&Copy"), this, [this] { Copy(); });
    copying->setEnabled(textCursor().hasSelection());
    menu.addAction(tr("&Paste"), this, [this] { Paste(); });
    menu.addAction(tr("Select &All"), this, [this] { selectAll(); });
    menu.exec(event->globalPos());
}

void TextPane::Copy() {
    if (textCursor().hasSelection())
        QApplication::clipboard()->setText(textCursor().selection().toPlainText());
}

void TextPane::Paste() {
    const QString pasted = QApplication::clipboard()->text().section('\n', 0, 0).simplified();
    if (pasted.isEmpty()) return;
    BackToInput();
    handlers_.type(qt::FromQt(pasted));
}

}  // namespace fabula::player
