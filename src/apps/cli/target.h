#pragma once

#include <filesystem>
#include <string_view>

#include "platform/person.h"
#include "store/file/file_copy.h"

namespace fabula::cli {

/// A file that a verb is about to write.
struct Target {
    std::filesystem::path file;
    store::Content content = store::Content::Text;
    std::string_view extension =
        {};  ///< of the files that the verb makes, where they have one of their own
    std::filesystem::path source = {};  ///< what it is made from, "" for nothing
    bool force = false;
};

/// Makes sure that the file may be written: that it is not its own source, that an adventure is not called
/// like another kind of file, and that store::CheckTarget has nothing against it; and when there is a file
/// already, that it was to be replaced (--force) or that the person agrees. Throws fabula::Error otherwise.
void CheckTarget(const Target& target, platform::Person& person);

}  // namespace fabula::cli
