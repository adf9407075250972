#include <filesystem>
#include <iostream>
#include <vector>

#include "cli/host/terminal_person.h"
#include "cli/target.h"
#include "cli/verbs.h"
#include "pictures/characters/character_store.h"
#include "store/adventure.h"
#include "store/character_key.h"
#include "store/extensions.h"
#include "text/encoding/safe_text.h"
#include "text/encoding/utf8.h"
#include "text/format.h"

namespace fabula::cli {
namespace {

struct CharsetOptions {
    std::string file;
    std::string setFile;
    std::vector<int> sets;
    int set = 0;
    int target = 0;
    bool force = false;
};

int ListSets(const CharsetOptions& options) {
    TerminalPerson terminal;
    const bool isSetFile = text::EqualsNoCase(std::filesystem::path(options.file).extension().string(),
                                              store::extension::kCharacterSets);
    const std::vector<std::string> lines = isSetFile ? pictures::ListSetsInFile(options.file, terminal)
                                                     : pictures::ListSets(*OpenToRead(options.file));
    for (const std::string& line : lines) {
        std::cout << text::SafeLines(line) << "\n";
    }
    return lines.empty() ? kFailed : kDone;
}

int Save(const CharsetOptions& options) {
    TerminalPerson terminal;
    CheckTarget({options.setFile, store::Content::Text, store::extension::kCharacterSets, options.file,
                 options.force},
                terminal);
    const auto adventure = OpenToRead(options.file);
    std::vector<std::string> selected;
    for (const int set : options.sets) {
        selected.push_back(std::to_string(set));
    }
    return pictures::SaveSets(*adventure, selected, options.setFile, terminal) ? kDone : kFailed;
}

int LoadSet(const CharsetOptions& options) {
    TerminalPerson terminal;
    const auto adventure = OpenToChange(options.file);
    const std::string selected = text::FormatText("SET!%z4", {std::int64_t{options.set}});
    return pictures::LoadSet(*adventure, options.setFile, {selected}, options.target, terminal) ? kDone
                                                                                                : kFailed;
}

}  // namespace

void AddCharsetVerb(CLI::App& verb, Chosen& chosen) {
    const auto options = std::make_shared<CharsetOptions>();
    const CLI::Range setNumbers(0, store::kHighestCharacterSet);
    verb.require_subcommand(1);

    CLI::App* list =
        verb.add_subcommand("list", "Shows the sets of an adventure or of a character set file");
    list->add_option("file", options->file, "FILE.fbd or FILE.chr")->required();
    Runs(*list, chosen, options, ListSets);

    CLI::App* save = verb.add_subcommand("save", "Writes sets of an adventure to a character set file");
    AddAdventureOption(*save, options->file)->required();
    save->add_option("output", options->setFile, "The file to write, FILE.chr")->required();
    save->add_option("sets", options->sets, "The numbers of the sets")->required()->check(setNumbers);
    AddForceFlag(*save, options->force);
    Runs(*save, chosen, options, Save);

    CLI::App* load = verb.add_subcommand("load", "Puts a set of a file over a set of an adventure");
    AddAdventureOption(*load, options->file)->required();
    load->add_option("input", options->setFile, "The file to read, FILE.chr")->required();
    load->add_option("set", options->set, "The number of the set in the file")
        ->required()
        ->check(setNumbers);
    load->add_option("target", options->target, "The number of the set in the adventure")
        ->required()
        ->check(setNumbers);
    Runs(*load, chosen, options, LoadSet);
}

}  // namespace fabula::cli
