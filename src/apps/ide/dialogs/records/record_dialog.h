#pragma once

#include "authoring/screens/record_screen.h"
#include "ide/dialogs/screen_dialog.h"
#include "ide/editors/edit_controls.h"

class QBoxLayout;
class QFormLayout;

namespace fabula::ide {

/// What the dialogs of one record share: a form that scrolls where the screen is small. The form may have
/// two columns, which stand side by side where there is room.
class RecordDialog : public ScreenDialog {
  public:
    /// All of the form, as far as the screen has room.
    QSize sizeHint() const override;

  protected:
    /// `screen` outlives the dialog.
    RecordDialog(authoring::RecordScreen& screen, const QString& title, const char* helpPage,
                 QWidget* parent);

    /// What is added from now on stands in a second column.
    void BeginColumn();
    /// Adds a control, found by `name`; the label holds its mnemonic and is its accessible name too.
    void AddControl(const QString& label, QWidget* control, const char* name);

    bool Update() override { return record_.Update(); }
    void resizeEvent(QResizeEvent* event) override;

    QFormLayout* form_ = nullptr;  ///< the column to which controls are added

  private:
    int WidthOfColumns() const;
    void Arrange();

    authoring::RecordScreen& record_;
    QBoxLayout* columns_;
};

}  // namespace fabula::ide
