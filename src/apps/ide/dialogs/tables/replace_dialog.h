#pragma once

#include <QCoreApplication>

#include "authoring/desk/search/replace_screen.h"
#include "ide/dialogs/column_dialog.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTreeWidget;
class QVBoxLayout;

namespace fabula::ide {

/// The dialog of find and replace over all tables: what, with what and where; below, each place with a
/// tick, the line it stands in and what would become of it. They go as soon as something else is wanted:
/// what is replaced is what is shown. A double click on a place goes there. Its parts are found by the
/// names "what", "with", "scope", "matchCase", "wholeWords", "expression", "find", "found", "replace",
/// "replaceStatus" and "exit".
class ReplaceDialog final : public ColumnDialog {
    Q_DECLARE_TR_FUNCTIONS(Fabula)
  public:
    explicit ReplaceDialog(authoring::ReplaceScreen& screen, QWidget* parent = nullptr);

    /// The place that the author wants to go to; nullptr when none was chosen.
    const authoring::ReplaceScreen::Found* GoTo() const { return goTo_; }

  private:
    void MakeLines(QVBoxLayout& layout);
    void MakeList(QVBoxLayout& layout);
    void Find();
    void Forget();
    void Replace();
    void ShowFound();

    authoring::ReplaceScreen& screen_;
    const authoring::ReplaceScreen::Found* goTo_ = nullptr;
    QLineEdit* what_;
    QLineEdit* with_;
    QComboBox* scope_;
    QCheckBox* matchCase_;
    QCheckBox* wholeWords_;
    QCheckBox* expression_;
    QTreeWidget* found_;
    QLabel* status_;
    QPushButton* replace_;
};

}  // namespace fabula::ide
