#include "authoring/jobs/missing_references.h"

#include <map>
#include <set>
#include <utility>

#include "condacts/language/parser.h"
#include "condacts/object_attributes.h"
#include "condacts/places.h"
#include "pictures/book_loader.h"
#include "pictures/drawstring.h"

namespace fabula::authoring {
namespace {

using condacts::Facts;
using condacts::ObjectNumber;
using condacts::PlaceNumber;
using condacts::Word;
using condacts::WordNumber;
using store::Adventure;
using store::PreparedQuery;
using store::TableNum;

PlaceNumber PlaceIn(const PreparedQuery& row, int column) {
    return PlaceNumber(static_cast<int>(row.Number(column)));
}

WordNumber WordIn(const PreparedQuery& row, int column) {
    return WordNumber(static_cast<int>(row.Number(column)));
}

bool IsEntryWord(const Word& word) {
    return word.type == condacts::kVerb || word.type == condacts::kNoun || word.type == condacts::kReserved;
}

/// One search through an adventure.
class Search {
  public:
    Search(Adventure& adventure, const Facts& facts) : adventure_(adventure), facts_(facts) {}

    std::vector<MissingReference> Run() {
        CheckStart();
        CheckExits();
        CheckObjects();
        CheckEntryWords();
        CheckPictures();
        return std::move(found_);
    }

  private:
    void Add(TableNum table, std::int64_t key, std::string field, std::string message,
             std::size_t place = 0) {
        found_.push_back({table, key, std::move(field), place, std::move(message)});
    }

    bool IsRoom(PlaceNumber place) const {
        return !condacts::IsSpecialPlace(place) && facts_.locations.contains(place);
    }

    bool HasWord(WordNumber number, condacts::WordTest test) const {
        return facts_.words.FindNumber(number, test) != nullptr;
    }

    void CheckStart() {
        PreparedQuery settings = adventure_.Prepare(TableNum::Adventure, "startloc", "");
        if (!settings.First({}) || IsRoom(PlaceIn(settings, 0))) return;
        Add(TableNum::Adventure, 0, "startloc",
            condacts::NoLocationMessage(std::to_string(settings.Number(0))));
    }

    void CheckExits() {
        PreparedQuery rows =
            adventure_.Prepare(TableNum::Locations, "locnum, exits, numericexits", "", "locnum");
        for (bool more = rows.First({}); more; more = rows.Next()) {
            const auto words = condacts::SplitLine(rows.Text(1));
            const auto numbers = condacts::SplitLine(rows.Text(2));
            for (std::size_t i = 0; i < numbers.size(); i += 2) {
                const std::string word(i < words.size() ? words[i].text : numbers[i].text);
                CheckExit(PlaceIn(rows, 0), i, word, numbers);
            }
        }
    }

    void CheckExit(PlaceNumber room, std::size_t i, const std::string& word,
                   const std::vector<condacts::Token>& numbers) {
        const auto number = condacts::NumberOfToken(numbers[i].text);
        if (!number || !HasWord(WordNumber(*number), condacts::IsMovementWord))
            Add(TableNum::Locations, room.value, "exits", word + " is not a valid word", i);
        const std::string_view to = i + 1 < numbers.size() ? numbers[i + 1].text : std::string_view();
        const auto destination = condacts::NumberOfToken(to);
        if (destination && IsRoom(PlaceNumber(*destination))) return;
        Add(TableNum::Locations, room.value, "exits", condacts::NoLocationMessage(to, word), i + 1);
    }

