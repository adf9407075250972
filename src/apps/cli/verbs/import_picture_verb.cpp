#include <optional>

#include "cli/file_kind_option.h"
#include "cli/host/console.h"
#include "cli/verbs.h"
#include "condacts/numbers.h"
#include "interchange/picture_import.h"
#include "store/record_limits.h"
#include "text/fields.h"
#include "text/numbers.h"

namespace fabula::cli {
namespace {

struct ImportPictureOptions {
    std::string kind;
    std::string listing;
    std::string file;
    int record = 0;
    std::string records;
    std::vector<std::string> goesTo;
};

/// "3=12" as a place for picture 3.
interchange::NewLocations PlacesIn(const std::vector<std::string>& options) {
    interchange::NewLocations places;
    for (const std::string& option : options) {
        const auto pieces = text::Split(option, "=");
        const std::optional<std::int64_t> number = text::WholeNumber(pieces[0]);
        if (pieces.size() != 2 || !number || !condacts::FitsNumber(*number))
            throw UsageError("--goes-to takes the number in the listing and that in the game: 3=12");
        places[static_cast<int>(*number)] = pieces[1];
    }
    return places;
}

/// Loading and moving are one step: what can't be moved is not loaded either.
int ImportPicture(const ImportPictureOptions& options) {
    const interchange::FileKind& kind = PictureKind(options.kind);
    const interchange::NewLocations places = PlacesIn(options.goesTo);
    const auto adventure = OpenToChange(options.file);
    Console console(std::cerr);
    interchange::JobStatus status(console.Observer());
    store::Transaction transaction(*adventure);
    const auto loaded = interchange::LoadGraphics({kind, options.listing, options.records, options.record},
                                                  *adventure, console.Person(), status);
    if (loaded.pictures.empty()) return kFailed;
    if (!places.empty()) {
        const std::string fault = interchange::CheckNewLocations(loaded, places, *adventure);
        if (!fault.empty()) {
            console.Person().Tell(fault, "Error");
            return kFailed;
        }
        interchange::MoveToNewLocations(loaded, places, *adventure);
    }
    transaction.Commit();
    return kDone;
}

}  // namespace

void AddImportPictureVerb(CLI::App& verb, Chosen& chosen) {
    const auto options = std::make_shared<ImportPictureOptions>();
    verb.add_option("kind", options->kind, "The listing: " + PictureKinds())->required();
    verb.add_option("listing", options->listing, "The file that is read")->required();
    verb.add_option("records", options->records, "The pictures of the listing, as in 3,7-9")->required();
    AddAdventureOption(verb, options->file)->required();
    verb.add_option("record", options->record, "The picture they replace, and those behind it")
        ->required()
        ->check(CLI::Range(0, store::kHighestRecord));
    verb.add_option("--goes-to", options->goesTo,
                    "N=M: picture N of the listing goes to M, and GOSUBs to it follow");
    Runs(verb, chosen, options, ImportPicture);
}

}  // namespace fabula::cli
