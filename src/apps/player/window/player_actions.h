#pragma once

#include <functional>
#include <map>

#include "player/play/commands.h"

class QAction;
class QMainWindow;
class QMenu;
class QToolBar;

namespace fabula::player {

/// The player's commands as actions of a window: in its menus, in its tool bar and by their keys.
class PlayerActions {
  public:
    /// `run` carries a command out; a switch has been switched already.
    PlayerActions(QMainWindow& window, std::function<void(Command)> run);

    QAction& Of(Command command) const { return *actions_.at(command); }
    /// Shows how the commands stand.
    void Follow(const PlayState& state);

    QMenu& MenuOf(Menu menu) const { return *menus_.at(menu); }

  private:
    void MakeAction(QMainWindow& window, const CommandEntry& entry);
    void MakeMenus(QMainWindow& window);
    void MakeToolBar(QMainWindow& window);

    std::function<void(Command)> run_;
    std::map<Command, QAction*> actions_;
    std::map<Menu, QMenu*> menus_;
};

}  // namespace fabula::player
