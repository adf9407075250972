#include <gtest/gtest.h>

#include "interchange/reading.h"

namespace fabula::interchange {
namespace {

using store::TableNum;

/// The part of a source from one line to before another.
std::string Part(const std::string& source, const std::string& from, const std::string& to) {
    const std::size_t start = source.find(from + "\r\n");
    if (start == std::string::npos) return "no " + from;
    const std::size_t end = source.find(to, start);
    std::string part = source.substr(start, end - start);
    std::erase(part, '\r');
    return part;
}

constexpr const char* kWrittenWords =
    "NORTH 2 noun\nGO 20 verb\nLAMP 50 noun\nRED 2 adjective\nUNDER 6 preposition\n";

TEST(PcSourceWriter, BeginsWithItsOrigin) {
    const Reading game("pcvel", PcSource(kWrittenWords, ""));
    const std::string source = Written(*game, "pcvel");
    EXPECT_TRUE(source.starts_with(
        "; Exported in PC VEL format by Fabula Export Version 4.0.0\r\n"
        "; This is an export of Fabula DataBase " +
        game->CurrentFile().filename().string() +
        "\r\n"
        "; Adventure Name: New Adventure\r\n"
        "; - - - - - - - - - -\r\n/CTL\r\n; Null word character is an underline\r\n_ \r\n"))
        << source;
}

TEST(PcSourceWriter, WritesTheVocabularyWithoutReservedWords) {
    const Reading game("ace", PcSource(kWrittenWords, ""));
    EXPECT_EQ(Part(Written(*game, "ace"), "/VOC", "#"),
              "/VOC\nGO       20   verb\nNORTH     2   noun\nLAMP     50   noun\nRED       2   adjective\n"
              "UNDER     6   preposition\n");
}

TEST(PcSourceWriter, MakesRoomForLongWords) {
    const Reading game("ace", PcSource("LIGHTHOUSE 123 noun\n", ""));
    EXPECT_EQ(Part(Written(*game, "ace"), "/VOC", "#"), "/VOC\nLIGHTHOUSE 123   noun\n");
}

TEST(PcSourceWriter, CutsWordsToTheLettersThatCount) {
    const Reading game("ace", PcSource("LIGHTHOUSE 123 noun\n", ""));
    std::string status;
    EXPECT_EQ(Part(Written(*game, "pcvel", &status), "/VOC", ";"), "/VOC\nLIGHT   123   noun\n");
    EXPECT_NE(status.find("the word LIGHTHOUSE is cut to LIGHT."), std::string::npos) << status;
}

/// A game with one entry for the noun LAMP as a verb.
class NounForVerb : public testing::TestWithParam<store::AdventureKind> {
  protected:
    NounForVerb() {
        Add(TableNum::Vocabulary, {{"vocindex", std::int64_t{900}},
                                   {"word", std::string("LAMP")},
                                   {"vocnum", std::int64_t{50}},
                                   {"voctypen", std::int64_t{2}},
                                   {"voctype", std::string("Noun")}});
        Add(TableNum::ProcessTables, {{"canum", std::int64_t{900}},
                                      {"estype", std::int64_t{0}},
                                      {"w1", std::string("LAMP")},
                                      {"w2", std::string("_")},
                                      {"w1num", std::int64_t{50}},
                                      {"w2num", std::int64_t{255}},
                                      {"condacts", std::string("INVEN")},
                                      {"numericcondacts", std::string("262")}});
    }

    void Add(TableNum table, const std::vector<std::pair<const char*, text::Value>>& fields) {
        store::Cursor& record = game_->OpenTable(table, "def");
        record.AddNew();
        for (const auto& [field, value] : fields)
            record.SetField(field, value);
        record.Update();
    }

