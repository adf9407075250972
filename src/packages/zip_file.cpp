#include "packages/zip_file.h"

#include <cstdint>
#include <limits>
#include <utility>

#include <minizip/zip.h>
#include <zlib.h>

#include "platform/whole_file.h"
#include "store/file/file_copy.h"
#include "store/file/temporary_file.h"

namespace fabula::packages {
namespace {

struct CodeText {
    int code;
    std::string_view text;
};

constexpr CodeText kTexts[] = {
    {2, "Unexpected End Of Zip File Error"},
    {3, "Zip File Structure Error"},
    {4, "Out Of Memory Error"},
    {5, "Internal Logic Error"},
    {6, "Entry Too Large To Split Error"},
    {7, "Invalid Comment Format Error"},
    {8, "Invalid Comment Format Error"},
    {9, "User Interrupted Or Termination Error"},
    {10, "Error Using A Temp File"},
    {11, "Read Or Seek Error"},
    {12, "Nothing To Do Error"},
    {13, "Missing Or Empty Zip File Error"},
    {14, "Error Writing To A File"},
    {15, "Could't Open To Write Error"},
    {16, "Bad Command Line Argument Error"},
    {18, "Could Not Open A Specified File To Read Error"},
};

/// The library's errors that have a code of their own.
struct LibraryError {
    int error;
    int code;
};
constexpr LibraryError kErrors[] = {
    {ZIP_ERRNO, zip_code::kWrite},
    {ZIP_BADZIPFILE, zip_code::kStructure},
    {Z_MEM_ERROR, zip_code::kMemory},
};

constexpr int kLevel = 6;
// The first moment that a zip can hold, 1 January 1980: nothing in a package tells when it was made.
constexpr uLong kDate = ((1 << 5) | 1) << 16;
constexpr uLong kFileMode = 0100644;
constexpr uLong kProgramMode = 0100755;
constexpr int kModeShift = 16;
constexpr uLong kMadeByUnix = (3 << 8) | 20;
constexpr uLong kNameIsUtf8 = 1 << 11;

int CodeOf(int libraryError) {
    for (const LibraryError& each : kErrors) {
        if (each.error == libraryError) return each.code;
    }
    return zip_code::kInternal;
}

/// A zip in the making. Only Close tells that all of it was written.
class Archive {
  public:
    explicit Archive(const std::filesystem::path& file)
        : archive_(zipOpen64(file.c_str(), APPEND_STATUS_CREATE)) {
        if (archive_ == nullptr) throw ZipFailure(zip_code::kOpenToWrite);
    }
    Archive(const Archive&) = delete;
    Archive& operator=(const Archive&) = delete;
    ~Archive() {
        if (archive_ != nullptr) zipClose(archive_, nullptr);
    }

    void Add(const PackedFile& file) {
        if (file.bytes.size() > std::numeric_limits<unsigned>::max()) throw ZipFailure(zip_code::kTooLarge);
        zip_fileinfo facts{};
        facts.dosDate = kDate;
        facts.external_fa = (file.runs ? kProgramMode : kFileMode) << kModeShift;
        Check(zipOpenNewFileInZip4_64(archive_, file.name.c_str(), &facts, nullptr, 0, nullptr, 0, nullptr,
                                      Z_DEFLATED, kLevel, 0, -MAX_WBITS, DEF_MEM_LEVEL, Z_DEFAULT_STRATEGY,
                                      nullptr, 0, kMadeByUnix, kNameIsUtf8, 0));
        Check(zipWriteInFileInZip(archive_, file.bytes.data(), static_cast<unsigned>(file.bytes.size())));
        Check(zipCloseFileInZip(archive_));
    }

    void Close() { Check(zipClose(std::exchange(archive_, nullptr), nullptr)); }

  private:
    static void Check(int result) {
        if (result != ZIP_OK) throw ZipFailure(CodeOf(result));
    }

    zipFile archive_;
};

}  // namespace

std::string ZipErrorText(int code) {
    std::string text = "Zip Error code " + std::to_string(code) + ": ";
    for (const CodeText& each : kTexts) {
        if (each.code == code) return text.append(each.text);
    }
    return text;
}

void WriteZip(const std::filesystem::path& target, const std::vector<PackedFile>& files) {
    if (files.empty()) throw ZipFailure(zip_code::kNothingToDo);
    const bool isStandardOutput = target == store::kStandardOutput;
    const store::TemporaryFile made(isStandardOutput ? std::filesystem::temp_directory_path() / "fabula.zip"
                                                     : target);
    Archive archive(made.Path());
    for (const PackedFile& file : files)
        archive.Add(file);
    archive.Close();
    if (!isStandardOutput && !store::IsStream(target)) return store::MoveIntoPlace(made.Path(), target);
    store::WriteFile(target, platform::ReadWholeFile(made.Path(), std::filesystem::file_size(made.Path()),
                                                     "read the zip again"));
}

}  // namespace fabula::packages
