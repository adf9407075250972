#include "references/index.h"

#include <algorithm>
#include <tuple>
#include <utility>

#include "store/query/keyed_rows.h"

namespace fabula::references {
namespace {

using condacts::FlagNumber;
using store::TableNum;

auto PlaceOf(const Use& use) {
    return std::tuple(use.table, use.record, use.field, use.token);
}

void Sort(std::vector<Use>& uses) {
    std::stable_sort(uses.begin(), uses.end(),
                     [](const Use& a, const Use& b) { return PlaceOf(a) < PlaceOf(b); });
}

const SourceTable* FindSource(TableNum table) {
    for (const SourceTable& source : SourceTables()) {
        if (source.table == table) return &source;
    }
    return nullptr;
}

}  // namespace

Index::Index(store::Adventure& adventure) {
    ReadAll(adventure);
}

void Index::ReadAll(store::Adventure& adventure) {
    const store::ReadTransaction reading(adventure);
    language_ = LoadLanguage(adventure);
    byRecord_.clear();
    byTarget_.clear();
    carriers_.clear();
    for (const SourceTable& source : SourceTables()) {
        store::KeyedRows rows(adventure, source.table, source.fields);
        for (bool more = rows.First(); more; more = rows.Next())
            Put({source.table, rows.Key()}, UsesIn(rows, source, language_));
    }
}

void Index::Update(store::Adventure& adventure, std::string_view changes) {
    const std::set<Record> touched = store::RecordsOf(changes);
    if (std::any_of(touched.begin(), touched.end(),
                    [](const Record& record) { return BelongsToLanguage(record.table); }))
        return ReadAll(adventure);
    const SourceTable* source = nullptr;
    std::optional<store::KeyedRows> rows;
    for (const Record& record : touched) {
        if (source == nullptr || source->table != record.table) {
            rows.reset();
            source = FindSource(record.table);
        }
        if (source == nullptr) continue;
        if (!rows) rows.emplace(adventure, source->table, source->fields);
        Take(record);
        if (rows->Only(record.storeKey)) Put(record, UsesIn(*rows, *source, language_));
    }
}

void Index::Put(const Record& record, std::vector<KeptUse> uses) {
    if (uses.empty()) return;
    for (const KeptUse& kept : uses) {
        byTarget_[kept.use.target].insert(record);
        Count(kept, 1);
    }
    byRecord_.insert_or_assign(record, std::move(uses));
}

void Index::Take(const Record& record) {
    const auto found = byRecord_.find(record);
    if (found == byRecord_.end()) return;
    for (const KeptUse& kept : found->second) {
        Count(kept, -1);
        const auto records = byTarget_.find(kept.use.target);
        if (records == byTarget_.end()) continue;
        records->second.erase(record);
        if (records->second.empty()) byTarget_.erase(records);
    }
    byRecord_.erase(found);
}

void Index::Count(const KeptUse& kept, int difference) {
    if (!kept.carries) return;
    const std::pair key(*kept.carries, FlagNumber(kept.use.target.number));
    if ((carriers_[key] += difference) == 0) carriers_.erase(key);
}

template <typename Visit>
void Index::ForEachUse(const Target& target, Visit visit) const {
    const auto records = byTarget_.find(target);
    if (records == byTarget_.end()) return;
    for (const Record& record : records->second) {
        for (const KeptUse& kept : byRecord_.at(record)) {
            if (kept.use.target == target) visit(kept);
        }
    }
}

std::vector<Use> Index::UsesOf(const Target& target, WordTypes types) const {
    std::vector<Use> found;
    ForEachUse(target, [&](const KeptUse& kept) {
        if (target.kind != Kind::Word || (kept.use.wordTypes & types) != 0) found.push_back(kept.use);
    });
    AppendValues(target, found);
    AppendCarriers(target, found);
    Sort(found);
    return found;
}

/// Numbers that flags are given or compared with, where they are later taken for what is sought.
void Index::AppendValues(const Target& target, std::vector<Use>& found) const {
    for (auto carrier = carriers_.lower_bound({target.kind, FlagNumber(0)});
         carrier != carriers_.end() && carrier->first.first == target.kind; ++carrier) {
        const FlagNumber flag = carrier->first.second;
        if (FindFlagMeaning(flag)) continue;
        ForEachUse(Target::Of(flag), [&](const KeptUse& kept) {
            if (kept.value != target.number) return;
            Use use = kept.use;
            use.target = target;
            ++use.token;
            use.access = Access::Names;
            use.possible = true;
            found.push_back(use);
        });
    }
}

/// The places that take the number from a flag which may hold any.
void Index::AppendCarriers(const Target& target, std::vector<Use>& found) const {
    for (auto carrier = carriers_.lower_bound({target.kind, FlagNumber(0)});
         carrier != carriers_.end() && carrier->first.first == target.kind; ++carrier) {
        const FlagNumber flag = carrier->first.second;
        if (FindFlagMeaning(flag) || !IsComputed(flag)) continue;
        ForEachUse(Target::Of(flag), [&](const KeptUse& kept) {
            if (kept.carries != target.kind || kept.computes) return;
            Use use = kept.use;
            use.target = target;
            use.access = Access::Names;
            use.possible = true;
            found.push_back(use);
        });
    }
}

bool Index::IsComputed(FlagNumber flag) const {
    bool computed = false;
    ForEachUse(Target::Of(flag), [&](const KeptUse& kept) { computed = computed || kept.computes; });
    return computed;
}

bool Index::Carries(FlagNumber flag, Kind kind) const {
    return carriers_.contains({kind, flag});
}

int Index::CountOf(const Target& target, WordTypes types) const {
    int count = 0;
    ForEachUse(target, [&](const KeptUse& kept) {
        const bool counts = target.kind != Kind::Word || (kept.use.wordTypes & types) != 0;
        if (counts && !kept.use.possible) ++count;
    });
    return count;
}

std::vector<Use> Index::UsesBy(TableNum table, std::int64_t record) const {
    std::vector<Use> found;
    for (auto at = byRecord_.lower_bound({table, INT64_MIN});
         at != byRecord_.end() && at->first.table == table; ++at) {
        if (at->second.front().use.record != record) continue;
        for (const KeptUse& kept : at->second)
            found.push_back(kept.use);
    }
    return found;
}

std::map<Target, std::vector<KeptUse>> Index::AllUses() const {
    std::map<Target, std::vector<KeptUse>> all;
    for (const auto& [record, uses] : byRecord_) {
        for (const KeptUse& kept : uses)
            all[kept.use.target].push_back(kept);
    }
    return all;
}

bool operator==(const Index& a, const Index& b) {
    const auto same = [](const KeptUse& x, const KeptUse& y) {
        return x.use == y.use && x.carries == y.carries && x.value == y.value && x.computes == y.computes;
    };
    return a.byTarget_ == b.byTarget_ && a.carriers_ == b.carriers_ &&
           std::equal(a.byRecord_.begin(), a.byRecord_.end(), b.byRecord_.begin(), b.byRecord_.end(),
                      [&](const auto& x, const auto& y) {
                          return x.first == y.first && std::equal(x.second.begin(), x.second.end(),
                                                                  y.second.begin(), y.second.end(), same);
                      });
}

}  // namespace fabula::references
