#include "engine/game_data.h"

#include <algorithm>
#include <optional>

#include "condacts/language/convert.h"
#include "condacts/language/load.h"
#include "condacts/limits.h"
#include "condacts/word_filters.h"
#include "platform/error.h"
#include "text/encoding/utf8.h"
#include "text/numbers.h"
#include "text/str_edit.h"

namespace fabula::engine {

using store::PreparedQuery;
using store::TableNum;

namespace {

constexpr int kHighestCondAct = 999;

[[noreturn]] void Refuse(const std::string& what) {
    throw Error("The game can't be played: " + what + ".");
}

/// Where a number was read; put into words only for one that is refused.
struct Source {
    std::string_view kind;  ///< "object", "entry"; the name of a setting
    std::optional<std::int64_t> number = {};
    std::optional<std::size_t> process = {};  ///< of an entry
    std::string_view field = {};
};

/// "entry 12 of process 3, w1num"
std::string NameOf(const Source& source) {
    std::string name(source.kind);
    if (source.number) name += " " + std::to_string(*source.number);
    if (source.process) name += " of process " + std::to_string(*source.process);
    if (!source.field.empty()) name.append(", ").append(source.field);
    return name;
}

std::int16_t Number16(std::int64_t value, const Source& source) {
    if (!condacts::FitsNumber(value)) {
        Refuse(NameOf(source) + " is " + std::to_string(value) + ", which is out of range");
    }
    return static_cast<std::int16_t>(value);
}

/// A record's number, which sizes what is kept of the records.
std::size_t RecordNumber(std::int64_t value, const char* kind) {
    if (value < 0 || value > condacts::kHighestNumber)
        Refuse("there is " + std::string(kind) + " " + std::to_string(value));
    return static_cast<std::size_t>(value);
}

/// Appends the numbers of a text of blank-separated numbers, at most `most` of them. Returns how many.
std::uint32_t AppendNumbers(std::string_view text, std::int64_t most, std::vector<std::int16_t>& numbers,
                            const Source& source) {
    std::uint32_t count = 0;
    const auto isBlank = [](char c) { return static_cast<unsigned char>(c) <= ' '; };
    while (count < most) {
        text.remove_prefix(
            static_cast<std::size_t>(std::ranges::find_if_not(text, isBlank) - text.begin()));
        if (text.empty()) break;
        const auto value = text::TakeLongNumber(text);
        if (!value || (!text.empty() && !isBlank(text.front())))
            Refuse(NameOf(source) + " holds something that is no number");
        numbers.push_back(Number16(*value, source));
        ++count;
    }
    return count;
}

/// A text field without a value holds one blank.
std::string Filled(std::string_view text) {
    return std::string(text::TrimBlanks(text));
}

}  // namespace

GameData::GameData(store::Adventure& adventure)
    : TextSettings(ReadTextSettings(adventure)),
      type(adventure.Kind()),
      significantLetters(condacts::SignificantLetters(type)) {
    ReadSettings(adventure);
    ReadSoundSettings(adventure);
    ReadConjunctions(adventure);
    ReadCondActParams(adventure);
    ReadObjects(adventure);
    ReadLocations(adventure);
    ReadProcesses(adventure);
}

void GameData::ReadSettings(store::Adventure& adventure) {
    PreparedQuery row =
        adventure.Prepare(TableNum::Adventure,
                          "advname, Version, author, savename, startloc, maxobj, maxweight, defpickey, "
                          "defpicloc, graphics, sound",
                          "");
    if (!row.First({})) Refuse("it has no settings");
    title = std::string(row.Text(0)) + " (Version " + std::string(row.Text(1)) + ")";
    if (const std::string author = Filled(row.Text(2)); !author.empty()) title += " by " + author;
    saveName = text::CollapseBlanks(row.Text(3));  // a line of saved games
    startLocation = PlaceNumber(Number16(row.Number(4), {"startloc"}));
    maxObjects = Number16(row.Number(5), {"maxobj"});
    maxWeight = Number16(row.Number(6), {"maxweight"});
    CheckTextSettings();
    if (!Filled(row.Text(7)).empty()) defaultPicture = Filled(row.Text(8));
    graphics = row.Number(9) != 0;
    sound = row.Number(10) != 0;

    PreparedQuery flags = adventure.Prepare(TableNum::Flags, "flgnum", "");
    for (bool more = flags.First({}); more; more = flags.Next())
        ++flagCount;
    if (flagCount > condacts::kHighestNumber) Refuse("it has " + std::to_string(flagCount) + " flags");
}

void GameData::ReadSoundSettings(store::Adventure& adventure) {
    PreparedQuery row = adventure.Prepare(
        TableNum::Adventure,
        "defsndchan, defsnddev, defsndvoice, defsndvol, defsndbal, defsndbass, defsnddevname", "");
    row.First({});
    soundSettings = {
        .channel = Number16(row.Number(0), {"defsndchan"}),
        .device = Number16(row.Number(1), {"defsnddev"}),
        .deviceName = std::string(row.Text(6)),
        .voice = Number16(row.Number(2), {"defsndvoice"}),
        .volume = Number16(row.Number(3), {"defsndvol"}),
        .balance = Number16(row.Number(4), {"defsndbal"}),
        .bass = Number16(row.Number(5), {"defsndbass"}),
    };
}

void GameData::CheckTextSettings() const {
    Number16(font, {"Font"});
    Number16(fontSize, {"FontSize"});
    Number16(backColour, {"BackColor"});
    Number16(textColour, {"textcolor"});
    Number16(printWidth, {"defprintwidth"});
    for (const auto& [code, points] : fontSizes) {
        Number16(code, {"codenum"});
        Number16(points, {"FontSize of code", code});
    }
}

void GameData::ReadConjunctions(store::Adventure& adventure) {
    PreparedQuery row =
        adventure.Prepare(TableNum::Vocabulary, "Word", condacts::OfWordTypes({condacts::kConjunction}),
                          "voctypen, vocnum, word");
    for (bool more = row.First({}); more; more = row.Next()) {
        if (!row.Text(0).empty()) conjunctions.emplace_back(row.Text(0));
    }
}

void GameData::ReadCondActParams(store::Adventure& adventure) {
    condActParams.assign(kHighestCondAct + 1, kUnknownCondAct);
    PreparedQuery row = adventure.Prepare(TableNum::CondActs, "canum, canumparam", "", "canum");
    for (bool more = row.First({}); more; more = row.Next()) {
        const std::int64_t number = row.Number(0);
        const std::int64_t params = row.Number(1);
        if (number < 0 || number > kHighestCondAct || params < 0 || params > 2) {
            Refuse("condition or action " + std::to_string(number) + " has " + std::to_string(params) +
                   " parameters");
        }
        condActParams[static_cast<std::size_t>(number)] = static_cast<std::int8_t>(params);
    }
}

void GameData::ReadObjects(store::Adventure& adventure) {
    PreparedQuery row = adventure.Prepare(
        TableNum::Objects, "objnum, objloc, objweight, objattrn, objnumnoun, objnumadject", "", "objnum");
    for (bool more = row.First({}); more; more = row.Next()) {
        const std::size_t number = RecordNumber(row.Number(0), "an object");
        const auto number16 = [&](int column, std::string_view field) {
            return Number16(row.Number(column), {"object", static_cast<std::int64_t>(number), {}, field});
        };
        // Object numbers that are left out are objects that are nowhere and that no word names.
        if (objects.size() <= number) objects.resize(number + 1, {place::kNotCreated, 0, 0, {}, {}});
        objects[number] = {
            .startPlace = PlaceNumber(number16(1, "objloc")),
            .weight = number16(2, "objweight"),
            .attributes = number16(3, "objattrn"),
            .noun = WordNumber(number16(4, "objnumnoun")),
            .adjective = WordNumber(number16(5, "objnumadject")),
        };
    }
}

void GameData::ReadLocations(store::Adventure& adventure) {
    PreparedQuery row = adventure.Prepare(
        TableNum::Locations, "locnum, numexits, numericexits, pickey, picloc", "locnum>=0", "locnum");
    for (bool more = row.First({}); more; more = row.Next()) {
        const std::size_t number = RecordNumber(row.Number(0), "a location");
        if (locations.size() <= number) {
            locations.resize(number + 1);
            pictures.resize(number + 1);
        }
        LocationData& location = locations[number];
        location = {.exists = true, .first = static_cast<std::uint32_t>(exits_.size()), .length = 0};
        if (const std::int64_t tokens = row.Number(1); tokens > 0) {
            location.length = AppendNumbers(row.Text(2), tokens, exits_,
                                            {"the exits of location", static_cast<std::int64_t>(number)});
        }
        pictures[number] = Filled(row.Text(3)).empty() ? "" : Filled(row.Text(4));
    }
    if (locations.empty()) Refuse("it has no locations");
    if (!defaultPicture.empty()) pictures.back() = defaultPicture;
}

void GameData::ReadProcesses(store::Adventure& adventure) {
    const bool hasNumeric = adventure.Schema(TableNum::ProcessTables).Find("numericcondacts").has_value();
    const std::string fields =
        std::string("estype, canum, w1num, w2num, CondActs") + (hasNumeric ? ", numericcondacts" : "");
    std::optional<condacts::Catalogue> catalogue;
    std::optional<condacts::WordIndex> words;
    PreparedQuery row =
        adventure.Prepare(TableNum::ProcessTables, fields, "estype>=0", "estype, w1num, w2num, canum");
    for (bool more = row.First({}); more; more = row.Next()) {
        if (row.Number(0) > condacts::limit::kHighestProcess.value) break;
        const auto process = static_cast<std::size_t>(row.Number(0));
        if (processes.size() <= process) processes.resize(process + 1);
        const Source source{"entry", row.Number(1), process};
        const auto word = [&](int column, std::string_view field) {
            return WordNumber(Number16(row.Number(column), {"entry", source.number, process, field}));
        };
        ProcessEntry entry{
            .verb = word(2, "w1num"),
            .noun = word(3, "w2num"),
            .record = static_cast<std::int32_t>(row.Number(1)),
            .first = static_cast<std::uint32_t>(condActs_.size()),
        };
        std::string compiled;
        std::string_view numeric = hasNumeric ? row.Text(5) : std::string_view();
        if (text::TrimBlanks(numeric).empty() && !text::TrimBlanks(row.Text(4)).empty()) {
            // A file from before the numeric form was stored.
            if (!catalogue) catalogue = condacts::LoadCatalogue(adventure);
            if (!words) words = condacts::LoadWords(adventure);
            const condacts::Converted converted =
                condacts::CondActsToNumeric(row.Text(4), *catalogue, *words);
            if (!converted.ok) Refuse(NameOf(source) + ": " + converted.errors);
            compiled = converted.line;
            numeric = compiled;
        }
        entry.length = AppendNumbers(numeric, condacts::kHighestNumber, condActs_, source);
        processes[process].Add(entry);
    }
    for (ProcessTable& table : processes)
        table.BuildIndex(!IsMarlo());
}

}  // namespace fabula::engine
