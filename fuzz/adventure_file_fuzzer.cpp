// Any bytes as an adventure file: it is refused, or every table of it can be read.

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>

#include <unistd.h>

#include "platform/error.h"
#include "store/adventure.h"

using namespace fabula;

namespace {

void ReadEveryTable(const std::filesystem::path& file) {
    const auto adventure = store::Adventure::Open(file);
    for (const store::TableEntry& table : store::AllTables()) {
        store::Cursor& cursor = adventure->OpenTable(table.number, "def");
        for (; !cursor.Eof(); cursor.MoveNext()) {
            for (std::size_t column = 0; column < cursor.Fields().size(); ++column)
                cursor.Field(column);
        }
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto file =
        std::filesystem::temp_directory_path() / ("fuzz-" + std::to_string(getpid()) + ".fbd");
    std::ofstream(file, std::ios::binary)
        .write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
    try {
        ReadEveryTable(file);
    } catch (const Error&) {
    }
    std::filesystem::remove(file);
    return 0;
}
