#pragma once

#include <QCoreApplication>
#include <QDialog>
#include <functional>

#include "engine/diagnostics.h"

class QCheckBox;
class QLabel;
class QLineEdit;

namespace fabula::player {

/// The window "Diagnostics" beside a game that is tested: one request at a time, typed and carried out by
/// Enter.
class DiagnosticsWindow final : public QDialog {
    Q_DECLARE_TR_FUNCTIONS(Fabula)
  public:
    /// `help` opens the help file. The window must close before the engine ends.
    DiagnosticsWindow(engine::Engine& engine, std::function<void()> help, QWidget* parent);

    /// Shows the thing under view as it is now, when the player wants to follow the game.
    void Follow();

  private:
    void DoIt();
    void DisplayVariable();

    engine::Diagnostics debug_;
    std::function<void()> help_;
    QLineEdit* input_;
    QLabel* result_;
    QCheckBox* follow_;
};

}  // namespace fabula::player
