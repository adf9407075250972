#include "interchange/jobs.h"

#include <fstream>
#include <iterator>

#include <gtest/gtest.h>

#include "platform/error.h"
#include "reading.h"
#include "support/doubles/scripted_person.h"
#include "support/places.h"
#include "support/temp_folder.h"

namespace fabula::interchange {
namespace {

using store::TableNum;
using Shown = platform::ScriptedPerson::Shown;

class CancelsAfter final : public JobObserver {
  public:
    explicit CancelsAfter(int steps) : steps_(steps) {}
    void StatusAdded(std::string_view) override {}
    void StatusCleared() override {}
    void Progress(std::int64_t, std::int64_t) override {}
    bool CancelWanted() override { return steps_-- <= 0; }

  private:
    int steps_;
};

class RecordsStatus final : public JobObserver {
  public:
    void StatusAdded(std::string_view text) override { status += text; }
    void StatusCleared() override {}
    void Progress(std::int64_t, std::int64_t) override {}
    bool CancelWanted() override { return false; }

    std::string status;
};

/// Runs jobs in a folder of their own.
class Jobs : public testing::Test {
  protected:
    std::filesystem::path Write(const char* name, const std::string& text) {
        std::ofstream(folder_ / name, std::ios::binary) << text;
        return folder_ / name;
    }

    JobResult Import(const char* kind, const std::filesystem::path& source) {
        return ImportIt(*FindFileKind(kind), source, Target(), Host(nobody_));
    }

    JobHost Host(JobObserver& observer) {
        return {person_, clock_, events_, observer, test::DefaultData()};
    }

    std::filesystem::path Target() const { return folder_ / "new.fbd"; }
    std::ptrdiff_t Files() const {
        return std::distance(std::filesystem::directory_iterator(folder_.Path()),
                             std::filesystem::directory_iterator());
    }
    std::string TargetText() const {
        std::ifstream file(Target());
        return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    }

