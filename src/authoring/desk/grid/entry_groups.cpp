#include "authoring/desk/grid/entry_groups.h"

#include <algorithm>
#include <limits>

#include "condacts/language/load.h"
#include "condacts/language/parser.h"
#include "condacts/words.h"
#include "store/query/prepared_query.h"
#include "text/encoding/utf8.h"

namespace fabula::authoring {
namespace {

using condacts::ParamKind;

constexpr int kLast = std::numeric_limits<int>::max();
constexpr std::string_view kAnyVerb = "*";
constexpr std::string_view kAtPlace = "AT";

}  // namespace

EntryGroups::EntryGroups(store::Adventure& adventure, Grouping grouping)
    : grouping_(grouping),
      catalogue_(condacts::LoadCatalogue(adventure)),
      dialect_(condacts::LoadFacts(adventure).dialect),
      texts_(LoadRecordTexts(adventure)) {
    store::PreparedQuery objects =
        adventure.Prepare(store::TableNum::Objects, "objnum, objnoun", "", "objnum");
    for (bool more = objects.First({}); more; more = objects.Next()) {
        const auto number = static_cast<int>(objects.Number(0));
        const auto [known, isNew] = objectOfNoun_.emplace(text::UpperCase(objects.Text(1)), number);
        if (!isNew) known->second.reset();
    }
    objectOfNoun_.erase(std::string(condacts::kNoWord));
}

EntryGroup EntryGroups::Of(std::string_view verb, std::string_view noun, std::string_view condacts) const {
    switch (grouping_) {
        case Grouping::Place:
            return OfNumber(PlaceIn(condacts), ParamKind::Location, "Anywhere");
        case Grouping::Object:
            return OfNumber(ObjectIn(noun, condacts), ParamKind::Object, "No object");
        case Grouping::Verb:
        case Grouping::None:
            break;
    }
    return OfVerb(verb);
}

EntryGroup EntryGroups::OfVerb(std::string_view verb) const {
    if (verb == kAnyVerb) return {0, "Any verb (*)"};
    if (verb == condacts::kNoWord || verb.empty()) return {1, "No verb (_)"};
    return {2, text::UpperCase(verb)};
}

EntryGroup EntryGroups::OfNumber(std::optional<int> number, ParamKind kind,
                                 std::string_view without) const {
    if (!number) return {kLast, std::string(without)};
    EntryGroup group{*number, std::to_string(*number)};
    const auto& items = texts_.Of(kind);
    const auto item =
        std::ranges::find_if(items, [&](const ListItem& each) { return each.number == *number; });
    if (item != items.end() && !item->text.empty()) group.title.append(" ").append(item->text);
    return group;
}

std::optional<int> EntryGroups::PlaceIn(std::string_view condacts) const {
    const condacts::ParsedLine parsed = condacts::ParseLine(condacts, catalogue_, dialect_);
    for (const condacts::Statement& statement : parsed.statements) {
        if (statement.condAct->name == kAtPlace && statement.paramsGiven > 0)
            return condacts::NumberOfToken(parsed.Param(statement, 0));
    }
    return std::nullopt;
}

std::optional<int> EntryGroups::ObjectIn(std::string_view noun, std::string_view condacts) const {
    const condacts::ParsedLine parsed = condacts::ParseLine(condacts, catalogue_, dialect_);
    for (const condacts::Statement& statement : parsed.statements) {
        for (std::size_t place = 0; place < statement.paramsGiven; ++place) {
            if (statement.condAct->params[place].kind == ParamKind::Object)
                return condacts::NumberOfToken(parsed.Param(statement, place));
        }
    }
    const auto known = objectOfNoun_.find(text::UpperCase(noun));
    return known == objectOfNoun_.end() ? std::nullopt : known->second;
}

}  // namespace fabula::authoring
