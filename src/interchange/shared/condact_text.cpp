#include "interchange/shared/condact_text.h"

#include "condacts/language/parser.h"
#include "condacts/places.h"
#include "text/encoding/utf8.h"

namespace fabula::interchange {
namespace {

using condacts::Catalogue;
using condacts::Converted;
using condacts::ParsedLine;
using condacts::Statement;

/// The words of sources for places. "_" is the one of their own.
constexpr condacts::LocationWord kSourceWords[] = {{condacts::kNoWord, condacts::place::kNotCreated},
                                                   {"CARRIED", condacts::place::kCarried},
                                                   {"HERE", condacts::place::kHere},
                                                   {"WORN", condacts::place::kWorn}};

void Append(std::string& line, std::string_view token) {
    if (!line.empty()) line += ' ';
    line += token;
}

std::string NumberOfSourceWord(std::string_view token) {
    for (const auto& [word, place] : kSourceWords) {
        if (text::EqualsNoCase(word, token)) return std::to_string(place.value);
    }
    return std::string(token);
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
            Append(converted.line, takesWord ? std::string(token) : NumberOfSourceWord(token));
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
            const std::optional<int> number = condacts::NumberOfToken(token);
            if (condition == nullptr || !number) {
                Append(converted.line, token);
                continue;
            }
            const std::optional<std::string> word =
                ConvExtLogs(condition->wordType, condacts::WordNumber(*number), words);
            if (!word) {
                converted.ok = false;
                converted.faultyToken = statement.name + 1 + p;
                converted.errors = condacts::WrongWordTypeMessage(token, *statement.condAct);
                return converted;
            }
            Append(converted.line, *word);
        }
    }
    ReportUnknownName(converted, parsed);
    return converted;
}

std::optional<std::string> ConvExtLogs(condacts::WordType wordType, condacts::WordNumber number,
                                       const condacts::WordIndex& words) {
    if (number == condacts::kNoWordNumber) return std::string(condacts::kNoWord);
    for (const condacts::Word& word : words.All()) {
        if (word.number == number && word.type == wordType) return word.word;
    }
    return std::nullopt;
}

}  // namespace fabula::interchange
