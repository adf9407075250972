#include "authoring/fields/cond_act_help.h"

#include <memory>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "authoring/desk.h"

namespace fabula::authoring {
namespace {

using store::AdventureKind;
using store::TableNum;
using test::Desk;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

void AddLocation(Desk& desk, int number, const char* text, int exits = 0) {
    desk.Add(TableNum::Locations, {{"locnum", std::int64_t{number}},
                                   {"locshortdesc", std::string(text)},
                                   {"numexits", std::int64_t{exits}}});
}

void PutMessage(Desk& desk, int number, const char* text) {
    desk.Add(TableNum::Messages, {{"msgnum", std::int64_t{number}}, {"msgmsg", std::string(text)}});
}

void PutObject(Desk& desk, int number, const char* text, int attributes = 0) {
    desk.Add(TableNum::Objects, {{"objnum", std::int64_t{number}},
                                 {"objdesc", std::string(text)},
                                 {"objattrn", std::int64_t{attributes}}});
}

/// A game of four locations, three messages and two objects, object 1 a container.
class HelpOf {
  public:
    explicit HelpOf(AdventureKind kind = AdventureKind::Fabula) : desk_(kind) {
        AddLocation(desk_, 1, "The <INK=2>cellar</INK>");
        AddLocation(desk_, 2, "The stairs", 2);
        AddLocation(desk_, 3, " ");
        PutMessage(desk_, 0, "Welcome!");
        PutMessage(desk_, 1, "It is too\u008cdark.");
        PutMessage(desk_, 2, " ");
        PutObject(desk_, 0, "a brass lamp");
        PutObject(desk_, 1, "a box", 1);
        help_ = std::make_unique<CondActHelp>(desk_.Adventure());
    }

    CondActHelp* operator->() const { return help_.get(); }
    Desk& GameDesk() { return desk_; }
    void Reload() { help_ = std::make_unique<CondActHelp>(desk_.Adventure()); }

    /// What is offered at the bar in the line.
    std::vector<std::string> Offered(std::string line) const {
        const std::size_t cursor = line.find('|');
        line.erase(cursor, 1);
        std::vector<std::string> texts;
        for (const Completion& item : help_->Complete(line, cursor).items)
            texts.push_back(item.shown);
        return texts;
    }
    std::string Meaning(std::string line) const {
        const std::size_t cursor = line.find('|');
        line.erase(cursor, 1);
        return help_->Meaning(line, cursor);
    }

