#include "engine/cycle/process_table.h"

#include <random>

#include <gtest/gtest.h>

namespace fabula::engine {
namespace {

constexpr int kMostEntries = 40;

int Find(const ProcessTable& table, int from, int verb, int noun) {
    return table.FindMatch(from, WordNumber(verb), WordNumber(noun));
}

/// What FindMatch is told to be: a look at each entry.
int Scan(const ProcessTable& table, int from, int verb, int noun, bool oneIsWild) {
    const auto wild = [&](int word) { return word == 255 || (word == 1 && oneIsWild); };
    for (int entry = from; entry < table.Count(); ++entry) {
        const bool verbFits = table[entry].verb.value == verb || wild(table[entry].verb.value);
        const bool nounFits = table[entry].noun.value == noun || wild(table[entry].noun.value);
        if (verbFits && nounFits) return entry;
    }
    return table.Count();
}

ProcessTable RandomTable(std::mt19937& random, bool oneIsWild) {
    static constexpr std::int16_t kWords[] = {255, 1, 2, 100, 101, 0, -1, 32767, -32768};
    ProcessTable table;
    for (auto left = random() % kMostEntries; left > 0; --left) {
        ProcessEntry entry;
        entry.verb = WordNumber(kWords[random() % std::size(kWords)]);
        entry.noun = WordNumber(kWords[random() % std::size(kWords)]);
        table.Add(entry);
    }
    table.BuildIndex(oneIsWild);
    return table;
}

TEST(ProcessTable, FindsWhatALookAtEachEntryWouldFind) {
    std::mt19937 random(1);
    for (int round = 0; round < 300; ++round) {
        const bool oneIsWild = round % 2 == 0;
        const ProcessTable table = RandomTable(random, oneIsWild);
        for (const int verb : {255, 1, 2, 100, 101, 0, -1, 32767, -32768, 7}) {
            for (const int noun : {255, 1, 2, 100, 101, 0, -1, 32767, -32768, 7}) {
                for (int from = 0; from <= table.Count(); ++from) {
                    ASSERT_EQ(Find(table, from, verb, noun), Scan(table, from, verb, noun, oneIsWild))
                        << "round " << round << ", words " << verb << " " << noun << ", from " << from;
                }
            }
        }
    }
}

TEST(ProcessTable, TakesWildEntriesInTheirPlacesAmongTheOthers) {
    ProcessTable table;
    for (const auto& [verb, noun] :
         {std::pair{100, 60}, {255, 60}, {101, 60}, {100, 255}, {255, 255}, {100, 60}}) {
        ProcessEntry entry;
        entry.verb = WordNumber(verb);
        entry.noun = WordNumber(noun);
        table.Add(entry);
    }
    table.BuildIndex(true);
    EXPECT_EQ(Find(table, 0, 100, 60), 0);
    EXPECT_EQ(Find(table, 1, 100, 60), 1);
    EXPECT_EQ(Find(table, 2, 100, 60), 3);
    EXPECT_EQ(Find(table, 4, 100, 60), 4);
    EXPECT_EQ(Find(table, 5, 100, 60), 5);
    EXPECT_EQ(Find(table, 6, 100, 60), 6);
    EXPECT_EQ(Find(table, 0, 7, 7), 4);
}

TEST(ProcessTable, WithoutEntriesHasNoMatch) {
    ProcessTable table;
    table.BuildIndex(true);
    EXPECT_EQ(Find(table, 0, 255, 255), 0);
}

}  // namespace
}  // namespace fabula::engine
