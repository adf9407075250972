#include <algorithm>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "condacts/language/parser.h"
#include "listings/record.h"
#include "listings/reports.h"
#include "listings/tables/conditional_exits.h"
#include "text/encoding/utf8.h"

namespace fabula::listings {
namespace {

using condacts::ObjectNumber;
using condacts::PlaceNumber;
using store::TableNum;

constexpr TextArea kRoomText{12, 60};
constexpr std::string_view kDescriptionRow = "%r3!%t10!: !%a";
constexpr std::string_view kPictureRow = "%r3!%t10!%a";
constexpr std::string_view kPictureAndKeyRow = "%r3!%t10!%a!%t50!%a";
constexpr TextArea kObject{15, 66};

struct Exit {
    std::string wordNumber;
    std::string word;
    std::string destination;
};

/// The pairs of an exit list, each word with its number.
std::vector<Exit> ExitsOf(std::string_view exits, std::string_view numericExits) {
    const std::vector<condacts::Token> words = condacts::SplitLine(exits);
    const std::vector<condacts::Token> numbers = condacts::SplitLine(numericExits);
    std::vector<Exit> found;
    for (std::size_t i = 0; i + 1 < words.size(); i += 2) {
        found.push_back({std::string(i < numbers.size() ? numbers[i].text : ""), std::string(words[i].text),
                         std::string(words[i + 1].text)});
    }
    return found;
}

/// The columns of exits, counted from 1. The usual ones hold words of six letters; they move to the right
/// for longer ones, in the whole listing.
struct ExitColumns {
    int to = 10;
    int destination = 15;
    int condition = 25;

