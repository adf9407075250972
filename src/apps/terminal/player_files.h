#pragma once

#include <filesystem>

#include "terminal/scratch_folder.h"

namespace fabula::terminal {

/// Where the files lie that the player names in a game.
class PlayerFiles {
  public:
    virtual ~PlayerFiles() = default;
    virtual std::filesystem::path Place(const std::filesystem::path& name, bool forWriting) const = 0;
};

/// Where the player says.
class NamedFiles final : public PlayerFiles {
  public:
    std::filesystem::path Place(const std::filesystem::path& name, bool) const override { return name; }
};

/// For tests, which may come from strangers and must give the same result each time: whatever the name, a
/// file is written into a folder of its own, deleted at the end. What was not written there is read from
/// the folder of the script, under its name alone, too.
class ScratchFiles final : public PlayerFiles {
  public:
    explicit ScratchFiles(std::filesystem::path scriptFolder);

    std::filesystem::path Place(const std::filesystem::path& name, bool forWriting) const override;

  private:
    std::filesystem::path scriptFolder_;
    ScratchFolder scratch_;
};

}  // namespace fabula::terminal
