#include "store/filter/filter.h"

#include <map>

#include <gtest/gtest.h>

namespace fabula::store {
namespace {

const TableSchema kWords{"Vocabulary",
                         {{"vocindex", FieldType::SmallInt, 0},
                          {"vocnum", FieldType::Integer, 0},
                          {"Word", FieldType::VarWChar, 30},
                          {"voctype", FieldType::VarWChar, 20},
                          {"weight", FieldType::Double, 0},
                          {"used", FieldType::Boolean, 0},
                          {"picture", FieldType::LongVarBinary, 0}}};

using Values = std::map<std::string, text::Value>;

/// A record given by its fields' names; the others are null.
class Words final : public FieldSource {
  public:
    explicit Words(Values values) : values_(std::move(values)) {}

    text::Value ValueOf(std::size_t field) const override {
        const auto found = values_.find(kWords.fields[field].name);
        return found == values_.end() ? text::Value{} : found->second;
    }

  private:
    Values values_;
};

const Words kLamp(
    {{"vocindex", 3}, {"vocnum", 50}, {"Word", "LAMP"}, {"voctype", "Noun"}, {"weight", 2.5}, {"used", 1}});

bool LampMatches(std::string_view filter) {
    return Matches(ParseFilter(filter, kWords), kLamp);
}

std::string ErrorOf(std::string_view filter) {
    try {
        ParseFilter(filter, kWords);
    } catch (const FilterError& error) {
        return error.what();
    }
    return "no error";
}

TEST(Filter, ComparesNumbersByEverySign) {
    EXPECT_TRUE(LampMatches("vocnum=50"));
    EXPECT_FALSE(LampMatches("vocnum<>50"));
    EXPECT_TRUE(LampMatches("vocnum > 49"));
    EXPECT_FALSE(LampMatches("vocnum<50"));
    EXPECT_TRUE(LampMatches("vocnum<= 50"));
    EXPECT_TRUE(LampMatches("vocnum >=-1"));
    EXPECT_TRUE(LampMatches("weight=2.5"));
    EXPECT_TRUE(LampMatches("vocnum>49.5"));
}

TEST(Filter, ComparisonOfTextIgnoresCase) {
    EXPECT_TRUE(LampMatches("word='lamp'"));
    EXPECT_TRUE(LampMatches("WORD = 'Lamp'"));
    EXPECT_FALSE(LampMatches("word<>'lamp'"));
    EXPECT_TRUE(LampMatches("word<'lamq'"));
}

TEST(Filter, ComparesAFieldWithAField) {
    EXPECT_TRUE(LampMatches("vocindex<vocnum"));
    EXPECT_FALSE(LampMatches("word=voctype"));
}

TEST(Filter, AValueMayStandOnTheLeft) {
    EXPECT_TRUE(LampMatches("50=vocnum"));
}

TEST(Filter, ATruthFieldStandsAloneOrIsComparedWithTrueAndFalse) {
    EXPECT_TRUE(LampMatches("used"));
    EXPECT_TRUE(LampMatches("word='LAMP' and Used"));
    EXPECT_TRUE(LampMatches("used=true"));
    EXPECT_FALSE(LampMatches("used = False"));
}

TEST(Filter, AndBindsMoreThanOr) {
    EXPECT_TRUE(LampMatches("vocnum=50 or vocnum=1 and vocnum=2"));
    EXPECT_FALSE(LampMatches("(vocnum=50 or vocnum=1) and vocnum=2"));
}

TEST(Filter, LikeTakesPercentAndAsteriskForAnyRunOfCharacters) {
    EXPECT_TRUE(LampMatches("word like '%am%'"));
    EXPECT_TRUE(LampMatches("word like '*am*'"));
    EXPECT_TRUE(LampMatches("word like 'L%P'"));
    EXPECT_FALSE(LampMatches("word like 'am%'"));
    EXPECT_TRUE(LampMatches("word like 'LAMP'"));
}

TEST(Filter, LikeTakesAnUnderscoreAsItself) {
    EXPECT_FALSE(LampMatches("word like '_AMP'"));
    EXPECT_TRUE(MatchesLike("_", "_"));
}

TEST(Filter, AComparisonWithANullValueIsFalse) {
    const Words empty(Values{});
    EXPECT_FALSE(Matches(ParseFilter("vocnum=0", kWords), empty));
    EXPECT_FALSE(Matches(ParseFilter("vocnum<>0", kWords), empty));
    EXPECT_FALSE(Matches(ParseFilter("word=''", kWords), empty));
    EXPECT_FALSE(Matches(ParseFilter("word like '%'", kWords), empty));
    EXPECT_FALSE(Matches(ParseFilter("used", kWords), empty));
}

TEST(Filter, TheEmptyTextIsAValue) {
    const Words record(Values{{"Word", ""}});
    EXPECT_TRUE(Matches(ParseFilter("word=''", kWords), record));
    EXPECT_FALSE(Matches(ParseFilter("word<>''", kWords), record));
}

TEST(Filter, AnApostropheInAValueIsDoubled) {
    EXPECT_EQ(QuoteText("it's"), "'it''s'");
    const Words record(Values{{"Word", "IT'S"}});
    EXPECT_TRUE(Matches(ParseFilter("word=" + QuoteText("it's"), kWords), record));
}

TEST(Filter, AnApostropheLeftSingleIsAnErrorAndNeverPartOfAQuery) {
    EXPECT_EQ(ErrorOf("word='it's'"), "at 10: expected 'and', 'or' or the end");
    EXPECT_EQ(ErrorOf("word='x' or 'a'='a"), "at 19: expected a closing quote");
}

TEST(Filter, ErrorsTellThePlaceAndWhatWasExpected) {
    EXPECT_EQ(ErrorOf("vocnum="), "at 8: expected a value or a field");
    EXPECT_EQ(ErrorOf("vocnum 5"), "at 8: expected a comparison sign or 'like'");
    EXPECT_EQ(ErrorOf("wrod='x'"),
              "at 1: expected a field, a value or '('; there is no field 'wrod' in Vocabulary");
    EXPECT_EQ(ErrorOf("(vocnum=1"), "at 10: expected ')'");
    EXPECT_EQ(ErrorOf("vocnum=1 vocnum=2"), "at 10: expected 'and', 'or' or the end");
    EXPECT_EQ(ErrorOf("vocnum=1; drop table x"),
              "at 9: expected a name, a number, a quoted text or a sign");
    EXPECT_EQ(ErrorOf(""), "at 1: expected a field, a value or '('");
    EXPECT_EQ(ErrorOf("vocnum=?"), "at 8: expected a value or a field");
}

TEST(Filter, ValuesMustFitTheirFields) {
    EXPECT_EQ(ErrorOf("vocnum='x'"), "at 8: expected a number");
    EXPECT_EQ(ErrorOf("word=5"), "at 6: expected a text in quotes");
    EXPECT_EQ(ErrorOf("5=word"), "at 1: expected a text in quotes");
    EXPECT_EQ(ErrorOf("vocnum like '5'"), "at 1: expected a text field before 'like'");
    EXPECT_EQ(ErrorOf("word like 5"), "at 11: expected a quoted text after 'like'");
    EXPECT_EQ(ErrorOf("vocnum"), "at 7: expected a comparison sign or 'like'");
    EXPECT_EQ(ErrorOf("picture=''"), "at 1: expected a field that is not binary");
}

TEST(Filter, ANumberBeyondEveryRangeIsAnError) {
    EXPECT_EQ(ErrorOf("vocnum=1.2.3"), "at 8: expected a number in range");
}

TEST(Filter, AWholeNumberBeyondSixtyFourBitsIsComparedAsAFloatingOne) {
    EXPECT_TRUE(LampMatches("vocnum<99999999999999999999"));
    EXPECT_FALSE(LampMatches("vocnum<-99999999999999999999"));
}

TEST(Filter, ThePlaceOfAFaultCountsCharacters) {
    EXPECT_EQ(ErrorOf("word='\u00c4\u00d6' vocnum=1"), "at 11: expected 'and', 'or' or the end");
    EXPECT_EQ(ErrorOf("word='\u00c4\u00d6' or word=5"), "at 19: expected a text in quotes");
    EXPECT_EQ(ErrorOf("word='\u00c4\u00d6"), "at 9: expected a closing quote");
}

TEST(Filter, MoreThanFiveHundredComparisonsAreRefused) {
    std::string filter = "vocnum=50";
    for (int i = 1; i < 500; ++i)
        filter += " or vocnum=1";
    EXPECT_TRUE(LampMatches(filter));
    EXPECT_EQ(ErrorOf(filter + " or vocnum=1"), "at 6002: expected fewer comparisons");
}

TEST(Filter, DeepNestingIsRefused) {
    const std::string open(200, '(');
    EXPECT_EQ(ErrorOf(open + "vocnum=1" + std::string(200, ')')),
              "at 101: expected fewer nested parentheses");
}

TEST(Filter, AFilterOfAMegabyteIsRefused) {
    EXPECT_EQ(ErrorOf(std::string(1 << 20, ' ')), "at 65537: expected a shorter text");
}

TEST(FilterSql, HoldsNoValueOfTheFilter) {
    std::string sql;
    std::vector<text::Value> values;
    AppendSql(ParseFilter("word='x''; drop' and (vocnum=5 or used)", kWords), kWords, sql, values);
    EXPECT_EQ(sql, "(Word=? COLLATE fabula_nocase AND (vocnum=? OR used))");
    EXPECT_EQ(values, (std::vector<text::Value>{std::string("x'; drop"), std::int64_t{5}}));
}

TEST(FilterSql, AParameterOfThePreparedFormTakesANullInItsPlace) {
    std::string sql;
    std::vector<text::Value> values;
    AppendSql(ParseFilter("vocnum=? and word='x'", kWords, Parameters::Allowed), kWords, sql, values);
    EXPECT_EQ(values, (std::vector<text::Value>{text::Value{}, std::string("x")}));
}

TEST(MatchesLike, ManyWildcardsOnALongTextEnd) {
    EXPECT_FALSE(MatchesLike(std::string(10000, 'a'), "%a%a%a%a%a%a%a%a%b"));
}

}  // namespace
}  // namespace fabula::store
