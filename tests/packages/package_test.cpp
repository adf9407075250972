#include "packages/package.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "packed_game.h"
#include "support/games/template_adventure.h"
#include "support/raw_database.h"
#include "zipped.h"

namespace fabula::packages {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

std::vector<std::string> Names(const Package& package) {
    std::vector<std::string> names;
    for (const PackedFile& file : package.files)
        names.push_back(file.name);
    return names;
}

std::string Refused(PackedGame& game) {
    try {
        GatherPackage(game.Adventure(), PackageList(game.Adventure()), {"1.0", "", "", {}});
        return "";
    } catch (const Error& error) {
        return error.what();
    }
}

TEST(GatherPackage, HoldsEveryFileOfTheListTheRecordTheCoverAndTheReadMe) {
    PackedGame game;
    game.Write("rooms/0.bmp", "picture");
    game.SetPicture(0, "rooms\\0.bmp");
    game.Draw("about.png", 200, 200);
    game.Set("advpicloc", std::string("about.png"));
    const PackageList list(game.Adventure());
    const Package package = GatherPackage(game.Adventure(), list, {"1.0", "Mind.", "page", {}});
    EXPECT_THAT(Names(package), ElementsAre("game.fbd", "about.png", "rooms/0.bmp", "Cover.png",
                                            "The Lamp.iFiction", "The Lamp.ReadMe"));
    EXPECT_EQ(package.files[0].bytes, test::ReadBytes(game.Adventure().CurrentFile()));
    EXPECT_EQ(package.files[2].bytes, "picture");
    EXPECT_THAT(package.files[4].bytes, HasSubstr(std::string("<ifid>") + test::kTestIfid + "</ifid>"));
    EXPECT_THAT(package.readMe,
                HasSubstr("\r\nrooms/0.bmp\r\nCover.png\r\nThe Lamp.iFiction\r\nThe Lamp.ReadMe\r\n"));
    EXPECT_THAT(package.notes, ElementsAre());
}

TEST(GatherPackage, TwoPackagesOfTheSameInputAreEqualByteForByte) {
    PackedGame game;
    game.Write("map.txt", std::string(100'000, 'm'));
    PackageList list(game.Adventure());
    list.Add(package_type::kFile, "map.txt");
    for (const char* zip : {"1.zip", "2.zip"})
        WriteZip(game.Folder() / zip, GatherPackage(game.Adventure(), list, {"1.0", "", "", {}}).files);
    EXPECT_TRUE(test::ReadBytes(game.Folder() / "1.zip") == test::ReadBytes(game.Folder() / "2.zip"));
    EXPECT_EQ(Unzipped(game.Folder() / "1.zip").size(), 4u);
}

TEST(GatherPackage, NamesAPictureThatVanished) {
    PackedGame game;
    game.SetPicture(0, "gone.bmp");
    EXPECT_EQ(Refused(game), "Could not pack gone.bmp: it is not in the game's folder.");
}

TEST(GatherPackage, TellsWhatLibrariesOfGamesMiss) {
    PackedGame game;
    const Package package =
        GatherPackage(game.Adventure(), PackageList(game.Adventure()), {"1.0", "", "", {}});
    EXPECT_THAT(package.notes,
                ElementsAre("The game has no picture for About this Adventure, so it has no cover."));
}

TEST(WriteReadMe, WritesItIntoTheGamesFolder) {
    PackedGame game;
    const PackageList list(game.Adventure());
    const Package package = GatherPackage(game.Adventure(), list, {"1.0", "", "", {}});
    WriteReadMe(game.Adventure(), list, package);
    EXPECT_EQ(test::ReadBytes(game.Folder() / "The Lamp.ReadMe"), package.readMe);
}

TEST(IncludeEngine, TakesThatOfTheFolderFromVersionSixOn) {
    const auto engine = [](char major) {
        std::string bytes;
        for (const char c : std::string("VS_VERSION_INFO"))
            bytes.append(1, c).append(1, '\0');
        bytes.append(2, '\0').append("\xBD\x04\xEF\xFE", 4).append(4, '\0');
        return bytes.append("\x09\0", 2).append(1, major).append(5, '\0');
    };
    PackedGame game;
    PackageList list(game.Adventure());
    EXPECT_EQ(IncludeEngine(game.Adventure(), list, {}), "Engine not found on folder for this database");
    game.Write("fabulaengine.exe", engine(5));
    EXPECT_EQ(IncludeEngine(game.Adventure(), list, {}), "Wrong version of Engine. Must be 6.0 or above.");
    EXPECT_FALSE(list.Find("fabulaengine.exe"));
    game.Write("fabulaengine.exe", engine(6));
    EXPECT_EQ(IncludeEngine(game.Adventure(), list, {}), "");
    ASSERT_TRUE(list.Find("fabulaengine.exe"));
    EXPECT_EQ(list.Find("fabulaengine.exe")->type, package_type::kEngine);
}

TEST(IncludeEngine, TakesTheInstalledOneWhereTheFolderHasNone) {
    PackedGame game;
    const test::TempFolder programs;
    std::ofstream(programs / "FabulaEngine") << "a program";
    PackageList list(game.Adventure());
    const InstalledEngine installed{programs / "FabulaEngine"};
    EXPECT_EQ(IncludeEngine(game.Adventure(), list, installed), "");
    const Package package = GatherPackage(game.Adventure(), list, {"1.0", "", "", installed});
    EXPECT_THAT(Names(package),
                ElementsAre("game.fbd", "FabulaEngine", "The Lamp.iFiction", "The Lamp.ReadMe"));
    EXPECT_EQ(package.files[1].bytes, "a program");
    EXPECT_TRUE(package.files[1].runs);
}

}  // namespace
}  // namespace fabula::packages
