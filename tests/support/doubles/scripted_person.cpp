#include "support/doubles/scripted_person.h"

#include <stdexcept>

namespace fabula::platform {

void ScriptedPerson::Tell(std::string_view text, std::string_view title) {
    boxes_.push_back({std::string(text), std::string(title)});
}

bool ScriptedPerson::Confirm(std::string_view text, std::string_view title) {
    boxes_.push_back({std::string(text), std::string(title)});
    if (answers_.empty()) throw std::logic_error("an unexpected question was asked: " + std::string(text));
    const bool yes = answers_.front();
    answers_.pop_front();
    return yes;
}

}  // namespace fabula::platform
