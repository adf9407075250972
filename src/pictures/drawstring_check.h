#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "pictures/picture_book.h"

namespace fabula::pictures {

/// What a check of a whole drawstring found: its words, or the message of the first fault from the left.
struct DrawstringCheck {
    std::vector<std::string> words;
    std::string fault;  ///< empty when the drawstring passed
    /// The index of the word at fault, and of the word of its command. Where END is missing, both are the
    /// number of words.
    std::size_t faultAt = 0;
    std::size_t faultyCommand = 0;

    bool Passed() const { return fault.empty(); }
};

/// Checks the drawstring of a picture of that kind against the commands, characters and pictures of `book`.
///
/// The messages for a switch and for a colour name `lastAction`, the name of the action that a game ran
/// last, where one would expect the command's word. It is empty when no game has run.
DrawstringCheck ValidateDrawString(const PictureBook& book, std::string_view drawstring, PictureKind kind,
                                   std::string_view lastAction = "");

/// What a check of a command typed in the picture editor found: the command and its parameters, or the
/// message of the first fault. An empty line is no command and no fault.
struct TypedCommandCheck {
    const Command* command = nullptr;  ///< in the catalogue of the book
    std::vector<int> parameters;
    std::string fault;

    bool Passed() const { return fault.empty(); }
};

/// Checks a typed command for a picture of that kind. While RPLOT is on only attributes and RPLOT are
/// allowed.
TypedCommandCheck ValidateCommandLine(const PictureBook& book, std::string_view line, PictureKind kind,
                                      bool rplotOn);

}  // namespace fabula::pictures
