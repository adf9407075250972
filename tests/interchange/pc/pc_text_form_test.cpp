#include "interchange/pc/pc_text_form.h"

#include <gtest/gtest.h>

#include "store/tags.h"
#include "support/games/template_adventure.h"

namespace fabula::interchange {
namespace {

using FormLines = std::vector<std::string>;

const AceTags& FormTags() {
    static const AceTags tags(*test::OpenedAdventure());
    return tags;
}

PcTextForm Pc() {
    return {kPcSource, store::LoadTagCatalogue(*test::OpenedAdventure()), nullptr};
}

PcTextForm Ace() {
    return {kAceSource, store::LoadTagCatalogue(*test::OpenedAdventure()), &FormTags()};
}

std::vector<std::string> Told(const std::vector<PcTextForm::BadTag>& tags) {
    std::vector<std::string> told;
    for (const PcTextForm::BadTag& tag : tags)
        told.push_back(std::to_string(tag.position) + ": " + tag.message);
    return told;
}

TEST(PcTextForm, WritesLines) {
    EXPECT_EQ(Pc().ToSource("One.\u008CTwo.\u008C").lines, FormLines({"One.", "Two.", ""}));
    EXPECT_EQ(Pc().ToSource(" ").lines, FormLines({" "}));
    EXPECT_EQ(Pc().ToSource("").lines, FormLines());
}

TEST(PcTextForm, WritesMarkupAsTheSourceHasIt) {
    EXPECT_EQ(Pc().ToSource("Fish &amp; chips<tab>&lt;5 &gt;").lines, FormLines({"Fish & chips<ht><5 >"}));
    EXPECT_TRUE(Pc().ToSource("Fish &amp; chips<tab>&lt;5 &gt;").comesBack);
}

TEST(PcTextForm, WritesTheTagsOfAceSources) {
    EXPECT_EQ(Ace().ToSource("<ink=10>Hot<#=96>").lines, FormLines({"<color=bright red>Hot<chr=96>"}));
    EXPECT_TRUE(Ace().ToSource("<ink=10>Hot<#=96>").comesBack);
}

TEST(PcTextForm, AnEntityThatWouldPassForATagIsWrittenAsAnEntity) {
    const PcTextForm::Written written = Ace().ToSource("&lt;flash&gt;");
    EXPECT_EQ(written.lines, FormLines({"&lt;flash&gt;"}));
    EXPECT_FALSE(written.comesBack) << "it comes back as &amp;lt;flash&amp;gt;, which prints the same";
}

TEST(PcTextForm, TellsWhatDoesNotComeBack) {
    EXPECT_FALSE(Pc().ToSource("Stop; go").comesBack);
    EXPECT_TRUE(Ace().ToSource("Stop; go").comesBack);
    EXPECT_FALSE(Ace().ToSource("No. # 5").comesBack);
    EXPECT_FALSE(Pc().ToSource("/5").comesBack);
    EXPECT_FALSE(Pc().ToSource("a&sp;b").comesBack);
}

TEST(PcTextForm, ALineThatBeginsWithASlashGetsABlank) {
    EXPECT_EQ(Pc().ToSource("a\u008C/PRO 0").lines, FormLines({"a", " /PRO 0"}));
}

TEST(PcTextForm, WhatIsNoKnownTagIsText) {
    EXPECT_EQ(Pc().FromSource("Press <enter> now"), "Press &lt;enter&gt; now");
    EXPECT_EQ(Ace().FromSource("<COLOR=reddish>Hot<ink=99>"), "&lt;COLOR=reddish&gt;Hot&lt;ink=99&gt;");
    EXPECT_EQ(Ace().ToSource("Press &lt;enter&gt; now").lines, FormLines({"Press <enter> now"}));
}

TEST(PcTextForm, TellsWhatLooksLikeATagAndIsNone) {
    EXPECT_EQ(Told(Pc().FindBadTags("Press <enter> now, <flash>or</flash> 1<2")),
              FormLines({"6: Invalid Tag: <ENTER>"}));
    EXPECT_EQ(Told(Ace().FindBadTags("<COLOR=reddish>Hot<ink=99><color=bright red>")),
              FormLines({"0: Invalid color REDDISH for tag COLOR=REDDISH",
                         "18: Invalid color 99 for tag INK=99"}));
}

TEST(PcTextForm, KnowsTagsFromBrackets) {
    EXPECT_EQ(Pc().FromSource("<INK=2></FLASH><#=96>"), "<INK=2></FLASH><#=96>");
    EXPECT_EQ(Pc().FromSource("<<b>>"), "&lt;&lt;b&gt;&gt;");
    EXPECT_EQ(Pc().FromSource("1<2, 3>2, <, <>"), "1&lt;2, 3&gt;2, &lt;, &lt;&gt;");
    EXPECT_EQ(Pc().FromSource("<a\u008C>"), "&lt;a\u008C&gt;");
}

}  // namespace
}  // namespace fabula::interchange
