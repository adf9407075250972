#include "packages/read_me.h"

#include <gtest/gtest.h>

namespace fabula::packages {
namespace {

GameFacts LampReadMe() {
    GameFacts facts;
    facts.name = "The Lamp";
    facts.author = "A. Nother";
    facts.description = "A lamp.\nA cellar.";
    facts.contact = "mail@example.org";
    return facts;
}

TEST(ReadMeText, HasItsSevenPartsInOrder) {
    EXPECT_EQ(ReadMeText(LampReadMe(),
                         {"2.0", "Mind the step.", "page at example.org", {"lamp.fbd", "pics/a.png"}}),
              "This is the Zip file for the Fabula game \"The Lamp\" Version 2.0. Written by A. Nother\r\n"
              "A lamp.\r\nA cellar.\r\n"
              "Contact information on The Lamp follows:\r\nmail@example.org\r\n"
              "The game requires that you have the Fabula Engine installed.\r\n"
              "For the latest version of the Engine, see the page at example.org\r\n"
              "This game needs files in a subdirectory of where the game\r\n"
              "is located. When you UnZip this file, have your \r\nUnZip program\r\n"
              "recreate the subdirectories.\r\n"
              "Mind the step.\r\n"
              "A list of the files in this ZipFile follows:\r\nlamp.fbd\r\npics/a.png\r\n");
}

TEST(ReadMeText, LeavesOutWhatTheGameDoesNotSayOrNeed) {
    GameFacts facts = LampReadMe();
    facts.description.clear();
    facts.contact.clear();
    EXPECT_EQ(ReadMeText(facts, {"1", "", "page", {"lamp.fbd"}}),
              "This is the Zip file for the Fabula game \"The Lamp\" Version 1. Written by A. Nother\r\n"
              "The game requires that you have the Fabula Engine installed.\r\n"
              "For the latest version of the Engine, see the page\r\n"
              "A list of the files in this ZipFile follows:\r\nlamp.fbd\r\n");
}

}  // namespace
}  // namespace fabula::packages
