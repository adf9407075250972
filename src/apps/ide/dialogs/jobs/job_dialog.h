#pragma once

#include <QCoreApplication>

#include "ide/dialogs/column_dialog.h"

class QFormLayout;
class QPlainTextEdit;
class QProgressBar;
class QPushButton;

namespace fabula::ide {

/// What a window of a job is called, and the button that starts the job.
struct JobWindow {
    const char* name;
    QString title;
    const char* helpPage;
    QPushButton* start;
};

/// What the windows of jobs that work with files share: a form, the status that the job writes, a bar
/// ("progressBar"), and the buttons that start ("start" or what the window calls it) and leave ("exit").
/// While a job runs, Exit is Cancel. The window of a job puts its rows into the form, then calls
/// `AddStatus` and `AddEnd`.
class JobDialog : public ColumnDialog {
    Q_DECLARE_TR_FUNCTIONS(Fabula)
  public:
    /// Ends a job that runs; without one, closes.
    void reject() override;

  protected:
    JobDialog(const JobWindow& window, QWidget* parent);

    virtual bool Running() const = 0;
    virtual void Cancel() = 0;
    virtual void Start() = 0;

    /// The box of the status ("status"), at least so many lines high; `hint` stands in it as long as it is
    /// empty.
    void AddStatus(const QString& name, const QString& hint, int lines);
    /// The bar and the buttons, with `other` at their left where there is one.
    void AddEnd(QPushButton* other = nullptr);
    /// Exit or Cancel.
    void ShowRunning(bool running);

    QFormLayout& Form() { return *form_; }
    QPlainTextEdit& Status() { return *status_; }
    QProgressBar& Bar() { return *bar_; }
    QPushButton& StartButton() { return *start_; }
    QPushButton& ExitButton() { return *exit_; }

  private:
    QFormLayout* form_;
    QPlainTextEdit* status_;
    QProgressBar* bar_;
    QPushButton* start_;
    QPushButton* exit_;
};

}  // namespace fabula::ide
