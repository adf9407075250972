#include "condacts/language/catalogue.h"

#include <utility>

#include "condacts/words.h"
#include "text/encoding/utf8.h"

namespace fabula::condacts {
namespace {

constexpr WordCondition kWordConditions[] = {
    {"ADJECT1", kAdjective, "an adjective"}, {"ADJECT2", kAdjective, "an adjective"},
    {"ADVERB", kAdverb, "an adverb"},        {"NOUN2", kNoun, "a noun"},
    {"PREP", kPreposition, "a preposition"},
};

}  // namespace

Dialect DialectOf(store::AdventureKind kind) {
    switch (kind) {
        case store::AdventureKind::Vel:
            return Dialect::Vel;
        case store::AdventureKind::Marlo:
            return Dialect::Marlo;
        case store::AdventureKind::Fabula:
            break;
    }
    return Dialect::Fabula;
}

bool CondAct::ExistsIn(Dialect dialect) const {
    switch (dialect) {
        case Dialect::Fabula:
            return fabula;
        case Dialect::Vel:
            return vel;
        case Dialect::Marlo:
            return marlo;
        case Dialect::PCVel:
            return pcVel;
    }
    return false;
}

Catalogue::Catalogue(std::vector<CondAct> condActs) : condActs_(std::move(condActs)) {
    for (std::size_t i = 0; i < condActs_.size(); ++i) {
        byName_.try_emplace(text::LowerCase(condActs_[i].name), i);
        byNumber_.try_emplace(condActs_[i].number, i);
    }
}

const CondAct* Catalogue::Find(std::string_view name) const {
    const auto found = byName_.find(text::LowerCase(name));
    return found == byName_.end() ? nullptr : &condActs_[found->second];
}

const CondAct* Catalogue::Find(std::string_view name, Dialect dialect) const {
    const CondAct* condAct = Find(name);
    return condAct != nullptr && condAct->ExistsIn(dialect) ? condAct : nullptr;
}

const CondAct* Catalogue::Find(int number) const {
    const auto found = byNumber_.find(number);
    return found == byNumber_.end() ? nullptr : &condActs_[found->second];
}

const WordCondition* FindWordCondition(std::string_view name) {
    for (const WordCondition& condition : kWordConditions) {
        if (text::EqualsNoCase(condition.name, name)) return &condition;
    }
    return nullptr;
}

}  // namespace fabula::condacts