    void CheckObjects() {
        std::map<PlaceNumber, PlaceNumber> inside;  // of containers, as places: where each is
        PreparedQuery containers = adventure_.Prepare(TableNum::Objects, "objnum, objloc, objattrn", "");
        for (bool more = containers.First({}); more; more = containers.Next()) {
            if ((containers.Number(2) & condacts::attribute::kContainer) != 0)
                inside.try_emplace(PlaceIn(containers, 0), PlaceIn(containers, 1));
        }
        PreparedQuery rows = adventure_.Prepare(
            TableNum::Objects, "objnum, objloc, objnumnoun, objnumadject, objattrn", "", "objnum");
        for (bool more = rows.First({}); more; more = rows.Next()) {
            const ObjectNumber object(static_cast<int>(rows.Number(0)));
            const PlaceNumber place = PlaceIn(rows, 1);
            const bool isPlace =
                IsRoom(place) || (condacts::IsSpecialPlace(place) && place != condacts::place::kHere);
            if (!isPlace) Add(TableNum::Objects, object.value, "objloc", "Invalid location");
            CheckObjectWords(object, WordIn(rows, 2), WordIn(rows, 3));
            if ((rows.Number(4) & condacts::attribute::kContainer) == 0) continue;
            const PlaceNumber within = condacts::Inside(object);
            if (!IsRoom(within))
                Add(TableNum::Objects, object.value, "objattr",
                    "There is no location with this object number");
            if (IsInsideItself(within, inside))
                Add(TableNum::Objects, object.value, "objloc", "A container cannot be inside itself.");
        }
    }

    void CheckObjectWords(ObjectNumber object, WordNumber noun, WordNumber adjective) {
        const std::string shown = " shown for object " + std::to_string(object.value);
        if (noun != condacts::kNoWordNumber && !HasWord(noun, condacts::IsNounOrReserved))
            Add(TableNum::Objects, object.value, "objnoun", "Noun" + shown + " is not a Noun.");
        if (adjective != condacts::kNoWordNumber && !HasWord(adjective, condacts::IsAdjectiveOrReserved))
            Add(TableNum::Objects, object.value, "objadject",
                "Adjective" + shown + " is not an Adjective.");
    }

    /// Whether the way out of a container, through the containers around it, comes back to it.
    static bool IsInsideItself(PlaceNumber container, const std::map<PlaceNumber, PlaceNumber>& inside) {
        std::set<PlaceNumber> passed;
        auto at = inside.find(container);
        while (at != inside.end() && !condacts::IsSpecialPlace(at->second) &&
               passed.insert(at->first).second) {
            if (at->second == container) return true;
            at = inside.find(at->second);
        }
        return false;
    }

    void CheckEntryWords() {
        PreparedQuery rows = adventure_.Prepare(TableNum::ProcessTables, "canum, w1, w1num, w2, w2num", "");
        for (bool more = rows.First({}); more; more = rows.Next()) {
            const auto isThere = [&](int column) {
                const WordNumber word = WordIn(rows, column);
                return word == condacts::kNoWordNumber || HasWord(word, IsEntryWord);
            };
            if (!isThere(2)) {
                Add(TableNum::ProcessTables, rows.Number(0), "w1",
                    "Word1 (" + std::string(rows.Text(1)) + ") not a verb");
            }
            if (!isThere(4)) {
                Add(TableNum::ProcessTables, rows.Number(0), "w2",
                    "Word2 (" + std::string(rows.Text(3)) + ") is not a Noun");
            }
        }
    }

    void CheckPictures() {
        const pictures::PictureBook book = pictures::LoadPictureBook(adventure_);
        for (const auto& [number, picture] : book.pictures) {
            const auto words = pictures::DrawstringWords(picture.drawstring);
            for (std::size_t i = 0; i < words.size();) {
                const pictures::Command* command = book.commands.FindPictureCommand(words[i]);
                if (command == nullptr) break;
                const std::size_t last = i + static_cast<std::size_t>(command->drawnParameters);
                if (command->number == pictures::kGoSub && last < words.size() &&
                    book.FindPicture(pictures::ParameterValue(words[last]).value_or(-1)) == nullptr) {
                    Add(TableNum::Pictures, number, "drawstring", words[last] + " is an invalid location",
                        last);
                }
                i = last + 1;
            }
        }
    }

    Adventure& adventure_;
    const Facts& facts_;
    std::vector<MissingReference> found_;
};

}  // namespace

std::vector<MissingReference> FindMissingReferences(Adventure& adventure, const Facts& facts) {
    return Search(adventure, facts).Run();
}

}  // namespace fabula::authoring
