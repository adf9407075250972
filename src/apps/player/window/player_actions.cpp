#include "player/window/player_actions.h"

#include <QAction>
#include <QMainWindow>
#include <QMenuBar>
#include <QToolBar>

#include "qt/look/icons.h"
#include "qt/strings.h"

namespace fabula::player {

PlayerActions::PlayerActions(QMainWindow& window, std::function<void(Command)> run) : run_(std::move(run)) {
    for (const CommandEntry& entry : AllCommands())
        MakeAction(window, entry);
    MakeMenus(window);
    MakeToolBar(window);
}

void PlayerActions::MakeAction(QMainWindow& window, const CommandEntry& entry) {
    auto* action = new QAction(qt::Translated(entry.text), &window);
    action->setObjectName(qt::ToQt(entry.key));
    action->setIconText(qt::Translated(entry.shortText));
    const auto keys = QKeySequence::listFromString(qt::ToQt(entry.shortcut));
    action->setShortcuts(keys);
    QString tip = qt::Translated(entry.tip);
    if (!keys.isEmpty()) tip += " (" + keys.first().toString(QKeySequence::NativeText) + ")";
    action->setToolTip(tip);
    action->setStatusTip({});
    if (!entry.icon.empty()) action->setIcon(qt::IconOf(entry.icon));
    action->setCheckable(entry.isSwitch);
    QObject::connect(action, &QAction::triggered, &window, [this, id = entry.id] { run_(id); });
    window.addAction(action);
    actions_[entry.id] = action;
}

void PlayerActions::MakeMenus(QMainWindow& window) {
    for (const Menu menu : {Menu::File, Menu::Game, Menu::View, Menu::Help})
        menus_[menu] = window.menuBar()->addMenu(qt::Translated(NameOf(menu)));
    menus_[Menu::Theme] = new QMenu(qt::Translated(NameOf(Menu::Theme)), &window);
    std::map<Menu, int> groups;
    for (const CommandEntry& entry : AllCommands()) {
        QMenu& menu = *menus_[entry.menu];
        const auto group = groups.find(entry.menu);
        if (group != groups.end() && group->second != entry.group) menu.addSeparator();
        groups[entry.menu] = entry.group;
        menu.addAction(actions_[entry.id]);
    }
    menus_[Menu::View]->insertMenu(actions_[Command::Flashing], menus_[Menu::Theme]);
}

void PlayerActions::MakeToolBar(QMainWindow& window) {
    QToolBar* bar = window.addToolBar(qt::Translated("Tools"));
    bar->setObjectName("Toolbar");
    bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    bar->setMovable(false);
    bar->setContextMenuPolicy(Qt::PreventContextMenu);
    for (const CommandEntry& entry : AllCommands()) {
        if (entry.use != CommandEntry::Use::ToolBar) continue;
        bar->addAction(actions_[entry.id]);
        // Tab goes from the game to the buttons and on.
        bar->widgetForAction(actions_[entry.id])->setFocusPolicy(Qt::TabFocus);
    }
}

void PlayerActions::Follow(const PlayState& state) {
    for (const auto& [command, action] : actions_) {
        const ActionState stands = StateOf(command, state);
        action->setEnabled(stands.enabled);
        action->setVisible(stands.visible);
    }
}

}  // namespace fabula::player