    test::TempFolder folder_;
    platform::ScriptedPerson person_;
    platform::FixedClock clock_{{2026, 11, 21, 12, 0, 0}};
    platform::NoEvents events_;
    NoObserver nobody_;
};

TEST_F(Jobs, AnImportMakesAnAdventure) {
    const auto source = Write("old.sce", PcSource("GO 20 verb\n", "/PRO 0\nGO _ DONE\n"));
    const JobResult result = Import("pcvel", source);
    EXPECT_TRUE(result.done);
    EXPECT_EQ(result.faults, 0);
    EXPECT_TRUE(result.status.starts_with("Creating default database for " + Target().string() +
                                          "\nThis will take a few minutes.\nLoading PCVEL Source " +
                                          source.string() + "\n"));
    EXPECT_EQ(person_.Boxes(), (std::vector<Shown>{{"old.sce Loaded", "Fabula"}}));
    EXPECT_EQ(Files(), 2);
    const auto adventure = store::Adventure::Open(Target());
    EXPECT_EQ(adventure->OpenTable(TableNum::ProcessTables, "def", "w1='GO'").RecordCount(), 1);
}

TEST_F(Jobs, AnImportedPcGameHasItsSettings) {
    Import("pcvel", Write("old.sce", PcSource("", "")));
    const auto adventure = store::Adventure::Open(Target());
    store::Cursor& settings = adventure->OpenTable(TableNum::Adventure, "def");
    EXPECT_EQ(settings.Text("adventype"), "VEL");
    EXPECT_EQ(settings.Text("source"), "PCVel");
    EXPECT_EQ(settings.Text("savename"), "new");
    EXPECT_EQ(settings.Number("BackColor"), 15);
    EXPECT_EQ(settings.Number("textcolor"), 0);
    EXPECT_EQ(settings.Number("defprintwidth"), 80);
    EXPECT_FALSE(settings.Truth("graphics"));
    EXPECT_FALSE(settings.Truth("charsets"));
    EXPECT_TRUE(adventure->OpenTable(TableNum::System, "def").Truth("flagchange"));
}

TEST_F(Jobs, AnImportedAceGameHasItsSettings) {
    Import("ace", Write("old.txt", PcSource("", "")));
    const auto adventure = store::Adventure::Open(Target());
    store::Cursor& settings = adventure->OpenTable(TableNum::Adventure, "def");
    EXPECT_EQ(settings.Text("adventype"), "Fabula");
    EXPECT_EQ(settings.Text("source"), "ACE");
    EXPECT_EQ(settings.Number("BackColor"), 15);
    EXPECT_EQ(settings.Number("textcolor"), 0);
    EXPECT_TRUE(adventure->OpenTable(TableNum::System, "def").Truth("flagchange"));
}

TEST_F(Jobs, AnImportedExportFileKeepsItsOwnSettings) {
    Import("fabula",
           Write("old.ext", "4.0.0\n5|advnum|1\n5|adventype|VEL\n5|backcolor|3\n5|savename|cellar\n"));
    const auto adventure = store::Adventure::Open(Target());
    store::Cursor& settings = adventure->OpenTable(TableNum::Adventure, "def");
    EXPECT_EQ(settings.Text("adventype"), "VEL");
    EXPECT_EQ(settings.Text("source"), "FabulaExp");
    EXPECT_EQ(settings.Text("savename"), "cellar");
    EXPECT_EQ(settings.Number("BackColor"), 3);
    EXPECT_TRUE(adventure->OpenTable(TableNum::System, "def").Truth("flagchange"));
}

TEST_F(Jobs, AFailedImportLeavesNothing) {
    const JobResult result = Import("fabula", Write("old.ext", "3.0\n"));
    EXPECT_FALSE(result.done);
    EXPECT_TRUE(
        result.status.ends_with("File is not a Fabula Export file or Version  is incompatible.\n"
                                "Deleting bad database\n"));
    EXPECT_EQ(Files(), 1);
}

TEST_F(Jobs, AFailedImportLeavesAnExistingTargetAsItWas) {
    Write("new.fbd", "precious");
    EXPECT_FALSE(Import("fabula", Write("old.ext", "3.0\n")).done);
    EXPECT_EQ(TargetText(), "precious");
    EXPECT_EQ(Files(), 2);
}

TEST_F(Jobs, AnExistingTargetIsReplaced) {
    Write("new.fbd", "precious");
    EXPECT_TRUE(Import("pcvel", Write("old.sce", PcSource("", ""))).done);
    EXPECT_NE(TargetText(), "precious");
}

TEST_F(Jobs, AnAdventureOpenElsewhereStaysOpen) {
    const test::OpenedAdventure other;
    Import("fabula", Write("old.ext", "3.0\n"));
    EXPECT_EQ(other->OpenTable(TableNum::Adventure, "def").RecordCount(), 1);
}

TEST_F(Jobs, ACancelledImportLeavesNothing) {
    const auto source = Write("old.sce", PcSource("GO 20 verb\nCOME 21 verb\nRUN 22 verb\n", ""));
    CancelsAfter observer(4);
    const JobResult result = ImportIt(*FindFileKind("pcvel"), source, Target(), Host(observer));
    EXPECT_FALSE(result.done);
    EXPECT_TRUE(result.status.ends_with("Import cancelled\nDeleting bad database\n")) << result.status;
    EXPECT_EQ(Files(), 1);
}

TEST_F(Jobs, ASourceFullOfFaultsIsGivenUp) {
    std::string words;
    for (int i = 0; i < 2000; ++i)
        words += "nonsense\n";
    const JobResult result = Import("pcvel", Write("old.sce", PcSource(words, "")));
    EXPECT_FALSE(result.done);
    EXPECT_EQ(result.faults, 1000);
    EXPECT_TRUE(result.status.ends_with("Too many errors. Import aborted.\nDeleting bad database\n"));
    EXPECT_EQ(Files(), 1);
}

TEST_F(Jobs, AMissingSourceIsAnErrorAndLeavesNothing) {
    EXPECT_THROW(Import("pcvel", folder_ / "none.sce"), Error);
    EXPECT_EQ(Files(), 0);
}

TEST_F(Jobs, ASourceThatIsNoFileIsToldWithItsReasonBeforeAnythingIsBegun) {
    RecordsStatus observer;
    try {
        ImportIt(*FindFileKind("pcvel"), folder_.Path(), Target(), Host(observer));
        ADD_FAILURE() << "a folder was read";
    } catch (const Error& error) {
        EXPECT_EQ(error.what(), "Could not read " + folder_.Path().string() + ": it is no file.");
    }
    EXPECT_EQ(observer.status, "");
}

TEST_F(Jobs, ANameThatIsNoUtf8IsSavedAsOneThatIs) {
    const auto source = Write("game.txt", "/CTL\n_\n/VOC\nNORTH 2 noun\n");
    const std::filesystem::path target = folder_ / "caf\xE9.fbd";
    ImportIt(*FindFileKind("ace"), source, target, Host(nobody_));
    const auto adventure = store::Adventure::Open(target);
    EXPECT_EQ(adventure->OpenTable(store::TableNum::Adventure, "savename").Text("savename"), "caf\uFFFD");
}

TEST_F(Jobs, ASourceThatIsTheTargetByAnotherNameIsNotWrittenOver) {
    const auto source = Write("game.txt", "/CTL\n_\n");
    std::filesystem::create_hard_link(source, Target());
    try {
        Import("ace", source);
        FAIL();
    } catch (const Error& error) {
        EXPECT_EQ(error.what(), "Could not write " + Target().string() + ": it is the source itself.");
    }
    EXPECT_EQ(std::filesystem::file_size(source), 7U);
}

TEST_F(Jobs, ABlankSourceIsRefused) {
    EXPECT_FALSE(Import("pcvel", " ").done);
    EXPECT_EQ(person_.Boxes(), (std::vector<Shown>{{"Source File not specified", "Error"}}));
}

TEST_F(Jobs, AnExportIsVerifiedFirst) {
    const test::OpenedAdventure adventure;
    const auto refuse = [](store::Adventure&, const FileKind& kind, JobStatus& status) {
        status.AddToStatusCR("Verified for " + std::string(kind.word));
        return false;
    };
    const JobResult result =
        ExportIt(*FindFileKind("fabula"), *adventure, folder_ / "out.ext", refuse, Host(nobody_));
    EXPECT_FALSE(result.done);
    EXPECT_EQ(result.status, "Verified for fabula\n");
    EXPECT_EQ(Files(), 0);
}

bool Accept(store::Adventure&, const FileKind&, JobStatus&) {
    return true;
}

TEST_F(Jobs, AnExportWritesItsFile) {
    const test::OpenedAdventure adventure;
    EXPECT_TRUE(
        ExportIt(*FindFileKind("ace"), *adventure, folder_ / "out.txt", Accept, Host(nobody_)).done);
    EXPECT_EQ(person_.Boxes(), (std::vector<Shown>{{"ACE Export completed", "Fabula"}}));
    EXPECT_EQ(Files(), 1);
}

TEST_F(Jobs, AnExportOfAnAdventureOpenForReadingWorks) {
    test::OpenedAdventure adventure;
    adventure.Reopen(store::OpenMode::ReadOnly);
    EXPECT_TRUE(
        ExportIt(*FindFileKind("fabula"), *adventure, folder_ / "out.ext", Accept, Host(nobody_)).done);
}

TEST_F(Jobs, ACancelledExportLeavesItsTargetAsItWas) {
    const test::OpenedAdventure adventure;
    Write("new.fbd", "precious");
    CancelsAfter observer(3);
    const JobResult result =
        ExportIt(*FindFileKind("fabula"), *adventure, Target(), Accept, Host(observer));
    EXPECT_FALSE(result.done);
    EXPECT_TRUE(result.status.ends_with("Export cancelled\n"));
    EXPECT_EQ(TargetText(), "precious");
    EXPECT_EQ(Files(), 1);
}

}  // namespace
}  // namespace fabula::interchange
