#include <string>

#include <gtest/gtest.h>

#include "listings/listed_adventure.h"
#include "platform/error.h"

namespace fabula::listings {
namespace {

using store::TableNum;

class ProcessReports : public testing::Test {
  protected:
    ProcessReports() {
        Empty(*adventure_, TableNum::ProcessTables);
        Empty(*adventure_, TableNum::Vocabulary);
        Word("GET", 20, 0);
        Word("LAMP", 50, 2);
        Word("BRASS", 60, 3);
        Word("_", 255, 7);
        Word("*", 1, 7);
    }
    void Word(std::string word, int number, int type) {
        AddRecord(*adventure_, TableNum::Vocabulary,
                  {{"vocindex", std::int64_t{++words_}},
                   {"vocnum", std::int64_t{number}},
                   {"word", std::move(word)},
                   {"voctypen", std::int64_t{type}}});
    }
    void Entry(int process, std::string condActs, int verb = 20, int noun = 50,
               std::string nounWord = "LAMP") {
        AddRecord(*adventure_, TableNum::ProcessTables,
                  {{"canum", std::int64_t{++entries_}},
                   {"estype", std::int64_t{process}},
                   {"w1", std::string("GET")},
                   {"w2", std::move(nounWord)},
                   {"w1num", std::int64_t{verb}},
                   {"w2num", std::int64_t{noun}},
                   {"condacts", std::move(condActs)}});
    }
    std::string Entries(const ReportRequest& request = {}) {
        return Behind(Listed(*adventure_, "processes", request), "------");
    }

    static constexpr const char* kIndent = "                                                              ";

