#pragma once

#include <filesystem>
#include <functional>

#include "platform/clock.h"
#include "platform/event_pump.h"
#include "platform/person.h"
#include "store/ifid.h"
#include "store/setup.h"

namespace fabula::store {

class Adventure;

/// What the creation of an adventure needs of its surroundings.
struct CreationHost {
    platform::Person& person;  ///< is told of a line of the default data that is left out
    const platform::Clock& clock;
    platform::EventPump& events;
    std::filesystem::path
        defaultData;  ///< the file Fabula.ini; templates (*.tpl) lie in the folder beside it
    IfidMaker newIfid = NewIfid;
};

/// Creates the adventure file `path` from the default data, with the type and switches of `setup`. An
/// existing file is replaced; it stays as it was until the new one is complete.
///
/// Throws fabula::Error when the default data is incomplete (with section and line) or a file can't be
/// written; no half-made file is left.
///
/// `finish` adds to the new adventure before it takes its place; what it throws leaves everything as it
/// was.
void CreateAdventure(const std::filesystem::path& path, const AdventureSetup& setup,
                     const CreationHost& host, const std::function<void(Adventure&)>& finish = {});

}  // namespace fabula::store
