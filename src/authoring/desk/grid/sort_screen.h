#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "authoring/document/screen_context.h"
#include "store/schema/table_catalogue.h"

namespace fabula::authoring {

/// A field that records can be sorted by.
struct SortField {
    std::string name;   ///< in lower case, as orders are stored
    std::string title;  ///< the other name of the field with its name behind it, or its name alone
};

/// One line of the screen: a field and its direction.
struct SortLevel {
    std::optional<std::size_t> field;  ///< its place among the fields; nullopt: none
    bool down = false;

    friend bool operator==(const SortLevel&, const SortLevel&) = default;
};

/// The screen of the command Sort: the order that the adventure keeps for a table, as a list of fields, the
/// first of which counts most.
class SortScreen {
  public:
    /// A table whose order can be changed; another one throws std::logic_error. `caption` names it.
    /// `proposal` is an order that the screen opens with in place of the present one.
    SortScreen(ScreenContext& context, store::TableNum table, std::string_view caption,
               const std::optional<std::string>& proposal = std::nullopt);

    std::string Caption() const { return "Sort " + caption_; }
    const std::vector<SortField>& Fields() const { return fields_; }

    /// The lines, kFewestLevels or as many as the order needs. Lines without a field do not count.
    std::vector<SortLevel> levels;

    /// Fills the lines with the order that tables of this kind have at first.
    void OwnOrder();
    /// Stores the order as one step of Undo; the order that the table has already stores nothing. True when
    /// the screen can close.
    bool Update();

    static constexpr std::size_t kFewestLevels = 3;

  private:
    void ReadFields();
    void ShowOrder(std::string_view order);
    std::string Order() const;
    std::string Fault() const;

    ScreenContext& context_;
    store::TableNum table_;
    std::string caption_;
    std::vector<SortField> fields_;
    std::string present_;  ///< the table's order, as this screen writes it
};

}  // namespace fabula::authoring
