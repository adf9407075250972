#include "condacts/language/held_numbers.h"

#include <algorithm>
#include <iterator>

#include "condacts/flags.h"

namespace fabula::condacts {
namespace {

constexpr HeldNumber kHeldNumbers[] = {
    {flag::kVerb, ParamKind::Word, kVerb},
    {flag::kNoun, ParamKind::Word, kNoun},
    {flag::kAdjective, ParamKind::Word, kAdjective},
    {flag::kAdverb, ParamKind::Word, kAdverb},
    {flag::kLocation, ParamKind::Location},
    {flag::kPrompt, ParamKind::SystemMessage},
    {flag::kPreposition, ParamKind::Word, kPreposition},
    {flag::kNoun2, ParamKind::Word, kNoun},
    {flag::kAdjective2, ParamKind::Word, kAdjective},
    {flag::kPronounNoun, ParamKind::Word, kNoun},
    {flag::kPronounAdjective, ParamKind::Word, kAdjective},
    {flag::kDoAllPlace, ParamKind::Location},
    {flag::kObject, ParamKind::Object},
    {flag::kObjectPlace, ParamKind::Location},
    {flag::kKeptVerb, ParamKind::Word, kVerb},
    {flag::kKeptAdverb, ParamKind::Word, kAdverb},
    {flag::kKeptNoun, ParamKind::Word, kNoun},
    {flag::kKeptAdjective, ParamKind::Word, kAdjective},
    {flag::kKeptPronounNoun, ParamKind::Word, kNoun},
    {flag::kKeptPronounAdjective, ParamKind::Word, kAdjective},
};

constexpr std::string_view kOfTheSame[] = {"EQ", "NOTEQ", "LET"};
constexpr std::string_view kOfBorders[] = {"GT", "LT"};

}  // namespace

const HeldNumber* FindHeldNumber(FlagNumber flag) {
    const auto* const found = std::ranges::find(kHeldNumbers, flag, &HeldNumber::flag);
    return found == std::end(kHeldNumbers) ? nullptr : found;
}

TakesNumber TakesNumberOfFlag(std::string_view condAct) {
    if (std::ranges::find(kOfTheSame, condAct) != std::end(kOfTheSame)) return TakesNumber::AsTheSame;
    if (std::ranges::find(kOfBorders, condAct) != std::end(kOfBorders)) return TakesNumber::AsABorder;
    return TakesNumber::No;
}

}  // namespace fabula::condacts
