#include "engine/actions/print_actions.h"

#include <algorithm>

#include "engine/actions/describe.h"
#include "engine/game.h"
#include "engine/output/messages.h"

namespace fabula::engine {

namespace {

constexpr int kListedBit = 128;

void PrintFlag(Game& game, FlagNumber flag) {
    game.printer.PrintText(std::to_string(game.Flag(flag)), false, true, TextRole::Game,
                           TextRecord::Of(flag));
}

int CountAt(const Game& game, PlaceNumber where) {
    int count = 0;
    for (const ObjectNumber object : game.state.Objects()) {
        if (game.state.ObjectPlace(object) == where) ++count;
    }
    return count;
}

/// What follows an object in a list that runs on, by how many are still to come.
SystemMessageNumber Separator(int left) {
    if (left == 0) return message::kListEnd;
    return left == 1 ? message::kAnd : message::kComma;
}

void PrintList(Game& game, PlaceNumber where, int count) {
    const bool runsOn = game.state.FlagBitSet(flag::kListOptions, 6);
    if (!runsOn) game.printer.NewLine();
    for (const ObjectNumber object : game.state.Objects()) {
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
int BeginList(Game& game, PlaceNumber where) {
    const int count = CountAt(game, where);
    if (game.state.FlagBitSet(flag::kListOptions, 7)) {
        game.SetFlag(flag::kListOptions, game.Flag(flag::kListOptions) - kListedBit);
    }
    if (count > 0) game.SetFlag(flag::kListOptions, game.Flag(flag::kListOptions) + kListedBit);
    return count;
}

}  // namespace

bool Mes(Game& game, MessageNumber message) {
    SayMessage(game, message);
    return true;
}

bool Message(Game& game, MessageNumber message) {
    SayMessage(game, message);
    return NewLine(game);
}

bool SysMess(Game& game, SystemMessageNumber message) {
    SaySystemMessage(game, message);
    return true;
}

bool MesF(Game& game, FlagNumber flag) {
    return Mes(game, MessageNumber(game.Flag(flag)));
}

bool MessgF(Game& game, FlagNumber flag) {
    return Message(game, MessageNumber(game.Flag(flag)));
}

bool SysMsgF(Game& game, FlagNumber flag) {
    return SysMess(game, SystemMessageNumber(game.Flag(flag)));
}

bool Print(Game& game, FlagNumber flag) {
    PrintFlag(game, flag);
    return true;
}

bool NewLine(Game& game) {
    game.printer.NewLine();
    return true;
}

bool Turns(Game& game) {
    const int turns = game.Flag(flag::kTurnHigh) * 256 + game.Flag(flag::kTurnLow);
    SaySystemMessage(game, message::kTurnsTaken);
    game.printer.PrintText(std::to_string(turns) + " ", false, true, TextRole::Game,
                           TextRecord::Of(flag::kTurnLow));
    SaySystemMessage(game, message::kTurn);
    if (turns > 1) SaySystemMessage(game, message::kPlural);
    SaySystemMessage(game, message::kCountEnd);
    return true;
}

bool Score(Game& game) {
    SaySystemMessage(game, message::kScored);
    PrintFlag(game, flag::kScore);
    SaySystemMessage(game, message::kScoreEnd);
    SaySystemMessage(game, message::kCountEnd);
    return true;
}

bool Cls(Game& game) {
    game.printer.Clear();
    return true;
}

bool Inven(Game& game) {
    SaySystemMessage(game, message::kCarrying);
    game.printer.NewLine();
    bool any = false;
    for (const ObjectNumber object : game.state.Objects()) {
        if (!game.IsCarried(object) && !game.IsWorn(object)) continue;
        any = true;
        PrintObject(game, object);
        if (game.IsWorn(object)) SaySystemMessage(game, message::kIsWorn);
        game.printer.NewLine();
    }
    if (!any) SaySystemMessage(game, message::kNothing);
    return true;
}

bool ListObj(Game& game) {
    const PlaceNumber where = game.Location();
    const int count = BeginList(game, where);
    if (count == 0) return true;
    SaySystemMessage(game, message::kAlsoHere);
    PrintList(game, where, count);
    return true;
}

bool ListAt(Game& game, PlaceNumber location) {
    const PlaceNumber where = game.ListedPlace(location);
    const int count = BeginList(game, where);
    if (count == 0) return SysMess(game, message::kNothingThere);
    PrintList(game, where, count);
    return true;
}

bool PictureAction(Game& game, PlaceNumber location) {
    if (!game.data.LocationExists(location)) FailMissing("location", location.value);
    ShowPictureOf(game, location);
    return true;
}

bool Paper(Game& game, int colour) {
    constexpr int kHighestPaper = 8;
    game.printer.Paper(std::clamp(colour, 0, kHighestPaper));
    return true;
}

bool Ink(Game& game, int colour) {
    constexpr int kLeaveInk = 8;
    if (colour < kLeaveInk) game.printer.Ink(std::max(colour, 0));
    return true;
}

bool CharSet(Game& game, int font) {
    game.printer.CharSet(font);
    return true;
}

bool FntSize(Game& game, int code) {
    game.printer.FontSize(code);
    return true;
}

bool Bright(Game& game, int on) {
    game.printer.Bright(on != 0);
    return true;
}

bool Flash(Game& game, int on) {
    game.printer.Flash(on != 0);
    return true;
}

bool Inverse(Game& game, int on) {
    game.printer.Inverse(on != 0);
    return true;
}

bool Over(Game& game, int on) {
    game.printer.Over(on != 0);
    return true;
}

}  // namespace fabula::engine
