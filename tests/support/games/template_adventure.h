#pragma once

#include <filesystem>
#include <memory>

#include "store/adventure.h"
#include "store/setup.h"
#include "support/temp_folder.h"

namespace fabula::test {

/// The name of all adventures that tests make.
inline constexpr const char* kTestIfid = "5EED0000-0000-4000-8000-00000000FA8A";

/// Creates an adventure from the project's own default data. The first of each kind and setting costs a
/// creation; later ones copy its file.
void MakeAdventure(const std::filesystem::path& file, const store::AdventureSetup& setup = {});

/// A fresh adventure of a kind in a folder of its own, open for writing.
class OpenedAdventure {
  public:
    explicit OpenedAdventure(store::AdventureKind kind = store::AdventureKind::Fabula);

    store::Adventure& operator*() const { return *adventure_; }
    store::Adventure* operator->() const { return adventure_.get(); }
    std::filesystem::path File() const { return folder_ / "game.fbd"; }
    const TempFolder& Folder() const { return folder_; }

    /// Closes the file and opens it again.
    void Reopen(store::OpenMode mode = store::OpenMode::ReadWrite);
    void Close() { adventure_.reset(); }

  private:
    TempFolder folder_;
    std::unique_ptr<store::Adventure> adventure_;
};

}  // namespace fabula::test
