#include "zipped.h"

#include <zip.h>

namespace fabula::packages {

std::map<std::string, std::string> Unzipped(const std::filesystem::path& file) {
    std::map<std::string, std::string> files;
    int error = 0;
    zip_t* archive = zip_open(file.c_str(), ZIP_RDONLY | ZIP_CHECKCONS, &error);
    if (archive == nullptr) return files;
    for (zip_int64_t i = 0; i < zip_get_num_entries(archive, 0); ++i) {
        zip_stat_t facts;
        zip_stat_index(archive, static_cast<zip_uint64_t>(i), 0, &facts);
        std::string bytes(facts.size, '\0');
        zip_file_t* entry = zip_fopen_index(archive, static_cast<zip_uint64_t>(i), 0);
        zip_fread(entry, bytes.data(), bytes.size());
        zip_fclose(entry);
        files[facts.name] = bytes;
    }
    zip_close(archive);
    return files;
}

}  // namespace fabula::packages
