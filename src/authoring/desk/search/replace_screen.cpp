#include "authoring/desk/search/replace_screen.h"

#include <algorithm>
#include <set>
#include <utility>

#include "platform/error.h"
#include "references/place_text.h"

namespace fabula::authoring {
namespace {

std::string Count(int places, int records) {
    return std::to_string(places) + (places == 1 ? " place in " : " places in ") + std::to_string(records) +
           (records == 1 ? " record" : " records");
}

}  // namespace

std::vector<std::string> ReplaceScreen::Scopes() {
    std::vector<std::string> names;
    for (const references::SearchedField& field : references::SearchedFields()) {
        if (names.empty() || names.back() != field.name) names.emplace_back(field.name);
    }
    return names;
}

bool ReplaceScreen::Find() {
    if (wanted.text.empty()) return Refuse(context_.dialogs, "Type what is to be looked for.");
    std::vector<references::Hit> found;
    references::SearchScope where;
    if (!scope.empty()) where.insert(scope);
    try {
        found = references::FindEverywhere(context_.document.Adventure(), wanted, where, true);
    } catch (const Error& error) {
        return Refuse(context_.dialogs, error.what());
    }
    references::PlaceText places(context_.document.Adventure());
    hits_.clear();
    std::set<std::pair<store::TableNum, std::int64_t>> records;
    for (references::Hit& hit : found) {
        records.insert({hit.where->table, hit.record});
        std::string place = places.RecordName(hit.where->table, hit.record);
        const bool fits = hit.refusal.empty();
        hits_.push_back({std::move(hit), std::move(place), fits});
    }
    status_ = hits_.empty() ? "Nothing was found."
                            : Count(static_cast<int>(hits_.size()), static_cast<int>(records.size())) + ".";
    return true;
}

void ReplaceScreen::Forget() {
    hits_.clear();
    status_ = "Find shows what is found now.";
}

bool ReplaceScreen::Replace() {
    std::vector<references::Hit> ticked;
    for (const Found& found : hits_) {
        if (found.ticked && found.hit.refusal.empty()) ticked.push_back(found.hit);
    }
    if (ticked.empty()) return Refuse(context_.dialogs, "Nothing is ticked that could be replaced.");
    references::Replaced done;
    try {
        Change change(context_.document, "replace " + wanted.text);
        done = references::ReplaceHits(context_.document.Adventure(), ticked);
        change.Commit();
    } catch (const Error& error) {
        return Refuse(context_.dialogs, error.what());
    }
    std::string refused;
    for (const std::string& why : done.refused)
        refused.append("\n").append(why);
    if (!refused.empty()) context_.dialogs.Tell("Left as they were:" + refused, kCaption);
    hits_.clear();
    status_ = "Replaced " + Count(done.places, done.records) + ".";
    return done.places > 0;
}

}  // namespace fabula::authoring
