#pragma once

#include <QCoreApplication>
#include <vector>

#include "authoring/desk/grid/sort_screen.h"
#include "ide/dialogs/column_dialog.h"
#include "platform/dialogs.h"

class QComboBox;
class QGridLayout;

namespace fabula::ide {

/// The dialog of the command Sort: a line for each field, with its direction. Accepted by Update. The lists
/// of the lines are called "field1" and "direction1" and so on.
class SortDialog final : public ColumnDialog {
    Q_DECLARE_TR_FUNCTIONS(Fabula)
  public:
    /// Both outlive the dialog. `dialogs` tells what could not be stored.
    SortDialog(authoring::SortScreen& screen, platform::Dialogs& dialogs, QWidget* parent = nullptr);

  private:
    struct Line {
        QComboBox* field;
        QComboBox* direction;
    };

    void AddLine();
    void ShowLevels();
    void ReadLevels();
    void ClickUpdate();

    authoring::SortScreen& screen_;
    platform::Dialogs& dialogs_;
    QGridLayout* lines_;
    std::vector<Line> shown_;
};

}  // namespace fabula::ide
