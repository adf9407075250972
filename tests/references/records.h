#pragma once

#include <string>
#include <string_view>

#include "references/index.h"
#include "store/adventure.h"

namespace fabula::test {

// Records for tests of references, put into an adventure with no more than their fields that name
// something.

void PutEntry(store::Adventure& adventure, int canum, int process, int verb, int noun,
              std::string_view condActs, std::string_view numbers = "");
void PutLocation(store::Adventure& adventure, int number, std::string_view exits, std::string_view numbers);
void PutMessage(store::Adventure& adventure, int number, std::string_view text);
void PutObject(store::Adventure& adventure, int number, int place, int noun, int adjective,
               bool container = false);
void PutPicture(store::Adventure& adventure, int number, std::string_view drawstring, int room = -1);
void PutWord(store::Adventure& adventure, int index, std::string_view word, int number, int type);

/// A use on one line: "flag 60: entry 3 condacts 1 reads", "?" behind what is only possible. Tables are
/// told by a word: entry, location, message, object, picture, sysmess, settings.
std::string Shown(const references::Use& use);
/// All uses of something, a line each.
std::string UsesOf(const references::Index& index, references::Kind kind, int number,
                   references::WordTypes types = references::kAnyType);

}  // namespace fabula::test
