#include "engine/cycle/process_loop.h"

#include "engine/actions/describe.h"
#include "engine/cycle/parser.h"
#include "engine/cycle/prompt.h"
#include "engine/game.h"
#include "engine/output/messages.h"

namespace fabula::engine {

ProcessLoop::Outcome ProcessLoop::Start() {
    game_.runner.Abandon();
    turnAtInput_ = kTurnOfAnswer;
    unwinding_ = false;
    return Run(Label::Begin);
}

ProcessLoop::Outcome ProcessLoop::Enter() {
    if (!game_.wordsCleared) {
        game_.wordsCleared = true;
        game_.clearedVerb = game_.Word(flag::kVerb);
        game_.clearedAdverb = game_.Word(flag::kAdverb);
    }
    game_.SetFlag(flag::kVerb, kNoWordNumber.value);
    game_.SetFlag(flag::kAdverb, kNoWordNumber.value);
    turnAtInput_ = game_.TurnNumber();
    game_.startX = -1;
    game_.startY = -1;
    unwinding_ = false;
    if (game_.IsMarlo() && game_.trace.On()) game_.trace.Tell(CycleEntered{});
    return Run(Label::Top);
}

ProcessLoop::Outcome ProcessLoop::Resume() {
    const ProcessNumber process = game_.currentProc;
    turnAtInput_ = kTurnOfAnswer;  // the answer was this line's input
    exits_ = ExitSearch::Moved;    // and no direction, so that no message tells of an exit
    game_.parentProcNum = game_.savedParentProcNum;
    unwinding_ = false;
    if (game_.IsMarlo() && game_.trace.On())
        game_.trace.Tell(CycleEntered{true, process, game_.startX, game_.startY});
    if (process == kDescribed) return Run(Label::Proc1);
    if (game_.IsMarlo()) return Run(process == kResponses ? Label::Proc0 : Label::Top);
    return Run(process == kEachTurn ? Label::Proc2 : Label::Proc0);
}

ProcessLoop::Outcome ProcessLoop::Continue() {
    return Run(Label::Table);
}

ProcessLoop::Outcome ProcessLoop::Stop() {
    game_.runner.Abandon();
    game_.runner.callStack.clear();
    unwinding_ = false;
    Prompt();
    return Outcome::WaitsForPlayer;
}

ProcessLoop::Outcome ProcessLoop::Run(Label label) {
    ending_ = Outcome::WaitsForPlayer;
    while (label != Label::Return) {
        switch (label) {
            case Label::Table:
                if (!game_.runner.Run()) {
                    if (game_.runner.FileAsked()) return Outcome::AsksForFile;
                    return game_.runner.Rests() ? Outcome::Rests : Outcome::Pauses;
                }
                label = afterTable_;
                break;
            case Label::Begin:
            case Label::BegunProc1:
            case Label::BeginProc2:
            case Label::BegunProc2:
            case Label::BegunLast:
                label = BeginStep(label);
                break;
            case Label::End:
                game_.SetFlag(flag::kEnded, 0);
                ending_ = game_.restart ? Outcome::Restarts : Outcome::Ended;
                label = Label::Return;
                break;
            default:
                label = game_.IsMarlo() ? MarloProcessLoop(label) : VelProcessLoop(label);
                break;
        }
    }
    return ending_;
}

/// The start of a game. A description that process 2 asks for is carried out once.
ProcessLoop::Label ProcessLoop::BeginStep(Label label) {
    if (label != Label::Begin && label != Label::BeginProc2) {
        if (game_.Flag(flag::kEnded) != 0) return Label::End;
        if (game_.Flag(flag::kAsking) != 0) return AskPlayer();
    }
    switch (label) {
        case Label::Begin:
        case Label::BegunProc1:
            if (game_.Flag(flag::kDescribe) == 0) return game_.IsMarlo() ? Prompt() : Label::BeginProc2;
            Describe(game_);
            game_.parentProcNum = kDescribed;
            return RunTable(kDescribed, -1, -1, Label::BegunProc1);
        case Label::BeginProc2:
            game_.parentProcNum = kEachTurn;
            return RunTable(kEachTurn, -1, -1, Label::BegunProc2);
        case Label::BegunProc2:
            if (game_.Flag(flag::kDescribe) == 0) return Prompt();
            Describe(game_);
            return RunTable(kDescribed, -1, -1, Label::BegunLast);
        default:
            return Prompt();
    }
}

ProcessLoop::Label ProcessLoop::RunTable(ProcessNumber process, int startX, int startY, Label after) {
    game_.runner.DoCondActs(process, startX, startY);
    afterTable_ = after;
    return Label::Table;
}

ProcessLoop::Label ProcessLoop::RunCurrentTable(Label after) {
    return RunTable(game_.currentProc, game_.startX, game_.startY, after);
}

ProcessLoop::Label ProcessLoop::TestTable(Label table, Label next, bool testDescribe) {
    if (game_.Flag(flag::kAsking) != 0) return AskPlayer();
    if (game_.Flag(flag::kEnded) != 0) return Label::End;
    if ((testDescribe || unwinding_) && game_.Flag(flag::kDescribe) != 0) return Label::Top;
    std::vector<TablePosition>& calls = game_.runner.callStack;
    if (unwinding_ && !calls.empty()) calls.pop_back();
    unwinding_ = !calls.empty();
    if (!unwinding_) return next;
    const TablePosition call = calls.back();
    if (game_.IsMarlo() && game_.trace.On())
        game_.trace.Tell(CallTakenUp{call.process, table == Label::AfterProc0});
    return RunTable(call.process, call.entry, call.cell, table);
}

void ProcessLoop::StartProcess(ProcessNumber process) {
    game_.currentProc = process;
    game_.parentProcNum = process;
    game_.startX = -1;
    game_.startY = -1;
    game_.runner.callStack.clear();
    unwinding_ = false;
}

void ProcessLoop::ClearMatchWordsBit() {
    if (game_.startX != -1 || game_.startY != -1 || !game_.state.FlagBitSet(flag::kMatchWords, 7)) return;
    game_.SetFlag(flag::kMatchWords, game_.Flag(flag::kMatchWords) - 128);
}

/// What a line without words gets: message 35 when the time-out brought it.
void ProcessLoop::SayNotUnderstood() {
    const bool timedOut = game_.state.FlagBitSet(flag::kTimeOutOptions, 7);
    PrintSystemMessage(game_, timedOut ? message::kTimePasses : message::kNoExit);
}

/// System message 6 for a direction without an exit, 7 for anything else that nothing answered.
void ProcessLoop::SayNoExit(ExitSearch search) {
    if (search == ExitSearch::NoExit) PrintSystemMessage(game_, message::kNoExit);
    if (search == ExitSearch::NoDirection) PrintSystemMessage(game_, message::kCannotDo);
}

/// Takes the next sentence of the line. Without one, or with one that is not understood, the player is
/// asked.
ProcessLoop::Label ProcessLoop::ParseSentence() {
    if (game_.command.empty()) {
        if (game_.TurnNumber() == turnAtInput_) SayNotUnderstood();
        return Prompt();
    }
    if (!ParsePhrase(game_, game_.command)) {
        SayNotUnderstood();
        return Prompt();
    }
    TraceSentence();
    CountTurn();
    return Label::StartProc0;
}

void ProcessLoop::TraceSentence() {
    if (!game_.trace.On()) return;
    const std::string words = SentenceWords(game_);
    game_.parts.status.ShowStatus(StatusField::Command, words);
    game_.trace.Tell(SentenceRead{.words = words});
}

void ProcessLoop::CountTurn() {
    constexpr int kWrap = 256;
    game_.state.Plus(flag::kTurnLow, 1);
    if (game_.Flag(flag::kTurnLow) == kWrap) {
        game_.SetFlag(flag::kTurnLow, 0);
        game_.state.Plus(flag::kTurnHigh, 1);
    }
}

ProcessLoop::Label ProcessLoop::AskPlayer() {
    AskForInput(game_);
    return Label::Return;
}

ProcessLoop::Label ProcessLoop::Prompt() {
    ProvidePrompt(game_);
    return Label::Return;
}

}  // namespace fabula::engine
