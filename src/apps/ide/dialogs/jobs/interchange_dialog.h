#pragma once

#include <QCoreApplication>
#include <vector>

#include "authoring/jobs/interchange_screen.h"
#include "ide/dialogs/jobs/job_dialog.h"

class QLineEdit;
class QRadioButton;

namespace fabula::ide {

/// The dialog of `InterchangeScreen`. When it has closed, the window opens the screen's `NewFile`, if there
/// is one.
class InterchangeDialog final : public JobDialog {
    Q_DECLARE_TR_FUNCTIONS(Fabula)
  public:
    /// `events` of the screen should be JobEvents, so that a job can be cancelled.
    InterchangeDialog(authoring::InterchangeScreen& screen, platform::Dialogs& dialogs,
                      QWidget* parent = nullptr);
    ~InterchangeDialog() override;

  private:
    bool Running() const override { return screen_.Running(); }
    void Cancel() override { screen_.Cancel(); }
    void Start() override;

    void AddKinds();
    void AddEncodings();
    QLineEdit* AddFile(const char* name, const QString& label, const char* buttonName,
                       void (authoring::InterchangeScreen::*choose)());
    void AddRecords();
    void AddStatusWithCaption();
    void ShowBar(bool running);
    void ReadFields();
    void Show();
    void ShowStatus();

    authoring::InterchangeScreen& screen_;
    platform::Dialogs& dialogs_;
    std::vector<QRadioButton*> kinds_;
    std::vector<QWidget*> inputs_;  ///< what can't be used while a job runs
    QLineEdit* source_ = nullptr;
    QLineEdit* database_ = nullptr;  ///< nullptr where nothing is made
    QLineEdit* records_ = nullptr;   ///< nullptr where no pictures are loaded
    QPushButton* print_;
    std::size_t shown_ = 0;  ///< bytes of the status that are in the box
};

}  // namespace fabula::ide
