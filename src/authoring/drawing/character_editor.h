#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "authoring/screens/record_screen.h"
#include "pictures/characters/character_sets.h"
#include "pictures/characters/glyph.h"
#include "pictures/command_catalogue.h"

namespace fabula::authoring {

/// What can be done to a character at one stroke.
enum class CharacterEdit {
    Clear,
    ShiftLeft,
    ShiftRight,
    ShiftUp,
    ShiftDown,
    Rotate,
    MirrorSideways,
    MirrorUpsideDown,
    Invert,
};

/// Edits one character of a set: a grid of 8 by 8 squares, and two samples that show the character as it
/// was when it was drawn anew the last time.
class CharacterEditor final : public RecordScreen {
  public:
    CharacterEditor(ScreenContext& context, ScreenKey key);

    std::string commandLine;

    /// " Set 3 Character 65"
    const std::string& StatusLine() const { return status_; }
    static constexpr std::string_view kHint = "Mouse Left Click: Toggle\nR to redraw, C to Clear";
    int Set() const { return set_; }
    int Number() const { return number_; }

    /// Whether a square is ink; its index is its row times 8 plus its column.
    bool Square(int index) const;
    /// The character of the samples.
    const pictures::Glyph& Drawn() const { return drawn_; }
    /// The `charvals` of the character that was drawn last.
    std::string CharVals() const { return pictures::FormatCharVals(drawn_); }

    /// A click on a square toggles it; the samples wait for a ReDraw.
    void Click(int square);
    /// The square that the keyboard is on, and the keys that move it, over the edges to the other side.
    int Current() const { return current_; }
    void MoveCurrent(int columns, int rows);
    void GoTo(int square) { current_ = square; }
    void ToggleCurrent() { Click(current_); }

    /// Does what is typed at the command line, and empties it. False when there is no such command.
    bool RunCommandLine();
    void ReDraw();
    void ClearChr() { Do(CharacterEdit::Clear); }
    void Do(CharacterEdit edit);

    /// The squares as text for the clipboard, and back; a text that is none is refused.
    std::string Copy() const { return pictures::FormatCharVals(squares_); }
    bool Paste(std::string_view text);

    bool CanUndo() const { return !done_.empty(); }
    bool CanRedo() const { return !undone_.empty(); }
    void Undo();
    void Redo();

    /// The characters of a line of text in the set, this one as it is drawn. Those that the set lacks are
    /// blank.
    std::vector<pictures::Glyph> Sample(std::string_view line) const;

  protected:
    bool FieldsChanged() const override { return changed_; }
    bool UpdateFields() override;

  private:
    struct State {
        pictures::Glyph squares;
        pictures::Glyph drawn;
    };

    void Remember();
    void Change(const pictures::Glyph& squares);

    pictures::CommandCatalogue commands_;
    pictures::CharacterSets sets_;
    std::string status_;
    int set_ = 0;
    int number_ = 0;
    pictures::Glyph squares_{};
    pictures::Glyph drawn_{};
    bool changed_ = false;
    int current_ = 0;
    std::vector<State> done_;
    std::vector<State> undone_;
};

}  // namespace fabula::authoring
