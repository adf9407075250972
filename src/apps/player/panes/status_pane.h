#pragma once

#include <QStatusBar>
#include <string>

#include "engine/game_window.h"

class QLabel;

namespace fabula::player {

/// The line below the panes (`statusLine`): what the window has to say, and the engine's four fields. Each
/// label is found by its name: status, command, location, Status1, Status2.
class StatusPane final : public QStatusBar {
  public:
    explicit StatusPane(QWidget* parent = nullptr);

    /// A sentence; a screen reader says it.
    void Tell(const std::string& sentence);
    void Show(engine::StatusField field, const std::string& text);

  private:
    void Announce(QLabel& label, const QString& text);

    QLabel* status_;
    QLabel* command_;
    QLabel* location_;
    QLabel* script_;
    QLabel* sound_;
};

}  // namespace fabula::player
