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
    platform::Person& person;
    const platform::Clock& clock;
    platform::EventPump& events;
    std::filesystem::path
        defaultData;  ///< the file Fabula.ini; templates (*.tpl) lie in the folder beside it
    IfidMaker newIfid = NewIfid;
};

/// Whether `path` may be written: it is a new file, or the person has agreed that it is replaced.
bool MayReplace(const std::filesystem::path& path, platform::Person& person);

/// Creates the adventure file `path` from the default data, with the type and switches of `setup`. An
/// existing file is replaced after the person has agreed, or at once with `replace`; it stays as it was
/// until the new one is complete. Returns false when the person did not agree.
///
/// Throws fabula::Error when the default data is incomplete (with section and line) or a file can't be
/// written; no half-made file is left.
///
/// `finish` adds to the new adventure before it takes its place; what it throws leaves everything as it
/// was.
bool CreateAdventure(bool replace, const std::filesystem::path& path, const AdventureSetup& setup,
                     const CreationHost& host, const std::function<void(Adventure&)>& finish = {});

}  // namespace fabula::store
