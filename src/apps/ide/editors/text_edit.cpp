#include "ide/editors/text_edit.h"

#include <QLineEdit>
#include <QMimeData>

namespace fabula::ide {

QString WithoutControls(QString text) {
    return text.removeIf([](QChar letter) {
        const bool isKept = letter == '\t' || letter == '\n' || letter == '\r';
        return (letter < ' ' && !isKept) || letter == QChar(0x7F);
    });
}

void DropPastedControls(QLineEdit& line) {
    QObject::connect(&line, &QLineEdit::textEdited, &line, [&line](const QString& text) {
        const QString clean = WithoutControls(text);
        if (clean == text) return;
        const auto before = WithoutControls(text.left(line.cursorPosition())).size();
        // Nothing to go back to: an undo would bring the control characters in again.
        line.setText(clean);
        line.setModified(true);
        line.setCursorPosition(static_cast<int>(before));
    });
}

void TextEdit::insertFromMimeData(const QMimeData* source) {
    QMimeData pasted;
    pasted.setText(WithoutControls(source->text()));
    QPlainTextEdit::insertFromMimeData(&pasted);
}

}  // namespace fabula::ide
