#include "ide/editors/alt_guard.h"

#include <QComboBox>
#include <QLineEdit>
#include <QTest>

#include <gtest/gtest.h>

namespace fabula::test {
namespace {

TEST(AltGuard, ALetterWithAltThatChoosesNothingTypesNothing) {
    const ide::AltGuard guard(nullptr);
    QLineEdit line;
    QTest::keyClick(&line, Qt::Key_R, Qt::AltModifier);
    EXPECT_EQ(line.text(), "");
    QTest::keyClick(&line, Qt::Key_R);
    EXPECT_EQ(line.text(), "r");
}

TEST(AltGuard, ALetterWithAltTypesNothingInAListThatIsTypedInto) {
    const ide::AltGuard guard(nullptr);
    QComboBox list;
    list.setEditable(true);
    QTest::keyClick(&list, Qt::Key_R, Qt::AltModifier);
    EXPECT_EQ(list.currentText(), "");
    QTest::keyClick(&list, Qt::Key_R);
    EXPECT_EQ(list.currentText(), "r");
}

TEST(AltGuard, AThirdLevelOfTheKeyboardIsTyped) {
    const ide::AltGuard guard(nullptr);
    QLineEdit line;
    QTest::sendKeyEvent(QTest::Click, &line, Qt::Key_Q, "@", Qt::ControlModifier | Qt::AltModifier);
    EXPECT_EQ(line.text(), "@");
}

}  // namespace
}  // namespace fabula::test
