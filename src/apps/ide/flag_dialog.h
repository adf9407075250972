#pragma once

#include "authoring/frm_flags.h"
#include "ide/record_dialog.h"

namespace fabula::ide {

/// The dialog of what a flag is used for.
class FlagDialog final : public RecordDialog {
  public:
    explicit FlagDialog(authoring::frmFlags& screen, QWidget* parent = nullptr);

  protected:
    void Read() override;
    void Show() override {}
    bool Update() override { return screen_.cmdUpdate(); }

  private:
    authoring::frmFlags& screen_;
    QComboBox* type_;
    QComboBox* use_;
    QPlainTextEdit* description_;
};

}  // namespace fabula::ide