    void MakeRoomFor(std::string_view wordNumber, std::string_view words) {
        // A blank between number and word, and one before the column.
        const int needed = static_cast<int>(text::Length(wordNumber) + text::Length(words)) + 3;
        // Two words of 30 letters and their number fit. Whatever is longer is no word.
        constexpr int kMostNeeded = 70;
        if (needed <= to || needed > kMostNeeded) return;
        to = needed;
        destination = to + 5;
        condition = to + 15;
    }
};

struct ObjectHere {
    ObjectNumber number;
    std::string description;
};

/// What a complete listing tells beside the locations themselves.
struct Surroundings {
    std::map<PlaceNumber, std::vector<ConditionalExit>> exits;
    std::map<PlaceNumber, std::vector<ObjectHere>> objects;
};

Surroundings LoadSurroundings(store::Adventure& adventure) {
    Surroundings loaded;
    loaded.exits = LoadConditionalExits(adventure, ConditionTexts(adventure, false));
    store::PreparedQuery rows = adventure.Prepare(TableNum::Objects, "objnum, objdesc, objloc", "");
    for (bool more = rows.First({}); more; more = rows.Next()) {
        const PlaceNumber place(static_cast<int>(rows.Number(2)));
        loaded.objects[place].push_back(
            {ObjectNumber(static_cast<int>(rows.Number(0))), std::string(rows.Text(1))});
    }
    return loaded;
}

ExitColumns ExitColumnsFor(store::Adventure& adventure, const Surroundings& around) {
    ExitColumns columns;
    store::PreparedQuery rows = adventure.Prepare(TableNum::Locations, "exits, numericexits", "exits<>''");
    for (bool more = rows.First({}); more; more = rows.Next()) {
        for (const Exit& exit : ExitsOf(rows.Text(0), rows.Text(1)))
            columns.MakeRoomFor(exit.wordNumber, exit.word);
    }
    for (const auto& [location, exits] : around.exits) {
        for (const ConditionalExit& exit : exits)
            columns.MakeRoomFor(std::to_string(exit.verb.value), exit.words);
    }
    return columns;
}

void LinkDestination(Record& record, const ExitColumns& columns, const std::string& destination) {
    const std::optional<int> number = condacts::NumberOfToken(destination);
    if (number)
        record.LinkTo({TableNum::Locations, *number}, static_cast<std::size_t>(columns.destination) - 1,
                      destination.size());
}

void AddExit(Record& record, const ExitColumns& columns, const Exit& exit) {
    const std::string format =
        "%a! !%a!%t" + std::to_string(columns.to) + "!To!%t" + std::to_string(columns.destination) + "!%a";
    record.Row(format, {exit.wordNumber, exit.word, exit.destination});
    LinkDestination(record, columns, exit.destination);
}

void AddConditionalExit(Record& record, const ExitColumns& columns, const ConditionalExit& exit) {
    const std::string format = "%a! !!%a!%t" + std::to_string(columns.to) + "!%a2!%t" +
                               std::to_string(columns.destination) + "!%a!%t" +
                               std::to_string(columns.condition) + "!%e! !%a";
    const std::string destination = std::to_string(exit.destination.value);
    const int column = columns.condition + 2;
    // Words of an entry may be longer than those of any exit.
    const TextArea area{column, std::max(static_cast<int>(kColumns) - column + 1, 20)};
    record.Text(format, {std::int64_t{exit.verb.value}, exit.words, "To", destination}, exit.condition,
                area);
    LinkDestination(record, columns, destination);
}

void AddObjects(Record& record, const std::vector<ObjectHere>& objects) {
    record.Row("!%t10!Objects Present", {});
    for (const ObjectHere& object : objects) {
        record.Text("!%t10!%r3!%t15!%a", {std::int64_t{object.number.value}}, object.description, kObject);
        const std::string number = std::to_string(object.number.value);
        record.LinkTo({TableNum::Objects, object.number.value},
                      number.size() < 3 ? 12 - number.size() : std::size_t{9}, number.size());
    }
}

void AddSurroundings(Record& record, const ExitColumns& columns, const Surroundings& around,
                     PlaceNumber location) {
    if (const auto exits = around.exits.find(location); exits != around.exits.end()) {
        for (const ConditionalExit& exit : exits->second)
            AddConditionalExit(record, columns, exit);
    }
    if (const auto objects = around.objects.find(location); objects != around.objects.end())
        AddObjects(record, objects->second);
}

void Begin(const Listing& listing, bool verbose, bool complete) {
    std::vector<std::string> headings;
    if (complete) headings.push_back("Showing Conditional Exits && Objects Present (Complete Listing)");
    headings.push_back(Heading("Number!%t12!Description"));
    headings.push_back(Heading("%c6-!%t12!%c60-"));
    headings.push_back(
        Heading(std::string("# Exits!%t10!Room Picture") + (verbose ? "!%t50!Picture Key" : "")));
    headings.push_back(Heading(std::string("%c7-!%t10!%c20-") + (verbose ? "!%t50!%c11-" : "")));
    listing.frame.Begin("Location Listing", std::move(headings));
}

/// The numbers of exits and the picture of a location.
void AddPictureRow(Record& record, std::size_t exits, std::string_view picture, std::string_view key,
                   bool verbose) {
    std::vector<text::Value> values{std::to_string(exits), std::string(picture)};
    if (verbose) values.emplace_back(std::string(key));
    record.Row(verbose ? kPictureAndKeyRow : kPictureRow, std::move(values));
}

}  // namespace

void WriteLocations(const Listing& listing, const ReportRequest& request) {
    if (request.detail == Detail::Brief) return WriteBrief(listing, TableNum::Locations);
    const bool verbose = request.detail == Detail::Verbose;
    Begin(listing, verbose, request.complete);
    const Surroundings around = request.complete ? LoadSurroundings(listing.adventure) : Surroundings();
    const ExitColumns columns = ExitColumnsFor(listing.adventure, around);
    store::PreparedQuery rows = listing.adventure.Prepare(
        TableNum::Locations, "locnum, locdesc, exits, numericexits, picloc, pickey, comment", "");
    for (bool more = rows.First({}); more; more = rows.Next()) {
        const int number = static_cast<int>(rows.Number(0));
        const std::vector<Exit> exits = ExitsOf(rows.Text(2), rows.Text(3));
        const Place place{TableNum::Locations, number};
        const std::string key = std::to_string(number);
        Record record(place);
        record.Text(kDescriptionRow, {key}, rows.Text(1), kRoomText);
        record.LinkTo(place, key.size() < 3 ? 3 - key.size() : std::size_t{0}, key.size());
        AddPictureRow(record, exits.size(), rows.Text(4), rows.Text(5), verbose);
        for (const Exit& exit : exits)
            AddExit(record, columns, exit);
        AddSurroundings(record, columns, around, PlaceNumber(number));
        if (verbose) AddComment(record, rows.Text(6));
        listing.frame.Add(record.Take());
    }
}

}  // namespace fabula::listings
