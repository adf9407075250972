#include "authoring/desk/search/renumber_screen.h"

#include "condacts/language/parser.h"
#include "platform/error.h"
#include "references/place_text.h"
#include "text/str_edit.h"

namespace fabula::authoring {

using references::Kind;

RenumberScreen::RenumberScreen(ScreenContext& context, store::TableNum table, int key)
    : context_(context), target_{*references::KindOf(table), key} {
    name_ = std::string(references::EntryOf(target_.kind).name) + " " + std::to_string(key);
    number = std::to_string(references::FreeNumber(context.document.Adventure(), target_.kind, key + 1));
}

bool RenumberScreen::CanRenumber(store::TableNum table) {
    const auto kind = references::KindOf(table);
    return kind && *kind != Kind::Word && *kind != Kind::Character;
}

references::RenumberPlan RenumberScreen::Plan() const {
    const auto to = condacts::NumberOfToken(text::TrimBlanks(number));
    if (!to) {
        references::RenumberPlan none;
        none.refusal = "Type the new number.";
        return none;
    }
    return references::PlanRenumbering(context_.document.Adventure(), target_, *to);
}

std::vector<std::string> RenumberScreen::Preview() {
    const references::RenumberPlan plan = Plan();
    if (!plan.refusal.empty()) return {plan.refusal};
    references::PlaceText places(context_.document.Adventure());
    std::vector<std::string> lines = plan.warnings;
    if (plan.swaps) lines.emplace_back("The number is taken: the two records swap.");
    for (const references::FieldChange& change : plan.changes) {
        // The compiled form follows its text.
        if (change.field == "numericcondacts" || change.field == "numericexits") continue;
        lines.push_back(places.RecordName(change.table, change.record) + ", " + change.field + ": " +
                        text::ToText(change.before) + " becomes " + text::ToText(change.after));
    }
    return lines;
}

bool RenumberScreen::Update() {
    try {
        return Store();
    } catch (const Error& error) {
        return Refuse(context_.dialogs, error.what());
    }
}

bool RenumberScreen::Store() {
    const references::RenumberPlan plan = Plan();
    if (!plan.refusal.empty()) return Refuse(context_.dialogs, plan.refusal);
    const int to = condacts::NumberOfToken(text::TrimBlanks(number)).value_or(0);
    Change change(context_.document, "number " + name_ + " " + std::to_string(to));
    references::Renumber(context_.document.Adventure(), plan);
    change.Commit();
    context_.document.Adventure().ReadSettings();
    ReadNextKeys(context_);
    target_.number = to;
    return true;
}

}  // namespace fabula::authoring
