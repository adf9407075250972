#include "authoring/drawing/character_editor.h"

#include <algorithm>

#include "pictures/book_loader.h"
#include "pictures/characters/glyph_edits.h"
#include "pictures/drawstring.h"
#include "text/encoding/utf8.h"
#include "text/str_edit.h"

namespace fabula::authoring {

using pictures::Glyph;
using store::TableNum;

namespace {

constexpr int kSide = pictures::kGlyphSide;
constexpr int kSquares = kSide * kSide;

/// The words of this editor in the catalogue.
enum CharacterCommand : int { kReDraw = 401, kClearChr = 402 };
constexpr int kFirstCharacterCommand = 401;

Glyph EditedValues(const Glyph& glyph, CharacterEdit edit) {
    switch (edit) {
        case CharacterEdit::Clear:
            return {};
        case CharacterEdit::ShiftLeft:
            return pictures::ShiftLeft(glyph);
        case CharacterEdit::ShiftRight:
            return pictures::ShiftRight(glyph);
        case CharacterEdit::ShiftUp:
            return pictures::ShiftUp(glyph);
        case CharacterEdit::ShiftDown:
            return pictures::ShiftDown(glyph);
        case CharacterEdit::Rotate:
            return pictures::Rotate(glyph);
        case CharacterEdit::MirrorSideways:
            return pictures::MirrorSideways(glyph);
        case CharacterEdit::MirrorUpsideDown:
            return pictures::MirrorUpsideDown(glyph);
        case CharacterEdit::Invert:
            return pictures::Invert(glyph);
    }
    return glyph;
}

}  // namespace

CharacterEditor::CharacterEditor(ScreenContext& context, ScreenKey key)
    : RecordScreen(context, TableNum::Characters, key, "character"),
      commands_(pictures::LoadCommands(context.document.Adventure())),
      sets_(pictures::LoadCharacterSets(context.document.Adventure())) {
    const store::Cursor& record = OpenRecord();
    set_ = static_cast<int>(record.Number("charsetnum"));
    number_ = static_cast<int>(record.Number("charnum"));
    drawn_ = pictures::ParseCharVals(record.Text("charvals"));
    squares_ = drawn_;
    status_ = " Set " + std::to_string(set_) + " Character " + std::to_string(number_);
}

bool CharacterEditor::Square(int index) const {
    return pictures::HasBit(squares_, index % kSide, index / kSide);
}

void CharacterEditor::Remember() {
    done_.push_back({squares_, drawn_});
    undone_.clear();
}

void CharacterEditor::Click(int square) {
    if (square < 0 || square >= kSquares) return;
    Remember();
    current_ = square;
    changed_ = true;
    squares_ = pictures::WithPixel(squares_, square % kSide, square / kSide, !Square(square));
}

void CharacterEditor::MoveCurrent(int columns, int rows) {
    const int column = (current_ % kSide + columns + kSide) % kSide;
    const int row = (current_ / kSide + rows + kSide) % kSide;
    current_ = row * kSide + column;
}

bool CharacterEditor::RunCommandLine() {
    const std::string word = text::CollapseText(commandLine);
    if (word.empty()) return true;
    const auto known = std::ranges::find_if(commands_.All(), [&](const pictures::Command& command) {
        return command.number >= kFirstCharacterCommand && text::EqualsNoCase(command.name, word);
    });
    if (known == commands_.All().end()) return RefuseField("CommandLine", "Invalid command " + word);
    commandLine.clear();
    if (known->number == kReDraw) ReDraw();
    if (known->number == kClearChr) ClearChr();
    return true;
}

void CharacterEditor::ReDraw() {
    if (drawn_ == squares_) return;
    Remember();
    drawn_ = squares_;
}

/// All squares at once, and the samples with them.
void CharacterEditor::Change(const Glyph& squares) {
    if (squares == squares_ && squares == drawn_) return;
    Remember();
    if (squares != squares_) changed_ = true;
    squares_ = squares;
    drawn_ = squares;
}

void CharacterEditor::Do(CharacterEdit edit) {
    Change(EditedValues(squares_, edit));
}

bool CharacterEditor::Paste(std::string_view text) {
    const std::vector<std::string> words = pictures::DrawstringWords(text);
    const bool isCharacter =
        words.size() == kSide && std::ranges::all_of(words, [](const std::string& word) {
            const auto value = pictures::ParameterValue(word);
            return value && *value >= 0 && *value <= 255;
        });
    if (!isCharacter) return Refuse(Dialogs(), "There is no character to paste.");
    Change(pictures::ParseCharVals(pictures::JoinWords(words)));
    return true;
}

void CharacterEditor::Undo() {
    if (done_.empty()) return;
    undone_.push_back({squares_, drawn_});
    squares_ = done_.back().squares;
    drawn_ = done_.back().drawn;
    done_.pop_back();
    changed_ = true;
}

void CharacterEditor::Redo() {
    if (undone_.empty()) return;
    done_.push_back({squares_, drawn_});
    squares_ = undone_.back().squares;
    drawn_ = undone_.back().drawn;
    undone_.pop_back();
    changed_ = true;
}

std::vector<Glyph> CharacterEditor::Sample(std::string_view line) const {
    std::vector<Glyph> glyphs;
    for (const char letter : line) {
        const int number = static_cast<unsigned char>(letter);
        const pictures::Character* found = sets_.Find(set_, number);
        if (number == number_)
            glyphs.push_back(drawn_);
        else
            glyphs.push_back(found == nullptr ? Glyph{} : found->glyph);
    }
    return glyphs;
}

bool CharacterEditor::UpdateFields() {
    if (!changed_) return true;
    ReDraw();
    authoring::Change change(context_.document, ChangeName());
    store::Cursor& record = RecordToStore();
    record.SetField("charvals", CharVals());
    record.Update();
    change.Commit();
    changed_ = false;
    return true;
}

}  // namespace fabula::authoring
