#include "authoring/drawing/character_set_files.h"

#include "pictures/characters/character_store.h"
#include "platform/file_question.h"
#include "store/extensions.h"

namespace fabula::authoring {
namespace {

constexpr std::string_view kCharacterSetFile = "Character Set File";

}  // namespace

CharacterSetFiles::CharacterSetFiles(ScreenContext& context, Purpose purpose, int target)
    : context_(context), purpose_(purpose), target_(target) {}

bool CharacterSetFiles::Begin() {
    store::Adventure& adventure = context_.document.Adventure();
    if (purpose_ == Purpose::Save) {
        lines_ = pictures::ListSets(adventure);
        return true;
    }
    platform::FileQuestion question;
    question.title = Title();
    question.filter = platform::FilterOf(kCharacterSetFile, store::extension::kCharacterSets);
    question.start = adventure.GameDir();
    const auto file = context_.dialogs.ChooseFile(question);
    if (!file) return false;
    file_ = *file;
    lines_ = pictures::ListSetsInFile(file_, context_.dialogs);
    return !lines_.empty();
}

std::string CharacterSetFiles::Title() const {
    if (purpose_ == Purpose::Save) return "Save Character Set(s)";
    return "Load Character Set " + std::to_string(target_);
}

std::vector<std::string> CharacterSetFiles::Selected() const {
    std::vector<std::string> lines;
    for (const std::size_t index : selected)
        lines.push_back(lines_.at(index));
    return lines;
}

bool CharacterSetFiles::Run() {
    return purpose_ == Purpose::Save ? Save() : Load();
}

bool CharacterSetFiles::Save() {
    if (selected.empty()) return Refuse(context_.dialogs, "No Set is selected");
    platform::FileQuestion question =
        platform::QuestionFor("Save as a Character Set File", kCharacterSetFile,
                              store::extension::kCharacterSets, context_.document.Adventure().GameDir());
    question.forWriting = true;
    const auto file = context_.dialogs.ChooseFile(question);
    return file && pictures::SaveSets(context_.document.Adventure(), Selected(), *file, context_.dialogs);
}

/// The message at the end of a load comes before its change is complete, so a failure then is told too.
bool CharacterSetFiles::Load() {
    Change change(context_.document, "load character set " + std::to_string(target_));
    if (!pictures::LoadSet(context_.document.Adventure(), file_, Selected(), target_, context_.dialogs))
        return false;
    change.Commit();
    return true;
}

}  // namespace fabula::authoring
