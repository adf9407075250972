#include "ide/window/still_dialogs.h"

namespace fabula::ide {

void StillDialogs::Tell(std::string_view text, std::string_view title) {
    if (!isStill_) boxes_.Tell(text, title);
}

bool StillDialogs::Confirm(std::string_view text, std::string_view title) {
    return !isStill_ && boxes_.Confirm(text, title);
}

bool StillDialogs::Proceed(std::string_view text, std::string_view title) {
    return !isStill_ && boxes_.Proceed(text, title);
}

platform::Leaving StillDialogs::AskLeaving(std::string_view text, std::string_view title) {
    return isStill_ ? platform::Leaving::KeepEditing : boxes_.AskLeaving(text, title);
}

std::optional<std::filesystem::path> StillDialogs::ChooseFile(const platform::FileQuestion& question) {
    return isStill_ ? std::nullopt : boxes_.ChooseFile(question);
}

std::optional<std::string> StillDialogs::AskText(const platform::TextQuestion& question) {
    return isStill_ ? std::nullopt : boxes_.AskText(question);
}

void StillDialogs::Report(std::string_view text, std::string_view title) {
    if (!isStill_) boxes_.Report(text, title);
}

bool StillDialogs::ProceedFromReport(std::string_view text, std::string_view title) {
    return !isStill_ && boxes_.ProceedFromReport(text, title);
}

}  // namespace fabula::ide
