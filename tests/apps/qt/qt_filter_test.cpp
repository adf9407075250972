#include <gtest/gtest.h>

#include "qt/qt_dialogs.h"

namespace fabula::qt {
namespace {

TEST(QtFilter, PutsThePatternInBrackets) {
    EXPECT_EQ(QtFilter("Fabula Save File|*.sav"), "Fabula Save File (*.sav)");
}

TEST(QtFilter, ANameThatTellsItsPatternDoesNotTellItTwice) {
    EXPECT_EQ(QtFilter("Text files (*.txt)|*.txt"), "Text files (*.txt)");
}

TEST(QtFilter, WithoutAPatternShowsAllFiles) {
    EXPECT_EQ(QtFilter("Anything"), "Anything (*)");
}

TEST(QtFilter, TakesSeveralPairsAndSeveralPatterns) {
    EXPECT_EQ(QtFilter("Picture Files(jpg,gif,bmp)|*.jpg;*.gif;*.bmp|All Files|*.*"),
              "Picture Files(jpg,gif,bmp) (*.jpg *.gif *.bmp);;All Files (*)");
}

}  // namespace
}  // namespace fabula::qt
