#include "interchange/condact_text.h"

#include "condacts/parser.h"
#include "text/utf8.h"

namespace fabula::interchange {
namespace {

using condacts::Catalogue;
using condacts::Converted;
using condacts::ParsedLine;
using condacts::Statement;

struct SourceWord {
    std::string_view word;
    std::string_view number;
};

constexpr SourceWord kSourceWords[] = {{"_", "252"}, {"CARRIED", "254"}, {"HERE", "255"}, {"WORN", "253"}};

void Append(std::string& line, std::string_view token) {
    if (!line.empty()) line += ' ';
    line += token;
}

std::string_view NumberOfSourceWord(std::string_view token) {
    for (const SourceWord& entry : kSourceWords) {
        if (text::EqualsNoCase(entry.word, token)) return entry.number;
    }
    return token;
}

void ReportUnknownName(Converted& converted, const ParsedLine& parsed) {
    if (!parsed.unknownName) return;
    converted.ok = false;
    converted.errors = condacts::InvalidCondActMessage(parsed.tokens[*parsed.unknownName].text);
    converted.faultyToken = *parsed.unknownName;
}

}  // namespace

Converted ConvertCAs(std::string_view text, const Catalogue& catalogue) {
    Converted converted;
    const ParsedLine parsed = condacts::ParseLine(text, catalogue);
    for (const Statement& statement : parsed.statements) {
        Append(converted.line, parsed.tokens[statement.name].text);
        const bool takesWord = condacts::FindWordCondition(statement.condAct->name) != nullptr;
        for (std::size_t p = 0; p < statement.paramsGiven; ++p) {
            const std::string_view token = parsed.Param(statement, p);
            Append(converted.line, takesWord ? token : NumberOfSourceWord(token));
        }
    }
    ReportUnknownName(converted, parsed);
    return converted;
}

Converted ConvertUnVelCAs(std::string_view text, const Catalogue& catalogue,
                          const condacts::WordIndex& words) {
    Converted converted;
    const ParsedLine parsed = condacts::ParseLine(text, catalogue);
    for (const Statement& statement : parsed.statements) {
        Append(converted.line, parsed.tokens[statement.name].text);
        const condacts::WordCondition* condition = condacts::FindWordCondition(statement.condAct->name);
        for (std::size_t p = 0; p < statement.paramsGiven; ++p) {
            const std::string_view token = parsed.Param(statement, p);
            const std::optional<int> number = condacts::WholeNumber(token);
            if (condition == nullptr || !number) {
                Append(converted.line, token);
                continue;
            }
            const std::optional<std::string> word = ConvExtLogs(condition->wordType, *number, words);
            if (!word) {
                converted.ok = false;
                converted.faultyToken = statement.name + 1 + p;
                converted.errors =
                    "word " + std::string(token) + " Type doesn't agree with " + statement.condAct->name;
                return converted;
            }
            Append(converted.line, *word);
        }
    }
    ReportUnknownName(converted, parsed);
    return converted;
}

std::optional<std::string> ConvExtLogs(int wordType, int number, const condacts::WordIndex& words) {
    if (number == condacts::kNoWordNumber) return std::string(condacts::kNoWord);
    for (const condacts::Word& word : words.All()) {
        if (word.number == number && word.type == wordType) return word.word;
    }
    return std::nullopt;
}

}  // namespace fabula::interchange
