#include "ide/opened_window.h"

#include <QApplication>

#include "qt/strings.h"

namespace fabula::test {

OpenedWindow::OpenedWindow()
    : settings_(qt::PathToQt(folder / "settings.ini"), QSettings::IniFormat),
      window_(std::make_unique<ide::MainWindow>(ide::Services{timers, dialogs, sound, random, settings_})) {
    window_->show();
    QApplication::setActiveWindow(window_.get());
}

OpenedWindow::~OpenedWindow() = default;

}  // namespace fabula::test
