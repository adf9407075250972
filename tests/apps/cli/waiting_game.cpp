#include "waiting_game.h"

#include "support/games/starter_game.h"

namespace fabula::test {
namespace {

void AddVerb(StarterGame& game, int number, std::string_view verb, std::string_view condacts) {
    game.Word(verb, number, condacts::kVerb);
    game.Entry(0, verb, "_", condacts);
}

}  // namespace

void BuildWaitingGame(const std::filesystem::path& file) {
    StarterGame game(file, store::AdventureKind::Fabula);
    for (int prompt = 2; prompt <= 5; ++prompt)
        game.SystemMessage(prompt, "?");
    game.Location(0, "A room.");
    game.Message(10, "Sure?\u008C");
    game.Message(11, "You said yes.");
    game.Message(12, "You said no.");
    game.Message(13, "An <INK=2>ink<INK>, a <BRIGHT>bright</BRIGHT> and a <PAPER=1>paper<PAPER> word.");
    game.Message(14, "Before \x1B[2J\u009B31m\abehind.");
    game.Message(15, "The hour strikes.");
    game.Message(16, "one two three four five six seven eight nine ten eleven twelve thirteen");
    game.Message(17, "Twenty columns, then two&sp;words&sp;together.");
    AddVerb(game, 60, "ASK", "YESNO 10 MESSAGE 11 DONE");
    game.Entry(0, "_", "_", "EQ 1000 1 CLEAR 1000 MESSAGE 12 DONE");
    AddVerb(game, 61, "KEY", "ANYKEY MESSAGE 11 DONE");
    AddVerb(game, 62, "STOP", "END");
    AddVerb(game, 63, "COLOUR", "MESSAGE 13 DONE");
    AddVerb(game, 64, "ESCAPE", "MESSAGE 14 DONE");
    AddVerb(game, 65, "SILENT", "DONE");
    AddVerb(game, 66, "REST", "PAUSE 9000 MESSAGE 11 DONE");
    AddVerb(game, 67, "CLOCK", "TIME 1 4 MESSAGE 11 DONE");
    AddVerb(game, 68, "LONG", "MESSAGE 16 DONE");
    AddVerb(game, 69, "RECORD", "SCRIPT 1 DONE");
    AddVerb(game, 70, "REPLAY", "SCRIPT 2 DONE");
    AddVerb(game, 71, "ROLL", "RANDOM 60 PRINT 60 NEWLINE DONE");
    AddVerb(game, 72, "WIPE", "CLS DONE");
    AddVerb(game, 74, "TOGETHER", "MESSAGE 17 DONE");
    AddVerb(game, 73, "BREAK", "COPYFF 999 2000 DONE");
    game.Entry(2, "*", "*", "TIMEOUT MESSAGE 15 CLEAR 48");
    game.Finish();
}

void BuildCharacterSetGame(const std::filesystem::path& file) {
    StarterGame game(file, store::AdventureKind::Marlo, true);
    for (int prompt = 2; prompt <= 5; ++prompt)
        game.SystemMessage(prompt, "?");
    game.Location(0, "`5 <#=127> <#=143><#=150>.\u008C");
    game.Finish();
}

}  // namespace fabula::test
