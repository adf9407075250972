#include "engine/diagnostics.h"

#include "condacts/limits.h"
#include "engine/actions/objects.h"
#include "engine/engine.h"
#include "engine/game.h"
#include "text/numbers.h"
#include "text/str_edit.h"

namespace fabula::engine {

namespace {

constexpr const char* kProtectedRefusal = "Cannot change that flag in Marlo";

std::string InvalidFlag(std::string_view given) {
    return "Invalid value for a Flag #: " + std::string(given);
}

/// A whole number of 16 bits, with blanks around it.
std::optional<int> NumberIn(std::string_view text) {
    const std::optional<int> value = text::SmallNumber(text::TrimBlanks(text));
    const bool fits = value && *value == static_cast<std::int16_t>(*value);
    return fits ? value : std::nullopt;
}

}  // namespace

Game& Diagnostics::Running() const {
    return *engine_.Running();
}

Diagnostics::Answer Diagnostics::DoIt(std::string_view request) {
    const std::string_view text = text::TrimBlanks(request);
    if (!engine_.Running()) return {"No game is running"};
    if (text.empty()) return {"Invalid option"};
    const std::string_view rest = text.substr(1);
    switch (text.front()) {
        case 'F':
        case 'f':
            return {View(rest, false, InvalidFlag(rest))};
        case 'O':
        case 'o':
            return {View(rest, true, "Invalid value for an Object #:")};
        case 'S':
        case 's':
            return {SetTo("S(et)", kSet)};
        case 'C':
        case 'c':
            return {SetTo("C(lear)", 0)};
        case '=':
            return {Assign(rest)};
        case 'H':
        case 'h':
            return {"", true};
        default:
            break;
    }
    if (text.front() < '0' || text.front() > '9') return {"Invalid option"};
    return {View(text, ObjectInView() != nullptr, InvalidFlag(text))};
}

std::string Diagnostics::DisplayVariable() const {
    if (!engine_.Running() || !Exists(inView_)) return {};
    if (const ObjectNumber* object = ObjectInView())
        return "O" + std::to_string(object->value) +
               " Location = " + std::to_string(Running().state.ObjectPlace(*object).value);
    const FlagNumber inView = std::get<FlagNumber>(inView_);
    return "F" + std::to_string(inView.value) + " = " + std::to_string(Running().Flag(inView));
}

bool Diagnostics::Exists(const Variable& variable) const {
    const RunState& state = Running().state;
    if (const auto* object = std::get_if<ObjectNumber>(&variable))
        return object->value >= 0 && object->value < state.ObjectCount();
    const int number = std::get<FlagNumber>(variable).value;
    return number >= 0 && number < state.FlagCount();
}

std::string Diagnostics::View(std::string_view number, bool object, const std::string& refusal) {
    const std::optional<int> value = NumberIn(number);
    if (!value) return refusal;
    const Variable wanted = object ? Variable(ObjectNumber(*value)) : Variable(FlagNumber(*value));
    if (!Exists(wanted)) return refusal;
    inView_ = wanted;
    return {};
}

/// Games of the oldest engine know flags 0 to 32. Of the others only the player's place, the long texts and
/// the trace are for the author's hand.
bool Diagnostics::IsProtected(FlagNumber inView) const {
    if (!Running().IsMarlo() || inView.value <= condacts::limit::kHighestMarloFlag) return false;
    return inView != flag::kLocation && inView != flag::kLongText && inView != flag::kTraceFile &&
           inView != flag::kTrace;
}

std::string Diagnostics::SetTo(std::string_view name, int value) {
    if (ObjectInView()) return std::string(name) + " cannot be used on Objects";
    const FlagNumber inView = std::get<FlagNumber>(inView_);
    if (IsProtected(inView)) return kProtectedRefusal;
    Running().SetFlag(inView, value);
    return {};
}

std::string Diagnostics::Assign(std::string_view number) {
    if (text::TrimBlanks(number).empty()) return "no number after the =";
    const std::optional<int> value = NumberIn(number);
    if (!value) return "Value after the = is not numeric";
    const ObjectNumber* object = ObjectInView();
    if (!object) return AssignFlag(std::get<FlagNumber>(inView_), *value);
    const PlaceNumber where(*value);
    if (where == place::kHere)
        return "An object cannot be put at location " + std::to_string(place::kHere.value);
    PlaceObject(Running(), *object, where);
    return {};
}

std::string Diagnostics::AssignFlag(FlagNumber inView, int value) {
    if (inView == flag::kLocation && !Running().data.LocationExists(PlaceNumber(value))) {
        return "Invalid location for Flag 38: " + std::to_string(value);
    }
    if (inView == flag::kTraceFile || inView == flag::kTrace) {
        return "Flags 1004 & 1005 can only be SET or CLEAR";
    }
    if (IsProtected(inView)) return kProtectedRefusal;
    Running().SetFlag(inView, value);
    return {};
}

}  // namespace fabula::engine
