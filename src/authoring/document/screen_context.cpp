#include "authoring/document/screen_context.h"

#include <algorithm>
#include <limits>

namespace fabula::authoring {
namespace {

int NextFree(store::Adventure& adventure, store::TableNum table, const char* key) {
    store::PreparedQuery highest = adventure.Prepare(table, key, "", std::string(key) + " desc");
    if (!highest.First({})) return 0;
    return NumberAfter(highest.Number(0));
}

}  // namespace

int NumberAfter(std::int64_t number) {
    return static_cast<int>(std::min<std::int64_t>(number + 1, std::numeric_limits<int>::max()));
}

void ReadNextKeys(ScreenContext& context) {
    store::Adventure& adventure = context.document.Adventure();
    context.nextEntry = NextFree(adventure, store::TableNum::ProcessTables, "canum");
    context.nextWord = NextFree(adventure, store::TableNum::Vocabulary, "vocindex");
}

bool Refuse(platform::Person& person, std::string_view message) {
    person.Tell(message, "Error");
    return false;
}

}  // namespace fabula::authoring
