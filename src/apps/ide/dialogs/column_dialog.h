#pragma once

#include <QDialog>

class QVBoxLayout;

namespace fabula::ide {

/// How a dialog is found, what it is called, and its page of the help.
struct DialogHead {
    const char* name;  ///< "" where nothing but its class needs it
    QString title;
    const char* helpPage;
};

/// What all dialogs of the authoring tool share: their head, and one column within the same margins. The
/// help can be read beside them.
class ColumnDialog : public QDialog {
  protected:
    ColumnDialog(const DialogHead& head, QWidget* parent);

    QVBoxLayout& Column() { return *column_; }

  private:
    QVBoxLayout* column_;
};

}  // namespace fabula::ide
