#include "text/markup.h"

#include <gtest/gtest.h>

#include "random_text.h"
#include "support/doubles/scripted_person.h"
#include "text/encoding/utf8.h"

namespace fabula::text {
namespace {

using Boxes = std::vector<platform::ScriptedPerson::Shown>;

constexpr const char* kLoneAmpersand =
    "Cannot use & by itself. Use the &amp; or 'and' (no quotes) format instead. ";
constexpr const char* kLoneOpening = "< without matching >. If not a botched tag, use &lt;";
constexpr const char* kLoneClosing = "> without matching <. If not a botched tag, use &gt;";
constexpr const char* kTooLong =
    "A word (anything delimited by spaces) cannot be longer than 30 characters";
constexpr const char* kLetters30 = "abcdefghijklmnopqrstuvwxyzabcd";

std::vector<CodeRow> Rows() {
    return {
        {1, "ink", 2, "CO", ""},     {7, "bright", 0, "", ""},     {8, "/bright", 0, "", ""},
        {9, "charset", 2, "SE", ""}, {10, "fntsize", 2, "FO", ""}, {12, "", 0, "", "Arial"},
        {13, "#", 1, "CH", ""},      {20, "", 0, "", ""},          {40, "any", 1, "", ""},
    };
}

const TagCatalogue kTags(Rows());

std::string FaultOfDescription(std::string_view text) {
    return ValidateDescription(text, true, kTags).message;
}

std::string FaultOfTag(std::string_view tag) {
    return ValidateTag(tag, kTags).message;
}

TEST(ValidateDescription, AnAmpersandMustBeWrittenAsAnEntity) {
    EXPECT_EQ(FaultOfDescription("Fish &amp; chips"), "");
    EXPECT_EQ(ValidateDescription("Fish & chips", true, kTags), (Verdict{kLoneAmpersand, 2}));
    EXPECT_EQ(FaultOfDescription("AT&T"), kLoneAmpersand);
}

TEST(ValidateDescription, OnlyFourEntitiesExistInLowerCase) {
    EXPECT_EQ(FaultOfDescription("&amp; &lt; &gt; &sp;"), "");
    EXPECT_EQ(FaultOfDescription("&nbsp;"),
              "Invalid value for &nbsp; Only &amp;, &gt;, &sp;, and &lt; allowed. ");
    EXPECT_EQ(FaultOfDescription("&AMP;"),
              "Invalid value for &AMP; Only &amp;, &gt;, &sp;, and &lt; allowed. ");
    EXPECT_EQ(FaultOfDescription("&;"), "Invalid value for &; Only &amp;, &gt;, &sp;, and &lt; allowed. ");
}

TEST(ValidateDescription, ASemicolonBeforeTheFirstAmpersandDoesNotCloseIt) {
    EXPECT_EQ(FaultOfDescription("a;b&lt;c"), "");
    EXPECT_EQ(FaultOfDescription("a;b&c"), kLoneAmpersand);
}

TEST(ValidateDescription, OnlyTheFirstAmpersandOfAWordIsLookedAt) {
    EXPECT_EQ(FaultOfDescription("&amp;&nbsp;"), "");
    EXPECT_EQ(FaultOfDescription("&amp;&"), "");
}

TEST(ValidateDescription, BracketsMustMatch) {
    EXPECT_EQ(FaultOfDescription("a<b"), kLoneOpening);
    EXPECT_EQ(FaultOfDescription("a>b"), kLoneClosing);
    EXPECT_EQ(FaultOfDescription("<ink=3>a<b"), kLoneOpening);
    EXPECT_EQ(FaultOfDescription("<ink=3>a>b"), kLoneClosing);
    EXPECT_EQ(FaultOfDescription("a>b<ink=3>"), kLoneClosing);
    EXPECT_EQ(FaultOfDescription("a>b<c"), kLoneOpening);
    EXPECT_EQ(FaultOfDescription("<ink =3>"), kLoneOpening);
}

TEST(ValidateDescription, TagsAreCheckedBeforeLoneBrackets) {
    EXPECT_EQ(FaultOfDescription("a>b<nothing>"), "Invalid Tag: <NOTHING>");
}

TEST(ValidateDescription, ATagWithACorrectColourPasses) {
    EXPECT_EQ(FaultOfDescription("<INK=3>text"), "");
    EXPECT_EQ(FaultOfDescription("<ink=0>te<Ink=15>xt<ink>"), "");
}

TEST(ValidateDescription, ATagWithAWrongColourFails) {
    EXPECT_EQ(FaultOfDescription("<INK=16>"), "Invalid color 16 for tag INK=16");
    EXPECT_EQ(FaultOfDescription("<ink=-1>"), "Invalid color -1 for tag INK=-1");
}

TEST(ValidateDescription, AValueThatIsNoNumberFails) {
    EXPECT_EQ(FaultOfDescription("<INK=x>"), "Value is not numeric for INK=x");
    EXPECT_EQ(FaultOfDescription("<ink=>"), "Value is not numeric for INK=");
}

TEST(ValidateDescription, TagsFailWhereTheyAreNotAllowed) {
    EXPECT_EQ(ValidateDescription("a <ink=3>", false, kTags),
              (Verdict{"Tags not allowed in this Description", 2}));
    EXPECT_EQ(ValidateDescription(">a<", false, kTags).message, "Tags not allowed in this Description");
    EXPECT_EQ(ValidateDescription("a<b", false, kTags).message, kLoneOpening);
    EXPECT_TRUE(ValidateDescription("Fish &amp; chips", false, kTags).IsValid());
}

TEST(ValidateDescription, AWordOf30LettersPassesAnd31Fail) {
    EXPECT_EQ(FaultOfDescription(kLetters30), "");
    EXPECT_EQ(FaultOfDescription(std::string(kLetters30) + "e"), kTooLong);
    EXPECT_EQ(FaultOfDescription(Repeated("é", 30)), "");
    EXPECT_EQ(FaultOfDescription(Repeated("é", 31)), kTooLong);
}

TEST(ValidateDescription, TagsDoNotCountIntoTheLengthOfAWord) {
    EXPECT_EQ(FaultOfDescription("<bright><ink=3>" + std::string(kLetters30) + "</bright><#=127>"), "");
    EXPECT_EQ(FaultOfDescription("<bright>" + std::string(kLetters30) + "e</bright>"), kTooLong);
}

TEST(ValidateDescription, EntitiesDoNotCountIntoTheLengthOfAWordWhereverTheyStand) {
    const std::string letters = kLetters30;
    EXPECT_EQ(FaultOfDescription("&lt;" + letters), "");
    EXPECT_EQ(FaultOfDescription("abc&sp;" + letters.substr(3)), "");
    EXPECT_EQ(FaultOfDescription(letters + "&gt;"), "");
    EXPECT_EQ(FaultOfDescription("&lt;&lt;" + letters + "&amp;&gt;"), "");
    EXPECT_EQ(FaultOfDescription("&lt;" + letters + "e&gt;"), kTooLong);
}

TEST(ValidateDescription, ASemicolonBeforeAnEntityCountsIntoTheLength) {
    EXPECT_EQ(FaultOfDescription(";&lt;" + std::string(kLetters30)), kTooLong);
}

TEST(ValidateDescription, AnAmpersandThatNothingClosesCountsAsItStands) {
    EXPECT_EQ(FaultOfDescription("&lt;" + std::string(kLetters30).substr(1) + "&"), "");
    EXPECT_EQ(FaultOfDescription("&lt;" + std::string(kLetters30) + "&"), kTooLong);
}

TEST(ValidateDescription, EveryKindOfLineEndEndsAWord) {
    const std::string letters = kLetters30;
    EXPECT_EQ(FaultOfDescription(letters + "\r\n" + letters), "");
    EXPECT_EQ(FaultOfDescription(letters + "\n" + letters), "");
    EXPECT_EQ(FaultOfDescription(letters + "\r" + letters), "");
    EXPECT_EQ(FaultOfDescription(letters + "\u008C" + letters), "");
}

TEST(ValidateDescription, WordsAreNumberedFromOneAndEmptyOnesCount) {
    EXPECT_EQ(ValidateDescription("&", true, kTags).wordNumber, 1);
    EXPECT_EQ(ValidateDescription("a  &", true, kTags).wordNumber, 3);
    EXPECT_EQ(ValidateDescription("a\r\nb\u008C&", true, kTags).wordNumber, 3);
}

TEST(ValidateDescription, EmptyTextsAndWordsPass) {
    EXPECT_EQ(FaultOfDescription(""), "");
    EXPECT_EQ(FaultOfDescription("   "), "");
}

TEST(ValidateDescription, StopsAtTheFirstFailure) {
    platform::ScriptedPerson author;
    const Verdict verdict = ValidateDescription("a & b<c", true, kTags, &author);
    EXPECT_EQ(verdict, (Verdict{kLoneAmpersand, 2}));
    EXPECT_EQ(author.Boxes(), (Boxes{{"Word: 2 " + std::string(kLoneAmpersand), "Error"}}));
}

TEST(ValidateDescription, ShowsNothingWhenValid) {
    platform::ScriptedPerson author;
    EXPECT_TRUE(ValidateDescription("Fish &amp; chips", true, kTags, &author).IsValid());
    EXPECT_EQ(author.Boxes(), Boxes{});
}

TEST(ValidateDescription, EndsOnEveryInput) {
    platform::SeededRandom random(12);
    for (int i = 0; i < 5000; ++i) {
        const std::string text = RandomText(
            random, 12, {"&", ";", "<", ">", "&lt;", "amp", "<ink=3>", "=", " ", "x", "\u008C", "\xC2"});
        const Verdict verdict = ValidateDescription(text, true, kTags);
        EXPECT_EQ(verdict.IsValid(), verdict.wordNumber == 0) << text;
    }
}

TEST(ValidateDescription, AWordThatEndsInItsOnlyEntityEndsTheTest) {
    EXPECT_EQ(FaultOfDescription("lamp&lt;"), "");
    EXPECT_EQ(FaultOfDescription("&amp;"), "");
}

TEST(ValidateDescription, AMegabyteIsChecked) {
    EXPECT_EQ(FaultOfDescription(Repeated("word ", 200'000)), "");
    EXPECT_EQ(FaultOfDescription(Repeated("<ink=3>", 150'000)), "");
    EXPECT_EQ(FaultOfDescription(Repeated("&lt;", 250'000)), "");
    EXPECT_EQ(FaultOfDescription(Repeated("<ink=3>&", 125'000)), kLoneAmpersand);
    EXPECT_EQ(FaultOfDescription("&lt;" + Repeated("&", 1'000'000)), kTooLong);
    EXPECT_EQ(FaultOfDescription(Repeated("<", 1'000'000)), kLoneOpening);
    EXPECT_EQ(FaultOfDescription(Repeated(">", 500'000) + Repeated("<", 500'000)), kLoneOpening);
}

TEST(ValidateWord, ShowsItsWordNumber) {
    platform::ScriptedPerson author;
    EXPECT_FALSE(ValidateWord("a>", 17, true, kTags, &author).IsValid());
    EXPECT_EQ(author.Boxes(), (Boxes{{"Word: 17 " + std::string(kLoneClosing), "Error"}}));
}

TEST(ValidateTag, AnUnknownTagIsInvalid) {
    EXPECT_EQ(FaultOfTag("NOTHING"), "Invalid Tag: <NOTHING>");
    EXPECT_EQ(FaultOfTag("NOTHING=5"), "Invalid Tag: <NOTHING=5>");
    EXPECT_EQ(FaultOfTag("/INK"), "Invalid Tag: </INK>");
    EXPECT_EQ(FaultOfTag(""), "Invalid Tag: <>");
    EXPECT_EQ(FaultOfTag("=5"), "Invalid Tag: <=5>");
}

TEST(ValidateTag, ATagWithoutParameterIgnoresWhatStandsBehindAnEqualsSign) {
    EXPECT_EQ(FaultOfTag("BRIGHT"), "");
    EXPECT_EQ(FaultOfTag("BRIGHT=x"), "");
    EXPECT_EQ(FaultOfTag("/BRIGHT"), "");
}

TEST(ValidateTag, ARequiredValueMustBeThere) {
    EXPECT_EQ(FaultOfTag("#"), "# MUST have an = sign");
    EXPECT_EQ(FaultOfTag("INK"), "");
}

TEST(ValidateTag, AnyNumberPassesWhereNoKindOfValueIsNamed) {
    EXPECT_EQ(FaultOfTag("ANY=-99"), "");
    EXPECT_EQ(FaultOfTag("ANY=1=2"), "Value is not numeric for ANY=1=2");
}

TEST(ValidateTag, WithoutCharacterSetsASetIsAFont) {
    EXPECT_EQ(FaultOfTag("CHARSET=12"), "");
    EXPECT_EQ(FaultOfTag("CHARSET=20"), "Invalid Character Set 20");
    EXPECT_EQ(FaultOfTag("CHARSET=99"), "Invalid Character Set 99");
}

TEST(ValidateTag, WithCharacterSetsASetMustExist) {
    const TagCatalogue tags(Rows(), std::set<int>{0, 1});
    EXPECT_TRUE(ValidateTag("CHARSET=1", tags).IsValid());
    EXPECT_EQ(ValidateTag("CHARSET=12", tags).message, "Invalid Character Set 12");
}

TEST(ValidateTag, AFontSizeMustBeACode) {
    EXPECT_EQ(FaultOfTag("FNTSIZE=20"), "");
    EXPECT_EQ(FaultOfTag("FNTSIZE=21"), "Invalid fontsize of 21 for tag FNTSIZE=21");
}

TEST(ValidateTag, ACharacterByNumberIsNotNegativeNor16To31NorAbove164) {
    EXPECT_EQ(FaultOfTag("#=127"), "");
    EXPECT_EQ(FaultOfTag("#=96"), "");
    EXPECT_EQ(FaultOfTag("#=0"), "");
    EXPECT_EQ(FaultOfTag("#=15"), "");
    EXPECT_EQ(FaultOfTag("#=16"), "Invalid value of 16for # tag");
    EXPECT_EQ(FaultOfTag("#=31"), "Invalid value of 31for # tag");
    EXPECT_EQ(FaultOfTag("#=32"), "");
    EXPECT_EQ(FaultOfTag("#=164"), "");
    EXPECT_EQ(FaultOfTag("#=165"), "Invalid value of 165for # tag");
    EXPECT_EQ(FaultOfTag("#=-1"), "Invalid value of -1for # tag");
    EXPECT_EQ(FaultOfTag("#=99999999999999999999"), "Invalid value of 99999999999999999999for # tag");
}

TEST(StripTags, TakesTheTagsOutAndCollectsThem) {
    std::string removed = "<BR>";
    EXPECT_EQ(StripTags("<INK=3>red<INK> and</BRIGHT>", removed), "red and");
    EXPECT_EQ(removed, "<BR><INK=3><INK></BRIGHT>");
}

TEST(StripTags, ATagReachesFromTheFirstOpeningToTheNextClosingBracket) {
    std::string removed;
    EXPECT_EQ(StripTags("a<b<c>d>e", removed), "ad>e");
    EXPECT_EQ(removed, "<b<c>");
}

TEST(StripTags, AnOpeningBracketThatNothingClosesIsKept) {
    std::string removed;
    EXPECT_EQ(StripTags("a>b<c", removed), "a>b<c");
    EXPECT_EQ(removed, "");
}

TEST(StripTags, AMegabyteIsStripped) {
    std::string removed;
    EXPECT_EQ(StripTags(Repeated("<x>y", 250'000), removed), Repeated("y", 250'000));
    EXPECT_EQ(removed, Repeated("<x>", 250'000));
}

TEST(ShownPoints, AreThoseOfTheFileUpToTheLargestThatAScreenHolds) {
    EXPECT_EQ(ShownPoints(1), 1);
    EXPECT_EQ(ShownPoints(24), 24);
    EXPECT_EQ(ShownPoints(288), 288);
    EXPECT_EQ(ShownPoints(289), 288);
    EXPECT_EQ(ShownPoints(2'147'483'647), 288);
}

TEST(ShownPoints, AreTwelveWhereAFileGivesNone) {
    EXPECT_EQ(ShownPoints(0), 12);
    EXPECT_EQ(ShownPoints(-1), 12);
}

TEST(ReplaceEntities, ShowsTheFourEntities) {
    EXPECT_EQ(ReplaceEntities("a &lt;b&gt;&sp;&amp; c"), "a <b> & c");
    EXPECT_EQ(ReplaceEntities("&nbsp;&LT;"), "&nbsp;&LT;");
}

TEST(ReplaceEntities, AmpersandGoesFirst) {
    EXPECT_EQ(ReplaceEntities("&amp;lt;"), "<");
    EXPECT_EQ(ReplaceEntities("&amp;amp;"), "&amp;");
}

TEST(EscapeMarkup, TurnsPlainTextIntoADescriptionThatShowsTheSame) {
    EXPECT_EQ(EscapeMarkup("a<b & c>d"), "a&lt;b &amp; c&gt;d");
    EXPECT_EQ(EscapeMarkup("&lt;"), "&amp;lt;");
    EXPECT_EQ(ReplaceEntities(EscapeMarkup("a<b & c>d")), "a<b & c>d");
    EXPECT_EQ(FaultOfDescription(EscapeMarkup("a<b & c>d")), "");
}

}  // namespace
}  // namespace fabula::text
