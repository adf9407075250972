#include "packages/package.h"

#include "packages/cover.h"
#include "packages/engine_version.h"
#include "packages/ifiction.h"
#include "packages/read_me.h"
#include "platform/whole_file.h"
#include "store/file/file_copy.h"
#include "store/game_path.h"
#include "text/encoding/utf8.h"

namespace fabula::packages {

namespace fs = std::filesystem;

namespace {

constexpr int kFirstEngine = 6;

/// A file of the game's folder, as it is now.
fs::path Locate(const store::Adventure& adventure, const std::string& name) {
    const store::GamePath found = store::FindGameFile(adventure.GameDir(), name);
    switch (found.fault) {
        case store::GamePath::Fault::Outside:
            throw Error("Could not pack " + name + ": it lies outside the game's folder.");
        case store::GamePath::Fault::Missing:
            throw Error("Could not pack " + name + ": it is not in the game's folder.");
        case store::GamePath::Fault::None:
            break;
    }
    return found.file;
}

std::string Bytes(const fs::path& file, const std::string& name) {
    return platform::ReadWholeFile(file, kLargestPackedFile, "pack " + name);
}

std::string InZip(const std::string& name) {
    const auto zipName = ZipName(name);
    if (!zipName)
        throw Error("Could not pack " + name + ": this is no name of a file in the game's folder.");
    return *zipName;
}

/// The installed engine is no file of the game's folder.
bool IsInstalledEngine(const store::Adventure& adventure, const PackageRow& row,
                       const InstalledEngine& installed) {
    if (row.type != package_type::kEngine || installed.file.empty()) return false;
    const bool named = text::EqualsNoCase(row.name, installed.file.filename().string());
    return named &&
           store::FindGameFile(adventure.GameDir(), row.name).fault != store::GamePath::Fault::None;
}

PackedFile PackRow(store::Adventure& adventure, const PackageRow& row, const PackageOrder& order) {
    PackedFile packed{InZip(row.name), "", row.type == package_type::kEngine};
    if (row.type == package_type::kDatabase) {
        // Whoever else has the adventure open does not write it meanwhile.
        const store::ReadTransaction reading(adventure);
        packed.bytes = Bytes(adventure.CurrentFile(), row.name);
    } else if (IsInstalledEngine(adventure, row, order.engine)) {
        packed.bytes = Bytes(order.engine.file, row.name);
    } else {
        packed.bytes = Bytes(Locate(adventure, row.name), row.name);
    }
    return packed;
}

/// Adds a file that no row stands for, unless the author's files have its name.
void AddPaper(Package& package, const PackageList& list, const std::string& name, std::string bytes) {
    if (list.Find(name) == nullptr) package.files.push_back({name, std::move(bytes), false});
}

}  // namespace

Package GatherPackage(store::Adventure& adventure, const PackageList& list, const PackageOrder& order) {
    Package package;
    for (const PackageRow& row : list.Rows()) {
        if (row.included && row.type != package_type::kReadMe)
            package.files.push_back(PackRow(adventure, row, order));
    }
    const CoverSearch search = FindCover(adventure, list.Facts());
    if (search.cover) {
        AddPaper(package, list, search.cover->FileName(), search.cover->bytes);
    } else {
        package.notes.push_back(search.why);
    }
    if (list.Facts().ifid.empty()) {
        package.notes.emplace_back("The adventure has no IFID, so it has no iFiction record.");
    } else {
        AddPaper(package, list, AsFileName(list.Facts().Title()) + ".iFiction",
                 IFictionRecord(list.Facts(), search.cover ? &*search.cover : nullptr));
    }
    ReadMeParts parts{order.version,
                      order.readMeText,
                      order.productPage.empty() ? std::string(kUsualProductPage) : order.productPage,
                      {}};
    for (const PackedFile& file : package.files)
        parts.names.push_back(file.name);
    parts.names.push_back(list.ReadMeName());
    package.readMe = ReadMeText(list.Facts(), parts);
    package.files.push_back({list.ReadMeName(), package.readMe, false});
    return package;
}

void WriteReadMe(const store::Adventure& adventure, const PackageList& list, const Package& package) {
    const fs::path file = adventure.GameDir() / list.ReadMeName();
    if (!store::PathInGame(adventure.GameDir(), file))
        throw Error("Could not write " + file.string() + ": it lies outside the game's folder.");
    store::CheckTarget(file, store::Content::Text);
    store::WriteFile(file, package.readMe);
}

std::string IncludeEngine(store::Adventure& adventure, PackageList& list,
                          const InstalledEngine& installed) {
    const std::string inFolder(kEngineOfFolder);
    const store::GamePath found = store::FindGameFile(adventure.GameDir(), inFolder);
    if (found.fault != store::GamePath::Fault::None) {
        if (installed.file.empty()) return "Engine not found on folder for this database";
        list.Add(package_type::kEngine, installed.file.filename().string());
        return "";
    }
    const auto version = FileVersion(Bytes(found.file, inFolder));
    if (MajorVersion(version.value_or("")) < kFirstEngine)
        return "Wrong version of Engine. Must be 6.0 or above.";
    list.Add(package_type::kEngine, inFolder);
    return "";
}

}  // namespace fabula::packages
