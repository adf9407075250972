#include <iostream>

#include "cli/verbs.h"
#include "platform/error.h"
#include "references/place_text.h"
#include "references/renumber.h"
#include "text/encoding/safe_text.h"

namespace fabula::cli {
namespace {

struct RenumberOptions {
    std::string file;
    std::string kind;
    int from = 0;
    int to = 0;
    bool dryRun = false;
};

void Show(const references::RenumberPlan& plan, references::PlaceText& places) {
    for (const references::FieldChange& change : plan.changes) {
        std::cout << text::SafeLines(places.RecordName(change.table, change.record) + ", " + change.field +
                                     ": " + text::ToText(change.before) + " -> " +
                                     text::ToText(change.after))
                  << "\n";
    }
    for (const std::string& warning : plan.warnings)
        std::cerr << "warning: " << text::SafeLines(warning) << "\n";
}

int RenumberVerb(const RenumberOptions& options) {
    const auto kind = references::KindFrom(options.kind);
    if (!kind) throw UsageError("there is no '" + options.kind + "' that bears a number");
    const auto adventure = options.dryRun ? OpenToRead(options.file) : OpenToChange(options.file);
    const references::RenumberPlan plan =
        references::PlanRenumbering(*adventure, {*kind, options.from}, options.to);
    if (!plan.refusal.empty()) throw Error(plan.refusal);
    references::PlaceText places(*adventure);
    Show(plan, places);
    if (options.dryRun) return kDone;
    store::Transaction transaction(*adventure);
    references::Renumber(*adventure, plan);
    transaction.Commit();
    return kDone;
}

}  // namespace

void AddRenumberVerb(CLI::App& verb, Chosen& chosen) {
    const auto options = std::make_shared<RenumberOptions>();
    verb.footer("What changes is shown, and what can't be followed is warned of.");
    AddAdventureOption(verb, options->file)->required();
    verb.add_option("kind", options->kind,
                    "flag, object, location, message, sysmess, process, picture, set")
        ->required();
    verb.add_option("from", options->from, "Its number")->required();
    verb.add_option("to", options->to, "Its new number")->required();
    verb.add_flag("--dry-run", options->dryRun, "Only show what would change");
    Runs(verb, chosen, options, RenumberVerb);
}

}  // namespace fabula::cli
