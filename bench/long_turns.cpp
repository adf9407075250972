// How the player's window bears games that print much: the time until all is there, and the longest time in
// which the window answered nothing; of it also the longest that the program was at work, since on a busy
// machine it may only have waited for a core. docs/performance.md tells what it showed.
#include <QApplication>
#include <QElapsedTimer>
#include <QSettings>
#include <QTest>
#include <QTimer>
#include <algorithm>
#include <cstdio>
#include <ctime>
#include <string>

#include "engine/sound_player.h"
#include "platform/random_source.h"
#include "player/panes/game_screen.h"
#include "player/panes/text_pane.h"
#include "player/play/played_game.h"
#include "player/window/player_window.h"
#include "qt/qt_timers.h"
#include "qt/strings.h"
#include "support/doubles/scripted_dialogs.h"
#include "support/games/game_builder.h"
#include "support/temp_folder.h"

namespace {

using namespace fabula;

/// A message of `length` characters: words of six letters, or one long word.
std::string TextOf(std::size_t length, bool blanks) {
    std::string text;
    while (text.size() < length)
        text += blanks ? "seven. " : "sevenof";
    text.resize(length);
    return text;
}

std::string Repeated(const std::string& condact, int count) {
    std::string line;
    for (int i = 0; i < count; ++i)
        line += condact + " ";
    return line;
}

/// Processor time of the program, in milliseconds.
qint64 TimeAtWork() {
    return static_cast<qint64>(std::clock()) * 1000 / CLOCKS_PER_SEC;
}

/// Types DO into a window with the game and lets it run until nothing happens any more.
void Play(const char* name, const test::GameBuilder& game) {
    test::TempFolder folder;
    game.Write(folder / "game.fbd");
    qt::QtTimers timers;
    platform::ScriptedDialogs dialogs;
    engine::SilentPlayer sound;
    platform::SeededRandom random{1};
    QSettings settings(qt::PathToQt(folder / "settings.ini"), QSettings::IniFormat);
    player::PlayerWindow window({.timers = timers,
                                 .dialogs = dialogs,
                                 .sound = sound,
                                 .random = random,
                                 .settings = settings,
                                 .dataFolder = folder / "data",
                                 .isTrial = false,
                                 .trace = nullptr,
                                 .options = {},
                                 .help = [](const qt::HelpTopic&) {}});
    window.show();
    window.Load(folder / "game.fbd");
    QTest::qWait(100);

    QElapsedTimer clock;
    clock.start();
    qint64 beat = 0;
    qint64 longest = 0;
    qint64 work = TimeAtWork();
    qint64 longestWork = 0;
    qint64 changed = 0;
    int length = -1;
    QTimer heart;
    QObject::connect(&heart, &QTimer::timeout, [&] {
        const qint64 now = clock.elapsed();
        longest = std::max(longest, now - beat);
        beat = now;
        const qint64 worked = TimeAtWork();
        longestWork = std::max(longestWork, worked - work);
        work = worked;
        const int count = window.Screen().Text().document()->characterCount();
        const auto waiting = window.Playing()->WaitingFor();
        const bool over = waiting == engine::Waiting::Sentence || waiting == engine::Waiting::Nothing;
        if (count != length || !over) changed = now;
        length = count;
    });
    heart.start(0);
    QTest::keyClicks(&window.Screen().Text(), "do");
    QTest::keyClick(&window.Screen().Text(), Qt::Key_Return);
    do {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
    } while (clock.elapsed() - changed < 500 || beat == 0);
    std::printf(
        "%-34s whole %6lld ms, longest without an answer %6lld ms (%lld ms of work), "
        "%d characters kept\n",
        name, static_cast<long long>(changed), static_cast<long long>(longest),
        static_cast<long long>(longestWork), length);
    std::fflush(stdout);
}

test::GameBuilder Printing(int characters, bool blanks) {
    constexpr int kMessage = 2000;
    test::GameBuilder game;
    game.Message(0, TextOf(kMessage, blanks));
    game.Entry(0, "DO", "_", Repeated("MES 0", characters / kMessage) + "DONE");
    return game;
}

}  // namespace

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    const int most = argc > 1 ? std::stoi(argv[1]) : 448'000;
    for (const int characters : {28'000, 56'000, 112'000, 448'000}) {
        if (characters > most) continue;
        Play(("words, " + std::to_string(characters) + " characters").c_str(), Printing(characters, true));
        Play(("one word, " + std::to_string(characters)).c_str(), Printing(characters, false));
    }
    Play("a description without end",
         test::GameBuilder().Entry(0, "DO", "_", "SET 100 DESC").Entry(1, "_", "_", "NOTZERO 100 DESC"));
    Play("the same with character sets", test::GameBuilder()
                                             .CharacterSets()
                                             .Entry(0, "DO", "_", "SET 100 DESC")
                                             .Entry(1, "_", "_", "NOTZERO 100 DESC"));
    Play("a loop without text", test::GameBuilder()
                                    .Entry(0, "DO", "_", "PROCESS 4")
                                    .Entry(4, "_", "_", "SET 100 SET 101 SET 102 SET 103 PLUS 104 1 DESC")
                                    .Location(0, ""));
}
