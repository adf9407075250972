#pragma once

#include <QCoreApplication>
#include <QList>

#include "authoring/fields/texts/text_editing.h"
#include "authoring/screens/message_screen.h"
#include "ide/dialogs/screen_dialog.h"

class QHBoxLayout;
class QLabel;
class QShortcut;
class QToolButton;

namespace fabula::ide {

class MarkupEdit;

/// The dialog of a message, a system message or the description of a process table. Page Up and Page Down
/// with Ctrl go to the previous and the next number.
class MessageDialog final : public ScreenDialog {
    Q_DECLARE_TR_FUNCTIONS(Fabula)
  public:
    /// `screen` outlives the dialog.
    explicit MessageDialog(authoring::MessageScreen& screen, QWidget* parent = nullptr);

    QSize sizeHint() const override;
    void setVisible(bool visible) override;
    void StandBeside() override;

  protected:
    void Read() override {}  // what is typed is in the screen at once
    void Show() override {}
    void ShowOpened() override;
    bool Update() override { return StaysWithFault(screen_.Update()); }

  private:
    void AddMoves(QHBoxLayout& row);
    void Move(int step);
    bool StaysWithFault(bool fits);

    authoring::MessageScreen& screen_;
    authoring::TextEditing editing_;
    QLabel* number_;
    QList<QToolButton*> moves_;
    QList<QShortcut*> moveKeys_;
    MarkupEdit* text_;
};

}  // namespace fabula::ide
