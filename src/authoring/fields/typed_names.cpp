#include <algorithm>

#include "authoring/fields/cond_act_place.h"
#include "authoring/fields/texts/brief_text.h"
#include "condacts/language/validate.h"
#include "text/encoding/utf8.h"
#include "text/str_edit.h"

// Names in place of numbers: records that are found by their texts while a line is typed.

namespace fabula::authoring {
namespace {

using condacts::ParamKind;
using condacts::Token;

constexpr char kQuote = '"';
constexpr char kAt = '@';

/// The name that begins at a byte of the line.
TypedName TypedNameFrom(std::string_view line, std::size_t begin) {
    TypedName name{.begin = begin, .end = line.size(), .text = "", .quoted = line[begin] == kQuote};
    const std::size_t close = line.find(name.quoted ? kQuote : ' ', begin + 1);
    const std::size_t end = std::min(close, line.size());
    name.text = line.substr(begin + 1, end - begin - 1);
    name.end = close != std::string_view::npos && name.quoted ? close + 1 : end;
    return name;
}

/// The text of what a list shows: it stands behind the number.
std::string_view TextOf(const Completion& item) {
    const std::string_view shown = item.shown;
    const std::size_t gap = shown.find("  ");
    return shown.substr(0, item.insert.size()) == item.insert && gap == item.insert.size()
               ? shown.substr(gap + 2)
               : shown;
}

bool Says(const Completion& item, std::string_view text) {
    // Of longer texts the beginning is known only.
    if (text::Length(text) >= static_cast<std::size_t>(kLongestBriefText)) return false;
    const std::string brief = BriefText(text);
    return text::EqualsNoCase(TextOf(item), brief) || text::EqualsNoCase(item.insert, brief);
}

}  // namespace

std::optional<TypedName> CondActHelp::FirstName(std::string_view line) const {
    const auto fault = condacts::ValidateCondActs(line, catalogue_, facts_);
    if (!fault) return std::nullopt;
    const Token token = condacts::SplitLine(line).at(fault->token);
    if (token.text.front() != kQuote && token.text.front() != kAt) return std::nullopt;
    const Place place = Find(line, token.position + token.text.size());
    if (!place.known || place.condAct == nullptr) return std::nullopt;
    if (place.condAct->params[place.parameter].kind == ParamKind::Value) return std::nullopt;
    return TypedNameFrom(line, token.position);
}

/// The records that may stand at a place and have the text in theirs, those that are called just so first.
std::vector<Completion> CondActHelp::Fitting(const Place& place, std::string_view text) const {
    std::vector<Completion> items;
    for (Completion& item : Parameters(*place.condAct, place.parameter)) {
        const bool sought = text.empty() || HasWordWith(TextOf(item), text) || Says(item, text);
        if (sought && Fits(place, item.insert)) items.push_back(std::move(item));
    }
    std::stable_partition(items.begin(), items.end(),
                          [&](const Completion& item) { return !text.empty() && Says(item, text); });
    return items;
}

Completions CondActHelp::CompleteName(std::string_view line, std::size_t cursor,
                                      const TypedName& name) const {
    const bool closed = name.end > name.begin + 1 + name.text.size();
    const std::string_view text = text::TrimBlanks(
        std::string_view(name.text).substr(0, std::min(cursor - name.begin - 1, name.text.size())));
    const Place place = Find(line, name.begin + 1);
    Completions found{.begin = name.begin, .end = closed ? name.end : cursor, .items = {}};
    found.items = Fitting(place, text);
    const bool there = !found.items.empty() && Says(found.items.front(), text);
    if (text.empty() || there || !newMessage_ || !name.quoted || !IsMessage(line, name)) return found;
    const std::string number = std::to_string(newMessage_->value);
    found.items.push_back(
        {number,
         std::string("Add message ").append(number).append(": \u201C").append(text).append("\u201D"),
         std::string(text)});
    return found;
}

std::vector<Completion> CondActHelp::MeantBy(std::string_view line, const TypedName& name) const {
    const std::string_view text = text::TrimBlanks(name.text);
    if (text.empty()) return {};
    std::vector<Completion> items = Fitting(Find(line, name.begin + 1), text);
    if (!items.empty() && Says(items.front(), text))
        std::erase_if(items, [&](const Completion& item) { return !Says(item, text); });
    return items;
}

bool CondActHelp::IsMessage(std::string_view line, const TypedName& name) const {
    const Place place = Find(line, name.begin + 1);
    return place.condAct->params[place.parameter].kind == ParamKind::Message;
}

void CondActHelp::AddMessage(condacts::MessageNumber number, std::string_view text) {
    facts_.messages.insert(number);
    texts_.messages.push_back({number.value, BriefText(text)});
}

}  // namespace fabula::authoring
