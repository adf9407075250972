#include "interchange/pc_text_form.h"

#include <gtest/gtest.h>

#include "support/template_adventure.h"

namespace fabula::interchange {
namespace {

using Lines = std::vector<std::string>;

const AceTags& Tags() {
    static const AceTags tags(*test::OpenedAdventure());
    return tags;
}

const PcTextForm kPc(kPcSource, nullptr);

PcTextForm Ace() {
    return PcTextForm(kAceSource, &Tags());
}

TEST(PcTextForm, WritesLines) {
    EXPECT_EQ(kPc.ToSource("One.\u008CTwo.\u008C").lines, Lines({"One.", "Two.", ""}));
    EXPECT_EQ(kPc.ToSource(" ").lines, Lines({" "}));
    EXPECT_EQ(kPc.ToSource("").lines, Lines());
}

TEST(PcTextForm, WritesMarkupAsTheSourceHasIt) {
    EXPECT_EQ(kPc.ToSource("Fish &amp; chips<tab>&lt;5 &gt;").lines, Lines({"Fish & chips<ht><5 >"}));
    EXPECT_TRUE(kPc.ToSource("Fish &amp; chips<tab>&lt;5 &gt;").comesBack);
}

TEST(PcTextForm, WritesTheTagsOfAceSources) {
    EXPECT_EQ(Ace().ToSource("<ink=10>Hot<#=96>").lines, Lines({"<color=bright red>Hot<chr=96>"}));
    EXPECT_TRUE(Ace().ToSource("<ink=10>Hot<#=96>").comesBack);
}

TEST(PcTextForm, AnEntityThatWouldPassForATagIsWrittenAsAnEntity) {
    const PcTextForm::Written written = Ace().ToSource("&lt;b&gt;");
    EXPECT_EQ(written.lines, Lines({"&lt;b&gt;"}));
    EXPECT_FALSE(written.comesBack) << "it comes back as &amp;lt;b&amp;gt;, which prints the same";
}

TEST(PcTextForm, TellsWhatDoesNotComeBack) {
    EXPECT_FALSE(kPc.ToSource("Stop; go").comesBack);
    EXPECT_TRUE(Ace().ToSource("Stop; go").comesBack);
    EXPECT_FALSE(Ace().ToSource("No. # 5").comesBack);
    EXPECT_FALSE(kPc.ToSource("/5").comesBack);
    EXPECT_FALSE(kPc.ToSource("a&sp;b").comesBack);
}

TEST(PcTextForm, ALineThatBeginsWithASlashGetsABlank) {
    EXPECT_EQ(kPc.ToSource("a\u008C/PRO 0").lines, Lines({"a", " /PRO 0"}));
}

TEST(PcTextForm, KnowsTagsFromBrackets) {
    EXPECT_EQ(kPc.FromSource("<INK=2></FLASH><#=96>"), "<INK=2></FLASH><#=96>");
    EXPECT_EQ(kPc.FromSource("<<b>>"), "&lt;<b>&gt;");
    EXPECT_EQ(kPc.FromSource("1<2, 3>2, <, <>"), "1&lt;2, 3&gt;2, &lt;, &lt;&gt;");
    EXPECT_EQ(kPc.FromSource("<a\u008C>"), "&lt;a\u008C&gt;");
}

}  // namespace
}  // namespace fabula::interchange
