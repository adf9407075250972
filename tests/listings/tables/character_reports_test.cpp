#include <string>

#include <gtest/gtest.h>

#include "listings/listed_adventure.h"
#include "text/encoding/utf8.h"

namespace fabula::listings {
namespace {

using store::TableNum;

class CharacterReports : public testing::Test {
  protected:
    CharacterReports() { Empty(*adventure_, TableNum::Characters); }

    void Character(int set, int number, std::string name = "Runes") {
        AddRecord(*adventure_, TableNum::Characters,
                  {{"charkey", std::int64_t{set * 1000 + number}},
                   {"charset", "SET 000" + std::to_string(set)},
                   {"charsetnum", std::int64_t{set}},
                   {"charnum", std::int64_t{number}},
                   {"charsetname", std::move(name)},
                   {"charvals", std::string("255 129 129 129 129 129 129 255")}});
    }

    test::OpenedAdventure adventure_;
};

TEST_F(CharacterReports, GroupsOfTheDefaultSetStandUnderTheirHeadings) {
    for (const int number : {0, 65, 130, 150})
        Character(0, number, "Default");
    const std::string listed = Listed(*adventure_, "character-sets");
    std::size_t at = 0;
    for (const char* heading :
         {"SET 0000, Name: Default", "SHADES (0-15)", "DEFAULT CHARACTER SET (32-127) NOT MODIFIABLE",
          "DEFAULT SPECIAL CHARACTERS (128-143) NOT MODIFIABLE", "UDGs (144 to 164)",
          "QSHADE Characters (1-255)"}) {
        at = listed.find(heading, at);
        ASSERT_NE(at, std::string::npos) << heading;
    }
}

TEST_F(CharacterReports, SetAboveZeroHasOneHeading) {
    Character(3, 65);
    EXPECT_TRUE(Listed(*adventure_, "character-sets")
                    .ends_with("SET 0003 (32-127), Name: Runes\n"
                               "\u284F\u2809\u2809\u28B9\n"
                               "\u28C7\u28C0\u28C0\u28F8\n"
                               "65\n"
                               "\n"));
}

TEST_F(CharacterReports, EachCharacterIsDrawnAboveItsNumber) {
    Character(1, 65);
    Character(1, 66);
    const std::string listed = Listed(*adventure_, "character-sets");
    EXPECT_NE(listed.find("\u284F\u2809\u2809\u28B9 \u284F\u2809\u2809\u28B9\n"), std::string::npos);
    EXPECT_NE(listed.find("\n65   66\n"), std::string::npos);
}

TEST_F(CharacterReports, FullListingTellsSetNameNumberSignAndValues) {
    Character(1, 65);
    EXPECT_EQ(Behind(Listed(*adventure_, "character-sets-full"), "---- "),
              "   1 Runes                  65   A  255 129 129 129 129 129 129 255\n");
}

TEST_F(CharacterReports, ValuesStandUnderTheirHeading) {
    Character(1, 65);
    const std::string listed = Listed(*adventure_, "character-sets-full");
    const std::string rule = listed.substr(listed.find("---- "));
    EXPECT_EQ(rule.find(std::string(32, '-')), Behind(listed, "---- ").find("255"));
}

}  // namespace
}  // namespace fabula::listings
