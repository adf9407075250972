#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "authoring/document/screen_context.h"
#include "packages/package.h"
#include "platform/settings.h"

namespace fabula::packages {

/// The window "Package Your Adventure". What it lists is kept in the adventure; the list is no part of the
/// game, so that Undo leaves it alone.
class PackageScreen {
  public:
    static constexpr std::string_view kTitle = "Package Your Adventure";
    static constexpr std::string_view kLabel =
        "A ReadMe file is created automatically for this adventure.  Information in this file is the "
        "Adventure Information from the Adventure Setup screen, general Fabula info, and a listing of the "
        "files in the ZipFile. If you want to add anything else, add it below.  It will be inserted into "
        "the ReadMe before the file list.";
    static constexpr std::string_view kIncludeEngine = "Include Engine  in  Package";
    static constexpr std::string_view kLookAtReadMe = "Look at ReadMe in Notepad";

    /// The screen, or nullptr after the author was told that the adventure has no table of packages. Throws
    /// fabula::Error when the list can't be made.
    static std::unique_ptr<PackageScreen> Open(authoring::ScreenContext& context,
                                               platform::Settings& settings, InstalledEngine engine);

    std::string version;
    std::string readMeText;  ///< what goes into the ReadMe before the list of files
    bool lookAtReadMe = false;

    /// Shows a file in a viewer of the system. For the window.
    std::function<void(const std::filesystem::path& file)> look = [](const std::filesystem::path&) {};

    const std::vector<PackageRow>& Rows() const { return list_.Rows(); }

    bool IncludesEngine() const { return includesEngine_; }
    /// Ticks and unticks the engine. It stays unticked when there is none that will do.
    void ClickIncludeEngine(bool on);

    void AddFile();
    /// Deletes the row at a place of `Rows`.
    void DeleteFile(std::size_t row);
    /// Adds the text of a file to the text for the ReadMe.
    void BrowseForReadMe();

    /// Makes the zip. True when it was made.
    bool Package();

    /// Keeps whether the engine is ticked.
    void Leave();

  private:
    PackageScreen(authoring::ScreenContext& context, platform::Settings& settings, InstalledEngine engine);

    store::Adventure& Adventure() const { return context_.document.Adventure(); }
    void StoreList();
    bool Guard(const std::function<void()>& step);
    std::optional<std::string> CopyIntoGame(const std::filesystem::path& file);
    std::optional<std::filesystem::path> AskForZip() const;

    authoring::ScreenContext& context_;
    platform::Settings& settings_;
    InstalledEngine engine_;
    PackageList list_;
    bool includesEngine_ = false;
};

/// The settings of packages: their section, and the keys of the tick of the engine and of the address that
/// ReadMe files give.
inline constexpr std::string_view kPackageSection = "Package";
inline constexpr std::string_view kIncludeEngineKey = "IncludeEngine";
inline constexpr std::string_view kProductPageKey = "ProductPage";

}  // namespace fabula::packages
