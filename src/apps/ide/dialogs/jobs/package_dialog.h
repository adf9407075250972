#pragma once

#include <QCoreApplication>

#include "ide/dialogs/column_dialog.h"
#include "packages/package_screen.h"

class QCheckBox;
class QLineEdit;
class QPlainTextEdit;
class QTableWidget;
class QVBoxLayout;

namespace fabula::ide {

/// The window of `PackageScreen`: the files in a list, what goes into the ReadMe, and the button that
/// packs.
class PackageDialog final : public ColumnDialog {
    Q_DECLARE_TR_FUNCTIONS(Fabula)
  public:
    explicit PackageDialog(packages::PackageScreen& screen, QWidget* parent = nullptr);

  private:
    void AddList(QVBoxLayout& layout);
    void AddReadMe(QVBoxLayout& layout);
    void AddButtons(QVBoxLayout& layout);
    void Read();
    void Show();

    packages::PackageScreen& screen_;
    QLineEdit* version_;
    QCheckBox* engine_;
    QTableWidget* files_;
    QPlainTextEdit* readMe_;
    QCheckBox* look_;
};

}  // namespace fabula::ide
