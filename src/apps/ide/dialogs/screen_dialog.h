#pragma once

#include <QCoreApplication>
#include <functional>

#include "authoring/fields/edit_screen.h"
#include "ide/dialogs/column_dialog.h"
#include "ide/dialogs/records/record_editor.h"
#include "ide/dialogs/update_and_exit.h"

class QHBoxLayout;

namespace fabula::ide {

class CommentEdit;

/// What the dialogs that edit something share: Update (Ctrl+Return) and Exit (Esc), and checks of the
/// fields that are left. A control that is refused gets the focus back.
class ScreenDialog : public ColumnDialog, public RecordEditor {
    Q_DECLARE_TR_FUNCTIONS(Fabula)
  public:
    /// The first time, as a window: in its size, with the keyboard in the first field.
    void setVisible(bool visible) override;
    /// Closes without storing; asks first where something was changed.
    void reject() override;

    bool HasChanges() override;
    void Store() override { ClickUpdate(); }
    void ShowRecord() final;

  protected:
    /// `screen` outlives the dialog. A title that is another one for each record is set by ShowOpened.
    ScreenDialog(authoring::EditScreen& screen, const QString& title, const char* helpPage,
                 QWidget* parent);

    /// Puts what is edited above the buttons.
    void SetContents(QWidget* contents);
    /// A size for contents that scroll, and the buttons: all of them, as far as the screen has room.
    QSize SizeFor(const QSize& contents) const;

    /// Checks a control when the focus leaves it for another one but Update and Exit.
    void CheckOnLeave(QWidget* control, std::function<bool()> check);
    /// Does something that may fail, and tells of it when it does; false then.
    bool Guarded(const std::function<bool()>& work);

    /// Writes the controls into the screen.
    virtual void Read() = 0;
    /// Shows what the screen changed by itself.
    virtual void Show() = 0;
    /// Shows what stays while one record is edited: its texts, and what is said about it.
    virtual void ShowOpened() {}
    virtual bool Update() = 0;

  private:
    void AddComment();
    void AddButtons();
    void FocusFirst();
    void FocusRefused();
    void ClickUpdate();

    authoring::EditScreen& edited_;
    CommentEdit* comment_ = nullptr;
    QHBoxLayout* buttons_;
    bool placed_ = false;  ///< it was shown before
    bool atWork_ = false;  ///< a check or an update is under way
    UpdateAndExit ends_;
};

}  // namespace fabula::ide
