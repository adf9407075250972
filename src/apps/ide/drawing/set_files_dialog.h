#pragma once

#include <QCoreApplication>

#include "authoring/drawing/character_set_files.h"
#include "ide/dialogs/column_dialog.h"

class QListWidget;

namespace fabula::ide {

/// The window that saves or loads character sets: a list of them and a button.
class SetFilesDialog final : public ColumnDialog {
    Q_DECLARE_TR_FUNCTIONS(Fabula)
  public:
    SetFilesDialog(authoring::CharacterSetFiles& screen, platform::Dialogs& dialogs,
                   QWidget* parent = nullptr);

  private:
    void Run();

    authoring::CharacterSetFiles& screen_;
    platform::Dialogs& dialogs_;
    QListWidget* sets_;
};

}  // namespace fabula::ide
