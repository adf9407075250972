#pragma once

#include <filesystem>
#include <span>
#include <string_view>

#include "condacts/language/catalogue.h"
#include "interchange/shared/job_host.h"
#include "store/setup.h"

namespace fabula::interchange {

class ListingLines;

/// What a file dialog shows; empty where nothing is named.
struct DialogText {
    std::string_view defaultName;
    std::string_view title;
    std::string_view filter;
};

/// What an import leaves in the settings besides what its source says.
struct ImportedSettings {
    std::string_view source;  ///< `source`: where the game came from
    int sourceRow = 0;        ///< its row in the list of sources that the settings offer, from 1
    bool flagChange = false;  ///< `flagchange`
    bool setsLook =
        false;  ///< type, graphics and character sets are those of the new adventure; the rest applies
    int backColour = 0;
    int textColour = 0;
    int printWidth = 80;
};

/// What an adventure must keep to when it is written.
struct ExportRules {
    std::string_view name;                                  ///< of the kind, in what is told of a breach
    condacts::Dialect dialect = condacts::Dialect::Fabula;  ///< whose conditions and actions may be used
    std::string_view commands;  ///< the field of `Commands` that allows a graphics command; "" for any
    bool pictureForEachLocation = false;  ///< there are as many pictures as locations
};

/// One kind of file that games come and go in.
struct FileKind {
    std::string_view word;       ///< on the command line: "pcvel"
    std::string_view name;       ///< in the job dialog: "PCVEL"
    std::string_view about;      ///< what it is, in a few words: "a source of the PC engine"
    std::string_view extension;  ///< of files that it writes: ".sce"
    DialogText importDialog;
    DialogText exportDialog;
    store::AdventureSetup (*setup)(
        const std::filesystem::path& source);  ///< of the new adventure for a source
    bool (*read)(ImportContext& context);      ///< nullptr when it can't be read
    bool (*write)(ExportContext& context);     ///< nullptr when it can't be written
    ImportedSettings settings;
    ExportRules rules;              ///< of a kind that can be written
    bool isInExportDialog = false;  ///< the job dialog offers to write it
    bool hasVersions = false;       ///< its files are written in several forms, by a version
    bool savesPictures = false;     ///< pictures that come in as drawings are saved as bitmaps, too
    /// Of a listing whose pictures can be loaded by themselves: reads its head, false when that is refused.
    bool (*readHead)(ListingLines& lines, platform::Person& person, JobStatus& status) = nullptr;
    /// Whether a file that begins so is of this kind; nullptr where the beginning does not tell.
    bool (*beginsLike)(std::string_view start) = nullptr;

    bool CanRead() const { return read != nullptr; }
    bool CanWrite() const { return write != nullptr; }
    bool CanLoadPictures() const { return readHead != nullptr; }
};

/// All kinds, in the order of the job dialog.
std::span<const FileKind> FileKinds();

/// The kind with this word or name, case ignored; nullptr when there is none.
const FileKind* FindFileKind(std::string_view wordOrName);

/// The kind that is chosen at first where nothing tells a better one.
const FileKind& UsualFileKind();

/// What a game is exported as at first, by the `source` that it came from: its own kind where the job
/// dialog writes that, an export file for games that were made here, otherwise the usual kind.
const FileKind& FirstExportKind(std::string_view source);

/// The kind of a file that begins so, nullptr where that can't be told. Two kinds may begin alike: `chosen`
/// is then as good as the first of them.
const FileKind* KindThatBegins(std::string_view start, const FileKind& chosen);

}  // namespace fabula::interchange
