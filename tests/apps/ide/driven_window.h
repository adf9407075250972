#pragma once

#include <QDialog>
#include <functional>
#include <string>
#include <vector>

#include "ide/opened_window.h"
#include "store/schema/table_catalogue.h"

namespace fabula::test {

/// One thing that is done in a dialog: what is typed into a control, in place of what it holds, or a click
/// on it where nothing is typed. Tab goes to a control that is typed into.
struct Step {
    const char* control;
    const char* typed = "";
};

/// What the entries of the small game stand for as their verb: "*", which Marlo's entries don't know, or
/// "_".
std::string AnyVerb(store::AdventureKind kind);

/// A small game of a kind with a record of every table that can be edited. The first of a kind is made, the
/// others are copies of its file.
void WriteSmallGame(const std::filesystem::path& file, store::AdventureKind kind);

/// The window of the authoring tool on that game, driven by keys and the mouse alone.
class DrivenWindow : public OpenedWindow {
  public:
    explicit DrivenWindow(store::AdventureKind kind);

    /// Opens the groups of the tree and clicks on a table.
    void GoToTable(const char* node);
    /// Walks through the rows to the one that begins with this text.
    void GoToRow(const std::string& first);
    /// Presses a key in the rows, and does the steps in the dialog that opens, up to Update. False when
    /// none has opened; what went wrong in it is a failure of the test.
    bool InDialog(int key, Qt::KeyboardModifiers modifiers, const std::vector<Step>& steps);

    /// What the row of the rows' table shows under a title.
    std::string CellOf(const std::string& first, const std::string& title) const;
    int RowCount() const;
    /// A field of the file.
    std::string Stored(store::TableNum table, const char* field, const std::string& where) const;
};

}  // namespace fabula::test
