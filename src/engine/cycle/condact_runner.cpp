#include "engine/cycle/condact_runner.h"

#include <algorithm>
#include <utility>

#include "engine/actions/condact_table.h"
#include "engine/actions/sound_actions.h"
#include "engine/game.h"

namespace fabula::engine {

namespace {

/// Entries are looked at much faster than condacts run.
constexpr std::int64_t kEntriesForACondAct = 100;

/// PROCESS and DOALL frames together. The call stack alone can't bound them: some actions empty it.
constexpr std::size_t kFrameDepth = 2 * CondActRunner::kCallDepth;

[[noreturn]] void FailRunaway(std::int64_t limit, const char* what) {
    throw RunFailure("the game ran more than " + std::to_string(limit) + " " + what +
                     " without waiting for the player");
}

}  // namespace

CondActRunner::CondActRunner(Game& game, std::int64_t condactLimit, std::int64_t slice)
    : game_(game), limit_(condactLimit), slice_(slice) {
    for (const CondActRoutine& routine : AllCondActs()) {
        const int params = game.data.condActParams[static_cast<std::size_t>(routine.number)];
        if (params == GameData::kUnknownCondAct) continue;
        routines_[static_cast<std::size_t>(routine.number - kFirstCondAct)] = {
            &routine, params, !routine.IsAction() && !routine.asks};
    }
}

void CondActRunner::ResetBudget() {
    condactsRun_ = 0;
    entriesSeen_ = 0;
    BeginSlice();
}

void CondActRunner::BeginSlice() {
    sliceBegan_ = {condactsRun_, LookedAt(), game_.printer.Spent()};
}

std::int64_t CondActRunner::LookedAt() const {
    return entriesSeen_ + game_.objectsWeighed;
}

bool CondActRunner::SliceIsOver() const {
    return slice_ > 0 && (condactsRun_ - sliceBegan_.condacts >= slice_ ||
                          LookedAt() - sliceBegan_.looks >= slice_ * kEntriesForACondAct ||
                          game_.printer.Spent() - sliceBegan_.text >= kSliceText);
}

void CondActRunner::DoCondActs(ProcessNumber process, int startX, int startY) {
    frames_.clear();
    question_.reset();
    game_.tones.clear();
    PushFrame(process, startX, startY);
}

bool CondActRunner::Run() {
    rests_ = false;
    while (!frames_.empty()) {
        if (SliceIsOver()) {
            BeginSlice();
            rests_ = true;
            return false;
        }
        switch (frames_.back().phase) {
            case Phase::Entry:
                SeekEntry();
                break;
            case Phase::CondAct:
                RunEntry();
                break;
            case Phase::Called:
                FinishAction(true);
                break;
            case Phase::ActionDone:
                if (!PlayTones(game_)) FinishAction(true);
                break;
            case Phase::FileAsked:
                UseFile();
                break;
            case Phase::DoAll:
                NextObject();
                break;
        }
        if (question_) return false;
        if (wait_.count() == 0) continue;
        game_.parts.timers.StartWait(wait_);
        wait_ = std::chrono::milliseconds(0);
        return false;
    }
    return true;
}

const ProcessTable* CondActRunner::Table(ProcessNumber process) const {
    if (process.value >= static_cast<int>(game_.data.processes.size())) return nullptr;
    return &game_.data.processes[static_cast<std::size_t>(process.value)];
}

void CondActRunner::PushFrame(ProcessNumber process, int startX, int startY) {
    if (process.value < 0) FailMissing("process", process.value);
    if (frames_.size() >= kFrameDepth) {
        throw RunFailure("more than " + std::to_string(kFrameDepth) +
                         " tables are running inside each other");
    }
    Frame frame;
    frame.process = process;
    frame.startCell = startY == -1 ? kFirstCell : startY;
    if (startX != -1) {
        // An entry that is resumed is taken as it is, without matching its words again.
        frame.entry = startX;
        frame.cell = frame.startCell;
        if (Table(process) && startX < Table(process)->Count()) frame.phase = Phase::CondAct;
    }
    game_.runningProc = process;
    game_.SetFlag(flag::kDescribe, 0);
    game_.SetFlag(flag::kEnded, 0);
    game_.done = false;
    frames_.push_back(frame);
    if (!game_.trace.On() || !Table(process)) return;
    game_.trace.Tell(TableBegun{.process = process,
                                .depth = static_cast<int>(callStack.size()) - 1,
                                .verb = game_.state.WordText(flag::kVerb),
                                .noun = game_.state.WordText(flag::kNoun),
                                .entry = startX,
                                .cell = startY,
                                .lastEntry = Table(process)->Count() - 1});
}

/// Goes to the next entry that matches. Only process 0 and the tables called from it read the words, unless
/// flag 58 says otherwise.
void CondActRunner::SeekEntry() {
    Frame& frame = frames_.back();
    const ProcessTable* table = Table(frame.process);
    const int end = table && frame.entry >= 0 ? table->Count() : 0;
    const bool allMatch = game_.parentProcNum.value > 0 && !game_.state.FlagBitSet(flag::kMatchWords, 7);
    const bool quiet = IsQuiet();
    while (frame.entry < end) {
        const int found = FindEntry(*table, frame.entry, allMatch);
        CountEntries(frame, found, end);
        if (found == end) break;
        const ProcessEntry& entry = (*table)[found];
        if (game_.trace.On()) TraceMatch(frame, entry, allMatch);
        frame.cell = frame.startCell;
        frame.phase = Phase::CondAct;
        if (!quiet || !ConditionsFail(frame, entry)) return;
        frame.phase = Phase::Entry;
        ++frame.entry;
    }
    if (table && game_.trace.On()) game_.trace.Tell(TableEnded{});
    EndTable();
}

int CondActRunner::FindEntry(const ProcessTable& table, int from, bool allMatch) const {
    return allMatch ? from : table.FindMatch(from, game_.Word(flag::kVerb), game_.Word(flag::kNoun));
}

/// Goes on to the entry `found`, or to the end of the table. Those that are passed over count as if each
/// had been looked at: the failure names the one that was too many.
void CondActRunner::CountEntries(Frame& frame, int found, int end) {
    const std::int64_t limit = limit_ * kEntriesForACondAct;
    const int last = std::min(found, end - 1);
    const std::int64_t left = limit - entriesSeen_;
    if (last - frame.entry >= left) {
        frame.entry += static_cast<int>(left);
        FailRunaway(limit, "entries");
    }
    entriesSeen_ += last - frame.entry + 1;
    frame.entry = found;
}

/// Nothing is told of what fails, and no entry would be left for another reason than a condition. Both stay
/// so while conditions only look.
bool CondActRunner::IsQuiet() const {
    return !game_.trace.On() && !game_.done && game_.Flag(flag::kDescribe) == 0 &&
           game_.Flag(flag::kEnded) == 0 && game_.Flag(flag::kAsking) == 0;
}

/// Runs the conditions that an entry begins with, up to the first that fails. When none does, the entry
/// goes on behind them. Most entries of a turn end here.
bool CondActRunner::ConditionsFail(Frame& frame, const ProcessEntry& entry) {
    const std::span<const std::int16_t> numbers = game_.data.CondActsOf(entry);
    for (;;) {
        const auto at = static_cast<std::size_t>(frame.cell - kFirstCell);
        if (at >= numbers.size()) return false;
        const auto index = static_cast<unsigned>(numbers[at] - kFirstCondAct);
        if (index >= routines_.size() || !routines_[index].passive) return false;
        const Runnable& condition = routines_[index];
        const auto params = static_cast<std::size_t>(condition.params);
        if (numbers.size() - at - 1 < params) return false;
        CountCondAct();
        const int p1 = params > 0 ? numbers[at + 1] : 0;
        const int p2 = params > 1 ? numbers[at + 2] : 0;
        if (!condition.routine->run(game_, p1, p2)) return true;
        frame.cell += 1 + condition.params;
    }
}

bool CondActRunner::IsWild(WordNumber word) const {
    return ProcessTable::IsWild(word, !game_.IsMarlo());
}

void CondActRunner::TraceMatch(const Frame& frame, const ProcessEntry& entry, bool allMatch) {
    using By = EntryMatched::By;
    By by = By::Words;
    if (allMatch) {
        by = By::Called;
    } else if (IsWild(entry.verb)) {
        by = IsWild(entry.noun) ? By::BothWild : By::VerbWild;
    } else if (IsWild(entry.noun)) {
        by = By::NounWild;
    }
    game_.trace.Tell(EntryMatched{.by = by,
                                  .process = frame.process,
                                  .entry = frame.entry,
                                  .record = entry.record,
                                  .verb = entry.verb,
                                  .noun = entry.noun,
                                  .saidVerb = game_.Word(flag::kVerb),
                                  .saidNoun = game_.Word(flag::kNoun),
                                  .isMarlo = game_.IsMarlo()});
}

/// Runs the condacts of an entry until it is left, or until an action begins something of its own.
void CondActRunner::RunEntry() {
    Frame& frame = frames_.back();
    const ProcessEntry& entry = (*Table(frame.process))[frame.entry];
    const std::span<const std::int16_t> numbers = game_.data.CondActsOf(entry);
    const std::size_t depth = frames_.size();
    while (frames_.size() == depth && frames_.back().phase == Phase::CondAct && wait_.count() == 0 &&
           !SliceIsOver()) {
        const auto at = static_cast<std::size_t>(frames_.back().cell - kFirstCell);
        if (at >= numbers.size()) return LeaveEntry();
        CountCondAct();
        RunCondAct(Find(numbers[at]), numbers.subspan(at + 1));
    }
}

/// `numbers` begins with the parameters.
void CondActRunner::RunCondAct(const Runnable& condact, std::span<const std::int16_t> numbers) {
    const CondActRoutine& routine = *condact.routine;
    if (numbers.size() < static_cast<std::size_t>(condact.params)) {
        throw RunFailure("the entry ends where a parameter is due");
    }
    const int p1 = condact.params > 0 ? numbers[0] : 0;
    const int p2 = condact.params > 1 ? numbers[1] : 0;
    if (game_.trace.On()) TraceCondAct(condact, p1, p2);
    if (routine.asks) RememberPosition();
    if (routine.IsAction()) game_.SetFlag(flag::kActed, kSet);

    const std::size_t depth = frames_.size();
    const bool result = routine.run(game_, p1, p2);
    Frame& frame = frames_[depth - 1];
    if (frames_.size() > depth) {
        frame.phase = Phase::Called;
    } else if (wait_.count() > 0) {
        frame.phase = Phase::ActionDone;
    } else if (question_) {
        frame.phase = Phase::FileAsked;
    } else if (frame.phase == Phase::CondAct) {
        const bool goOn = routine.IsAction() ? GoesOnAfterAction(result) : GoesOnAfterCondition(result);
        if (!goOn) return LeaveEntry();
        frame.cell += 1 + condact.params;
    }
}

void CondActRunner::TraceCondAct(const Runnable& condact, int p1, int p2) {
    const CondActRoutine& routine = *condact.routine;
    CondActBegun event{.name = routine.trace,
                       .isAction = routine.IsAction(),
                       .paramCount = std::min(condact.params, 2),
                       .params = {p1, p2}};
    if (routine.traceFlag.value > 0) {
        event.flagText = routine.traceFlagText;
        event.flagValue = game_.Flag(routine.traceFlag);
    }
    game_.trace.Tell(event);
}

/// Where the table is entered again when the player has answered.
void CondActRunner::RememberPosition() {
    const Frame& frame = frames_.back();
    game_.currentProc = frame.process;
    game_.startX = frame.entry;
    game_.startY = frame.cell;
    game_.savedParentProcNum = game_.parentProcNum;
}

bool CondActRunner::GoesOnAfterCondition(bool result) {
    if (game_.Flag(flag::kAsking) != 0) return false;
    if (!result) return LeaveBecause(Leaving::NotSatisfied);
    if (game_.done) return LeaveBecause(Leaving::DoneAfterCondition);
    return true;
}

bool CondActRunner::GoesOnAfterAction(bool result) {
    if (game_.Flag(flag::kAsking) != 0) return false;
    if (game_.Flag(flag::kDescribe) != 0) return LeaveBecause(Leaving::Describe);
    if (game_.done) return LeaveBecause(Leaving::Done);
    if (game_.Flag(flag::kEnded) != 0) return LeaveBecause(Leaving::End);
    if (!result) return LeaveBecause(Leaving::NotSatisfied);
    return true;
}

/// Tells that an entry is left before its end. Returns false: it does not go on.
bool CondActRunner::LeaveBecause(Leaving why) {
    if (game_.trace.On()) game_.trace.Tell(EntryLeft{why});
    return false;
}

void CondActRunner::GiveFile(const std::optional<std::filesystem::path>& file) {
    question_->file = file;
    if (file && !file->has_extension()) *question_->file += question_->request.extension;
}

void CondActRunner::UseFile() {
    const FileQuestion question = std::move(*question_);
    question_.reset();
    FinishAction(!question.file || question.action(game_, *question.file));
}

/// What an action began is over: its entry goes on behind it.
void CondActRunner::FinishAction(bool result) {
    Frame& frame = frames_.back();
    frame.phase = Phase::CondAct;
    if (!GoesOnAfterAction(result)) return LeaveEntry();
    const ProcessEntry& entry = (*Table(frame.process))[frame.entry];
    const std::int16_t number =
        game_.data.CondActsOf(entry)[static_cast<std::size_t>(frame.cell - kFirstCell)];
    frame.cell += 1 + Find(number).params;
}

void CondActRunner::LeaveEntry() {
    const std::optional<Leaving> why = LeavesTable();
    if (!why) {
        Frame& frame = frames_.back();
        ++frame.entry;
        frame.phase = Phase::Entry;
        return;
    }
    if (game_.trace.On()) game_.trace.Tell(TableLeft{*why});
    EndTable();
}

std::optional<Leaving> CondActRunner::LeavesTable() const {
    if (game_.Flag(flag::kDescribe) != 0) return Leaving::Describe;
    if (game_.done) return Leaving::Done;
    if (game_.Flag(flag::kEnded) != 0) return Leaving::End;
    if (game_.Flag(flag::kAsking) != 0) return Leaving::Asking;
    return std::nullopt;
}

/// The running table comes back to the one that called it. Its own `done` has ended it alone.
void CondActRunner::EndTable() {
    frames_.pop_back();
    if (frames_.empty()) return;
    game_.runningProc = frames_.back().process;
    game_.done = false;
    if (frames_.back().phase == Phase::Called && !callStack.empty()) callStack.pop_back();
}

void CondActRunner::CallProcess(ProcessNumber process) {
    if (callStack.size() >= kCallDepth) {
        throw RunFailure("more than " + std::to_string(kCallDepth) + " calls of PROCESS inside each other");
    }
    const Frame& frame = frames_.back();
    callStack.push_back({frame.process, frame.entry, frame.cell + 2});
    PushFrame(process, -1, -1);
}

void CondActRunner::BeginDoAll() {
    frames_.back().object = 0;
    frames_.back().phase = Phase::DoAll;
}

/// Runs the table from its start for the next object of a DOALL.
void CondActRunner::NextObject() {
    Frame& frame = frames_.back();
    while (!game_.stopDoAll && game_.Flag(flag::kAsking) == 0 && game_.Flag(flag::kEnded) == 0 &&
           frame.object < game_.state.ObjectCount()) {
        const ObjectNumber object(frame.object++);
        if (game_.state.ObjectPlace(object) !=
            game_.ListedPlace(PlaceNumber(game_.Flag(flag::kDoAllPlace))))
            continue;
        game_.SetFlag(flag::kNoun, game_.data.Object(object).noun.value);
        game_.SetFlag(flag::kAdjective, game_.data.Object(object).adjective.value);
        return PushFrame(frame.process, -1, -1);
    }
    frame.phase = Phase::ActionDone;
}

void CondActRunner::ClearStack(std::string_view why) {
    callStack.clear();
    if (game_.trace.On()) game_.trace.Tell(CallsForgotten{why});
}

const CondActRunner::Runnable& CondActRunner::Find(int number) const {
    const int index = number - kFirstCondAct;
    if (index < 0 || number > kLastCondAct || !routines_[static_cast<std::size_t>(index)].routine) {
        FailMissing("condition or action", number);
    }
    return routines_[static_cast<std::size_t>(index)];
}

void CondActRunner::CountCondAct() {
    if (++condactsRun_ > limit_) FailRunaway(limit_, "conditions and actions");
}

RunPlace CondActRunner::Place() const {
    RunPlace place;
    if (frames_.empty()) return place;
    const Frame& frame = frames_.back();
    place.process = frame.process;
    const ProcessTable* table = Table(frame.process);
    if (!table || frame.entry < 0 || frame.entry >= table->Count()) return place;
    const ProcessEntry& entry = (*table)[frame.entry];
    place.entry = frame.entry;
    place.record = entry.record;
    const std::span<const std::int16_t> numbers = game_.data.CondActsOf(entry);
    const auto at = static_cast<std::size_t>(frame.cell - kFirstCell);
    if (frame.phase == Phase::Entry || at >= numbers.size()) return place;
    const int index = numbers[at] - kFirstCondAct;
    if (index < 0 || index >= static_cast<int>(routines_.size())) return place;
    const Runnable& condact = routines_[static_cast<std::size_t>(index)];
    if (!condact.routine) return place;
    place.name = condact.routine->name;
    const auto params = std::min(static_cast<std::size_t>(condact.params), place.params.size());
    for (std::size_t p = 0; p < params && at + 1 + p < numbers.size(); ++p) {
        place.params[p] = numbers[at + 1 + p];
        place.paramCount = static_cast<int>(p) + 1;
    }
    return place;
}

}  // namespace fabula::engine
