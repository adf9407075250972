#include "ide/opened_window.h"

#include <QApplication>
#include <QTableView>
#include <QTest>

#include "qt/look/theme.h"
#include "qt/strings.h"
#include "support/places.h"

namespace fabula::test {

OpenedWindow::OpenedWindow(platform::Dialogs* boxes)
    : boxes_(boxes ? *boxes : dialogs),
      store_(qt::PathToQt(folder / "settings.ini"), QSettings::IniFormat),
      settings_(store_) {
    Restart();
}

OpenedWindow::~OpenedWindow() {
    window_.reset();
    qt::ApplyTheme(qt::Theme::System);
}

ide::Places OpenedWindow::Places() const {
    return {
        .desk = {.defaultData = test::DefaultData(), .state = {}, .versionFolders = {}, .version = "1.0.0"},
        .help = help.Contents(),
        .examples = examples,
        .ownGames = folder / "own",
        .playersData = folder / "players"};
}

void OpenedWindow::Restart() {
    if (window_) window_->close();
    window_.reset();
    window_ = std::make_unique<ide::MainWindow>(
        ide::Services{timers, boxes_, settings_, store_, clock_, events_, sound, random, programs_},
        Places());
    window_->show();
    QApplication::setActiveWindow(window_.get());
    window_->Start({});
}

void OpenedWindow::Open(const GameBuilder& game) {
    const auto file = folder / "game.fbd";
    game.Write(file);
    window_->Start(file);
}

QTreeWidgetItem& OpenedWindow::Node(const char* name) const {
    const auto found = Part<QTreeWidget>("Tree").findItems(name, Qt::MatchExactly | Qt::MatchRecursive);
    if (found.isEmpty()) throw std::logic_error(std::string("there is no node ") + name);
    return *found.first();
}

void OpenedWindow::ChooseNode(const char* name) const {
    Part<QTreeWidget>("Tree").setCurrentItem(&Node(name));
}

std::string OpenedWindow::Cell(int row, int column) const {
    const QAbstractItemModel& model = *Part<QTableView>("Grid").model();
    return qt::FromQt(model.index(row, column).data().toString());
}

void OpenedWindow::Type(const QString& text) const {
    QTest::keyClicks(QApplication::focusWidget(), text);
}

void OpenedWindow::Press(int key, Qt::KeyboardModifiers modifiers) const {
    QTest::keyClick(QApplication::focusWidget(), static_cast<Qt::Key>(key), modifiers);
}

}  // namespace fabula::test
