#pragma once

#include <string>
#include <string_view>

namespace fabula::engine {

/// A text cut at its first line end (the stored marker, "\r\n", "\r" or "\n").
struct LineSplit {
    std::string_view line;
    std::string_view rest;  ///< behind the line end
    bool ended = false;     ///< false: the text had no line end, `line` is all of it
};
LineSplit SplitAtLineEnd(std::string_view text);

/// Appends a text without tags as it is shown: entities as their characters and, in the text pane, the hard
/// space as a blank. (In the character pane its number is that of the copyright sign.)
void AppendShown(std::string_view text, bool characterPane, std::string& shown);

/// Appends the character of a number, as the tag "<#=n>" names it. The character pane takes every number up
/// to 255 as its own code. In the text pane 96 and 127 are the pound and copyright signs, as in the
/// character sets that the tag was made for, and 128 to 159 are those of Windows-1252. Nothing is appended
/// for a number that is no character.
void AppendCharacter(int number, bool characterPane, std::string& shown);

/// The text without its tags.
std::string StripTags(std::string_view text);

}  // namespace fabula::engine
