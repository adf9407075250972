#include "pictures/characters/character_sets.h"

namespace fabula::pictures {

void CharacterSets::Add(const Character& character) {
    sets_[character.set].try_emplace(character.number, character);
}

bool CharacterSets::HasSet(int set) const {
    return sets_.contains(set);
}

const Character* CharacterSets::Find(int set, int number) const {
    const auto characters = sets_.find(set);
    if (characters == sets_.end()) return nullptr;
    const auto found = characters->second.find(number);
    return found == characters->second.end() ? nullptr : &found->second;
}

const Character* CharacterSets::FindFirst(int number) const {
    for (const auto& [set, characters] : sets_) {
        const auto found = characters.find(number);
        if (found != characters.end()) return &found->second;
    }
    return nullptr;
}

std::vector<const Character*> CharacterSets::OfSet(int set) const {
    std::vector<const Character*> characters;
    const auto found = sets_.find(set);
    if (found == sets_.end()) return characters;
    for (const auto& [number, character] : found->second) {
        characters.push_back(&character);
    }
    return characters;
}

std::vector<int> CharacterSets::Sets() const {
    std::vector<int> numbers;
    for (const auto& [set, characters] : sets_) {
        numbers.push_back(set);
    }
    return numbers;
}

}  // namespace fabula::pictures
