#pragma once

#include <array>
#include <chrono>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "engine/actions/condact_table.h"
#include "engine/game_data.h"
#include "engine/game_window.h"
#include "engine/output/origin.h"
#include "engine/output/trace_event.h"

namespace fabula::engine {

class Game;

/// A place in a process table: the stack of calls holds one for each pending PROCESS, behind its parameter.
struct TablePosition {
    ProcessNumber process;
    int entry = 0;
    int cell = 0;
};

/// How many bytes a run with slices prints before it rests.
inline constexpr std::int64_t kSliceText = 16 * 1024;

/// Runs process tables: `DoCondActs`. Tables that PROCESS calls and the walks of DOALL are frames of one
/// stack, so that a PAUSE can stand in the midst of them while the event loop runs.
///
/// An entry's cells are counted as the tables tell them: its list of condacts begins at cell 4.
class CondActRunner {
  public:
    static constexpr int kFirstCell = 4;
    static constexpr int kCallDepth = 200;

    /// The run rests after `slice` condacts, a hundred times as many entries and weighed objects together,
    /// or kSliceText bytes of text, and then again; 0: it never does.
    CondActRunner(Game& game, std::int64_t condactLimit, std::int64_t slice);

    /// Begins a run of one table at an entry and cell; -1 means the first. Run then carries it out.
    void DoCondActs(ProcessNumber process, int startX, int startY);
    /// Runs on. True when the table has ended, false when it waits: for a file when FileAsked tells of one,
    /// for its host when it Rests, else in a PAUSE, for which a tick has been asked.
    bool Run();
    /// The latest Run stopped only because it had run for long.
    bool Rests() const { return rests_; }

    /// For the actions. PROCESS, DOALL, and waits: the run goes on behind the action when what it began is
    /// over.
    void CallProcess(ProcessNumber process);
    void BeginDoAll();
    void Wait(std::chrono::milliseconds length) { wait_ = length; }
    /// What an action does with the file that the player named; whether its entry goes on.
    using FileAction = bool (*)(Game& game, const std::filesystem::path& file);
    /// Asks for a file. When the player names none the entry goes on.
    void AskForFile(const FileRequest& request, FileAction action) { question_ = {request, action, {}}; }

    /// What file is asked for; nullptr when none is.
    const FileRequest* FileAsked() const { return question_ ? &question_->request : nullptr; }
    /// The player's answer; a name without an extension gets that of its kind. Run then goes on.
    void GiveFile(const std::optional<std::filesystem::path>& file);
    /// Empties the call stack; `why` is the action's name for the trace.
    void ClearStack(std::string_view why);
    /// Later entries of the running call begin at their first cell again.
    void ResetStartCell() { frames_.back().startCell = kFirstCell; }

    /// The tables that are left behind (a game that ends or goes back to the player) are forgotten.
    void Abandon() { frames_.clear(); }
    bool Running() const { return !frames_.empty(); }

    /// The calls that have not come back yet, the latest at the end.
    std::vector<TablePosition> callStack;

    /// Condacts are counted from here on.
    void ResetBudget();

    /// Where the run stands.
    RunPlace Place() const;

  private:
    enum class Phase {
        Entry,       ///< looking for the next entry that matches
        CondAct,     ///< at a condact of an entry
        Called,      ///< an action called a table, which is the frame above
        ActionDone,  ///< an action waited, or walked all its objects
        FileAsked,   ///< an action asked for a file
        DoAll,       ///< between two objects of a DOALL
    };
    struct Frame {
        ProcessNumber process;
        int entry = 0;
        int cell = kFirstCell;
        int startCell = kFirstCell;
        int object = 0;  ///< of a DOALL: the number of the next to look at
        Phase phase = Phase::Entry;
    };
    struct FileQuestion {
        FileRequest request;
        FileAction action;
        std::optional<std::filesystem::path> file;
    };
    struct Runnable {
        const CondActRoutine* routine = nullptr;
        int params = 0;
        bool passive = false;  ///< a condition that only looks: it changes nothing and asks for nothing
    };

    void PushFrame(ProcessNumber process, int startX, int startY);
    void SeekEntry();
    int FindEntry(const ProcessTable& table, int from, bool allMatch) const;
    void CountEntries(Frame& frame, int found, int end);
    bool IsQuiet() const;
    bool ConditionsFail(Frame& frame, const ProcessEntry& entry);
    bool IsWild(WordNumber word) const;
    void TraceMatch(const Frame& frame, const ProcessEntry& entry, bool allMatch);
    void RunEntry();
    void RunCondAct(const Runnable& condact, std::span<const std::int16_t> numbers);
    void RememberPosition();
    /// Whether the entry goes on behind a condition or action.
    bool GoesOnAfterCondition(bool result);
    bool GoesOnAfterAction(bool result);
    bool LeaveBecause(Leaving why);
    void TraceCondAct(const Runnable& condact, int p1, int p2);
    void UseFile();
    void FinishAction(bool result);
    void NextObject();
    void LeaveEntry();
    /// Whether the running table is left with its entry, and why.
    std::optional<Leaving> LeavesTable() const;
    void EndTable();
    const Runnable& Find(int number) const;
    const ProcessTable* Table(ProcessNumber process) const;
    void CountCondAct();
    bool SliceIsOver() const;
    std::int64_t LookedAt() const;
    void BeginSlice();

    Game& game_;
    std::array<Runnable, kLastCondAct - kFirstCondAct + 1> routines_{};  ///< by number, from kFirstCondAct
    std::vector<Frame> frames_;
    std::chrono::milliseconds wait_{0};
    std::optional<FileQuestion> question_;
    std::int64_t limit_;
    std::int64_t slice_;
    std::int64_t condactsRun_ = 0;
    std::int64_t entriesSeen_ = 0;

    /// What has been spent.
    struct Spent {
        std::int64_t condacts = 0;
        std::int64_t looks = 0;  ///< at entries and at objects that are weighed
        std::int64_t text = 0;
    };
    Spent sliceBegan_;
    bool rests_ = false;
};

}  // namespace fabula::engine
