#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "condacts/language/catalogue.h"
#include "condacts/numbers.h"

namespace fabula::condacts {

/// One name or parameter of a line, with the place of its first byte in the line.
struct Token {
    std::string_view text;
    std::size_t position = 0;
};

/// The tokens of a line: what stands between blanks. As in the keywords "compress,trim", every character
/// outside the range 33 to 126 counts as a blank. The tokens look into `line`.
std::vector<Token> SplitLine(std::string_view line);

/// How many tokens a line holds, names and parameters together (`numcas`).
int CountTokens(std::string_view line);

/// One condition or action of a line, with its parameters.
struct Statement {
    const CondAct* condAct = nullptr;
    std::size_t name = 0;         ///< index of its name among the tokens
    std::size_t paramsGiven = 0;  ///< fewer than it takes only at the end of the line
};

/// A line of conditions and actions in its parts, which look into the text that was parsed.
struct ParsedLine {
    std::vector<Token> tokens;
    std::vector<Statement> statements;
    /// The token that should have been a name and is none; the statements end before it.
    std::optional<std::size_t> unknownName;

    /// A parameter of a statement, counted from 0; it must be one of those given.
    std::string_view Param(const Statement& statement, std::size_t param) const {
        return tokens[statement.name + 1 + param].text;
    }
};

/// Reads a line in text form: each name takes as many tokens behind it as it has parameters.
ParsedLine ParseLine(std::string_view line, const Catalogue& catalogue);
/// The same, with only the names of one dialect.
ParsedLine ParseLine(std::string_view line, const Catalogue& catalogue, Dialect dialect);
/// Reads a line in numeric form.
ParsedLine ParseNumericLine(std::string_view line, const Catalogue& catalogue);

/// The value of a token of digits; nullopt for any other. Every value beyond 16 bits counts as
/// kBeyondNumbers.
std::optional<int> NumberOfToken(std::string_view token);
inline constexpr int kBeyondNumbers = kHighestNumber + 1;

// What is told of a line that can't stand.
/// "XYZ is an invalid Condition/Action"
std::string InvalidCondActMessage(std::string_view name);
/// "Invalid number for parameter 1"; the first parameter is 1.
std::string InvalidNumberMessage(std::size_t parameter);
/// "word LAMP Type doesn't agree with ADJECT1"
std::string WrongWordTypeMessage(std::string_view word, const CondAct& condAct);
inline constexpr const char* kMissingParameter = "No parameter where there should be one";

}  // namespace fabula::condacts
