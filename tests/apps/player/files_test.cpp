#include <QSettings>
#include <fstream>
#include <sstream>

#include <gtest/gtest.h>

#include "platform/error.h"
#include "platform/recent_files.h"
#include "player/play/game_folder.h"
#include "player/play/transcript_file.h"
#include "player/window/player_settings.h"
#include "qt/strings.h"
#include "support/temp_folder.h"

namespace fabula::player {
namespace {

TEST(FolderOfGame, IsNamedByTheSaveName) {
    EXPECT_EQ(FolderOfGame("/data", "vault", "/games/vault.fbd").folder, "/data/vault");
}

TEST(FolderOfGame, NameCanNotLeadElsewhere) {
    EXPECT_EQ(FolderOfGame("/data", "../../etc", "/g.fbd").folder, "/data/_.._etc");
    EXPECT_EQ(FolderOfGame("/data", "/etc", "/g.fbd").folder, "/data/_etc");
    EXPECT_EQ(FolderOfGame("/data", "a\\b:c\n", "/g.fbd").folder, "/data/a_b_c_");
    EXPECT_EQ(FolderOfGame("/data", "..", "/g.fbd").folder, "/data/Untitled");
    EXPECT_EQ(FolderOfGame("/data", " ", "/g.fbd").folder, "/data/Untitled");
}

TEST(FolderOfGame, LongNameIsCut) {
    EXPECT_EQ(FolderOfGame("/data", std::string(500, 'x'), "/g.fbd").folder,
              "/data/" + std::string(64, 'x'));
}

TEST(FolderOfGame, EachAdventureFileHasAnAutosaveOfItsOwn) {
    const auto one = FolderOfGame("/data", "vault", "/games/one.fbd").autosave;
    const auto two = FolderOfGame("/data", "vault", "/games/two.fbd").autosave;
    EXPECT_EQ(one, "/data/vault/autosave-8d531791d5a65834.sav");
    EXPECT_NE(one, two);
}

std::string ContentsOf(const std::filesystem::path& file) {
    std::ostringstream text;
    text << std::ifstream(file).rdbuf();
    return text.str();
}

TEST(TranscriptFile, IsWrittenWhileItIsOpen) {
    const test::TempFolder folder;
    TranscriptFile transcript;
    EXPECT_EQ(transcript.Lines(), nullptr);
    transcript.Open(folder / "t.txt");
    transcript.Lines()->Typed("NORTH");
    EXPECT_EQ(transcript.Flush(), std::nullopt);
    EXPECT_EQ(ContentsOf(folder / "t.txt"), ">NORTH\n");
    transcript.Close();
    EXPECT_EQ(transcript.Lines(), nullptr);
}

TEST(TranscriptFile, FileThatCanNotBeMadeIsAnError) {
    TranscriptFile transcript;
    EXPECT_THROW(transcript.Open("/no/such/folder/t.txt"), Error);
    EXPECT_FALSE(transcript.IsOpen());
}

TEST(TranscriptFile, FullDiskIsToldOnceAndClosesIt) {
    TranscriptFile transcript;
    transcript.Open("/dev/full");
    transcript.Lines()->Typed("NORTH");
    EXPECT_EQ(transcript.Flush(), "Could not write the transcript /dev/full. It is closed.");
    EXPECT_FALSE(transcript.IsOpen());
    EXPECT_EQ(transcript.Flush(), std::nullopt);
}

TEST(PlayerSettings, ComeBackAsTheyWere) {
    const test::TempFolder folder;
    QSettings store(qt::PathToQt(folder / "s.ini"), QSettings::IniFormat);
    PlayerSettings settings;
    settings.geometry = "where";
    settings.theme = qt::Theme::Dark;
    settings.zoom = 200;
    settings.characterZoom = -2;
    settings.flashing = false;
    settings.plainText = true;
    settings.recent = platform::RecentFiles({"/g/a.fbd"});
    PlayerSettings kept;
    settings.KeepChanges(store, kept);
    const PlayerSettings read = PlayerSettings::Load(store);
    EXPECT_EQ(read.geometry, "where");
    EXPECT_EQ(read.theme, qt::Theme::Dark);
    EXPECT_EQ(read.zoom, 200);
    EXPECT_EQ(read.characterZoom, -2);
    EXPECT_FALSE(read.flashing);
    EXPECT_TRUE(read.plainText);
    EXPECT_EQ(read.recent.Files(), (std::vector<std::filesystem::path>{"/g/a.fbd"}));
}

TEST(PlayerSettings, OfTwoWindowsEachKeepsWhatItChangedAlone) {
    const test::TempFolder folder;
    QSettings store(qt::PathToQt(folder / "s.ini"), QSettings::IniFormat);
    PlayerSettings first = PlayerSettings::Load(store);
    PlayerSettings keptByFirst = first;
    PlayerSettings second = PlayerSettings::Load(store);
    PlayerSettings keptBySecond = second;
    first.recent.AddMRUItem("/g/first.fbd");
    first.KeepChanges(store, keptByFirst);
    second.zoom = 200;
    second.recent.AddMRUItem("/g/second.fbd");
    second.KeepChanges(store, keptBySecond);
    first.theme = qt::Theme::Dark;
    first.geometry = "where";
    first.KeepChanges(store, keptByFirst);
    const PlayerSettings read = PlayerSettings::Load(store);
    EXPECT_EQ(read.zoom, 200);
    EXPECT_EQ(read.theme, qt::Theme::Dark);
    EXPECT_EQ(read.recent.Files(), (std::vector<std::filesystem::path>{"/g/second.fbd", "/g/first.fbd"}));
}

TEST(PlayerSettings, AGameThatIsGoneLeavesTheRecentOnesOfAnotherWindowAlone) {
    const test::TempFolder folder;
    QSettings store(qt::PathToQt(folder / "s.ini"), QSettings::IniFormat);
    store.setValue("PlayedFiles/1", "/g/old.fbd");
    store.setValue("PlayedFiles/2", "/g/gone.fbd");
    PlayerSettings first = PlayerSettings::Load(store);
    PlayerSettings keptByFirst = first;
    PlayerSettings second = first;
    PlayerSettings keptBySecond = first;
    second.recent.AddMRUItem("/g/new.fbd");
    second.KeepChanges(store, keptBySecond);
    first.recent.Remove("/g/gone.fbd");
    first.KeepChanges(store, keptByFirst);
    EXPECT_EQ(PlayerSettings::Load(store).recent.Files(),
              (std::vector<std::filesystem::path>{"/g/new.fbd", "/g/old.fbd"}));
}

TEST(PlayerSettings, ValuesThatMakeNoSenseCountAsNotSet) {
    const test::TempFolder folder;
    QSettings store(qt::PathToQt(folder / "s.ini"), QSettings::IniFormat);
    store.setValue("Startup/Zoom", 100000);
    store.setValue("Startup/CharacterZoom", "large");
    store.setValue("Startup/Theme", "purple");
    const PlayerSettings read = PlayerSettings::Load(store);
    EXPECT_EQ(read.zoom, 100);
    EXPECT_EQ(read.characterZoom, 0);
    EXPECT_EQ(read.theme, qt::Theme::System);
}

TEST(PlayerSettings, TheRecentGamesStandBesideTheAdventuresOfTheAuthoringTool) {
    const test::TempFolder folder;
    QSettings store(qt::PathToQt(folder / "settings.ini"), QSettings::IniFormat);
    store.setValue("MRUFiles/1", "/plays/draft.fbd");
    PlayerSettings settings = PlayerSettings::Load(store);
    EXPECT_EQ(settings.recent.Files(), (std::vector<std::filesystem::path>{"/plays/draft.fbd"}))
        << "programs of before kept the games there";
    PlayerSettings kept = settings;
    settings.recent.AddMRUItem("/games/cake.fbd");
    settings.KeepChanges(store, kept);
    EXPECT_EQ(store.value("MRUFiles/1").toString(), "/plays/draft.fbd");
    store.setValue("MRUFiles/1", "/plays/other.fbd");
    EXPECT_EQ(PlayerSettings::Load(store).recent.Files(),
              (std::vector<std::filesystem::path>{"/games/cake.fbd", "/plays/draft.fbd"}));
}

TEST(NextZoom, GoesInStepsAndStopsAtTheEnds) {
    EXPECT_EQ(NextZoom(100, 1), 110);
    EXPECT_EQ(NextZoom(100, -1), 90);
    EXPECT_EQ(NextZoom(105, 1), 110);
    EXPECT_EQ(NextZoom(105, -1), 100);
    EXPECT_EQ(NextZoom(kLargestZoom, 1), kLargestZoom);
    EXPECT_EQ(NextZoom(kSmallestZoom, -1), kSmallestZoom);
}

}  // namespace
}  // namespace fabula::player
