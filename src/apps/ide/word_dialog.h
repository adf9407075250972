#pragma once

#include "authoring/frm_vel_vocabulary.h"
#include "ide/record_dialog.h"

class QButtonGroup;
class QLineEdit;

namespace fabula::ide {

/// The dialog of a word.
class WordDialog final : public RecordDialog {
  public:
    explicit WordDialog(authoring::frmVelVocabulary& screen, QWidget* parent = nullptr);

  protected:
    void Read() override;
    void Show() override;
    bool Update() override { return screen_.cmdUpdate(); }

  private:
    void AddTypes();

    authoring::frmVelVocabulary& screen_;
    QLineEdit* word_;
    QButtonGroup* types_;
    QLineEdit* number_;
};

}  // namespace fabula::ide
