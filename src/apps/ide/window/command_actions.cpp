#include "ide/window/command_actions.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>
#include <QToolButton>
#include <array>

#include "qt/look/icons.h"
#include "qt/strings.h"

namespace fabula::ide {

using authoring::Command;
using authoring::CommandEntry;
using authoring::Menu;

namespace {

constexpr std::array kMenus = {Menu::File, Menu::Edit, Menu::View, Menu::Game, Menu::Tools, Menu::Help};

/// The word of a button: the text of the menu without what is for menus only.
QString ButtonText(std::string_view text) {
    QString word = qt::Translated(text);
    word.replace("&&", "\n").remove('&').replace('\n', "&&").remove("...");
    return word;
}

}  // namespace

CommandActions::CommandActions(QWidget* window, const Run& run) : QObject(window) {
    for (const CommandEntry& entry : authoring::AllCommands()) {
        auto* action = new QAction(qt::IconOf(entry.icon), qt::Translated(entry.text), this);
        action->setObjectName(qt::ToQt(entry.key));
        action->setIconText(ButtonText(entry.text));
        action->setCheckable(entry.use == CommandEntry::Use::Switch);
        if (!entry.shortcut.empty()) action->setShortcut(QKeySequence(qt::ToQt(entry.shortcut)));
        // The program is the author's, not the desktop's: no action moves to another menu by its words.
        action->setMenuRole(QAction::NoRole);
        QObject::connect(action, &QAction::triggered, window, [run, id = entry.id] { run(id); });
        window->addAction(action);
        actions_[entry.id] = action;
    }
}

void CommandActions::FillMenuBar(QMenuBar& bar) const {
    for (const Menu menu : kMenus) {
        QMenu* made = bar.addMenu(qt::Translated(authoring::NameOf(menu)));
        made->setObjectName(qt::ToQt(authoring::NameOf(menu)).remove('&'));
        made->setToolTipsVisible(true);
        int group = 0;
        for (const CommandEntry& entry : authoring::AllCommands()) {
            if (entry.menu != menu) continue;
            if (entry.group != group) made->addSeparator();
            group = entry.group;
            made->addAction(Of(entry.id));
        }
    }
}

void CommandActions::FillToolBar(QToolBar& bar) const {
    const CommandEntry* before = nullptr;
    for (const CommandEntry& entry : authoring::AllCommands()) {
        if (entry.use != CommandEntry::Use::ToolBar) continue;
        if (before && (before->menu != entry.menu || before->group != entry.group)) bar.addSeparator();
        bar.addAction(Of(entry.id));
        before = &entry;
    }
}

void CommandActions::FillGroup(QMenu& menu, Menu of, int group) const {
    for (const CommandEntry& entry : authoring::AllCommands()) {
        if (entry.menu == of && entry.group == group) menu.addAction(Of(entry.id));
    }
}

void CommandActions::Refresh(const StateOf& stateOf) {
    for (const CommandEntry& entry : authoring::AllCommands()) {
        const authoring::ActionState state = stateOf(entry.id);
        QAction* action = Of(entry.id);
        action->setEnabled(state.enabled);
        action->setChecked(state.checked);  // always: a click has turned it before it was refused
        authoring::ActionState& shown = shown_[entry.id];
        if (shown == state) continue;
        shown = state;
        ShowTexts(*action, entry, state);
    }
}

void CommandActions::ShowTexts(QAction& action, const CommandEntry& entry,
                               const authoring::ActionState& state) {
    action.setText(qt::Translated(state.menuText));
    const QString tip =
        qt::Translated(state.enabled || state.why.empty() ? std::string(entry.tip) : state.why);
    const QString text = qt::Translated(state.text);
    action.setStatusTip(tip);
    action.setToolTip("<p>" + text.toHtmlEscaped() + "<br>" + tip.toHtmlEscaped() + "</p>");
    // A screen reader would read the markup of the tip.
    for (QObject* object : action.associatedObjects()) {
        if (auto* button = qobject_cast<QToolButton*>(object)) button->setAccessibleDescription(tip);
    }
}

}  // namespace fabula::ide
