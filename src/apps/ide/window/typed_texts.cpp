#include "ide/window/typed_texts.h"

#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextDocument>

#include "qt/strings.h"

namespace fabula::ide {
namespace {

/// Fields in parts of Qt's own are called by what they are a part of.
QString NameOf(const QWidget& field) {
    if (!field.accessibleName().isEmpty()) return field.accessibleName();
    const bool isPart = field.objectName().isEmpty() || field.objectName().startsWith("qt_");
    return isPart && field.parentWidget() != nullptr ? field.parentWidget()->objectName()
                                                     : field.objectName();
}

void Add(std::string& texts, const QWidget& field, bool modified, const QString& text) {
    // A dialog may have put in order what was typed, and its field then counts as filled by the program.
    const bool mayBeTyped = modified || qobject_cast<const QDialog*>(field.window()) != nullptr;
    if (!field.isVisible() || !mayBeTyped || text.isEmpty()) return;
    texts.append("[").append(qt::FromQt(field.window()->windowTitle()));
    texts.append(": ").append(qt::FromQt(NameOf(field))).append("]\n");
    texts.append(qt::FromQt(text)).append("\n\n");
}

}  // namespace

std::string TypedTexts() {
    std::string texts;
    for (const QWidget* window : QApplication::topLevelWidgets()) {
        for (const QLineEdit* field : window->findChildren<QLineEdit*>()) {
            if (field->window() == window && !field->isReadOnly())
                Add(texts, *field, field->isModified(), field->text());
        }
        for (const QPlainTextEdit* field : window->findChildren<QPlainTextEdit*>()) {
            if (field->window() == window && !field->isReadOnly())
                Add(texts, *field, field->document()->isModified(), field->toPlainText());
        }
    }
    return texts;
}

}  // namespace fabula::ide
