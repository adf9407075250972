#pragma once

#include <QCoreApplication>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "ide/dialogs/column_dialog.h"

class QLabel;
class QLineEdit;
class QListWidget;

namespace fabula::ide {

/// A line to type in with the lines below that fit it; one is chosen by Enter or a double click. Arrows and
/// page keys go through the lines while the keyboard stays in the line. Its parts are found by the names
/// "QuickLine" and "QuickList".
class QuickListDialog final : public ColumnDialog {
    Q_DECLARE_TR_FUNCTIONS(Fabula)
  public:
    /// Gives the lines that fit what was typed; asked after each letter.
    using Search = std::function<std::vector<std::string>(const std::string& typed)>;

    QuickListDialog(const QString& title, const QString& hint, Search search, QWidget* parent = nullptr);

    /// The line that was chosen, counted from 0 in what the latest search gave.
    std::optional<std::size_t> Chosen() const;

  protected:
    bool eventFilter(QObject* receiver, QEvent* event) override;

  private:
    void Fill();

    Search search_;
    QLineEdit* typed_;
    QListWidget* list_;
    QLabel* nothing_;  ///< says that nothing fits
};

}  // namespace fabula::ide
