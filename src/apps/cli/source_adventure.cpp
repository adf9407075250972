#include "cli/source_adventure.h"

#include "cli/file_kind_option.h"
#include "cli/verb.h"
#include "text/encoding/utf8.h"

namespace fabula::cli {

const interchange::FileKind& KindOfSource(const std::string& source, const std::string& kind) {
    if (!kind.empty()) return ReadableKind(kind);
    const std::string extension = std::filesystem::path(source).extension().string();
    for (const interchange::FileKind& each : interchange::FileKinds()) {
        if (each.CanRead() && text::EqualsNoCase(each.extension, extension)) return each;
    }
    throw UsageError("what kind of source " + source + " is can't be told from its name; use --kind");
}

}  // namespace fabula::cli
