#include "condacts/language/validate.h"

#include <algorithm>
#include <utility>

#include "condacts/flags.h"
#include "condacts/language/convert.h"
#include "condacts/language/parser.h"
#include "condacts/limits.h"
#include "condacts/places.h"
#include "condacts/system_messages.h"
#include "text/encoding/utf8.h"

namespace fabula::condacts {
namespace {

using Message = std::optional<std::string>;

/// One parameter on its way through the checks.
struct Given {
    const CondAct& condAct;
    const Parameter& param;
    int place;  ///< 1 or 2
    std::string_view token;
    int number = 0;

    bool CondActIs(std::string_view name) const { return condAct.name == name; }
};

std::string InvalidNumber(const Given& given) {
    return InvalidNumberMessage(static_cast<std::size_t>(given.place));
}

bool IsNegativeNumber(std::string_view token) {
    if (token.size() < 2 || token.front() != '-') return false;
    const std::string_view digits = token.substr(1);
    return digits.find_first_not_of("0123456789.") == std::string_view::npos &&
           std::count(digits.begin(), digits.end(), '.') <= 1 &&
           digits.find_first_of("123456789") != std::string_view::npos;
}

Message CheckContainer(const Given& given, const Facts& facts) {
    const std::string location = "Location " + std::to_string(given.number);
    const PlaceNumber place(given.number);
    const auto object = facts.objects.find(ObjectNumber(given.number));
    const bool container = !IsSpecialPlace(place) && object != facts.objects.end() && object->second != 0 &&
                           object->second != 2;
    if (!container) return location + " is not a container";
    if (facts.locationsWithExits.contains(place)) return location + " cannot be a container. It has exits.";
    return std::nullopt;
}

Message CheckPlaceOrObject(const Given& given, const Facts& facts, bool exists) {
    const bool mayBeSpecial = given.param.maxValue != kNoSpecialLocations;
    if (!exists && !(mayBeSpecial && IsSpecialPlace(given.number))) return InvalidNumber(given);
    if (given.place == 2 && (given.CondActIs("PUTIN") || given.CondActIs("TAKEOUT"))) {
        return CheckContainer(given, facts);
    }
    return std::nullopt;
}

Message CheckSystemMessage(const Given& given, const Facts& facts) {
    const bool fits =
        given.param.maxValue == kSystemMessagesTwoToFive
            ? given.number >= message::kFirstPrompt.value && given.number <= message::kLastPrompt.value
            : facts.systemMessages.contains(SystemMessageNumber(given.number)) ||
                  IsSpecialPlace(given.number);
    return fits ? Message() : InvalidNumber(given);
}

Message CheckFlag(const Given& given, const Facts& facts) {
    const FlagNumber flag(given.number);
    const auto record = facts.flags.find(flag);
    if (record == facts.flags.end() ||
        (facts.dialect == Dialect::Marlo && flag.value > limit::kHighestMarloFlag))
        return InvalidNumber(given);
    if (flag == flag::kTraceFile) return "Flag 1004 cannot be modified or checked using conditions/actions";
    if (flag == flag::kTrace && !given.CondActIs("SET") && !given.CondActIs("CLEAR")) {
        return "Flag 1005 can only be SET or CLEAR";
    }
    if (record->second.system && (given.CondActIs("AUTOINC") || given.CondActIs("AUTODEC"))) {
        return "Flag " + std::to_string(flag.value) + " cannot be set With " + given.condAct.name;
    }
    if (!record->second.actionsMayChange && given.condAct.isAction) {
        return "This flag cannot be used in an Action, only a Condition";
    }
    return std::nullopt;
}

/// Only the first word of the spelling is looked at, so that a word of two types may be refused by the
/// second. What no word is called is looked up as it compiles, cut.
Message CheckWord(const Given& given, const Facts& facts) {
    const WordCondition* condition = FindWordCondition(given.condAct.name);
    const Word* word = facts.words.Find(given.token);
    if (word == nullptr && condition != nullptr)
        word = facts.words.FindAsked(given.token, condition->wordType);
    if (word == nullptr) return std::string(given.token) + " is an invalid word";
    if (condition == nullptr || word->type == condition->wordType || word->type == kReserved)
        return std::nullopt;
    return std::string(given.token) + " is not " + std::string(condition->phrase);
}

Message CheckNumber(const Given& given, const Facts& facts) {
    switch (given.param.kind) {
        case ParamKind::Location:
            return CheckPlaceOrObject(given, facts, facts.locations.contains(PlaceNumber(given.number)));
        case ParamKind::Object:
            return CheckPlaceOrObject(given, facts, facts.objects.contains(ObjectNumber(given.number)));
        case ParamKind::Message:
            return facts.messages.contains(MessageNumber(given.number)) ? Message() : InvalidNumber(given);
        case ParamKind::Process:
            return facts.processes.contains(ProcessNumber(given.number))
                       ? Message()
                       : "There is not a Process table with that number";
        case ParamKind::SystemMessage:
            return CheckSystemMessage(given, facts);
        case ParamKind::Flag:
            return CheckFlag(given, facts);
        case ParamKind::Value:
            return given.number <= given.param.maxValue ? Message()
                                                        : "Invalid Value for that Condition/Action";
        case ParamKind::Word:
        case ParamKind::None:
            break;
    }
    return std::nullopt;
}

Message CheckParameter(Given given, const Facts& facts) {
    if (given.param.kind == ParamKind::Word) return CheckWord(given, facts);
    if (IsNegativeNumber(given.token)) return "Parameter cannot be < 0";
    const std::optional<int> number = NumberOfToken(given.token);
    if (!number) return InvalidNumber(given);
    given.number = *number;
    return CheckNumber(given, facts);
}

std::vector<Fault> FaultsOf(const ParsedLine& line, const Statement& statement, const Facts& facts) {
    const CondAct& condAct = *statement.condAct;
    if (condAct.paramCount > 0 && statement.paramsGiven == 0)
        return {{"No parameters for a Condition/Action which must have parameter", statement.name}};
    std::vector<Fault> faults;
    for (std::size_t p = 0; p < statement.paramsGiven; ++p) {
        const Given given{condAct, condAct.params[p], static_cast<int>(p) + 1, line.Param(statement, p)};
        if (Message message = CheckParameter(given, facts))
            faults.push_back({*message, statement.name + 1 + p});
    }
    if (statement.paramsGiven < static_cast<std::size_t>(condAct.paramCount))
        faults.push_back({kMissingParameter, statement.name});
    return faults;
}

std::optional<Fault> FirstOf(std::vector<Fault> faults) {
    if (faults.empty()) return std::nullopt;
    return std::move(faults.front());
}

/// A line as the checks want it: location words as their numbers, in capitals. Capitals come last, since a
/// letter outside ASCII, which counts as a blank, may have one inside.
std::string Prepared(std::string_view line, const Catalogue& catalogue) {
    return text::UpperCase(LocationWordsToNumbers(line, catalogue));
}

}  // namespace

std::vector<Fault> AllFaults(std::string_view line, const Catalogue& catalogue, const Facts& facts) {
    const std::string prepared = Prepared(line, catalogue);
    const ParsedLine parsed = ParseLine(prepared, catalogue, facts.dialect);
    std::vector<Fault> faults;
    for (const Statement& statement : parsed.statements) {
        for (Fault& fault : FaultsOf(parsed, statement, facts))
            faults.push_back(std::move(fault));
    }
    if (parsed.unknownName) {
        faults.push_back(
            {InvalidCondActMessage(parsed.tokens[*parsed.unknownName].text), *parsed.unknownName});
    }
    return faults;
}

std::optional<Fault> ValidateCondActs(std::string_view line, const Catalogue& catalogue,
                                      const Facts& facts) {
    return FirstOf(AllFaults(line, catalogue, facts));
}

std::optional<Fault> ValidateCondAct(std::string_view text, const Catalogue& catalogue,
                                     const Facts& facts) {
    const std::string prepared = Prepared(text, catalogue);
    const ParsedLine parsed = ParseLine(prepared, catalogue, facts.dialect);
    if (parsed.statements.empty()) return Fault{"Invalid Condition/Action", 0};
    return FirstOf(FaultsOf(parsed, parsed.statements.front(), facts));
}

}  // namespace fabula::condacts
