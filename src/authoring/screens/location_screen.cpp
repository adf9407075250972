#include "authoring/screens/location_screen.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <optional>
#include <utility>

#include "authoring/entries/made_records.h"
#include "authoring/entries/record_keys.h"
#include "authoring/fields/location_names.h"
#include "authoring/fields/picture_choice.h"
#include "authoring/fields/texts/text_field.h"
#include "condacts/language/load.h"
#include "condacts/limits.h"
#include "condacts/places.h"
#include "condacts/words.h"
#include "text/encoding/utf8.h"
#include "text/fields.h"
#include "text/numbers.h"
#include "text/str_edit.h"

namespace fabula::authoring {
namespace {

using condacts::PlaceNumber;
using condacts::WordNumber;
using store::TableNum;

/// What was typed for a location and can't be any.
constexpr PlaceNumber kNoPlace{-1};

/// Directions and their opposites. Synonyms are found by their numbers.
constexpr std::pair<std::string_view, std::string_view> kOpposites[] = {
    {"NORTH", "SOUTH"},
    {"EAST", "WEST"},
    {"NORTHEAST", "SOUTHWEST"},
    {"NORTHWEST", "SOUTHEAST"},
    {"N", "S"},
    {"E", "W"},
    {"NE", "SW"},
    {"NW", "SE"},
    {"UP", "DOWN"},
    {"U", "D"},
    {"IN", "OUT"},
    {"ENTER", "EXIT"},
};

std::string Edited(std::string_view exits) {
    return std::string(text::TrimBlanks(text::CollapseBlanks(exits)));
}

/// The words and locations of a line of exits, one behind the other.
std::vector<std::string_view> Tokens(std::string_view edited) {
    if (edited.empty()) return {};
    return text::Split(edited, " ");
}

std::string_view TokenAt(const std::vector<std::string_view>& tokens, std::size_t index) {
    return index < tokens.size() ? tokens[index] : std::string_view();
}

/// The number that was typed for a location, kNoPlace for one that can't be any; nullopt when it is no
/// number.
std::optional<PlaceNumber> LocationNumber(std::string_view typed) {
    const std::optional<std::int64_t> number = text::WholeNumber(typed);
    if (!number) return std::nullopt;
    const bool possible = *number >= 0 && *number <= std::numeric_limits<int>::max();
    return possible ? PlaceNumber(static_cast<int>(*number)) : kNoPlace;
}

/// Directions come first, by their number: what is typed is completed by the first word that fits.
int ProbableRank(const ListItem& word) {
    return std::min(word.number, condacts::kFirstPlainVerb.value);
}

/// The end of a change's name: " with new location 3, the way back from location 7".
std::string WithAll(const std::vector<std::string>& made) {
    std::string with;
    for (const std::string& each : made)
        with.append(with.empty() ? " with " : ", ").append(each);
    return with;
}

void AppendTo(std::string& line, std::string_view word, std::string_view location) {
    if (!line.empty()) line += ' ';
    line.append(word).append(" ").append(location);
}

}  // namespace

LocationScreen::LocationScreen(ScreenContext& context, ScreenKey key)
    : RecordScreen(context, TableNum::Locations, key, "location"),
      words_(condacts::LoadWords(context.document.Adventure())) {
    for (const condacts::Word& word : words_.All()) {
        if (condacts::IsMovementWord(word)) exitWord.items.push_back({word.number.value, word.word});
    }
    std::stable_sort(
        exitWord.items.begin(), exitWord.items.end(),
        [](const ListItem& a, const ListItem& b) { return ProbableRank(a) < ProbableRank(b); });
    exitPlace.items = LocationNames(Adventure());
    if (key.isNew) {
        ReadNeighbours();
        opened_ = Typed();
    } else {
        ReadRecord();
    }
}

void LocationScreen::GoTo(int key) {
    SetKey(key);
    ReadRecord();
}

void LocationScreen::ReadRecord() {
    const store::Cursor& record = OpenRecord();
    description = ToEdited(record.Text("locdesc"));
    shortDescription = ToEdited(record.Text("locshortdesc"));
    exits = record.Text("exits");
    picture = text::TrimBlanks(record.Text("picloc"));
    ReadNeighbours();
    opened_ = Typed();
}

void LocationScreen::ReadNeighbours() {
    leadsHere_.clear();
    store::PreparedQuery rows =
        Adventure().Prepare(TableNum::Locations, "locnum, exits, numericexits", "numexits>0");
    const std::string here = std::to_string(Key().key);
    for (bool more = rows.First({}); more; more = rows.Next()) {
        const auto words = text::Split(rows.Text(1), " ");
        const auto numbers = text::Split(rows.Text(2), " ");
        const PlaceNumber location(static_cast<int>(rows.Number(0)));
        for (std::size_t i = 1; i < numbers.size(); i += 2) {
            if (numbers[i] != here) continue;
            leadsHere_.push_back(
                {location, NameIn(exitPlace.items, location), std::string(TokenAt(words, i - 1))});
        }
    }
}

bool LocationScreen::LeaveDescription() {
    return CheckText("description", description, true);
}

bool LocationScreen::LeaveShortDescription() {
    if (!CheckLength("shortDescription", shortDescription, kLongestShortDesc)) return false;
    return CheckText("shortDescription", shortDescription, true);
}

/// A location that is being added may lead to itself. No exit leads to a place that is no room.
bool LocationScreen::Exists(PlaceNumber location) const {
    if (condacts::IsSpecialPlace(location)) return false;
    if (location == Here()) return true;
    for (const ListItem& item : exitPlace.items) {
        if (item.number == location.value) return true;
    }
    return false;
}

/// `word` is that of the exit; "" for the location alone.
std::string LocationScreen::FaultOfLocation(std::string_view number, std::string_view word) const {
    const std::string of(word);
    const std::optional<PlaceNumber> location = LocationNumber(number);
    if (!location) return "TO location " + (of.empty() ? "" : "for " + of) + "must be numeric";
    return Exists(*location) ? "" : condacts::NoLocationMessage(number, word);
}

bool LocationScreen::CheckLocation(std::string_view control, std::string_view number,
                                   std::string_view word) {
    const std::string fault = FaultOfLocation(number, word);
    return fault.empty() || RefuseField(control, fault);
}

std::string LocationScreen::FaultOfWord(std::string_view word) const {
    const std::string typed(word);
    if (words_.Find(word) == nullptr) return typed + " is not a valid word";
    if (words_.Find(word, condacts::IsVerbOrNoun) == nullptr)
        return typed + " is not a Verb or conversion Noun";
    if (words_.Find(word, condacts::IsMovementWord) == nullptr)
        return typed + " is not identified as a movement word (value<20)";
    return "";
}

bool LocationScreen::CheckExit(std::string_view control, std::string_view word, std::string_view location) {
    const std::string fault = FaultOfWord(word);
    if (!fault.empty()) return RefuseField(control, fault);
    return CheckLocation(control, location, word);
}

bool LocationScreen::LeaveExits() {
    const std::string edited = Edited(exits);
    const auto tokens = Tokens(edited);
    for (std::size_t i = 0; i < tokens.size(); i += 2) {
        if (!CheckExit("exits", tokens[i], TokenAt(tokens, i + 1))) return false;
    }
    return true;
}

bool LocationScreen::LeaveExitPlace() {
    return CheckLocation("exitPlace", text::TrimBlanks(exitPlace.text), "");
}

LocationScreen::TypedExit LocationScreen::SplitTypedExit() const {
    const std::string word = Edited(exitWord.text);
    const std::string place(text::TrimBlanks(exitPlace.text));
    const std::size_t blank = word.find(' ');
    if (blank == std::string::npos || !place.empty()) return {word, place};
    return {word.substr(0, blank), word.substr(blank + 1)};
}

bool LocationScreen::IsNewPlace(PlaceNumber location) const {
    return std::ranges::any_of(newPlaces_,
                               [&](const ListItem& place) { return place.number == location.value; });
}

/// The location of a number, of a name, or of what only one name begins with; else a new one of that name.
LocationScreen::MeantPlace LocationScreen::PlaceMeantBy(const std::string& typed) const {
    if (const auto number = LocationNumber(typed)) return {.number = *number, .isNew = IsNewPlace(*number)};
    std::vector<PlaceNumber> same;
    std::vector<PlaceNumber> beginning;
    for (const ListItem& item : exitPlace.items) {
        if (text::EqualsNoCase(item.text, typed)) same.emplace_back(item.number);
        if (text::EqualsNoCase(item.text.substr(0, typed.size()), typed))
            beginning.emplace_back(item.number);
    }
    const std::vector<PlaceNumber>& found = same.empty() ? beginning : same;
    if (found.size() > 1) return {.fault = "More than one location is called " + typed};
    if (!found.empty()) return {.number = found.front(), .isNew = IsNewPlace(found.front())};
    PlaceNumber number;
    while (Exists(number) || condacts::IsSpecialPlace(number))
        ++number.value;
    if (number.value > condacts::HighestRecord(Adventure().Kind()))
        return {.fault = "There is no number left for a location"};
    return {.number = number, .isNew = true};
}

/// A place that is given by its name becomes its number.
bool LocationScreen::TakePlaceByName(const std::string& word) {
    const std::string typed(text::TrimBlanks(exitPlace.text));
    if (typed.empty() || LocationNumber(typed)) return true;
    const MeantPlace meant = PlaceMeantBy(typed);
    if (!meant.fault.empty()) return RefuseField("exitPlace", meant.fault);
    if (!Exists(meant.number)) {
        const std::string fault = FaultOfWord(word);
        if (!fault.empty()) return RefuseField("exitWord", fault);
        if (!CheckLength("exitPlace", typed, kLongestShortDesc) || !CheckText("exitPlace", typed, true))
            return false;
        exitPlace.items.push_back({meant.number.value, typed});
        newPlaces_.push_back({meant.number.value, typed});
    }
    exitPlace.text = std::to_string(meant.number.value);
    return true;
}

/// The word of the opposite direction, the first of its number; nullptr when the game has none.
const condacts::Word* LocationScreen::OppositeOf(std::string_view word) const {
    const condacts::Word* typed = words_.Find(word, condacts::IsMovementWord);
    for (const condacts::Word& synonym : words_.All()) {
        if (synonym.number != typed->number || !condacts::IsMovementWord(synonym)) continue;
        for (const auto& [there, back] : kOpposites) {
            const bool isThere = text::EqualsNoCase(synonym.word, there);
            if (!isThere && !text::EqualsNoCase(synonym.word, back)) continue;
            const condacts::Word* opposite = words_.Find(isThere ? back : there, condacts::IsMovementWord);
            if (opposite) return words_.FindNumber(opposite->number, condacts::IsMovementWord);
        }
    }
    return nullptr;
}

void LocationScreen::NoteWayBack(const std::string& word) {
    const PlaceNumber location = LocationNumber(text::TrimBlanks(exitPlace.text)).value_or(kNoPlace);
    const condacts::Word* back = OppositeOf(word);
    if (!AndBack() || !back || location == Here()) return;
    waysBack_.push_back({words_.Find(word, condacts::IsMovementWord)->number, location, back->number});
}

/// Where the exit of a location by a word leads to, as it is stored; nullopt when there is none.
std::optional<PlaceNumber> LocationScreen::ExitOf(PlaceNumber location, WordNumber word) const {
    store::PreparedQuery record = Adventure().Prepare(TableNum::Locations, "numericexits", "locnum=?");
    if (!record.First({std::int64_t{location.value}})) return std::nullopt;
    const std::string numbers = Edited(record.Text(0));
    const auto tokens = Tokens(numbers);
    for (std::size_t i = 0; i < tokens.size(); i += 2) {
        if (tokens[i] == std::to_string(word.value))
            return LocationNumber(TokenAt(tokens, i + 1)).value_or(kNoPlace);
    }
    return std::nullopt;
}

std::string LocationScreen::WhatOfWayBack(const std::string& word, PlaceNumber location) const {
    if (!AndBack() || location == Here()) return "";
    const condacts::Word* back = OppositeOf(word);
    if (!back) return "; no word leads back, as none is the opposite of " + word;
    const std::optional<PlaceNumber> led = ExitOf(location, back->number);
    if (!led) return ", with " + back->word + " back to here";
    if (*led == Here()) return ", from where " + back->word + " leads here";
    return "; " + back->word + " leads from there to location " + std::to_string(led->value) +
           " and stays so";
}

std::string LocationScreen::WhatAddDoes() const {
    const auto [word, place] = SplitTypedExit();
    if (word.empty() || place.empty()) return "";
    if (std::string fault = FaultOfWord(word); !fault.empty()) return fault;
    const MeantPlace meant = PlaceMeantBy(place);
    if (!meant.fault.empty()) return meant.fault;
    const bool isListed = Exists(meant.number);
    if (!isListed && !meant.isNew) return FaultOfLocation(place, word);
    const std::string name = isListed ? NameIn(exitPlace.items, meant.number) : place;
    std::string told = meant.isNew ? "Makes location " : "Leads to location ";
    told += std::to_string(meant.number.value);
    if (!name.empty()) told += ", \u201C" + name + "\u201D";
    return told + WhatOfWayBack(word, meant.number) + ".";
}

bool LocationScreen::Add() {
    const auto [word, place] = SplitTypedExit();
    exitWord.text = word;
    exitPlace.text = place;
    if (!TakePlaceByName(word) || !LeaveExitPlace()) return false;
    const std::string location(text::TrimBlanks(exitPlace.text));
    if (!CheckExit("exitWord", word, location)) return false;
    NoteWayBack(word);
    exits = Edited(exits);
    AppendTo(exits, word, location);
    exitWord.text.clear();
    exitPlace.text.clear();
    return true;
}

bool LocationScreen::HasPendingExit() const {
    return !text::TrimBlanks(exitWord.text).empty() || !text::TrimBlanks(exitPlace.text).empty();
}

void LocationScreen::ChoosePicture() {
    const auto chosen = authoring::ChoosePicture(context_, kPictureTitle, picture);
    if (chosen) picture = *chosen;
}

std::vector<ExitRow> LocationScreen::Exits() const {
    const std::string edited = Edited(exits);
    const auto tokens = Tokens(edited);
    std::vector<ExitRow> rows;
    for (std::size_t i = 0; i < tokens.size(); i += 2) {
        const std::string_view location = TokenAt(tokens, i + 1);
        rows.push_back({std::string(tokens[i]), std::string(location),
                        NameIn(exitPlace.items, LocationNumber(location).value_or(kNoPlace))});
    }
    return rows;
}

void LocationScreen::SetExits(const std::vector<ExitRow>& rows) {
    exits.clear();
    for (const ExitRow& row : rows) {
        if (!row.word.empty() && !row.location.empty()) AppendTo(exits, row.word, row.location);
    }
}

std::optional<NamedRecord> LocationScreen::NamedWordOf(std::string_view word) const {
    const condacts::Word* found = words_.Find(text::TrimBlanks(word), condacts::IsMovementWord);
    if (found == nullptr) return std::nullopt;
    return NamedWord(Adventure(), found->word, found->number);
}

std::optional<NamedRecord> LocationScreen::NamedInExits(std::size_t cursor) const {
    bool isWord = true;
    for (const std::string_view token : text::Split(exits, " ")) {
        if (token.empty()) continue;
        const auto begin = static_cast<std::size_t>(token.data() - exits.data());
        if (cursor >= begin && cursor <= begin + token.size())
            return isWord ? NamedWordOf(token) : NamedByNumber(TableNum::Locations, token);
        isWord = !isWord;
    }
    return std::nullopt;
}

/// The exits of a line that passed its check.
std::vector<LocationScreen::Exit> LocationScreen::ParsedExits() const {
    const std::string edited = Edited(exits);
    const auto tokens = Tokens(edited);
    std::vector<Exit> parsed;
    for (std::size_t i = 0; i + 1 < tokens.size(); i += 2) {
        const condacts::Word* typed = words_.Find(tokens[i], condacts::IsMovementWord);
        parsed.push_back({words_.FindNumber(typed->number, condacts::IsMovementWord),
                          LocationNumber(tokens[i + 1]).value_or(kNoPlace)});
    }
    return parsed;
}

void LocationScreen::StoreExits(store::Cursor& record) const {
    const std::vector<Exit> parsed = ParsedExits();
    std::string stored;
    std::string numericExits;
    for (const Exit& exit : parsed) {
        const std::string location = std::to_string(exit.location.value);
        AppendTo(stored, exit.word->word, location);
        AppendTo(numericExits, std::to_string(exit.word->number.value), location);
    }
    record.SetField("exits", stored);
    record.SetField("numericexits", numericExits);
    record.SetField("numexits", static_cast<std::int64_t>(2 * parsed.size()));
}

/// An exit to a new place may have been taken out of the line again.
void LocationScreen::StoreNewPlaces(std::vector<std::string>& made) {
    const std::vector<Exit> parsed = ParsedExits();
    for (const ListItem& place : newPlaces_) {
        const PlaceNumber number(place.number);
        const bool used =
            std::ranges::any_of(parsed, [&](const Exit& exit) { return exit.location == number; });
        if (!used || HasRecord(Adventure(), TableNum::Locations, place.number)) continue;
        AddPlace(Adventure(), number, place.text);
        made.push_back("new location " + std::to_string(place.number));
    }
}

/// A location that has an exit in that direction keeps it.
void LocationScreen::StoreWaysBack(std::vector<std::string>& made) {
    const std::vector<Exit> parsed = ParsedExits();
    for (const WayBack& way : waysBack_) {
        const bool used = std::ranges::any_of(parsed, [&](const Exit& exit) {
            return exit.location == way.location && exit.word->number == way.word;
        });
        store::Cursor& record = Adventure().OpenTable(TableNum::Free22, "* from locations",
                                                      "locnum=" + std::to_string(way.location.value));
        if (!used || record.Eof() || ExitOf(way.location, way.wordBack)) continue;
        std::string stored = Edited(record.Text("exits"));
        std::string numbers = Edited(record.Text("numericexits"));
        const std::string here = std::to_string(Key().key);
        AppendTo(stored, words_.FindNumber(way.wordBack, condacts::IsMovementWord)->word, here);
        AppendTo(numbers, std::to_string(way.wordBack.value), here);
        record.SetField("exits", stored);
        record.SetField("numericexits", numbers);
        record.SetField("numexits", record.Number("numexits") + 2);
        record.Update();
        if (!IsNewPlace(way.location))
            made.push_back("the way back from location " + std::to_string(way.location.value));
    }
}

void LocationScreen::StorePicture(store::Cursor& record) const {
    if (picture.empty()) {
        record.SetField("pickey", std::string());
        record.SetField("picloc", std::string());
        record.SetField("picgraphic", {});
        record.SetField("oldpicloc", std::string(" "));
        return;
    }
    record.SetField("pickey", "Room" + std::to_string(Key().key));
    record.SetField("picloc", picture);
    if (Key().isNew) record.SetField("oldpicloc", std::string(" "));
    const bool kept = Adventure().OpenTable(TableNum::Adventure, "graphicsindb").Truth("graphicsindb");
    if (!kept || picture == text::TrimBlanks(record.Text("oldpicloc"))) return;
    record.StoreFileInField(PictureFile(context_, picture), "picgraphic", "oldpicloc");
    record.SetField("oldpicloc", picture);
}

std::vector<std::string> LocationScreen::Typed() const {
    return {description, shortDescription, exits, picture};
}

bool LocationScreen::UpdateFields() {
    if (!Changed()) return true;
    if (!LeaveDescription() || !LeaveShortDescription() || !LeaveExits()) return false;
    if (HasPendingExit() && !Add()) return false;
    Change change(context_.document, ChangeName());
    store::Cursor& record = RecordToStore(change);
    record.SetField("locdesc", ToStored(description));
    record.SetField("locshortdesc", ToStored(shortDescription));
    StoreExits(record);
    StorePicture(record);
    record.Update();
    std::vector<std::string> made;
    StoreNewPlaces(made);
    StoreWaysBack(made);
    change.Rename(ChangeName() + WithAll(made));
    change.Commit();
    return true;
}

}  // namespace fabula::authoring
