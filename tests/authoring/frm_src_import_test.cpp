#include "authoring/frm_src_import.h"

#include <fstream>

#include <gtest/gtest.h>

#include "authoring/document.h"
#include "platform/scripted_dialogs.h"
#include "support/scripted_pump.h"
#include "support/template_adventure.h"

namespace fabula::authoring {
namespace {

using std::filesystem::path;
using store::TableNum;
using test::ScriptedPump;

class FrmSrcImportTest : public testing::Test {
  protected:
    frmSrcImport Screen(JobMode mode) { return frmSrcImport(mode, &*adventure_, host_); }
    path In(const char* name) const { return adventure_.Folder() / name; }

    std::vector<std::string> Names(const frmSrcImport& screen) {
        std::vector<std::string> names;
        for (const auto& option : screen.Kinds())
            names.emplace_back(option.name);
        return names;
    }
    static std::size_t Option(const frmSrcImport& screen, std::string_view name) {
        for (std::size_t i = 0; i < screen.Kinds().size(); ++i) {
            if (screen.Kinds()[i].name == name) return i;
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
        frmSrcImport screen = Screen(JobMode::Export);
        screen.ChooseKind(Option(screen, "Fabula"));
        screen.txtSource = In("game.ext").string();
        EXPECT_TRUE(screen.cmdImport());
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
    SrcImportHost host_{dialogs_, clock_, pump_, settings_,
                        path(FABULA_SOURCE_DIR) / "data" / "Fabula.ini"};
};

TEST_F(FrmSrcImportTest, ImportHasItsTitleLabelsAndKinds) {
    const frmSrcImport screen = Screen(JobMode::Import);
    EXPECT_EQ(screen.Title(), "Import of source file");
    EXPECT_EQ(screen.lblStatus(), "Import Status");
    EXPECT_EQ(screen.MainButton(), "&Import");
    EXPECT_EQ(frmSrcImport::kPrintButton, "&Print Status");
    EXPECT_EQ(Names(screen), (std::vector<std::string>{"UnMarlo", "UnVel", "PCVEL", "Fabula", "ACE"}));
}

TEST_F(FrmSrcImportTest, ExportHasItsTitleLabelsAndKinds) {
    const frmSrcImport screen = Screen(JobMode::Export);
    EXPECT_EQ(screen.Title(), "Export of Database");
    EXPECT_EQ(screen.lblStatus(), "Export Status");
    EXPECT_EQ(screen.MainButton(), "&Export");
    EXPECT_EQ(Names(screen), (std::vector<std::string>{"UnVel", "PCVEL", "Fabula"}));
}

TEST_F(FrmSrcImportTest, LoadOfAPictureIsSwitchedOffWithASentence) {
    frmSrcImport screen(JobMode::LoadGraphic, &*adventure_, host_, 12);
    EXPECT_EQ(screen.Title(), "Import of Graphic Record into record 12");
    EXPECT_EQ(screen.lblStatus(), "Import Status");
    EXPECT_EQ(screen.MainButton(), "&Load");
    EXPECT_EQ(Names(screen), (std::vector<std::string>{"UnMarlo", "UnVel"}));
    EXPECT_FALSE(screen.cmdImportEnabled());
    EXPECT_EQ(screen.WhyNot(),
              "This version cannot yet take single pictures out of the listings of older games.");
    EXPECT_FALSE(screen.cmdImport());
}

TEST_F(FrmSrcImportTest, KindsThatAreMissingSayWhyAndCanNotBeChosen) {
    frmSrcImport screen = Screen(JobMode::Import);
    EXPECT_EQ(screen.optKind(), 2U);
    EXPECT_EQ(screen.Kinds()[0].why, "This version cannot yet read files of the kind UnMarlo.");
    EXPECT_FALSE(screen.ChooseKind(0));
    EXPECT_EQ(screen.optKind(), 2U);
    EXPECT_TRUE(screen.ChooseKind(4));
    EXPECT_EQ(screen.optKind(), 4U);
    EXPECT_FALSE(screen.ChooseKind(5));
}

TEST_F(FrmSrcImportTest, BlankSourceIsRefused) {
    frmSrcImport screen = Screen(JobMode::Import);
    screen.txtSource = "   ";
    screen.txtDatabase = In("new.fbd").string();
    EXPECT_FALSE(screen.cmdImport());
    EXPECT_EQ(dialogs_.Boxes().at(0).text, "Source File not specified");
    EXPECT_EQ(dialogs_.Boxes().at(0).title, "Error");
    EXPECT_TRUE(screen.cmdImportEnabled());
    EXPECT_FALSE(screen.cmdPrintEnabled());
}

TEST_F(FrmSrcImportTest, BlankTargetOfAnExportIsRefused) {
    frmSrcImport screen = Screen(JobMode::Export);
    EXPECT_FALSE(screen.cmdImport());
    EXPECT_EQ(dialogs_.Boxes().at(0).text, "Source File not specified");
}

TEST_F(FrmSrcImportTest, SourceOfEachKindIsAskedForInItsOwnDialog) {
    frmSrcImport screen = Screen(JobMode::Import);
    for (const char* kind : {"PCVEL", "Fabula", "ACE"}) {
        dialogs_.AnswerFile(std::nullopt);
        screen.ChooseKind(Option(screen, kind));
        screen.cmdSource();
    }
    ASSERT_EQ(dialogs_.Questions().size(), 3U);
    EXPECT_EQ(dialogs_.Questions()[0].title, "Load an PC VEL source file");
    EXPECT_EQ(dialogs_.Questions()[0].filter, "PC VEL Sources (*.sce)|*.sce|All files|*.*");
    EXPECT_EQ(dialogs_.Questions()[1].title, "Load an Fabula Exportfile");
    EXPECT_EQ(dialogs_.Questions()[1].filter, "Fabula Export (*.ext)|*.ext|All files|*.*");
    EXPECT_EQ(dialogs_.Questions()[2].title, "Load an ACE source file");
    EXPECT_EQ(dialogs_.Questions()[2].filter, "ACE Sources (*.*)|*.*|All files|*.*");
    for (const auto& question : dialogs_.Questions())
        EXPECT_FALSE(question.forWriting);
    EXPECT_EQ(screen.txtSource, "");
}

TEST_F(FrmSrcImportTest, TargetOfEachKindIsAskedForInItsOwnDialog) {
    frmSrcImport screen = Screen(JobMode::Export);
    for (const char* kind : {"PCVEL", "Fabula"}) {
        dialogs_.AnswerFile(std::nullopt);
        screen.ChooseKind(Option(screen, kind));
        screen.cmdSource();
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

TEST_F(FrmSrcImportTest, DatabaseIsAskedForInItsOwnDialog) {
    frmSrcImport screen = Screen(JobMode::Import);
    dialogs_.AnswerFile(In("new.fbd"));
    screen.cmdDatabase();
    EXPECT_EQ(dialogs_.Questions().at(0).title, "Create a Fabula Database");
    EXPECT_EQ(dialogs_.Questions().at(0).filter, "Fabula Database|*.fbd");
    EXPECT_EQ(dialogs_.Questions().at(0).extension, "fbd");
    EXPECT_EQ(screen.txtDatabase, In("new.fbd").string());
}

TEST_F(FrmSrcImportTest, SourceProposesTheDatabaseInItsFolder) {
    frmSrcImport screen = Screen(JobMode::Import);
    dialogs_.AnswerFile(path("/games/mill.sce"));
    screen.cmdSource();
    EXPECT_EQ(screen.txtDatabase, "/games/mill.fbd");
}

TEST_F(FrmSrcImportTest, ProposalLeavesADatabaseThatWasChosenAlone) {
    frmSrcImport screen = Screen(JobMode::Import);
    screen.txtDatabase = "/games/mine.fbd";
    dialogs_.AnswerFile(path("/games/mill.sce"));
    screen.cmdSource();
    EXPECT_EQ(screen.txtDatabase, "/games/mine.fbd");
}

TEST_F(FrmSrcImportTest, ImportWithoutADatabaseAsksForIt) {
    const path source = Exported();
    frmSrcImport screen = Screen(JobMode::Import);
    screen.ChooseKind(Option(screen, "Fabula"));
    screen.txtSource = source.string();
    dialogs_.AnswerFile(std::nullopt);
    EXPECT_FALSE(screen.cmdImport());
    EXPECT_TRUE(screen.cmdImportEnabled());
    dialogs_.AnswerFile(In("new.fbd"));
    EXPECT_TRUE(screen.cmdImport());
}

TEST_F(FrmSrcImportTest, ImportMakesAFileToBeOpenedAndRemembersIt) {
    SetTitle("The Old Mill");
    const path source = Exported();
    frmSrcImport screen = Screen(JobMode::Import);
    screen.ChooseKind(Option(screen, "Fabula"));
    screen.txtSource = source.string();
    screen.txtDatabase = In("new.fbd").string();
    EXPECT_TRUE(screen.cmdImport());
    EXPECT_EQ(screen.NewFile(), In("new.fbd"));
    EXPECT_EQ(settings_.Get("Startup", "File"), In("new.fbd").string());
    EXPECT_EQ(TitleIn(In("new.fbd")), "The Old Mill");
    EXPECT_FALSE(screen.cmdImportEnabled());
    EXPECT_TRUE(screen.cmdPrintEnabled());
    EXPECT_TRUE(screen.txtStatus().starts_with("Creating default database for " + In("new.fbd").string()));
    EXPECT_FALSE(screen.cmdImport());
}

TEST_F(FrmSrcImportTest, DatabaseWithoutAnExtensionGetsOne) {
    const path source = Exported();
    frmSrcImport screen = Screen(JobMode::Import);
    screen.ChooseKind(Option(screen, "Fabula"));
    screen.txtSource = source.string();
    screen.txtDatabase = In("new").string();
    EXPECT_TRUE(screen.cmdImport());
    EXPECT_EQ(screen.NewFile(), In("new.fbd"));
}

TEST_F(FrmSrcImportTest, ImportThatFailsLeavesNothingAndTheOldFileRemembered) {
    std::ofstream(In("bad.ext")) << "this is no export file\n";
    settings_.Set("Startup", "File", adventure_.File().string());
    frmSrcImport screen = Screen(JobMode::Import);
    screen.ChooseKind(Option(screen, "Fabula"));
    screen.txtSource = In("bad.ext").string();
    screen.txtDatabase = In("new.fbd").string();
    EXPECT_FALSE(screen.cmdImport());
    EXPECT_FALSE(std::filesystem::exists(In("new.fbd")));
    EXPECT_EQ(screen.NewFile(), std::nullopt);
    EXPECT_EQ(settings_.Get("Startup", "File"), adventure_.File().string());
    EXPECT_TRUE(screen.txtStatus().ends_with("Deleting bad database\n")) << screen.txtStatus();
    EXPECT_TRUE(screen.cmdPrintEnabled());
    EXPECT_TRUE(screen.cmdImportEnabled());
    SetTitle("The open adventure is as it was");
}

TEST_F(FrmSrcImportTest, SourceThatIsMissingIsToldAndLeavesNothing) {
    frmSrcImport screen = Screen(JobMode::Import);
    screen.txtSource = In("none.sce").string();
    screen.txtDatabase = In("new.fbd").string();
    EXPECT_FALSE(screen.cmdImport());
    EXPECT_FALSE(std::filesystem::exists(In("new.fbd")));
    ASSERT_EQ(dialogs_.Boxes().size(), 1U);
    EXPECT_EQ(dialogs_.Boxes()[0].title, "Error");
}

TEST_F(FrmSrcImportTest, ExistingDatabaseIsReplacedOnlyAfterAQuestion) {
    const path source = Exported();
    std::ofstream(In("new.fbd")) << "old";
    frmSrcImport screen = Screen(JobMode::Import);
    screen.ChooseKind(Option(screen, "Fabula"));
    screen.txtSource = source.string();
    screen.txtDatabase = In("new.fbd").string();
    dialogs_.AnswerNext(false);
    EXPECT_FALSE(screen.cmdImport());
    EXPECT_EQ(dialogs_.Boxes().back().text,
              "All information in " + In("new.fbd").string() + " will be deleted.");
    EXPECT_EQ(dialogs_.Boxes().back().title, "Warning");
    EXPECT_EQ(std::filesystem::file_size(In("new.fbd")), 3U);
    dialogs_.AnswerNext(true);
    EXPECT_TRUE(screen.cmdImport());
}

TEST_F(FrmSrcImportTest, DatabaseThatItsDialogHasAskedAboutIsReplacedAtOnce) {
    const path source = Exported();
    std::ofstream(In("new.fbd")) << "old";
    frmSrcImport screen = Screen(JobMode::Import);
    screen.ChooseKind(Option(screen, "Fabula"));
    screen.txtSource = source.string();
    dialogs_.AnswerFile(In("new.fbd"));
    screen.cmdDatabase();
    EXPECT_TRUE(screen.cmdImport());
}

TEST_F(FrmSrcImportTest, DatabaseCanNotBeTheSource) {
    const path source = Exported();
    frmSrcImport screen = Screen(JobMode::Import);
    screen.ChooseKind(Option(screen, "Fabula"));
    screen.txtSource = source.string();
    screen.txtDatabase = source.string();
    EXPECT_FALSE(screen.cmdImport());
    EXPECT_EQ(dialogs_.Boxes().back().text, "The database cannot be the source file itself");
}

TEST_F(FrmSrcImportTest, NamesWithoutAFolderLieBesideTheOpenAdventure) {
    frmSrcImport out = Screen(JobMode::Export);
    out.ChooseKind(Option(out, "Fabula"));
    out.txtSource = " here ";
    EXPECT_TRUE(out.cmdImport());
    EXPECT_EQ(out.txtSource, In("here.ext").string());
    EXPECT_TRUE(std::filesystem::exists(In("here.ext")));

    frmSrcImport in = Screen(JobMode::Import);
    in.ChooseKind(Option(in, "Fabula"));
    in.txtSource = "here.ext";
    in.txtDatabase = "again";
    EXPECT_TRUE(in.cmdImport());
    EXPECT_EQ(in.NewFile(), In("again.fbd"));
}

TEST_F(FrmSrcImportTest, DatabaseCanNotBeTheOpenAdventure) {
    frmSrcImport screen = Screen(JobMode::Import);
    screen.ChooseKind(Option(screen, "Fabula"));
    screen.txtSource = In("out.ext").string();
    screen.txtDatabase = adventure_->CurrentFile().string();
    EXPECT_FALSE(screen.cmdImport());
    ASSERT_EQ(dialogs_.Boxes().size(), 1U);
    EXPECT_EQ(dialogs_.Boxes().at(0).text, "The database cannot be the open adventure itself");
    EXPECT_EQ(screen.NewFile(), std::nullopt);
}

TEST_F(FrmSrcImportTest, ExportCanNotGoOverTheAdventure) {
    frmSrcImport screen = Screen(JobMode::Export);
    screen.txtSource = adventure_.File().string();
    EXPECT_FALSE(screen.cmdImport());
    EXPECT_EQ(dialogs_.Boxes().back().text, "The export cannot be written over the adventure itself");
}

TEST_F(FrmSrcImportTest, ExportShowsTheCheckFirstAndKeepsWhatItSaid) {
    frmSrcImport screen = Screen(JobMode::Export);
    screen.ChooseKind(Option(screen, "Fabula"));
    screen.txtSource = In("game").string();
    std::string title;
    screen.showVerify = [&](frmVerify& verify) {
        title = verify.Title();
        EXPECT_FALSE(std::filesystem::exists(In("game.ext")));
        verify.Run();
    };
    EXPECT_TRUE(screen.cmdImport());
    EXPECT_EQ(title, "Verify for export");
    EXPECT_TRUE(std::filesystem::exists(In("game.ext")));
    EXPECT_TRUE(screen.txtStatus().starts_with("Verifying Process/Response Tables for Fabula export\n"));
    EXPECT_FALSE(screen.cmdImportEnabled());
    EXPECT_TRUE(screen.cmdPrintEnabled());
    EXPECT_EQ(screen.NewFile(), std::nullopt);
}

TEST_F(FrmSrcImportTest, ExportOfAnAdventureThatDoesNotPassWritesNothing) {
    store::Cursor& entries = adventure_->OpenTable(TableNum::ProcessTables, "def");
    entries.AddNew();
    entries.SetField("canum", std::int64_t{0});
    entries.SetField("estype", std::int64_t{0});
    entries.SetField("w1", std::string("*"));
    entries.SetField("w2", std::string("*"));
    entries.SetField("condacts", std::string("BRIGHT 1"));
    entries.Update();
    frmSrcImport screen = Screen(JobMode::Export);
    screen.ChooseKind(Option(screen, "PCVEL"));
    screen.txtSource = In("game.sce").string();
    EXPECT_FALSE(screen.cmdImport());
    EXPECT_FALSE(std::filesystem::exists(In("game.sce")));
    EXPECT_NE(screen.txtStatus().find("Use of BRIGHT Condition/Action. This is not a valid PCVel "
                                      "Condition/Action.\n"),
              std::string::npos)
        << screen.txtStatus();
    EXPECT_TRUE(screen.cmdPrintEnabled());
}

TEST_F(FrmSrcImportTest, ExistingTargetOfAnExportIsReplacedOnlyAfterAQuestion) {
    Exported();
    frmSrcImport screen = Screen(JobMode::Export);
    screen.ChooseKind(Option(screen, "Fabula"));
    screen.txtSource = In("game.ext").string();
    dialogs_.AnswerNext(false);
    EXPECT_FALSE(screen.cmdImport());
    dialogs_.AnswerNext(true);
    EXPECT_TRUE(screen.cmdImport());
}

TEST_F(FrmSrcImportTest, ExportWithoutAnOpenAdventureIsSwitchedOff) {
    const frmSrcImport screen(JobMode::Export, nullptr, host_);
    EXPECT_FALSE(screen.cmdImportEnabled());
    EXPECT_EQ(screen.WhyNot(), "No adventure is open.");
}

TEST_F(FrmSrcImportTest, JobYieldsAndCanNotBeStartedTwice) {
    const path source = Exported();
    frmSrcImport screen = Screen(JobMode::Import);
    screen.ChooseKind(Option(screen, "Fabula"));
    screen.txtSource = source.string();
    screen.txtDatabase = In("new.fbd").string();
    pump_.turns = 0;
    pump_.atTurn = [&] {
        if (!screen.Running()) return;
        EXPECT_FALSE(screen.cmdImportEnabled());
        EXPECT_FALSE(screen.cmdPrintEnabled());
        EXPECT_FALSE(screen.cmdImport());
        EXPECT_FALSE(screen.ChooseKind(2));
    };
    EXPECT_TRUE(screen.cmdImport());
    EXPECT_GT(pump_.turns, 3);
}

TEST_F(FrmSrcImportTest, CancelledImportLeavesNothing) {
    const path source = Exported();
    frmSrcImport screen = Screen(JobMode::Import);
    screen.ChooseKind(Option(screen, "Fabula"));
    screen.txtSource = source.string();
    screen.txtDatabase = In("new.fbd").string();
    pump_.atTurn = [&] { screen.cmdCancel(); };
    EXPECT_FALSE(screen.cmdImport());
    EXPECT_FALSE(std::filesystem::exists(In("new.fbd")));
    EXPECT_TRUE(screen.txtStatus().ends_with("Import cancelled\nDeleting bad database\n"))
        << screen.txtStatus();
    pump_.atTurn = [] {};
    EXPECT_TRUE(screen.cmdImport());
}

TEST_F(FrmSrcImportTest, StatusCanBeSaved) {
    Exported();
    frmSrcImport screen = Screen(JobMode::Export);
    screen.ChooseKind(Option(screen, "Fabula"));
    screen.txtSource = In("other.ext").string();
    screen.cmdImport();
    dialogs_.AnswerFile(In("status.txt"));
    EXPECT_TRUE(screen.SaveStatus());
    std::ifstream stream(In("status.txt"));
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(stream), {}), screen.txtStatus());
}

}  // namespace
}  // namespace fabula::authoring
