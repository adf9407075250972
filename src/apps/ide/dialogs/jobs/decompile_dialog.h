#pragma once

#include <QCoreApplication>
#include <array>

#include "authoring/jobs/decompile_screen.h"
#include "ide/dialogs/jobs/file_row.h"
#include "ide/dialogs/jobs/job_dialog.h"

class QCheckBox;
class QLabel;
class QRadioButton;

namespace fabula::ide {

/// The dialog of `DecompileScreen`.
class DecompileDialog final : public JobDialog {
    Q_DECLARE_TR_FUNCTIONS(Fabula)
  public:
    /// `events` of the screen should be JobEvents, so that a program can be ended.
    explicit DecompileDialog(authoring::DecompileScreen& screen, QWidget* parent = nullptr);
    ~DecompileDialog() override;

  private:
    bool Running() const override { return screen_.Running(); }
    void Cancel() override { screen_.Cancel(); }
    void Start() override;

    void AddOptions();
    void AddFiles();
    void AddProgress();
    void ReadFields();
    void Show();

    authoring::DecompileScreen& screen_;
    std::array<QRadioButton*, 2> options_{};
    std::array<FileRow, 2> programs_;
    FileRow input_;
    FileRow output_;
    QCheckBox* passL_;
    QLabel* progress_;
};

}  // namespace fabula::ide
