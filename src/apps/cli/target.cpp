#include "cli/target.h"

#include <string>

#include "cli/verb.h"
#include "platform/error.h"
#include "store/extensions.h"
#include "text/encoding/utf8.h"

namespace fabula::cli {

void CheckTarget(const Target& target, platform::Person& person) {
    const std::string name = target.file.string();
    if (name.find_first_not_of(' ') == std::string::npos)
        throw UsageError("The name of the file to write is empty.");
    if (store::IsSameFile(target.file, target.source))
        throw Error("Could not write " + name + ": it is the source itself.");
    store::CheckTarget(target.file, target.content, target.extension);
    const std::string ending = target.file.extension().string();
    if (target.content == store::Content::Adventure && !store::IsStream(target.file) && !ending.empty() &&
        !text::EqualsNoCase(ending, store::extension::kAdventure))
        throw Error("Could not write " + name + ": the name of an adventure ends in " +
                    std::string(store::extension::kAdventure) + ", not in " + ending + ".");
    std::error_code error;  // what can't be looked at fails when it is written
    const bool replaces = target.file != store::kStandardOutput && !store::IsStream(target.file) &&
                          std::filesystem::exists(target.file, error);
    if (!replaces || target.force) return;
    if (!person.Confirm(name + " exists already. Replace it?", "Fabula"))
        throw Error("Could not write " + name + ": it exists already; --force replaces it.");
}

}  // namespace fabula::cli
