#include "listings/tables/condition_texts.h"

#include <algorithm>

#include "condacts/language/load.h"
#include "condacts/language/parser.h"
#include "condacts/places.h"

namespace fabula::listings {
namespace {

using condacts::ParamKind;
using store::TableNum;

constexpr std::string_view kNoParameters = "No parameters for a Condition/Action which must have parameter";

/// The table that a kind of parameter counts in; nullopt for words and plain values.
std::optional<TableNum> TableOf(ParamKind kind) {
    switch (kind) {
        case ParamKind::Location:
            return TableNum::Locations;
        case ParamKind::Message:
            return TableNum::Messages;
        case ParamKind::Object:
            return TableNum::Objects;
        case ParamKind::Process:
            return TableNum::ProcessTables;
        case ParamKind::SystemMessage:
            return TableNum::SystemMessages;
        case ParamKind::Flag:
            return TableNum::Flags;
        case ParamKind::None:
        case ParamKind::Word:
        case ParamKind::Value:
            break;
    }
    return std::nullopt;
}

std::string_view SpecialPlaceWord(int number) {
    const auto* const word = std::ranges::find_if(
        condacts::kLocationWords,
        [&](const condacts::LocationWord& each) { return each.number.value == number; });
    return word == std::end(condacts::kLocationWords) ? "" : word->word;
}

/// The rest of a line behind its token number `from`.
std::string Rest(const condacts::ParsedLine& line, std::size_t from) {
    std::string rest;
    for (std::size_t i = from; i < line.tokens.size(); ++i)
        rest.append(" ").append(line.tokens[i].text);
    return rest;
}

void AddFault(std::string_view what, std::vector<ShownCondAct>& shown) {
    ShownCondAct& fault = shown.emplace_back();
    fault.name = what;
    fault.fault = true;
}

std::string TextIn(const std::vector<authoring::ListItem>& items, int number) {
    const auto found = std::ranges::lower_bound(items, number, {}, &authoring::ListItem::number);
    return found != items.end() && found->number == number ? found->text : "";
}

}  // namespace

std::string ShownCondAct::Text() const {
    std::string text = name;
    for (const ShownParameter& parameter : parameters)
        text.append(" ").append(parameter.text);
    return text;
}

ConditionTexts::ConditionTexts(store::Adventure& adventure, bool tells)
    : catalogue_(condacts::LoadCatalogue(adventure)), words_(condacts::LoadWords(adventure)) {
    if (tells) texts_ = authoring::LoadRecordTexts(adventure);
}

std::vector<ShownCondAct> ConditionTexts::Shown(std::string_view condActs) const {
    const condacts::ParsedLine line = condacts::ParseLine(condActs, catalogue_);
    std::vector<ShownCondAct> shown;
    for (const condacts::Statement& statement : line.statements) {
        const condacts::CondAct& condAct = *statement.condAct;
        ShownCondAct each{.name = condAct.name, .isAction = condAct.isAction};
        for (std::size_t i = 0; i < statement.paramsGiven; ++i)
            each.parameters.push_back(Parameter(condAct, i, line.Param(statement, i)));
        const bool tooFew = statement.paramsGiven < static_cast<std::size_t>(condAct.paramCount);
        shown.push_back(std::move(each));
        if (tooFew) AddFault(kNoParameters, shown);
    }
    if (line.unknownName) {
        const std::string_view name = line.tokens[*line.unknownName].text;
        AddFault(condacts::InvalidCondActMessage(name) + Rest(line, *line.unknownName + 1), shown);
    }
    return shown;
}

ShownParameter ConditionTexts::Parameter(const condacts::CondAct& condAct, std::size_t index,
                                         std::string_view stored) const {
    const condacts::Parameter& parameter = condAct.params.at(index);
    const std::optional<int> number = condacts::NumberOfToken(stored);
    ShownParameter shown{.text = std::string(stored)};
    if (!number) return shown;
    if (parameter.kind == ParamKind::Word) {
        const condacts::WordCondition* const asks = condacts::FindWordCondition(condAct.name);
        const condacts::Word* const word =
            asks ? words_.FindNumberTyped(condacts::WordNumber(*number), asks->wordType) : nullptr;
        if (word) shown.text = word->word;
        return shown;
    }
    if (parameter.kind == ParamKind::Location && condacts::IsSpecialPlace(std::int64_t{*number})) {
        shown.text = SpecialPlaceWord(*number);
        return shown;
    }
    const std::optional<TableNum> table = TableOf(parameter.kind);
    if (!table) return shown;
    shown.names = Place{*table, *number};
    shown.tells = TextIn(texts_.Of(parameter.kind), *number);
    return shown;
}

}  // namespace fabula::listings
