#include "authoring/fields/texts/text_field.h"

#include <gtest/gtest.h>

namespace fabula::authoring {
namespace {

TEST(ToEdited, LineEndMarkersAreLineFeeds) {
    EXPECT_EQ(ToEdited("one\u008Ctwo"), "one\ntwo");
    EXPECT_EQ(ToEdited("one\r\ntwo"), "one\ntwo");
}

TEST(ToEdited, TheBlankOfNoValueIsEmpty) {
    EXPECT_EQ(ToEdited(" "), "");
    EXPECT_EQ(ToEdited("  "), "  ");
}

TEST(ToStored, LineEndsAreMarkers) {
    EXPECT_EQ(ToStored("one\ntwo\r\nthree"), "one\u008Ctwo\u008Cthree");
}

TEST(ToStored, AnEmptyTextIsTheBlankOfNoValue) {
    EXPECT_EQ(ToStored(""), " ");
}

}  // namespace
}  // namespace fabula::authoring
