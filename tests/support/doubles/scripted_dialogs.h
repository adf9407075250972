#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <vector>

#include "platform/dialogs.h"
#include "support/doubles/scripted_person.h"

namespace fabula::platform {

/// Boxes that a test answers beforehand. A question without an answer throws std::logic_error.
class ScriptedDialogs final : public Dialogs {
  public:
    using Shown = ScriptedPerson::Shown;

    /// Answers Yes and No, and OK and Cancel.
    void AnswerNext(bool yes) { person_.AnswerNext(yes); }
    void AnswerFile(std::optional<std::filesystem::path> file) { files_.push_back(std::move(file)); }
    void AnswerText(std::optional<std::string> text) { texts_.push_back(std::move(text)); }

    void AnswerLeaving(Leaving answer) { leavings_.push_back(answer); }

    /// Called while a box is shown, as events come while a real one is.
    std::function<void()> whileTelling = [] {};

    /// Every box of a text and its answers so far, questions too, in order.
    const std::vector<Shown>& Boxes() const { return person_.Boxes(); }
    const std::vector<FileQuestion>& Questions() const { return questions_; }
    const std::vector<TextQuestion>& TextQuestions() const { return textQuestions_; }
    const std::vector<Shown>& Reports() const { return reports_; }

    void Tell(std::string_view text, std::string_view title) override;
    bool Confirm(std::string_view text, std::string_view title) override;
    bool Proceed(std::string_view text, std::string_view title) override;
    Leaving AskLeaving(std::string_view text, std::string_view title) override;
    std::optional<std::filesystem::path> ChooseFile(const FileQuestion& question) override;
    std::optional<std::string> AskText(const TextQuestion& question) override;
    void Report(std::string_view text, std::string_view title) override;
    bool ProceedFromReport(std::string_view text, std::string_view title) override;

  private:
    ScriptedPerson person_;
    std::deque<std::optional<std::filesystem::path>> files_;
    std::deque<std::optional<std::string>> texts_;
    std::deque<Leaving> leavings_;
    std::vector<FileQuestion> questions_;
    std::vector<TextQuestion> textQuestions_;
    std::vector<Shown> reports_;
};

}  // namespace fabula::platform
