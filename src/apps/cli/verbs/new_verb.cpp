#include "authoring/files/starter_file.h"
#include "cli/host/console.h"
#include "cli/installation.h"
#include "cli/target.h"
#include "cli/verbs.h"
#include "interchange/starter.h"
#include "store/adventure.h"
#include "store/create.h"

namespace fabula::cli {
namespace {

struct NewOptions {
    std::string file;
    std::string type = "fabula";
    bool graphics = false;
    bool charSets = false;
    bool starter = false;
    bool force = false;
};

void AddStarterTo(store::Adventure& adventure) {
    interchange::AddStarter(adventure, authoring::StarterFile(DefaultDataFile(), adventure.Kind()));
}

int Create(const NewOptions& options) {
    const auto kind = store::AdventureKindFrom(options.type);
    if (!kind) throw UsageError("--type must be fabula, vel or marlo, not '" + options.type + "'");
    store::AdventureSetup setup;
    setup.ChooseGraphics(options.graphics);
    setup.ChooseCharSets(options.charSets);
    setup.ChooseType(*kind);
    Console console(std::cerr);
    CheckTarget({options.file, store::Content::Adventure, {}, {}, options.force}, console.Person());
    std::function<void(store::Adventure&)> finish;
    if (options.starter) finish = AddStarterTo;
    store::CreateAdventure(options.file, setup,
                           {console.Person(), console.Clock(), console.Events(), DefaultDataFile()},
                           finish);
    return kDone;
}

}  // namespace

void AddNewVerb(CLI::App& verb, Chosen& chosen) {
    const auto options = std::make_shared<NewOptions>();
    AddAdventureOption(verb, options->file)->required();
    verb.add_option("--type", options->type, "fabula, vel or marlo")->capture_default_str();
    verb.add_flag("--graphics", options->graphics, "The game has drawn pictures");
    verb.add_flag("--charsets", options->charSets,
                  "The game writes with character sets (marlo always does)");
    verb.add_flag("--starter", options->starter,
                  "With directions, the usual verbs and their process entries");
    AddForceFlag(verb, options->force);
    Runs(verb, chosen, options, Create);
}

}  // namespace fabula::cli
