#pragma once

#include <string>
#include <string_view>

#include "platform/person.h"
#include "text/tag_catalogue.h"

namespace fabula::text {

// The markup of every text that a game shows. Tags stand in angle brackets, "<NAME>" or "<NAME=value>";
// four entities stand for the characters that would be taken for markup, and for a blank that does not
// break: "&amp;", "&lt;", "&gt;" and "&sp;". A text is judged word by word; words are what stands between
// blanks and line ends, and the stored line-end marker is a line end too.

/// The longest word of a description, in code points, its tags and entities not counted.
inline constexpr std::size_t kLongestWord = 30;

/// Where "<TAB>" goes on: in this column, counted from 0, or at the head of the next line when the text is
/// there already.
inline constexpr int kTabColumn = 16;

/// The size in points of a text to which neither a tag nor the settings give one.
inline constexpr int kDefaultPoints = 12;

/// The largest size in points at which a text is shown, that of the largest title. A file may ask for more.
inline constexpr int kMostPoints = 288;

/// The points, 1 to kMostPoints, at which a text of a file's `fontSize` is shown: kDefaultPoints where that
/// is 0 or less.
int ShownPoints(int fontSize);

/// What a check found: valid, or the first fault.
struct Verdict {
    std::string message = {};  ///< empty when valid
    int wordNumber =
        0;  ///< the word that is at fault, counted from 1; 0 when valid or where no word was named

    bool IsValid() const { return message.empty(); }

    /// As the author is shown it: "Word: 2 " and the message.
    std::string BoxText() const;

    friend bool operator==(const Verdict&, const Verdict&) = default;
};

/// Checks a whole description. A failure is shown to `author` in a box, when one is given.
Verdict ValidateDescription(std::string_view text, bool tagsAllowed, const TagCatalogue& tags,
                            platform::Person* author = nullptr);

/// Checks one word, the `wordNumber`th of its text.
Verdict ValidateWord(std::string_view word, int wordNumber, bool tagsAllowed, const TagCatalogue& tags,
                     platform::Person* author = nullptr);

/// Checks one tag, name and value, without its brackets. Messages repeat the tag as it is given here;
/// ValidateWord gives the name in upper case.
Verdict ValidateTag(std::string_view tag, const TagCatalogue& tags);

/// The text without its tags, which are added to `removed`. A "<" without a ">" behind it is no tag.
std::string StripTags(std::string_view text, std::string& removed);

/// The text as it is printed, with a character in place of each entity. "&amp;" goes first, so that
/// "&amp;lt;" prints as "<".
std::string ReplaceEntities(std::string_view text);

/// A text that knows no markup, with its "&", "<" and ">" turned into entities: for older files and
/// imports.
std::string EscapeMarkup(std::string_view text);

}  // namespace fabula::text
