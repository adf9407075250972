#include "authoring/files/may_replace.h"

#include <system_error>

namespace fabula::authoring {

bool MayReplace(const std::filesystem::path& file, platform::Person& person) {
    std::error_code missing;  // what can't be looked at fails when it is written
    return !std::filesystem::exists(file, missing) ||
           person.Confirm("All information in " + file.string() + " will be deleted.", "Warning");
}

}  // namespace fabula::authoring
