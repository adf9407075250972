#include "condacts/places.h"
#include "games.h"

namespace fabula::test {
namespace {

enum Places { kStage, kParlour, kKitchen, kCellar, kVault, kFarBank, kInsideChest };

/// A chest's contents lie at the location of the chest's own number.
constexpr int kChest = kInsideChest;

void AddWords(StarterGame& game) {
    game.Word("LIGHT", 40, condacts::kVerb);
    game.Word("EXTINGUISH", 41, condacts::kVerb);
    game.Word("EXAMINE", 42, condacts::kVerb);
    game.Word("X", 42, condacts::kVerb);
    game.Word("SAY", 43, condacts::kVerb);
    game.Word("ROW", 44, condacts::kVerb);
    game.Word("WAIT", 45, condacts::kVerb);
    game.Word("COUNT", 46, condacts::kVerb);
    game.Word("AGAIN", 47, condacts::kVerb);
    game.Word("OOPS", 48, condacts::kVerb);
    game.Word("LAMP", 50, condacts::kNoun);
    game.Word("COAT", 51, condacts::kNoun);
    game.Word("CHEST", 52, condacts::kNoun);
    game.Word("COIN", 53, condacts::kNoun);
    game.Word("ANVIL", 54, condacts::kNoun);
    game.Word("FERRYMAN", 55, condacts::kNoun);
    game.Word("SILVER", 2, condacts::kAdjective);
    game.Word("GOLD", 3, condacts::kAdjective);
}

void AddPlaces(StarterGame& game) {
    game.Location(kStage,
                  "You stand on a landing stage. The river runs past, black and slow; the ferry house is "
                  "to the <INK=2>north</INK>.",
                  "The landing stage.", "NORTH 1");
    game.Location(kParlour,
                  "The parlour of the ferry house. A fire has burnt low. There is a kitchen to the east, "
                  "and steps go down.",
                  "The parlour.", "SOUTH 0 EAST 2");
    game.Location(kKitchen, "The kitchen, swept &amp; cold.", "The kitchen.", "WEST 1");
    game.Location(kCellar, "A cellar of wet stone, with a low arch to the north.", "The cellar.",
                  "NORTH 4");
    game.Location(kVault, "A vault no bigger than a cupboard.", "The vault.", "SOUTH 3");
    game.Location(kFarBank, "The far bank, in the first light of the day.");
    game.Location(kInsideChest, "Inside the chest.");
}

void AddThings(StarterGame& game) {
    game.Object(0, "a lit lamp", condacts::place::kNotCreated.value, "LAMP", {.weight = 4});
    game.Object(1, "a lamp", kKitchen, "LAMP", {.weight = 4});
    game.Object(2, "an anvil", kKitchen, "ANVIL", {.weight = 60});
    game.Object(3, "a coat", kParlour, "COAT", {.weight = 6, .wearable = true});
    game.Object(4, "a silver coin", kChest, "SILVER COIN");
    game.Object(5, "a gold coin", kVault, "GOLD COIN");
    game.Object(kChest, "a chest", kParlour, "CHEST", {.weight = 8, .container = true});
    game.Object(7, "the ferryman", kStage, "FERRYMAN", {.weight = 63});
    game.Setting("maxobj", 4);
    game.Setting("maxweight", 62);
}

void AddMessages(StarterGame& game) {
    game.Message(10, "The lamp burns.");
    game.Message(11, "The lamp goes out.");
    game.Message(12, "The flame shrinks.");
    game.Message(13, "You look at _ from all sides.");
    game.Message(14, "The ferryman shakes his head.");
    game.Message(15, "\"Fare first,\" says the ferryman.");
    game.Message(16, "The ferryman takes your coins and pushes off.");
    game.Message(17, "An owl calls from the far bank.");
    game.Message(18, "The ferryman holds up ");
    game.Message(19, " fingers.");
    game.Message(20, "The ferryman nods.");
    game.Message(21, "There is no such person here.");
    game.Message(22, "It looks heavy. Do you want to try it? (Y/N)");
    game.Message(23, "It is heavy.");
    game.Message(24, "Then it will stay a riddle.");
}

/// The lamp lights the cellar and the vault, and burns for as many turns as flag 7 says.
void AddLight(StarterGame& game) {
    game.Entry(0, "DOWN", "_", "AT 1 GOTO 3 SET 0 DESC");
    game.Entry(0, "UP", "_", "AT 3 GOTO 1 CLEAR 0 DESC");
    game.Entry(0, "LIGHT", "LAMP", "CARRIED 1 SWAP 0 1 LET 7 9 MESSAGE 10 DONE");
    game.Entry(0, "EXTINGUISH", "LAMP", "PRESENT 0 SWAP 0 1 CLEAR 7 MESSAGE 11 DONE");
    game.Entry(2, "*", "*", "PRESENT 0 EQ 7 2 MESSAGE 12");
    game.Entry(2, "*", "*", "PRESENT 0 ZERO 7 SWAP 0 1 MESSAGE 11");
}

void AddActions(StarterGame& game) {
    game.Entry(0, "PUT", "COIN", "NOUN2 CHEST PRESENT 6 AUTOP 6 DONE");
    game.Entry(0, "PUT", "COAT", "NOUN2 CHEST PRESENT 6 AUTOP 6 DONE");
    game.Entry(0, "GET", "COIN", "NOUN2 CHEST PRESENT 6 AUTOT 6 DONE");
    game.Entry(0, "GET", "COAT", "NOUN2 CHEST PRESENT 6 AUTOT 6 DONE");
    game.Entry(0, "EXAMINE", "CHEST", "PRESENT 6 LISTAT 6 DONE");
    game.Entry(0, "EXAMINE", "_", "WHATO LT 51 255 MESSAGE 13 DONE");
    game.Entry(0, "WAIT", "_", "TIME 5 4 OK");
    game.Entry(2, "*", "*", "TIMEOUT MESSAGE 17 CLEAR 48");
}

/// The ferryman understands two sentences, to row and to count; his table calls another one.
void AddFerryman(StarterGame& game) {
    game.Entry(0, "SAY", "FERRYMAN", "ABSENT 7 MESSAGE 21 DONE");
    game.Entry(0, "SAY", "FERRYMAN", "PROCESS 3 DONE");
    game.Entry(3, "*", "*", "PARSE MESSAGE 14 DONE");
    game.Entry(3, "ROW", "_", "PROCESS 4 DONE");
    game.Entry(3, "COUNT", "_", "MES 18 PRINT 1 MESSAGE 19 DONE");
    game.Entry(3, "_", "_", "MESSAGE 20 DONE");
    game.Entry(4, "_", "_", "CARRIED 4 CARRIED 5 DESTROY 4 DESTROY 5 PLUS 30 10 MESSAGE 16 GOTO 5 DESC");
    game.Entry(4, "_", "_", "MESSAGE 15");
    game.Entry(2, "*", "*", "AT 5 SCORE TURNS END");
}

/// What only an adventure of type Fabula has.
void AddLaterActions(StarterGame& game) {
    game.Entry(0, "EXAMINE", "ANVIL", "YESNO 22 MESSAGE 23 DONE");
    game.Entry(0, "_", "_", "EQ 1000 1 CLEAR 1000 MESSAGE 24 DONE");
    game.Entry(0, "AGAIN", "_", "AGAIN PROCESS 0 DONE");
    game.Entry(0, "OOPS", "_", "OOPS 2 DESC");
}

}  // namespace

void BuildFerryHouse(const std::filesystem::path& file, store::AdventureKind kind) {
    StarterGame game(file, kind);
    game.Setting("advname", std::string("The Ferry House"));
    game.Setting("savename", std::string("ferry"));
    AddWords(game);
    AddPlaces(game);
    AddThings(game);
    AddMessages(game);
    AddLight(game);
    AddActions(game);
    AddFerryman(game);
    if (kind == store::AdventureKind::Fabula) AddLaterActions(game);
    game.Finish();
}

}  // namespace fabula::test
