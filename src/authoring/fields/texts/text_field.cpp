#include "authoring/fields/texts/text_field.h"

#include "text/line_ends.h"
#include "text/str_edit.h"

namespace fabula::authoring {

std::string ToEdited(std::string_view stored) {
    if (stored == " ") return {};
    return text::ReplaceAll(text::NormalizeLineEnds(stored, "\n"), text::kLineEndMarker, "\n");
}

std::string ToStored(std::string_view typed) {
    if (typed.empty()) return " ";
    return text::NormalizeLineEnds(typed, text::kLineEndMarker);
}

}  // namespace fabula::authoring
