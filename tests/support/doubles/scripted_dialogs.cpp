#include "support/doubles/scripted_dialogs.h"

#include <stdexcept>

namespace fabula::platform {

void ScriptedDialogs::Tell(std::string_view text, std::string_view title) {
    person_.Tell(text, title);
    whileTelling();
}

bool ScriptedDialogs::Confirm(std::string_view text, std::string_view title) {
    return person_.Confirm(text, title);
}

bool ScriptedDialogs::Proceed(std::string_view text, std::string_view title) {
    return person_.Confirm(text, title);
}

Leaving ScriptedDialogs::AskLeaving(std::string_view text, std::string_view title) {
    person_.Tell(text, title);
    if (leavings_.empty()) throw std::logic_error("an unexpected question was asked: " + std::string(text));
    const Leaving answer = leavings_.front();
    leavings_.pop_front();
    return answer;
}

std::optional<std::filesystem::path> ScriptedDialogs::ChooseFile(const FileQuestion& question) {
    questions_.push_back(question);
    if (files_.empty()) throw std::logic_error("an unexpected file was asked for: " + question.title);
    auto file = std::move(files_.front());
    files_.pop_front();
    return file;
}

std::optional<std::string> ScriptedDialogs::AskText(const TextQuestion& question) {
    textQuestions_.push_back(question);
    if (texts_.empty()) throw std::logic_error("an unexpected text was asked for: " + question.prompt);
    auto text = std::move(texts_.front());
    texts_.pop_front();
    return text;
}

void ScriptedDialogs::Report(std::string_view text, std::string_view title) {
    reports_.push_back({std::string(text), std::string(title)});
}

bool ScriptedDialogs::ProceedFromReport(std::string_view text, std::string_view title) {
    Report(text, title);
    return person_.Confirm(text, title);
}

}  // namespace fabula::platform
