// A filter is answered twice: by the database when a table is opened, and in memory by Find. Both must
// agree on every filter there is.

#include <random>

#include <gtest/gtest.h>

#include "store/adventure.h"
#include "support/games/template_adventure.h"
#include "support/raw_database.h"

namespace fabula::store {
namespace {

using test::OpenedAdventure;

/// A field of the table that the filters ask about, and what its records hold.
struct TestField {
    std::string name;
    std::string tag;
    std::string sqlType;
    std::vector<text::Value> values;
};

const std::vector<text::Value> kNumbers = {text::Value(), -2147483648LL, -5, -1, 0, 1, 2, 3,
                                           100,           2147483647LL};
const std::vector<text::Value> kReals = {text::Value(),     -1.5, -1.0, 0.0, 0.1, 1.0, 2.5, 100.25,
                                         4503599627370496.5};
const std::vector<text::Value> kTexts = {
    text::Value(),        std::string(),         std::string(" "),
    std::string("lamp"),  std::string("LAMP"),   std::string("Lämp"),
    std::string("LÄMP"),  std::string("it's"),   std::string("%"),
    std::string("*"),     std::string("100%"),   std::string("a*b"),
    std::string("_"),     std::string("ß"),      std::string("ẞ"),
    std::string("ΩMEGA"), std::string("ωmega"),  std::string("''"),
    std::string("\xff"),  std::string("\xc3"),   std::string("la\0mp", 5),
    std::string("K"),     std::string("\u212a"), std::string("2"),
};
const std::vector<text::Value> kTruths = {text::Value(), 0, 1};

const std::vector<TestField> kTestFields = {
    {"sndnum", "adinteger", "INTEGER", {}},
    {"sndfreq", "adinteger", "INTEGER", {text::Value()}},
    {"low", "adsmallint", "INTEGER", {text::Value(), -5, -1, 0, 1, 2, 3, 100}},
    {"high", "adinteger", "INTEGER", kNumbers},
    {"weight", "addouble", "REAL", kReals},
    {"word", "advarwchar", "TEXT", kTexts},
    {"note", "adlongvarwchar", "TEXT", kTexts},
    {"used", "adboolean", "INTEGER", kTruths},
    {"seen", "adboolean", "INTEGER", kTruths},
};

/// Writes random filters, every one well formed.
class FilterWriter {
  public:
    explicit FilterWriter(std::uint32_t seed) : random_(seed) {}

    int UpTo(std::size_t count) {
        return static_cast<int>(std::uniform_int_distribution<std::size_t>(0, count - 1)(random_));
    }
    const text::Value& OneOf(const std::vector<text::Value>& values) {
        return values[static_cast<std::size_t>(UpTo(values.size()))];
    }

    std::string Filter(int depth) {
        const int choice = depth == 0 ? 9 : UpTo(10);
        if (choice < 2) return Filter(depth - 1) + Pick({" and ", " AND ", "  and\t"}) + Filter(depth - 1);
        if (choice < 4) return Filter(depth - 1) + Pick({" or ", " Or "}) + Filter(depth - 1);
        if (choice < 6) return "(" + Filter(depth - 1) + ")";
        return Term();
    }

  private:
    std::string Pick(std::initializer_list<const char*> choices) {
        return choices.begin()[UpTo(choices.size())];
    }
    std::string Sign() { return Pick({"=", "<>", "<", ">", "<=", ">=", " = ", " <> "}); }
    std::string NumberField() { return Pick({"sndnum", "low", "HIGH", "Weight", "used", "seen"}); }
    std::string TextField() { return Pick({"word", "Note"}); }

    std::string Number() {
        switch (UpTo(4)) {
            case 0:
                return Pick({"true", "False", "0", "1", "-1"});
            case 1:
                return Pick({"2.5", "-1.5", "0.1", "100.25", "4503599627370496.5", "2147483648",
                             "9223372036854775807", "99999999999999999999", "-0", "1.0"});
            case 2:
                return text::ToText(std::int64_t{UpTo(110)} - 5);
            default:
                return Pick({"2147483647", "-2147483648", "3", "100"});
        }
    }

