#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "packages/game_facts.h"
#include "store/adventure.h"

namespace fabula::packages {

/// What a file of a package is, as `PkgType` names it.
namespace package_type {
inline constexpr std::string_view kDatabase = "DB";
inline constexpr std::string_view kGraphic = "Graphic";
inline constexpr std::string_view kEngine = "Engine";
inline constexpr std::string_view kFile = "File";
inline constexpr std::string_view kReadMe = "ReadMe";
}  // namespace package_type

/// A file that may go into a package.
struct PackageRow {
    std::string type;
    std::string name;  ///< relative to the game's folder
    bool included = true;

    friend bool operator==(const PackageRow&, const PackageRow&) = default;
};

/// Whether the file has the table of packages and its fields.
bool CanPackage(const store::Adventure& adventure);

/// The list of the files of a game's package: what the table `Package` holds under the game's name, of
/// which the table takes the first 12 characters. Names that differ by case, or are one in a zip, are one.
class PackageList {
  public:
    /// Reads the rows; then the database's and the graphics' are built anew, from the adventure as it is,
    /// and the ReadMe's is added. Nothing is written yet.
    explicit PackageList(store::Adventure& adventure);

    /// The database, the graphics, the engine, the files that were added, the ReadMe.
    const std::vector<PackageRow>& Rows() const { return rows_; }
    const GameFacts& Facts() const { return facts_; }
    std::string ReadMeName() const { return AsFileName(facts_.Title()) + ".ReadMe"; }

    const PackageRow* Find(std::string_view name) const;

    /// Adds a row in its place. False when the name is in the list.
    bool Add(std::string_view type, const std::string& name);
    /// Removes what is there of a type, or the one row of a name.
    void RemoveType(std::string_view type);
    void Remove(std::string_view name);

    /// Writes the rows into the table where they differ from it.
    void Store(store::Adventure& adventure) const;

  private:
    std::string Package() const;
    std::vector<PackageRow> Stored(store::Adventure& adventure) const;
    void AddGraphics(store::Adventure& adventure);
    /// Behind the rows of its type and those before it; false when its name is in the list.
    bool Insert(PackageRow row);
    void RemoveRows(const std::function<bool(const PackageRow&)>& which);

    GameFacts facts_;
    std::vector<PackageRow> rows_;  ///< in the order of their types
    std::set<std::string> keys_;    ///< of their names
};

/// The name of a file in a zip: relative, "/" between folders, never out of the folder, and no control
/// characters. nullopt for a name that is none.
std::optional<std::string> ZipName(std::string_view stored);

}  // namespace fabula::packages
