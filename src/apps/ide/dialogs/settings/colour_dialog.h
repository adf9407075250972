#pragma once

#include <QCoreApplication>
#include <QIcon>

#include "authoring/settings/colour_screen.h"
#include "ide/dialogs/column_dialog.h"

class QButtonGroup;
class QLabel;

namespace fabula::ide {

/// A patch of a colour by its number, `height` pixels high and twice as wide.
QIcon ColourSwatch(int number, int height);

/// The dialog that picks one of the 16 colours. Accepted by Update or a double click on a colour; `screen`
/// then has the number.
class ColourDialog final : public ColumnDialog {
    Q_DECLARE_TR_FUNCTIONS(Fabula)
  public:
    explicit ColourDialog(authoring::ColourScreen& screen, QWidget* parent = nullptr);

  protected:
    bool eventFilter(QObject* receiver, QEvent* event) override;

  private:
    QWidget* NewColours(int first, std::string_view caption);
    void ShowCurrent();

    authoring::ColourScreen& screen_;
    QButtonGroup* chosen_;
    QLabel* current_;
};

}  // namespace fabula::ide
