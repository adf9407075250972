#include "authoring/drawing/character_set_screen.h"

#include <algorithm>

#include "pictures/book_loader.h"
#include "pictures/characters/bdf_font.h"
#include "platform/whole_file.h"
#include "store/character_key.h"

namespace fabula::authoring {

using store::TableNum;

namespace {

constexpr std::uintmax_t kLargestFont = 16 * 1024 * 1024;

}  // namespace

CharacterSetScreen::CharacterSetScreen(ScreenContext& context) : context_(context) {
    if (context.currentTable == TableNum::Characters)
        set_ = context.currentEntry / store::kCharactersOfASet;
    if (const auto colours = pictures::LoadColours(context.document.Adventure())) {
        paper_ = colours->paper;
        ink_ = colours->ink;
    }
    Read();
    const int number = context.currentEntry % store::kCharactersOfASet;
    const auto found = std::ranges::find(characters_, number, &pictures::Character::number);
    if (context.currentTable == TableNum::Characters && found != characters_.end())
        Choose(static_cast<std::size_t>(found - characters_.begin()));
}

void CharacterSetScreen::Read() {
    all_ = pictures::LoadCharacterSets(context_.document.Adventure());
    sets_ = all_.Sets();
    characters_.clear();
    for (const pictures::Character* character : all_.OfSet(set_))
        characters_.push_back(*character);
    if (chosen_ >= characters_.size()) chosen_ = 0;
}

std::string CharacterSetScreen::NameOf(int set) const {
    const auto characters = all_.OfSet(set);
    return std::to_string(set) + " - " + (characters.empty() ? "" : characters.front()->setName);
}

void CharacterSetScreen::Show(int set) {
    set_ = set;
    chosen_ = 0;
    Read();
}

void CharacterSetScreen::Choose(std::size_t character) {
    if (character < characters_.size()) chosen_ = character;
}

std::optional<ScreenRequest> CharacterSetScreen::Open() {
    if (characters_.empty()) return std::nullopt;
    const int number = characters_[chosen_].number;
    if (!pictures::IsEditableCharacter(set_, number)) {
        Refuse(context_.dialogs, "Character " + std::to_string(number) + " cannot be edited");
        return std::nullopt;
    }
    return ScreenRequest{.screen = Screen::Character,
                         .key = {.key = set_ * store::kCharactersOfASet + number},
                         .table = TableNum::Characters};
}

bool CharacterSetScreen::TakeFont() {
    context_.document.CheckMayChange();
    platform::FileQuestion question;
    question.title = "Take Characters from a Font of 8 by 8";
    question.filter = "Font in the Bitmap Distribution Format|*.bdf|All Files|*.*";
    question.start = context_.document.Adventure().GameDir();
    const auto file = context_.dialogs.ChooseFile(question);
    if (!file) return false;
    const auto font = pictures::ReadBdfFont(
        platform::ReadWholeFile(*file, kLargestFont, "read " + file->string()), file->filename().string());
    Change change(context_.document, "take a font for character set " + std::to_string(set_));
    store::Cursor& records = context_.document.Adventure().OpenTable(TableNum::Characters, "def",
                                                                     "charsetnum=" + std::to_string(set_));
    int taken = 0;
    for (; !records.Eof(); records.MoveNext()) {
        const int number = static_cast<int>(records.Number("charnum"));
        const auto found = font.find(number);
        if (found == font.end() || !pictures::IsEditableCharacter(set_, number)) continue;
        records.SetField("charvals", pictures::FormatCharVals(found->second));
        records.Update();
        ++taken;
    }
    if (taken == 0) return Refuse(context_.dialogs, "The font has no character that this set could take.");
    change.Commit();
    Read();
    return true;
}

}  // namespace fabula::authoring
