#include "packages/package_list.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "packed_game.h"

namespace fabula::packages {
namespace {

using store::TableNum;
using testing::ElementsAre;

std::vector<std::string> Lines(const PackageList& list) {
    std::vector<std::string> lines;
    for (const PackageRow& row : list.Rows())
        lines.push_back(row.type + " " + row.name);
    return lines;
}

TEST(PackageList, HoldsTheDatabaseTheGraphicsAndTheReadMe) {
    PackedGame game;
    game.Set("advpicloc", std::string("about.png"));
    game.Set("defpicloc", std::string("default.bmp"));
    game.SetPicture(0, "rooms/0.bmp");
    EXPECT_THAT(Lines(PackageList(game.Adventure())),
                ElementsAre("DB game.fbd", "Graphic about.png", "Graphic default.bmp",
                            "Graphic rooms/0.bmp", "ReadMe The Lamp.ReadMe"));
}

TEST(PackageList, APictureNamedBothByARoomAndByPicturesIsListedOnce) {
    PackedGame game;
    game.SetPicture(0, "Room.bmp");
    game.Add(TableNum::Pictures, {{"locnum", std::int64_t{0}},
                                  {"picname", std::string("ROOM.BMP")},
                                  {"drawstring", std::string("END")}});
    EXPECT_THAT(Lines(PackageList(game.Adventure())),
                ElementsAre("DB game.fbd", "Graphic Room.bmp", "ReadMe The Lamp.ReadMe"));
}

TEST(PackageList, APictureWhoseNamesAreOneInAZipIsListedOnce) {
    PackedGame game;
    game.SetPicture(0, "pictures/a.png");
    for (const char* name : {"pictures//a.png", "./pictures/a.png", "pictures\\A.png"}) {
        game.Add(TableNum::Pictures, {{"locnum", std::int64_t{0}},
                                      {"picname", std::string(name)},
                                      {"drawstring", std::string("END")}});
    }
    PackageList list(game.Adventure());
    EXPECT_THAT(Lines(list),
                ElementsAre("DB game.fbd", "Graphic pictures/a.png", "ReadMe The Lamp.ReadMe"));
    EXPECT_FALSE(list.Add(package_type::kFile, "pictures/./a.png"));
    list.Remove("pictures//A.png");
    EXPECT_TRUE(list.Add(package_type::kFile, "pictures/./a.png"));
}

TEST(PackageList, WithGraphicsInDbOnNoGraphicRowsAppear) {
    PackedGame game;
    game.SetPicture(0, "room.bmp");
    game.Set("graphicsindb", std::int64_t{1});
    EXPECT_THAT(Lines(PackageList(game.Adventure())), ElementsAre("DB game.fbd", "ReadMe The Lamp.ReadMe"));
}

TEST(PackageList, NamesTheReadMeBySaveNameWhenTheGameHasNoName) {
    PackedGame game("");
    game.Set("savename", std::string("lamp"));
    EXPECT_EQ(PackageList(game.Adventure()).ReadMeName(), "lamp.ReadMe");
}

TEST(PackageList, KeepsFilesFromOneOpeningToTheNextAndBuildsGraphicsAnew) {
    PackedGame game;
    game.SetPicture(0, "old.bmp");
    PackageList first(game.Adventure());
    EXPECT_TRUE(first.Add(package_type::kFile, "map.txt"));
    EXPECT_FALSE(first.Add(package_type::kFile, "MAP.TXT"));
    first.Store(game.Adventure());
    game.SetPicture(0, "new.bmp");
    EXPECT_THAT(Lines(PackageList(game.Adventure())),
                ElementsAre("DB game.fbd", "Graphic new.bmp", "File map.txt", "ReadMe The Lamp.ReadMe"));
    EXPECT_THAT(game.Rows(TableNum::Package, "pkginclude,pkgtype,pkgname,pkgpackage"),
                ElementsAre("X|DB|game.fbd|The Lamp", "X|Graphic|old.bmp|The Lamp",
                            "X|File|map.txt|The Lamp", "X|ReadMe|The Lamp.ReadMe|The Lamp"));
}

TEST(PackageList, IsKeptUnderTheFirstTwelveCharactersOfTheName) {
    PackedGame game("The Lighthouse at the End");
    PackageList list(game.Adventure());
    list.Store(game.Adventure());
    EXPECT_THAT(game.Rows(TableNum::Package, "pkgpackage", "pkgtype='DB'"), ElementsAre("The Lighthou"));
}

TEST(PackageList, FilesOfAnotherNameOfTheGameAreNotItsOwnAndStay) {
    PackedGame game;
    PackageList lamp(game.Adventure());
    lamp.Add(package_type::kFile, "map.txt");
    lamp.Store(game.Adventure());
    game.Set("advname", std::string("The Cellar"));
    const PackageList cellar(game.Adventure());
    EXPECT_THAT(Lines(cellar), ElementsAre("DB game.fbd", "ReadMe The Cellar.ReadMe"));
    cellar.Store(game.Adventure());
    game.Set("advname", std::string("The Lamp"));
    EXPECT_THAT(Lines(PackageList(game.Adventure())),
                ElementsAre("DB game.fbd", "File map.txt", "ReadMe The Lamp.ReadMe"));
}

TEST(ZipName, IsRelativeAndBelowTheFolder) {
    EXPECT_EQ(ZipName("pictures\\höhle.png"), "pictures/höhle.png");
    EXPECT_EQ(ZipName("./a//b"), "a/b");
    for (const char* none : {"", ".", "..", "a/../b", "/a", "\\a", "C:a", "a/C:/b"})
        EXPECT_EQ(ZipName(none), std::nullopt) << none;
}

TEST(ZipName, HoldsNoControlCharacterAndNoBadByte) {
    for (const char* none : {"a\nb", "a\x1F", "a\x7F", "\xE9", "a\xC3"})
        EXPECT_EQ(ZipName(none), std::nullopt) << none;
}

TEST(PackageList, StoredTwiceWritesOnce) {
    PackedGame game;
    PackageList(game.Adventure()).Store(game.Adventure());
    const auto before = game.Everything();
    PackageList(game.Adventure()).Store(game.Adventure());
    EXPECT_EQ(game.Everything(), before);
}

}  // namespace
}  // namespace fabula::packages
