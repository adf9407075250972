#include "packages/zip_file.h"

#include <cstdint>
#include <memory>

#include <zip.h>

#include "platform/whole_file.h"
#include "store/file_copy.h"
#include "store/temporary_file.h"

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
    {ZIP_ER_MEMORY, zip_code::kMemory},         {ZIP_ER_WRITE, zip_code::kWrite},
    {ZIP_ER_CLOSE, zip_code::kWrite},           {ZIP_ER_OPEN, zip_code::kOpenToWrite},
    {ZIP_ER_READ, zip_code::kReadOrSeek},       {ZIP_ER_SEEK, zip_code::kReadOrSeek},
    {ZIP_ER_TMPOPEN, zip_code::kTemporaryFile}, {ZIP_ER_RENAME, zip_code::kTemporaryFile},
    {ZIP_ER_REMOVE, zip_code::kTemporaryFile},  {ZIP_ER_NOZIP, zip_code::kStructure},
    {ZIP_ER_INCONS, zip_code::kStructure},
};

constexpr zip_uint32_t kLevel = 6;
// The first moment that a zip can hold: nothing in a package tells when it was made.
constexpr zip_uint16_t kTime = 0;
constexpr zip_uint16_t kDate = (1 << 5) | 1;  ///< 1 January 1980
constexpr zip_uint32_t kFileMode = 0100644;
constexpr zip_uint32_t kProgramMode = 0100755;
constexpr int kModeShift = 16;

int CodeOf(int libraryError) {
    for (const LibraryError& each : kErrors) {
        if (each.error == libraryError) return each.code;
    }
    return zip_code::kInternal;
}

/// A zip in the making; without Close nothing is written.
class Archive {
  public:
    explicit Archive(const std::filesystem::path& file) {
        int error = 0;
        archive_ = zip_open(file.c_str(), ZIP_CREATE | ZIP_TRUNCATE, &error);
        if (archive_ == nullptr) throw ZipFailure(CodeOf(error));
    }
    Archive(const Archive&) = delete;
    Archive& operator=(const Archive&) = delete;
    ~Archive() {
        if (archive_ != nullptr) zip_discard(archive_);
    }

    /// The bytes of `file` must stay until Close.
    void Add(const PackedFile& file) {
        zip_source_t* source = zip_source_buffer(archive_, file.bytes.data(), file.bytes.size(), 0);
        if (source == nullptr) Fail();
        const zip_int64_t added = zip_file_add(archive_, file.name.c_str(), source, ZIP_FL_ENC_UTF_8);
        if (added < 0) {
            zip_source_free(source);
            Fail();
        }
        const auto index = static_cast<zip_uint64_t>(added);
        const zip_uint32_t mode = file.runs ? kProgramMode : kFileMode;
        Check(zip_set_file_compression(archive_, index, ZIP_CM_DEFLATE, kLevel));
        Check(zip_file_set_dostime(archive_, index, kTime, kDate, 0));
        Check(zip_file_set_external_attributes(archive_, index, 0, ZIP_OPSYS_UNIX, mode << kModeShift));
    }

    void Close() {
        Check(zip_close(archive_));
        archive_ = nullptr;
    }

  private:
    void Check(int result) {
        if (result != 0) Fail();
    }
    [[noreturn]] void Fail() { throw ZipFailure(CodeOf(zip_error_code_zip(zip_get_error(archive_)))); }

    zip_t* archive_ = nullptr;
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
