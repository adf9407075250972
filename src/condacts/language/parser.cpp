#include "condacts/language/parser.h"

#include <algorithm>

namespace fabula::condacts {
namespace {

bool IsBlank(char c) {
    return c <= ' ' || c >= 127 || static_cast<unsigned char>(c) >= 127;
}

template <typename FindName>
ParsedLine Parse(std::string_view line, FindName findName) {
    ParsedLine parsed;
    parsed.tokens = SplitLine(line);
    std::size_t i = 0;
    while (i < parsed.tokens.size()) {
        const CondAct* condAct = findName(parsed.tokens[i].text);
        if (condAct == nullptr) {
            parsed.unknownName = i;
            break;
        }
        const auto wanted = static_cast<std::size_t>(condAct->paramCount);
        const std::size_t given = std::min(wanted, parsed.tokens.size() - i - 1);
        parsed.statements.push_back({condAct, i, given});
        i += 1 + wanted;
    }
    return parsed;
}

}  // namespace

std::vector<Token> SplitLine(std::string_view line) {
    std::vector<Token> tokens;
    std::size_t i = 0;
    while (i < line.size()) {
        if (IsBlank(line[i])) {
            ++i;
            continue;
        }
        const std::size_t start = i;
        while (i < line.size() && !IsBlank(line[i]))
            ++i;
        tokens.push_back({line.substr(start, i - start), start});
    }
    return tokens;
}

int CountTokens(std::string_view line) {
    return static_cast<int>(SplitLine(line).size());
}

ParsedLine ParseLine(std::string_view line, const Catalogue& catalogue) {
    return Parse(line, [&](std::string_view name) { return catalogue.Find(name); });
}

ParsedLine ParseLine(std::string_view line, const Catalogue& catalogue, Dialect dialect) {
    return Parse(line, [&](std::string_view name) { return catalogue.Find(name, dialect); });
}

ParsedLine ParseNumericLine(std::string_view line, const Catalogue& catalogue) {
    return Parse(line, [&](std::string_view token) -> const CondAct* {
        const std::optional<int> number = NumberOfToken(token);
        return number ? catalogue.Find(*number) : nullptr;
    });
}

std::optional<int> NumberOfToken(std::string_view token) {
    if (token.empty()) return std::nullopt;
    int value = 0;
    for (const char c : token) {
        if (c < '0' || c > '9') return std::nullopt;
        value = std::min(value * 10 + (c - '0'), kBeyondNumbers);
    }
    return value;
}

std::string InvalidCondActMessage(std::string_view name) {
    return std::string(name) + " is an invalid Condition/Action";
}

std::string InvalidNumberMessage(std::size_t parameter) {
    return "Invalid number for parameter " + std::to_string(parameter);
}

std::string WrongWordTypeMessage(std::string_view word, const CondAct& condAct) {
    return "word " + std::string(word) + " Type doesn't agree with " + condAct.name;
}

}  // namespace fabula::condacts
