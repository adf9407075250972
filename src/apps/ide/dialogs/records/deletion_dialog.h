#pragma once

#include <QCoreApplication>
#include <optional>

#include "authoring/desk/search/deletion_uses.h"
#include "ide/dialogs/column_dialog.h"

class QListWidget;

namespace fabula::ide {

/// What uses a record that is about to be deleted. It is accepted when the author goes on with that; with a
/// place to go to, the record stays.
class DeletionDialog final : public ColumnDialog {
    Q_DECLARE_TR_FUNCTIONS(Fabula)
  public:
    /// `uses` outlives the dialog.
    explicit DeletionDialog(const authoring::DeletionUses& uses, QWidget* parent = nullptr);

    /// The place that the author would rather see.
    const std::optional<authoring::Jump>& GoTo() const { return goTo_; }

  private:
    void Go();

    const authoring::DeletionUses& uses_;
    QListWidget* list_;
    std::optional<authoring::Jump> goTo_;
};

}  // namespace fabula::ide
