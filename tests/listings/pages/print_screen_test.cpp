#include "listings/pages/print_screen.h"

#include <string>

#include <gtest/gtest.h>

#include "authoring/document/screen_context.h"
#include "listings/listed_adventure.h"
#include "support/doubles/scripted_dialogs.h"

namespace fabula::listings {
namespace {

using store::TableNum;
using Purpose = PrintScreen::Purpose;

class Printing : public testing::Test {
  protected:
    Printing() {
        Empty(*adventure_, TableNum::ProcessTables);
        for (const int table : {0, 3, 4}) {
            AddRecord(*adventure_, TableNum::ProcessTables,
                      {{"canum", std::int64_t{table + 1}}, {"estype", std::int64_t{table}}});
        }
        Empty(*adventure_, TableNum::Vocabulary);
        Word("GET", 20, 0);
        Word("LAMP", 50, 2);
        Word("_", 255, 7);
    }
    void Word(std::string word, int number, int type) {
        AddRecord(*adventure_, TableNum::Vocabulary,
                  {{"vocindex", std::int64_t{++words_}},
                   {"vocnum", std::int64_t{number}},
                   {"word", std::move(word)},
                   {"voctypen", std::int64_t{type}}});
    }
    PrintScreen Screen(TableNum table, Purpose purpose = Purpose::Print, int process = 0) {
        return {*adventure_, table, process, purpose, dialogs_};
    }
    /// The message of a check that refuses.
    std::string Refused(PrintScreen& screen) {
        EXPECT_FALSE(screen.Check());
        if (dialogs_.Boxes().empty()) return "no box";
        EXPECT_EQ(dialogs_.Boxes().back().title, "Error");
        return dialogs_.Boxes().back().text;
    }

