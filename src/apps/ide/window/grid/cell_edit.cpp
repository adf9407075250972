#include "ide/window/grid/cell_edit.h"

#include <QKeyEvent>

namespace fabula::ide {

CellEdit::CellEdit(const QString& text, Events events) : QLineEdit(text), events_(std::move(events)) {
    setObjectName("cell");
    setFrame(false);
    setAutoFillBackground(true);
}

void CellEdit::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            return events_.stored();
        case Qt::Key_Escape:
            return events_.takenBack();
        default:
            return QLineEdit::keyPressEvent(event);
    }
}

}  // namespace fabula::ide
