#pragma once

#include <QCoreApplication>
#include <functional>

#include "authoring/drawing/character_set_screen.h"
#include "ide/dialogs/column_dialog.h"

class QComboBox;
class QLabel;
class QListWidget;

namespace fabula::ide {

/// The characters of a whole set at a glance. Enter and a double click open the editor of one.
class CharacterTableDialog final : public ColumnDialog {
    Q_DECLARE_TR_FUNCTIONS(Fabula)
  public:
    /// `open` shows a character's editor and comes back when it has closed.
    CharacterTableDialog(authoring::CharacterSetScreen& screen, platform::Dialogs& dialogs,
                         std::function<void(const authoring::ScreenRequest&)> open,
                         QWidget* parent = nullptr);

  protected:
    bool eventFilter(QObject* receiver, QEvent* event) override;

  private:
    void Show();
    void Open();
    void TakeFont();

    authoring::CharacterSetScreen& screen_;
    platform::Dialogs& dialogs_;
    std::function<void(const authoring::ScreenRequest&)> open_;
    QComboBox* set_;
    QListWidget* table_;
    QLabel* chosen_;
    bool showing_ = false;
};

}  // namespace fabula::ide
