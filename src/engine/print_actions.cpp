#include "engine/print_actions.h"

#include <algorithm>

#include "engine/describe.h"
#include "engine/game.h"
#include "engine/messages.h"

namespace fabula::engine {

namespace {

constexpr int kListedBit = 128;

void PrintNumber(Game& game, int number) {
    game.printer.PrintText(std::to_string(number), false, true);
}

int CountAt(const Game& game, int where) {
    int count = 0;
    for (int object = 0; object < game.state.ObjectCount(); ++object) {
        if (game.state.ObjectPlace(object) == where) ++count;
    }
    return count;
}

/// What follows an object in a list that runs on, by how many are still to come.
int Separator(int left) {
    constexpr int kComma = 46;
    constexpr int kAnd = 47;
    constexpr int kFullStop = 48;
    if (left == 0) return kFullStop;
    return left == 1 ? kAnd : kComma;
}

void PrintList(Game& game, int where, int count) {
    const bool runsOn = game.state.FlagBitSet(flag::kListOptions, 6);
    if (!runsOn) game.printer.NewLine();
    for (int object = 0; object < game.state.ObjectCount(); ++object) {
        if (game.state.ObjectPlace(object) != where) continue;
        PrintObject(game, object);
        if (runsOn) {
            SaySystemMessage(game, Separator(--count));
        } else {
            game.printer.NewLine();
        }
    }
}

/// How many objects are at a place, with bit 7 of flag 53 telling whether there is anything to list.
int BeginList(Game& game, int where) {
    const int count = CountAt(game, where);
    if (game.state.FlagBitSet(flag::kListOptions, 7)) {
        game.SetFlag(flag::kListOptions, game.Flag(flag::kListOptions) - kListedBit);
    }
    if (count > 0) game.SetFlag(flag::kListOptions, game.Flag(flag::kListOptions) + kListedBit);
    return count;
}

}  // namespace

bool Mes(Game& game, int message, int) {
    SayMessage(game, message);
    return true;
}

bool Message(Game& game, int message, int) {
    SayMessage(game, message);
    return NewLine(game, 0, 0);
}

bool SysMess(Game& game, int message, int) {
    SaySystemMessage(game, message);
    return true;
}

bool MesF(Game& game, int flag, int) {
    return Mes(game, game.Flag(flag), 0);
}

bool MessgF(Game& game, int flag, int) {
    return Message(game, game.Flag(flag), 0);
}

bool SysMsgF(Game& game, int flag, int) {
    return SysMess(game, game.Flag(flag), 0);
}

bool Print(Game& game, int flag, int) {
    PrintNumber(game, game.Flag(flag));
    return true;
}

bool NewLine(Game& game, int, int) {
    game.printer.NewLine();
    return true;
}

bool Turns(Game& game, int, int) {
    const int turns = game.Flag(flag::kTurnHigh) * 256 + game.Flag(flag::kTurnLow);
    SaySystemMessage(game, 17);
    game.printer.PrintText(std::to_string(turns) + " ", false, true);
    SaySystemMessage(game, 18);
    if (turns > 1) SaySystemMessage(game, 19);
    SaySystemMessage(game, 20);
    return true;
}

bool Score(Game& game, int, int) {
    SaySystemMessage(game, 21);
    PrintNumber(game, game.Flag(flag::kScore));
    SaySystemMessage(game, 22);
    SaySystemMessage(game, 20);
    return true;
}

bool Cls(Game& game, int, int) {
    game.printer.Clear();
    return true;
}

bool Inven(Game& game, int, int) {
    SaySystemMessage(game, 9);
    game.printer.NewLine();
    bool any = false;
    for (int object = 0; object < game.state.ObjectCount(); ++object) {
        if (!game.IsCarried(object) && !game.IsWorn(object)) continue;
        any = true;
        PrintObject(game, object);
        if (game.IsWorn(object)) SaySystemMessage(game, 10);
        game.printer.NewLine();
    }
    if (!any) SaySystemMessage(game, 11);
    return true;
}

bool ListObj(Game& game, int, int) {
    const int where = game.Flag(flag::kLocation);
    const int count = BeginList(game, where);
    if (count == 0) return true;
    SaySystemMessage(game, 1);
    PrintList(game, where, count);
    return true;
}

bool ListAt(Game& game, int location, int) {
    const int where = game.PlaceOf(location);
    const int count = BeginList(game, where);
    if (count == 0) return SysMess(game, 53, 0);
    PrintList(game, where, count);
    return true;
}

bool PictureAction(Game& game, int location, int) {
    if (!game.data.LocationExists(location)) FailMissing("location", location);
    ShowPictureOf(game, location);
    return true;
}

bool Paper(Game& game, int colour, int) {
    constexpr int kHighestPaper = 8;
    game.printer.Paper(std::clamp(colour, 0, kHighestPaper));
    return true;
}

bool Ink(Game& game, int colour, int) {
    constexpr int kLeaveInk = 8;
    if (colour < kLeaveInk) game.printer.Ink(std::max(colour, 0));
    return true;
}

bool CharSet(Game& game, int font, int) {
    game.printer.CharSet(font);
    return true;
}

bool FntSize(Game& game, int code, int) {
    game.printer.FontSize(code);
    return true;
}

bool Bright(Game& game, int on, int) {
    game.printer.Bright(on != 0);
    return true;
}

bool Flash(Game& game, int on, int) {
    game.printer.Flash(on != 0);
    return true;
}

bool Inverse(Game& game, int on, int) {
    game.printer.Inverse(on != 0);
    return true;
}

bool Over(Game& game, int on, int) {
    game.printer.Over(on != 0);
    return true;
}

}  // namespace fabula::engine
