#pragma once

#include "platform/dialogs.h"

namespace fabula::ide {

/// The boxes of a window, some of which come at a time when nobody is there to read them.
class StillDialogs final : public platform::Dialogs {
  public:
    explicit StillDialogs(platform::Dialogs& boxes) : boxes_(boxes) {}

    /// While it lives no box is shown: what is told is dropped, and every question is declined.
    class Stillness {
      public:
        explicit Stillness(StillDialogs& dialogs) : dialogs_(dialogs) { dialogs_.isStill_ = true; }
        Stillness(const Stillness&) = delete;
        Stillness& operator=(const Stillness&) = delete;
        ~Stillness() { dialogs_.isStill_ = false; }

      private:
        StillDialogs& dialogs_;
    };

    void Tell(std::string_view text, std::string_view title) override;
    bool Confirm(std::string_view text, std::string_view title) override;
    bool Proceed(std::string_view text, std::string_view title) override;
    platform::Leaving AskLeaving(std::string_view text, std::string_view title) override;
    std::optional<std::filesystem::path> ChooseFile(const platform::FileQuestion& question) override;
    std::optional<std::string> AskText(const platform::TextQuestion& question) override;
    void Report(std::string_view text, std::string_view title) override;
    bool ProceedFromReport(std::string_view text, std::string_view title) override;

  private:
    platform::Dialogs& boxes_;
    bool isStill_ = false;
};

}  // namespace fabula::ide
