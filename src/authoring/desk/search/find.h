#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "authoring/desk/grid/table_grid.h"
#include "platform/person.h"
#include "store/adventure.h"

namespace fabula::authoring {

/// A field that Find can look into.
struct FindField {
    std::string name;
    std::string title;    ///< as the grid's column has it
    bool number = false;  ///< its value is looked up, not a text in it
};

/// The box of a text to look for and the list of fields to look into.
class FindBox {
  public:
    /// Offers the fields of a table that are marked for it, for the process tables the process too. The
    /// field that was chosen stays when the table has it; otherwise it is the description or text of the
    /// records, or none when there is nothing to choose.
    void SetUpFindComboBox(store::Adventure& adventure, store::TableNum table);

    std::string text;  ///< what the author typed
    const std::vector<FindField>& Fields() const { return fields_; }
    /// Chooses a field by its place in the list; nullopt for none.
    void Choose(std::optional<std::size_t> field) { chosen_ = field; }
    std::optional<std::size_t> Chosen() const { return chosen_; }

    /// The first row behind `row` (-1 for none) that matches, or else the first of all. Tells in a box why
    /// nothing was looked for or found. `caption` names the table.
    std::optional<int> Find(const TableGrid& grid, int row, std::string_view caption,
                            platform::Person& person) const;

  private:
    std::vector<FindField> fields_;
    std::optional<std::size_t> chosen_;
};

}  // namespace fabula::authoring
