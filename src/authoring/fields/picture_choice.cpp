#include "authoring/fields/picture_choice.h"

#include <filesystem>

#include "platform/error.h"
#include "platform/whole_file.h"
#include "store/file/file_copy.h"
#include "store/game_path.h"
#include "store/query/cursor.h"

namespace fabula::authoring {

namespace fs = std::filesystem;

namespace {

constexpr const char* kFilter = "Picture Files(jpg,gif,bmp)|*.jpg;*.gif;*.bmp|All Files|*.*";

fs::path StartOf(const fs::path& folder, std::string_view current) {
    const store::GamePath found = store::FindGameFile(folder, current);
    return found.fault == store::GamePath::Fault::None ? found.file : folder;
}

/// Copies a picture from elsewhere to where the author says.
std::optional<std::string> CopyIntoGame(ScreenContext& context, const fs::path& picture) {
    const fs::path folder = context.document.Adventure().GameDir();
    std::string question(kPictureOutside);
    question += "\nWould you like to copy it there";
    if (!context.dialogs.Confirm(question, "Error")) return std::nullopt;
    platform::FileQuestion target;
    target.title = "Save Name for Fabula Directory Tree";
    target.filter = "All Files|*.*";
    target.forWriting = true;
    target.start = folder / picture.filename();
    const std::optional<fs::path> copy = context.dialogs.ChooseFile(target);
    if (!copy) return std::nullopt;
    std::optional<std::string> stored = store::PathInGame(folder, *copy);
    if (!stored) {
        Refuse(context.dialogs, "You changed the parent directory again. Command aborted.");
        return std::nullopt;
    }
    store::WriteFile(*copy,
                     platform::ReadWholeFile(picture, store::kLargestBinary, "copy " + picture.string()));
    return stored;
}

}  // namespace

std::optional<std::string> ChoosePicture(ScreenContext& context, std::string_view title,
                                         std::string_view current) {
    const fs::path folder = context.document.Adventure().GameDir();
    platform::FileQuestion question;
    question.title = title;
    question.filter = kFilter;
    question.start = StartOf(folder, current);
    const std::optional<fs::path> picture = context.dialogs.ChooseFile(question);
    if (!picture) return std::nullopt;
    std::error_code error;
    if (!fs::is_regular_file(*picture, error)) {
        throw Error("Could not read the picture " + picture->string() + ".");
    }
    std::optional<std::string> stored = store::PathInGame(folder, *picture);
    return stored ? stored : CopyIntoGame(context, *picture);
}

fs::path PictureFile(ScreenContext& context, std::string_view stored) {
    const store::GamePath found = store::FindGameFile(context.document.Adventure().GameDir(), stored);
    const std::string doing = "Could not read the picture " + std::string(stored);
    switch (found.fault) {
        case store::GamePath::Fault::Outside:
            throw Error(doing + ": it lies outside the game's folder.");
        case store::GamePath::Fault::Missing:
            throw Error(doing + ": it is missing.");
        case store::GamePath::Fault::None:
            break;
    }
    return found.file;
}

}  // namespace fabula::authoring
