#pragma once

#include <QCoreApplication>
#include <QDialog>
#include <QList>

#include "authoring/fields/text_editing.h"
#include "authoring/screens/message_screen.h"
#include "ide/dialogs/record_editor.h"

class QHBoxLayout;
class QLabel;
class QShortcut;
class QToolButton;

namespace fabula::ide {

class CommentEdit;
class MarkupEdit;

/// The dialog of a message, a system message or the description of a process table. Accepted by Update.
/// Page Up and Page Down with Ctrl go to the previous and the next number.
class MessageDialog final : public QDialog, public RecordEditor {
    Q_DECLARE_TR_FUNCTIONS(Fabula)
  public:
    /// All of them outlive the dialog. `dialogs` tells what could not be stored.
    MessageDialog(authoring::MessageScreen& screen, const authoring::TextEditing& editing,
                  platform::Dialogs& dialogs, QWidget* parent = nullptr);

    /// Closes without storing; asks first where the text was changed.
    void reject() override;
    void setVisible(bool visible) override;

    bool HasChanges() override { return screen_.Changed(); }
    void Store() override { ClickUpdate(); }
    void StandBeside() override;
    void ShowRecord() override;

  private:
    void AddMoves(QHBoxLayout& row);
    void AddButtons(QHBoxLayout& row);
    void Move(int step);
    void Leave();
    void ClickUpdate();

    authoring::MessageScreen& screen_;
    platform::Dialogs& dialogs_;
    QLabel* number_;
    QList<QToolButton*> moves_;
    QList<QShortcut*> moveKeys_;
    MarkupEdit* text_;
    CommentEdit* comment_ = nullptr;
    bool atWork_ = false;  ///< a check or an update is under way
};

}  // namespace fabula::ide
