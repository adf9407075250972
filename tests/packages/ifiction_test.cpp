#include "packages/ifiction.h"

#include <gtest/gtest.h>
#include <tinyxml2.h>

#include "platform/error.h"

namespace fabula::packages {
namespace {

GameFacts LampStory() {
    GameFacts facts;
    facts.name = "The Lamp & <the> \"Cellar\"";
    facts.author = " A.\tNother\x01 ";
    facts.description = "One.\n\nTwo  &  three.";
    facts.ifid = "5EED0000-0000-4000-8000-00000000FA8A";
    return facts;
}

TEST(IFictionRecord, IdentifiesAndDescribesTheGame) {
    const Cover cover{"", "jpg", 400, 300};
    EXPECT_EQ(IFictionRecord(LampStory(), &cover),
              "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
              "<ifindex version=\"1.0\" xmlns=\"http://babel.ifarchive.org/protocol/iFiction/\">\n"
              "    <story>\n"
              "        <identification>\n"
              "            <ifid>5EED0000-0000-4000-8000-00000000FA8A</ifid>\n"
              "            <format>fabula</format>\n"
              "        </identification>\n"
              "        <bibliographic>\n"
              "            <title>The Lamp &amp; &lt;the&gt; \"Cellar\"</title>\n"
              "            <author>A. Nother</author>\n"
              "            <description>One.<br/>Two &amp; three.</description>\n"
              "        </bibliographic>\n"
              "        <cover>\n"
              "            <format>jpg</format>\n"
              "            <height>300</height>\n"
              "            <width>400</width>\n"
              "        </cover>\n"
              "    </story>\n"
              "</ifindex>\n");
}

TEST(IFictionRecord, HasATitleAndAnAuthorForEveryGameAndIsWellFormed) {
    GameFacts facts;
    facts.ifid = "5EED0000-0000-4000-8000-00000000FA8A";
    tinyxml2::XMLDocument document;
    ASSERT_EQ(document.Parse(IFictionRecord(facts, nullptr).c_str()), tinyxml2::XML_SUCCESS);
    const auto* about =
        document.FirstChildElement("ifindex")->FirstChildElement("story")->FirstChildElement(
            "bibliographic");
    EXPECT_STREQ(about->FirstChildElement("title")->GetText(), "Untitled");
    EXPECT_STREQ(about->FirstChildElement("author")->GetText(), "Anonymous");
    EXPECT_EQ(about->FirstChildElement("description"), nullptr);
}

TEST(IFictionRecord, HoldsNothingThatATerminalWouldObeyAndNoBadBytes) {
    GameFacts facts = LampStory();
    facts.name = "The\u009B31m L\xE9mp\u202E";
    EXPECT_NE(IFictionRecord(facts, nullptr).find("<title>The\uFFFD31m L\uFFFDmp\uFFFD</title>"),
              std::string::npos);
}

TEST(IFictionRecord, HoldsNoNoncharacterThatXmlForbids) {
    GameFacts facts = LampStory();
    facts.name = "The\uFFFELamp\uFFFF";
    EXPECT_NE(IFictionRecord(facts, nullptr).find("<title>The Lamp</title>"), std::string::npos);
}

TEST(IFictionRecord, NeedsAnIfid) {
    GameFacts facts = LampStory();
    facts.ifid.clear();
    EXPECT_THROW(IFictionRecord(facts, nullptr), Error);
}

}  // namespace
}  // namespace fabula::packages
