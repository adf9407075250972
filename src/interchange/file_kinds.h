#pragma once

#include <filesystem>
#include <optional>
#include <span>
#include <string_view>

#include "interchange/job_host.h"
#include "store/setup.h"

namespace fabula::interchange {

/// What a file dialog shows; empty where the system names nothing.
struct DialogText {
    std::string_view defaultName;
    std::string_view title;
    std::string_view filter;
};

/// What an import leaves in the settings besides what its source says.
struct ImportedSettings {
    std::string_view source;  ///< `source`: where the game came from
    bool flagChange = false;  ///< `flagchange`
    bool setsLook =
        false;  ///< type, graphics and character sets are those of the new adventure; the rest applies
    int backColor = 0;
    int textColor = 0;
    int printWidth = 80;
};

/// One kind of file that games come and go in.
struct FileKind {
    std::string_view word;       ///< on the command line: "pcvel"
    std::string_view name;       ///< in the job dialog: "PCVEL"
    std::string_view extension;  ///< of files that it writes: ".sce"
    DialogText importDialog;
    DialogText exportDialog;
    store::AdventureSetup (*setup)(
        const std::filesystem::path& source);  ///< of the new adventure for a source
    bool (*read)(ImportContext& context);      ///< nullptr when it can't be read
    bool (*write)(ExportContext& context);     ///< nullptr when it can't be written
    ImportedSettings settings;
    bool savesPictures = false;  ///< pictures that come in as drawings are saved as bitmaps, too

    bool CanRead() const { return read != nullptr; }
    bool CanWrite() const { return write != nullptr; }
};

/// All kinds, in the order of the job dialog.
std::span<const FileKind> FileKinds();

/// The kind with this word or name, case ignored; nullptr when there is none.
const FileKind* FindFileKind(std::string_view wordOrName);

}  // namespace fabula::interchange
