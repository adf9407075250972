#include "player/played_window.h"

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QTest>

#include "player/panes/game_screen.h"
#include "player/panes/text_pane.h"
#include "qt/strings.h"

namespace fabula::test {

PlayedWindow::PlayedWindow(bool isTrial)
    : isTrial_(isTrial), settings_(qt::PathToQt(folder / "settings.ini"), QSettings::IniFormat) {
    Open();
}

PlayedWindow::~PlayedWindow() = default;

void PlayedWindow::Open() {
    window_ = std::make_unique<player::PlayerWindow>(
        player::WindowServices{.timers = timers,
                               .dialogs = dialogs,
                               .sound = sound,
                               .random = random,
                               .settings = settings_,
                               .dataFolder = folder / "data",
                               .isTrial = isTrial_,
                               .help = [this](const qt::HelpTopic& topic) { asked = topic; }});
    window_->show();
    QApplication::setActiveWindow(window_.get());
    told_ = 0;
}

void PlayedWindow::Restart() {
    window_->close();
    window_.reset();
    Open();
}

std::filesystem::path PlayedWindow::Write(const GameBuilder& game) {
    const auto file = folder / "game.fbd";
    game.Write(file);
    return file;
}

void PlayedWindow::Load(const GameBuilder& game) {
    window_->Load(Write(game));
}

void PlayedWindow::Type(const QString& text) {
    for (const QChar c : text) {
        if (c == '\n') {
            Press(Qt::Key_Return);
        } else {
            QTest::keyClick(QApplication::focusWidget(), c.toLatin1());
        }
    }
}

void PlayedWindow::Press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
}

std::string PlayedWindow::Text() const {
    return qt::FromQt(window_->Screen().Text().toPlainText());
}

std::string PlayedWindow::Said() {
    const std::string all = Text();
    const std::string said = all.substr(told_);
    told_ = all.size();
    return said;
}

std::string PlayedWindow::Status(const char* label) const {
    return qt::FromQt(window_->findChild<QLabel*>(label)->text());
}

QAction& PlayedWindow::Action(const char* name) const {
    return *window_->findChild<QAction*>(name);
}

}  // namespace fabula::test
