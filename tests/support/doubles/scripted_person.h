#pragma once

#include <deque>
#include <string>
#include <vector>

#include "platform/person.h"

namespace fabula::platform {

/// A Person for tests: answers what it was told to answer, and keeps what it was shown.
class ScriptedPerson final : public Person {
  public:
    struct Shown {
        std::string text;
        std::string title;

        friend bool operator==(const Shown&, const Shown&) = default;
    };

    /// Queues the answer to the next question that has none yet.
    void AnswerNext(bool yes) { answers_.push_back(yes); }

    /// Every box so far, questions too, in order.
    const std::vector<Shown>& Boxes() const { return boxes_; }

    void Tell(std::string_view text, std::string_view title) override;

    /// Throws std::logic_error when no answer is queued: a test must expect its questions.
    bool Confirm(std::string_view text, std::string_view title) override;

  private:
    std::deque<bool> answers_;
    std::vector<Shown> boxes_;
};

}  // namespace fabula::platform
