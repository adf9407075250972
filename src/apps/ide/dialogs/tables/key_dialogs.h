#pragma once

#include <QCoreApplication>

#include "authoring/jobs/key_change.h"
#include "ide/dialogs/column_dialog.h"

class QComboBox;
class QFormLayout;
class QLabel;
class QLineEdit;
class QTableWidget;

namespace fabula::ide {

/// The dialog of KeySelectScreen. Accepted when records were found; `Selection` tells which.
class KeySelectDialog final : public ColumnDialog {
    Q_DECLARE_TR_FUNCTIONS(Fabula)
  public:
    /// The screen outlives the dialog.
    explicit KeySelectDialog(authoring::KeySelectScreen& screen, QWidget* parent = nullptr);

    const std::optional<authoring::KeySelection>& Selection() const { return selection_; }

  private:
    QLineEdit* AddLine(QFormLayout& form, const char* name, const QString& label);
    void ShowTable();
    void Select();

    authoring::KeySelectScreen& screen_;
    QComboBox* table_;
    QLineEdit* key_;
    QLineEdit* process_;
    QLineEdit* w1_;
    QLineEdit* w2_;
    QLabel* explanation_;
    std::optional<authoring::KeySelection> selection_;
};

/// The dialog of KeyChangeScreen: the records, of which only the keys can be edited. Accepted by Finish.
class KeyChangeDialog final : public ColumnDialog {
    Q_DECLARE_TR_FUNCTIONS(Fabula)
  public:
    /// Both outlive the dialog. `dialogs` tells what could not be stored.
    KeyChangeDialog(authoring::KeyChangeScreen& screen, platform::Dialogs& dialogs,
                    QWidget* parent = nullptr);
    ~KeyChangeDialog() override;

  private:
    void ShowRows();
    void Leave(int row);
    void Finish();

    authoring::KeyChangeScreen& screen_;
    platform::Dialogs& dialogs_;
    QTableWidget* rows_;
    bool showing_ = false;
};

}  // namespace fabula::ide
