#pragma once

#include <QCoreApplication>
#include <functional>

#include "authoring/jobs/verify_screen.h"
#include "ide/dialogs/column_dialog.h"

class QLabel;
class QListWidget;
class QListWidgetItem;
class QPushButton;

namespace fabula::ide {

/// The status window of `VerifyScreen`. It begins the check once it is shown.
class VerifyDialog final : public ColumnDialog {
    Q_DECLARE_TR_FUNCTIONS(Fabula)
  public:
    /// `events` of the screen should be JobEvents, so that the window can be used meanwhile.
    VerifyDialog(authoring::VerifyScreen& verify, platform::Dialogs& dialogs, QWidget* parent = nullptr);
    ~VerifyDialog() override;

    /// Before an export: close by itself when the check has passed.
    void CloseWhenPassed() { closeWhenPassed_ = true; }

    /// Goes to a process entry that a line names; the window has closed then. Without it lines lead
    /// nowhere.
    std::function<void(const authoring::VerifyScreen::Entry&)> goTo;

    void reject() override;

  protected:
    void showEvent(QShowEvent* event) override;

  private:
    void Run();
    void ShowStatus();
    void ShowEnd();
    void Leave();
    void GoTo(const QListWidgetItem* line);

    authoring::VerifyScreen& verify_;
    platform::Dialogs& dialogs_;
    bool begun_ = false;
    bool leaving_ = false;
    bool closeWhenPassed_ = false;
    std::size_t shown_ = 0;  ///< bytes of the status that are in the list
    QListWidget* lines_;
    QLabel* progress_;
    QPushButton* goToButton_;
    QPushButton* print_;
};

}  // namespace fabula::ide
