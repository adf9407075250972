#pragma once

#include <array>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "engine/numbers.h"

namespace fabula::engine {

// What a game does, one event for each step that a trace tells. An event holds what was so when it
// happened; its texts are valid while it is told.

/// A line was entered, or the answer to a question.
struct LineEntered {
    std::string_view line;
    bool isAnswer = false;
};

/// The time for a line has run out.
struct TimeRanOut {};

/// The next sentence of a line is read: `text` is what is left of the line.
struct PhraseBegun {
    std::string_view text;
};

/// A sentence was read: its words in the order adverb, verb, adjective, noun, preposition. `isSpoken`:
/// PARSE has read it.
struct SentenceRead {
    std::string_view words;
    bool isSpoken = false;
};

/// A table begins; -1 for an entry or cell stands for the first.
struct TableBegun {
    ProcessNumber process;
    int depth = 0;  ///< how many calls have not come back; -1 for the tables of the turn cycle
    std::string_view verb;
    std::string_view noun;
    int entry = -1;
    int cell = -1;
    int lastEntry = 0;
};

/// No further entry of the table fits.
struct TableEnded {};

/// An entry fits the sentence and begins.
struct EntryMatched {
    enum class By { Called, BothWild, VerbWild, NounWild, Words };
    By by = By::Words;  ///< Called: a table above 0 takes every sentence
    ProcessNumber process;
    int entry = 0;    ///< its place in the table, counted from 0
    int record = 0;   ///< its record key
    WordNumber verb;  ///< of the entry
    WordNumber noun;
    WordNumber saidVerb;  ///< of the sentence
    WordNumber saidNoun;
    bool isMarlo = false;
};

/// A condition or action begins.
struct CondActBegun {
    std::string_view name;  ///< as traces write it, with the bracket of a condition: "zero("
    bool isAction = false;
    int paramCount = 0;
    std::array<int, 2> params{};
    std::string_view flagText = {};  ///< what stands before the flag's value; "" when no flag is told
    int flagValue = 0;
};

/// Why an entry, or with it its table, is left before its end.
enum class Leaving { Describe, Done, DoneAfterCondition, End, NotSatisfied, Asking };
struct EntryLeft {
    Leaving why;
};
struct TableLeft {
    Leaving why;
};

/// An action has emptied the stack of calls.
struct CallsForgotten {
    std::string_view action;
};

/// An object came to what the player carries, or left it.
struct CarriedChanged {
    ObjectNumber object;
    bool isAdded = false;
    int carried = 0;  ///< how many are carried now
};

// What only the turn cycle of type "marlo" tells.

/// It is entered with a line, or goes on at a place behind an answer.
struct CycleEntered {
    bool isAnswer = false;
    ProcessNumber process{-1};
    int entry = -1;
    int cell = -1;
};

/// A call that had not come back is taken up again, behind one of the tables of the cycle.
struct CallTakenUp {
    ProcessNumber process;
    bool isBehindResponses = false;
};

/// A turn is counted.
struct TurnCounted {
    int turn = 0;
    PlaceNumber location;
};

/// The steps of the turn cycle of type "Marlo", in the order of a turn.
enum class CycleStep {
    BeginDescribed,
    RunDescribed,
    CountAutoFlags,
    BeginResponses,
    RunResponses,
    SearchExits,
    TakeExit,
    Answered,
};

using TraceEvent = std::variant<LineEntered, TimeRanOut, PhraseBegun, SentenceRead, TableBegun, TableEnded,
                                EntryMatched, CondActBegun, EntryLeft, TableLeft, CallsForgotten,
                                CarriedChanged, CycleEntered, CallTakenUp, TurnCounted, CycleStep>;

/// An event as a trace writes it: one line or two.
std::vector<std::string> LinesOf(const TraceEvent& event);

}  // namespace fabula::engine
