#include <QCommandLineParser>
#include <QIcon>
#include <QSettings>
#include <QStandardPaths>
#include <algorithm>
#include <string>
#include <string_view>

#include "authoring/files/start_up.h"
#include "ide/printing/print_to.h"
#include "ide/window/main_window.h"
#include "midi/device_output.h"
#include "midi/player.h"
#include "platform/error.h"
#include "platform/random_source.h"
#include "platform/user_folders.h"
#include "qt/last_border.h"
#include "qt/qt_dialogs.h"
#include "qt/qt_events.h"
#include "qt/qt_programs.h"
#include "qt/qt_settings.h"
#include "qt/qt_timers.h"
#include "qt/strings.h"
#include "qt/translator.h"

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

constexpr const char* kPrintTo = "print-to";

int PrintTo(const QCommandLineParser& arguments, const QString& file, bool force) {
    const QStringList names = arguments.positionalArguments();
    if (names.size() != 2) throw Error("--print-to needs FILE.fbd and REPORT.");
    ide::PrintTo(qt::PathFromQt(file), qt::PathFromQt(names[0]), qt::FromQt(names[1]), force);
    return EXIT_SUCCESS;
}

/// Printing to a file needs no display. Qt has to know before it begins.
void DoWithoutDisplay(int argc, char** argv) {
    const bool prints = std::any_of(argv, argv + argc, [](std::string_view argument) {
        return argument.starts_with(std::string("--") + kPrintTo);
    });
    if (prints && !qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
}

int Run(int argc, char** argv) {
    DoWithoutDisplay(argc, argv);
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
    arguments.addPositionalArgument("report", "With --print-to: the report, as of 'fabula list'.",
                                    "[report]");
    const QCommandLineOption printTo(kPrintTo, "Print a report of the adventure into a file and end.",
                                     "PDF");
    const QCommandLineOption force("force", "With --print-to: replace a file that exists.");
    arguments.addOptions({printTo, force});
    arguments.process(app);
    if (arguments.isSet(printTo))
        return PrintTo(arguments, arguments.value(printTo), arguments.isSet(force));

    QSettings store(QSettings::IniFormat, QSettings::UserScope, "Fabula", "Fabula");
    qt::QtSettings settings(store);
    qt::QtDialogs dialogs;
    const auto environment = platform::Environment::OfTheProgram();
    const auto folders = platform::ProgramDataFolders(platform::RunningProgram(), environment);
    const qt::Translations translations(folders, QLocale::system());
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
