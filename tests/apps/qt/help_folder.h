#pragma once

#include <filesystem>
#include <string_view>

#include "support/temp_folder.h"

namespace fabula::test {

/// A help of a few pages of its own, in a folder of its own:
///
///     contents.html   A first game; Screens (Location, Word); Flags with Lamp below it
///     first.html      "A first game"
///     frmvellocation.html   "Location", with the anchors "txtexits" and "cmdadd"
///     frmvelvocabulary.html "Word"
///     frmvelidemain.html    "Main window"
///     flags.html      "Flags", with the anchor "f10"
class HelpFolder {
  public:
    HelpFolder();
    void Write(const char* name, std::string_view html) const;
    std::filesystem::path Contents() const { return folder_ / "contents.html"; }

  private:
    TempFolder folder_;
};

}  // namespace fabula::test
