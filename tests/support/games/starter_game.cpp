#include "support/games/starter_game.h"

#include <algorithm>
#include <stdexcept>

#include "condacts/language/convert.h"
#include "condacts/language/load.h"
#include "interchange/starter.h"
#include "support/games/template_adventure.h"
#include "support/places.h"
#include "text/fields.h"

namespace fabula::test {
namespace {

using store::AdventureKind;
using store::Cursor;
using store::TableNum;

struct KindFacts {
    std::size_t letters;
    const char* starter;
};

KindFacts FactsOf(AdventureKind kind) {
    if (kind == AdventureKind::Marlo) return {4, "marlo.ini"};
    if (kind == AdventureKind::Vel) return {5, "vel.ini"};
    return {30, "fabula.ini"};
}

store::AdventureSetup SetupFor(AdventureKind kind, bool characterSets) {
    store::AdventureSetup setup;
    setup.ChooseCharSets(characterSets);
    setup.ChooseType(kind);
    return setup;
}

std::int64_t FirstFree(store::Adventure& adventure, TableNum table, const std::string& key) {
    const Cursor& last = adventure.OpenTable(table, key, std::nullopt, key + " desc");
    return last.Eof() ? 0 : last.Number(key) + 1;
}

std::int64_t TokensIn(std::string_view line) {
    return line.empty() ? 0 : std::count(line.begin(), line.end(), ' ') + 1;
}

}  // namespace

StarterGame::StarterGame(const std::filesystem::path& file, AdventureKind kind, bool characterSets)
    : letters_(FactsOf(kind).letters) {
    MakeAdventure(file, SetupFor(kind, characterSets));
    adventure_ = store::Adventure::Open(file);
    interchange::AddStarter(*adventure_, SourceFolder() / "data" / "starters" / FactsOf(kind).starter);
    catalogue_ = condacts::LoadCatalogue(*adventure_);
    nextWord_ = FirstFree(*adventure_, TableNum::Vocabulary, "vocindex");
    nextEntry_ = FirstFree(*adventure_, TableNum::ProcessTables, "canum");
    transaction_ = std::make_unique<store::Transaction>(*adventure_);
}

StarterGame::~StarterGame() = default;

std::string StarterGame::Cut(std::string_view word) const {
    return std::string(word.substr(0, letters_));
}

void StarterGame::Word(std::string_view word, int number, condacts::WordType type) {
    Cursor& row = adventure_->OpenTable(TableNum::Vocabulary, "def", "vocindex<0");
    row.AddNew();
    row.SetField("vocindex", nextWord_++);
    row.SetField("vocnum", std::int64_t{number});
    row.SetField("Word", Cut(word));
    row.SetField("voctypen", std::int64_t{type});
    row.SetField("voctype", std::string(condacts::WordTypeName(type)));
    row.Update();
    wordsChanged_ = true;
}

/// Of a word of the game: a verb or a noun that stands in for one, or a noun.
int StarterGame::NumberOf(std::string_view word, bool verb) {
    if (wordsChanged_) words_ = condacts::LoadWords(*adventure_);
    wordsChanged_ = false;
    const std::string cut = Cut(word);
    const condacts::Word* found =
        words_.Find(cut, verb ? condacts::IsMovementWordOrReserved : condacts::IsNounOrReserved);
    if (!found) throw std::logic_error("the game has no word " + cut + " of the type that is asked");
    return found->number.value;
}

void StarterGame::Location(int number, std::string_view text, std::string_view shortText,
                           std::string_view exits) {
    std::string numbers;
    const std::vector<std::string_view> tokens = text::Split(exits, " ");
    for (std::size_t i = 0; i + 1 < tokens.size(); i += 2) {
        if (i > 0) numbers += ' ';
        numbers += std::to_string(NumberOf(tokens[i], true)) + " " + std::string(tokens[i + 1]);
    }
    Cursor& row = adventure_->OpenTable(TableNum::Locations, "def", "locnum=" + std::to_string(number));
    if (row.Eof()) row.AddNew();
    row.SetField("locnum", std::int64_t{number});
    row.SetField("numexits", TokensIn(numbers));
    row.SetField("exits", std::string(exits));
    row.SetField("numericexits", numbers);
    row.SetField("pickey", "");
    row.SetField("picloc", "");
    row.SetField("locshortdesc", std::string(shortText));
    row.SetField("locdesc", std::string(text));
    row.Update();
}

void StarterGame::Object(int number, std::string_view text, int place, std::string_view name,
                         const Thing& thing) {
    const std::size_t blank = name.find(' ');
    const std::string_view noun = blank == std::string_view::npos ? name : name.substr(blank + 1);
    const std::string_view adjective = blank == std::string_view::npos ? "_" : name.substr(0, blank);
    const int nounNumber = NumberOf(noun, false);
    const condacts::Word* found = words_.FindTyped(Cut(adjective), condacts::kAdjective);
    if (!found) throw std::logic_error("the game has no adjective " + std::string(adjective));
    Cursor& row = adventure_->OpenTable(TableNum::Objects, "def", "objnum=" + std::to_string(number));
    if (row.Eof()) row.AddNew();
    row.SetField("objnum", std::int64_t{number});
    row.SetField("objdesc", std::string(text));
    row.SetField("objnoun", Cut(noun));
    row.SetField("objnumnoun", std::int64_t{nounNumber});
    row.SetField("objadject", Cut(adjective));
    row.SetField("objnumadject", std::int64_t{found->number.value});
    row.SetField("objloc", std::int64_t{place});
    row.SetField("objweight", std::int64_t{thing.weight});
    row.SetField("objattrn", std::int64_t{(thing.container ? 1 : 0) + (thing.wearable ? 2 : 0)});
    row.Update();
}

void StarterGame::SetText(TableNum table, std::string_view key, std::string_view field, int number,
                          std::string_view text) {
    Cursor& row = adventure_->OpenTable(table, "def", std::string(key) + "=" + std::to_string(number));
    if (row.Eof()) row.AddNew();
    row.SetField(key, std::int64_t{number});
    row.SetField(field, std::string(text));
    row.Update();
}

void StarterGame::Message(int number, std::string_view text) {
    SetText(TableNum::Messages, "msgnum", "msgmsg", number, text);
}

void StarterGame::SystemMessage(int number, std::string_view text) {
    SetText(TableNum::SystemMessages, "smsgnum", "smsgmsg", number, text);
}

void StarterGame::Entry(int process, std::string_view verb, std::string_view noun,
                        std::string_view condacts) {
    const int verbNumber = NumberOf(verb, true);
    const int nounNumber = NumberOf(noun, false);
    const std::string line = condacts::LocationWordsToNumbers(condacts, catalogue_);
    const condacts::Converted numeric = condacts::CondActsToNumeric(line, catalogue_, words_);
    if (!numeric.ok) throw std::logic_error(std::string(condacts) + ": " + numeric.errors);
    Cursor& row = adventure_->OpenTable(TableNum::ProcessTables, "def", "canum<0");
    row.AddNew();
    row.SetField("canum", nextEntry_++);
    row.SetField("estype", std::int64_t{process});
    row.SetField("w1", Cut(verb));
    row.SetField("w2", Cut(noun));
    row.SetField("w1num", std::int64_t{verbNumber});
    row.SetField("w2num", std::int64_t{nounNumber});
    row.SetField("numcas", TokensIn(line));
    row.SetField("CondActs", line);
    row.SetField("numericcondacts", numeric.line);
    row.Update();
    Cursor& table = adventure_->OpenTable(TableNum::ProcDesc, "def", "pmsgnum=" + std::to_string(process));
    if (!table.Eof()) return;
    table.AddNew();
    table.SetField("pmsgnum", std::int64_t{process});
    table.SetField("pmsgmsg", " ");
    table.Update();
}

void StarterGame::Setting(std::string_view field, text::Value value) {
    Cursor& row = adventure_->OpenTable(TableNum::Adventure, "def");
    row.SetField(field, std::move(value));
    row.Update();
}

void StarterGame::Finish() {
    transaction_->Commit();
}

}  // namespace fabula::test
