#include <QLabel>
#include <QTableView>

#include "ide/dialogs/records/deletion_dialog.h"
#include "ide/dialogs/records/quick_list_dialog.h"
#include "ide/dialogs/records/record_jumps.h"
#include "ide/dialogs/tables/renumber_dialog.h"
#include "ide/dialogs/tables/replace_dialog.h"
#include "ide/window/command_actions.h"
#include "ide/window/main_window.h"
#include "ide/window/panes/findings_pane.h"
#include "ide/window/panes/record_pane.h"
#include "ide/window/panes/record_panel.h"
#include "ide/window/panes/uses_pane.h"
#include "platform/error.h"
#include "qt/strings.h"
#include "text/encoding/utf8.h"

// Ways through the adventure: uses, jumps, find and replace over all tables, numbers.

namespace fabula::ide {

using authoring::Command;
using authoring::JumpLine;

namespace {

bool Holds(std::string_view line, std::string_view typed) {
    return text::LowerCase(line).find(text::LowerCase(typed)) != std::string::npos;
}

bool BeginsWith(std::string_view line, std::string_view typed) {
    return text::LowerCase(line).starts_with(text::LowerCase(typed));
}

}  // namespace

void MainWindow::DoJump(Command command) {
    try {
        RunJump(command);
    } catch (const Error& error) {
        services_.dialogs.Tell(error.what(), "Error");
    }
}

void MainWindow::RunJump(Command command) {
    switch (command) {
        case Command::Uses:
            ShowBelow(uses_, true);
            return uses_->Focus();
        case Command::Findings:
            ShowBelow(findings_, true);
            return findings_->Focus();
        case Command::GoToNamed:
            return GoToNamed();
        case Command::GoToAnything:
            return GoToAnything();
        case Command::Back:
            if (!navigator_.Back()) ide_.Say("There is nowhere to go back to.");
            return ShowChanges();
        case Command::Forward:
            if (!navigator_.Forward()) ide_.Say("There is nowhere to go forward to.");
            return ShowChanges();
        case Command::Replace:
            return Replace();
        case Command::Renumber:
            return Renumber();
        case Command::Palette:
            return ChooseCommand();
        default:
            return;
    }
}

void MainWindow::ShowUses() {
    if (!uses_->isVisibleTo(this)) return;
    try {
        uses_->Show(navigator_.Title(), navigator_.Lines());
    } catch (const Error& error) {
        uses_->Show(error.what(), {});
    }
}

/// One pane at a time stands below the rows.
void MainWindow::ShowBelow(QWidget* pane, bool shown) {
    uses_->setVisible(shown && pane == uses_);
    findings_->setVisible(shown && pane == findings_);
    ShowUses();
    if (shown && pane == findings_) findings_->Open();
}

void MainWindow::Jump(const authoring::Jump& jump) {
    navigator_.GoTo(jump);
    ShowChanges();
    records_->Grid().setFocus();
}

void MainWindow::GoToNamed() {
    const std::vector<JumpLine> lines = navigator_.Named();
    if (lines.empty()) return message_->setText(tr("This record names no other."));
    if (lines.size() == 1) return Jump(lines.front().jump);
    if (const auto jump = ChoosePlace(tr("Go To What It Names"), lines, this)) Jump(*jump);
}

/// F12 and Shift+F12 in the record beside the rows mean the token at the cursor, if there is one.
bool MainWindow::FollowFromPane(Command command) {
    if (command != Command::GoToNamed && command != Command::Uses) return false;
    const auto named = beside_->NamedAtCursor();
    if (!named) return false;
    try {
        const auto jump =
            FollowNamed(*named, command == Command::Uses, navigator_, services_.dialogs, this);
        if (jump && LeaveRecord()) Jump(*jump);
    } catch (const Error& error) {
        services_.dialogs.Tell(error.what(), "Error");
    }
    return true;
}

bool MainWindow::AskBeforeDelete(const authoring::Deletion& deletion) {
    const authoring::DeletionUses uses(navigator_, deletion);
    if (!uses.Any()) return true;
    DeletionDialog dialog(uses, this);
    const bool goesOn = dialog.exec() == QDialog::Accepted;
    leftFor_ = dialog.GoTo();
    if (goesOn) afterDelete_ = uses.AfterIt();
    return goesOn;
}

/// The tables whose names fit, and how to show them.
void MainWindow::AddTables(const std::function<bool(std::string_view name)>& fits, Steps& steps) {
    for (const authoring::TreeNode& node : ide_.Tree()) {
        const std::string name = qt::FromQt(qt::Translated(node.name));
        if (OpensOwnTable(node) && fits(name))
            steps.push_back({name, [this, sort = node.sort] { ChooseNode(sort); }});
    }
}

/// Lets one of the steps be chosen that `found` gives for what is typed, and does it.
void MainWindow::ChooseStep(const QString& title, const QString& hint,
                            const std::function<Steps(const std::string& typed)>& found) {
    Steps steps;
    const auto names = [&](const std::string& typed) {
        steps = found(typed);
        std::vector<std::string> lines;
        for (const Step& step : steps)
            lines.push_back(step.name);
        return lines;
    };
    QuickListDialog dialog(title, hint, names, this);
    if (dialog.exec() == QDialog::Accepted && dialog.Chosen()) steps[*dialog.Chosen()].take();
}

void MainWindow::GoToAnything() {
    ChooseStep(tr("Go To"), tr("m40, lantern, get lamp, messages ..."), [this](const std::string& typed) {
        Steps steps;
        if (!typed.empty())
            AddTables([&](std::string_view name) { return BeginsWith(name, typed); }, steps);
        for (const JumpLine& found : navigator_.Search(typed))
            steps.push_back({found.text, [this, jump = found.jump] { Jump(jump); }});
        return steps;
    });
}

void MainWindow::ChooseCommand() {
    ChooseStep(tr("Commands"), tr("A part of a command's name"), [this](const std::string& typed) {
        Steps steps;
        for (const authoring::CommandEntry& entry : authoring::AllCommands()) {
            if (!ide_.StateOf(entry.id).enabled || entry.id == Command::Palette) continue;
            std::string line = qt::FromQt(actions_->Of(entry.id)->text().remove('&').remove("..."));
            if (!Holds(line, typed)) continue;
            if (!entry.shortcut.empty()) line.append("  (").append(entry.shortcut).append(")");
            steps.push_back({line, [this, id = entry.id] { Do(id); }});
        }
        AddTables([&](std::string_view name) { return Holds(name, typed); }, steps);
        return steps;
    });
}

void MainWindow::Replace() {
    authoring::ReplaceScreen screen(ide_.CurrentContext());
    ReplaceDialog dialog(screen, this);
    dialog.exec();
    ide_.Refresh();
    if (!screen.Status().empty()) ide_.Say(screen.Status());
    ShowChanges();
    if (const auto* chosen = dialog.GoTo())
        Jump(navigator_.JumpTo(chosen->hit.where->table, chosen->hit.record));
}

void MainWindow::Renumber() {
    const store::TableNum table = ide_.Grid().View().table;
    authoring::RenumberScreen screen(ide_.CurrentContext(), table, ide_.Grid().KeyOf(ide_.CurrentRow()));
    RenumberDialog dialog(screen, this);
    if (dialog.exec() != QDialog::Accepted) return;
    ide_.Refresh();
    if (const auto row = ide_.Grid().RowOf(screen.Key())) ide_.SelectRow(*row);
    ide_.Say("It is " + std::string(screen.Name().substr(0, screen.Name().rfind(' '))) + " " +
             std::to_string(screen.Key()) + " now.");
    ShowChanges();
}

}  // namespace fabula::ide
