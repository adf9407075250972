#include "condacts/places.h"
#include "games.h"

namespace fabula::test {
namespace {

enum BoxPlaces { kPlatform, kSignalBox, kTunnel };

/// What lies in the satchel is at the location of its number.
constexpr int kSatchel = 5;

void AddBoxWords(StarterGame& game) {
    game.Word("LIGHT", 40, condacts::kVerb);
    game.Word("PULL", 41, condacts::kVerb);
    game.Word("WAIT", 42, condacts::kVerb);
    game.Word("LISTEN", 43, condacts::kVerb);
    game.Word("GATHER", 44, condacts::kVerb);
    game.Word("STOW", 45, condacts::kVerb);
    game.Word("EMPTY", 46, condacts::kVerb);
    game.Word("WEIGH", 47, condacts::kVerb);
    game.Word("SAY", 48, condacts::kVerb);
    game.Word("LAMP", 50, condacts::kNoun);
    game.Word("LEVER", 51, condacts::kNoun);
    game.Word("FLAG", 52, condacts::kNoun);
    game.Word("WHISTLE", 53, condacts::kNoun);
    game.Word("SATCHEL", 54, condacts::kNoun);
    game.Word("DRIVER", 55, condacts::kNoun);
    // From 200 on a noun can be worn.
    game.Word("CAP", 200, condacts::kNoun);
}

void AddBoxPlaces(StarterGame& game) {
    game.Location(kPlatform, "An empty platform. <#=143><#=140><#=143> The signal box is up.\u008C",
                  "The platform.\u008C", "UP 1");
    game.Location(kSignalBox, "The signal box: one lever, many brass plates.\u008C",
                  "The signal box.\u008C", "DOWN 0");
    game.Location(kTunnel, "The tunnel. Rails gleam.\u008C", "The tunnel.\u008C");
}

void AddBoxThings(StarterGame& game) {
    game.Object(0, "a burning lamp", condacts::place::kNotCreated.value, "LAMP");
    game.Object(1, "a lamp", kSignalBox, "LAMP");
    game.Object(2, "a red flag", kPlatform, "FLAG");
    game.Object(3, "a cap", kPlatform, "CAP");
    game.Object(4, "a whistle", kTunnel, "WHISTLE");
    game.Object(kSatchel, "a satchel", kPlatform, "SATCHEL", {.weight = 9, .container = true});
    game.Setting("maxobj", 2);
    game.Setting("maxweight", 20);
}

void AddBoxMessages(StarterGame& game) {
    game.Message(10, "The lamp burns.");
    game.Message(11, "The lever moves; far away a wire sings. `5 for the one who greased it.");
    game.Message(12, "A train can be heard.");
    game.Message(13, "The train passes. You have done your work.");
    game.Message(14, "Nothing but the wind.");
    game.Message(15, "The scales say ");
    game.Message(16, "The driver is miles away and hears nothing.");
}

void AddEntries(StarterGame& game) {
    game.Entry(0, "NORTH", "_", "AT 0 GOTO 2 SET 0 DESC");
    game.Entry(0, "SOUTH", "_", "AT 2 GOTO 0 CLEAR 0 DESC");
    game.Entry(0, "LIGHT", "LAMP", "CARRIED 1 SWAP 0 1 MESSAGE 10 DONE");
    game.Entry(0, "PULL", "LEVER", "AT 1 ZERO 11 SET 11 PLUS 30 5 LET 5 4 MESSAGE 11 DONE");
    game.Entry(0, "WAIT", "_", "TIME 5 4 OK");
    game.Entry(0, "LISTEN", "_", "PROCESS 3 DONE");
    game.Entry(0, "GATHER", "ALL", "DOALL 255 DONE");
    game.Entry(0, "GATHER", "_", "AUTOG DONE");
    game.Entry(0, "STOW", "FLAG", "PRESENT 5 PUTIN 2 5 DONE");
    game.Entry(0, "EMPTY", "SATCHEL", "PRESENT 5 LISTAT 5 TAKEOUT 2 5 DONE");
    game.Entry(0, "WEIGH", "SATCHEL", "PRESENT 5 WEIGH 5 12 MES 15 PRINT 12 NEWLINE DONE");
    game.Entry(0, "SAY", "DRIVER", "PARSE MESSAGE 16 DONE");
    game.Entry(3, "_", "_", "ZERO 11 MESSAGE 14");
    game.Entry(3, "_", "_", "NOTZERO 11 MESSAGE 12");
    game.Entry(1, "_", "_", "NOTZERO 11 EQ 5 2 MESSAGE 12");
    game.Entry(1, "_", "_", "NOTZERO 11 ZERO 5 MESSAGE 13 PLUS 30 5 SCORE TURNS END");
}

}  // namespace

void BuildSignalBox(const std::filesystem::path& file) {
    StarterGame game(file, store::AdventureKind::Marlo, true);
    game.Setting("advname", std::string("The Signal Box"));
    game.Setting("savename", std::string("signal"));
    AddBoxWords(game);
    AddBoxPlaces(game);
    AddBoxThings(game);
    AddBoxMessages(game);
    AddEntries(game);
    game.Finish();
}

}  // namespace fabula::test
