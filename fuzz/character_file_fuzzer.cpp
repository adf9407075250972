#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "pictures/characters/character_file.h"
#include "platform/error.h"

// What can be read can be written, and reads the same again.

using namespace fabula;

namespace {

pictures::CharacterSets SetsOf(const pictures::CharacterFile& file) {
    pictures::CharacterSets sets;
    int number = 0;
    for (const pictures::CharacterFileSet& set : file.sets) {
        ++number;
        for (pictures::Character character : set.characters) {
            character.set = number;
            character.setName = set.name;
            sets.Add(character);
        }
    }
    return sets;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    pictures::CharacterFile file;
    try {
        file = pictures::ReadCharacterFile({reinterpret_cast<const char*>(data), size}, "fuzzed.chr");
    } catch (const Error&) {
        return 0;
    }
    if (!file.isCharacterFile || file.sets.size() > 900) return 0;
    const pictures::CharacterSets sets = SetsOf(file);
    const std::string text = pictures::WriteCharacterFile(sets, sets.Sets());
    const pictures::CharacterFile again = pictures::ReadCharacterFile(text, "again.chr");
    if (again.sets.size() != sets.Sets().size()) std::abort();
    return 0;
}
