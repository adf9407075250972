#pragma once

#include <QCoreApplication>

#include "authoring/fields/texts/text_editing.h"
#include "authoring/screens/location_screen.h"
#include "ide/dialogs/records/record_dialog.h"
#include "ide/editors/markup_edit.h"

class QCheckBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QTableWidget;

namespace fabula::ide {

class PictureView;

/// The dialog of a location. Its exits stand in one line, and in rows that are kept in step with it.
class LocationDialog final : public RecordDialog {
    Q_DECLARE_TR_FUNCTIONS(Fabula)
  public:
    explicit LocationDialog(authoring::LocationScreen& screen, QWidget* parent = nullptr);

    std::optional<authoring::NamedRecord> NamedAtCursor() override;

  protected:
    bool eventFilter(QObject* receiver, QEvent* event) override;
    void Read() override;
    void Show() override;
    void ShowOpened() override;

  private:
    void AddExits();
    void AddNewExit();
    void ReadNewExit();
    void ShowNewExit();
    void AddPicture();
    void AddNeighbours();
    void ShowNeighbours();
    void ReadRows();
    void ShowPicture();
    void ShowDrawing();
    void ShowRows();
    void RemoveRow();
    void AddExit();

    authoring::LocationScreen& screen_;
    authoring::TextEditing editing_;
    MarkupEdit* shortDescription_;
    MarkupEdit* description_;
    QTableWidget* rows_;
    QListWidget* neighbours_ = nullptr;
    QComboBox* word_;
    QComboBox* location_;
    QCheckBox* andBack_;
    QLabel* whatAddDoes_;
    QLineEdit* exits_;
    QLineEdit* picture_;
    PictureView* pictureView_;
    bool showing_ = false;  ///< fields are being filled and not edited
};

}  // namespace fabula::ide
