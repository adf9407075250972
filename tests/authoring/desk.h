#pragma once

#include <initializer_list>
#include <iosfwd>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "authoring/document/document.h"
#include "authoring/document/screen_context.h"
#include "store/setup.h"
#include "support/doubles/scripted_dialogs.h"
#include "support/temp_folder.h"
#include "text/value.h"

namespace fabula::test {

/// Every field of every record of every table, to be compared as a whole.
struct Snapshot {
    std::map<std::string, std::vector<std::string>> tables;  ///< rows by the table's name

    friend bool operator==(const Snapshot&, const Snapshot&) = default;
    /// A failing test shows how many records each table has: all of them would be too many to read.
    friend void PrintTo(const Snapshot& snapshot, std::ostream* out);
};

/// An adventure on the author's desk in a test: fresh from the default data, with scripted boxes.
class Desk {
  public:
    explicit Desk(store::AdventureKind kind = store::AdventureKind::Fabula, bool graphics = false);

    store::Adventure& Adventure() { return document.Adventure(); }

    /// Adds a record, and makes no step of Undo of it.
    void Add(store::TableNum table, std::initializer_list<std::pair<std::string_view, text::Value>> fields);
    void AddWord(int vocindex, std::string_view word, int number, int type);
    /// `process`, words with their numbers, and a line in text form, which is compiled.
    void AddEntry(int canum, int process, std::pair<std::string, int> verb,
                  std::pair<std::string, int> noun, std::string_view condacts);
    /// Empties a table, and makes no step of Undo of it.
    void Clear(store::TableNum table);
    /// Fills a table with empty records of the numbers 0 to `count` - 1.
    void FillUp(store::TableNum table, int count);

    /// The records that match `where` in the order `order`, one text each: the fields between bars.
    std::vector<std::string> Rows(store::TableNum table, std::string_view fields,
                                  std::string_view where = "", std::string_view order = "");
    Snapshot Everything();

    /// The texts of the boxes so far.
    std::vector<std::string> Boxes() const;

  private:
    TempFolder folder_;

  public:
    platform::ScriptedDialogs dialogs;
    authoring::Document document;
    authoring::ScreenContext context{document, dialogs};
};

}  // namespace fabula::test
