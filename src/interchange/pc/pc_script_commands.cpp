#include "interchange/pc/pc_script_commands.h"

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

#include "condacts/language/convert.h"
#include "condacts/language/load.h"
#include "condacts/language/parser.h"
#include "condacts/limits.h"
#include "condacts/word_record.h"
#include "interchange/shared/given_records.h"
#include "interchange/shared/keyed_table.h"

namespace fabula::interchange {
namespace {

using condacts::Word;
using store::Cursor;
using store::TableNum;

struct NeededWord {
    const char* word;
    condacts::WordType type;
};

constexpr NeededWord kNeededWords[] = {
    {"TURN", condacts::kVerb},
    {"SCRIP", condacts::kNoun},
    {"ON", condacts::kPreposition},
    {"OFF", condacts::kPreposition},
};

/// The words of a vocabulary while some are added to it.
class ScriptVocabulary {
  public:
    explicit ScriptVocabulary(store::Adventure& adventure)
        : words_(condacts::LoadWords(adventure).All()), table_(adventure, TableNum::Vocabulary) {}

    void MakeSureOf(const NeededWord& needed) {
        std::vector<Word> sameSpelling;
        std::copy_if(words_.begin(), words_.end(), std::back_inserter(sameSpelling),
                     [&](const Word& word) { return word.word == needed.word; });
        if (std::any_of(sameSpelling.begin(), sameSpelling.end(),
                        [&](const Word& word) { return word.type == needed.type; })) {
            return;
        }
        const std::optional<condacts::WordNumber> number = FreeNumber(needed.type);
        const Word word{needed.word, number.value_or(condacts::WordNumber(0)), needed.type};
        if (!number || condacts::Clashes(word, sameSpelling)) return;
        words_.push_back(word);
        condacts::SetWord(table_.Add(table_.HighestKey() + 1), word);
        table_.Update();
    }

  private:
    std::optional<condacts::WordNumber> FreeNumber(condacts::WordType type) const {
        for (int i = condacts::kFirstPlainNoun.value; i <= condacts::limit::kHighestWord; ++i) {
            const condacts::WordNumber number(i);
            const bool taken = std::any_of(words_.begin(), words_.end(), [&](const Word& word) {
                return word.type == type && word.number == number;
            });
            if (!taken) return number;
        }
        return std::nullopt;
    }

    std::vector<Word> words_;
    KeyedTable table_;
};

void AddEntry(PcSourceJob& job, const GivenEntry& command, const condacts::WordIndex& words) {
    const Word* verb =
        words.Find(command.w1, [](const Word& word) { return word.type == condacts::kVerb; });
    const Word* noun =
        words.Find(command.w2, [](const Word& word) { return word.type == condacts::kNoun; });
    const condacts::Converted numeric = condacts::CondActsToNumeric(command.condActs, job.catalogue, words);
    if (verb == nullptr || noun == nullptr || !numeric.ok) return;
    KeyedTable entries(job.context.adventure, TableNum::ProcessTables);
    Cursor& record = entries.Add(entries.HighestKey() + 1);
    record.SetField("estype", std::int64_t{0});
    record.SetField("w1", verb->word);
    record.SetField("w2", noun->word);
    record.SetField("w1num", std::int64_t{verb->number.value});
    record.SetField("w2num", std::int64_t{noun->number.value});
    record.SetField("numcas", std::int64_t{condacts::CountTokens(command.condActs)});
    record.SetField("condacts", std::string(command.condActs));
    record.SetField("numericcondacts", numeric.line);
    entries.Update();
}

}  // namespace

void AddScriptCommands(PcSourceJob& job) {
    store::Adventure& adventure = job.context.adventure;
    {
        ScriptVocabulary vocabulary(adventure);
        for (const NeededWord& needed : kNeededWords)
            vocabulary.MakeSureOf(needed);
    }
    const condacts::WordIndex words = condacts::LoadWords(adventure);
    for (const GivenEntry& command : kScriptEntries) {
        if (!HasEntry(adventure, command)) AddEntry(job, command, words);
    }
}

}  // namespace fabula::interchange
