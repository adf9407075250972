#include "ide/editors/text_edit.h"

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>

#include <gtest/gtest.h>

namespace fabula::test {
namespace {

void CopyToClipboard(const QString& text) {
    QApplication::clipboard()->setText(text);
}

TEST(PastedText, IsWithoutControlCharactersInALine) {
    QLineEdit line("a lamp");
    ide::DropPastedControls(line);
    CopyToClipboard(QString("\u0001brass\u001B ") + QChar(0x7F));
    line.home(false);
    line.paste();
    EXPECT_EQ(line.text(), "brass a lamp");
    EXPECT_EQ(line.cursorPosition(), 6);
    EXPECT_TRUE(line.isModified());
}

TEST(PastedText, ComesNotBackWithItsControlCharactersByUndo) {
    QLineEdit line("a lamp");
    ide::DropPastedControls(line);
    CopyToClipboard(QString("\u0001brass "));
    line.home(false);
    line.paste();
    line.undo();
    EXPECT_EQ(line.text(), "brass a lamp");
}

TEST(PastedText, KeepsTabsAndLineEndsInATextOfSeveralLines) {
    ide::TextEdit edit;
    CopyToClipboard(QString("one\ttwo\nth\u0007ree"));
    edit.paste();
    EXPECT_EQ(edit.toPlainText(), "one\ttwo\nthree");
}

}  // namespace
}  // namespace fabula::test
