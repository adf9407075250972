#include "authoring/fields/flag_meaning.h"

#include <algorithm>

#include "condacts/flags.h"
#include "condacts/words.h"

namespace fabula::authoring {
namespace {

namespace flag = condacts::flag;
using condacts::ParamKind;

constexpr HeldNumbers kHeld[] = {
    {flag::kVerb, "verb", ParamKind::Word, condacts::kVerb},
    {flag::kNoun, "noun", ParamKind::Word, condacts::kNoun},
    {flag::kAdjective, "adjective", ParamKind::Word, condacts::kAdjective},
    {flag::kAdverb, "adverb", ParamKind::Word, condacts::kAdverb},
    {flag::kLocation, "place of the player", ParamKind::Location},
    {flag::kPrompt, "prompt", ParamKind::SystemMessage},
    {flag::kPreposition, "preposition", ParamKind::Word, condacts::kPreposition},
    {flag::kNoun2, "second noun", ParamKind::Word, condacts::kNoun},
    {flag::kAdjective2, "second adjective", ParamKind::Word, condacts::kAdjective},
    {flag::kPronounNoun, "noun of the pronoun", ParamKind::Word, condacts::kNoun},
    {flag::kPronounAdjective, "adjective of the pronoun", ParamKind::Word, condacts::kAdjective},
    {flag::kObject, "object last referred to", ParamKind::Object},
    {flag::kObjectPlace, "place of that object", ParamKind::Location},
};

/// What an import writes into flags that a game uses.
constexpr std::string_view kMarkOfAnImport = "Used by this Adventure";

constexpr std::string_view kWithValue[] = {"EQ", "NOTEQ", "LET"};

}  // namespace

const HeldNumbers* FindHeldNumbers(condacts::FlagNumber flag) {
    const auto* const found =
        std::ranges::find_if(kHeld, [flag](const HeldNumbers& held) { return held.flag == flag; });
    return found == std::end(kHeld) ? nullptr : found;
}

std::string FlagName(condacts::FlagNumber flag, std::string_view description) {
    if (const HeldNumbers* const held = FindHeldNumbers(flag)) return std::string(held->name);
    std::size_t end = description.size();
    for (const std::string_view stop : {". ", ", ", "; ", " ("})
        end = std::min(end, description.find(stop));
    std::string_view clause = description.substr(0, end);
    if (clause.ends_with('.')) clause.remove_suffix(1);
    return clause == kMarkOfAnImport ? "" : std::string(clause);
}

bool TakesWhatFlagHolds(const condacts::CondAct& condAct) {
    return condAct.params[0].kind == ParamKind::Flag && condAct.params[1].kind == ParamKind::Value &&
           std::ranges::find(kWithValue, condAct.name) != std::end(kWithValue);
}

}  // namespace fabula::authoring
