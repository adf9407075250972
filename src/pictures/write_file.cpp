#include "pictures/write_file.h"

#include <fstream>

#include "platform/error.h"
#include "store/file_copy.h"

namespace fabula::pictures {

void WriteFile(const std::filesystem::path& file, std::string_view bytes) {
    const store::TemporaryFile temporary(store::TemporaryBeside(file));
    std::ofstream stream(temporary.Path(), std::ios::binary);
    stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    stream.close();
    if (!stream) throw Error("Could not write " + file.string() + ".");
    store::MoveIntoPlace(temporary.Path(), file);
}

}  // namespace fabula::pictures
