#include "authoring/status_text.h"

#include <fstream>

#include "authoring/session.h"

namespace fabula::authoring {

bool SaveStatusText(std::string_view text, const std::filesystem::path& proposal,
                    platform::Dialogs& dialogs) {
    const auto file = dialogs.ChooseFile(
        {"Save the Status", "Text files (*.txt)|*.txt|All files|*.*", "txt", true, proposal});
    if (!file) return false;
    std::ofstream stream(*file, std::ios::binary);
    stream << text;
    stream.close();
    if (!stream) return Refuse(dialogs, "Could not write " + file->string() + ".");
    return true;
}

}  // namespace fabula::authoring
