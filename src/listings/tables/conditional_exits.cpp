#include "listings/tables/conditional_exits.h"

#include <optional>
#include <utility>

#include "condacts/words.h"

namespace fabula::listings {
namespace {

using condacts::PlaceNumber;
using store::TableNum;
using Exits = std::map<PlaceNumber, std::vector<ConditionalExit>>;

std::string WordsOf(std::string_view verb, std::string_view noun, condacts::WordNumber nounNumber) {
    std::string words(verb);
    const bool any = nounNumber.value == 1 || nounNumber == condacts::kNoWordNumber;
    if (!any) words.append(" ").append(noun);
    return words;
}

void Add(Exits& exits, const ConditionalExit& words, const std::vector<ShownCondAct>& entry) {
    std::optional<PlaceNumber> from;
    std::string condition;
    for (const ShownCondAct& each : entry) {
        if (each.fault) return;
        const bool hasPlace = !each.parameters.empty() && each.parameters.front().names;
        if (each.name == "AT" && hasPlace && !from) {
            from = PlaceNumber(each.parameters.front().names->number);
        } else if (each.name == "GOTO" && hasPlace && from) {
            ConditionalExit exit = words;
            exit.destination = PlaceNumber(each.parameters.front().names->number);
            exit.condition = condition;
            exits[*from].push_back(std::move(exit));
        } else if (!each.isAction) {
            if (!condition.empty()) condition += ' ';
            condition += each.Text();
        }
    }
}

}  // namespace

Exits LoadConditionalExits(store::Adventure& adventure, const ConditionTexts& texts) {
    Exits exits;
    store::PreparedQuery rows = adventure.Prepare(TableNum::ProcessTables, "w1num, w1, w2, w2num, condacts",
                                                  "condacts like '*GOTO*'");
    for (bool more = rows.First({}); more; more = rows.Next()) {
        const condacts::WordNumber verb(static_cast<int>(rows.Number(0)));
        const condacts::WordNumber noun(static_cast<int>(rows.Number(3)));
        const ConditionalExit words{verb, WordsOf(rows.Text(1), rows.Text(2), noun), {}, ""};
        Add(exits, words, texts.Shown(rows.Text(4)));
    }
    return exits;
}

}  // namespace fabula::listings
