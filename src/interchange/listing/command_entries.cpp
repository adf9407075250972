#include "interchange/listing/command_entries.h"

#include <string>

#include "condacts/language/convert.h"
#include "condacts/language/load.h"
#include "condacts/language/parser.h"
#include "condacts/words.h"
#include "interchange/listing/game_words.h"
#include "interchange/listing/listed_entries.h"
#include "interchange/shared/given_records.h"

namespace fabula::interchange {
namespace {

using condacts::WordIndex;
using store::Cursor;
using store::TableNum;

constexpr GivenEntry kMarloScript[] = {
    {"SCRI", "OFF", "SCRIPT 0"},
    {"SCRI", "ON", "SCRIPT 1"},
    {"LOAD", "SCRI", "SCRIPT 2"},
};
constexpr GivenEntry kMarloGraphics[] = {
    {"GRAP", "OFF", "LET 28 19 PAUSE 255 DESC"},
    {"GRAP", "ON", "LET 28 19 PAUSE 1 DESC"},
    {"GRAP", "NORM", "LET 28 19 PAUSE 0 DESC"},
};

/// Entries of TURN GRAPH that hold the text, and what they become.
struct Rewriting {
    const char* holds;
    const char* condActs;
};
constexpr Rewriting kVelGraphics[] = {
    {"PREP ON", "PREP ON GRAPHIC 1 DESC"},
    {"PREP OFF", "PREP OFF GRAPHIC 2 OK"},
    {"PREP NORMA", "PREP NORMA GRAPHIC 0 OK"},
};

constexpr const char* kRedescribeAdvice =
    "Check the R (REDE) command to be sure it does a SET 29 before the DESC so the Room Graphic will show "
    "on a REDESCRIBE.";

/// A word of an entry is looked up as a verb or noun, verbs first.
condacts::WordNumber EntryWordNumber(const WordIndex& words, const char* word) {
    for (const condacts::WordType type : {condacts::kVerb, condacts::kNoun}) {
        const condacts::Word* found = words.FindTyped(word, type);
        if (found != nullptr) return found->number;
    }
    return condacts::kNoWordNumber;
}

template <std::size_t count>
void AddEntries(ListingJob& job, const GivenEntry (&commands)[count]) {
    const WordIndex words = condacts::LoadWords(job.Adventure());
    for (const GivenEntry& command : commands) {
        if (HasEntry(job.Adventure(), command)) continue;
        ListedEntries(job.Adventure())
            .Add({condacts::kResponses, command.w1, command.w2, EntryWordNumber(words, command.w1),
                  EntryWordNumber(words, command.w2), command.condActs},
                 job.catalogue, words);
    }
}

void RewriteGraphicsEntries(ListingJob& job) {
    const WordIndex words = condacts::LoadWords(job.Adventure());
    Cursor& entries =
        job.Adventure().OpenTable(TableNum::ProcessTables, "def", "w1='TURN' and w2='GRAPH'", "canum");
    for (; !entries.Eof(); entries.MoveNext()) {
        for (const Rewriting& rewriting : kVelGraphics) {
            if (entries.Text("condacts").find(rewriting.holds) == std::string_view::npos) continue;
            const std::string line = rewriting.condActs;
            entries.SetField("condacts", line);
            entries.SetField("numericcondacts",
                             condacts::CondActsToNumeric(line, job.catalogue, words).line);
            entries.SetField("numcas", std::int64_t{condacts::CountTokens(line)});
            entries.Update();
            break;
        }
    }
}

void TellCommands(const ListingJob& job, bool graphics) {
    job.Status(std::string("Commands have been added in the Status Table to control SCRIPT (SCRI)") +
               (graphics ? " and GRAPHICS (GRAP)" : "") + ".");
    if (graphics) job.Status(kRedescribeAdvice);
}

}  // namespace

void AddMarloCommands(ListingJob& job, bool graphics) {
    {
        GameWords words(job.Adventure());
        for (const char* word : {"TURN", "GRAP", "ON", "OFF", "NORM", "SCRIP"})
            words.MakeSureOf(word, condacts::kNoun, {condacts::kVerb});
        // What a player types is cut to four letters, so that SCRIP alone would never be understood.
        if (!words.Has("SCRI", condacts::kNoun))
            words.Add({"SCRI", words.NumberOf("SCRIP", condacts::kNoun).value_or(condacts::kNoWordNumber),
                       condacts::kNoun});
        if (!words.Has("LOAD", condacts::kVerb))
            words.MakeSureOf("LOAD", condacts::kNoun, {condacts::kVerb});
    }
    AddEntries(job, kMarloScript);
    if (graphics) AddEntries(job, kMarloGraphics);
    TellCommands(job, graphics);
}

void AddVelCommands(ListingJob& job) {
    {
        GameWords words(job.Adventure());
        words.MakeSureOf("TURN", condacts::kVerb);
        words.MakeSureOf("GRAPH", condacts::kNoun);
        for (const char* word : {"ON", "OFF", "NORMA"})
            words.MakeSureOf(word, condacts::kPreposition);
        words.MakeSureOf("SCRIP", condacts::kNoun);
        words.MakeSureOf("LOAD", condacts::kVerb);
    }
    AddEntries(job, kScriptEntries);
    RewriteGraphicsEntries(job);
    TellCommands(job, true);
}

}  // namespace fabula::interchange
