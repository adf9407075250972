#include "interchange/unmarlo/word_numbers.h"

#include "condacts/language/load.h"
#include "condacts/language/parser.h"
#include "condacts/limits.h"
#include "interchange/listing/command_entries.h"
#include "interchange/shared/source_file.h"
#include "text/str_edit.h"

namespace fabula::interchange {
namespace {

using condacts::WordIndex;
using store::Cursor;
using store::TableNum;

std::optional<condacts::WordNumber> NumberOf(const WordIndex& words, std::string_view word) {
    const condacts::Word* found = words.Find(word);
    return found == nullptr ? std::nullopt : std::optional(found->number);
}

void TellCount(const ListingJob& job, int count, const char* what) {
    job.Status("Added " + std::to_string(count) + " " + what);
}

/// An exit by a word that is none, or to a place that is no number, is left out.
void NumberExits(ListingJob& job, const WordIndex& words) {
    int count = 0;
    Cursor& locations = job.Adventure().OpenTable(TableNum::Locations, "def", "exits<>''", "locnum");
    for (; !locations.Eof(); locations.MoveNext()) {
        const std::string listed = text::StrEdit(locations.Text("exits"), "compress,trim");
        const auto tokens = SplitWords(listed);
        std::string exits;
        std::string numeric;
        for (std::size_t i = 0; i + 1 < tokens.size(); i += 2) {
            const auto number = NumberOf(words, tokens[i]);
            if (!number || !ListedNumber(tokens[i + 1], condacts::limit::kHighestRecord)) {
                job.context.status.AddLoss("Location " + std::to_string(locations.Number("locnum")) +
                                           ": the exit " + std::string(tokens[i]) + " leads nowhere.");
                continue;
            }
            const std::string separator = exits.empty() ? "" : " ";
            exits += separator + std::string(tokens[i]) + " " + std::string(tokens[i + 1]);
            numeric += separator + std::to_string(number->value) + " " + std::string(tokens[i + 1]);
            ++count;
        }
        locations.SetField("exits", exits);
        locations.SetField("numericexits", numeric);
        locations.SetField("numexits", std::int64_t{condacts::CountTokens(exits)});
        locations.Update();
    }
    TellCount(job, count, "Directions Words numbers from Vocabulary");
}

void NumberObjects(ListingJob& job, const WordIndex& words) {
    int count = 0;
    Cursor& objects = job.Adventure().OpenTable(TableNum::Objects, "def", std::nullopt, "objnum");
    for (; !objects.Eof(); objects.MoveNext()) {
        if (objects.Text("objnoun") == condacts::kNoWord) continue;
        const auto number = NumberOf(words, objects.Text("objnoun"));
        objects.SetField("objnumnoun", std::int64_t{number.value_or(condacts::kNoWordNumber).value});
        if (!number) objects.SetField("objnoun", std::string(condacts::kNoWord));
        objects.Update();
        if (number) ++count;
    }
    TellCount(job, count, "Object Word numbers from Vocabulary");
}

void NumberEntries(ListingJob& job, const WordIndex& words) {
    int count = 0;
    Cursor& entries = job.Adventure().OpenTable(TableNum::ProcessTables, "def", std::nullopt, "canum");
    const std::size_t w1 = entries.Column("w1");
    const std::size_t w2 = entries.Column("w2");
    for (; !entries.Eof(); entries.MoveNext()) {
        const auto first = NumberOf(words, entries.Text(w1));
        const auto second = NumberOf(words, entries.Text(w2));
        entries.SetField("w1num", std::int64_t{first.value_or(condacts::kNoWordNumber).value});
        entries.SetField("w2num", std::int64_t{second.value_or(condacts::kNoWordNumber).value});
        entries.Update();
        count += (first ? 1 : 0) + (second ? 1 : 0);
    }
    TellCount(job, count, "Process record word numbers from Vocabulary");
}

}  // namespace

void LoadWordNums(ListingJob& job, const DefaultWords& defaults, bool graphics) {
    {
        GameWords words(job.Adventure());
        defaults.AddTo(words);
    }
    const WordIndex words = condacts::LoadWords(job.Adventure());
    NumberExits(job, words);
    NumberObjects(job, words);
    NumberEntries(job, words);
    AddMarloCommands(job, graphics);
}

}  // namespace fabula::interchange
