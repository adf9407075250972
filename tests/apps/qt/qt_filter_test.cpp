#include <gtest/gtest.h>

#include "qt/dialogs.h"

namespace fabula::qt {
namespace {

TEST(QtFilter, PutsThePatternInBrackets) {
    EXPECT_EQ(QtFilter("Fabula Save File|*.sav"), "Fabula Save File (*.sav)");
}

TEST(QtFilter, WithoutAPatternShowsAllFiles) {
    EXPECT_EQ(QtFilter("Anything"), "Anything (*)");
}

}  // namespace
}  // namespace fabula::qt
