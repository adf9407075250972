#include "interchange/picture_import.h"

#include <algorithm>
#include <optional>

#include "condacts/limits.h"
#include "interchange/listing/listing_lines.h"
#include "interchange/listing/picture_listing.h"
#include "interchange/shared/keyed_table.h"
#include "pictures/book_loader.h"
#include "pictures/drawstring.h"
#include "text/encoding/utf8.h"
#include "text/fields.h"
#include "text/format.h"
#include "text/str_edit.h"

namespace fabula::interchange {
namespace {

using store::Cursor;
using store::TableNum;

constexpr const char* kNotNumeric = "Your source record is spaces or not numeric";
constexpr std::string_view kGoSub = "GOSUB";
constexpr std::size_t kToNumber = 2;  ///< words from GOSUB to the number of its picture

/// Adds the records of one piece of a list, "7" or "7-9"; gives what is wrong with it.
std::string AddPiece(std::string_view piece, std::vector<int>& numbers) {
    const auto ends = text::Split(piece, "-");
    if (ends.size() > 2) return "Too many dashes in a row";
    std::vector<int> range;
    for (const std::string_view end : ends) {
        const auto number = pictures::ParameterValue(text::TrimBlanks(end));
        if (!number) return kNotNumeric;
        if (*number > condacts::limit::kHighestRecord)
            return std::to_string(*number) + " is outside range of Graphics Table";
        range.push_back(*number);
    }
    if (range.front() > range.back()) return "Beginning range > ending range in " + std::string(piece);
    for (int number = range.front(); number <= range.back(); ++number) {
        if (std::find(numbers.begin(), numbers.end(), number) == numbers.end()) numbers.push_back(number);
    }
    return "";
}

/// The pictures of the listing that are wanted, by number.
std::map<int, ListedPicture> FindPictures(ListingLines& lines, const std::vector<int>& wanted,
                                          const pictures::CommandCatalogue& commands, JobStatus& status) {
    std::map<int, ListedPicture> found;
    std::optional<ListedPicture> picture;
    const auto store = [&] {
        if (picture) found[picture->number] = *picture;
        picture.reset();
    };
    for (std::string line; lines.Next(line);) {
        if (const auto head = PictureHead::Read(line)) {
            store();
            if (!head->number || std::find(wanted.begin(), wanted.end(), *head->number) == wanted.end())
                continue;
            if (!head->ink || !head->paper) {
                status.AddToStatusCR(NoColoursMessage(*head->number));
                continue;
            }
            picture = ListedPicture{*head->number, head->isSubroutine, *head->ink, *head->paper, ""};
        } else if (picture) {
            const ListedCommand command = TranslateCommand(line, commands);
            if (!command.fault.empty()) status.AddFault(command.fault, lines.Place());
            if (!command.words.empty()) picture->drawstring += command.words + " ";
            if (command.isEnd) store();
        }
    }
    store();
    return found;
}

void AddSubroutines(std::string_view drawstring, std::set<int>& numbers) {
    const auto words = pictures::DrawstringWords(drawstring);
    for (std::size_t i = 0; i + kToNumber < words.size(); ++i) {
        if (words[i] == kGoSub) numbers.insert(pictures::ParameterValue(words[i + kToNumber]).value_or(0));
    }
}

std::string NoSuchLocation(int number) {
    return std::to_string(number) + " is an invalid location for this database";
}

bool HasLocation(store::Adventure& adventure, int number) {
    return adventure.Prepare(TableNum::Locations, "locnum", "locnum=?").First({std::int64_t{number}});
}

void TellEnd(const PictureImport& import, const LoadedPictures& loaded, JobStatus& status) {
    if (!loaded.subroutines.empty()) {
        status.AddToStatusCR("GOSUBs using the following locations were used in the drawstring(s):");
        for (const int number : loaded.subroutines)
            status.AddToStatusCR(text::FormatText("%t10!%s3", {std::int64_t{number}}));
    }
    std::string records;
    for (const LoadedPicture& picture : loaded.pictures)
        records += (records.empty() ? "" : ",") + std::to_string(picture.record);
    status.AddToStatusCR(std::to_string(loaded.pictures.size()) + " Source record(s) " +
                         std::string(import.kind.name) + " loaded into corresponding Graphics Record(s) " +
                         records);
}

std::optional<int> PlaceOf(const NewLocations& places, int number) {
    const auto place = places.find(number);
    if (place == places.end()) return std::nullopt;
    return pictures::ParameterValue(text::TrimBlanks(place->second));
}

std::string WithNewSubroutines(std::string_view drawstring, const NewLocations& places) {
    auto words = pictures::DrawstringWords(drawstring);
    for (std::size_t i = 0; i + kToNumber < words.size(); ++i) {
        if (words[i] != kGoSub) continue;
        const auto number = pictures::ParameterValue(words[i + kToNumber]);
        const auto place = PlaceOf(places, number.value_or(-1));
        if (place) words[i + kToNumber] = std::to_string(*place);
    }
    return pictures::JoinWords(words);
}

}  // namespace

RecordList ParseRecordList(std::string_view list) {
    RecordList result;
    list = text::TrimBlanks(list);
    if (list.empty()) {
        result.fault = "No records specified for Listing";
    } else if (text::EqualsNoCase(list, "ALL")) {
        result.fault = "Sorry, you can't do all of them.";
    } else if (list.find_first_of(".:;") != std::string_view::npos) {
        result.fault = "Periods, Colons, or SemiColons not allowed";
    } else {
        for (const std::string_view piece : text::Split(list, ",")) {
            result.fault = AddPiece(piece, result.numbers);
            if (!result.fault.empty()) break;
        }
    }
    if (!result.fault.empty()) result.numbers.clear();
    return result;
}

LoadedPictures LoadGraphics(const PictureImport& import, store::Adventure& adventure,
                            platform::Person& person, JobStatus& status) {
    const RecordList wanted = ParseRecordList(import.records);
    if (!wanted.fault.empty()) {
        person.Tell(wanted.fault, "Error");
        return {};
    }
    const std::string kind(import.kind.name);
    status.AddToStatusCR("Load Status of Graphics Records " + import.records + " from file " +
                         import.listing.filename().string());
    std::map<int, ListedPicture> found;
    try {
        ListingLines lines(import.listing, status);
        if (!import.kind.readHead(lines, person, status)) return {};
        found = FindPictures(lines, wanted.numbers, pictures::LoadPictureBook(adventure).commands, status);
    } catch (const JobCancelled&) {
        status.AddToStatusCR("Load cancelled");
        return {};
    } catch (const TooManyFaults&) {
        status.AddToStatusCR("Too many errors. Load aborted.");
        return {};
    }
    LoadedPictures loaded;
    store::Transaction transaction(adventure);
    KeyedTable table(adventure, TableNum::Pictures);
    for (std::size_t i = 0; i < wanted.numbers.size(); ++i) {
        const int source = wanted.numbers[i];
        const int record = import.target + static_cast<int>(i);
        const auto picture = found.find(source);
        if (picture == found.end()) {
            status.AddToStatusCR("Cannot find a graphics record " + std::to_string(source) +
                                 " in this file.");
            continue;
        }
        if (!table.Has(record) && !HasLocation(adventure, record)) {
            status.AddToStatusCR(NoSuchLocation(record));
            continue;
        }
        ListedPicture moved = picture->second;
        moved.number = record;
        StorePicture(table, moved);
        AddSubroutines(moved.drawstring, loaded.subroutines);
        loaded.pictures.push_back({source, record});
        status.AddToStatusCR(kind + " Graphics Location " + std::to_string(source) +
                             " loaded into graphics location " + std::to_string(record));
    }
    if (!loaded.pictures.empty()) {
        Cursor& settings = adventure.OpenTable(TableNum::Adventure, "def");
        settings.SetField("graphicsadded", std::int64_t{1});
        settings.Update();
    }
    transaction.Commit();
    TellEnd(import, loaded, status);
    return loaded;
}

std::set<int> NumbersToPlace(const LoadedPictures& loaded) {
    std::set<int> numbers = loaded.subroutines;
    for (const LoadedPicture& picture : loaded.pictures)
        numbers.insert(picture.source);
    return numbers;
}

std::string CheckNewLocations(const LoadedPictures& loaded, const NewLocations& places,
                              store::Adventure& adventure) {
    std::set<int> taken;
    for (const int number : NumbersToPlace(loaded)) {
        const auto place = places.find(number);
        if (place == places.end())
            return "No GoesTo location specified for Location " + std::to_string(number);
        const std::string head =
            "The Location you specified for GoesTo for location " + std::to_string(number);
        if (text::TrimBlanks(place->second).empty()) return head + " is not filled in";
        const auto goesTo = PlaceOf(places, number);
        if (!goesTo) return head + " is not numeric";
        if (*goesTo < 0 || *goesTo > condacts::limit::kHighestRecord || !taken.insert(*goesTo).second)
            return head + " is not a valid graphics location";
        if (!HasLocation(adventure, *goesTo)) return NoSuchLocation(*goesTo);
    }
    return "";
}

void MoveToNewLocations(const LoadedPictures& loaded, const NewLocations& places,
                        store::Adventure& adventure) {
    store::Transaction transaction(adventure);
    std::vector<ListedPicture> moved;
    for (const LoadedPicture& picture : loaded.pictures) {
        const std::string where = "locnum=" + std::to_string(picture.record);
        Cursor& record = adventure.OpenTable(TableNum::Pictures, "def", where);
        moved.push_back({*PlaceOf(places, picture.source), record.Text("loctype") == "Subroutine",
                         static_cast<int>(record.Number("locink")),
                         static_cast<int>(record.Number("locpaper")),
                         WithNewSubroutines(record.Text("drawstring"), places)});
    }
    for (const LoadedPicture& picture : loaded.pictures)
        adventure.DeleteFrom(TableNum::Pictures, "locnum=" + std::to_string(picture.record));
    KeyedTable table(adventure, TableNum::Pictures);
    for (const ListedPicture& picture : moved)
        StorePicture(table, picture);
    transaction.Commit();
}

}  // namespace fabula::interchange
