#include "support/games/game_builder.h"

#include <algorithm>
#include <map>
#include <stdexcept>
#include <tuple>

#include "condacts/language/convert.h"
#include "condacts/language/load.h"
#include "engine/game.h"
#include "support/games/template_adventure.h"

namespace fabula::test {

using store::Cursor;
using store::TableNum;

namespace {

constexpr int kSystemMessages = 54;

std::string QuietMessage(int number) {
    switch (number) {
        case 2:
        case 3:
        case 4:
        case 5:
            return "?";
        case 30:
            return "Y";
        case 31:
            return "N";
        case 33:
            return ">";
        case 34:
            return "_";
        default:
            return "(" + std::to_string(number) + ")";
    }
}

/// Takes the texts of the default data out of a file, and puts the quiet system messages in.
void MakeQuiet(const std::filesystem::path& file) {
    const auto adventure = store::Adventure::Open(file);
    store::Transaction transaction(*adventure);
    for (const TableNum table : {TableNum::Locations, TableNum::Messages, TableNum::Objects,
                                 TableNum::ProcessTables, TableNum::SystemMessages}) {
        adventure->DeleteFrom(table);
    }
    adventure->DeleteFrom(TableNum::Vocabulary, "voctypen<7");
    Cursor& messages = adventure->OpenTable(TableNum::SystemMessages, "def");
    for (int number = 0; number < kSystemMessages; ++number) {
        messages.AddNew();
        messages.SetField("smsgnum", std::int64_t{number});
        messages.SetField("smsgmsg", QuietMessage(number));
        messages.Update();
    }
    Cursor& settings = adventure->OpenTable(TableNum::Adventure, "def");
    settings.SetField("advname", std::string("Test"));
    settings.SetField("savename", std::string("test"));
    settings.SetField("maxobj", std::int64_t{10});
    settings.SetField("maxweight", std::int64_t{100});
    settings.Update();
    transaction.Commit();
}

std::string WithoutPrompt(std::string text) {
    constexpr std::string_view kPrompt = "?\n";
    if (text.ends_with(kPrompt)) text.resize(text.size() - kPrompt.size());
    return text;
}

}  // namespace

int QueuedRandom::UpTo(int n) {
    if (numbers.empty()) return std::min(n, 50);
    const int number = numbers.front();
    numbers.pop_front();
    return number;
}

bool RecordingTrace::Has(std::string_view line) const {
    return std::find(lines.begin(), lines.end(), line) != lines.end();
}

GameRun::GameRun(std::unique_ptr<TempFolder> folder, const engine::Options& options, bool traced)
    : folder_(std::move(folder)),
      adventure_(store::Adventure::Open(*folder_ / "game.fbd", store::OpenMode::ReadOnly)),
      engine(*adventure_, {window, person, random, sound, traced ? &trace : nullptr, window.Parts()},
             options) {}

std::string GameRun::Type(std::string_view line) {
    engine.EnterLine(line);
    GiveFiles();
    return Said();
}

void GameRun::GiveFiles() {
    while (Waits() == engine::Waiting::File)
        engine.GiveFile(window.FileFor(engine.FileAsked()));
}

std::string GameRun::Said() {
    return WithoutPrompt(window.TakeText());
}

std::string GameRun::Box() const {
    return person.Boxes().empty() ? "" : person.Boxes().back().text;
}

int GameRun::Flag(int flag) {
    return engine.Running()->Flag(engine::FlagNumber(flag));
}

void GameRun::SetFlag(int flag, int value) {
    engine.Running()->SetFlag(engine::FlagNumber(flag), value);
}

int GameRun::PlaceOf(int object) {
    return engine.Running()->state.ObjectPlace(engine::ObjectNumber(object)).value;
}

void GameRun::Place(int object, int place) {
    engine.Running()->state.SetObjectPlace(engine::ObjectNumber(object), engine::PlaceNumber(place));
}

bool GameRun::Visited(int location) {
    return engine.Running()->state.Visited(engine::PlaceNumber(location)) != 0;
}

GameBuilder& GameBuilder::CharacterSets() {
    characterSets_ = true;
    return *this;
}

GameBuilder& GameBuilder::Graphics() {
    graphics_ = true;
    return *this;
}

GameBuilder::LocationSpec& GameBuilder::LocationOf(int number) {
    for (auto& [known, location] : locations_) {
        if (known == number) return location;
    }
    locations_.push_back({number, {}});
    return locations_.back().second;
}

GameBuilder& GameBuilder::Location(int number, std::string text, std::string shortText) {
    LocationSpec& location = LocationOf(number);
    location.text = std::move(text);
    location.shortText = std::move(shortText);
    return *this;
}

GameBuilder& GameBuilder::Exit(int from, int verb, int to) {
    std::string& exits = LocationOf(from).exits;
    if (!exits.empty()) exits += ' ';
    exits += std::to_string(verb) + " " + std::to_string(to);
    return *this;
}

GameBuilder& GameBuilder::PictureOf(int location, std::string path) {
    LocationOf(location).picture = std::move(path);
    return *this;
}

GameBuilder& GameBuilder::Object(int number, ObjectSpec object) {
    objects_.emplace_back(number, std::move(object));
    return *this;
}

GameBuilder& GameBuilder::Message(int number, std::string text) {
    messages_.emplace_back(number, std::move(text));
    return *this;
}

GameBuilder& GameBuilder::SystemMessage(int number, std::string text) {
    systemMessages_.emplace_back(number, std::move(text));
    return *this;
}

GameBuilder& GameBuilder::Word(std::string word, int number, int type) {
    words_.push_back({std::move(word), number, type});
    return *this;
}

GameBuilder& GameBuilder::Setting(std::string field, int value) {
    numberSettings_.emplace_back(std::move(field), value);
    return *this;
}

GameBuilder& GameBuilder::SettingText(std::string field, std::string value) {
    textSettings_.emplace_back(std::move(field), std::move(value));
    return *this;
}

GameBuilder& GameBuilder::Entry(int process, std::string verb, std::string noun, std::string condacts) {
    entries_.push_back({process, std::move(verb), std::move(noun), std::move(condacts), false});
    return *this;
}

GameBuilder& GameBuilder::Numbers(int process, int verb, int noun, std::string numbers) {
    entries_.push_back({process, std::to_string(verb), std::to_string(noun), std::move(numbers), true});
    return *this;
}

GameBuilder& GameBuilder::CondactLimit(std::int64_t limit) {
    options_.condactLimit = limit;
    return *this;
}

GameBuilder& GameBuilder::Slice(std::int64_t condacts) {
    options_.slice = condacts;
    return *this;
}

GameBuilder& GameBuilder::Traced() {
    traced_ = true;
    options_.traceFile = true;
    return *this;
}

GameBuilder& GameBuilder::FlagCount(int count) {
    flagCount_ = count;
    return *this;
}

/// The quiet files made so far, one for each kind and setting; they live as long as the test program.
const std::filesystem::path& GameBuilder::Template() const {
    static const TempFolder folder;
    static std::map<std::tuple<store::AdventureKind, bool, bool>, std::filesystem::path> files;
    std::filesystem::path& file = files[{kind_, graphics_, characterSets_}];
    if (!file.empty()) return file;
    store::AdventureSetup setup;
    setup.ChooseType(kind_);
    setup.ChooseGraphics(graphics_);
    setup.ChooseCharSets(characterSets_);
    const std::filesystem::path path = folder.Path() / (std::to_string(files.size()) + ".fbd");
    MakeAdventure(path, setup);
    MakeQuiet(path);
    file = path;
    return file;
}

int GameBuilder::NumberOf(const std::string& word, std::initializer_list<int> types) const {
    if (word == "_") return 255;
    if (word == "*") return 1;
    for (const WordSpec& known : words_) {
        if (known.word == word && std::find(types.begin(), types.end(), known.type) != types.end())
            return known.number;
    }
    throw std::logic_error("the game has no word " + word + " of the type that is asked");
}

void GameBuilder::WriteLocations(store::Adventure& adventure) const {
    Cursor& row = adventure.OpenTable(TableNum::Locations, "def");
    for (const auto& [number, location] : locations_) {
        const auto tokens = std::count(location.exits.begin(), location.exits.end(), ' ');
        row.AddNew();
        row.SetField("locnum", std::int64_t{number});
        row.SetField("numexits", std::int64_t{location.exits.empty() ? 0 : tokens + 1});
        row.SetField("numericexits", location.exits);
        row.SetField("pickey", location.picture.empty() ? "" : "Room" + std::to_string(number));
        row.SetField("picloc", location.picture);
        row.SetField("locshortdesc", location.shortText);
        row.SetField("locdesc", location.text);
        row.Update();
    }
}

void GameBuilder::WriteObjects(store::Adventure& adventure) const {
    Cursor& row = adventure.OpenTable(TableNum::Objects, "def");
    for (const auto& [number, object] : objects_) {
        row.AddNew();
        row.SetField("objnum", std::int64_t{number});
        row.SetField("objdesc", object.description);
        row.SetField("objnoun", object.noun);
        row.SetField("objnumnoun", std::int64_t{NumberOf(object.noun, {2})});
        row.SetField("objadject", object.adjective);
        row.SetField("objnumadject", std::int64_t{NumberOf(object.adjective, {3})});
        row.SetField("objloc", std::int64_t{object.place});
        row.SetField("objweight", std::int64_t{object.weight});
        row.SetField("objattrn", std::int64_t{(object.container ? 1 : 0) + (object.wearable ? 2 : 0)});
        row.Update();
    }
}

void GameBuilder::WriteTexts(store::Adventure& adventure) const {
    Cursor& messages = adventure.OpenTable(TableNum::Messages, "def");
    for (const auto& [number, text] : messages_) {
        messages.AddNew();
        messages.SetField("msgnum", std::int64_t{number});
        messages.SetField("msgmsg", text);
        messages.Update();
    }
    for (const auto& [number, text] : systemMessages_) {
        Cursor& row =
            adventure.OpenTable(TableNum::SystemMessages, "def", "smsgnum=" + std::to_string(number));
        if (row.Eof()) row.AddNew();
        row.SetField("smsgnum", std::int64_t{number});
        row.SetField("smsgmsg", text);
        row.Update();
    }
}

void GameBuilder::WriteWords(store::Adventure& adventure) const {
    Cursor& row = adventure.OpenTable(TableNum::Vocabulary, "def");
    std::int64_t index = 1000;
    for (const WordSpec& word : words_) {
        row.AddNew();
        row.SetField("vocindex", index++);
        row.SetField("vocnum", std::int64_t{word.number});
        row.SetField("Word", word.word);
        row.SetField("voctypen", std::int64_t{word.type});
        row.SetField("voctype", std::string(condacts::WordTypeName(word.type)));
        row.Update();
    }
}

void GameBuilder::WriteEntries(store::Adventure& adventure) const {
    const condacts::Catalogue catalogue = condacts::LoadCatalogue(adventure);
    const condacts::WordIndex words = condacts::LoadWords(adventure);
    Cursor& row = adventure.OpenTable(TableNum::ProcessTables, "def");
    std::int64_t key = 0;
    for (const EntrySpec& entry : entries_) {
        std::string numbers = entry.condacts;
        if (!entry.numeric) {
            const condacts::Converted converted = condacts::CondActsToNumeric(
                condacts::LocationWordsToNumbers(entry.condacts, catalogue), catalogue, words);
            if (!converted.ok) throw std::logic_error(entry.condacts + ": " + converted.errors);
            numbers = converted.line;
        }
        const auto tokens = numbers.empty() ? 0 : std::count(numbers.begin(), numbers.end(), ' ') + 1;
        row.AddNew();
        row.SetField("canum", key++);
        row.SetField("estype", std::int64_t{entry.process});
        row.SetField("w1num",
                     std::int64_t{entry.numeric ? std::stoi(entry.verb) : NumberOf(entry.verb, {0, 2})});
        row.SetField("w2num",
                     std::int64_t{entry.numeric ? std::stoi(entry.noun) : NumberOf(entry.noun, {2})});
        row.SetField("numcas", std::int64_t{tokens});
        row.SetField("numericcondacts", numbers);
        row.Update();
    }
}

void GameBuilder::WriteSettings(store::Adventure& adventure) const {
    if (numberSettings_.empty() && textSettings_.empty()) return;
    Cursor& row = adventure.OpenTable(TableNum::Adventure, "def");
    for (const auto& [field, value] : numberSettings_)
        row.SetField(field, std::int64_t{value});
    for (const auto& [field, value] : textSettings_)
        row.SetField(field, value);
    row.Update();
}

void GameBuilder::Write(const std::filesystem::path& file) const {
    std::filesystem::copy_file(Template(), file, std::filesystem::copy_options::overwrite_existing);
    const auto adventure = store::Adventure::Open(file);
    store::Transaction transaction(*adventure);
    WriteLocations(*adventure);
    WriteObjects(*adventure);
    WriteTexts(*adventure);
    WriteWords(*adventure);
    WriteEntries(*adventure);
    WriteSettings(*adventure);
    if (flagCount_ >= 0) adventure->DeleteFrom(TableNum::Flags, "flgnum>=" + std::to_string(flagCount_));
    transaction.Commit();
}

std::unique_ptr<GameRun> GameBuilder::Open() const {
    auto folder = std::make_unique<TempFolder>();
    Write(*folder / "game.fbd");
    return std::make_unique<GameRun>(std::move(folder), options_, traced_);
}

std::unique_ptr<GameRun> GameBuilder::Start() const {
    std::unique_ptr<GameRun> run = Open();
    run->engine.Initialize();
    run->GiveFiles();
    return run;
}

std::unique_ptr<GameRun> GameBuilder::Do(std::string condacts) {
    Entry(0, "DO", "_", std::move(condacts));
    std::unique_ptr<GameRun> run = Start();
    run->Said();
    run->engine.EnterLine("DO");
    run->GiveFiles();
    return run;
}

bool GameBuilder::Holds(const std::string& conditions) {
    constexpr int kMark = 200;
    return Do(conditions + " SET " + std::to_string(kMark))->Flag(kMark) == 255;
}

}  // namespace fabula::test
