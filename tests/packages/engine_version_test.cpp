#include "packages/engine_version.h"

#include <gtest/gtest.h>

namespace fabula::packages {
namespace {

/// What stands in a program's resources: the key, filling, the mark, a form number and the version.
std::string Resource(int major, int minor, int build, int revision) {
    std::string bytes = "MZ and so on";
    for (const char c : std::string("VS_VERSION_INFO"))
        bytes.append(1, c).append(1, '\0');
    bytes.append(2, '\0').append(2, '\0');
    bytes.append("\xBD\x04\xEF\xFE", 4).append("\0\0\1\0", 4);
    for (const int number : {minor, major, revision, build})
        bytes.append(1, static_cast<char>(number & 0xFF)).append(1, static_cast<char>(number >> 8));
    return bytes + "more";
}

TEST(FileVersion, IsReadFromTheResources) {
    EXPECT_EQ(FileVersion(Resource(6, 1, 300, 4)), "6.1.300.4");
    EXPECT_EQ(FileVersion(Resource(5, 9, 0, 0)), "5.9.0.0");
}

TEST(FileVersion, IsNoneWhereNothingTellsOfIt) {
    EXPECT_EQ(FileVersion(""), std::nullopt);
    EXPECT_EQ(FileVersion("\xBD\x04\xEF\xFE and more and more"), std::nullopt);
    const std::string cut = Resource(6, 0, 0, 0);
    EXPECT_EQ(FileVersion(cut.substr(0, cut.size() - 8)), std::nullopt);
}

TEST(MajorVersion, IsTheNumberInFront) {
    EXPECT_EQ(MajorVersion("6.1"), 6);
    EXPECT_EQ(MajorVersion("12"), 12);
    EXPECT_EQ(MajorVersion(""), 0);
    EXPECT_EQ(MajorVersion("x.1"), 0);
}

}  // namespace
}  // namespace fabula::packages
