#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <vector>

#include "platform/scripted_operator.h"
#include "qt/dialogs.h"

namespace fabula::test {

/// Boxes that a test answers beforehand. A question without an answer throws std::logic_error.
class ScriptedDialogs final : public qt::Dialogs {
  public:
    void AnswerNext(bool yes) { person_.AnswerNext(yes); }
    void AnswerFile(std::optional<std::filesystem::path> file) { files_.push_back(std::move(file)); }

    /// Called while a box is shown, as events come while a real one is.
    std::function<void()> whileTelling = [] {};

    const std::vector<platform::ScriptedOperator::Shown>& Boxes() const { return person_.Boxes(); }
    const std::vector<qt::FileQuestion>& Questions() const { return questions_; }

    void Tell(std::string_view text, std::string_view title) override {
        person_.Tell(text, title);
        whileTelling();
    }
    bool Confirm(std::string_view text, std::string_view title) override {
        return person_.Confirm(text, title);
    }
    std::optional<std::filesystem::path> ChooseFile(const qt::FileQuestion& question) override;

  private:
    platform::ScriptedOperator person_;
    std::deque<std::optional<std::filesystem::path>> files_;
    std::vector<qt::FileQuestion> questions_;
};

}  // namespace fabula::test
