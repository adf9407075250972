#include "engine/cycle/process_table.h"

#include <algorithm>

namespace fabula::engine {

namespace {

std::uint64_t Key(WordNumber verb, WordNumber noun, int entry) {
    return std::uint64_t{static_cast<std::uint16_t>(verb.value)} << 48 |
           std::uint64_t{static_cast<std::uint16_t>(noun.value)} << 32 | static_cast<std::uint32_t>(entry);
}

}  // namespace

void ProcessTable::BuildIndex(bool oneIsWild) {
    const auto word = [&](WordNumber number) { return IsWild(number, oneIsWild) ? kNoWordNumber : number; };
    index_.clear();
    index_.reserve(entries_.size());
    for (int entry = 0; entry < Count(); ++entry)
        index_.push_back(Key(word((*this)[entry].verb), word((*this)[entry].noun), entry));
    std::sort(index_.begin(), index_.end());
}

int ProcessTable::FindExact(int from, WordNumber verb, WordNumber noun) const {
    const auto found = std::lower_bound(index_.begin(), index_.end(), Key(verb, noun, from));
    const std::uint64_t last = Key(verb, noun, Count());
    return found == index_.end() || *found >= last ? Count() : static_cast<int>(*found & 0xFFFFFFFF);
}

int ProcessTable::FindMatch(int from, WordNumber verb, WordNumber noun) const {
    return std::min({FindExact(from, verb, noun), FindExact(from, verb, kNoWordNumber),
                     FindExact(from, kNoWordNumber, noun), FindExact(from, kNoWordNumber, kNoWordNumber)});
}

}  // namespace fabula::engine
