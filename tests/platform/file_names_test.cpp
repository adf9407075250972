#include "platform/file_names.h"

#include <fstream>

#include <gtest/gtest.h>

#include "support/temp_folder.h"

namespace fabula::platform {
namespace {

TEST(SafeFileName, KeepsAnOrdinaryName) {
    EXPECT_EQ(SafeFileName("The Lighthouse 2"), "The Lighthouse 2");
}

TEST(SafeFileName, CannotLeadElsewhere) {
    EXPECT_EQ(SafeFileName("../../etc"), "_.._etc");
    EXPECT_EQ(SafeFileName("a\\b:c\n"), "a_b_c_");
}

TEST(SafeFileName, IsNeverEmpty) {
    EXPECT_EQ(SafeFileName(""), "Untitled");
    EXPECT_EQ(SafeFileName(" .. "), "Untitled");
}

TEST(SafeFileName, IsCutAt64Bytes) {
    EXPECT_EQ(SafeFileName(std::string(500, 'x')), std::string(64, 'x'));
}

TEST(PlaceCode, IsTheSameAtEveryStart) {
    EXPECT_EQ(PlaceCode("/nowhere/game.fbd"), "68d7353a8f1ba5e9");
}

TEST(PlaceCode, DiffersByThePlace) {
    EXPECT_NE(PlaceCode("/nowhere/game.fbd"), PlaceCode("/elsewhere/game.fbd"));
}

TEST(PlaceCode, OfALinkIsThatOfItsFile) {
    const test::TempFolder folder;
    std::ofstream(folder / "game.fbd") << "x";
    std::filesystem::create_symlink(folder / "game.fbd", folder / "link.fbd");
    EXPECT_EQ(PlaceCode(folder / "link.fbd"), PlaceCode(folder / "game.fbd"));
}

}  // namespace
}  // namespace fabula::platform