  private:
    Desk desk_;
    std::unique_ptr<CondActHelp> help_;
};

TEST(Completing, OffersTheNamesThatBeginSo) {
    EXPECT_THAT(HelpOf().Offered("MES|"), ElementsAre("MES", "MESF", "MESSAGE", "MESSGF"));
}

TEST(Completing, OffersNamesInAnyCase) {
    EXPECT_THAT(HelpOf().Offered("mess|"), ElementsAre("MESSAGE", "MESSGF"));
}

TEST(Completing, OffersTheNamesOfTheDialectOnly) {
    EXPECT_THAT(HelpOf(AdventureKind::Vel).Offered("MES|"), ElementsAre("MES", "MESSAGE"));
    EXPECT_THAT(HelpOf(AdventureKind::Marlo).Offered("MES|"), ElementsAre("MESSAGE"));
}

TEST(Completing, OffersAllNamesInAnEmptyLine) {
    const HelpOf help;
    EXPECT_EQ(help.Offered("|").size(), help->Names().size());
    EXPECT_EQ(help.Offered("|").front(), "ABILITY");
}

TEST(Completing, OffersNamesBehindWhatIsComplete) {
    EXPECT_THAT(HelpOf().Offered("MESSAGE 1 DON|"), ElementsAre("DONE"));
    EXPECT_THAT(HelpOf().Offered("INVEN DON|"), ElementsAre("DONE"));
}

TEST(Completing, NamesTheBytesThatAreReplaced) {
    const HelpOf help;
    const Completions completions = help->Complete("AT 1 MESSG DONE", 7);
    EXPECT_EQ(completions.begin, 5U);
    EXPECT_EQ(completions.end, 10U);
    const Completions atBlank = help->Complete("AT 1 ", 5);
    EXPECT_EQ(atBlank.begin, 5U);
    EXPECT_EQ(atBlank.end, 5U);
}

TEST(Completing, CountsOnlyTheLettersBeforeTheCursor) {
    EXPECT_THAT(HelpOf().Offered("MESS|XYZ"), ElementsAre("MESSAGE", "MESSGF"));
}

TEST(Completing, OffersNumbersWithWhatTheyStandFor) {
    EXPECT_THAT(HelpOf().Offered("MESSAGE |"), ElementsAre("0  Welcome!", "1  It is too dark.", "2"));
    EXPECT_THAT(HelpOf().Offered("AT |"),
                ElementsAre("0  You are in a bare, empty room.", "1  The cellar", "2  The stairs", "3"));
    EXPECT_THAT(HelpOf().Offered("GET |"), ElementsAre("0  a brass lamp", "1  a box"));
    EXPECT_THAT(HelpOf().Offered("PROCESS |"), ElementsAre("0  THE PROCESS TABLE", "1  Done after a DESC",
                                                           "2  The computer does its thing."));
    EXPECT_THAT(HelpOf().Offered("SYSMESS 5|"),
                ElementsAre("5  And now?", "50  You are not wearing _.", "51  .",
                            "52  You can't see any such thing inside", "53  nothing."));
}

TEST(Completing, FindsNumbersByTheWordsOfTheirTexts) {
    EXPECT_THAT(HelpOf().Offered("MESSAGE dar|"), ElementsAre("1  It is too dark."));
    EXPECT_THAT(HelpOf().Offered("MESSAGE ark|"), IsEmpty());
    EXPECT_THAT(HelpOf().Offered("GET LAMP|"), ElementsAre("0  a brass lamp"));
}

TEST(Completing, TakesDigitsForTheNumber) {
    HelpOf help;
    PutMessage(help.GameDesk(), 3, "Room 1 is closed.");
    help.Reload();
    EXPECT_THAT(help.Offered("MESSAGE 1|"), ElementsAre("1  It is too dark."));
}

TEST(Completing, OffersLocationWordsWhereTheyAreUnderstood) {
    EXPECT_THAT(HelpOf().Offered("PLACE 0 |"),
                ElementsAre("0  You are in a bare, empty room.", "1  The cellar", "2  The stairs", "3",
                            "NOTCR  not created", "WORN  worn by the player",
                            "CARRIED  carried by the player", "HERE  where the player is"));
    EXPECT_THAT(HelpOf().Offered("PLACE 0 car|"), ElementsAre("CARRIED  carried by the player"));
    EXPECT_THAT(HelpOf().Offered("AT NOT|"), IsEmpty());
}

TEST(Completing, OffersContainersOnlyForPutin) {
    EXPECT_THAT(HelpOf().Offered("PUTIN 0 |"), ElementsAre("1  The cellar"));
}

TEST(Completing, OffersWordsOfTheTypeThatIsAsked) {
    EXPECT_THAT(HelpOf().Offered("PREP |"), ElementsAre("AT  201", "FROM  202", "OFF  203", "ON  204",
                                                        "TO  205", "UNDER  206", "WITH  207"));
    EXPECT_THAT(HelpOf(AdventureKind::Vel).Offered("ADVERB QUIC|"), ElementsAre("QUICK  202"));
}

TEST(Completing, OffersLongWordsWhole) {
    HelpOf help;
    help.GameDesk().AddWord(500, "LANTERN", 50, 2);
    help.Reload();
    EXPECT_THAT(help.Offered("NOUN2 LAN|"), ElementsAre("LANTERN  50"));
    EXPECT_THAT(help.Offered("ADVERB QUICK|"), ElementsAre("QUICK  202", "QUICKLY  202"));
}

TEST(Completing, OffersNoFlagThatTheChecksRefuse) {
    const HelpOf help;
    const auto flags = help.Offered("SET 100|");
    EXPECT_THAT(flags, Contains("1005  " + help->Meaning("SET 1005", 5).substr(10)));
    for (const std::string& flag : flags)
        EXPECT_NE(flag.substr(0, 4), "1004") << flag;
    EXPECT_THAT(help.Offered("LET 1005|"), IsEmpty());
}

TEST(Completing, OffersTheFlagsToThirtyTwoInMarloAdventures) {
    EXPECT_EQ(HelpOf(AdventureKind::Marlo).Offered("SET |").size(), 33U);
}

TEST(Completing, OffersNothingForPlainValues) {
    EXPECT_THAT(HelpOf().Offered("CHANCE |"), IsEmpty());
}

TEST(Completing, OffersNothingBehindANameThatIsNone) {
    EXPECT_THAT(HelpOf().Offered("XYZ 5 MESS|"), IsEmpty());
}

TEST(Completing, ACursorBehindTheLineStandsAtItsEnd) {
    const HelpOf help;
    EXPECT_EQ(help->Complete("MESSA", 99).items.size(), 1U);
}

ExplainedCondAct Action(std::string text, std::string meaning) {
    return {std::move(text), std::move(meaning), true, false};
}
ExplainedCondAct Condition(std::string text, std::string meaning) {
    return {std::move(text), std::move(meaning), false, false};
}

TEST(ALineExplained, IsItsConditionsAndActionsOneByOneWithWhatTheyStandFor) {
    const HelpOf help;
    EXPECT_THAT(help->Explain("AT 1 PRESENT 0 MESSAGE 1 PLACE 0 2 DONE"),
                ElementsAre(Condition("AT 1", "The cellar"), Condition("PRESENT 0", "a brass lamp"),
                            Action("MESSAGE 1", "\u201CIt is too dark.\u201D"),
                            Action("PLACE 0 2", "a brass lamp, The stairs"), Action("DONE", "")));
}

TEST(ALineExplained, TellsWhatIsNotThere) {
    const HelpOf help;
    EXPECT_THAT(help->Explain("AT 77"), ElementsAre(Condition("AT 77", "there is no location 77")));
    EXPECT_THAT(help->Explain("MESSAGE 77"), ElementsAre(Action("MESSAGE 77", "there is no message 77")))
        << "in quotes it would be a text of the game";
}

TEST(ALineExplained, EndsAtANameThatIsNone) {
    const HelpOf help;
    const auto explained = help->Explain("DONE XYZZY 5 DONE");
    ASSERT_EQ(explained.size(), 2U);
    EXPECT_TRUE(explained[1].isFault);
    EXPECT_EQ(explained[1].meaning, "XYZZY is an invalid Condition/Action");
}

TEST(ALineExplained, OfNothingIsNothing) {
    const HelpOf help;
    EXPECT_THAT(help->Explain(""), IsEmpty());
    EXPECT_EQ(help->WithNames(""), "");
}

TEST(ALineExplained, StandsInOneLineWithNames) {
    const HelpOf help;
    EXPECT_EQ(help->WithNames("AT 1 MESSAGE 0 DONE"),
              "AT 1 The cellar  \u00B7  MESSAGE 0 \u201CWelcome!\u201D  \u00B7  DONE");
}

TEST(ALineExplained, NamesFlagsBrieflyAndWhatTheEngineKeepsInThem) {
    HelpOf help;
    help.GameDesk().AddWord(500, "LANTERN", 50, 2);
    help.Reload();
    EXPECT_EQ(help->WithNames("EQ 34 50"), "EQ 34 50 noun: LANTERN");
    EXPECT_EQ(help->WithNames("NOTEQ 44 255"), "NOTEQ 44 255 second noun: none");
    EXPECT_EQ(help->WithNames("LET 38 1"), "LET 38 1 place of the player: The cellar");
    EXPECT_EQ(help->WithNames("GT 34 49"), "GT 34 49 noun");
}

TEST(ALineExplained, SaysNothingOfAFlagWithoutDescription) {
    EXPECT_EQ(HelpOf()->WithNames("SET 100"), "SET 100");
}

TEST(MeaningOfAToken, OfANumberIsItsText) {
    const HelpOf help;
    EXPECT_EQ(help.Meaning("MESSAGE 1|"), "MESSAGE 1: It is too dark.");
    EXPECT_EQ(help.Meaning("AT |1 MESSAGE 0"), "AT 1: The cellar");
    EXPECT_EQ(help.Meaning("PRESENT 0|"), "PRESENT 0: a brass lamp");
    EXPECT_EQ(help.Meaning("PROCESS 1|"), "PROCESS 1: Done after a DESC");
    EXPECT_EQ(help.Meaning("SYSMESS 9|"), "SYSMESS 9: You are carrying:");
    EXPECT_EQ(help.Meaning("message 1|"), "MESSAGE 1: It is too dark.");
}

TEST(MeaningOfAToken, OfAFlagIsItsDescriptionOrItsUse) {
    HelpOf help;
    store::Cursor& flag = help.GameDesk().Adventure().OpenTable(TableNum::Flags, "def", "flgnum=12");
    flag.SetField("flguse", std::string("Counter"));
    flag.Update();
    help.Reload();
    EXPECT_EQ(help.Meaning("ZERO 5|"), "ZERO 5: Goes down by 1 each turn, until it is 0.");
    EXPECT_EQ(help.Meaning("ZERO 12|"), "ZERO 12: Counter");
    EXPECT_EQ(help.Meaning("ZERO 11|"), "ZERO 11: no description");
}

TEST(MeaningOfAToken, OfTheSecondParameter) {
    const HelpOf help;
    EXPECT_EQ(help.Meaning("PLACE 0 2|"), "PLACE 2: The stairs");
    EXPECT_EQ(help.Meaning("PLACE 0 254|"), "PLACE 254: carried by the player");
    EXPECT_EQ(help.Meaning("PLACE 0 here|"), "PLACE HERE: where the player is");
}

TEST(MeaningOfAToken, OfARecordThatIsNotThere) {
    EXPECT_EQ(HelpOf().Meaning("MESSAGE 7|"), "MESSAGE 7: there is no message 7");
    EXPECT_EQ(HelpOf().Meaning("AT 44|"), "AT 44: there is no location 44");
    EXPECT_EQ(HelpOf().Meaning("MESSAGE 2|"), "MESSAGE 2: no description");
}

TEST(MeaningOfAToken, OfAWordIsItsTypeAndNumber) {
    EXPECT_EQ(HelpOf().Meaning("PREP WITH|"), "PREP WITH: preposition 207");
    EXPECT_EQ(HelpOf().Meaning("PREP WITHOUT|"), "");
}

TEST(MeaningOfAToken, OfAValueIsItsRange) {
    EXPECT_EQ(HelpOf().Meaning("CHANCE 5|0"), "CHANCE 50: a value from 0 to 100");
}

TEST(MeaningOfAToken, OfANameIsItsKindAndItsParameters) {
    const HelpOf help;
    EXPECT_EQ(help.Meaning("MESS|AGE 1"), "MESSAGE: action, takes a message");
    EXPECT_EQ(help.Meaning("at|"), "AT: condition, takes a location");
    EXPECT_EQ(help.Meaning("PLACE|"), "PLACE: action, takes an object and a location");
    EXPECT_EQ(help.Meaning("DONE|"), "DONE: action");
    EXPECT_EQ(help.Meaning("PREP|"), "PREP: condition, takes a preposition");
    EXPECT_EQ(help.Meaning("LET|"), "LET: action, takes a flag and a value from 0 to 999");
}

TEST(MeaningOfAToken, WhereNoneIsTellsWhatCouldStandThere) {
    const HelpOf help;
    EXPECT_EQ(help.Meaning("PLACE |"), "PLACE takes an object here");
    EXPECT_EQ(help.Meaning("PLACE 0 |"), "PLACE takes a location here");
    EXPECT_EQ(help.Meaning("PLACE 0 1 |"), "");
    EXPECT_EQ(help.Meaning("|"), "");
}

TEST(MeaningOfAToken, IsNotToldBehindANameThatIsNone) {
    EXPECT_EQ(HelpOf().Meaning("XYZ| MESSAGE 1"), "");
    EXPECT_EQ(HelpOf().Meaning("XYZ MESSAGE 1|"), "");
}

TEST(FaultOfALine, StandsAtItsToken) {
    const HelpOf help;
    EXPECT_EQ(help->FirstFault("AT 1  MESSAGE 77 DONE"),
              (MarkedFault{"Invalid number for parameter 1", 14, 16}));
    EXPECT_EQ(help->FirstFault("AT 1 XYZ"), (MarkedFault{"XYZ is an invalid Condition/Action", 5, 8}));
    EXPECT_EQ(help->FirstFault("AT 1 PLACE 0"),
              (MarkedFault{"No parameter where there should be one", 5, 10}));
}

TEST(FaultOfALine, IsNoneInAValidLine) {
    EXPECT_EQ(HelpOf()->FirstFault("AT 1 PLACE 0 CARRIED message 1 DONE"), std::nullopt);
    EXPECT_EQ(HelpOf()->FirstFault(""), std::nullopt);
}

TEST(FaultOfALine, StandsAtItsTokenBehindLettersThatAreNotAscii) {
    EXPECT_EQ(HelpOf()->FirstFault("ä AT 77"), (MarkedFault{"Invalid number for parameter 1", 6, 8}));
}

TEST(FaultWhileTyping, OfTheTokenAtTheCursorIsNotToldYet) {
    const HelpOf help;
    EXPECT_EQ(help->FirstFaultWhileTyping("AT 1 MESSA", 10), std::nullopt);
    EXPECT_TRUE(help->FirstFaultWhileTyping("AT 1 MESSA ", 11));
    EXPECT_TRUE(help->FirstFaultWhileTyping("AT 1 MESSA", 2));
}

TEST(FaultWhileTyping, OfAParameterThatIsStillToComeIsNotToldYet) {
    const HelpOf help;
    EXPECT_EQ(help->FirstFaultWhileTyping("AT 1 PLACE 0 ", 13), std::nullopt);
    EXPECT_EQ(help->FirstFaultWhileTyping("AT 1 PLACE ", 11), std::nullopt);
    EXPECT_TRUE(help->FirstFaultWhileTyping("AT 1 PLACE 0 ", 2));
}

TEST(FaultWhileTyping, InTheMidstOfTheLineIsTold) {
    EXPECT_EQ(HelpOf()->FirstFaultWhileTyping("AT 77 DO", 8),
              (MarkedFault{"Invalid number for parameter 1", 3, 5}));
}

TEST(ParameterNames, AreThoseOfTheirKinds) {
    const HelpOf help;
    const auto name = [&](std::string_view condAct, std::size_t place) {
        return std::string(CondActHelp::ParameterName(*help->Catalogue().Find(condAct), place));
    };
    EXPECT_EQ(name("AT", 0), "Location");
    EXPECT_EQ(name("MESSAGE", 0), "Message");
    EXPECT_EQ(name("PLACE", 0), "Object");
    EXPECT_EQ(name("PLACE", 1), "Location");
    EXPECT_EQ(name("PROCESS", 0), "Process");
    EXPECT_EQ(name("SYSMESS", 0), "SysMsg");
    EXPECT_EQ(name("ADJECT1", 0), "Adject");
    EXPECT_EQ(name("ADJECT2", 0), "Adject");
    EXPECT_EQ(name("ADVERB", 0), "Adverb");
    EXPECT_EQ(name("PREP", 0), "Prep");
    EXPECT_EQ(name("NOUN2", 0), "Noun");
    EXPECT_EQ(name("SET", 0), "Flag");
    EXPECT_EQ(name("CHANCE", 0), "Value");
}

TEST(Page, IsThatOfTheNameAtTheCursorOrOfTheNameBeforeAParameter) {
    const HelpOf help;
    EXPECT_EQ(help->Page("AT 0 MESSAGE 1", 1), "at.htm");
    EXPECT_EQ(help->Page("AT 0 MESSAGE 1", 4), "at.htm");
    EXPECT_EQ(help->Page("AT 0 MESSAGE 1", 5), "message.htm");
    EXPECT_EQ(help->Page("AT 0 MESSAGE 1", 14), "message.htm");
}

TEST(Page, IsNoneWhereThereIsNoName) {
    const HelpOf help;
    EXPECT_EQ(help->Page("", 0), "");
    EXPECT_EQ(help->Page("XYZ 1", 1), "");
    EXPECT_EQ(help->Page("DONE ", 5), "");
}

TEST(TypedNames, OfferTheRecordsOfTheParameterByTheirText) {
    HelpOf help;
    EXPECT_THAT(help.Offered("PRESENT \"|"), ElementsAre("0  a brass lamp", "1  a box"));
    EXPECT_THAT(help.Offered("PRESENT \"bra|"), ElementsAre("0  a brass lamp"));
    EXPECT_THAT(help.Offered("PRESENT @LAM|"), ElementsAre("0  a brass lamp"));
    EXPECT_THAT(help.Offered("AT @cel| DONE"), ElementsAre("1  The cellar"));
    EXPECT_THAT(help.Offered("PRESENT \"amp|"), IsEmpty());
    EXPECT_THAT(help.Offered("MESSAGE \"too dark|\" DONE"), ElementsAre("1  It is too dark."));
}

TEST(TypedNames, OfferOnlyWhatPassesTheChecksAtThePlace) {
    HelpOf help;
    EXPECT_THAT(help.Offered("PUTIN 0 \"|"), ElementsAre("1  The cellar"));
    EXPECT_THAT(help.Offered("PLACE \"a b|"), ElementsAre("0  a brass lamp", "1  a box"));
}

TEST(TypedNames, OfferFlagsAndProcessTablesByTheirDescriptions) {
    HelpOf help;
    help.GameDesk().Add(TableNum::ProcDesc,
                        {{"pmsgnum", std::int64_t{7}}, {"pmsgmsg", std::string("The tide rises")}});
    help.Reload();
    EXPECT_THAT(help.Offered("PROCESS @tide|"), ElementsAre("7  The tide rises"));
    EXPECT_THAT(help.Offered("SET \"no such flag|"), IsEmpty());
}

TEST(TypedNames, OfferToAddAMessageThatIsNotThere) {
    HelpOf help;
    EXPECT_THAT(help.Offered("MESSAGE \"It snows|"), IsEmpty());
    help->OfferNewMessage(condacts::MessageNumber(3));
    EXPECT_THAT(help.Offered("MESSAGE \"It snows|"), ElementsAre("Add message 3: \u201CIt snows\u201D"));
    EXPECT_THAT(help.Offered("MESSAGE \"It|"),
                ElementsAre("1  It is too dark.", "Add message 3: \u201CIt\u201D"));
    EXPECT_THAT(help.Offered("MESSAGE \"welcome!\"|"), ElementsAre("0  Welcome!"));
    EXPECT_THAT(help.Offered("MESSAGE @snow|"), IsEmpty());
    EXPECT_THAT(help.Offered("SYSMESS \"It snows|"), IsEmpty());
    EXPECT_THAT(help.Offered("MESSAGE \"|"), Not(Contains("Add message 3: \u201C\u201D")));
}

TEST(TypedNames, AreReplacedWithTheirQuotes) {
    HelpOf help;
    const std::string line = "PRESENT \"brass lamp\" DONE";
    const Completions found = help->Complete(line, 20);
    EXPECT_EQ(found.begin, 8U);
    EXPECT_EQ(found.end, 20U);
    ASSERT_EQ(found.items.size(), 1U);
    EXPECT_EQ(found.items.front().insert, "0");
    // The rest of a line is no part of a name that is not closed yet.
    EXPECT_EQ(help->Complete("PRESENT \"bra DONE", 12).end, 12U);
}

TEST(TypedNames, AreAFaultUntilARecordIsChosen) {
    HelpOf help;
    EXPECT_EQ(help->FirstFault("PRESENT \"brass lamp\" DONE"), (MarkedFault{"Choose an object", 8, 20}));
    EXPECT_EQ(help->FirstFaultWhileTyping("PRESENT \"brass la", 17), std::nullopt);
}

TEST(TypedNames, AreNoneWhereAPlainNumberOrANameOfACondactStands) {
    HelpOf help;
    EXPECT_EQ(help->FirstName("\"lamp\""), std::nullopt);
    EXPECT_EQ(help->FirstName("CHANCE \"lamp\""), std::nullopt);
    EXPECT_EQ(help->FirstName("PRESENT 0 DONE"), std::nullopt);
}

TEST(NamedByALine, IsTheRecordOfTheTokenAtTheCursor) {
    HelpOf help;
    help.GameDesk().AddWord(500, "GENTLY", 40, 1);
    help.Reload();
    const auto named = [&](const char* line, std::size_t cursor) {
        return help->Named(help.GameDesk().Adventure(), line, cursor);
    };
    EXPECT_EQ(named("AT 1 MESSAGE 2", 4), (NamedRecord{TableNum::Locations, 1}));
    EXPECT_EQ(named("AT 1 MESSAGE 2", 14), (NamedRecord{TableNum::Messages, 2}));
    EXPECT_EQ(named("AT 1 MESSAGE 2", 7), std::nullopt);
    EXPECT_EQ(named("PLACE 0 CARRIED", 12), std::nullopt);
    EXPECT_EQ(named("ADVERB gently", 9), (NamedRecord{TableNum::Vocabulary, 500}));
    EXPECT_EQ(named("CHANCE 50", 8), std::nullopt);
}

}  // namespace
}  // namespace fabula::authoring
