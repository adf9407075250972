// Each correction on data that needs it, and what it reports.

#include <gtest/gtest.h>

#include "old_file.h"
#include "support/raw_database.h"
#include "support/temp_folder.h"
#include "text/str_edit.h"

namespace fabula::upgrades {
namespace {

class Corrected : public testing::Test {
  protected:
    Corrected() { test::MakeGame(file_); }

    void Run(const std::string& sql) const { test::RawDatabase(file_).Run(sql); }
    std::string Ask(const std::string& sql) const { return test::RawDatabase(file_).Ask(sql); }

    void Open() { OpenUpgraded(file_, test::DefaultDataFile(), host_); }

    /// The steps that an opening shows after `sql`, one list for each group.
    std::vector<std::string> StepsAfter(const std::string& sql) {
        Run(sql);
        Open();
        return host_.lists;
    }

    using Lists = std::vector<std::string>;

    test::TempFolder folder_;
    std::filesystem::path file_ = folder_ / "game.fbd";
    test::RecordingHost host_;
};

/// A correction: what makes it necessary, the box that it opens, and a question with its answer afterwards.
struct Case {
    const char* name;
    const char* before;
    const char* list;
    const char* question;
    const char* answer;
};

class Corrections : public Corrected, public testing::WithParamInterface<Case> {};

TEST_P(Corrections, MendWhatNeedsThem) {
    const Case& c = GetParam();
    EXPECT_EQ(StepsAfter(c.before), Lists{c.list});
    EXPECT_EQ(Ask(c.question), c.answer);
    test::RecordingHost again;
    const std::string once = test::ReadBytes(file_);
    OpenUpgraded(file_, test::DefaultDataFile(), again);
    EXPECT_TRUE(test::ReadBytes(file_) == once) << "once more changed something";
}

const Case kCases[] = {
    {"TheKindOfPutosParameter", "UPDATE CondActs SET caparam1=4 WHERE caname='PUTO'",
     "1 - Invalid Parameter 1 for PUTO\n", "SELECT caparam1 FROM CondActs WHERE caname='PUTO'", "1"},
    {"AnyKeyInAnyCase", "UPDATE SystemMessages SET smsgmsg='Press ANY Key.' WHERE smsgnum=16",
     "2 - Change of 'any key' to 'ENTER'\n", "SELECT smsgmsg FROM SystemMessages WHERE smsgnum=16",
     "Press ENTER."},
    {"TheHigherOfTwoKeysOfAField",
     "INSERT INTO Tables(tablekey, tablename, tablenum, fieldname, fieldtype, fieldsize) "
     "VALUES(30000,'Flags',9,'FLGNUM','adinteger',0)",
     "4 - Duplicate FieldNames in Tables\n",
     "SELECT count(*) || ' below ' || max(tablekey<30000) FROM Tables WHERE lower(fieldname)='flgnum'",
     "1 below 1"},
    {"TheNameOfThePackageTable", "UPDATE Tables SET tablename='DataBases' WHERE tablenum=14",
     "5 - Invalid TableName for Table 14\n", "SELECT DISTINCT tablename FROM Tables WHERE tablenum=14",
     "Package"},
    {"TheNameOfTheProcDescTable", "UPDATE Tables SET tablename='Messages' WHERE tablenum=15",
     "6 - Invalid TableName for Table 15\n", "SELECT DISTINCT tablename FROM Tables WHERE tablenum=15",
     "ProcDesc"},
    {"LocationWordsInNumbers",
     "UPDATE ProcessTables SET condacts='PLACE 0 NOTCR  ISAT 0 CARRIED', "
     "numericcondacts='208 0 NOTCR 111 0 CARRIED' WHERE canum=1",
     "8 - Invalid Location Words in CondActs\n",
     "SELECT condacts || '/' || numericcondacts FROM ProcessTables WHERE canum=1",
     "PLACE 0 252 ISAT 0 254/208 0 252 111 0 254"},
    {"LineEndsInDescriptions",
     "UPDATE Messages SET msgmsg='a' || char(13,10) || 'b' || char(10) || 'c' || char(13) || 'd' WHERE "
     "msgnum=0",
     "11 - Invalid Line delimiters in Descriptions\n", "SELECT msgmsg FROM Messages WHERE msgnum=0",
     "a\u008C"
     "b\u008C"
     "c\u008C"
     "d"},
    {"ScreenColours", "UPDATE Adventure SET BackColor=16777215, textcolor=58880",
     "14 - Colors, Font Name or Size not correct for new default fonts & colors\n",
     "SELECT BackColor || ' ' || textcolor FROM Adventure", "15 4"},
    {"ScreenColoursThatAreNone", "UPDATE Adventure SET BackColor=1234567, textcolor=1234567",
     "14 - Colors, Font Name or Size not correct for new default fonts & colors\n",
     "SELECT BackColor || ' ' || textcolor FROM Adventure", "7 0"},
    {"AFontThatIsNoCode", "UPDATE Adventure SET font=9999",
     "14 - Colors, Font Name or Size not correct for new default fonts & colors\n",
     "SELECT font FROM Adventure", "0"},
    {"FntSize", "DELETE FROM CondActs WHERE caname='FNTSIZE'", "15 - Action FNTSIZE needs added\n",
     "SELECT canum || ' ' || catype || ' ' || casubname FROM CondActs WHERE caname='FNTSIZE'",
     "283 Action FntSize"},
    {"TheBoundOfCharSet", "UPDATE CondActs SET camaxval1=9 WHERE caname='CHARSET'",
     "16 - Action CHARSET needs parameter 1 maxval changed\n",
     "SELECT camaxval1 FROM CondActs WHERE caname='CHARSET'", "998"},
    {"OldSeparators", "UPDATE Messages SET msgmsg='a' || char(30) || 'b' WHERE msgnum=0",
     "18 - Change of strOldChr to strCurChr\n", "SELECT msgmsg FROM Messages WHERE msgnum=0",
     "a\u008C"
     "b"},
    {"Bright", "DELETE FROM CondActs WHERE caname='BRIGHT'", "19 - Action BRIGHT needs added\n",
     "SELECT canum FROM CondActs WHERE caname='BRIGHT'", "284"},
    {"TheBoundOfPaper", "UPDATE CondActs SET camaxval1=15 WHERE caname='PAPER'",
     "20 - Change in MaxVal1 for PAPER\n", "SELECT camaxval1 FROM CondActs WHERE caname='PAPER'", "8"},
    {"EveryMissingNode", "DELETE FROM DataBases WHERE dbnum IN (33, 34)",
     "22 - Add of Characters & Pictures option to DataBases Table\n",
     "SELECT group_concat(dbtreename, ', ') FROM DataBases WHERE dbnum IN (33, 34)",
     "Character Sets, Pictures"},
    {"FlashInverseAndOver", "DELETE FROM CondActs WHERE canum>=285 AND canum<=287",
     "23 - Add of FLASH, INVERSE, & OVER Actions\n",
     "SELECT group_concat(caname) FROM CondActs WHERE canum>=285 AND canum<=287", "FLASH,INVERSE,OVER"},
    {"SpecialSizes", "DELETE FROM Codes WHERE codenum>127", "24 - Add of Special Font Sizes\n",
     "SELECT count(*) || ' ' || max(fontsize) FROM Codes WHERE codenum>127", "11 288"},
    {"Flags28And255",
     "UPDATE Flags SET flgtype='System', flguse='Switch', flgmod=0 WHERE flgnum IN (28,255)",
     "28 - Corrected flags 28 & 255 If they were 'System'\n",
     "SELECT DISTINCT flgtype || ' ' || flguse FROM Flags WHERE flgnum IN (28,255)", "User Unknown"},
    {"AutoInc", "DELETE FROM CondActs WHERE canum>=288 AND canum<=291",
     "30 - Add of actions AGAIN, OOPS, AUTODEC, & AUTOINC\n",
     "SELECT group_concat(casubname) FROM CondActs WHERE canum>=288 AND canum<=291",
     "Again,Oops,AutoDec,AutoInc"},
    {"MesF", "DELETE FROM CondActs WHERE canum>=292", "31 - Add of actions MESF, MESSGF, & SYSMSGF\n",
     "SELECT group_concat(casubname) FROM CondActs WHERE canum>=292", "MesF,MessgF,SysMsgF"},
};

INSTANTIATE_TEST_SUITE_P(Each, Corrections, testing::ValuesIn(kCases),
                         [](const auto& tested) { return std::string(tested.param.name); });

TEST_F(Corrected, TheActionsForBoldAndTheLikeGoAndThoseInTheirNumbersCome) {
    Run("UPDATE CondActs SET caname='BOLD' WHERE canum=284; UPDATE CondActs SET caname='ITALIC' WHERE "
        "canum=285; UPDATE CondActs SET caname='UNDLINE' WHERE canum=286; UPDATE CondActs SET "
        "caname='FONT' "
        "WHERE canum=287");
    Open();
    EXPECT_EQ(Ask("SELECT group_concat(caname) FROM CondActs WHERE canum>=284 AND canum<=287"),
              "BRIGHT,FLASH,INVERSE,OVER");
}

TEST_F(Corrected, AGameWithCharacterSetsKeepsASetForItsFont) {
    Run("UPDATE Adventure SET charsets=1, font=500; UPDATE Characters SET charsetnum=500 WHERE charkey=70");
    Open();
    EXPECT_TRUE(host_.lists.empty());
}

TEST_F(Corrected, AFileOfUnknownTypeShowsTheScreenOfTypesOnce) {
    Run("UPDATE Adventure SET adventype='Unknwn'");
    host_.answer = ChosenType{"VEL", true, true};
    Open();
    ASSERT_EQ(host_.proposals.size(), 1u);
    EXPECT_EQ(host_.proposals[0].type, "Fabula");
    EXPECT_EQ(Ask("SELECT adventype || graphics || charsets FROM Adventure"), "VEL11");
    Open();
    EXPECT_EQ(host_.proposals.size(), 1u);
}

TEST_F(Corrected, AGameThatCameThroughADecompilerIsProposedAsMarlo) {
    Run("UPDATE Adventure SET adventype='Unknwn', unmarloed=1");
    Open();
    ASSERT_EQ(host_.proposals.size(), 1u);
    EXPECT_EQ(host_.proposals[0].type, "Marlo");
    EXPECT_EQ(Ask("SELECT adventype || charsets FROM Adventure"), "Marlo1");
}

TEST_F(Corrected, OldFlagsAreAddedMovedAndFollowedByUserFlagsInOneRun) {
    Run("DELETE FROM Flags WHERE flgnum>255");
    Open();
    EXPECT_EQ(Ask("SELECT count(*) || ' to ' || max(flgnum) FROM Flags"), "1025 to 1024");
    EXPECT_EQ(Ask("SELECT count(*) FROM Flags WHERE flgnum>=1000 AND flgtype='System'"), "25");
    EXPECT_EQ(Ask("SELECT count(*) FROM Flags WHERE flgnum>=256 AND flgnum<1000 AND flgtype='User'"),
              "744");
}

TEST_F(Corrected, FlagsThatWereTheSystemsMoveWithTheirUses) {
    Run("DELETE FROM Flags WHERE flgnum>275; UPDATE Flags SET flgtype='System' WHERE flgnum BETWEEN 256 "
        "AND "
        "270; UPDATE Flags SET flgdesc='mine' WHERE flgnum=271;"
        "UPDATE System SET flagchange=0;"
        "UPDATE ProcessTables SET condacts='COPYFO 260 0 SET 271', numericcondacts='221 260 0 224 271' "
        "WHERE "
        "canum=1; UPDATE ProcessTables SET condacts='LET 256 256', numericcondacts='228 256 256' WHERE "
        "canum=2");
    Open();
    EXPECT_EQ(Ask("SELECT condacts || '/' || numericcondacts FROM ProcessTables WHERE canum=1"),
              "COPYFO 1004 0 SET 271/221 1004 0 224 271");
    EXPECT_EQ(Ask("SELECT condacts || '/' || numericcondacts FROM ProcessTables WHERE canum=2"),
              "LET 1000 256/228 1000 256");
    EXPECT_EQ(Ask("SELECT flgdesc || flgtype FROM Flags WHERE flgnum=271"), "mineUser");
    EXPECT_EQ(Ask("SELECT flgtype FROM Flags WHERE flgnum=260"), "User");
    EXPECT_EQ(Ask("SELECT count(*) FROM Flags"), "1025");
}

constexpr const char* kFlagText =
    "In Version 6 flags 256-275 were moved to 1000+. If you have any references to flags 256-275 in your "
    "Process Table, they will be shown below. If the reference To flags 256-275 has been made since you "
    "upgraded to V6 or they are valid usage of these flags as they are used now, click the 'Cancel' button "
    "below.  You may print this list using the 'Print' button. This message will show when you startup "
    "unless you 'Cancel' it or correct the entries in the Process Table.\n\n";

TEST_F(Corrected, TheFlagMoveIsReportedAtEachStartUntilItIsCancelled) {
    Run("UPDATE System SET flagchange=0; UPDATE ProcessTables SET condacts='SET 260 DONE', "
        "numericcondacts='224 260 265' WHERE canum=1");
    Open();
    const Report report{Report::Kind::FlagChange, "Version 6 Flag Change",
                        std::string(kFlagText) + "   1   0 _          _          SET 260 DONE\n"};
    EXPECT_EQ(host_.reports, std::vector<Report>{report});
    EXPECT_EQ(Ask("SELECT flagchange FROM System"), "0");
    EXPECT_EQ(host_.changes, 0) << "a report is no change";
    host_.cancels = true;
    Open();
    EXPECT_EQ(host_.reports, (std::vector<Report>{report, report}));
    EXPECT_EQ(Ask("SELECT flagchange FROM System"), "1");
    Open();
    EXPECT_EQ(host_.reports.size(), 2u);
}

TEST_F(Corrected, TheFirstAndTheLastOfTheMovedFlagsAreReported) {
    Run("UPDATE System SET flagchange=0; UPDATE ProcessTables SET condacts='SET 256', numericcondacts='224 "
        "256' "
        "WHERE canum=1; UPDATE ProcessTables SET condacts='SET 275', numericcondacts='224 275' WHERE "
        "canum=2");
    Open();
    ASSERT_EQ(host_.reports.size(), 1u);
    EXPECT_NE(host_.reports[0].text.find("SET 256\n"), std::string::npos);
    EXPECT_NE(host_.reports[0].text.find("SET 275\n"), std::string::npos);
}

TEST_F(Corrected, AColourOfTheScreenHasRedInItsLowestByte) {
    Run("UPDATE Adventure SET backcolor=230, textcolor=15073280");
    Open();
    EXPECT_EQ(Ask("SELECT backcolor || ' ' || textcolor FROM Adventure"), "2 1");
}

TEST_F(Corrected, AFlagThatHasItsNewNumberAlreadyIsThereOnce) {
    Run("UPDATE Flags SET flgtype='System' WHERE flgnum=260");
    Open();
    EXPECT_EQ(Ask("SELECT count(*) FROM Flags WHERE flgnum=1004"), "1");
    EXPECT_EQ(Ask("SELECT flgtype FROM Flags WHERE flgnum=260"), "User");
}

TEST_F(Corrected, AnEntryThatNamesNoMovedFlagStaysAsItWasTyped) {
    Run("UPDATE Flags SET flgtype='System' WHERE flgnum=260;"
        "UPDATE ProcessTables SET condacts='SET  60  DONE', numericcondacts='224 60 265' WHERE canum=1");
    Open();
    EXPECT_EQ(Ask("SELECT condacts FROM ProcessTables WHERE canum=1"), "SET  60  DONE");
}

TEST_F(Corrected, EachOfTheFourOldSeparatorsBecomesALineEnd) {
    Run("UPDATE Messages SET msgmsg='a' || char(28) || char(29) || char(30) || char(31) || 'b' WHERE "
        "msgnum=0");
    Open();
    EXPECT_EQ(Ask("SELECT msgmsg FROM Messages WHERE msgnum=0"),
              "a\u008C\u008C\u008C\u008C"
              "b");
}

TEST_F(Corrected, WithoutUsesTheFlagMoveIsDoneAtOnce) {
    Run("UPDATE System SET flagchange=0");
    Open();
    EXPECT_TRUE(host_.reports.empty());
    EXPECT_EQ(Ask("SELECT flagchange FROM System"), "1");
}

TEST_F(Corrected, OnlyParametersThatAreFlagsCountAsUsesOfFlags) {
    Run("UPDATE System SET flagchange=0; UPDATE ProcessTables SET condacts='LET 30 260 WEIGH 260 30', "
        "numericcondacts='228 30 260 223 260 30' WHERE canum=1");
    Open();
    EXPECT_TRUE(host_.reports.empty());
}

TEST_F(Corrected, DoubleKeysAreListedAndStay) {
    Run("INSERT INTO Messages(msgnum, msgmsg) VALUES(1,'second'),(1,'third');"
        "INSERT INTO ProcessTables(canum, estype, w1, w2, w1num, w2num, numcas, condacts, numericcondacts) "
        "VALUES(2,3,'GET','LAMP',20,50,1,'DONE','265')");
    Open();
    const Report report{Report::Kind::List, "Duplicate Key Errors",
                        "Below is a listing of table(s) with Duplicate keys\n"
                        "They may be corrected by using the Menu item Tools > Key Change\n"
                        "Messages: Key 1\n"
                        "Process : Key - 2 3 GET LAMP DONE\n"
                        "YOU WILL HAVE TO CHANGE AT LEAST ONE OF THE DUPLICATE KEYS OR IT WILL KEEP COMING "
                        "UP AS AN ERROR!!!"};
    EXPECT_EQ(host_.reports, std::vector<Report>{report});
    EXPECT_EQ(Ask("SELECT count(*) FROM Messages WHERE msgnum=1"), "3");
    EXPECT_EQ(host_.changes, 0);
}

TEST_F(Corrected, ATableThatKeyChangeDoesNotOfferIsToldOnce) {
    Run("UPDATE Tables SET allowkeychg='N' WHERE tablenum IN (2, 9);"
        "INSERT INTO Messages(msgnum, msgmsg) VALUES(0,'again'),(1,'again'); UPDATE Flags SET flgnum=30 "
        "WHERE flgnum=31");
    Open();
    ASSERT_EQ(host_.reports.size(), 1u);
    EXPECT_EQ(host_.reports[0].text,
              "Below is a listing of table(s) with Duplicate keys\n"
              "They may be corrected by using the Menu item Tools > Key Change\n"
              "Messages: Key 0\nMessages: Key 1\nFlags: Key 30\n"
              "At least one of the tables shown above is not currently supported in Key Change.\n"
              "YOU WILL HAVE TO CHANGE AT LEAST ONE OF THE DUPLICATE KEYS OR IT WILL KEEP COMING UP AS AN "
              "ERROR!!!");
}

TEST_F(Corrected, DescriptionsAreCheckedOnceForEachVersionOfTheData) {
    Run("UPDATE System SET sysexportversion='3.0.0';"
        "UPDATE Messages SET msgmsg='Fish & chips' WHERE msgnum=0;"
        "UPDATE Locations SET locshortdesc='a<b' WHERE locnum=1;"
        "UPDATE Flags SET flgdesc='<BR>' WHERE flgnum=30");
    Open();
    const Report report{Report::Kind::List, "Description Errors",
                        "Below is a listing of descriptions which do not meet current validation.\n"
                        "Possible reasons could be:\n"
                        "1. Use of & without a matching ;.\n"
                        "2. Use of < without matching > or a > by itself.\n"
                        "3. An invalid tag (tags use <>).\n"
                        "4. An invalid Entity (Entities use &;).\n"
                        "5. A Tag used inproperly.\n"
                        "6. A word which is too long (over 30 characters).\n"
                        "(A word is anything delimited by spaces with the Tags and Entities removed.)\n"
                        "For further information on the above, see the Help in Fabula.\n\n"
                        "Location 1 field locshortdesc\n"
                        "Message 0 field msgmsg\n"
                        "Flag Description 30 field flgdesc\n"};
    EXPECT_EQ(host_.reports, std::vector<Report>{report});
    EXPECT_EQ(Ask("SELECT msgmsg FROM Messages WHERE msgnum=0"), "Fish & chips")
        << "a check changes nothing";
    Open();
    EXPECT_EQ(host_.reports.size(), 1u);
}

TEST_F(Corrected, TextsFromBeforeTheMarkupAreBroughtIntoItAndListed) {
    Run("UPDATE System SET sysexportversion='1.9.9'; UPDATE SystemMessages SET smsgmsg='x' WHERE "
        "smsgnum=33;"
        "UPDATE Messages SET msgmsg='<Fish> & chips' WHERE msgnum=0; UPDATE Adventure SET author='A & B'");
    Open();
    EXPECT_EQ(Ask("SELECT msgmsg FROM Messages WHERE msgnum=0"), "&lt;Fish&gt; &amp; chips");
    EXPECT_EQ(Ask("SELECT author FROM Adventure"), "A &amp; B");
    ASSERT_EQ(host_.reports.size(), 2u);
    EXPECT_EQ(
        host_.reports[1].text,
        "& replaced: Message 0 field msgmsg\n< replaced: Message 0 field msgmsg\n> replaced: Message 0 "
        "field msgmsg\n& replaced: Adventure field author\n");
    EXPECT_EQ(Ask("SELECT sysexportversion FROM System"), "4.0.0");
}

TEST_F(Corrected, TextsOfTheFirstVersionsWithMarkupStayAsTheyAre) {
    Run("UPDATE System SET sysexportversion='2.0.0'; UPDATE Messages SET msgmsg='Fish &amp; chips' WHERE "
        "msgnum=0");
    Open();
    EXPECT_EQ(Ask("SELECT msgmsg FROM Messages WHERE msgnum=0"), "Fish &amp; chips");
    EXPECT_TRUE(host_.reports.empty());
}

TEST_F(Corrected, OfAVersionThreePartsCount) {
    Run("UPDATE System SET sysexportversion='1.9.9.9.9'; UPDATE Messages SET msgmsg='Fish & chips' WHERE "
        "msgnum=0");
    Open();
    EXPECT_EQ(Ask("SELECT msgmsg FROM Messages WHERE msgnum=0"), "Fish &amp; chips");
}

TEST_F(Corrected, ATemplateThatTheAuthorHasChangedStaysAsItIsInARefresh) {
    Run("UPDATE System SET sysinidate='1999-01-01';"
        "UPDATE Templates SET commands='mine' WHERE tempname='keypad_small'");
    Open();
    EXPECT_EQ(Ask("SELECT count(*) || max(commands) FROM Templates WHERE tempname='keypad_small'"),
              "1mine");
}

TEST_F(Corrected, AnUpgradedAdventureHasTheSettingsThatItNowHas) {
    Run("UPDATE Adventure SET adventype='Unknwn'");
    host_.answer = ChosenType{"VEL", true, true};
    const auto adventure = OpenUpgraded(file_, test::DefaultDataFile(), host_);
    EXPECT_EQ(adventure->AdventureTypeLower(), "vel");
    EXPECT_TRUE(adventure->GraphicsOn());
}

TEST_F(Corrected, ADateThatDiffersBringsTheCataloguesUpToDate) {
    const auto before = test::ContentsOf(file_);
    Run("UPDATE System SET sysinidate='1999-01-01';"
        "UPDATE Tables SET search='x', see=9, export=9, expand='x', allowadd='x', allowexp='x', fbbexp=9, "
        "altname='x', allowchgsort='x';"
        "UPDATE Flags SET flgdesc='x', flgchg=1-flgchg WHERE flgtype='System';"
        "UPDATE CondActs SET camaxval1=7, camaxval2=7, pagenum=7, htmlpage='x', fabula=0, vel=0, marlo=1, "
        "pcvel=0; UPDATE CondActs SET caparam1=1 WHERE caname='PUTO';"
        "UPDATE DataBases SET dbtreename='x'; UPDATE Codes SET fontname='x', fabulatag='x', acetag='x', "
        "fabulatagparam=7, fabulatagval='x'; UPDATE Commands SET ccsubname='x', cdsubname='x';"
        "DELETE FROM Templates");
    Open();
    EXPECT_EQ(test::ContentsOf(file_), before);
}

TEST_F(Corrected, WidthsOfColumnsAndFlagsOfTheAuthorSurviveARefresh) {
    Run("UPDATE System SET sysinidate='1999-01-01'; UPDATE Tables SET gridwidth=77 WHERE tablenum=1;"
        "UPDATE Flags SET flgdesc='mine' WHERE flgnum=300");
    Open();
    EXPECT_EQ(Ask("SELECT DISTINCT gridwidth FROM Tables WHERE tablenum=1"), "77");
    EXPECT_EQ(Ask("SELECT flgdesc FROM Flags WHERE flgnum=300"), "mine");
}

}  // namespace
}  // namespace fabula::upgrades
