#include "ide/window/examples.h"

#include <array>

#include "platform/error.h"
#include "platform/user_folders.h"
#include "store/file/file_copy.h"

namespace fabula::ide {
namespace {

struct Known {
    const char* file;
    const char* name;
    const char* about;
};

constexpr std::array kKnown = {
    Known{"lighthouse.fbd", "Better Dark",
          "Gannow Light has gone out. About twenty places, with pictures."},
    Known{"signal_box.fbd", "The Signal Box", "A fog, a night mail and five endings. A game of type VEL."},
    Known{"cellar.fbd", "The Cellar", "Something hums under the Three Tuns. A game of type Marlo."},
};

}  // namespace

std::vector<Example> FindExamples(const std::vector<std::filesystem::path>& folders) {
    std::vector<Example> found;
    for (const Known& known : kKnown) {
        const auto file = platform::FindFile(folders, std::filesystem::path("examples") / known.file);
        if (file) found.push_back({*file, known.name, known.about});
    }
    return found;
}

std::filesystem::path TakeExample(const Example& example, const std::filesystem::path& folder) {
    namespace fs = std::filesystem;
    const fs::path own = folder / example.file.filename();
    const fs::path pictures = fs::path("pictures") / example.file.stem();
    try {
        if (fs::exists(own)) return own;
        fs::create_directories(folder);
        if (fs::exists(example.file.parent_path() / pictures)) {
            fs::create_directories((folder / pictures).parent_path());
            fs::copy(example.file.parent_path() / pictures, folder / pictures,
                     fs::copy_options::recursive | fs::copy_options::skip_existing);
        }
        // A copy that is broken off must not be taken for the example the next time.
        const store::TemporaryFile copy(own);
        fs::copy_file(example.file, copy.Path(), fs::copy_options::overwrite_existing);
        fs::permissions(copy.Path(), fs::perms::owner_write, fs::perm_options::add);
        store::MoveIntoPlace(copy.Path(), own);
    } catch (const fs::filesystem_error& error) {
        throw Error("Could not copy the example to " + own.string() + ": " + error.code().message() + ".");
    }
    return own;
}

}  // namespace fabula::ide
