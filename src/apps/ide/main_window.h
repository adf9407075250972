#pragma once

#include <QMainWindow>
#include <filesystem>
#include <memory>

#include "authoring/document.h"
#include "engine/sound_player.h"
#include "platform/dialogs.h"
#include "platform/random_source.h"
#include "platform/timers.h"

class QSettings;
class QStackedWidget;

namespace fabula::ide {

class EmptyPage;

/// What the window asks of its program. All of it outlives the window.
struct Services {
    platform::Timers& timers;
    platform::Dialogs& dialogs;
    engine::SoundPlayer& sound;
    platform::RandomSource& random;
    QSettings& settings;
};

/// The window of the authoring tool.
class MainWindow final : public QMainWindow {
  public:
    explicit MainWindow(const Services& services);
    ~MainWindow() override;

    /// Opens an adventure; a file that is refused is told, and what was open stays.
    void Open(const std::filesystem::path& file);

  private:
    Services services_;
    QStackedWidget* pages_;
    EmptyPage* empty_;
    std::unique_ptr<authoring::Document> document_;
};

}  // namespace fabula::ide
