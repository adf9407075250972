#include <iostream>

#include "cli/host/console.h"
#include "cli/installation.h"
#include "cli/target.h"
#include "cli/verbs.h"
#include "packages/package.h"
#include "store/game_path.h"
#include "text/encoding/safe_text.h"
#include "text/str_edit.h"

namespace fabula::cli {
namespace {

namespace fs = std::filesystem;

struct PackageOptions {
    std::string file;
    std::string target;
    std::string version;
    std::string readMeText;
    std::string productPage;
    std::vector<std::string> files;
    bool engine = false;
    bool force = false;
};

/// A file that is added is named from here or from the game's folder.
void AddFile(const store::Adventure& adventure, packages::PackageList& list, const std::string& file) {
    std::error_code error;
    const fs::path here = fs::absolute(file, error);
    const fs::path named = fs::exists(here, error) ? here : adventure.GameDir() / file;
    const auto name = store::PathInGame(adventure.GameDir(), named);
    if (!name) throw Error("The File must be at or below the directory of the game: " + file);
    list.Add(packages::package_type::kFile, *name);
}

int Pack(const PackageOptions& options) {
    if (text::TrimBlanks(options.version).empty()) throw UsageError("Version is not filled in.");
    Console console(std::cerr);
    CheckTarget({options.target, store::Content::Text, ".zip", options.file, options.force},
                console.Person());
    const auto adventure = OpenToRead(options.file);
    if (!packages::CanPackage(*adventure)) throw Error("Cannot do Packaging yet. Database needs updated.");
    packages::PackageList list(*adventure);
    list.RemoveType(packages::package_type::kEngine);
    const packages::InstalledEngine engine{cli::InstalledEngine()};
    if (options.engine) {
        const std::string refused = packages::IncludeEngine(*adventure, list, engine);
        if (!refused.empty()) throw Error(refused);
    }
    for (const std::string& file : options.files)
        AddFile(*adventure, list, file);
    const packages::Package package = packages::GatherPackage(
        *adventure, list, {options.version, options.readMeText, options.productPage, engine});
    packages::WriteReadMe(*adventure, list, package);
    packages::WriteZip(options.target, package.files);
    for (const std::string& note : package.notes)
        std::cerr << text::SafeLines(note) << "\n";
    std::cerr << text::SafeLines(list.Facts().Title() + " has been ZIPped into " + options.target) << "\n";
    return kDone;
}

}  // namespace

void AddPackageVerb(CLI::App& verb, Chosen& chosen) {
    const auto options = std::make_shared<PackageOptions>();
    AddAdventureOption(verb, options->file)->required();
    verb.add_option("target", options->target, "The zip that is written; - is standard output")->required();
    verb.add_option("--version", options->version, "The version of the game, for its ReadMe")->required();
    verb.add_flag("--engine", options->engine, "Pack the engine too");
    verb.add_option("--file", options->files, "Pack this file of the game's folder too; as often as needed")
        ->allow_extra_args(false);
    verb.add_option("--readme-text", options->readMeText,
                    "What the ReadMe says before the list of the files");
    verb.add_option("--product-page", options->productPage, "Where the ReadMe says the engine is found");
    verb.footer(
        "Its ReadMe is written into the game's folder too, as the game's name with .ReadMe behind it, in\n"
        "place of one that is there.");
    AddForceFlag(verb, options->force);
    Runs(verb, chosen, options, Pack);
}

}  // namespace fabula::cli
