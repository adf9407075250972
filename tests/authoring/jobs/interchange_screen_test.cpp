#include "authoring/jobs/interchange_screen.h"

#include <fstream>

#include <gtest/gtest.h>

#include "authoring/document/document.h"
#include "support/doubles/scripted_dialogs.h"
#include "support/doubles/scripted_pump.h"
#include "support/games/template_adventure.h"
#include "support/places.h"
#include "support/raw_database.h"

namespace fabula::authoring {
namespace {

using std::filesystem::path;
using store::TableNum;
using test::ScriptedPump;

class InterchangeScreenTest : public testing::Test {
  protected:
    InterchangeScreen Screen(JobMode mode) { return InterchangeScreen(mode, &*adventure_, host_); }
    path In(const char* name) const { return adventure_.Folder() / name; }

    std::vector<std::string> Names(const InterchangeScreen& screen) {
        std::vector<std::string> names;
        for (const interchange::FileKind* kind : screen.Kinds())
            names.emplace_back(kind->name);
        return names;
    }
    static std::size_t Option(const InterchangeScreen& screen, std::string_view name) {
        for (std::size_t i = 0; i < screen.Kinds().size(); ++i) {
            if (screen.Kinds()[i]->name == name) return i;
        }
        return screen.Kinds().size();
    }
    void SetTitle(const char* title) {
        store::Cursor& settings = adventure_->OpenTable(TableNum::Adventure, "def");
        settings.SetField("advname", std::string(title));
        settings.Update();
    }
    /// An export file of the adventure, made by the screen itself.
    path Exported() {
        InterchangeScreen screen = Screen(JobMode::Export);
        screen.ChooseKind(Option(screen, "Fabula"));
        screen.source = In("game.ext").string();
        EXPECT_TRUE(screen.RunJob());
        return In("game.ext");
    }
    static std::string TitleIn(const path& file) {
        const auto adventure = store::Adventure::Open(file, store::OpenMode::ReadOnly);
        return std::string(adventure->OpenTable(TableNum::Adventure, "def").Text("advname"));
    }

