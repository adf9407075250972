#pragma once

#include <QCoreApplication>

#include "authoring/fields/texts/text_editing.h"
#include "authoring/screens/object_screen.h"
#include "ide/dialogs/records/record_dialog.h"
#include "ide/editors/markup_edit.h"

class QButtonGroup;
class QCheckBox;
class QLabel;
class QLineEdit;

namespace fabula::ide {

/// The dialog of an object.
class ObjectDialog final : public RecordDialog {
    Q_DECLARE_TR_FUNCTIONS(Fabula)
  public:
    explicit ObjectDialog(authoring::ObjectScreen& screen, QWidget* parent = nullptr);

    std::optional<authoring::NamedRecord> NamedAtCursor() override;

  protected:
    void Read() override;
    void Show() override;
    void ShowOpened() override;

  private:
    QWidget* NewPlaces();
    void AddNounOffer();
    void ReadNoun();
    void ShowNoun();
    void ShowNounOffer();

    authoring::ObjectScreen& screen_;
    authoring::TextEditing editing_;
    MarkupEdit* description_;
    QComboBox* noun_;
    QCheckBox* makeNoun_;
    QComboBox* adjective_;
    QButtonGroup* places_;
    QComboBox* room_;
    QCheckBox* container_;
    QCheckBox* wearable_;
    QLabel* inside_;  ///< which location holds what is in a container
    QLineEdit* weight_;
};

}  // namespace fabula::ide
