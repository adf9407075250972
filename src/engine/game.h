#pragma once

#include <chrono>
#include <deque>
#include <string>
#include <string_view>

#include "engine/cycle/condact_runner.h"
#include "engine/cycle/process_loop.h"
#include "engine/engine.h"
#include "engine/game_data.h"
#include "engine/game_texts.h"
#include "engine/host_parts.h"
#include "engine/output/printer.h"
#include "engine/output/script.h"
#include "engine/output/trace.h"
#include "engine/run_state.h"

namespace fabula::engine {

/// A tone of BEEP, or one of the series that the Marlo sub-functions of PAUSE play.
struct Tone {
    int duration = 0;  ///< in 10 ms
    int pitch = 0;
    bool ofSeries = false;  ///< the pause behind it is plain, whatever flag 28 says
};

/// What outlives a restart of the game: all that is so from the start of the program to its end.
struct Sitting {
    Sitting(const Host& theHost, const Options& theOptions)
        : host(theHost), parts(theHost.parts), options(theOptions) {}

    const Host host;
    HostParts parts;
    const Options options;
    Script script;
    bool soundOn = false;
    bool begun = false;  ///< a game was started: the sound switch is the player's from then on
};

/// One game from its start to its end: what the condacts, the parser and the turn cycle read and change.
/// The routines that work on it are grouped by subject in the other headers of this folder.
class Game {
  public:
    /// Loads everything, gives the window its look and clears it; the loop's Start goes on from there.
    /// Throws fabula::Error or RunFailure when the adventure can't be played.
    Game(store::Adventure& adventure, Sitting& sitting);
    Game(const Game&) = delete;
    Game& operator=(const Game&) = delete;

    Sitting& sitting;
    const Host& host;
    HostParts& parts;

  private:
    store::ReadTransaction reading_;

  public:
    const GameData data;
    GameTexts texts;
    RunState state;
    Printer printer;
    Trace trace;
    CondActRunner runner;
    ProcessLoop loop;

    // What stands in front of the input and behind it, other than in "marlo": system messages 33 and 34.
    // They are kept because every key shows them.
    std::string prompt;
    std::string cursor;

    // The input.
    std::string command;        ///< text not yet parsed, sentences separated by "\r"
    std::string answer;         ///< to an asking action
    std::string defaultAnswer;  ///< the last character of the question
    bool inputReady = false;    ///< keys are for the game

    // Where the run stands, and where it goes on after an answer; -1 for the start of a table.
    ProcessNumber runningProc;
    ProcessNumber currentProc;
    int startX = -1;
    int startY = -1;
    ProcessNumber parentProcNum;
    ProcessNumber savedParentProcNum;

    /// Marks that the running table looks at behind each action.
    bool done = false;
    bool stopDoAll = false;
    bool restart = false;  ///< the game starts again when it ends

    std::int64_t objectsWeighed = 0;  ///< so far; many of them end a slice of a long turn

    /// Verb and adverb that the turn cycle cleared before the sentence came; slot 1 of the history gets
    /// them back.
    bool wordsCleared = false;
    WordNumber clearedVerb = kNoWordNumber;
    WordNumber clearedAdverb = kNoWordNumber;

    int timeOutInterval = 0;      ///< in ms, as TIME set it; 0 before, and in a state that was loaded
    bool timeOutRunning = false;  ///< the window's timer runs
    std::deque<Tone> tones;       ///< still to be played

    int Flag(FlagNumber flag) const { return state.Flag(flag); }
    WordNumber Word(FlagNumber wordFlag) const { return WordNumber(Flag(wordFlag)); }
    /// Where the player is.
    PlaceNumber Location() const { return PlaceNumber(Flag(flag::kLocation)); }
    void SetFlag(FlagNumber flag, int value) { state.SetFlag(flag, value); }
    bool IsMarlo() const { return data.IsMarlo(); }

    /// The flag 38 location, for arguments of 255 and above; any other argument itself.
    PlaceNumber PlaceOf(PlaceNumber argument) const {
        return argument >= place::kHere ? Location() : argument;
    }
    /// The same where a list of objects is asked for: above 255 a location that exists is meant itself.
    PlaceNumber ListedPlace(PlaceNumber argument) const {
        return argument > place::kHere && data.LocationExists(argument) ? argument : PlaceOf(argument);
    }
    bool IsWorn(ObjectNumber object) const { return state.ObjectPlace(object) == place::kWorn; }
    bool IsCarried(ObjectNumber object) const { return state.ObjectPlace(object) == place::kCarried; }
    bool IsHere(ObjectNumber object) const { return state.ObjectPlace(object) == Location(); }
    /// Worn, carried or here.
    bool IsPresent(ObjectNumber object) const {
        return IsWorn(object) || IsCarried(object) || IsHere(object);
    }
    /// Whether the player can see in the dark.
    bool LightIsPresent() const { return state.HasObject(kLight) && IsPresent(kLight); }

    /// Throws away the rest of the typed line.
    void ClearCommand() { command.clear(); }

    /// The number that tells two turns apart. It counts 255 to flag 32, not the 256 at which flag 31 wraps.
    int TurnNumber() const { return Flag(flag::kTurnHigh) * 255 + Flag(flag::kTurnLow); }
};

}  // namespace fabula::engine
