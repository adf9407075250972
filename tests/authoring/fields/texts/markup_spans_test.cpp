#include "authoring/fields/texts/markup_spans.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/random_source.h"
#include "text/line_ends.h"
#include "text/random_text.h"

namespace fabula::authoring {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

text::TagCatalogue SomeTags() {
    return text::TagCatalogue({
        {1, "ink", 2, "CO", ""},
        {7, "bright", 0, "", ""},
        {8, "/bright", 0, "", ""},
        {13, "#", 1, "CH", ""},
    });
}

std::vector<MarkupSpan> Spans(std::string_view text, bool tagsAllowed = true) {
    return MarkupSpans(text, tagsAllowed, SomeTags());
}

constexpr auto kTag = MarkupKind::Tag;
constexpr auto kValue = MarkupKind::Value;
constexpr auto kEntity = MarkupKind::Entity;
constexpr auto kFault = MarkupKind::Fault;

TEST(MarkupSpans, APlainTextHasNone) {
    EXPECT_THAT(Spans("It is too dark to see."), IsEmpty());
    EXPECT_THAT(Spans(""), IsEmpty());
}

TEST(MarkupSpans, ATagIsOneSpan) {
    EXPECT_THAT(Spans("A <bright>red</bright> door"),
                ElementsAre(MarkupSpan{kTag, 2, 8}, MarkupSpan{kTag, 13, 9}));
}

TEST(MarkupSpans, TheValueOfATagIsASpanOfItsOwn) {
    EXPECT_THAT(Spans("<ink=3>"),
                ElementsAre(MarkupSpan{kTag, 0, 5}, MarkupSpan{kValue, 5, 1}, MarkupSpan{kTag, 6, 1}));
}

TEST(MarkupSpans, AnEntityIsOneSpan) {
    EXPECT_THAT(Spans("Fish &amp; chips"), ElementsAre(MarkupSpan{kEntity, 5, 5}));
}

TEST(MarkupSpans, PlacesAreBytes) {
    EXPECT_THAT(Spans("\u00C4 <bright>"), ElementsAre(MarkupSpan{kTag, 3, 8}));
}

TEST(MarkupSpans, AnUnknownTagIsAFaultByItself) {
    EXPECT_THAT(Spans("see<bold>this"), ElementsAre(MarkupSpan{kTag, 3, 6}, MarkupSpan{kFault, 3, 6}));
}

TEST(MarkupSpans, OfTwoTagsTheOneAtFaultIsMarked) {
    EXPECT_THAT(Spans("<bright><ink=16>"),
                ElementsAre(MarkupSpan{kTag, 0, 8}, MarkupSpan{kTag, 8, 5}, MarkupSpan{kValue, 13, 2},
                            MarkupSpan{kTag, 15, 1}, MarkupSpan{kFault, 8, 8}));
}

TEST(MarkupSpans, ALoneAmpersandIsAFaultToTheEndOfItsWord) {
    EXPECT_THAT(Spans("AT&T is"), ElementsAre(MarkupSpan{kFault, 2, 2}));
}

TEST(MarkupSpans, AnUnknownEntityIsAFault) {
    EXPECT_THAT(Spans("a&nbsp;b"), ElementsAre(MarkupSpan{kEntity, 1, 6}, MarkupSpan{kFault, 1, 6}));
}

TEST(MarkupSpans, LoneBracketsAreFaults) {
    EXPECT_THAT(Spans("a<b"), ElementsAre(MarkupSpan{kFault, 1, 2}));
    EXPECT_THAT(Spans("a>b"), ElementsAre(MarkupSpan{kFault, 1, 1}));
    EXPECT_THAT(Spans("<bright>>"), ElementsAre(MarkupSpan{kTag, 0, 8}, MarkupSpan{kFault, 8, 1}));
}

TEST(MarkupSpans, AWordThatIsTooLongIsAFaultAsAWhole) {
    EXPECT_THAT(Spans("<ink>" + std::string(31, 'x')),
                ElementsAre(MarkupSpan{kTag, 0, 5}, MarkupSpan{kFault, 0, 36}));
    EXPECT_THAT(Spans(std::string(30, 'x')), IsEmpty());
}

TEST(MarkupSpans, WhereTagsAreNotAllowedEachOfThemIsAFault) {
    EXPECT_THAT(Spans("a<ink>", false), ElementsAre(MarkupSpan{kTag, 1, 5}, MarkupSpan{kFault, 1, 5}));
}

TEST(MarkupSpans, EveryFaultyWordIsMarked) {
    EXPECT_THAT(Spans("& a <"), ElementsAre(MarkupSpan{kFault, 0, 1}, MarkupSpan{kFault, 4, 1}));
}

TEST(MarkupSpans, ALineEndInATagEndsTheWord) {
    const std::string broken = "<br" + std::string(text::kLineEndMarker) + "ight>";
    EXPECT_THAT(Spans(broken), ElementsAre(MarkupSpan{kFault, 0, 3}, MarkupSpan{kFault, 9, 1}));
}

TEST(FirstFault, IsNothingForAValidText) {
    EXPECT_FALSE(FirstFault("<ink=3>Fish</bright> &amp; chips", true, SomeTags()));
}

TEST(FirstFault, HasTheVerdictAndThePlace) {
    const auto fault = FirstFault("Fish & chips <bold>", true, SomeTags());
    ASSERT_TRUE(fault);
    EXPECT_EQ(fault->verdict.BoxText(),
              "Word: 2 Cannot use & by itself. Use the &amp; or 'and' (no quotes) format instead. ");
    EXPECT_EQ(fault->begin, 5);
    EXPECT_EQ(fault->size, 1);
}

TEST(FirstFault, ACarriageReturnWithALineFeedParts2WordsNot3) {
    const auto fault = FirstFault("one\r\ntwo>", true, SomeTags());
    ASSERT_TRUE(fault);
    EXPECT_EQ(fault->verdict.wordNumber, 2);
    EXPECT_EQ(fault->begin, 8);
}

TEST(FirstFault, IsTheOneOfTheValidatorForAnyText) {
    platform::SeededRandom random(7);
    const text::TagCatalogue tags = SomeTags();
    for (int round = 0; round < 20'000; ++round) {
        const std::string text =
            text::RandomText(random, 12,
                             {"<", ">", "&", ";", " ", "\r\n", "\n", "\r", text::kLineEndMarker, "ink",
                              "=3", "bright", "/", "amp", "sp", "abcdefghijklmnop", "\u00E4", "\xC2"});
        const text::Verdict verdict = text::ValidateDescription(text, true, tags);
        const auto fault = FirstFault(text, true, tags);
        ASSERT_EQ(fault ? fault->verdict : text::Verdict{}, verdict) << text;
        if (!fault) continue;
        ASSERT_GT(fault->size, 0U) << text;
        ASSERT_LE(fault->begin + fault->size, text.size()) << text;
    }
}

}  // namespace
}  // namespace fabula::authoring
