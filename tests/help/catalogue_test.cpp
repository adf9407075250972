#include <map>
#include <sstream>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "default_data.h"
#include "help_pages.h"

/// What the pages say is compared with the default data, which says it to the program.
namespace fabula::help_test {
namespace {

using testing::Contains;
using testing::ElementsAreArray;
using testing::SizeIs;
using testing::StartsWith;
using tinyxml2::XMLElement;

using Row = std::vector<std::string>;

struct CondAct {
    std::string kind;
    std::string name;
    std::vector<std::string> params;  ///< how the page is to call them
    std::string page;
    std::string adventures;
    std::string pcSource;
};

std::string ParamText(const std::string& kind, const std::string& maxValue) {
    static const std::map<std::string, std::string> kKinds = {
        {"1", "Location"},       {"2", "Message"}, {"4", "Object"}, {"6", "Process table"},
        {"7", "System message"}, {"8", "Word"},    {"9", "Flag"},   {"10", "Value from 0 to "}};
    std::string text = kKinds.at(kind);
    if (kind == "1" && maxValue == "255") text += ", or NOTCR, WORN, CARRIED, HERE";
    if (kind == "7" && maxValue == "5") text += " from 2 to 5";
    if (kind == "10") text += maxValue;
    return text + ":";
}

/// The types of adventure whose columns, from the first on, are true.
std::string Adventures(const Row& row, std::size_t first) {
    std::string text;
    for (const char* type : {"Fabula", "VEL", "Marlo"}) {
        if (row.at(first++) == "True") text += (text.empty() ? "" : ", ") + std::string(type);
    }
    return text;
}

std::vector<CondAct> CondActs() {
    std::vector<CondAct> condActs;
    for (const Row& row : SectionRows("VELCONDACT")) {
        CondAct condAct{row.at(1),  row.at(2),           {},
                        row.at(10), Adventures(row, 11), row.at(14) == "True" ? "yes" : "no"};
        const auto count = static_cast<std::size_t>(std::stoi(row.at(4)));
        for (std::size_t p = 0; p < count; ++p)
            condAct.params.push_back(ParamText(row.at(5 + 2 * p), row.at(6 + 2 * p)));
        condActs.push_back(condAct);
    }
    EXPECT_THAT(condActs, SizeIs(123));
    return condActs;
}

std::map<std::string, std::size_t> ParamCounts() {
    std::map<std::string, std::size_t> counts;
    for (const CondAct& condAct : CondActs())
        counts[condAct.name] = condAct.params.size();
    return counts;
}

/// The values of the rows of a page's facts whose heading begins with a word.
std::vector<std::string> FactsOf(const HelpPage& page, std::string_view heading) {
    std::vector<std::string> values;
    for (const auto& [name, value] : Facts(page)) {
        if (name.starts_with(heading)) values.push_back(value);
    }
    return values;
}

std::string Fact(const HelpPage& page, const std::string& heading) {
    for (const auto& [name, value] : Facts(page)) {
        if (name == heading) return value;
    }
    return "(not stated)";
}

std::vector<std::string> ExampleTokens(const HelpPage& page) {
    const auto blocks = Elements(page, "pre");
    std::vector<std::string> tokens;
    if (blocks.empty()) return tokens;
    std::istringstream line(ShownText(*blocks.back()));
    for (std::string token; line >> token;)
        tokens.push_back(token);
    return tokens;
}

TEST(CondActPages, AreThereUnderTheNamesOfTheCatalogue) {
    for (const CondAct& condAct : CondActs())
        EXPECT_TRUE(PageExists(condAct.page)) << condAct.page;
}

TEST(CondActPages, AreHeadedByTheirNamesWithAnAnchor) {
    for (const CondAct& condAct : CondActs()) {
        const HelpPage& page = FindPage(condAct.page);
        std::string anchor;
        for (const char c : condAct.name)
            anchor += static_cast<char>(c >= 'A' && c <= 'Z' ? c - 'A' + 'a' : c);
        EXPECT_EQ(ShownText(*Elements(page, "h1").at(0)), condAct.name);
        EXPECT_THAT(AnchorNames(page), Contains(anchor)) << condAct.page;
    }
}

TEST(CondActPages, StateTheKindOfTheCatalogue) {
    for (const CondAct& condAct : CondActs())
        EXPECT_EQ(Fact(FindPage(condAct.page), "Kind"), condAct.kind) << condAct.page;
}

TEST(CondActPages, StateTheParametersOfTheCatalogue) {
    for (const CondAct& condAct : CondActs()) {
        const HelpPage& page = FindPage(condAct.page);
        const std::vector<std::string> stated = FactsOf(page, "Parameter ");
        EXPECT_EQ(Fact(page, "Parameters"), std::to_string(condAct.params.size())) << condAct.page;
        ASSERT_THAT(stated, SizeIs(condAct.params.size())) << condAct.page;
        for (std::size_t p = 0; p < stated.size(); ++p)
            EXPECT_THAT(stated[p], StartsWith(condAct.params[p])) << condAct.page;
    }
}

TEST(CondActPages, StateTheTypesOfAdventureOfTheCatalogue) {
    for (const CondAct& condAct : CondActs()) {
        EXPECT_EQ(Fact(FindPage(condAct.page), "Adventures"), condAct.adventures) << condAct.page;
        EXPECT_EQ(Fact(FindPage(condAct.page), "PC source"), condAct.pcSource) << condAct.page;
    }
}

TEST(CondActPages, TellWhatHappensToTheTurn) {
    for (const CondAct& condAct : CondActs())
        EXPECT_NE(Fact(FindPage(condAct.page), "The turn"), "(not stated)") << condAct.page;
}

TEST(CondActPages, ShowAnExampleWithNamesAndParametersOfTheCatalogue) {
    const std::map<std::string, std::size_t> paramCounts = ParamCounts();
    for (const CondAct& condAct : CondActs()) {
        const std::vector<std::string> tokens = ExampleTokens(FindPage(condAct.page));
        EXPECT_THAT(tokens, Contains(condAct.name)) << condAct.page;
        std::size_t at = 0;
        while (at < tokens.size()) {
            const auto found = paramCounts.find(tokens[at]);
            ASSERT_NE(found, paramCounts.end()) << condAct.page << ": " << tokens[at];
            at += 1 + found->second;
        }
        EXPECT_EQ(at, tokens.size()) << condAct.page;
    }
}

TEST(CondActPages, AreListedOnTheIndexPagesOfTheirKind) {
    std::map<std::string, int> conditionLinks;
    std::map<std::string, int> actionLinks;
    for (const HelpPage& page : HelpPages()) {
        const bool listsActions = page.name.starts_with("actions_");
        if (!listsActions && page.name != "conditions.html") continue;
        for (const XMLElement* row : Elements(page, "tr")) {
            const XMLElement* cell = Children(*row).at(0);
            for (const XMLElement* link : Children(*cell))
                ++(listsActions ? actionLinks : conditionLinks)[Attribute(*link, "href")];
        }
    }
    for (const CondAct& condAct : CondActs()) {
        const bool action = condAct.kind == "Action";
        EXPECT_EQ(actionLinks[condAct.page], action ? 1 : 0) << condAct.page;
        EXPECT_EQ(conditionLinks[condAct.page], action ? 0 : 1) << condAct.page;
    }
}

struct Command {
    std::string name;
    std::vector<std::string> typed;
    std::vector<std::string> drawn;
    std::string page;
    std::string adventures;
};

/// The codes of `count` parameters from a column on, as pages call them.
std::vector<std::string> CodeTexts(const Row& row, std::size_t first, const std::string& count) {
    static const std::map<std::string, std::string> kCodes = {
        {"BO", "Switch 0 or 1:"},
        {"CH", "Character 32 to 164:"},
        {"CO", "Colour 0 to 8:"},
        {"CX", "Column 0 to 31:"},
        {"HE", "Height 0 to 21:"},
        {"IO", "Mode 0, 1, 10 or 11:"},
        {"LO", "Picture:"},
        {"PA", "Pattern 0 to 225:"},
        {"QS", "Shade byte 1 to 255:"},
        {"R1", "Step -1 to 1:"},
        {"RO", "Row 0 to 21:"},
        {"RX", "Distance -255 to 255:"},
        {"RY", "Distance -175 to 175:"},
        {"SC", "Scale sc=0 to sc=7:"},
        {"SE", "Set:"},
        {"SH", "Shade 0 to 15:"},
        {"WI", "Width 0 to 31:"},
        {"XP", "X up to 255:"},
        {"YP", "Y up to 175:"},
    };
    std::vector<std::string> texts;
    for (std::size_t p = 0; p < static_cast<std::size_t>(std::stoi(count)); ++p)
        texts.push_back(kCodes.at(row.at(first + p)));
    return texts;
}

std::vector<Command> Commands() {
    std::vector<Command> commands;
    for (const Row& row : SectionRows("VELCOMMANDS")) {
        commands.push_back({row.at(1), CodeTexts(row, 6, row.at(4)), CodeTexts(row, 9, row.at(5)),
                            row.at(15), Adventures(row, 16)});
    }
    EXPECT_THAT(commands, SizeIs(32));
    return commands;
}

void ExpectParameters(const HelpPage& page, const std::string& word,
                      const std::vector<std::string>& params) {
    const std::vector<std::string> stated = FactsOf(page, word + " ");
    EXPECT_EQ(Fact(page, word + "s"), std::to_string(params.size())) << page.name;
    ASSERT_THAT(stated, SizeIs(params.size())) << page.name;
    for (std::size_t p = 0; p < stated.size(); ++p)
        EXPECT_THAT(stated[p], StartsWith(params[p])) << page.name;
}

TEST(CommandPages, AreThereUnderTheNamesOfTheCatalogue) {
    for (const Command& command : Commands()) {
        ASSERT_TRUE(PageExists(command.page)) << command.page;
        EXPECT_THAT(ShownText(*Elements(FindPage(command.page), "h1").at(0)),
                    StartsWith(command.name + " ("));
    }
}

TEST(CommandPages, StateTheParametersOfTheCatalogue) {
    for (const Command& command : Commands()) {
        ExpectParameters(FindPage(command.page), "Parameter", command.drawn);
        ExpectParameters(FindPage(command.page), "Typed parameter", command.typed);
    }
}

TEST(CommandPages, StateTheTypesOfAdventureOfTheCatalogue) {
    for (const Command& command : Commands())
        EXPECT_EQ(Fact(FindPage(command.page), "Adventures"), command.adventures) << command.page;
}

TEST(CommandPages, ShowAnExampleWithTheWord) {
    for (const Command& command : Commands())
        EXPECT_THAT(ExampleTokens(FindPage(command.page)), Contains(command.name)) << command.page;
}

/// The cells of the rows whose first cell has an anchor that begins so, by the anchor.
std::map<std::string, std::vector<std::string>> AnchoredRows(const HelpPage& page,
                                                             std::string_view prefix) {
    std::map<std::string, std::vector<std::string>> rows;
    for (const XMLElement* row : Elements(page, "tr")) {
        const auto cells = Children(*row);
        const XMLElement* anchor = cells.at(0)->FirstChildElement("a");
        if (!anchor || !Attribute(*anchor, "name").starts_with(prefix)) continue;
        for (const XMLElement* cell : cells)
            rows[Attribute(*anchor, "name")].push_back(ShownText(*cell));
    }
    return rows;
}

TEST(FlagsPage, SaysOfEachFlagWhatTheDefaultDataSays) {
    constexpr int kFirstReserved = 1019;
    std::map<std::string, std::vector<std::string>> expected;
    std::string number;
    for (const Row& row : SectionRows("VELFLAGS")) {
        if (row.size() == 1) number = row[0].substr(1);
        if (row.size() != 5 || row[4].find_first_not_of(' ') == std::string::npos) continue;
        if (std::stoi(number) < kFirstReserved) expected["f" + number] = {number, row[1], row[4]};
    }
    EXPECT_EQ(AnchoredRows(FindPage("flags.html"), "f"), expected);
}

TEST(SystemMessagesPage, HasEveryMessageOfTheDefaultData) {
    std::map<std::string, std::string> expected;
    std::string* message = nullptr;
    for (const std::string& line : SectionLines("FABULASYSMESS")) {
        if (line.starts_with('/')) {
            message = &expected["m" + line.substr(1)];
        } else {
            *message += line;
        }
    }
    const auto rows = AnchoredRows(FindPage("systemmessages.html"), "m");
    EXPECT_THAT(rows, SizeIs(expected.size()));
    for (auto& [anchor, text] : expected) {
        while (text.ends_with(' '))
            text.pop_back();
        while (text.starts_with(' '))
            text.erase(0, 1);
        if (text.empty()) text = "(empty)";
        if (text == "&gt;") text = ">";
        ASSERT_TRUE(rows.contains(anchor)) << anchor;
        EXPECT_EQ(rows.at(anchor).at(1), text) << anchor;
    }
}

/// The pairs of number and name in the tables of a page that have such columns, beside each other.
std::map<int, std::string> NumberedNames(const HelpPage& page, std::string_view heading) {
    std::map<int, std::string> names;
    for (const XMLElement* table : Elements(page, "table")) {
        const auto rows = Children(*table);
        const auto headings = Children(*rows.at(0));
        if (headings.size() < 2 || ShownText(*headings[1]) != heading) continue;
        for (std::size_t r = 1; r < rows.size(); ++r) {
            const auto cells = Children(*rows[r]);
            for (std::size_t c = 0; c + 1 < cells.size(); c += 2) {
                const std::string number = ShownText(*cells[c]);
                if (!number.empty()) names[std::stoi(number)] = ShownText(*cells[c + 1]);
            }
        }
    }
    return names;
}

std::map<int, std::string> NamesInCodes(std::size_t column) {
    std::map<int, std::string> names;
    for (const Row& row : SectionRows("VELCODES")) {
        if (!row.at(column).empty()) names[std::stoi(row.at(0))] = row.at(column);
    }
    return names;
}

TEST(SoundPage, HasTheVoicesOfTheSpecialCodes) {
    EXPECT_EQ(NumberedNames(FindPage("sound.html"), "voice"), NamesInCodes(1));
}

TEST(MarkupPage, HasTheFontsOfTheSpecialCodes) {
    EXPECT_EQ(NumberedNames(FindPage("markup.html"), "font"), NamesInCodes(2));
}

TEST(MarkupPage, HasEveryTagOfTheSpecialCodes) {
    std::string shown;
    for (const XMLElement* code : Elements(FindPage("markup.html"), "code"))
        shown += ShownText(*code);
    for (const auto& [number, tag] : NamesInCodes(4)) {
        std::string capitals;
        for (const char c : tag)
            capitals += static_cast<char>(c >= 'a' && c <= 'z' ? c - 'a' + 'A' : c);
        EXPECT_THAT(shown, testing::ContainsRegex("<" + capitals + "(=n)?>")) << tag;
    }
}

}  // namespace
}  // namespace fabula::help_test
