#include "authoring/fields/cond_act_help.h"

#include <algorithm>
#include <array>

#include "authoring/fields/cond_act_place.h"
#include "authoring/fields/flag_meaning.h"
#include "condacts/language/convert.h"
#include "condacts/language/load.h"
#include "condacts/language/validate.h"
#include "condacts/limits.h"
#include "condacts/places.h"
#include "text/encoding/utf8.h"

namespace fabula::authoring {
namespace {

using condacts::CondAct;
using condacts::Parameter;
using condacts::ParamKind;
using condacts::Token;
using store::TableNum;

constexpr std::string_view kNoDescription = "no description";

struct KindName {
    ParamKind kind;
    std::string_view field;                        ///< over the field of the parameter
    std::string_view phrase;                       ///< "takes a message"
    std::string_view noun;                         ///< "there is no message 7"
    std::optional<TableNum> table = std::nullopt;  ///< whose records they are
};

constexpr KindName kKindNames[] = {
    {ParamKind::Location, "Location", "a location", "location", TableNum::Locations},
    {ParamKind::Message, "Message", "a message", "message", TableNum::Messages},
    {ParamKind::Object, "Object", "an object", "object", TableNum::Objects},
    {ParamKind::Process, "Process", "a process table", "process table", TableNum::ProcDesc},
    {ParamKind::SystemMessage, "SysMsg", "a system message", "system message", TableNum::SystemMessages},
    {ParamKind::Flag, "Flag", "a flag", "flag", TableNum::Flags},
    {ParamKind::Value, "Value", "a value", ""},
};

const KindName* NameOf(ParamKind kind) {
    const auto* found = std::find_if(std::begin(kKindNames), std::end(kKindNames),
                                     [kind](const KindName& name) { return name.kind == kind; });
    return found == std::end(kKindNames) ? nullptr : found;
}

struct WordField {
    std::string_view condAct;
    std::string_view field;
};

constexpr WordField kWordFields[] = {
    {"ADJECT1", "Adject"}, {"ADJECT2", "Adject"}, {"ADVERB", "Adverb"}, {"PREP", "Prep"}, {"NOUN2", "Noun"},
};

/// What an author reads of a place that is no room.
std::string_view MeaningOf(condacts::PlaceNumber place) {
    if (place == condacts::place::kNotCreated) return "not created";
    if (place == condacts::place::kWorn) return "worn by the player";
    return place == condacts::place::kCarried ? "carried by the player" : "where the player is";
}

const condacts::LocationWord* FindLocationWord(const Parameter& parameter, std::string_view token) {
    if (parameter.kind != ParamKind::Location) return nullptr;
    const std::optional<int> number = condacts::NumberOfToken(token);
    const bool words = condacts::AdmitsLocationWords(parameter);
    const auto* found =
        std::ranges::find_if(condacts::kLocationWords, [&](const condacts::LocationWord& entry) {
            return number == entry.number.value || (words && text::EqualsNoCase(entry.word, token));
        });
    return found == std::end(condacts::kLocationWords) ? nullptr : found;
}

Completion Numbered(const ListItem& item) {
    const std::string number = std::to_string(item.number);
    return {number, item.text.empty() ? number : number + "  " + item.text};
}

/// "a message", "an adverb", "a value from 0 to 100".
std::string PhraseOf(const CondAct& condAct, std::size_t place) {
    const Parameter& parameter = condAct.params[place];
    if (const auto* condition = condacts::FindWordCondition(condAct.name);
        condition != nullptr && parameter.kind == ParamKind::Word)
        return std::string(condition->phrase);
    const KindName* name = NameOf(parameter.kind);
    if (name == nullptr) return "a word";
    std::string phrase(name->phrase);
    if (parameter.kind == ParamKind::Value) phrase += " from 0 to " + std::to_string(parameter.maxValue);
    return phrase;
}

std::string MeaningOfName(const CondAct& condAct) {
    std::string meaning = condAct.name + (condAct.isAction ? ": action" : ": condition");
    for (std::size_t place = 0; place < static_cast<std::size_t>(condAct.paramCount); ++place)
        meaning += (place == 0 ? ", takes " : " and ") + PhraseOf(condAct, place);
    return meaning;
}

bool IsLetterOfAText(char c) {
    return static_cast<unsigned char>(c) > ' ' &&
           std::string_view(".,;:!?\"'()-").find(c) == std::string_view::npos;
}

bool BeginsWith(std::string_view text, std::string_view typed) {
    return text::EqualsNoCase(text.substr(0, typed.size()), typed);
}

/// What a number stands for is sought by its words, but not by digits: those are of the number.
bool BeginsOrHolds(const Completion& completion, std::string_view typed) {
    if (BeginsWith(completion.insert, typed)) return true;
    return !condacts::NumberOfToken(typed) && HasWordWith(completion.shown, typed);
}

}  // namespace

bool HasWordWith(std::string_view text, std::string_view typed) {
    const std::string lowered = text::LowerCase(text);
    const std::string sought = text::LowerCase(typed);
    for (std::size_t at = lowered.find(sought); at != std::string::npos;
         at = lowered.find(sought, at + 1)) {
        if (at == 0 || !IsLetterOfAText(lowered[at - 1])) return true;
    }
    return false;
}

CondActHelp::CondActHelp(store::Adventure& adventure)
    : catalogue_(condacts::LoadCatalogue(adventure)),
      facts_(condacts::LoadFacts(adventure)),
      texts_(LoadRecordTexts(adventure)) {
    store::PreparedQuery rows = adventure.Prepare(store::TableNum::CondActs, "canum, htmlpage", "");
    for (bool more = rows.First({}); more; more = rows.Next())
        pages_.try_emplace(static_cast<int>(rows.Number(0)), rows.Text(1));
}

CondActHelp::Place CondActHelp::Find(std::string_view line, std::size_t cursor) const {
    Place place;
    place.begin = place.end = std::min(cursor, line.size());
    for (const Token& token : condacts::SplitLine(line)) {
        if (place.end < token.position || place.end > token.position + token.text.size()) continue;
        place.begin = token.position;
        place.end = token.position + token.text.size();
        break;
    }
    const std::string_view before = line.substr(0, place.begin);
    const condacts::ParsedLine parsed = condacts::ParseLine(before, catalogue_, facts_.dialect);
    place.known = !parsed.unknownName;
    if (parsed.statements.empty() || parsed.unknownName) return place;
    const condacts::Statement& last = parsed.statements.back();
    if (last.paramsGiven == static_cast<std::size_t>(last.condAct->paramCount)) return place;
    place.condAct = last.condAct;
    place.parameter = last.paramsGiven;
    place.before = before.substr(parsed.tokens[last.name].position);
    return place;
}

std::vector<Completion> CondActHelp::Names() const {
    std::vector<Completion> names;
    for (const CondAct& condAct : catalogue_.All()) {
        if (condAct.ExistsIn(facts_.dialect)) names.push_back({condAct.name, condAct.name});
    }
    std::sort(names.begin(), names.end(),
              [](const Completion& a, const Completion& b) { return a.insert < b.insert; });
    return names;
}

std::vector<Completion> CondActHelp::Words(const CondAct& condAct) const {
    const condacts::WordCondition* condition = condacts::FindWordCondition(condAct.name);
    std::vector<Completion> words;
    if (condition == nullptr) return words;
    for (const condacts::Word& word : facts_.words.All()) {
        if (word.type == condition->wordType)
            words.push_back({word.word, word.word + "  " + std::to_string(word.number.value)});
    }
    return words;
}

std::vector<Completion> CondActHelp::Parameters(const CondAct& condAct, std::size_t place) const {
    const Parameter& parameter = condAct.params[place];
    if (parameter.kind == ParamKind::Word) return Words(condAct);
    const bool marloFlag = parameter.kind == ParamKind::Flag && facts_.dialect == condacts::Dialect::Marlo;
    std::vector<Completion> items;
    for (const ListItem& item : texts_.Of(parameter.kind)) {
        if (!marloFlag || item.number <= condacts::limit::kHighestMarloFlag)
            items.push_back(Numbered(item));
    }
    if (!condacts::AdmitsLocationWords(parameter)) return items;
    for (const condacts::LocationWord& entry : condacts::kLocationWords)
        items.push_back({std::string(entry.word),
                         std::string(entry.word).append("  ").append(MeaningOf(entry.number))});
    return items;
}

std::string_view CondActHelp::ParameterName(const CondAct& condAct, std::size_t place) {
    if (const KindName* name = NameOf(condAct.params[place].kind)) return name->field;
    const auto* found = std::find_if(std::begin(kWordFields), std::end(kWordFields),
                                     [&](const WordField& entry) { return entry.condAct == condAct.name; });
    return found == std::end(kWordFields) ? "Word" : found->field;
}

/// Whether a parameter passes the checks at its place. Those behind it may still be missing.
bool CondActHelp::Fits(const Place& place, std::string_view parameter) const {
    const std::string text = place.before + " " + std::string(parameter);
    const auto fault = condacts::ValidateCondAct(text, catalogue_, facts_);
    if (fault && fault->token == place.parameter + 1) return false;
    if (place.condAct->params[place.parameter].kind != ParamKind::Word) return true;
    return condacts::CondActsToNumeric(text, catalogue_, facts_.words).ok;
}

Completions CondActHelp::Complete(std::string_view line, std::size_t cursor) const {
    if (const auto name = FirstName(line); name && name->begin < cursor && cursor <= name->end)
        return CompleteName(line, cursor, *name);
    const Place place = Find(line, cursor);
    Completions found{.begin = place.begin, .end = place.end, .items = {}};
    if (!place.known) return found;
    const std::string_view typed = line.substr(place.begin, std::min(cursor, line.size()) - place.begin);
    if (place.condAct == nullptr) {
        for (Completion& name : Names()) {
            if (BeginsWith(name.insert, typed)) found.items.push_back(std::move(name));
        }
        return found;
    }
    for (Completion& item : Parameters(*place.condAct, place.parameter)) {
        if (BeginsOrHolds(item, typed) && Fits(place, item.insert)) found.items.push_back(std::move(item));
    }
    return found;
}

std::string CondActHelp::PhraseFor(std::string_view line, const TypedName& name) const {
    const Place place = Find(line, name.begin + 1);
    return PhraseOf(*place.condAct, place.parameter);
}

std::optional<NamedRecord> CondActHelp::Named(store::Adventure& adventure, std::string_view line,
                                              std::size_t cursor) const {
    const Place place = Find(line, cursor);
    if (!place.known || place.condAct == nullptr) return std::nullopt;
    const std::string_view token = line.substr(place.begin, place.end - place.begin);
    const Parameter& parameter = place.condAct->params[place.parameter];
    if (parameter.kind == ParamKind::Word) {
        const condacts::WordCondition* condition = condacts::FindWordCondition(place.condAct->name);
        const condacts::Word* word =
            condition == nullptr ? nullptr : facts_.words.FindTyped(token, condition->wordType);
        return word == nullptr ? std::nullopt : NamedWord(adventure, word->word, word->number);
    }
    const KindName* name = NameOf(parameter.kind);
    if (name == nullptr || !name->table) return std::nullopt;
    return NamedByNumber(*name->table, token);
}

const ListItem* CondActHelp::RecordOf(ParamKind kind, std::string_view token) const {
    const std::optional<int> number = condacts::NumberOfToken(token);
    const std::vector<ListItem>& records = texts_.Of(kind);
    const auto record = std::find_if(records.begin(), records.end(),
                                     [&](const ListItem& item) { return item.number == number; });
    return record == records.end() ? nullptr : &*record;
}

std::string CondActHelp::MeaningOfNumber(const Parameter& parameter, std::string_view token) const {
    if (const condacts::LocationWord* place = FindLocationWord(parameter, token))
        return std::string(MeaningOf(place->number));
    const std::optional<int> number = condacts::NumberOfToken(token);
    const KindName* name = NameOf(parameter.kind);
    if (!number || name == nullptr) return "";
    const ListItem* const record = RecordOf(parameter.kind, token);
    if (record == nullptr) return "there is no " + std::string(name->noun) + " " + std::string(token);
    return record->text.empty() ? std::string(kNoDescription) : record->text;
}

/// What the game says stands in quotes.
std::string CondActHelp::Quoted(ParamKind kind, std::string_view token, const std::string& meaning) const {
    const bool isSaid = kind == ParamKind::Message || kind == ParamKind::SystemMessage;
    const ListItem* const record = RecordOf(kind, token);
    if (!isSaid || record == nullptr || record->text.empty()) return meaning;
    return std::string("\u201C").append(meaning).append("\u201D");
}

std::string CondActHelp::MeaningOfParameter(const CondAct& condAct, std::size_t place,
                                            std::string_view token) const {
    const Parameter& parameter = condAct.params[place];
    if (parameter.kind == ParamKind::Value) return PhraseOf(condAct, place);
    if (parameter.kind != ParamKind::Word) return MeaningOfNumber(parameter, token);
    const condacts::WordCondition* condition = condacts::FindWordCondition(condAct.name);
    const condacts::Word* word =
        condition == nullptr ? nullptr : facts_.words.FindTyped(token, condition->wordType);
    if (word == nullptr) return "";
    return text::LowerCase(condacts::WordTypeName(word->type)) + " " + std::to_string(word->number.value);
}

std::string CondActHelp::Meaning(std::string_view line, std::size_t cursor) const {
    const Place place = Find(line, cursor);
    if (!place.known) return "";
    const std::string_view token = line.substr(place.begin, place.end - place.begin);
    if (place.condAct == nullptr) {
        const CondAct* condAct = catalogue_.Find(token, facts_.dialect);
        return condAct == nullptr ? "" : MeaningOfName(*condAct);
    }
    if (token.empty())
        return place.condAct->name + " takes " + PhraseOf(*place.condAct, place.parameter) + " here";
    const std::string meaning = MeaningOfParameter(*place.condAct, place.parameter, token);
    if (meaning.empty()) return "";
    return place.condAct->name + " " + text::UpperCase(token) + ": " + meaning;
}

/// As a line of an entry names it. Of flags the name is enough, and of process tables nothing where they
/// have none.
std::string CondActHelp::NameIn(const CondAct& condAct, std::size_t place, std::string_view token) const {
    const Parameter& parameter = condAct.params[place];
    const auto number = condacts::NumberOfToken(token);
    if (parameter.kind != ParamKind::Flag || !number) {
        const std::string meaning = MeaningOfParameter(condAct, place, token);
        return parameter.kind == ParamKind::Process && meaning == kNoDescription ? "" : meaning;
    }
    const auto flag =
        std::ranges::find_if(texts_.flags, [&](const ListItem& item) { return item.number == *number; });
    if (flag == texts_.flags.end()) return MeaningOfNumber(parameter, token);
    return FlagName(condacts::FlagNumber(*number), flag->text);
}

/// What a value stands for that is compared with a flag or put into it.
std::string CondActHelp::MeaningOfValue(const CondAct& condAct, std::string_view flagToken,
                                        std::string_view token) const {
    const auto flag = condacts::NumberOfToken(flagToken);
    const auto number = condacts::NumberOfToken(token);
    const condacts::HeldNumber* const held = flag && number && TakesWhatFlagHolds(condAct)
                                                 ? FindNamedNumber(condacts::FlagNumber(*flag))
                                                 : nullptr;
    if (held == nullptr) return "";
    if (held->kind != ParamKind::Word)
        return Quoted(held->kind, token, MeaningOfNumber({.kind = held->kind}, token));
    const condacts::WordNumber asked(*number);
    if (asked == condacts::kNoWordNumber) return "none";
    const condacts::Word* const word = facts_.words.FindNumberTyped(asked, held->wordType);
    return word ? word->word : "";
}

std::vector<ExplainedCondAct> CondActHelp::Explain(std::string_view line) const {
    // Behind a name nothing is understood yet.
    if (const auto name = FirstName(line)) line = line.substr(0, name->begin);
    const condacts::ParsedLine parsed = condacts::ParseLine(line, catalogue_, facts_.dialect);
    std::vector<ExplainedCondAct> explained;
    for (const condacts::Statement& statement : parsed.statements) {
        const CondAct& condAct = *statement.condAct;
        ExplainedCondAct each{.text = condAct.name, .meaning = "", .isAction = condAct.isAction};
        for (std::size_t place = 0; place < statement.paramsGiven; ++place) {
            const std::string_view token = parsed.Param(statement, place);
            each.text.append(" ").append(token);
            const bool isValue = condAct.params[place].kind == ParamKind::Value;
            const std::string meaning = isValue ? MeaningOfValue(condAct, parsed.Param(statement, 0), token)
                                                : NameIn(condAct, place, token);
            if (meaning.empty()) continue;
            if (!each.meaning.empty()) each.meaning += isValue ? ": " : ", ";
            each.meaning += Quoted(condAct.params[place].kind, token, meaning);
        }
        explained.push_back(std::move(each));
    }
    if (parsed.unknownName) {
        const std::string name(parsed.tokens[*parsed.unknownName].text);
        explained.push_back(
            {.text = name, .meaning = condacts::InvalidCondActMessage(name), .isFault = true});
    }
    return explained;
}

std::string CondActHelp::WithNames(std::string_view line) const {
    std::string text;
    for (const ExplainedCondAct& each : Explain(line)) {
        if (!text.empty()) text.append("  \u00B7  ");
        text.append(each.text);
        if (!each.meaning.empty()) text.append(" ").append(each.meaning);
    }
    return text;
}

std::string CondActHelp::Page(std::string_view line, std::size_t cursor) const {
    const Place place = Find(line, cursor);
    if (!place.known) return "";
    const std::string_view token = line.substr(place.begin, place.end - place.begin);
    const CondAct* condAct = place.condAct ? place.condAct : catalogue_.Find(token, facts_.dialect);
    const auto page = condAct ? pages_.find(condAct->number) : pages_.end();
    return page == pages_.end() ? "" : page->second;
}

std::optional<MarkedFault> CondActHelp::FirstFault(std::string_view line) const {
    const auto fault = condacts::ValidateCondActs(line, catalogue_, facts_);
    if (!fault) return std::nullopt;
    if (const auto name = FirstName(line))
        return MarkedFault{"Choose " + PhraseFor(line, *name), name->begin, name->end};
    const Token token = condacts::SplitLine(line).at(fault->token);
    return MarkedFault{fault->message, token.position, token.position + token.text.size()};
}

std::optional<MarkedFault> CondActHelp::FirstFaultWhileTyping(std::string_view line,
                                                              std::size_t cursor) const {
    std::optional<MarkedFault> fault = FirstFault(line);
    if (!fault || fault->end == cursor) return std::nullopt;
    const condacts::ParsedLine parsed = condacts::ParseLine(line, catalogue_, facts_.dialect);
    if (parsed.statements.empty()) return fault;
    const condacts::Statement& last = parsed.statements.back();
    const Token& end = parsed.tokens.back();
    const bool unfinished = parsed.tokens[last.name].position == fault->begin &&
                            last.paramsGiven < static_cast<std::size_t>(last.condAct->paramCount);
    if (unfinished && cursor >= end.position + end.text.size()) return std::nullopt;
    return fault;
}

}  // namespace fabula::authoring
