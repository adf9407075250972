#include "player/panes/pane_keys.h"

#include <QKeyEvent>

namespace fabula::player {

PaneKey MeaningOf(const QKeyEvent& event) {
    if (event.matches(QKeySequence::Copy) || event.matches(QKeySequence::Cut)) return PaneKey::Copy;
    if (event.matches(QKeySequence::Paste)) return PaneKey::Paste;
    if (event.matches(QKeySequence::SelectAll)) return PaneKey::SelectAll;
    const bool plain = (event.modifiers() & ~(Qt::KeypadModifier | Qt::ShiftModifier)) == 0;
    const bool shift = (event.modifiers() & Qt::ShiftModifier) != 0;
    switch (event.key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            return PaneKey::Enter;
        case Qt::Key_Backspace:
            return plain ? PaneKey::Backspace : PaneKey::Other;
        case Qt::Key_Escape:
            return plain ? PaneKey::EraseLine : PaneKey::Other;
        case Qt::Key_Up:
            return plain && !shift ? PaneKey::Older : PaneKey::Move;
        case Qt::Key_Down:
            return plain && !shift ? PaneKey::Newer : PaneKey::Move;
        case Qt::Key_Left:
        case Qt::Key_Right:
        case Qt::Key_Home:
        case Qt::Key_End:
        case Qt::Key_PageUp:
        case Qt::Key_PageDown:
            return PaneKey::Move;
        default:
            break;
    }
    // Characters of the third level of a keyboard may come with Ctrl and Alt together, but never with one.
    const bool control = (event.modifiers() & Qt::ControlModifier) != 0;
    const bool alt = (event.modifiers() & Qt::AltModifier) != 0;
    const bool printable =
        !event.text().isEmpty() && event.text().at(0) >= QChar(' ') && event.text().at(0) != QChar(0x7F);
    return printable && control == alt ? PaneKey::Text : PaneKey::Other;
}

}  // namespace fabula::player
