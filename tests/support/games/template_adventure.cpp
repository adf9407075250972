#include "support/games/template_adventure.h"

#include <map>
#include <tuple>

#include "platform/clock.h"
#include "platform/event_pump.h"
#include "store/create.h"
#include "support/doubles/scripted_person.h"
#include "support/places.h"

namespace fabula::test {
namespace {

void Create(const std::filesystem::path& file, const store::AdventureSetup& setup) {
    platform::ScriptedPerson person;
    const platform::FixedClock clock({2026, 1, 2, 3, 4, 5});
    platform::NoEvents events;
    store::CreateAdventure(file, setup,
                           {person, clock, events, DefaultData(), [] { return std::string(kTestIfid); }});
}

/// The files that were created so far, one for each setup; they live as long as the test program.
const std::filesystem::path& TemplateFor(const store::AdventureSetup& setup) {
    static const TempFolder folder;
    static std::map<std::tuple<store::AdventureKind, bool, bool>, std::filesystem::path> files;
    auto& file = files[{setup.Type(), setup.Graphics(), setup.CharSets()}];
    if (file.empty()) {
        file = folder.Path() / (std::to_string(files.size()) + ".fbd");
        Create(file, setup);
    }
    return file;
}

store::AdventureSetup SetupFor(store::AdventureKind kind) {
    store::AdventureSetup setup;
    setup.ChooseType(kind);
    return setup;
}

}  // namespace

void MakeAdventure(const std::filesystem::path& file, const store::AdventureSetup& setup) {
    std::filesystem::copy_file(TemplateFor(setup), file, std::filesystem::copy_options::overwrite_existing);
}

OpenedAdventure::OpenedAdventure(store::AdventureKind kind) {
    MakeAdventure(File(), SetupFor(kind));
    Reopen();
}

void OpenedAdventure::Reopen(store::OpenMode mode) {
    adventure_.reset();
    adventure_ = store::Adventure::Open(File(), mode);
}

}  // namespace fabula::test
