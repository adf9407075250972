// Any bytes as default data: an adventure is created from them, or refused with a sentence.

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>

#include <unistd.h>

#include "platform/error.h"
#include "store/create.h"
#include "support/doubles/scripted_person.h"

using namespace fabula;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto folder = std::filesystem::temp_directory_path() / ("fuzz-" + std::to_string(getpid()));
    std::filesystem::create_directories(folder);
    const auto file = folder / "Fabula.ini";
    std::ofstream(file, std::ios::binary)
        .write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
    platform::ScriptedPerson person;
    const platform::FixedClock clock({2026, 1, 2, 3, 4, 5});
    platform::NoEvents events;
    try {
        store::CreateAdventure(folder / "game.fbd", store::AdventureSetup(), {person, clock, events, file});
    } catch (const Error&) {
    }
    std::filesystem::remove_all(folder);
    return 0;
}
