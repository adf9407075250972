#pragma once

#include <QCoreApplication>

#include "authoring/screens/flag_screen.h"
#include "ide/dialogs/records/record_dialog.h"

namespace fabula::ide {

/// The dialog of what a flag is used for.
class FlagDialog final : public RecordDialog {
    Q_DECLARE_TR_FUNCTIONS(Fabula)
  public:
    explicit FlagDialog(authoring::FlagScreen& screen, QWidget* parent = nullptr);

  protected:
    void Read() override;
    void Show() override {}
    void ShowOpened() override;

  private:
    authoring::FlagScreen& screen_;
    QComboBox* type_;
    QComboBox* use_;
    QPlainTextEdit* description_;
};

}  // namespace fabula::ide