    std::string Text() {
        const text::Value& value = OneOf(kTexts);
        return QuoteText(text::ToText(value));
    }

    std::string Pattern() {
        std::string pattern;
        for (int i = UpTo(5); i > 0; --i)
            pattern +=
                Pick({"%", "*", "l", "A", "m", "P", "ä", "Ä", "'", "_", " ", "0", "\xff", "\xc3", "ω"});
        return QuoteText(pattern);
    }

    std::string Term() {
        switch (UpTo(10)) {
            case 0:
            case 1:
                return NumberField() + Sign() + Number();
            case 2:
                return Number() + Sign() + NumberField();
            case 3:
                return NumberField() + Sign() + NumberField();
            case 4:
            case 5:
                return TextField() + Sign() + Text();
            case 6:
                return TextField() + Sign() + TextField();
            case 7:
            case 8:
                return TextField() + Pick({" like ", " LIKE "}) + Pattern();
            default:
                return Pick({"used", "seen", "Used", "1=1", "'a'='A'", "'lamp' like '%a*'", "'b'<'A'"});
        }
    }

    std::mt19937 random_;
};

/// Gives the table of sounds the fields above, as no file of the program has them.
void ReplaceTable(const std::filesystem::path& file) {
    const test::RawDatabase raw(file);
    std::string create = "DROP TABLE Sounds; CREATE TABLE Sounds (storekey INTEGER PRIMARY KEY";
    std::string insert = "DELETE FROM Tables WHERE tablenum=3;";
    for (const TestField& field : kTestFields) {
        create += ", " + field.name + " " + field.sqlType;
        insert += "INSERT INTO Tables (tablenum, fieldname, fieldtype, fieldsize) VALUES (3, '" +
                  field.name + "', '" + field.tag + "', 0);";
    }
    raw.Run(create + ") STRICT;" + insert);
}

void FillTable(Cursor& records, FilterWriter& random) {
    for (int number = 0; number < 60; ++number) {
        records.AddNew();
        records.SetField("sndnum", number);
        for (std::size_t i = 1; i < kTestFields.size(); ++i)
            records.SetField(kTestFields[i].name, random.OneOf(kTestFields[i].values));
        records.Update();
    }
}

std::vector<std::int64_t> NumbersOf(Cursor& records) {
    std::vector<std::int64_t> numbers;
    for (; !records.Eof(); records.MoveNext())
        numbers.push_back(records.Number("sndnum"));
    return numbers;
}

std::vector<std::int64_t> NumbersFound(Cursor& records, const std::string& filter) {
    std::vector<std::int64_t> numbers;
    for (records.Find(filter, 1); !records.Eof(); records.Find(filter))
        numbers.push_back(records.Number("sndnum"));
    return numbers;
}

class FilterAgreement : public testing::TestWithParam<std::uint32_t> {};

TEST_P(FilterAgreement, TheSameRecordsMatchInTheFileAndInMemory) {
    OpenedAdventure adventure;
    adventure.Close();
    ReplaceTable(adventure.File());
    adventure.Reopen();
    FilterWriter random(GetParam());
    Cursor& all = adventure->OpenTable(TableNum::Sounds, "*");
    {
        Transaction transaction(*adventure);
        FillTable(all, random);
        transaction.Commit();
    }
    int matched = 0;
    for (int round = 0; round < 1000; ++round) {
        const std::string filter = random.Filter(3);
        Cursor& selected = adventure->OpenTable(TableNum::Free22, "* from sounds", filter, "sndnum");
        const auto fromFile = NumbersOf(selected);
        ASSERT_EQ(fromFile, NumbersFound(all, filter)) << filter;
        matched += static_cast<int>(fromFile.size());
    }
    EXPECT_GT(matched, 1000) << "the filters hardly select anything, so the test tells little";
}

INSTANTIATE_TEST_SUITE_P(Seeds, FilterAgreement, testing::Values(1u, 2u, 3u, 4u));

}  // namespace
}  // namespace fabula::store
