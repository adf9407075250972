#pragma once

#include "authoring/frm_vel_objects.h"
#include "authoring/text_editing.h"
#include "ide/markup_edit.h"
#include "ide/record_dialog.h"

class QButtonGroup;
class QCheckBox;
class QLineEdit;

namespace fabula::ide {

/// The dialog of an object.
class ObjectDialog final : public RecordDialog {
  public:
    explicit ObjectDialog(authoring::frmVelObjects& screen, QWidget* parent = nullptr);

  protected:
    void Read() override;
    void Show() override;
    bool Update() override { return screen_.cmdUpdate(); }

  private:
    QWidget* NewPlaces();

    authoring::frmVelObjects& screen_;
    authoring::TextEditing editing_;
    MarkupEdit* description_;
    QComboBox* noun_;
    QComboBox* adjective_;
    QButtonGroup* places_;
    QComboBox* room_;
    QCheckBox* container_;
    QCheckBox* wearable_;
    QLineEdit* weight_;
};

}  // namespace fabula::ide
