#pragma once

#include <QCoreApplication>
#include <cstddef>

#include "authoring/files/restore_screen.h"
#include "ide/dialogs/column_dialog.h"

class QPlainTextEdit;
class QTableWidget;

namespace fabula::ide {

/// The dialog of RestoreScreen. Accepted when a copy was chosen to be restored.
class RestoreDialog final : public ColumnDialog {
    Q_DECLARE_TR_FUNCTIONS(Fabula)
  public:
    /// The screen outlives the dialog and has at least one copy.
    explicit RestoreDialog(const authoring::RestoreScreen& screen, QWidget* parent = nullptr);

    /// The copy that is chosen, by its place in the screen's list.
    std::size_t Chosen() const;

  private:
    void ShowComparison();

    const authoring::RestoreScreen& screen_;
    QTableWidget* copies_;
    QPlainTextEdit* comparison_;
};

}  // namespace fabula::ide
