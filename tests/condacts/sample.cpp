#include "sample.h"

namespace fabula::condacts {
namespace {

constexpr bool kAction = true;
constexpr bool kCondition = false;

CondAct Row(int number, bool isAction, const char* name, int paramCount, Parameter first = {},
            Parameter second = {}) {
    CondAct condAct;
    condAct.number = number;
    condAct.isAction = isAction;
    condAct.name = name;
    condAct.paramCount = paramCount;
    condAct.params = {first, second};
    return condAct;
}

template <typename Number>
std::set<Number> NumbersBelow(int end) {
    std::set<Number> numbers;
    for (int number = 0; number < end; ++number)
        numbers.insert(Number(number));
    return numbers;
}

CondAct OnlyFabula(CondAct condAct) {
    condAct.vel = condAct.marlo = condAct.pcVel = false;
    return condAct;
}

}  // namespace

Catalogue SampleCatalogue() {
    using enum ParamKind;
    return Catalogue({
        Row(101, kCondition, "AT", 1, {Location, 255}),
        Row(105, kCondition, "PRESENT", 1, {Object, -1}),
        Row(109, kCondition, "CARRIED", 1, {Object, 255}),
        Row(113, kCondition, "ZERO", 1, {Flag, 0}),
        Row(115, kCondition, "EQ", 2, {Flag, 0}, {Value, 255}),
        Row(121, kCondition, "ADJECT1", 1, {Word, 0}),
        Row(122, kCondition, "ADVERB", 1, {Word, 0}),
        Row(123, kCondition, "PREP", 1, {Word, 0}),
        Row(124, kCondition, "NOUN2", 1, {Word, 0}),
        Row(125, kCondition, "ADJECT2", 1, {Word, 0}),
        Row(205, kAction, "CREATE", 1, {Object, -1}),
        Row(208, kAction, "PLACE", 2, {Object, -1}, {Location, 255}),
        Row(210, kAction, "PUTIN", 2, {Object, -1}, {Location, 255}),
        Row(211, kAction, "TAKEOUT", 2, {Object, -1}, {Location, 255}),
        Row(224, kAction, "SET", 1, {Flag, 0}),
        Row(225, kAction, "CLEAR", 1, {Flag, 0}),
        Row(228, kAction, "LET", 2, {Flag, 0}, {Value, 255}),
        Row(234, kAction, "GOTO", 1, {Location, -1}),
        Row(240, kAction, "PROMPT", 1, {SystemMessage, 5}),
        Row(250, kAction, "MESSAGE", 1, {Message, 0}),
        Row(251, kAction, "SYSMESS", 1, {SystemMessage, 255}),
        Row(265, kAction, "DONE", 0),
        Row(277, kAction, "PROCESS", 1, {Process, 0}),
        OnlyFabula(Row(290, kAction, "AUTODEC", 2, {Flag, 0}, {Value, 255})),
        OnlyFabula(Row(291, kAction, "AUTOINC", 2, {Flag, 0}, {Value, 255})),
    });
}

Facts SampleFacts() {
    Facts facts;
    facts.locations = NumbersBelow<PlaceNumber>(5);
    facts.messages = NumbersBelow<MessageNumber>(6);
    facts.systemMessages = NumbersBelow<SystemMessageNumber>(54);
    facts.processes = NumbersBelow<ProcessNumber>(4);
    for (const FlagNumber flag : NumbersBelow<FlagNumber>(1025))
        facts.flags[flag] = {false, true};
    facts.flags[FlagNumber(28)] = {true, true};
    facts.flags[FlagNumber(38)] = {true, false};
    facts.objects = {{ObjectNumber(0), 1},
                     {ObjectNumber(1), 2},
                     {ObjectNumber(2), 0},
                     {ObjectNumber(3), 0},
                     {ObjectNumber(4), 1}};
    facts.locationsWithExits = NumbersBelow<PlaceNumber>(4);
    facts.words = WordIndex({
        {"LIGHT", WordNumber(30), kVerb},
        {"SLOWL", WordNumber(5), kAdverb},
        {"LAMP", WordNumber(50), kNoun},
        {"LIGHT", WordNumber(51), kNoun},
        {"RED", WordNumber(2), kAdjective},
        {"THROUGH", WordNumber(4), kPreposition},
        {"UNDER", WordNumber(6), kPreposition},
        {"SATCHEL", WordNumber(52), kNoun},
        {"LAMPS", WordNumber(53), kNoun},
        {"LAMPS", WordNumber(54), kNoun},
        {"*", WordNumber(1), kReserved},
        {"_", WordNumber(255), kReserved},
    });
    return facts;
}

}  // namespace fabula::condacts
