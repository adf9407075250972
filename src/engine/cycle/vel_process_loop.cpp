#include "engine/actions/auto_flags.h"
#include "engine/actions/describe.h"
#include "engine/cycle/process_loop.h"
#include "engine/game.h"
#include "engine/output/messages.h"

namespace fabula::engine {

/// The cycle of "fabula" and "vel": description with process 1, process 2, the sentence with process 0,
/// exits.
ProcessLoop::Label ProcessLoop::VelProcessLoop(Label label) {
    switch (label) {
        case Label::Top:
            if (game_.Flag(flag::kDescribe) == 0) return Label::StartProc2;
            Describe(game_);
            return Label::StartProc1;

        case Label::StartProc1:
            StartProcess(kDescribed);
            return Label::Proc1;
        case Label::Proc1:
            ClearMatchWordsBit();
            return RunCurrentTable(Label::AfterProc1);
        case Label::AfterProc1:
            return TestTable(label, Label::StartProc2, true);

        case Label::StartProc2:
            StartProcess(kEachTurn);
            return Label::Proc2;
        case Label::Proc2:
            ClearMatchWordsBit();
            return RunCurrentTable(Label::AfterProc2);
        case Label::AfterProc2:
            return TestTable(label, Label::Parse, true);

        case Label::Parse:
            DoAutoFlags(game_, false);
            return ParseSentence();

        case Label::StartProc0:
            StartProcess(kResponses);
            return Label::Proc0;
        case Label::Proc0:
            game_.SetFlag(flag::kActed, 0);
            return RunCurrentTable(Label::AfterProc0);
        case Label::AfterProc0:
            return TestTable(label, Label::Answer, false);
        case Label::Answer:
            return VelAnswer();

        default:
            return Label::Return;
    }
}

/// When no action ran the exits are searched.
ProcessLoop::Label ProcessLoop::VelAnswer() {
    if (game_.Flag(flag::kActed) != 0) return Label::Top;
    SayNoExit(SearchConnections(game_, game_.Location()));
    return Label::Top;
}

}  // namespace fabula::engine
