#include "authoring/files/starter_file.h"

#include "text/encoding/utf8.h"

namespace fabula::authoring {

std::filesystem::path StarterFile(const std::filesystem::path& defaultData, store::AdventureKind kind) {
    return defaultData.parent_path() / "starters" / (text::LowerCase(store::NameOf(kind)) + ".ini");
}

}  // namespace fabula::authoring
