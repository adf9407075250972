#pragma once

#include <string_view>

#include "authoring/document/screen_context.h"

namespace fabula::authoring {

class RecordComment;

/// What the screens that edit something have in common: a check for each field that is left, which tells
/// what is wrong with it and remembers which control that was.
class EditScreen {
  public:
    EditScreen(const EditScreen&) = delete;
    EditScreen& operator=(const EditScreen&) = delete;

    /// Where the screen, and the window that shows it, tells and asks.
    platform::Dialogs& Dialogs() const { return context_.dialogs; }

    /// The name of the control that was refused last, to which the focus goes back; "" before the first.
    std::string_view Refused() const { return refused_; }

    /// Whether something differs from what the screen opened with.
    virtual bool Changed() const = 0;

    /// The comment that the screen's record may have; nullptr where it has no record.
    virtual RecordComment* Comment() { return nullptr; }

    store::Adventure& Adventure() const { return context_.document.Adventure(); }

  protected:
    explicit EditScreen(ScreenContext& context) : context_(context) {}
    ~EditScreen() = default;

    bool IsMarlo() const { return Adventure().Kind() == store::AdventureKind::Marlo; }

    /// Tells why `control`, a text constant, is refused. False, so that a check can end with it.
    bool RefuseField(std::string_view control, std::string_view message, std::string_view title = "Error");
    /// The same where the author has answered a question with no: nothing more is told.
    bool KeepFocus(std::string_view control);
    /// Checks a text that the game shows; the fault is told.
    bool CheckText(std::string_view control, std::string_view typed, bool tagsAllowed);
    /// Checks that a text has at most `most` characters.
    bool CheckLength(std::string_view control, std::string_view typed, std::size_t most);

    ScreenContext& context_;

  private:
    std::string_view refused_;
};

}  // namespace fabula::authoring
