#pragma once

#include <QCoreApplication>
#include <vector>

#include "authoring/jobs/new_locations_screen.h"
#include "ide/dialogs/column_dialog.h"

class QLineEdit;

namespace fabula::ide {

/// The dialog of `NewLocationsScreen`: a line for each picture.
class NewLocationsDialog final : public ColumnDialog {
    Q_DECLARE_TR_FUNCTIONS(Fabula)
  public:
    NewLocationsDialog(authoring::NewLocationsScreen& screen, platform::Dialogs& dialogs,
                       QWidget* parent = nullptr);

  private:
    QWidget* MakeLines();
    void ClickUpdate();

    authoring::NewLocationsScreen& screen_;
    platform::Dialogs& dialogs_;
    std::vector<QLineEdit*> fields_;
};

}  // namespace fabula::ide
