#include "qt/help/help.h"

#include "qt/help/help_window.h"

namespace fabula::qt {

Help::Help(std::filesystem::path contents, platform::Dialogs& dialogs)
    : contents_(std::move(contents)),
      dialogs_(dialogs),
      request_([this](const HelpTopic& topic) { Show(topic); }) {}

Help::~Help() = default;

void Help::Show(const HelpTopic& topic) {
    if (!HelpBook(contents_).Exists())
        return dialogs_.Tell("The pages of the help were not found.", "Help");
    if (!window_) window_ = std::make_unique<HelpWindow>(contents_);
    window_->Show(topic);
}

void Help::Close() {
    window_.reset();
}

}  // namespace fabula::qt
