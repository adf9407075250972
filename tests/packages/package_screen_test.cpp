#include "packages/package_screen.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "packed_game.h"
#include "support/raw_database.h"
#include "zipped.h"

namespace fabula::packages {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class PackageScreenTest : public testing::Test, public PackedGame {
  protected:
    std::unique_ptr<PackageScreen> Open(const InstalledEngine& engine = {}) {
        return PackageScreen::Open(context, settings, engine);
    }
    static std::vector<std::string> Names(const PackageScreen& screen) {
        std::vector<std::string> names;
        for (const PackageRow& row : screen.Rows())
            names.push_back(row.name);
        return names;
    }

    platform::MemorySettings settings;
};

TEST_F(PackageScreenTest, ListsTheFilesAndProposesTheGamesVersion) {
    const auto screen = Open();
    EXPECT_THAT(Names(*screen), ElementsAre("game.fbd", "The Lamp.ReadMe"));
    EXPECT_EQ(screen->version, "1.2");
    EXPECT_FALSE(screen->IncludesEngine());
}

TEST_F(PackageScreenTest, OpensOnAnAdventureThatIsOpenToRead) {
    document.SaveAs(Folder() / "copy.fbd");
    authoring::Document copy(Folder() / "game.fbd", store::OpenMode::ReadOnly);
    authoring::ScreenContext reading{copy, dialogs};
    EXPECT_THAT(Names(*PackageScreen::Open(reading, settings, {})),
                ElementsAre("game.fbd", "The Lamp.ReadMe"));
}

TEST_F(PackageScreenTest, MakesTheZipAndSaysSo) {
    Write("map.txt", "a map");
    const auto screen = Open();
    dialogs.AnswerFile(Folder() / "map.txt");
    screen->AddFile();
    screen->version = "2.0";
    screen->readMeText = "Mind the step.";
    dialogs.AnswerFile(Folder() / "lamp.zip");
    EXPECT_TRUE(screen->Package());
    const auto files = Unzipped(Folder() / "lamp.zip");
    EXPECT_EQ(files.at("map.txt"), "a map");
    EXPECT_THAT(files.at("The Lamp.ReadMe"), HasSubstr("Version 2.0. Written by A. Nother"));
    EXPECT_THAT(files.at("The Lamp.ReadMe"), HasSubstr("Mind the step.\r\nA list of the files"));
    EXPECT_THAT(Boxes().back(), HasSubstr("The Lamp has been ZIPped into lamp.zip"));
    const platform::FileQuestion& asked = dialogs.Questions().back();
    EXPECT_EQ(asked.title, "Save Name for Package Zip File");
    EXPECT_EQ(asked.filter, "Zip Files|*.zip");
}

TEST_F(PackageScreenTest, AnEmptyVersionRefusesBeforeAnyDialogueAppears) {
    const auto screen = Open();
    screen->version = " ";
    EXPECT_FALSE(screen->Package());
    EXPECT_THAT(Boxes(), ElementsAre("Version is not filled in."));
    EXPECT_THAT(dialogs.Questions(), IsEmpty());
    EXPECT_FALSE(std::filesystem::exists(Folder() / "The Lamp.ReadMe"));
}

TEST_F(PackageScreenTest, DeletesFilesOnly) {
    Write("map.txt");
    const auto screen = Open();
    screen->DeleteFile(0);
    EXPECT_THAT(Boxes(), ElementsAre("You cannot delete a DB record"));
    dialogs.AnswerFile(Folder() / "map.txt");
    screen->AddFile();
    dialogs.AnswerNext(false);
    screen->DeleteFile(1);
    EXPECT_THAT(Names(*screen), Contains("map.txt"));
    dialogs.AnswerNext(true);
    screen->DeleteFile(1);
    EXPECT_THAT(Boxes().back(), "Delete Selected File (map.txt)");
    EXPECT_THAT(Names(*screen), ElementsAre("game.fbd", "The Lamp.ReadMe"));
    EXPECT_THAT(Rows(store::TableNum::Package, "pkgname"), ElementsAre("game.fbd", "The Lamp.ReadMe"));
}

TEST_F(PackageScreenTest, OffersToCopyAFileFromElsewhere) {
    const test::TempFolder elsewhere;
    std::ofstream(elsewhere / "map.txt") << "a map";
    const auto screen = Open();
    dialogs.AnswerFile(elsewhere / "map.txt");
    dialogs.AnswerNext(true);
    dialogs.AnswerFile(elsewhere / "copy.txt");
    screen->AddFile();
    EXPECT_THAT(
        Boxes(),
        ElementsAre("The File must be at or below the directory of the game\nWould you like to copy "
                    "it there",
                    "You changed the parent directory again. Command aborted."));
    dialogs.AnswerFile(elsewhere / "map.txt");
    dialogs.AnswerNext(true);
    dialogs.AnswerFile(Folder() / "map.txt");
    screen->AddFile();
    EXPECT_THAT(Names(*screen), Contains("map.txt"));
    EXPECT_EQ(test::ReadBytes(Folder() / "map.txt"), "a map");
}

TEST_F(PackageScreenTest, AddsNothingThatIsNoFileOrHasNoNameForAZip) {
    std::filesystem::create_directory(Folder() / "maps");
    Write("two\nlines.txt");
    const auto screen = Open();
    for (const char* name : {"maps", "two\nlines.txt"}) {
        dialogs.AnswerFile(Folder() / name);
        screen->AddFile();
    }
    EXPECT_THAT(Names(*screen), ElementsAre("game.fbd", "The Lamp.ReadMe"));
    EXPECT_EQ(Boxes().size(), 2U);
    EXPECT_EQ(Boxes().back(), "A file of this name can't be packed: two\nlines.txt");
}

TEST_F(PackageScreenTest, WritesOverNoFileOfThePlayersAndTheAuthors) {
    Write("lamp.sav", "a saved game");
    Write("lamp.chr", "a character set");
    const test::TempFolder elsewhere;
    std::ofstream(elsewhere / "map.txt") << "a map";
    const auto screen = Open();
    dialogs.AnswerFile(Folder() / "lamp.sav");
    EXPECT_FALSE(screen->Package());
    dialogs.AnswerFile(elsewhere / "map.txt");
    dialogs.AnswerNext(true);
    dialogs.AnswerFile(Folder() / "lamp.chr");
    screen->AddFile();
    EXPECT_EQ(test::ReadBytes(Folder() / "lamp.sav"), "a saved game");
    EXPECT_EQ(test::ReadBytes(Folder() / "lamp.chr"), "a character set");
    EXPECT_THAT(Names(*screen), ElementsAre("game.fbd", "The Lamp.ReadMe"));
    EXPECT_EQ(Boxes().back(), "Could not write " + (Folder() / "lamp.chr").string() +
                                  ": by its name it is a file of another kind, *.chr.");
}

TEST_F(PackageScreenTest, AnEngineThatIsNotFoundLeavesTheBoxUnticked) {
    const auto screen = Open();
    screen->ClickIncludeEngine(true);
    EXPECT_FALSE(screen->IncludesEngine());
    EXPECT_THAT(Boxes(), ElementsAre("Engine not found on folder for this database"));
}

TEST_F(PackageScreenTest, AnEngineOfVersion5Point9IsRefused) {
    std::string engine;
    for (const char c : std::string("VS_VERSION_INFO"))
        engine.append(1, c).append(1, '\0');
    engine.append(2, '\0').append("\xBD\x04\xEF\xFE", 4).append(4, '\0').append("\x09\0\x05\0\0\0\0\0", 8);
    Write("FabulaEngine.exe", engine);
    const auto screen = Open();
    screen->ClickIncludeEngine(true);
    EXPECT_FALSE(screen->IncludesEngine());
    EXPECT_THAT(Boxes(), ElementsAre("Wrong version of Engine. Must be 6.0 or above."));
}

TEST_F(PackageScreenTest, KeepsTheTickOfTheEngine) {
    Write("FabulaEngine", "a program");
    const InstalledEngine installed{Folder() / "FabulaEngine"};
    {
        const auto screen = Open(installed);
        screen->ClickIncludeEngine(true);
        EXPECT_TRUE(screen->IncludesEngine());
        screen->Leave();
    }
    EXPECT_EQ(settings.Get("Package", "IncludeEngine"), "1");
    const auto again = Open(installed);
    EXPECT_TRUE(again->IncludesEngine());
    EXPECT_THAT(Names(*again), Contains("FabulaEngine"));
    again->ClickIncludeEngine(false);
    EXPECT_THAT(Names(*again), ElementsAre("game.fbd", "The Lamp.ReadMe"));
}

TEST_F(PackageScreenTest, AddsTheTextOfAFileToTheReadMe) {
    Write("more.txt", "and more");
    const auto screen = Open();
    screen->readMeText = "Some";
    dialogs.AnswerFile(Folder() / "more.txt");
    screen->BrowseForReadMe();
    EXPECT_EQ(screen->readMeText, "Some\nand more");
    EXPECT_EQ(dialogs.Questions().back().title, "Browse for a file to add to ReadMe");
}

TEST_F(PackageScreenTest, ShowsTheReadMeBeforeTheZipIsMade) {
    const auto screen = Open();
    screen->lookAtReadMe = true;
    std::string shown;
    screen->look = [&](const std::filesystem::path& file) {
        shown = file.filename().string();
        EXPECT_THAT(dialogs.Questions(), IsEmpty());
    };
    dialogs.AnswerFile(std::nullopt);
    EXPECT_FALSE(screen->Package());
    EXPECT_EQ(shown, "The Lamp.ReadMe");
    EXPECT_FALSE(std::filesystem::exists(Folder() / "The Lamp.zip"));
}

TEST_F(PackageScreenTest, AFailedZipLeavesTheReadMeInPlace) {
    const auto screen = Open();
    dialogs.AnswerFile(Folder() / "none" / "lamp.zip");
    EXPECT_FALSE(screen->Package());
    EXPECT_TRUE(std::filesystem::exists(Folder() / "The Lamp.ReadMe"));
    EXPECT_EQ(Boxes().size(), 1u);
}

TEST_F(PackageScreenTest, DoesNotPackOverTheAdventure) {
    const auto screen = Open();
    const std::string before = test::ReadBytes(Folder() / "game.fbd");
    dialogs.AnswerFile(Folder() / "game.fbd");
    EXPECT_FALSE(screen->Package());
    EXPECT_TRUE(test::ReadBytes(Folder() / "game.fbd") == before);
}

}  // namespace
}  // namespace fabula::packages
