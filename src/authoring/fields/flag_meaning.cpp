#include "authoring/fields/flag_meaning.h"

#include <algorithm>
#include <iterator>

#include "condacts/flags.h"

namespace fabula::authoring {
namespace {

namespace flag = condacts::flag;
using condacts::ParamKind;

struct NameOfFlag {
    condacts::FlagNumber flag;
    std::string_view name;
};

/// What flags hold whose numbers name something.
constexpr NameOfFlag kNames[] = {
    {flag::kVerb, "verb"},
    {flag::kNoun, "noun"},
    {flag::kAdjective, "adjective"},
    {flag::kAdverb, "adverb"},
    {flag::kLocation, "place of the player"},
    {flag::kPrompt, "prompt"},
    {flag::kPreposition, "preposition"},
    {flag::kNoun2, "second noun"},
    {flag::kAdjective2, "second adjective"},
    {flag::kPronounNoun, "noun of the pronoun"},
    {flag::kPronounAdjective, "adjective of the pronoun"},
    {flag::kObject, "object last referred to"},
    {flag::kObjectPlace, "place of that object"},
};

/// What an import writes into flags that a game uses.
constexpr std::string_view kMarkOfAnImport = "Used by this Adventure";

std::string_view FixedName(condacts::FlagNumber flag) {
    const auto* const found = std::ranges::find(kNames, flag, &NameOfFlag::flag);
    return found == std::end(kNames) ? "" : found->name;
}

}  // namespace

const condacts::HeldNumber* FindNamedNumber(condacts::FlagNumber flag) {
    return FixedName(flag).empty() ? nullptr : condacts::FindHeldNumber(flag);
}

std::string FlagName(condacts::FlagNumber flag, std::string_view description) {
    if (const std::string_view name = FixedName(flag); !name.empty()) return std::string(name);
    std::size_t end = description.size();
    for (const std::string_view stop : {". ", ", ", "; ", " ("})
        end = std::min(end, description.find(stop));
    std::string_view clause = description.substr(0, end);
    if (clause.ends_with('.')) clause.remove_suffix(1);
    return clause == kMarkOfAnImport ? "" : std::string(clause);
}

bool TakesWhatFlagHolds(const condacts::CondAct& condAct) {
    return condAct.params[0].kind == ParamKind::Flag && condAct.params[1].kind == ParamKind::Value &&
           condacts::TakesNumberOfFlag(condAct.name) == condacts::TakesNumber::AsTheSame;
}

}  // namespace fabula::authoring
