#include <gtest/gtest.h>

#include "condacts/process_filters.h"
#include "condacts/word_filters.h"

namespace fabula::condacts {
namespace {

TEST(BehindFixedProcesses, ArePassedByTheTablesFrom3) {
    EXPECT_EQ(BehindFixedProcesses("estype"), "estype>2");
}

TEST(OfWordTypes, AllowsAnyOfTheTypes) {
    EXPECT_EQ(OfWordTypes({kNoun}), "(voctypen=2)");
    EXPECT_EQ(OfWordTypes({kNoun, kReserved}), "(voctypen=2 or voctypen=7)");
}

TEST(OfEntryVerbs, AreVerbsNounsAndReservedWords) {
    EXPECT_EQ(OfEntryVerbs(), "(voctypen=0 or voctypen=2 or voctypen=7)");
}

TEST(ButReserved, LeavesOutTheReservedWords) {
    EXPECT_EQ(ButReserved(), "voctypen<>7");
}

TEST(MayBeEntryVerb, IsToldOfVerbsNounsAndReservedWords) {
    for (const WordType type : {kVerb, kNoun, kReserved})
        EXPECT_TRUE(MayBeEntryVerb({"GET", WordNumber(20), type})) << type;
    for (const WordType type : {kAdverb, kAdjective, kPreposition, kConjunction, kPronoun})
        EXPECT_FALSE(MayBeEntryVerb({"GET", WordNumber(20), type})) << type;
}

}  // namespace
}  // namespace fabula::condacts
