#include "interchange/pc/pc_objects.h"

#include <optional>
#include <utility>

#include "condacts/language/parser.h"
#include "condacts/limits.h"
#include "condacts/places.h"
#include "text/encoding/utf8.h"

namespace fabula::interchange {
namespace {

using condacts::Word;
using store::Cursor;

constexpr std::size_t kTokensNeeded = 6;

/// The place that is no room which a source names by its word or its number.
std::optional<condacts::PlaceNumber> NamedPlace(std::string_view location) {
    for (const auto& [word, place] : condacts::kLocationWords) {
        if (place == condacts::place::kHere) continue;  // no object begins there
        if (text::EqualsNoCase(word, location) || std::to_string(place.value) == location) return place;
    }
    return std::nullopt;
}

bool IsYes(std::string_view token) {
    return text::EqualsNoCase(token, "Y");
}

void SetWord(Cursor& object, const char* textField, const char* numberField, const Word* word) {
    object.SetField(textField, word == nullptr ? std::string(condacts::kNoWord) : word->word);
    object.SetField(numberField,
                    std::int64_t{(word == nullptr ? condacts::kNoWordNumber : word->number).value});
}

}  // namespace

void PcObjects::Begin(const std::vector<std::string_view>&) {
    if (objects_) return;
    store::PreparedQuery locations =
        job_.context.adventure.Prepare(store::TableNum::Locations, "locnum", "");
    for (bool more = locations.First({}); more; more = locations.Next())
        locations_.insert(locations.Number(0));
    objects_ = std::make_unique<KeyedTable>(job_.context.adventure, store::TableNum::Objects);
}

void PcObjects::Slash(std::string_view line) {
    const auto tokens = SplitSlashLine(line);
    const std::optional<std::int64_t> number = RecordNumber(tokens);
    if (!number || tokens.size() < kTokensNeeded || !objects_->Has(*number)) {
        job_.Fault(kBadLine);
        return;
    }
    const std::optional<int> weight = condacts::NumberOfToken(tokens[2]);
    if (!weight || *weight > condacts::limit::kHeaviestObject) {
        job_.Fault(std::string(condacts::kWeightFault), tokens[2]);
        return;
    }
    Cursor& object = objects_->GoTo(*number);
    if (!SetLocation(object, tokens[1])) {
        object.CancelUpdate();
        job_.Fault("Invalid location", tokens[1]);
        return;
    }
    job_.FaultBehind(tokens, kTokensNeeded + 1);
    if (!seen_.insert(*number).second) {
        job_.Fault("ERROR: Object " + std::to_string(*number) +
                   " stands here twice. This definition counts.");
    }
    object.SetField("objweight", std::int64_t{*weight});
    SetAttributes(object, IsYes(tokens[3]), IsYes(tokens[4]));
    SetWords(object, *number, tokens[5], tokens.size() > kTokensNeeded ? tokens[6] : condacts::kNoWord);
    objects_->Update();
    NotePlaces(*number, tokens);
}

void PcObjects::NotePlaces(std::int64_t number, const std::vector<std::string_view>& tokens) const {
    constexpr std::pair<const char*, std::size_t> kPieces[] = {
        {"", 0}, {"objloc", 1}, {"objattr", 3}, {"objnoun", 5}, {"objadject", 6}};
    for (const auto& [field, piece] : kPieces) {
        if (piece < tokens.size())
            job_.Note(store::TableNum::Objects, number, field, 0, job_.PlaceOf(tokens[piece]));
    }
}

void PcObjects::Line(std::string_view) {
    job_.Fault(kBadLine);
}

bool PcObjects::SetLocation(Cursor& object, std::string_view location) {
    if (const auto place = NamedPlace(location)) {
        object.SetField("objloc", std::int64_t{place->value});
        object.SetField("objlocdesc", condacts::DescriptionOfPlace(*place));
        return true;
    }
    const std::optional<int> number = condacts::NumberOfToken(location);
    if (!number || condacts::IsSpecialPlace(*number) || !locations_.contains(*number)) return false;
    object.SetField("objloc", std::int64_t{*number});
    object.SetField("objlocdesc", "At " + std::to_string(*number) + ".");
    return true;
}

void PcObjects::SetAttributes(Cursor& object, bool container, bool wearable) {
    object.SetField("objattr", std::string(container ? "C" : "") + (wearable ? "WR" : ""));
    object.SetField("objattrn", std::int64_t{(container ? 1 : 0) + (wearable ? 2 : 0)});
}

void PcObjects::SetWords(Cursor& object, std::int64_t number, std::string_view noun,
                         std::string_view adjective) {
    const Word* nounFound = FindWord(noun, condacts::IsNounOrReserved);
    const Word* adjectiveFound = FindWord(adjective, condacts::IsAdjectiveOrReserved);
    const std::string shown = " shown for object " + std::to_string(number);
    if (nounFound == nullptr) {
        job_.Fault("ERROR: Noun" + shown + " is not a Noun.\nNoun and Adjective set to _", noun);
        adjectiveFound = nullptr;
    } else if (adjectiveFound == nullptr) {
        job_.Fault("ERROR: Adjective" + shown + " is not an Adjective.\nAdjective set to _", adjective);
    }
    SetWord(object, "objnoun", "objnumnoun", nounFound);
    SetWord(object, "objadject", "objnumadject", adjectiveFound);
}

const Word* PcObjects::FindWord(std::string_view word, condacts::WordTest test) const {
    if (job_.IsNullWord(word)) word = condacts::kNoWord;
    return job_.words.Find(job_.Word(word), test);
}

void PcObjects::Finish() {
    job_.Status("Loaded Vel Source Object Definitions");
}

}  // namespace fabula::interchange
