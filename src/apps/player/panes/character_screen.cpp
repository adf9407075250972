#include "player/panes/character_screen.h"

#include <algorithm>
#include <utility>

#include "text/encoding/safe_text.h"
#include "text/encoding/utf8.h"

namespace fabula::player {

namespace {

constexpr int kDefaultSet = 0;

}  // namespace

CharacterScreen::Row CharacterScreen::BlankRow() const {
    Row row;
    row.fill({.paper = static_cast<std::uint8_t>(paper_)});
    return row;
}

void CharacterScreen::Clear(int paper, int ink) {
    inputShown_ = false;
    paper_ = paper;
    style_ = {.paper = paper, .ink = ink};
    const Row blank = BlankRow();
    if (rows_.size() > top_ + 1 || cursor_.column > 0) rows_.push_back(blank);
    rows_.back() = blank;
    top_ = rows_.size() - 1;
    cursor_ = {top_, 0};
    Trim();
}

void CharacterScreen::Keep(std::size_t rows) {
    kept_ = rows;
    Trim();
}

void CharacterScreen::Trim() {
    if (rows_.size() <= kept_ + kept_ / 10) return;
    const std::size_t gone = rows_.size() - kept_;
    rows_.erase(rows_.begin(), rows_.begin() + static_cast<std::ptrdiff_t>(gone));
    top_ -= std::min(top_, gone);
    for (Place* place : {&cursor_, &input_, &caret_})
        place->row -= std::min(place->row, gone);
}

void CharacterScreen::Write(std::string_view run, const engine::TextStyle& style) {
    inputShown_ = false;
    style_ = style;
    for (const char32_t code : text::Decode(run))
        Draw(code);
}

void CharacterScreen::Draw(char32_t code) {
    if (cursor_.column == kColumns) EndLine();
    const int number = static_cast<int>(code);
    const pictures::Character* character = sets_.Find(style_.font, number);
    if (character == nullptr) character = sets_.Find(kDefaultSet, number);
    const pictures::Glyph drawn = character == nullptr ? pictures::Glyph{} : character->glyph;
    int ink = style_.ink;
    int paper = style_.paper;
    if (style_.inverse) std::swap(ink, paper);
    Cell& cell = rows_[cursor_.row][cursor_.column++];
    if (!style_.over) cell.glyph = {};
    for (std::size_t row = 0; row < drawn.size(); ++row)
        cell.glyph[row] ^= drawn[row];
    cell.code = code;
    cell.ink = static_cast<std::uint8_t>(ink);
    cell.paper = static_cast<std::uint8_t>(paper);
    cell.flash = style_.flash;
}

void CharacterScreen::EndLine() {
    cursor_ = {cursor_.row + 1, 0};
    if (cursor_.row < rows_.size()) return;
    rows_.push_back(BlankRow());
    Trim();
}

void CharacterScreen::EraseInput() {
    for (std::size_t row = input_.row; row < rows_.size(); ++row) {
        const int first = row == input_.row ? input_.column : 0;
        for (int column = first; column < kColumns; ++column)
            rows_[row][column] = {.paper = static_cast<std::uint8_t>(paper_)};
    }
    rows_.resize(input_.row + 1);
    cursor_ = input_;
}

void CharacterScreen::ShowInput(std::string_view typed, std::string_view cursor) {
    if (inputShown_) {
        EraseInput();
    } else {
        input_ = cursor_;
    }
    for (const char32_t code : text::Decode(typed))
        Draw(code);
    caret_ = cursor_;
    for (const char32_t code : text::Decode(cursor))
        Draw(code);
    inputShown_ = true;
}

void CharacterScreen::EndInput(std::string_view typed) {
    ShowInput(typed, "");
    inputShown_ = false;
    EndLine();
}

std::string CharacterScreen::Text(std::size_t first) const {
    std::string text;
    for (std::size_t row = first; row < rows_.size(); ++row) {
        std::u32string codes;
        for (const Cell& cell : rows_[row])
            codes += cell.code;
        codes.erase(codes.find_last_not_of(U' ') + 1);
        text::AppendCharacters(text::Encode(codes), text);
        text += '\n';
    }
    return text;
}

}  // namespace fabula::player
