#pragma once

#include <QCoreApplication>

#include "authoring/desk/search/renumber_screen.h"
#include "ide/dialogs/column_dialog.h"

class QLineEdit;
class QListWidget;

namespace fabula::ide {

/// The dialog of the command Change Number: the new number, and what it would change. Accepted by Update.
/// Its parts are found by the names "number", "changes", "update" and "exit".
class RenumberDialog final : public ColumnDialog {
    Q_DECLARE_TR_FUNCTIONS(Fabula)
  public:
    explicit RenumberDialog(authoring::RenumberScreen& screen, QWidget* parent = nullptr);

  private:
    void ShowPreview();
    void ClickUpdate();

    authoring::RenumberScreen& screen_;
    QLineEdit* number_;
    QListWidget* changes_;
};

}  // namespace fabula::ide
