#pragma once

#include <QCoreApplication>
#include <QDialog>
#include <functional>
#include <string_view>

class QPlainTextEdit;
class QTextDocument;

namespace fabula::qt {

/// A longer text in a window in which it can be read, copied, printed and saved.
class ReportWindow final : public QDialog {
    Q_DECLARE_TR_FUNCTIONS(Fabula)
  public:
    /// How the window is left: by Close, or by OK (it is accepted then) and Cancel.
    enum class Answer { Close, OkOrCancel };

    ReportWindow(std::string_view text, std::string_view title, Answer answer, QWidget* parent = nullptr);

    /// What Print does with the text. At first it asks for a printer, or a file of pages, and prints there.
    std::function<void(const QTextDocument& text)> print;

  private:
    /// Asks for a file and writes the text into it, as a whole or not at all; a failure is told.
    void Save();

    QPlainTextEdit* pane_;
};

}  // namespace fabula::qt
