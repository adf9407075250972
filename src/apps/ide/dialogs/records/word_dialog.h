#pragma once

#include <QCoreApplication>

#include "authoring/screens/word_screen.h"
#include "ide/dialogs/records/record_dialog.h"

class QButtonGroup;
class QLineEdit;

namespace fabula::ide {

/// The dialog of a word.
class WordDialog final : public RecordDialog {
    Q_DECLARE_TR_FUNCTIONS(Fabula)
  public:
    explicit WordDialog(authoring::WordScreen& screen, QWidget* parent = nullptr);

  protected:
    void Read() override;
    void Show() override;

  private:
    void AddTypes();

    authoring::WordScreen& screen_;
    QLineEdit* word_;
    QButtonGroup* types_;
    QLineEdit* number_;
};

}  // namespace fabula::ide
