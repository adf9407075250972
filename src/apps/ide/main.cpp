#include <QCommandLineParser>
#include <QIcon>
#include <QSettings>
#include <QStandardPaths>

#include "authoring/files/start_up.h"
#include "ide/window/main_window.h"
#include "midi/device_output.h"
#include "midi/player.h"
#include "platform/random_source.h"
#include "platform/user_folders.h"
#include "qt/last_border.h"
#include "qt/qt_dialogs.h"
#include "qt/qt_events.h"
#include "qt/qt_programs.h"
#include "qt/qt_settings.h"
#include "qt/qt_timers.h"
#include "qt/strings.h"

namespace {

using namespace fabula;

ide::Places FindPlaces(const authoring::ProgramFiles& files, const platform::Environment& environment,
                       const std::vector<std::filesystem::path>& folders) {
    const auto folderOf = [](QStandardPaths::StandardLocation location) {
        return qt::PathFromQt(QStandardPaths::writableLocation(location));
    };
    return {.desk = {.defaultData = files.defaultData,
                     .state = platform::UserStateFolder(environment),
                     .versionFolders = folders,
                     .version = FABULA_VERSION},
            .help = files.help,
            .examples = ide::FindExamples(folders),
            .ownGames = folderOf(QStandardPaths::DocumentsLocation) / "Fabula",
            .playersData = folderOf(QStandardPaths::AppDataLocation)};
}

int Run(int argc, char** argv) {
    qt::Program app(argc, argv);
    QApplication::setApplicationName("Fabula");
    QApplication::setApplicationVersion(FABULA_VERSION);
    QApplication::setDesktopFileName("fabula-ide");
    QApplication::setWindowIcon(QIcon::fromTheme("fabula"));
    // While a game is tested the window is hidden and another one closes. This one ends the program itself.
    QApplication::setQuitOnLastWindowClosed(false);

    QCommandLineParser arguments;
    arguments.setApplicationDescription("Makes text adventures.");
    arguments.addHelpOption();
    arguments.addVersionOption();
    arguments.addPositionalArgument("file", "The adventure to open (*.fbd).", "[file]");
    arguments.process(app);

    QSettings store(QSettings::IniFormat, QSettings::UserScope, "Fabula", "Fabula");
    qt::QtSettings settings(store);
    qt::QtDialogs dialogs;
    const auto environment = platform::Environment::OfTheProgram();
    const auto folders = platform::ProgramDataFolders(platform::RunningProgram(), environment);
    const auto files = authoring::FindProgramFiles(settings, folders, dialogs);
    if (!files) return EXIT_FAILURE;

    platform::SeededRandom random(platform::UnpredictableSeed());
    platform::SystemClock clock;
    qt::QtTimers timers;
    qt::QtEvents events;
    qt::QtPrograms programs;
    ide::MainWindow* shown = nullptr;
    midi::Player sound(timers, midi::OpenOutput,
                       [&shown](const std::string& sentence) { shown->SoundFailed(sentence); });
    ide::MainWindow window(
        {timers, dialogs, settings, store, clock, events, sound, random, programs, midi::DeviceNames},
        FindPlaces(*files, environment, folders));
    shown = &window;
    qt::LastBorder border(dialogs, [](int status) { QApplication::exit(status); });
    border.SetKeep([&window] { return window.Logic().KeepACopy(); });
    window.show();
    window.Start(arguments.positionalArguments().isEmpty()
                     ? std::filesystem::path()
                     : qt::PathFromQt(arguments.positionalArguments().first()));
    return app.Run(border);
}

}  // namespace

int main(int argc, char** argv) {
    return qt::RunProgram("FabulaIDE", [argc, argv] { return Run(argc, argv); });
}
