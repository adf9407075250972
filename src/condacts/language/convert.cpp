#include "condacts/language/convert.h"

#include <cstddef>
#include <optional>

#include "condacts/language/parser.h"
#include "condacts/places.h"
#include "text/encoding/utf8.h"
#include "text/str_edit.h"

namespace fabula::condacts {
namespace {

std::optional<PlaceNumber> LocationNumber(std::string_view token) {
    for (const LocationWord& entry : kLocationWords) {
        if (text::EqualsNoCase(entry.word, token)) return entry.number;
    }
    return std::nullopt;
}

void Append(std::string& line, std::string_view token) {
    if (!line.empty()) line += ' ';
    line += token;
}

void AddError(Converted& converted, const std::string& message, std::size_t token) {
    if (converted.ok) converted.faultyToken = token;
    if (!converted.errors.empty()) converted.errors += " and ";
    converted.errors += message;
    converted.ok = false;
}

void AddMissingParameters(Converted& converted, const Statement& statement) {
    if (statement.paramsGiven < static_cast<std::size_t>(statement.condAct->paramCount)) {
        AddError(converted, kMissingParameter, statement.name);
    }
}

bool TakesWord(const CondAct& condAct, std::size_t param) {
    return param == 0 && condAct.params[0].kind == ParamKind::Word;
}

const Word* WordAsked(const CondAct& condAct, std::string_view token, const WordIndex& words) {
    const WordCondition* condition = FindWordCondition(condAct.name);
    return condition == nullptr ? nullptr : words.FindAsked(token, condition->wordType);
}

bool IsNumber(std::string_view token) {
    return NumberOfToken(token.substr(token.starts_with('-') ? 1 : 0)).has_value();
}

std::string_view WordOfNumber(const CondAct& condAct, std::string_view token, const WordIndex& words) {
    const WordCondition* condition = FindWordCondition(condAct.name);
    const std::optional<int> number = NumberOfToken(token);
    if (condition == nullptr || !number) return "";
    const Word* word = words.FindNumberTyped(WordNumber(*number), condition->wordType);
    return word == nullptr ? std::string_view() : std::string_view(word->word);
}

std::string TextParameter(const CondAct& condAct, std::size_t param, std::string_view token,
                          const WordIndex& words) {
    if (TakesWord(condAct, param)) return std::string(WordOfNumber(condAct, token, words));
    if (AdmitsLocationWords(condAct.params[param])) {
        for (const LocationWord& entry : kLocationWords) {
            if (NumberOfToken(token) == entry.number.value) return std::string(entry.word);
        }
    }
    return std::string(token);
}

}  // namespace

bool AdmitsLocationWords(const Parameter& parameter) {
    return parameter.kind == ParamKind::Location && parameter.maxValue == kLocationWordsAllowed;
}

std::string LocationWordsToNumbers(std::string_view line, const Catalogue& catalogue) {
    const ParsedLine parsed = ParseLine(line, catalogue);
    std::vector<std::string> tokens;
    for (const Token& token : parsed.tokens)
        tokens.emplace_back(token.text);
    for (const Statement& statement : parsed.statements) {
        for (std::size_t p = 0; p < statement.paramsGiven; ++p) {
            if (!AdmitsLocationWords(statement.condAct->params[p])) continue;
            std::string& token = tokens[statement.name + 1 + p];
            if (const std::optional<PlaceNumber> number = LocationNumber(token))
                token = std::to_string(number->value);
        }
    }
    std::string result;
    for (const std::string& token : tokens)
        Append(result, token);
    return result;
}

Converted CondActsToNumeric(std::string_view line, const Catalogue& catalogue, const WordIndex& words) {
    Converted converted;
    const ParsedLine parsed = ParseLine(line, catalogue);
    for (const Statement& statement : parsed.statements) {
        const CondAct& condAct = *statement.condAct;
        Append(converted.line, std::to_string(condAct.number));
        for (std::size_t p = 0; p < statement.paramsGiven; ++p) {
            const std::string_view token = parsed.Param(statement, p);
            const std::size_t place = statement.name + 1 + p;
            if (!TakesWord(condAct, p)) {
                Append(converted.line, token);
                if (!IsNumber(token)) AddError(converted, InvalidNumberMessage(p + 1), place);
            } else if (const Word* word = WordAsked(condAct, token, words)) {
                Append(converted.line, std::to_string(word->number.value));
            } else {
                AddError(converted, WrongWordTypeMessage(token, condAct), place);
            }
        }
        AddMissingParameters(converted, statement);
    }
    if (parsed.unknownName) {
        AddError(converted, InvalidCondActMessage(parsed.tokens[*parsed.unknownName].text),
                 *parsed.unknownName);
    }
    return converted;
}

Converted NumericToCondActs(std::string_view numericLine, const Catalogue& catalogue,
                            const WordIndex& words) {
    Converted converted;
    const ParsedLine parsed = ParseNumericLine(numericLine, catalogue);
    for (const Statement& statement : parsed.statements) {
        const CondAct& condAct = *statement.condAct;
        Append(converted.line, condAct.name);
        for (std::size_t p = 0; p < statement.paramsGiven; ++p) {
            const std::string_view token = parsed.Param(statement, p);
            const std::string text = TextParameter(condAct, p, token, words);
            Append(converted.line, text);
            if (text.empty())
                AddError(converted, WrongWordTypeMessage(token, condAct), statement.name + 1 + p);
        }
        AddMissingParameters(converted, statement);
    }
    if (parsed.unknownName) {
        AddError(converted, InvalidCondActMessage(parsed.tokens[*parsed.unknownName].text),
                 *parsed.unknownName);
    }
    converted.line = std::string(text::TrimBlanks(converted.line));
    return converted;
}

}  // namespace fabula::condacts
