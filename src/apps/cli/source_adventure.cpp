#include "cli/source_adventure.h"

#include <cstdlib>

#include "cli/file_kind_option.h"
#include "cli/verb.h"
#include "platform/error.h"
#include "text/encoding/utf8.h"

namespace fabula::cli {

ScratchFolder::ScratchFolder() {
    std::string name = (std::filesystem::temp_directory_path() / "fabula-check-XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr) throw Error("Could not make a folder for temporary files.");
    path_ = name;
}

ScratchFolder::~ScratchFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
}

const interchange::FileKind& KindOfSource(const std::string& source, const std::string& kind) {
    if (!kind.empty()) return ReadableKind(kind);
    const std::string extension = std::filesystem::path(source).extension().string();
    for (const interchange::FileKind& each : interchange::FileKinds()) {
        if (each.CanRead() && text::EqualsNoCase(each.extension, extension)) return each;
    }
    throw UsageError("what kind of source " + source + " is can't be told from its name; use --kind");
}

}  // namespace fabula::cli
