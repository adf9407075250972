#pragma once

#include <QObject>
#include <functional>
#include <map>

#include "authoring/desk/commands.h"

class QAction;
class QMenu;
class QMenuBar;
class QToolBar;

namespace fabula::ide {

/// The commands of the authoring tool as actions of a window: one for each, found by its key ("NewTab"), in
/// the menus, in the tool bar and on the keys that the table of commands gives them.
class CommandActions final : public QObject {
  public:
    using Run = std::function<void(authoring::Command command)>;
    using StateOf = std::function<authoring::ActionState(authoring::Command command)>;

    CommandActions(QWidget* window, const Run& run);

    QAction* Of(authoring::Command command) const { return actions_.at(command); }

    /// Adds the menus to an empty menu bar. The menu of a name is found by it without mnemonic ("File").
    void FillMenuBar(QMenuBar& bar) const;
    /// Adds what the table puts there.
    void FillToolBar(QToolBar& bar) const;
    /// Adds the commands of one menu's group.
    void FillGroup(QMenu& menu, authoring::Menu of, int group) const;

    /// Shows texts, marks and whether commands are enabled as they are now. What is off says why in its
    /// tips. The menus and bars must be filled before.
    void Refresh(const StateOf& stateOf);

  private:
    static void ShowTexts(QAction& action, const authoring::CommandEntry& entry,
                          const authoring::ActionState& state);

    std::map<authoring::Command, QAction*> actions_;
    std::map<authoring::Command, authoring::ActionState> shown_;
};

}  // namespace fabula::ide
