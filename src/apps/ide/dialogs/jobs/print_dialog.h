#pragma once

#include <QCoreApplication>
#include <filesystem>
#include <optional>
#include <vector>

#include "ide/dialogs/column_dialog.h"
#include "ide/printing/paper_output.h"
#include "listings/pages/print_screen.h"

class QCheckBox;
class QComboBox;
class QFormLayout;
class QLabel;
class QLineEdit;
class QRadioButton;
class QVBoxLayout;

namespace fabula::ide {

/// What a print window works with.
struct PrintServices {
    store::Adventure& adventure;
    platform::Dialogs& dialogs;
    PrintPaper print = PrintOnPrinter;
};

/// The window of a `PrintScreen`. To print, it prints or saves the listing and stays open when that was not
/// to be; to preview, it closes with the job.
class PrintDialog final : public ColumnDialog {
    Q_DECLARE_TR_FUNCTIONS(Fabula)
  public:
    PrintDialog(listings::PrintScreen& screen, const PrintServices& services, QWidget* parent = nullptr);

    /// The job of a preview, once the window has closed with OK.
    const std::optional<listings::PrintJob>& Job() const { return job_; }
    /// The file that the listing was saved as; empty when it was not.
    const std::filesystem::path& Saved() const { return saved_; }

  private:
    void AddForm(QFormLayout& form);
    void AddSpecial(QFormLayout& form);
    void AddComplete(QVBoxLayout& column);
    void AddButtons(QVBoxLayout& column);
    QComboBox* NewList(const QString& name, const char* objectName);
    void Read();
    void ShowState();
    void ShowVerbs();
    bool AskKeypad();
    std::optional<listings::PrintJob> Check();
    void ClickPrint();
    void ClickSave();
    bool Guarded(const std::function<bool()>& work);

    listings::PrintScreen& screen_;
    PrintServices services_;
    std::optional<listings::PrintJob> job_;
    std::filesystem::path saved_;
    QComboBox* form_ = nullptr;
    QComboBox* detail_ = nullptr;
    QCheckBox* special_ = nullptr;
    QComboBox* wordType_ = nullptr;
    QComboBox* verb_ = nullptr;
    QComboBox* noun_ = nullptr;
    QLabel* rangeLabel_ = nullptr;
    QLineEdit* range_ = nullptr;
    QCheckBox* complete_ = nullptr;
    std::vector<QRadioButton*> completeForms_;
    QLabel* status_ = nullptr;
};

}  // namespace fabula::ide
