#pragma once

#include <filesystem>
#include <memory>

#include "platform/dialogs.h"
#include "qt/help/help_request.h"

namespace fabula::qt {

class HelpWindow;

/// The help of a program: one window, which is made when it is first asked for, and F1 in every window.
class Help {
  public:
    /// `contents` is the page of contents, beside which the other pages lie. When there is none, asking for
    /// help says so.
    Help(std::filesystem::path contents, platform::Dialogs& dialogs);
    ~Help();

    /// Shows the page of a topic; without a page the contents.
    void Show(const HelpTopic& topic);
    void Close();

    /// nullptr as long as nobody has asked for it.
    HelpWindow* Window() const { return window_.get(); }

  private:
    std::filesystem::path contents_;
    platform::Dialogs& dialogs_;
    HelpRequest request_;
    std::unique_ptr<HelpWindow> window_;
};

}  // namespace fabula::qt
