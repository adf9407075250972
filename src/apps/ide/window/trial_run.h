#pragma once

#include <QObject>
#include <functional>
#include <memory>
#include <optional>

#include "authoring/desk/main_screen.h"
#include "engine/output/trace_file.h"
#include "player/window/player_window.h"

namespace fabula::ide {

/// A trial of the open adventure: the engine's window, which is shown until it closes.
class TrialRun final : public QObject {
  public:
    /// Shows the window on the game. `ended` is called from the event loop when it has closed. With a
    /// trace the game's steps go to a file beside the adventure, told by `begun`. Throws fabula::Error when
    /// that can't be written; when its end can't, a box tells it.
    TrialRun(const authoring::Trial& run, const player::WindowServices& services,
             const platform::DateTime& begun, std::function<void()> ended);
    ~TrialRun() override;

    player::PlayerWindow& Window() const { return *window_; }
    /// The file of the trace; empty without one.
    const std::filesystem::path& TraceFile() const { return traceFile_; }

  protected:
    bool eventFilter(QObject* receiver, QEvent* event) override;

  private:
    void FinishTrace();

    platform::Dialogs& dialogs_;
    std::function<void()> ended_;
    std::filesystem::path traceFile_;
    std::optional<engine::TraceFile> trace_;
    bool traceFinished_ = false;
    std::unique_ptr<player::PlayerWindow> window_;
};

}  // namespace fabula::ide
