#pragma once

#include <QCoreApplication>
#include <QDialog>
#include <array>

#include "authoring/jobs/decompile_screen.h"
#include "ide/dialogs/file_row.h"

class QCheckBox;
class QLabel;
class QPlainTextEdit;
class QProgressBar;
class QPushButton;
class QRadioButton;

namespace fabula::ide {

/// The dialog of `DecompileScreen`.
class DecompileDialog final : public QDialog {
    Q_DECLARE_TR_FUNCTIONS(Fabula)
  public:
    /// `events` of the screen should be JobEvents, so that a program can be ended.
    explicit DecompileDialog(authoring::DecompileScreen& screen, QWidget* parent = nullptr);
    ~DecompileDialog() override;

    /// Ends a program that runs; without one, closes.
    void reject() override;

  private:
    void AddOptions(QFormLayout& form);
    void AddFiles(QFormLayout& form);
    void MakeStatus();
    QWidget* MakeButtons();
    void ReadFields();
    void Run();
    void Show();

    authoring::DecompileScreen& screen_;
    std::array<QRadioButton*, 2> options_{};
    std::array<FileRow, 2> programs_;
    FileRow input_;
    FileRow output_;
    QCheckBox* passL_;
    QPlainTextEdit* status_;
    QLabel* progress_;
    QProgressBar* bar_;
    QPushButton* run_;
    QPushButton* exit_;
};

}  // namespace fabula::ide
