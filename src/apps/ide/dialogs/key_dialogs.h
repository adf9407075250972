#pragma once

#include <QCoreApplication>
#include <QDialog>

#include "authoring/jobs/key_change.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QTableWidget;

namespace fabula::ide {

/// The dialog of KeySelectScreen. Accepted when records were found; `Selection` tells which.
class KeySelectDialog final : public QDialog {
    Q_DECLARE_TR_FUNCTIONS(Fabula)
  public:
    /// The screen outlives the dialog.
    explicit KeySelectDialog(authoring::KeySelectScreen& screen, QWidget* parent = nullptr);

    const std::optional<authoring::KeySelection>& Selection() const { return selection_; }

  private:
    QLineEdit* AddLine(class QFormLayout& form, const char* name, const QString& label);
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
class KeyChangeDialog final : public QDialog {
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
