#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "authoring/fields/edit_screen.h"
#include "authoring/fields/record_comment.h"

namespace fabula::authoring {

/// The screen of a message, a system message or the description of a process table, by the context's
/// current table; another one throws std::logic_error.
class MessageScreen final : public EditScreen {
  public:
    MessageScreen(ScreenContext& context, ScreenKey key);

    std::string_view Caption() const;         ///< "Messages Editor"
    std::string_view Label() const;           ///< in front of the number: "Message #:"
    std::string_view PreviewCaption() const;  ///< "Converted Message"; "" where there is no preview
    bool TagsAllowed() const;
    /// The most characters that the record can hold; 0 when there is no such limit.
    std::size_t MostCharacters() const;

    /// The record in the screen. One that is new is not in the table before it is stored.
    int Number() const { return key_.key; }

    /// Goes on to another record of the table; for a screen in which nothing was typed.
    void GoTo(int key);

    /// The text, with "\n" for line ends. Typing sets Changed, even if the text is then as it was.
    const std::string& Text() const { return text_; }
    void TypeMessage(std::string text);
    bool Changed() const override { return changed_ || comment_.Changed(); }

    RecordComment* Comment() override { return &comment_; }

    /// False when the text is refused; the author has been told why.
    bool LeaveText();

    /// Goes to the record with the next lower (-1) or higher (1) number, which the context's current entry
    /// follows. The text must be valid; what was changed is stored first, and a new record without a change
    /// is dropped. False when the text is refused, and when there is no such record.
    bool Step(int step);

    /// Stores what was changed. True when the screen can close.
    bool Update();

  private:
    struct Personality;
    static const Personality& PersonalityOf(store::TableNum table);

    store::Cursor& OpenRecord() const;
    void Read();
    std::string ChangeName() const;
    void Store();

    const Personality& personality_;
    ScreenKey key_;
    std::string text_;
    bool changed_ = false;
    RecordComment comment_;
};

}  // namespace fabula::authoring
