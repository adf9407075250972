#include "engine/output/trace_event.h"

#include <type_traits>

namespace fabula::engine {

namespace {

using Lines = std::vector<std::string>;

struct HowRow {
    EntryMatched::By by;
    std::string_view text;
    std::string_view ofMarlo;
};

constexpr HowRow kHow[] = {
    {EntryMatched::By::BothWild, "Both words wild", "Both words wild"},
    {EntryMatched::By::VerbWild, "word1 wild and word2=noun", "Word1 wild & word2=noun"},
    {EntryMatched::By::NounWild, "word1=verb and word2 wild", "Word1=verb & word2 wild"},
    {EntryMatched::By::Words, "word1=verb and word2=noun", "word1=verb & word2=noun"},
};

struct LeavingRow {
    Leaving why;
    std::string_view text;
};

constexpr LeavingRow kLeaving[] = {
    {Leaving::Describe, " because of Describe"},
    {Leaving::Done, " because of Done"},
    {Leaving::End, " because of End"},
    {Leaving::NotSatisfied, " because condition not satisfied"},
    {Leaving::Asking, " because asking for input"},
};

struct CycleRow {
    CycleStep step;
    std::string_view text;
};

constexpr CycleRow kCycle[] = {
    {CycleStep::BeginDescribed, "Drop into Proc1 after setting variables"},
    {CycleStep::RunDescribed, "Process 1 from Proc1 label"},
    {CycleStep::CountAutoFlags, "Autodec any flags (if necessary) to "},
    {CycleStep::BeginResponses, "Drop into Proc0 after setting variables"},
    {CycleStep::RunResponses, "Process 0 from Proc0 label"},
    {CycleStep::SearchExits, "Searching Connections table"},
    {CycleStep::TakeExit, "connections goto "},
    {CycleStep::Answered, "Did an action. Back to Proc1"},
};

/// Pieces of a line, put together.
template <typename... Pieces>
std::string Line(const Pieces&... pieces) {
    std::string line;
    const auto add = [&line](const auto& piece) {
        if constexpr (std::is_same_v<std::decay_t<decltype(piece)>, int>)
            line += std::to_string(piece);
        else
            line += piece;
    };
    (add(pieces), ...);
    return line;
}

Lines Tell(const LineEntered& event) {
    return {Line(event.isAnswer ? "Executing AskForInput Command: " : "Executing Command: ", event.line)};
}

Lines Tell(const TimeRanOut&) {
    return {"Timer TimeOut"};
}

Lines Tell(const PhraseBegun& event) {
    return {Line("Command: ", event.text)};
}

Lines Tell(const SentenceRead& event) {
    Lines lines = {Line(event.isSpoken ? "Processing parse sentence" : "Processing sentence",
                        " (abverb verb adjective noun prep ", event.words, ")")};
    if (event.isSpoken) lines.emplace_back("Continuing:");
    return lines;
}

Lines Tell(const TableBegun& event) {
    return {Line("Process ", event.process.value, " stack ", event.depth, " - Flag(33):", event.verb,
                 ") Flag(34):", event.noun, ") StartX: ", event.entry, " StartY: ", event.cell,
                 " End of Table: ", event.lastEntry)};
}

Lines Tell(const TableEnded&) {
    return {"Normal end of process table"};
}

Lines Tell(const EntryMatched& event) {
    if (event.by == EntryMatched::By::Called) {
        return {
            "Matched using intParentProcNum > 0 (All words match in processes > 0 or called from Processes "
            "> 0)"};
    }
    std::string_view how;
    for (const HowRow& row : kHow) {
        if (row.by == event.by) how = event.isMarlo ? row.ofMarlo : row.text;
    }
    return {Line("word1=", event.verb.value, ", word2=", event.noun.value, ",verb=", event.saidVerb.value,
                 ", noun=", event.saidNoun.value, ". Matched using ", how)};
}

Lines Tell(const CondActBegun& event) {
    std::string line(event.name);
    const char* between = event.isAction ? " " : ",";
    for (int i = 0; i < event.paramCount; ++i) {
        if (i > 0 || event.isAction) line += between;
        line += std::to_string(event.params[static_cast<std::size_t>(i)]);
    }
    if (!event.flagText.empty()) line += Line(event.flagText, event.flagValue);
    line += event.isAction ? " " : ")";
    return {line};
}

std::string_view TextOf(Leaving why) {
    for (const LeavingRow& row : kLeaving) {
        if (row.why == why) return row.text;
    }
    return {};
}

Lines Tell(const EntryLeft& event) {
    // Behind a condition "exiting" is written small.
    if (event.why == Leaving::DoneAfterCondition) return {"exiting record because Done"};
    return {Line("Exiting record", TextOf(event.why))};
}

Lines Tell(const TableLeft& event) {
    return {Line("Exiting process", TextOf(event.why))};
}

Lines Tell(const CallsForgotten& event) {
    return {Line("stack cleared because of ", event.action)};
}

Lines Tell(const CarriedChanged& event) {
    return {Line(event.object.value, event.isAdded ? " added to" : " removed from", " carried. Value now ",
                 event.carried)};
}

Lines Tell(const CycleEntered& event) {
    Lines lines = {
        Line("Executing MarloProcessLoop ", event.process.value, " ", event.entry, " ", event.cell)};
    if (!event.isAnswer) return lines;
    lines.push_back(event.process.value <= 1
                        ? Line("Back to Process ", event.process.value, " after ending procedure")
                        : Line("Trying to skip to ", event.process.value, " in a Marlo game"));
    return lines;
}

Lines Tell(const CallTakenUp& event) {
    return {Line("Process ", event.process.value, " from call stack after ",
                 event.isBehindResponses ? "Proc0" : "Proc1")};
}

Lines Tell(const TurnCounted& event) {
    return {Line("Incrementing turn to ", event.turn), Line("Current location is ", event.location.value)};
}

Lines Tell(CycleStep step) {
    for (const CycleRow& row : kCycle) {
        if (row.step == step) return {std::string(row.text)};
    }
    return {};
}

}  // namespace

std::vector<std::string> LinesOf(const TraceEvent& event) {
    return std::visit([](const auto& step) { return Tell(step); }, event);
}

}  // namespace fabula::engine
