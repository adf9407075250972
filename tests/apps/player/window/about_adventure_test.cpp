#include "player/window/about_adventure.h"

#include <gtest/gtest.h>

#include "qt/strings.h"
#include "support/games/game_builder.h"
#include "support/games/template_adventure.h"
#include "support/temp_folder.h"

namespace fabula::player {
namespace {

using test::GameBuilder;

class AboutTest : public testing::Test {
  protected:
    AboutTest() { std::filesystem::create_directory(folder_); }

    AboutAdventure About(const GameBuilder& game) {
        game.Write(file_);
        const auto adventure = store::Adventure::Open(file_, store::OpenMode::ReadOnly);
        return AboutAdventure::Of(adventure.get());
    }
    static void SaveImage(const std::filesystem::path& file) {
        QImage image(8, 4, QImage::Format_RGB32);
        image.fill(Qt::blue);
        ASSERT_TRUE(image.save(qt::PathToQt(file)));
    }

    test::TempFolder outside_;
    std::filesystem::path folder_ = outside_ / "games";
    std::filesystem::path file_ = folder_ / "game.fbd";
};

TEST_F(AboutTest, WithoutAnAdventureSaysSo) {
    EXPECT_EQ(AboutAdventure::Of(nullptr).name, "No Adventure Loaded");
}

TEST_F(AboutTest, TellsNameVersionAuthorAndTexts) {
    const auto about = About(GameBuilder()
                                 .SettingText("advname", "The Vault")
                                 .SettingText("author", "M. E.")
                                 .SettingText("advdesc", "A vault.\u008CAnd more. ")
                                 .SettingText("advcontactinfo", "Write."));
    EXPECT_EQ(about.name, "The Vault");
    EXPECT_EQ(about.lines, (std::vector<std::string>{"Version: 1.0", "Written by M. E.",
                                                     std::string("IFID: ") + test::kTestIfid}));
    EXPECT_EQ(about.description, "A vault.\nAnd more.");
    EXPECT_EQ(about.contact, "Write.");
    EXPECT_TRUE(about.picture.isNull());
}

TEST_F(AboutTest, ShowsThePictureOfTheGamesFolder) {
    SaveImage(folder_ / "about.png");
    EXPECT_EQ(About(GameBuilder().SettingText("advpicloc", "about.png")).picture.size(), QSize(8, 4));
}

TEST_F(AboutTest, ShowsThePictureOfTheAdventureFileWhenPicturesAreKeptThere) {
    SaveImage(folder_ / "about.png");
    GameBuilder().Setting("graphicsindb", 1).Write(file_);
    {
        const auto adventure = store::Adventure::Open(file_);
        auto& settings = adventure->OpenTable(store::TableNum::Adventure, "*");
        settings.StoreFileInField(folder_ / "about.png", "advpicgraphic", "advpicloc");
        settings.Update();
    }
    std::filesystem::remove(folder_ / "about.png");
    const auto adventure = store::Adventure::Open(file_, store::OpenMode::ReadOnly);
    EXPECT_EQ(AboutAdventure::Of(adventure.get()).picture.size(), QSize(8, 4));
}

TEST_F(AboutTest, PictureOutsideTheGamesFolderIsNotShown) {
    SaveImage(outside_ / "about.png");
    EXPECT_TRUE(About(GameBuilder().SettingText("advpicloc", "../about.png")).picture.isNull());
}

}  // namespace
}  // namespace fabula::player
