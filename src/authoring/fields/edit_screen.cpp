#include "authoring/fields/edit_screen.h"

#include <string>

#include "store/tags.h"
#include "text/encoding/utf8.h"
#include "text/markup.h"

namespace fabula::authoring {

bool EditScreen::RefuseField(std::string_view control, std::string_view message, std::string_view title) {
    context_.dialogs.Tell(message, title);
    return KeepFocus(control);
}

bool EditScreen::KeepFocus(std::string_view control) {
    refused_ = control;
    return false;
}

bool EditScreen::CheckText(std::string_view control, std::string_view typed, bool tagsAllowed) {
    const text::TagCatalogue tags = store::LoadTagCatalogue(Adventure());
    if (text::ValidateDescription(typed, tagsAllowed, tags, &context_.dialogs).IsValid()) return true;
    return KeepFocus(control);
}

bool EditScreen::CheckLength(std::string_view control, std::string_view typed, std::size_t most) {
    const std::size_t length = text::Length(typed);
    if (length <= most) return true;
    return RefuseField(control, "A maximum of " + std::to_string(most) +
                                    " characters is allowed.\nYou have " + std::to_string(length));
}

}  // namespace fabula::authoring