    test::OpenedAdventure adventure_;
    platform::ScriptedDialogs dialogs_;
    platform::FixedClock clock_{{2026, 3, 9, 8, 5, 7}};
    ScriptedPump pump_;
    platform::MemorySettings settings_;
    InterchangeHost host_{dialogs_, clock_, pump_, settings_, test::DefaultData()};
};

TEST_F(InterchangeScreenTest, ImportHasItsTitleLabelsAndKinds) {
    const InterchangeScreen screen = Screen(JobMode::Import);
    EXPECT_EQ(screen.Title(), "Import of source file");
    EXPECT_EQ(screen.StatusCaption(), "Import Status");
    EXPECT_EQ(screen.MainButton(), "&Import");
    EXPECT_EQ(InterchangeScreen::kPrintButton, "&Print Status");
    EXPECT_EQ(Names(screen), (std::vector<std::string>{"UnMarlo", "UnVel", "PCVEL", "Fabula", "ACE"}));
}

TEST_F(InterchangeScreenTest, ExportHasItsTitleLabelsAndKinds) {
    const InterchangeScreen screen = Screen(JobMode::Export);
    EXPECT_EQ(screen.Title(), "Export of Database");
    EXPECT_EQ(screen.StatusCaption(), "Export Status");
    EXPECT_EQ(screen.MainButton(), "&Export");
    EXPECT_EQ(Names(screen), (std::vector<std::string>{"UnVel", "PCVEL", "Fabula"}));
}

TEST_F(InterchangeScreenTest, TheUsualKindIsChosenAtFirstAndEachCanBe) {
    InterchangeScreen screen = Screen(JobMode::Import);
    EXPECT_EQ(screen.ChosenKind(), 2U);
    EXPECT_TRUE(screen.ChooseKind(0));
    EXPECT_EQ(screen.ChosenKind(), 0U);
    EXPECT_TRUE(screen.ChooseKind(4));
    EXPECT_EQ(screen.ChosenKind(), 4U);
    EXPECT_FALSE(screen.ChooseKind(5));
}

TEST_F(InterchangeScreenTest, ASourceThatTellsItsKindChoosesIt) {
    const auto chosen = [&](const char* name, const std::string& content, std::string_view before) {
        test::WriteBytes(In(name), content);
        InterchangeScreen screen = Screen(JobMode::Import);
        screen.ChooseKind(Option(screen, before));
        dialogs_.AnswerFile(In(name));
        screen.ChooseSource();
        return std::string(screen.Kinds()[screen.ChosenKind()]->name);
    };
    EXPECT_EQ(chosen("a.txt", "4.0.0\n5|advnum|1\n", "PCVEL"), "Fabula");
    EXPECT_EQ(chosen("b.txt", "; a game\n/CTL\n_\n", "Fabula"), "PCVEL");
    EXPECT_EQ(chosen("c.txt", "/ctl\n_\n", "ACE"), "ACE") << "the two look alike";
    EXPECT_EQ(chosen("d.txt", "a letter to a friend\n", "Fabula"), "Fabula");
    EXPECT_EQ(chosen("e.txt", "", "PCVEL"), "PCVEL");
}

TEST_F(InterchangeScreenTest, AnExportBeginsWithTheAdventuresOwnKind) {
    const auto chosen = [&](const char* source) {
        store::Cursor& settings = adventure_->OpenTable(TableNum::Adventure, "source");
        settings.SetField("source", std::string(source));
        settings.Update();
        const InterchangeScreen screen = Screen(JobMode::Export);
        return std::string(screen.Kinds()[screen.ChosenKind()]->name);
    };
    EXPECT_EQ(chosen("New"), "Fabula");
    EXPECT_EQ(chosen("FabulaExp"), "Fabula");
    EXPECT_EQ(chosen("UnVel"), "UnVel");
    EXPECT_EQ(chosen("PCVel"), "PCVEL");
    EXPECT_EQ(chosen("ACE"), "PCVEL") << "its own kind is not offered";
    EXPECT_EQ(chosen("UnMarlo"), "PCVEL") << "its own kind can't be written";
    EXPECT_EQ(chosen("Unknown"), "PCVEL");
}

TEST_F(InterchangeScreenTest, BlankSourceIsRefused) {
    InterchangeScreen screen = Screen(JobMode::Import);
    screen.source = "   ";
    screen.database = In("new.fbd").string();
    EXPECT_FALSE(screen.RunJob());
    EXPECT_EQ(dialogs_.Boxes().at(0).text, "Source File not specified");
    EXPECT_EQ(dialogs_.Boxes().at(0).title, "Error");
    EXPECT_TRUE(screen.CanRun());
    EXPECT_FALSE(screen.CanPrint());
}

TEST_F(InterchangeScreenTest, BlankTargetOfAnExportIsRefused) {
    InterchangeScreen screen = Screen(JobMode::Export);
    screen.source = "  ";
    EXPECT_FALSE(screen.RunJob());
    EXPECT_EQ(dialogs_.Boxes().at(0).text, "Source File not specified");
}

TEST_F(InterchangeScreenTest, AnExportProposesTheAdventuresNameWithTheExtensionOfTheKind) {
    InterchangeScreen screen = Screen(JobMode::Export);
    screen.ChooseKind(Option(screen, "PCVEL"));
    EXPECT_EQ(screen.source, "game.sce");
    screen.ChooseKind(Option(screen, "Fabula"));
    EXPECT_EQ(screen.source, "game.ext");
    screen.source = "mine.txt";
    screen.ChooseKind(Option(screen, "PCVEL"));
    EXPECT_EQ(screen.source, "mine.txt");
}

TEST_F(InterchangeScreenTest, AnExportUnderTheProposedNameLiesBesideTheAdventure) {
    InterchangeScreen screen = Screen(JobMode::Export);
    screen.ChooseKind(Option(screen, "Fabula"));
    EXPECT_TRUE(screen.RunJob());
    EXPECT_TRUE(std::filesystem::exists(In("game.ext")));
}

TEST_F(InterchangeScreenTest, SourceOfEachKindIsAskedForInItsOwnDialog) {
    InterchangeScreen screen = Screen(JobMode::Import);
    for (const char* kind : {"PCVEL", "Fabula", "ACE", "UnMarlo", "UnVel"}) {
        dialogs_.AnswerFile(std::nullopt);
        screen.ChooseKind(Option(screen, kind));
        screen.ChooseSource();
    }
    ASSERT_EQ(dialogs_.Questions().size(), 5U);
    EXPECT_EQ(dialogs_.Questions()[3].title, "Load an UnMarlo output file");
    EXPECT_EQ(dialogs_.Questions()[4].title, "Load an UnVel output file");
    EXPECT_EQ(dialogs_.Questions()[0].title, "Load an PC VEL source file");
    EXPECT_EQ(dialogs_.Questions()[0].filter, "PC VEL Sources (*.sce)|*.sce|All files|*.*");
    EXPECT_EQ(dialogs_.Questions()[1].title, "Load an Fabula Exportfile");
    EXPECT_EQ(dialogs_.Questions()[1].filter, "Fabula Export (*.ext)|*.ext|All files|*.*");
    EXPECT_EQ(dialogs_.Questions()[2].title, "Load an ACE source file");
    EXPECT_EQ(dialogs_.Questions()[2].filter, "ACE Sources (*.*)|*.*|All files|*.*");
    for (const auto& question : dialogs_.Questions())
        EXPECT_FALSE(question.forWriting);
    EXPECT_EQ(screen.source, "");
}

TEST_F(InterchangeScreenTest, TargetOfEachKindIsAskedForInItsOwnDialog) {
    InterchangeScreen screen = Screen(JobMode::Export);
    for (const char* kind : {"PCVEL", "Fabula"}) {
        dialogs_.AnswerFile(std::nullopt);
        screen.ChooseKind(Option(screen, kind));
        screen.ChooseSource();
    }
    ASSERT_EQ(dialogs_.Questions().size(), 2U);
    EXPECT_EQ(dialogs_.Questions()[0].title, "Save as a PC VEL source");
    EXPECT_EQ(dialogs_.Questions()[0].filter, "PC VEL source (*.sce)|*.sce");
    EXPECT_EQ(dialogs_.Questions()[0].extension, "sce");
    EXPECT_EQ(dialogs_.Questions()[0].start, In("game.sce"));
    EXPECT_EQ(dialogs_.Questions()[1].title, "Save as an FabuLA Extract");
    EXPECT_EQ(dialogs_.Questions()[1].filter, "FabuLA Extract (*.ext)|*.ext");
    EXPECT_EQ(dialogs_.Questions()[1].extension, "ext");
    for (const auto& question : dialogs_.Questions())
        EXPECT_TRUE(question.forWriting);
}

TEST_F(InterchangeScreenTest, DatabaseIsAskedForInItsOwnDialog) {
    InterchangeScreen screen = Screen(JobMode::Import);
    dialogs_.AnswerFile(In("new.fbd"));
    screen.ChooseDatabase();
    EXPECT_EQ(dialogs_.Questions().at(0).title, "Create a Fabula Database");
    EXPECT_EQ(dialogs_.Questions().at(0).filter, "Fabula Database|*.fbd");
    EXPECT_EQ(dialogs_.Questions().at(0).extension, "fbd");
    EXPECT_EQ(screen.database, In("new.fbd").string());
}

TEST_F(InterchangeScreenTest, SourceProposesTheDatabaseInItsFolder) {
    InterchangeScreen screen = Screen(JobMode::Import);
    dialogs_.AnswerFile(path("/games/mill.sce"));
    screen.ChooseSource();
    EXPECT_EQ(screen.database, "/games/mill.fbd");
}

TEST_F(InterchangeScreenTest, ProposalLeavesADatabaseThatWasChosenAlone) {
    InterchangeScreen screen = Screen(JobMode::Import);
    screen.database = "/games/mine.fbd";
    dialogs_.AnswerFile(path("/games/mill.sce"));
    screen.ChooseSource();
    EXPECT_EQ(screen.database, "/games/mine.fbd");
}

TEST_F(InterchangeScreenTest, ImportWithoutADatabaseAsksForIt) {
    const path source = Exported();
    InterchangeScreen screen = Screen(JobMode::Import);
    screen.ChooseKind(Option(screen, "Fabula"));
    screen.source = source.string();
    dialogs_.AnswerFile(std::nullopt);
    EXPECT_FALSE(screen.RunJob());
    EXPECT_TRUE(screen.CanRun());
    dialogs_.AnswerFile(In("new.fbd"));
    EXPECT_TRUE(screen.RunJob());
}

TEST_F(InterchangeScreenTest, ImportMakesAFileToBeOpenedAndRemembersIt) {
    SetTitle("The Old Mill");
    const path source = Exported();
    InterchangeScreen screen = Screen(JobMode::Import);
    screen.ChooseKind(Option(screen, "Fabula"));
    screen.source = source.string();
    screen.database = In("new.fbd").string();
    EXPECT_TRUE(screen.RunJob());
    EXPECT_EQ(screen.NewFile(), In("new.fbd"));
    EXPECT_EQ(settings_.Get("Startup", "File"), In("new.fbd").string());
    EXPECT_EQ(TitleIn(In("new.fbd")), "The Old Mill");
    EXPECT_FALSE(screen.CanRun());
    EXPECT_TRUE(screen.CanPrint());
    EXPECT_TRUE(screen.Status().starts_with("Creating default database for " + In("new.fbd").string()));
    EXPECT_FALSE(screen.RunJob());
}

TEST_F(InterchangeScreenTest, DatabaseWithoutAnExtensionGetsOne) {
    const path source = Exported();
    InterchangeScreen screen = Screen(JobMode::Import);
    screen.ChooseKind(Option(screen, "Fabula"));
    screen.source = source.string();
    screen.database = In("new").string();
    EXPECT_TRUE(screen.RunJob());
    EXPECT_EQ(screen.NewFile(), In("new.fbd"));
}

TEST_F(InterchangeScreenTest, ImportThatFailsLeavesNothingAndTheOldFileRemembered) {
    std::ofstream(In("bad.ext")) << "this is no export file\n";
    settings_.Set("Startup", "File", adventure_.File().string());
    InterchangeScreen screen = Screen(JobMode::Import);
    screen.ChooseKind(Option(screen, "Fabula"));
    screen.source = In("bad.ext").string();
    screen.database = In("new.fbd").string();
    EXPECT_FALSE(screen.RunJob());
    EXPECT_FALSE(std::filesystem::exists(In("new.fbd")));
    EXPECT_EQ(screen.NewFile(), std::nullopt);
    EXPECT_EQ(settings_.Get("Startup", "File"), adventure_.File().string());
    EXPECT_TRUE(screen.Status().ends_with("Deleting bad database\n")) << screen.Status();
    EXPECT_TRUE(screen.CanPrint());
    EXPECT_TRUE(screen.CanRun());
    SetTitle("The open adventure is as it was");
}

TEST_F(InterchangeScreenTest, SourceThatIsMissingIsToldAndLeavesNothing) {
    InterchangeScreen screen = Screen(JobMode::Import);
    screen.source = In("none.sce").string();
    screen.database = In("new.fbd").string();
    EXPECT_FALSE(screen.RunJob());
    EXPECT_FALSE(std::filesystem::exists(In("new.fbd")));
    ASSERT_EQ(dialogs_.Boxes().size(), 1U);
    EXPECT_EQ(dialogs_.Boxes()[0].title, "Error");
}

TEST_F(InterchangeScreenTest, ExistingDatabaseIsReplacedOnlyAfterAQuestion) {
    const path source = Exported();
    std::ofstream(In("new.fbd")) << "old";
    InterchangeScreen screen = Screen(JobMode::Import);
    screen.ChooseKind(Option(screen, "Fabula"));
    screen.source = source.string();
    screen.database = In("new.fbd").string();
    dialogs_.AnswerNext(false);
    EXPECT_FALSE(screen.RunJob());
    EXPECT_EQ(dialogs_.Boxes().back().text,
              "All information in " + In("new.fbd").string() + " will be deleted.");
    EXPECT_EQ(dialogs_.Boxes().back().title, "Warning");
    EXPECT_EQ(std::filesystem::file_size(In("new.fbd")), 3U);
    dialogs_.AnswerNext(true);
    EXPECT_TRUE(screen.RunJob());
}

TEST_F(InterchangeScreenTest, DatabaseThatItsDialogHasAskedAboutIsReplacedAtOnce) {
    const path source = Exported();
    std::ofstream(In("new.fbd")) << "old";
    InterchangeScreen screen = Screen(JobMode::Import);
    screen.ChooseKind(Option(screen, "Fabula"));
    screen.source = source.string();
    dialogs_.AnswerFile(In("new.fbd"));
    screen.ChooseDatabase();
    EXPECT_TRUE(screen.RunJob());
}

TEST_F(InterchangeScreenTest, DatabaseCanNotBeTheSource) {
    const path source = Exported();
    InterchangeScreen screen = Screen(JobMode::Import);
    screen.ChooseKind(Option(screen, "Fabula"));
    screen.source = source.string();
    screen.database = source.string();
    EXPECT_FALSE(screen.RunJob());
    EXPECT_EQ(dialogs_.Boxes().back().text, "The database cannot be the source file itself");
}

TEST_F(InterchangeScreenTest, NamesWithoutAFolderLieBesideTheOpenAdventure) {
    InterchangeScreen out = Screen(JobMode::Export);
    out.ChooseKind(Option(out, "Fabula"));
    out.source = " here ";
    EXPECT_TRUE(out.RunJob());
    EXPECT_EQ(out.source, In("here.ext").string());
    EXPECT_TRUE(std::filesystem::exists(In("here.ext")));

    InterchangeScreen in = Screen(JobMode::Import);
    in.ChooseKind(Option(in, "Fabula"));
    in.source = "here.ext";
    in.database = "again";
    EXPECT_TRUE(in.RunJob());
    EXPECT_EQ(in.NewFile(), In("again.fbd"));
}

TEST_F(InterchangeScreenTest, DatabaseCanNotBeTheOpenAdventure) {
    InterchangeScreen screen = Screen(JobMode::Import);
    screen.ChooseKind(Option(screen, "Fabula"));
    screen.source = In("out.ext").string();
    screen.database = adventure_->CurrentFile().string();
    EXPECT_FALSE(screen.RunJob());
    ASSERT_EQ(dialogs_.Boxes().size(), 1U);
    EXPECT_EQ(dialogs_.Boxes().at(0).text, "The database cannot be the open adventure itself");
    EXPECT_EQ(screen.NewFile(), std::nullopt);
}

TEST_F(InterchangeScreenTest, ExportCanNotGoOverTheAdventure) {
    InterchangeScreen screen = Screen(JobMode::Export);
    screen.source = adventure_.File().string();
    EXPECT_FALSE(screen.RunJob());
    EXPECT_EQ(dialogs_.Boxes().back().text, "The export cannot be written over the adventure itself");
}

TEST_F(InterchangeScreenTest, ExportShowsTheCheckFirstAndKeepsWhatItSaid) {
    InterchangeScreen screen = Screen(JobMode::Export);
    screen.ChooseKind(Option(screen, "Fabula"));
    screen.source = In("game").string();
    std::string title;
    screen.showVerify = [&](VerifyScreen& verify) {
        title = verify.Title();
        EXPECT_FALSE(std::filesystem::exists(In("game.ext")));
        verify.Run();
    };
    EXPECT_TRUE(screen.RunJob());
    EXPECT_EQ(title, "Verify for export");
    EXPECT_TRUE(std::filesystem::exists(In("game.ext")));
    EXPECT_TRUE(screen.Status().starts_with("Verifying Process/Response Tables for Fabula export\n"));
    EXPECT_FALSE(screen.CanRun());
    EXPECT_TRUE(screen.CanPrint());
    EXPECT_EQ(screen.NewFile(), std::nullopt);
}

TEST_F(InterchangeScreenTest, ExportOfAnAdventureThatDoesNotPassWritesNothing) {
    store::Cursor& entries = adventure_->OpenTable(TableNum::ProcessTables, "def");
    entries.AddNew();
    entries.SetField("canum", std::int64_t{0});
    entries.SetField("estype", std::int64_t{0});
    entries.SetField("w1", std::string("*"));
    entries.SetField("w2", std::string("*"));
    entries.SetField("condacts", std::string("BRIGHT 1"));
    entries.Update();
    InterchangeScreen screen = Screen(JobMode::Export);
    screen.ChooseKind(Option(screen, "PCVEL"));
    screen.source = In("game.sce").string();
    EXPECT_FALSE(screen.RunJob());
    EXPECT_FALSE(std::filesystem::exists(In("game.sce")));
    EXPECT_NE(screen.Status().find("Use of BRIGHT Condition/Action. This is not a valid PCVel "
                                   "Condition/Action.\n"),
              std::string::npos)
        << screen.Status();
    EXPECT_TRUE(screen.CanPrint());
}

TEST_F(InterchangeScreenTest, ExistingTargetOfAnExportIsReplacedOnlyAfterAQuestion) {
    Exported();
    InterchangeScreen screen = Screen(JobMode::Export);
    screen.ChooseKind(Option(screen, "Fabula"));
    screen.source = In("game.ext").string();
    dialogs_.AnswerNext(false);
    EXPECT_FALSE(screen.RunJob());
    dialogs_.AnswerNext(true);
    EXPECT_TRUE(screen.RunJob());
}

TEST_F(InterchangeScreenTest, ExportWithoutAnOpenAdventureIsSwitchedOff) {
    const InterchangeScreen screen(JobMode::Export, nullptr, host_);
    EXPECT_FALSE(screen.CanRun());
    EXPECT_EQ(screen.WhyNot(), "No adventure is open.");
}

TEST_F(InterchangeScreenTest, JobYieldsAndCanNotBeStartedTwice) {
    const path source = Exported();
    InterchangeScreen screen = Screen(JobMode::Import);
    screen.ChooseKind(Option(screen, "Fabula"));
    screen.source = source.string();
    screen.database = In("new.fbd").string();
    pump_.turns = 0;
    pump_.atTurn = [&] {
        if (!screen.Running()) return;
        EXPECT_FALSE(screen.CanRun());
        EXPECT_FALSE(screen.CanPrint());
        EXPECT_FALSE(screen.RunJob());
        EXPECT_FALSE(screen.ChooseKind(2));
    };
    EXPECT_TRUE(screen.RunJob());
    EXPECT_GT(pump_.turns, 3);
}

TEST_F(InterchangeScreenTest, TheLettersOfASourceAreReadAsTheAuthorSays) {
    SetTitle("Caf\u00E9");
    const path source = Exported();
    const auto imported = [&](std::string_view name) {
        InterchangeScreen screen = Screen(JobMode::Import);
        screen.ChooseKind(Option(screen, "Fabula"));
        for (const auto& option : InterchangeScreen::Encodings()) {
            if (option.name == name) screen.encoding = option.encoding;
        }
        screen.source = source.string();
        screen.database = In("new.fbd").string();
        dialogs_.AnswerNext(true);
        EXPECT_TRUE(screen.RunJob());
        return TitleIn(In("new.fbd"));
    };
    test::WriteBytes(In("new.fbd"), "");
    EXPECT_EQ(imported("As the file tells"), "Caf\u00E9");
    EXPECT_EQ(imported("Windows-1252"), "Caf\u00E9");
    EXPECT_EQ(imported("UTF-8"), "Caf\uFFFD");
}

TEST_F(InterchangeScreenTest, CancelledImportLeavesNothing) {
    const path source = Exported();
    InterchangeScreen screen = Screen(JobMode::Import);
    screen.ChooseKind(Option(screen, "Fabula"));
    screen.source = source.string();
    screen.database = In("new.fbd").string();
    pump_.atTurn = [&] { screen.Cancel(); };
    EXPECT_FALSE(screen.RunJob());
    EXPECT_FALSE(std::filesystem::exists(In("new.fbd")));
    EXPECT_TRUE(screen.Status().ends_with("Import cancelled\nDeleting bad database\n")) << screen.Status();
    pump_.atTurn = [] {};
    EXPECT_TRUE(screen.RunJob());
}

TEST_F(InterchangeScreenTest, StatusCanBeSaved) {
    Exported();
    InterchangeScreen screen = Screen(JobMode::Export);
    screen.ChooseKind(Option(screen, "Fabula"));
    screen.source = In("other.ext").string();
    screen.RunJob();
    dialogs_.AnswerFile(In("status.txt"));
    EXPECT_TRUE(screen.SaveStatus());
    std::ifstream stream(In("status.txt"));
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(stream), {}), screen.Status());
}

}  // namespace
}  // namespace fabula::authoring
