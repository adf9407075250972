#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "authoring/document/screen_context.h"

namespace fabula::authoring {

/// The window that saves character sets to a file, or loads one of them: a list of sets and a button.
class CharacterSetFiles {
  public:
    enum class Purpose { Load, Save };

    /// A load goes into the set `target`.
    CharacterSetFiles(ScreenContext& context, Purpose purpose, int target = 0);

    /// Asks for the file to load from and lists its sets. False when there is none to show: the window does
    /// not open then. For saving true. Throws fabula::Error when the file can't be read.
    bool Begin();

    Purpose GetPurpose() const { return purpose_; }
    std::string Title() const;
    std::string Label() const { return purpose_ == Purpose::Save ? "Select Set(s)" : "Select Set"; }
    std::string Button() const { return purpose_ == Purpose::Save ? "Save" : "Load"; }
    const std::vector<std::string>& Lines() const { return lines_; }

    /// The indices of the lines that are selected.
    std::vector<std::size_t> selected;

    /// Does it. False when it was refused or given up; the window stays. Throws fabula::Error, and nothing
    /// has changed then.
    bool Run();

  private:
    std::vector<std::string> Selected() const;
    bool Save();
    bool Load();

    ScreenContext& context_;
    Purpose purpose_;
    int target_;
    std::filesystem::path file_;
    std::vector<std::string> lines_;
};

}  // namespace fabula::authoring
