#include "ide/author.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QDialog>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPointer>
#include <QRadioButton>
#include <QTableView>
#include <QTest>
#include <QTimer>
#include <QToolBar>
#include <QWindow>
#include <algorithm>

#include <gtest/gtest.h>

#include "ide/window/trial_run.h"
#include "qt/strings.h"
#include "support/active_window.h"

namespace fabula::test {
namespace {

/// A text of a menu as it is read.
QString Read(QString text) {
    return text.replace("&&", "\n").remove('&').replace('\n', '&').remove("...");
}

QAction* FindAction(const QList<QAction*>& actions, const QString& text) {
    const auto found = std::ranges::find_if(actions, [&](const QAction* action) {
        return action->isVisible() && Read(action->text()) == text;
    });
    return found == actions.end() ? nullptr : *found;
}

/// Where a person would click on a control.
QPoint PlaceToClick(const QWidget& control) {
    const bool marked =
        qobject_cast<const QRadioButton*>(&control) || qobject_cast<const QCheckBox*>(&control);
    return marked ? QPoint(8, control.height() / 2) : control.rect().center();
}

/// What lies on top at the place has the click, as on a screen.
void Click(QWidget& control) {
    const QPoint place = PlaceToClick(control);
    QWidget* under = control.childAt(place);
    if (!under) under = &control;
    QTest::mouseClick(under, Qt::LeftButton, {}, under->mapFrom(&control, place));
    QApplication::processEvents();
}

}  // namespace

Author::Author() {
    LookOut();
    desk_.emplace(&boxes_);
}

void Author::Expects(const char* title, std::function<void()> steps) {
    expected_.push_back({title, std::move(steps)});
}

/// In every turn of the event loop, also of one that a dialog runs.
void Author::LookOut() {
    QTimer::singleShot(0, &life_, [this] { LookOut(); });
    QWidget* dialog = QApplication::activeModalWidget();
    if (dialog && std::ranges::find(met_, dialog) == met_.end()) Meet(dialog);
}

void Author::Meet(QWidget* dialog) {
    const QPointer<QWidget> opened = dialog;
    const std::string title = qt::FromQt(dialog->windowTitle());
    met_.push_back(dialog);
    if (!expected_.empty() && expected_.front().title == title) {
        const auto steps = std::move(expected_.front().steps);
        expected_.pop_front();
        // What was said to windows before is heard first.
        QApplication::processEvents();
        steps();
    } else {
        const auto* box = qobject_cast<const QMessageBox*>(dialog);
        ADD_FAILURE() << "The dialog \"" << title << "\" opened unexpected. "
                      << (box ? qt::FromQt(box->text()) : "");
    }
    met_.pop_back();
    if (!opened || !opened->isVisible()) return;
    ADD_FAILURE() << "The dialog \"" << title << "\" did not close.";
    qobject_cast<QDialog*>(opened.data())->reject();
}

/// The window in front is the one with the keyboard, as a desktop sees to it.
QWidget& Author::Front() const {
    QWidget* front = QApplication::activeModalWidget();
    if (!front && desk_->Window().Test()) front = &desk_->Window().Test()->Window();
    if (!front) front = &desk_->Window();
    if (!QApplication::activePopupWidget() && QGuiApplication::focusWindow() != front->windowHandle()) {
        front->activateWindow();
        EXPECT_TRUE(test::BecomesActive(front));
        // The other windows hear of it before anything else happens.
        QApplication::processEvents();
    }
    return *front;
}

void Author::Types(const QString& text) {
    Front();
    typed_.push_back(qt::FromQt(text));
    // Without a widget, keys go where they go on a desktop: to a list that is open, or to the focus.
    for (const QChar letter : text)
        QTest::keyClick(static_cast<QWidget*>(nullptr), letter.toLatin1());
    QApplication::processEvents();
}

void Author::Presses(QKeyCombination key) {
    Front();
    QTest::keyClick(static_cast<QWidget*>(nullptr), key.key(), key.keyboardModifiers());
    QApplication::processEvents();
}

void Author::Clicks(const char* name) {
    auto* control = Front().findChild<QWidget*>(name);
    if (!control || !control->isVisible() || !control->isEnabled()) {
        ADD_FAILURE() << "There is nothing to click on called " << name << ".";
        return;
    }
    Click(*control);
}

bool Author::Sees(const char* name) const {
    auto* control = Front().findChild<QWidget*>(name);
    if (!control) return false;
    const QPoint place = PlaceToClick(*control);
    QWidget* under = control->childAt(place);
    if (!under) under = control;
    return under->visibleRegion().contains(under->mapFrom(control, place));
}

void Author::ClicksButton(const char* text) {
    for (QAbstractButton* button : Front().findChildren<QAbstractButton*>()) {
        if (button->isVisible() && Read(button->text()) == text) return Click(*button);
    }
    ADD_FAILURE() << "There is no button " << text << ".";
}

void Author::ClicksNode(const char* name) {
    Front();
    chosen_.emplace_back(name);
    auto& tree = desk_->Part<QTreeWidget>("Tree");
    QTest::mouseClick(tree.viewport(), Qt::LeftButton, {},
                      tree.visualItemRect(&desk_->Node(name)).center());
}

void Author::DoubleClicksRow(int row) {
    Front();
    auto& grid = desk_->Part<QTableView>("Grid");
    const QPoint place = grid.visualRect(grid.model()->index(row, 0)).center();
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(grid.viewport(), Qt::LeftButton, {}, place);
}

void Author::Chooses(const char* path) {
    chosen_.emplace_back(path);
    QMenuBar& bar = *dynamic_cast<QMainWindow&>(Front()).menuBar();
    const QStringList names = QString(path).split(" > ");
    QAction* title = FindAction(bar.actions(), names.value(0));
    QAction* command = title ? FindAction(title->menu()->actions(), names.value(1)) : nullptr;
    if (!command || !command->isEnabled()) {
        ADD_FAILURE() << "The command " << path << " can't be chosen.";
        return;
    }
    QTest::mouseClick(&bar, Qt::LeftButton, {}, bar.actionGeometry(title).center());
    QMenu& menu = *title->menu();
    QTest::mouseMove(&menu, menu.actionGeometry(command).center());
    QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(command).center());
    QApplication::processEvents();
}

void Author::ClicksTool(const char* key) {
    auto* bar = Front().findChild<QToolBar*>("Toolbar");
    QWidget* button = bar->widgetForAction(&desk_->Action(key));
    if (!button || !button->isEnabled()) {
        ADD_FAILURE() << "The tool " << key << " can't be clicked on.";
        return;
    }
    Click(*button);
}

}  // namespace fabula::test
