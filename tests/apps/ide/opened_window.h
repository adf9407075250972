#pragma once

#include <QAction>
#include <QSettings>
#include <QTreeWidget>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "ide/window/main_window.h"
#include "platform/random_source.h"
#include "qt/help_folder.h"
#include "qt/qt_programs.h"
#include "qt/qt_settings.h"
#include "support/doubles/manual_timers.h"
#include "support/doubles/scripted_dialogs.h"
#include "support/games/game_builder.h"
#include "support/temp_folder.h"

namespace fabula::test {

/// The window of the authoring tool on the offscreen screen, with a folder, settings, a clock and boxes of
/// its own. It is shown and given keys as a person would.
class OpenedWindow {
  public:
    OpenedWindow() : OpenedWindow(nullptr) {}
    /// With boxes that are none of a test's: those of the program. nullptr for `dialogs`.
    explicit OpenedWindow(platform::Dialogs* boxes);
    ~OpenedWindow();

    ide::MainWindow& Window() const { return *window_; }
    authoring::MainScreen& Logic() const { return window_->Logic(); }

    /// Writes a game into the folder and opens it.
    void Open(const GameBuilder& game);
    /// Closes the window and opens a new one with the same folder and settings.
    void Restart();

    /// The part of the window with a name.
    template <typename Widget>
    Widget& Part(const char* name) const {
        auto* part = window_->findChild<Widget*>(name);
        if (!part) throw std::logic_error(std::string("there is no part ") + name);
        return *part;
    }
    QAction& Action(const char* key) const { return Part<QAction>(key); }
    /// The node of the tree with this name.
    QTreeWidgetItem& Node(const char* name) const;
    void ChooseNode(const char* name) const;
    /// What the grid shows in a cell.
    std::string Cell(int row, int column) const;

    /// Types into the widget that has the keyboard.
    void Type(const QString& text) const;
    void Press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const;

    TempFolder folder;
    platform::ManualTimers timers;
    platform::ScriptedDialogs dialogs;
    RecordingSound sound;
    platform::SeededRandom random{1};

    HelpFolder help;
    std::vector<ide::Example> examples;  ///< that windows opened from now on offer

  private:
    ide::Places Places() const;

    platform::Dialogs& boxes_;
    QSettings store_;
    qt::QtSettings settings_;
    platform::FixedClock clock_{{2026, 3, 1, 12, 0, 0}};
    platform::NoEvents events_;
    qt::QtPrograms programs_;
    std::unique_ptr<ide::MainWindow> window_;
};

}  // namespace fabula::test
