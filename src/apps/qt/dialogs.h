#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "platform/operator.h"

namespace fabula::qt {

/// A question for the name of a file.
struct FileQuestion {
    std::string title;
    std::string filter;     ///< "Fabula Save File|*.sav"
    std::string extension;  ///< "sav"; added to a name without one
    bool forWriting = false;
    std::filesystem::path start;  ///< the folder that is shown, or the file that is proposed in it
};

/// What the windows tell and ask in boxes of their own.
class Dialogs : public platform::Operator {
  public:
    /// The file that was named, or nullopt. Before a file is overwritten the person is asked.
    virtual std::optional<std::filesystem::path> ChooseFile(const FileQuestion& question) = 0;
};

/// A filter in the form that Qt's dialogs take: "Fabula Save File (*.sav)". A description without a pattern
/// shows all files.
std::string QtFilter(const std::string& filter);

}  // namespace fabula::qt
