#pragma once

#include <string>

#include "platform/dialogs.h"

class QWidget;

namespace fabula::qt {

/// Boxes on the screen, in front of `parent`; without one, in front of the window at hand.
class QtDialogs final : public platform::Dialogs {
  public:
    explicit QtDialogs(QWidget* parent = nullptr) : parent_(parent) {}
    void SetParent(QWidget* parent) { parent_ = parent; }

    void Tell(std::string_view text, std::string_view title) override;
    bool Confirm(std::string_view text, std::string_view title) override;
    bool Proceed(std::string_view text, std::string_view title) override;
    platform::Leaving AskLeaving(std::string_view text, std::string_view title) override;
    std::optional<std::filesystem::path> ChooseFile(const platform::FileQuestion& question) override;
    std::optional<std::string> AskText(const platform::TextQuestion& question) override;
    void Report(std::string_view text, std::string_view title) override;
    bool ProceedFromReport(std::string_view text, std::string_view title) override;

  private:
    QWidget* Parent() const;

    QWidget* parent_;
};

/// A filter in the form that Qt's dialogs take: "A|*.a;*.b|All files|*.*" is "A (*.a *.b);;All files (*)".
/// A description without a pattern shows all files.
std::string QtFilter(const std::string& filter);

}  // namespace fabula::qt
