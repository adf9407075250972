#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QMenu>
#include <QTextDocumentFragment>

#include "player/panes/text_pane.h"
#include "qt/strings.h"

// What the player does with keys, mouse and menu.

namespace fabula::player {

void TextPane::BackToInput() {
    QTextCursor caret = End();
    if (!shownCursor_.isEmpty())
        caret.movePosition(QTextCursor::Left, QTextCursor::MoveAnchor,
                           static_cast<int>(shownCursor_.size()));
    setTextCursor(caret);
    ensureCursorVisible();
}

bool TextPane::FindText(const QString& text, bool backwards) {
    Settle();
    return find(text, backwards ? QTextDocument::FindBackward : QTextDocument::FindFlags());
}

bool TextPane::event(QEvent* event) {
    Settle();
    // What is no key of the pane stays a key of the window, such as that of Undo.
    if (event->type() == QEvent::ShortcutOverride &&
        MeaningOf(*static_cast<QKeyEvent*>(event)) == PaneKey::Other) {
        event->ignore();
        return true;
    }
    return QTextEdit::event(event);
}

bool TextPane::viewportEvent(QEvent* event) {
    Settle();
    return QTextEdit::viewportEvent(event);
}

void TextPane::keyPressEvent(QKeyEvent* event) {
    const PaneKey key = MeaningOf(*event);
    const bool inText = !textCursor().atEnd() && textCursor().position() < inputStart_.position();
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