    test::OpenedAdventure game_{GetParam()};
};

TEST_P(NounForVerb, ComesBackAsTheVerbOfItsEntry) {
    for (const char* kind : {"pcvel", "ace"}) {
        const Reading back(kind, Written(*game_, kind));
        EXPECT_EQ(back.Number(TableNum::ProcessTables, "w1='LAMP'", "w1num"), 50) << back.status;
        EXPECT_EQ(back.Count(TableNum::Vocabulary, "word='LAMP' and voctypen=2 and vocnum=50"), 1);
        EXPECT_FALSE(back.Told("Word1 (LAMP) not a verb"));
    }
}

TEST_P(NounForVerb, IsAVerbBeforeItIsANounOnlyWhereTheFirstWordIsTheVerb) {
    const bool verbFirst = GetParam() == store::AdventureKind::Marlo;
    const std::string source = Written(*game_, "ace");
    const std::size_t verb = source.find("LAMP     50   verb\r\n");
    const std::size_t noun = source.find("LAMP     50   noun\r\n");
    ASSERT_NE(verb, std::string::npos) << source;
    EXPECT_EQ(verb < noun, verbFirst) << source;
}

INSTANTIATE_TEST_SUITE_P(PcSourceWriter, NounForVerb,
                         testing::Values(store::AdventureKind::Fabula, store::AdventureKind::Marlo));

TEST(PcSourceWriter, NamesAnEntryWhoseWordsCannotBeReadBack) {
    const Reading game("ace", PcSource(kWrittenWords, "/PRO 0\nGO LAMP INVEN\n"));
    store::Cursor& entry = game->OpenTable(TableNum::ProcessTables, "def", "w1='GO'");
    entry.SetField("w1", std::string("RED"));
    entry.SetField("w2", std::string("GO"));
    entry.Update();
    std::string status;
    Written(*game, "ace", &status);
    EXPECT_NE(status.find("the word RED is not a verb: the entry can't be read back."), std::string::npos)
        << status;
    EXPECT_NE(status.find("the word GO is not a noun: the entry can't be read back."), std::string::npos)
        << status;
}

TEST(PcSourceWriter, WritesTexts) {
    const Reading game(
        "pcvel", PcSource(kWrittenWords, "/MTX\n/0\nOne & two.\n\nFour.\n/2\n/OTX\n/LTX\n/0\nHall.\n"));
    EXPECT_EQ(Part(Written(*game, "pcvel"), "/MTX", ";"), "/MTX\n/0\nOne & two.\n\nFour.\n/2\n");
}

TEST(PcSourceWriter, NamesATextThatDoesNotComeBack) {
    const Reading game("ace", PcSource(kWrittenWords, "/MTX\n/0\nStop; go.\n"));
    std::string status;
    Written(*game, "pcvel", &status);
    EXPECT_NE(status.find("Messages 0, msgmsg: the text will not come back as it is."), std::string::npos)
        << status;
}

TEST(PcSourceWriter, WritesConnectionsAndObjects) {
    const Reading game("pcvel",
                       PcSource(kWrittenWords,
                                "/OTX\n/0\nA lamp\n/LTX\n/0\nHall.\n/1\nCellar.\n/CON\n/0\nNORTH 1\nGO 0\n"
                                "/OBJ\n/0 WORN 7 N Y LAMP RED\n"));
    const std::string source = Written(*game, "pcvel");
    EXPECT_EQ(Part(source, "/CON", ";"), "/CON\n/0\nNORTH    1\nGO      0\n/1\n");
    EXPECT_EQ(Part(source, "/OBJ", ";"), "/OBJ\n/0 253 7 N Y LAMP  RED\n");
}

TEST(PcSourceWriter, WritesEntriesInTheOrderOfTheirKeys) {
    const Reading game("ace", PcSource(kWrittenWords,
                                       "/PRO 0\nGO LAMP PREP UNDER PLACE 0 CARRIED\n_ _\n DONE\nGO _\n"
                                       "/PRO 1\n/PRO 2\n_ _ CLS\n"));
    const std::string source = Written(*game, "ace");
    EXPECT_EQ(Part(source, "/PRO 0", "#"),
              "/PRO 0\nGO      LAMP    PREP      UNDER\n                PLACE     0       254\n"
              "_       _       DONE\nGO      _\n");
    EXPECT_EQ(Part(source, "/PRO 1", "#"), "/PRO 1\n");
    EXPECT_EQ(Part(source, "/PRO 2", "#"), "/PRO 2\n_       _       CLS\n");
}

TEST(PcSourceWriter, WritesEmptyTablesSoThatNumbersStay) {
    const Reading game(
        "ace",
        PcSource(kWrittenWords, "/PRO 0\n_ _ PROCESS 4\n/PRO 1\n/PRO 2\n/PRO 3\n/PRO 4\n_ _ DONE\n"));
    game->DeleteFrom(TableNum::ProcDesc, "pmsgnum=3");
    EXPECT_EQ(Part(Written(*game, "ace"), "/PRO 3", "#"), "/PRO 3\n");
}

TEST(PcSourceWriter, EndsWithDocumentationInComments) {
    const Reading game("pcvel",
                       PcSource(kWrittenWords, "/PRO 0\n_ _ SET 60\n/PRO 1\n/PRO 2\n/PRO 3\n_ _ DONE\n"));
    const std::string source = Written(*game, "pcvel");
    EXPECT_EQ(Part(source, "; /FLG This is added to give documentation on the flags.", "; /PRD"),
              "; /FLG This is added to give documentation on the flags.\n; /28\n; In a Marlo adventure 1 "
              "to 21 choose "
              "what the next PAUSE does; free in the other types.\n; /60\n; Used by this Adventure.\n");
    EXPECT_NE(
        source.find("; /PRD This is added to give documentation on the Processes > 2.\r\n; /3\r\n;\r\n"
                    ";! Adventure "),
        std::string::npos)
        << source;
}

TEST(PcSourceWriter, RefusesWhatOnlyThisSystemHas) {
    const Reading game("ace", PcSource(kWrittenWords, "/PRO 0\n_ _ OOPS 1 MESF 60\n"));
    std::string status;
    EXPECT_EQ(Written(*game, "pcvel", &status), "");
    EXPECT_EQ(status,
              "Use of MESF Condition/Action. This is not a valid PCVel Condition/Action.\n"
              "Use of OOPS Condition/Action. This is not a valid PCVel Condition/Action.\n");
    EXPECT_NE(Written(*game, "ace"), "");
}

TEST(PcSourceWriter, ACharacterThatCannotBeWrittenFailsTheExport) {
    const Reading game("ace", "\xEF\xBB\xBF" + PcSource(kWrittenWords, "/MTX\n/4\nSay 中.\n"));
    std::string status;
    EXPECT_EQ(Written(*game, "ace", &status), "");
    EXPECT_EQ(status, "ERROR: Messages 4, msgmsg: the character U+4E2D can't be written in this file.\n");
}

}  // namespace
}  // namespace fabula::interchange
