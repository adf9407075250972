#include "authoring/jobs/status_text.h"

#include "authoring/document/screen_context.h"
#include "platform/error.h"
#include "store/file/file_copy.h"

namespace fabula::authoring {

bool SaveStatusText(std::string_view text, const std::filesystem::path& proposal,
                    platform::Dialogs& dialogs) {
    const auto file = dialogs.ChooseFile(
        {"Save the Status", "Text files (*.txt)|*.txt|All files|*.*", "txt", true, proposal});
    if (!file) return false;
    try {
        store::WriteFile(*file, text);
    } catch (const Error& error) {
        return Refuse(dialogs, error.what());
    }
    return true;
}

}  // namespace fabula::authoring
