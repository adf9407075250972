#include "player/scripted_dialogs.h"

#include <stdexcept>

namespace fabula::test {

std::optional<std::filesystem::path> ScriptedDialogs::ChooseFile(const qt::FileQuestion& question) {
    questions_.push_back(question);
    if (files_.empty()) throw std::logic_error("an unexpected file was asked for: " + question.title);
    auto file = files_.front();
    files_.pop_front();
    return file;
}

}  // namespace fabula::test
