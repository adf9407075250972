#pragma once

#include <QCoreApplication>
#include <functional>

#include "authoring/drawing/character_editor.h"
#include "ide/dialogs/screen_dialog.h"

class QGridLayout;
class QLabel;
class QLineEdit;
class QToolButton;

namespace fabula::ide {

class CharacterGrid;

/// The dialog of one character: its squares, the two samples, and what can be done to it as a whole.
class CharacterDialog final : public ScreenDialog {
    Q_DECLARE_TR_FUNCTIONS(Fabula)
  public:
    explicit CharacterDialog(authoring::CharacterEditor& screen, QWidget* parent = nullptr);

  protected:
    bool eventFilter(QObject* receiver, QEvent* event) override;
    void Read() override;
    void Show() override;
    bool Update() override { return screen_.Update(); }

  private:
    QLayout* NewSamples();
    QWidget* NewEdits();
    void AddEdit(QGridLayout& grid, const char* name, const QString& text, const QString& tip,
                 std::function<void()> work);
    void RunTyped();

    authoring::CharacterEditor& screen_;
    QColor ink_;
    QColor paper_;
    CharacterGrid* grid_;
    QLabel* first_;
    QLabel* second_;
    QLabel* sample_;
    QLineEdit* sampleText_;
    QLineEdit* commandLine_;
    QToolButton* undo_ = nullptr;
    QToolButton* redo_ = nullptr;
};

}  // namespace fabula::ide
