#pragma once

#include "engine/actions/location_actions.h"
#include "engine/output/trace_event.h"

namespace fabula::engine {

class Game;

/// The turn cycle of a game: `VelProcessLoop`, or for the type "marlo" `MarloProcessLoop`. It is a machine
/// of labels that runs until the game needs the player, then returns; the next key or tick enters it again.
class ProcessLoop {
  public:
    explicit ProcessLoop(Game& game) : game_(game) {}

    enum class Outcome {
        WaitsForPlayer,
        Pauses,       ///< Continue goes on when the wait is over
        AsksForFile,  ///< Continue goes on when the file was given
        Rests,        ///< Continue goes on as soon as the host has had its say
        Ended,
        Restarts,  ///< the game has ended, and is to start again
    };

    /// The start of the game: description, process 1 and (not in "marlo") process 2, up to the first wait.
    Outcome Start();
    /// A line of input is in Game::command; an empty one is a turn without words.
    Outcome Enter();
    /// The player has answered: goes on at the place that the asking action remembered.
    Outcome Resume();
    /// The wait of a PAUSE is over, or the file that was asked for is there, or the host had its say.
    Outcome Continue();
    /// The turn is given up: the player is asked for the next line.
    Outcome Stop();

    /// The turn count was brought back from an earlier state: it no longer tells whether the line ran a
    /// sentence. It did, since an action of it brought the state back.
    void ForgetTurnAtInput() { turnAtInput_ = kTurnOfAnswer; }

  private:
    enum class Label {
        Begin,  ///< the start of the game
        BegunProc1,
        BeginProc2,
        BegunProc2,
        BegunLast,
        Top,
        StartProc1,
        Proc1,
        AfterProc1,
        StartProc2,
        Proc2,
        AfterProc2,
        Parse,
        StartProc0,
        Proc0,
        AfterProc0,
        Answer,  ///< process 0 has run: what if nothing acted?
        Table,   ///< a table runs; afterTable_ follows
        End,
        Return,
    };

    Outcome Run(Label label);
    Label BeginStep(Label label);
    Label VelProcessLoop(Label label);
    Label MarloProcessLoop(Label label);
    Label VelAnswer();
    Label MarloExits();
    Label MarloAnswer();

    Label RunTable(ProcessNumber process, int startX, int startY, Label after);
    Label RunCurrentTable(Label after);
    /// The tests behind a table: for the player, for the end, for a description, for calls that never came
    /// back. `next` is where the cycle goes when none holds.
    Label TestTable(Label table, Label next, bool testDescribe);
    void StartProcess(ProcessNumber process);
    void ClearMatchWordsBit();
    Label ParseSentence();
    void CountTurn();
    Label AskPlayer();
    Label Prompt();
    void SayNotUnderstood();
    void SayNoExit(ExitSearch search);
    void TraceSentence();
    void TraceStep(CycleStep step);

    Game& game_;
    Label afterTable_ = Label::Return;
    Outcome ending_ = Outcome::WaitsForPlayer;
    /// The turn at which the cycle was entered from a line; none equals kTurnOfAnswer.
    int turnAtInput_ = kTurnOfAnswer;
    static constexpr int kTurnOfAnswer = -1;
    bool unwinding_ = false;
    ExitSearch exits_ = ExitSearch::NoExit;  ///< in "marlo": what process 0 leaves to be told
};

}  // namespace fabula::engine
