#include "packages/package_screen.h"

#include "platform/whole_file.h"
#include "store/file/file_copy.h"
#include "store/game_path.h"
#include "text/str_edit.h"

namespace fabula::packages {

namespace fs = std::filesystem;

using authoring::Refuse;

namespace {

constexpr std::uintmax_t kLargestReadMe = 1024 * 1024;
constexpr const char* kAllFiles = "All Files|*.*";

}  // namespace

std::unique_ptr<PackageScreen> PackageScreen::Open(authoring::ScreenContext& context,
                                                   platform::Settings& settings, InstalledEngine engine) {
    if (!CanPackage(context.document.Adventure())) {
        context.dialogs.Tell("Cannot do Packaging yet. Database needs updated.\nReload using Load Database",
                             "Reload Database");
        return nullptr;
    }
    return std::unique_ptr<PackageScreen>(new PackageScreen(context, settings, std::move(engine)));
}

PackageScreen::PackageScreen(authoring::ScreenContext& context, platform::Settings& settings,
                             InstalledEngine engine)
    : context_(context),
      settings_(settings),
      engine_(std::move(engine)),
      list_(context.document.Adventure()) {
    version = list_.Facts().version;
    // The engine of the last time may have gone since.
    list_.RemoveType(package_type::kEngine);
    if (settings_.Get(kPackageSection, kIncludeEngineKey) == "1")
        includesEngine_ = IncludeEngine(Adventure(), list_, engine_).empty();
    StoreList();
}

/// An adventure that is open for reading keeps its list as it is.
void PackageScreen::StoreList() {
    if (!context_.document.IsReadOnly()) list_.Store(Adventure());
}

bool PackageScreen::Guard(const std::function<void()>& step) {
    try {
        step();
        return true;
    } catch (const Error& failure) {
        return Refuse(context_.dialogs, failure.what());
    }
}

void PackageScreen::ClickIncludeEngine(bool on) {
    if (on == includesEngine_) return;
    Guard([&] {
        if (on) {
            const std::string refused = IncludeEngine(Adventure(), list_, engine_);
            if (!refused.empty()) {
                Refuse(context_.dialogs, refused);
                return;
            }
        } else {
            list_.RemoveType(package_type::kEngine);
        }
        includesEngine_ = on;
        StoreList();
    });
}

void PackageScreen::AddFile() {
    Guard([&] {
        platform::FileQuestion question;
        question.title = "Add a File to Package";
        question.filter = kAllFiles;
        question.start = Adventure().GameDir();
        const std::optional<fs::path> file = context_.dialogs.ChooseFile(question);
        if (!file) return;
        platform::CheckIsFile(*file, "add " + file->string() + " to the package");
        std::optional<std::string> name = store::PathInGame(Adventure().GameDir(), *file);
        if (!name) name = CopyIntoGame(*file);
        if (!name) return;
        if (!ZipName(*name)) throw Error("A file of this name can't be packed: " + *name);
        if (list_.Add(package_type::kFile, *name)) StoreList();
    });
}

std::optional<std::string> PackageScreen::CopyIntoGame(const fs::path& file) {
    const bool wanted = context_.dialogs.Confirm(
        "The File must be at or below the directory of the game\nWould you like to copy it there", "Error");
    if (!wanted) return std::nullopt;
    const fs::path folder = Adventure().GameDir();
    platform::FileQuestion question;
    question.title = "Save Name for Fabula Directory Tree";
    question.filter = kAllFiles;
    question.forWriting = true;
    question.start = folder / file.filename();
    const std::optional<fs::path> copy = context_.dialogs.ChooseFile(question);
    if (!copy) return std::nullopt;
    std::optional<std::string> name = store::PathInGame(folder, *copy);
    if (!name) {
        Refuse(context_.dialogs, "You changed the parent directory again. Command aborted.");
        return std::nullopt;
    }
    const std::string bytes = platform::ReadWholeFile(file, kLargestPackedFile,
                                                      "copy " + file.string() + " to the game's folder");
    store::CheckTarget(*copy, store::Content::Text);
    store::WriteFile(*copy, bytes);
    return name;
}

void PackageScreen::DeleteFile(std::size_t row) {
    if (row >= Rows().size()) return;
    const PackageRow chosen = Rows()[row];
    if (chosen.type != package_type::kFile) {
        Refuse(context_.dialogs, "You cannot delete a " + chosen.type + " record");
        return;
    }
    if (!context_.dialogs.Confirm("Delete Selected File (" + chosen.name + ")", "Are You Sure")) return;
    Guard([&] {
        list_.Remove(chosen.name);
        StoreList();
    });
}

void PackageScreen::BrowseForReadMe() {
    Guard([&] {
        platform::FileQuestion question;
        question.title = "Browse for a file to add to ReadMe";
        question.filter = kAllFiles;
        question.start = Adventure().GameDir();
        const std::optional<fs::path> file = context_.dialogs.ChooseFile(question);
        if (!file) return;
        const std::string text =
            platform::ReadWholeFile(*file, kLargestReadMe, "read " + file->string() + " for the ReadMe");
        if (!readMeText.empty()) readMeText += "\n";
        readMeText += text;
    });
}

std::optional<fs::path> PackageScreen::AskForZip() const {
    platform::FileQuestion question;
    question.title = "Save Name for Package Zip File";
    question.filter = "Zip Files|*.zip";
    question.extension = "zip";
    question.forWriting = true;
    question.start = Adventure().GameDir() / (AsFileName(list_.Facts().Title()) + ".zip");
    return context_.dialogs.ChooseFile(question);
}

bool PackageScreen::Package() {
    if (text::TrimBlanks(version).empty()) return Refuse(context_.dialogs, "Version is not filled in.");
    bool made = false;
    Guard([&] {
        const std::string page = settings_.Get(kPackageSection, kProductPageKey);
        const packages::Package package =
            GatherPackage(Adventure(), list_, {version, readMeText, page, engine_});
        WriteReadMe(Adventure(), list_, package);
        if (lookAtReadMe) look(Adventure().GameDir() / list_.ReadMeName());
        const std::optional<fs::path> zip = AskForZip();
        if (!zip) return;
        store::CheckTarget(*zip, store::Content::Text, ".zip");
        WriteZip(*zip, package.files);
        std::string told = list_.Facts().Title() + " has been ZIPped into " + zip->filename().string();
        for (const std::string& note : package.notes)
            told += "\n" + note;
        context_.dialogs.Tell(told, kTitle);
        made = true;
    });
    return made;
}

void PackageScreen::Leave() {
    settings_.Set(kPackageSection, kIncludeEngineKey, includesEngine_ ? "1" : "0");
}

}  // namespace fabula::packages
