#include <QCommandLineParser>
#include <QIcon>
#include <QSettings>
#include <QStandardPaths>
#include <cstdlib>
#include <optional>
#include <string>

#include "midi/device_output.h"
#include "midi/player.h"
#include "platform/random_source.h"
#include "platform/user_folders.h"
#include "player/window/player_window.h"
#include "qt/help/help.h"
#include "qt/last_border.h"
#include "qt/qt_dialogs.h"
#include "qt/qt_settings.h"
#include "qt/qt_timers.h"
#include "qt/strings.h"
#include "qt/translator.h"

namespace {

using namespace fabula;

int Run(int argc, char** argv) {
    qt::Program app(argc, argv);
    QApplication::setApplicationName("Fabula");
    QApplication::setApplicationVersion(FABULA_VERSION);
    QApplication::setDesktopFileName("fabula-engine");
    QApplication::setWindowIcon(QIcon::fromTheme("fabula"));

    QCommandLineParser arguments;
    arguments.setApplicationDescription("Plays text adventures.");
    arguments.addHelpOption();
    arguments.addVersionOption();
    arguments.addPositionalArgument("file", "The adventure to play (*.fbd).", "[file]");
    arguments.process(app);

    const auto folders =
        platform::ProgramDataFolders(platform::RunningProgram(), platform::Environment::OfTheProgram());
    const qt::Translations translations(folders, QLocale::system());
    QSettings settings(QSettings::IniFormat, QSettings::UserScope, "Fabula", "Fabula");
    const auto dataFolder =
        qt::PathFromQt(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation));
    platform::SeededRandom random(platform::UnpredictableSeed());
    qt::QtTimers timers;
    qt::QtDialogs dialogs;
    player::PlayerWindow* shown = nullptr;
    midi::Player sound(timers, midi::OpenOutput,
                       [&shown](const std::string& sentence) { shown->SoundFailed(sentence); });

    qt::Help help(platform::FindFile(folders, "help/contents.html").value_or(""), dialogs);
    std::optional<player::PlayerWindow> window;
    const auto make = [&] {
        window.emplace(
            player::WindowServices{.timers = timers,
                                   .dialogs = dialogs,
                                   .sound = sound,
                                   .random = random,
                                   .settings = settings,
                                   .dataFolder = dataFolder,
                                   .soundDevices = midi::DeviceNames,
                                   .help = [&help](const qt::HelpTopic& topic) { help.Show(topic); }});
        shown = &*window;
        dialogs.SetParent(&*window);
        return true;
    };
    const QStringList files = arguments.positionalArguments();
    const auto start = [&] {
        if (!files.isEmpty()) window->OpenAtStart(qt::PathFromQt(files.first()));
        return true;
    };
    // What a game has come to lies in the autosave after each turn.
    qt::LastBorder border(dialogs, [](int status) { QApplication::exit(status); });
    const auto doing = [] { return std::string("the program began"); };
    if (!border.Run(make, doing).value_or(false)) return EXIT_FAILURE;
    border.Run(start, doing);
    window->show();
    if (const std::string notKept = qt::WhyNotKept(settings); !notKept.empty()) window->Tell(notKept);
    return app.Run(border);
}

}  // namespace

int main(int argc, char** argv) {
    return qt::RunProgram("FabulaEngine", [argc, argv] { return Run(argc, argv); });
}
