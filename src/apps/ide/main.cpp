#include <QApplication>
#include <QCommandLineParser>
#include <QSettings>

#include "ide/main_window.h"
#include "midi/player.h"
#include "platform/random_source.h"
#include "qt/qt_dialogs.h"
#include "qt/qt_timers.h"
#include "qt/strings.h"

int main(int argc, char** argv) {
    using namespace fabula;
    QApplication app(argc, argv);
    QApplication::setApplicationName("Fabula");
    QApplication::setApplicationVersion(FABULA_VERSION);
    QApplication::setDesktopFileName("fabula-ide");

    QCommandLineParser arguments;
    arguments.setApplicationDescription("Makes text adventures.");
    arguments.addHelpOption();
    arguments.addVersionOption();
    arguments.addPositionalArgument("file", "The adventure to open (*.fbd).", "[file]");
    arguments.process(app);

    QSettings settings(QSettings::IniFormat, QSettings::UserScope, "Fabula", "Fabula");
    platform::SeededRandom random(platform::UnpredictableSeed());
    qt::QtTimers timers;
    qt::QtDialogs dialogs;
    midi::Player sound(timers, midi::OpenOutput, [](const std::string&) {});

    ide::MainWindow window({timers, dialogs, sound, random, settings});
    dialogs.SetParent(&window);
    window.show();
    const QStringList files = arguments.positionalArguments();
    if (!files.isEmpty()) window.Open(qt::PathFromQt(files.first()));
    return QApplication::exec();
}
