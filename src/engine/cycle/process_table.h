#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "engine/numbers.h"

namespace fabula::engine {

/// One entry of a process table. Its condacts are `length` numbers of the list that all entries share.
struct ProcessEntry {
    WordNumber verb;
    WordNumber noun;
    std::int32_t record = 0;  ///< its record key (`canum`), for messages
    std::uint32_t first = 0;
    std::uint32_t length = 0;
};

/// The entries of one process in their order, and which of them a sentence fits. A word of an entry fits
/// its own number; a wild one fits every number.
class ProcessTable {
  public:
    void Add(const ProcessEntry& entry) { entries_.push_back(entry); }
    /// Once, when all entries are there. `oneIsWild`: 1 is wild as 255 is.
    void BuildIndex(bool oneIsWild);

    int Count() const { return static_cast<int>(entries_.size()); }
    const ProcessEntry& operator[](int entry) const { return entries_[static_cast<std::size_t>(entry)]; }

    /// The first entry from `from` (at least 0) on that fits a verb and a noun; Count() when none does. It
    /// takes the time of finding a few numbers in a sorted list, however many entries do not fit.
    int FindMatch(int from, WordNumber verb, WordNumber noun) const;

    static constexpr bool IsWild(WordNumber word, bool oneIsWild) {
        return word == kNoWordNumber || (oneIsWild && word == condacts::kAnyWordNumber);
    }

  private:
    int FindExact(int from, WordNumber verb, WordNumber noun) const;

    std::vector<ProcessEntry> entries_;
    /// Verb, noun and place of each entry in one number, sorted; wild words are kNoWordNumber.
    std::vector<std::uint64_t> index_;
};

}  // namespace fabula::engine
