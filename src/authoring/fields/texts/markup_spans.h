#pragma once

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

#include "text/markup.h"

namespace fabula::authoring {

// What an editor of texts marks in them. Places and sizes are bytes of the text that was given, which may
// be a whole description or one line of it: a word never goes over a line end.

/// What a part of a text is to its markup.
enum class MarkupKind {
    Tag,     ///< brackets, name and "=" of a tag
    Value,   ///< what stands behind the "="
    Entity,  ///< "&amp;" and its like
    Fault,   ///< what ValidateDescription would refuse; lies over the others
};

/// A part of a text, in bytes from its start.
struct MarkupSpan {
    MarkupKind kind = MarkupKind::Tag;
    std::size_t begin = 0;
    std::size_t size = 0;

    friend bool operator==(const MarkupSpan&, const MarkupSpan&) = default;
};

/// All markup of a text in its order, then the first fault of each word.
std::vector<MarkupSpan> MarkupSpans(std::string_view text, bool tagsAllowed,
                                    const text::TagCatalogue& tags);

/// A verdict with its place: a tag, an entity or a bracket where that alone is at fault, else the word.
struct DescriptionFault {
    text::Verdict verdict;
    std::size_t begin = 0;
    std::size_t size = 0;
};

/// The fault that ValidateDescription finds first; nullopt when the text is valid.
std::optional<DescriptionFault> FirstFault(std::string_view text, bool tagsAllowed,
                                           const text::TagCatalogue& tags);

}  // namespace fabula::authoring