    test::OpenedAdventure adventure_;
    platform::ScriptedDialogs dialogs_;
    int words_ = 0;
};

TEST_F(Printing, TitleNamesTheTable) {
    EXPECT_EQ(Screen(TableNum::Locations).Title(), "Print for Location Table");
    EXPECT_EQ(Screen(TableNum::Locations, Purpose::Preview).Title(),
              "Print Preview Setup for Location Table");
    EXPECT_EQ(Screen(TableNum::ProcessTables).Title(), "Print for Response (P0) Table");
    EXPECT_EQ(Screen(TableNum::ProcessTables, Purpose::Print, authoring::kOtherProcesses).Title(),
              "Print for Other Process Tables");
}

TEST_F(Printing, TableInViewIsTheOneThatIsListed) {
    PrintScreen screen = Screen(TableNum::ProcessTables);
    const auto job = screen.Check();
    ASSERT_TRUE(job);
    EXPECT_EQ(job->report->name, "processes");
    EXPECT_EQ(job->request.numbers, std::vector<int>{0});
    EXPECT_EQ(job->title, "Response (P0) Table");
}

TEST_F(Printing, OtherTablesAreAskedFor) {
    PrintScreen screen = Screen(TableNum::ProcessTables, Purpose::Print, authoring::kOtherProcesses);
    EXPECT_TRUE(screen.HasRange());
    EXPECT_EQ(Refused(screen), "No Process Tables specified to print");
    screen.range = "3-";
    EXPECT_EQ(screen.Check()->request.numbers, (std::vector<int>{3, 4}));
}

TEST_F(Printing, SpecialListingChangesTheLabelOfTheRange) {
    PrintScreen screen = Screen(TableNum::ProcessTables, Purpose::Print, authoring::kOtherProcesses);
    EXPECT_EQ(screen.RangeLabel(), "Which Tables:");
    screen.ClickSpecial(true);
    EXPECT_EQ(screen.RangeLabel(), "What Table:");
    screen.ClickSpecial(false);
    EXPECT_EQ(screen.RangeLabel(), "What Tables:");
}

TEST_F(Printing, SpecialListingAsksForTypeVerbAndNoun) {
    PrintScreen screen = Screen(TableNum::ProcessTables);
    screen.special = true;
    EXPECT_EQ(Refused(screen), "No Type selected");
    screen.ChooseWordType(0);
    EXPECT_EQ(Refused(screen), "No Verb selected");
    screen.verb.ChooseText("GET");
    EXPECT_EQ(Refused(screen), "No Noun selected");
    screen.noun.ChooseText("LAMP");
    const auto job = screen.Check();
    ASSERT_TRUE(job);
    EXPECT_EQ(job->report->name, "verb-noun");
    EXPECT_EQ(job->request.verb, "GET");
    EXPECT_EQ(job->request.noun, "LAMP");
}

TEST_F(Printing, VerbsFollowTheirType) {
    PrintScreen screen = Screen(TableNum::ProcessTables);
    screen.ChooseWordType(1);
    ASSERT_EQ(screen.verb.items.size(), 1u);
    EXPECT_EQ(screen.verb.items[0].text, "LAMP");
}

TEST_F(Printing, SpecialListingOfSeveralTablesIsRefused) {
    PrintScreen screen = Screen(TableNum::ProcessTables, Purpose::Print, authoring::kOtherProcesses);
    screen.special = true;
    screen.ChooseWordType(0);
    screen.verb.ChooseText("GET");
    screen.noun.ChooseText("LAMP");
    screen.range = "1,2";
    EXPECT_EQ(Refused(screen), "Cannot print more than one table when Special Listing is checked");
}

TEST_F(Printing, PreviewRefusesABriefCompleteListing) {
    PrintScreen screen = Screen(TableNum::Locations, Purpose::Preview);
    screen.complete = true;
    screen.completeForm = PrintScreen::CompleteForm::Brief;
    EXPECT_EQ(Refused(screen), "Cannot do a Brief Complete Listing");
}

TEST_F(Printing, PreviewRefusesKeypadTemplates) {
    PrintScreen screen = Screen(TableNum::Templates, Purpose::Preview);
    EXPECT_EQ(Refused(screen), "Cannot do a Keypad Template Print Preview");
}

TEST_F(Printing, PreviewRefusesCharacterSets) {
    PrintScreen screen = Screen(TableNum::Characters, Purpose::Preview);
    EXPECT_EQ(Refused(screen), "Cannot do a Print Preview of this table");
}

TEST_F(Printing, PaperTakesWhatThePreviewRefuses) {
    PrintScreen screen = Screen(TableNum::Characters);
    screen.form.index = 1;
    EXPECT_EQ(screen.Check()->report->name, "character-sets-full");
    screen.complete = true;
    screen.completeForm = PrintScreen::CompleteForm::Brief;
    const auto job = screen.Check();
    EXPECT_EQ(job->report->name, "adventure");
    EXPECT_EQ(job->request.detail, Detail::Brief);
}

TEST_F(Printing, CompleteListingMayBeVerbose) {
    PrintScreen screen = Screen(TableNum::Locations);
    screen.complete = true;
    EXPECT_EQ(screen.Check()->request.detail, Detail::Plain);
    screen.completeForm = PrintScreen::CompleteForm::Verbose;
    EXPECT_EQ(screen.Check()->request.detail, Detail::Verbose);
}

TEST_F(Printing, VerboseLocationsAreComplete) {
    PrintScreen screen = Screen(TableNum::Locations);
    screen.verbose = true;
    const auto job = screen.Check();
    EXPECT_EQ(job->request.detail, Detail::Verbose);
    EXPECT_TRUE(job->request.complete);
}

TEST_F(Printing, UserFlagsTakeANumberOfEntries) {
    PrintScreen screen = Screen(TableNum::Flags);
    EXPECT_FALSE(screen.HasRange());
    screen.form.index = 1;
    EXPECT_TRUE(screen.HasRange());
    EXPECT_EQ(screen.RangeLabel(), "How many lines for tables:");
    screen.range = "200";
    EXPECT_EQ(Refused(screen), "200 extra entries would take it out of the table");
    screen.range = "5";
    EXPECT_EQ(screen.Check()->request.extraEntries, 5);
}

TEST_F(Printing, EveryTableThatMayBePrintedHasATitle) {
    for (int number = 1; number <= store::kHighestTable; ++number) {
        const auto table = static_cast<TableNum>(number);
        store::PreparedQuery row = adventure_->Prepare(
            TableNum::Tables, "allowprint", "tablenum=" + std::to_string(number) + " and export=1");
        if (!row.First({}) || row.Text(0) != "Y") continue;
        EXPECT_NE(PrintTitle(table), "") << number;
        EXPECT_TRUE(Screen(table).form.Chosen()) << number;
    }
}

TEST_F(Printing, OffersTheListingsOfATable) {
    const auto captions = [this](TableNum table) {
        std::vector<std::string> texts;
        for (const authoring::ListItem& item : Screen(table).form.items)
            texts.push_back(item.text);
        return texts;
    };
    using Captions = std::vector<std::string>;
    EXPECT_EQ(captions(TableNum::Adventure), Captions{"Settings"});
    EXPECT_EQ(captions(TableNum::ProcessTables), Captions{"Processes"});
    EXPECT_EQ(captions(TableNum::Vocabulary), (Captions{"By Type and Word", "By Type and Word Number"}));
    EXPECT_EQ(captions(TableNum::Flags), (Captions{"All Flags", "User Flags"}));
    EXPECT_EQ(captions(TableNum::ProcDesc), (Captions{"All Process Tables", "Described Process Tables"}));
    EXPECT_EQ(captions(TableNum::Characters),
              (Captions{"Pictures of the Characters", "Full Listing with Values"}));
    EXPECT_EQ(captions(TableNum::Pictures), (Captions{"Pictures and Commands", "GOSUB Report"}));
}

TEST_F(Printing, GivesTheListingThatWasChosen) {
    PrintScreen screen = Screen(TableNum::Vocabulary);
    EXPECT_EQ(screen.Check()->report->name, "vocabulary");
    screen.form.index = 1;
    EXPECT_EQ(screen.Check()->report->name, "vocabulary-numbers");
}

TEST_F(Printing, SizesOfKeypadsNameTheirTemplates) {
    EXPECT_EQ(TemplateOfSize(0, dialogs_), "keypad_small");
    EXPECT_EQ(TemplateOfSize(1, dialogs_), "keypad_large");
    EXPECT_TRUE(dialogs_.Boxes().empty());
}

TEST_F(Printing, AnotherSizeIsNotMadeUp) {
    EXPECT_FALSE(TemplateOfSize(2, dialogs_));
    EXPECT_TRUE(dialogs_.Boxes().back().text.starts_with("That size is not made up.\n"));
}

}  // namespace
}  // namespace fabula::listings
