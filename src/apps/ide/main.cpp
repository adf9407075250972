#include <QCommandLineParser>
#include <QIcon>
#include <QSettings>
#include <QStandardPaths>
#include <algorithm>
#include <optional>
#include <string>
#include <string_view>

#include "authoring/files/start_up.h"
#include "ide/printing/print_to.h"
#include "ide/window/main_window.h"
#include "ide/window/typed_texts.h"
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

/// The options of --print-to, named as those of 'fabula list'.
class PrintToOptions {
  public:
    explicit PrintToOptions(QCommandLineParser& arguments) : arguments_(arguments) {
        arguments.addOptions({to_, range_, verbose_, complete_, brief_, verb_, noun_, force_});
    }

    bool AreGiven() const { return arguments_.isSet(to_); }

    ide::PrintToOrder Order() const {
        const QStringList names = arguments_.positionalArguments();
        if (names.size() != 2) throw Error("--print-to needs FILE.fbd and REPORT.");
        listings::ReportOptions options;
        if (arguments_.isSet(range_)) options.range = qt::FromQt(arguments_.value(range_));
        options.verbose = arguments_.isSet(verbose_);
        options.complete = arguments_.isSet(complete_);
        options.brief = arguments_.isSet(brief_);
        options.verb = qt::FromQt(arguments_.value(verb_));
        options.noun = qt::FromQt(arguments_.value(noun_));
        return {.file = qt::PathFromQt(arguments_.value(to_)),
                .adventure = qt::PathFromQt(names[0]),
                .report = qt::FromQt(names[1]),
                .options = std::move(options),
                .force = arguments_.isSet(force_)};
    }

  private:
    const QCommandLineParser& arguments_;
    QCommandLineOption to_{kPrintTo, "Print a report of the adventure into a file and end.", "PDF"};
    QCommandLineOption range_{"range", "With --print-to: which records, as 'fabula list' takes it.",
                              "RANGE"};
    QCommandLineOption verbose_{"verbose", "With --print-to: tell more beside each record."};
    QCommandLineOption complete_{"complete",
                                 "With --print-to: locations with conditional exits and objects."};
    QCommandLineOption brief_{"brief", "With --print-to: one line for each record."};
    QCommandLineOption verb_{"verb", "With --print-to: the verb of verb-noun.", "WORD", "_"};
    QCommandLineOption noun_{"noun", "With --print-to: the noun of verb-noun.", "WORD", "_"};
    QCommandLineOption force_{"force", "With --print-to: replace a file that exists."};
};

/// Printing to a file needs no display. Qt has to know before it begins.
void DoWithoutDisplay(int argc, char** argv) {
    const bool prints = std::any_of(argv, argv + argc, [](std::string_view argument) {
        return argument.starts_with(std::string("--") + kPrintTo);
    });
    if (prints && !qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
}

void NameTheProgram() {
    QApplication::setApplicationName("Fabula");
    QApplication::setApplicationVersion(FABULA_VERSION);
    QApplication::setDesktopFileName("fabula-ide");
    QApplication::setWindowIcon(QIcon::fromTheme("fabula"));
}

int Run(int argc, char** argv) {
    DoWithoutDisplay(argc, argv);
    qt::Program app(argc, argv);
    NameTheProgram();
    // While a game is tested the window is hidden and another one closes. This one ends the program itself.
    QApplication::setQuitOnLastWindowClosed(false);

    QCommandLineParser arguments;
    arguments.setApplicationDescription("Makes text adventures.");
    arguments.addHelpOption();
    arguments.addVersionOption();
    arguments.addPositionalArgument("file", "The adventure to open (*.fbd).", "[file]");
    arguments.addPositionalArgument("report", "With --print-to: the report, as of 'fabula list'.",
                                    "[report]");
    const PrintToOptions printTo(arguments);
    arguments.process(app);
    if (printTo.AreGiven()) {
        ide::PrintTo(printTo.Order());
        return EXIT_SUCCESS;
    }

    QSettings store(QSettings::IniFormat, QSettings::UserScope, "Fabula", "Fabula");
    qt::QtSettings settings(store);
    qt::QtDialogs dialogs;
    const auto environment = platform::Environment::OfTheProgram();
    const auto folders = platform::ProgramDataFolders(platform::RunningProgram(), environment);
    const qt::Translations translations(folders, QLocale::system());
    qt::LastBorder border(dialogs, [](int status) { QApplication::exit(status); });
    platform::SeededRandom random(platform::UnpredictableSeed());
    platform::SystemClock clock;
    qt::QtTimers timers;
    qt::QtEvents events;
    qt::QtPrograms programs;
    ide::MainWindow* shown = nullptr;
    midi::Player sound(timers, midi::OpenOutput,
                       [&shown](const std::string& sentence) { shown->SoundFailed(sentence); });
    std::optional<ide::MainWindow> window;
    const auto make = [&] {
        const auto files = authoring::FindProgramFiles(settings, folders, dialogs);
        if (!files) return false;
        window.emplace(ide::Services{timers, dialogs, settings, store, clock, events, sound, random,
                                     programs, midi::DeviceNames},
                       FindPlaces(*files, environment, folders));
        shown = &*window;
        window->show();
        return true;
    };
    const auto start = [&] {
        const QStringList named = arguments.positionalArguments();
        window->Start(named.isEmpty() ? std::filesystem::path() : qt::PathFromQt(named.first()));
        return true;
    };
    const auto doing = [] { return std::string("the program began"); };
    if (!border.Run(make, doing).value_or(false)) return EXIT_FAILURE;
    border.SetKeep([&window] { return window->Logic().KeepACopy(ide::TypedTexts()); });
    border.Run(start, doing);
    return app.Run(border);
}

}  // namespace

int main(int argc, char** argv) {
    return qt::RunProgram("FabulaIDE", [argc, argv] { return Run(argc, argv); });
}
