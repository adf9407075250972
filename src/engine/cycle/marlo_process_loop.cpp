#include "engine/actions/auto_flags.h"
#include "engine/actions/describe.h"
#include "engine/cycle/process_loop.h"
#include "engine/game.h"
#include "engine/output/messages.h"

namespace fabula::engine {

/// The cycle of "marlo": description, process 1, the sentence, exits, process 0. There is no process 2, and
/// an exit beats the response table.
ProcessLoop::Label ProcessLoop::MarloProcessLoop(Label label) {
    switch (label) {
        case Label::Top:
            if (game_.Flag(flag::kDescribe) == 0) return Label::Parse;
            Describe(game_);
            return Label::StartProc1;

        case Label::StartProc1:
            TraceStep(CycleStep::BeginDescribed);
            StartProcess(kDescribed);
            return Label::Proc1;
        case Label::Proc1:
            ClearMatchWordsBit();
            TraceStep(CycleStep::RunDescribed);
            return RunCurrentTable(Label::AfterProc1);
        case Label::AfterProc1:
            return TestTable(label, Label::Parse, true);

        case Label::Parse:
            TraceStep(CycleStep::CountAutoFlags);
            ClearMatchWordsBit();
            DoAutoFlags(game_, false);
            return ParseSentence();

        case Label::StartProc0:
            if (game_.trace.On())
                game_.trace.Tell(
                    TurnCounted{game_.Flag(flag::kTurnLow), PlaceNumber(game_.Flag(flag::kLocation))});
            TraceStep(CycleStep::BeginResponses);
            StartProcess(kResponses);
            return MarloExits();
        case Label::Proc0:
            TraceStep(CycleStep::RunResponses);
            game_.SetFlag(flag::kActed, 0);
            return RunCurrentTable(Label::AfterProc0);
        case Label::AfterProc0:
            return TestTable(label, Label::Answer, true);
        case Label::Answer:
            return MarloAnswer();

        default:
            return Label::Return;
    }
}

/// What the search comes to without a move is kept until process 0 has run.
ProcessLoop::Label ProcessLoop::MarloExits() {
    TraceStep(CycleStep::SearchExits);
    exits_ = SearchConnections(game_, game_.Location());
    if (exits_ != ExitSearch::Moved) return Label::Proc0;
    TraceStep(CycleStep::TakeExit);
    return Label::Top;
}

ProcessLoop::Label ProcessLoop::MarloAnswer() {
    if (game_.Flag(flag::kActed) != 0) {
        TraceStep(CycleStep::Answered);
    } else {
        SayNoExit(exits_);
    }
    return Label::StartProc1;
}

void ProcessLoop::TraceStep(CycleStep step) {
    if (game_.trace.On()) game_.trace.Tell(step);
}

}  // namespace fabula::engine