    test::OpenedAdventure adventure_;
    int words_ = 0;
    int entries_ = 0;
};

TEST_F(ProcessReports, EntryHasOneLineForEachConditionAndAction) {
    Entry(0, "PRESENT 3 SWAP 3 4 DONE");
    EXPECT_EQ(Entries(), "GET                            LAMP                           PRESENT 3\n" +
                             std::string(kIndent) + "SWAP    3      4\n" + kIndent + "DONE\n");
}

TEST_F(ProcessReports, CommentsStandInFrontOfEntriesInTheVerboseForm) {
    Entry(0, "DESC DONE");
    store::Cursor& entry = adventure_->OpenTable(TableNum::ProcessTables, "def");
    entry.SetField("comment", std::string("First.\u008CThen."));
    entry.Update();
    EXPECT_EQ(Entries().find("First"), std::string::npos);
    EXPECT_TRUE(Entries({.detail = Detail::Verbose})
                    .starts_with("Comment: First.\n         Then.\nGET                            LAMP"))
        << Entries({.detail = Detail::Verbose});
}

TEST_F(ProcessReports, ContinuationLinesStartInColumn62) {
    Entry(0, "DESC DONE");
    EXPECT_EQ(Behind(Entries(), "DESC").find("DONE"), 62u);
}

TEST_F(ProcessReports, HeadingIsTheDescriptionOfTheTable) {
    Entry(1, "DONE");
    const std::string listed = Listed(*adventure_, "processes");
    EXPECT_NE(listed.find("Process Table 1 Listing"), std::string::npos);
    EXPECT_NE(listed.find("\n\nDone after a DESC\nVerb"), std::string::npos);
}

TEST_F(ProcessReports, TablesWithoutEntriesAreLeftOut) {
    Entry(3, "DONE");
    const std::string listed = Listed(*adventure_, "processes");
    EXPECT_EQ(listed.find("Process Table 0"), std::string::npos);
    EXPECT_NE(listed.find("Process Table 3"), std::string::npos);
}

TEST_F(ProcessReports, ParametersThatNameAWordOrASpecialPlaceAreWords) {
    Entry(0, "ADJECT1 60 PLACE 3 254 PLACE 4 252");
    const std::string listed = Entries();
    EXPECT_NE(listed.find("ADJECT1 BRASS\n"), std::string::npos) << listed;
    EXPECT_NE(listed.find("PLACE   3      CARRIED\n"), std::string::npos) << listed;
    EXPECT_NE(listed.find("PLACE   4      NOTCR\n"), std::string::npos) << listed;
}

TEST_F(ProcessReports, WordThatIsNotInTheCatalogueIsInvalid) {
    Entry(0, "DESC BOGUS 5 6");
    EXPECT_NE(Entries().find("BOGUS is an invalid Condition/Action 5 6\n"), std::string::npos);
}

TEST_F(ProcessReports, ConditionWithTooFewWordsHasNoParameters) {
    Entry(0, "SWAP 3");
    EXPECT_EQ(Entries(), "GET                            LAMP                           SWAP    3\n" +
                             std::string(kIndent) +
                             "No parameters for a Condition/Action which must have parameter\n");
}

TEST_F(ProcessReports, EntryWithoutConditionsShowsItsWords) {
    Entry(0, "");
    EXPECT_EQ(Entries(), "GET                            LAMP\n");
}

TEST_F(ProcessReports, VerboseListingTellsWhatParametersNameFromColumn93) {
    AddRecord(*adventure_, TableNum::Messages,
              {{"msgnum", std::int64_t{700}}, {"msgmsg", std::string("You take it.")}});
    Entry(0, "MESSAGE 700");
    const std::string listed = Listed(*adventure_, "processes", {.detail = Detail::Verbose});
    const std::string entry = Behind(listed, "------");
    EXPECT_EQ(entry.find("You take it."), 92u) << entry;
    const std::size_t heading = listed.find("Verb ");
    EXPECT_EQ(listed.find("Description", heading) - heading, 92u);
}

TEST_F(ProcessReports, SpecialListingTakesTheEntriesOfAVerbAndANoun) {
    Entry(0, "DESC");
    Entry(0, "DONE", 20, 255, "_");
    const std::string listed = Listed(*adventure_, "verb-noun", {.verb = "get", .noun = "lamp"});
    EXPECT_NE(listed.find("Listing of Specific Verb/Noun"), std::string::npos);
    EXPECT_NE(listed.find("DESC"), std::string::npos);
    EXPECT_EQ(listed.find("DONE"), std::string::npos);
}

TEST_F(ProcessReports, SpecialListingNamesATableThatHasNoDescription) {
    Entry(0, "DESC");
    AddRecord(*adventure_, TableNum::ProcDesc,
              {{"pmsgnum", std::int64_t{7}}, {"pmsgmsg", std::string(" ")}});
    Entry(7, "DONE");
    Entry(9, "DONE");
    const std::string listed = Listed(*adventure_, "verb-noun", {.verb = "get", .noun = "lamp"});
    EXPECT_EQ(listed.find("Process Table 0"), std::string::npos) << listed;
    EXPECT_NE(listed.find("\n\nProcess Table 7\nVerb "), std::string::npos) << listed;
    EXPECT_NE(listed.find("\n\nProcess Table 9\nVerb "), std::string::npos) << listed;
}

TEST_F(ProcessReports, NounThatMeansAnyTakesTheEntriesOfBothSuchWords) {
    Entry(0, "DESC");
    Entry(0, "DONE", 20, 255, "_");
    Entry(0, "CLS", 20, 1, "*");
    for (const char* noun : {"_", "*"}) {
        const std::string listed = Listed(*adventure_, "verb-noun", {.verb = "GET", .noun = noun});
        EXPECT_EQ(listed.find("DESC"), std::string::npos);
        EXPECT_NE(listed.find("DONE"), std::string::npos);
        EXPECT_NE(listed.find("CLS"), std::string::npos);
    }
}

TEST_F(ProcessReports, WordThatIsNotInTheVocabularyIsTold) {
    try {
        Listed(*adventure_, "verb-noun", {.verb = "FLY' or word<>'", .noun = "LAMP"});
        FAIL();
    } catch (const Error& error) {
        EXPECT_STREQ(error.what(), "The vocabulary has no such word for this listing: FLY' or word<>'.");
    }
}

}  // namespace
}  // namespace fabula::listings
