#pragma once

#include <QCoreApplication>
#include <QDialog>
#include <vector>

#include "authoring/jobs/interchange_screen.h"

class QFormLayout;
class QLineEdit;
class QPlainTextEdit;
class QProgressBar;
class QPushButton;
class QRadioButton;

namespace fabula::ide {

/// The dialog of `InterchangeScreen`. When it has closed, the window opens the screen's `NewFile`, if there
/// is one.
class InterchangeDialog final : public QDialog {
    Q_DECLARE_TR_FUNCTIONS(Fabula)
  public:
    /// `events` of the screen should be JobEvents, so that a job can be cancelled.
    InterchangeDialog(authoring::InterchangeScreen& screen, platform::Dialogs& dialogs,
                      QWidget* parent = nullptr);
    ~InterchangeDialog() override;

    /// Ends a job that runs; without one, closes.
    void reject() override;

  private:
    void AddKinds(QFormLayout& form);
    void AddEncodings(QFormLayout& form);
    QLineEdit* AddFile(QFormLayout& form, const char* name, const QString& label, const char* buttonName,
                       void (authoring::InterchangeScreen::*choose)());
    void AddRecords(QFormLayout& form);
    void MakeStatus();
    QWidget* MakeButtons();
    void Import();
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
    QPlainTextEdit* status_;
    QProgressBar* bar_;
    QPushButton* import_;
    QPushButton* print_;
    QPushButton* exit_;
    std::size_t shown_ = 0;  ///< bytes of the status that are in the box
};

}  // namespace fabula::ide
