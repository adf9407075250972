#include "ide/editors/picture_view.h"

#include <QImage>
#include <fstream>

#include <gtest/gtest.h>

#include "qt/strings.h"
#include "support/temp_folder.h"

namespace fabula::ide {
namespace {

class PictureViewTest : public testing::Test {
  protected:
    void WritePicture(const char* name, QSize size) {
        QImage image(size, QImage::Format_RGB32);
        image.fill(Qt::red);
        ASSERT_TRUE(image.save(qt::PathToQt(folder_ / name)));
    }
    std::string Said(std::string_view stored) {
        view_.Show(folder_.Path(), stored);
        return qt::FromQt(view_.text());
    }

    test::TempFolder folder_;
    PictureView view_;
};

TEST_F(PictureViewTest, TakesNoRoomWithoutAPicture) {
    EXPECT_EQ(Said(""), "");
    EXPECT_TRUE(view_.isHidden());
}

TEST_F(PictureViewTest, ShowsAPictureInSmallInItsOwnShape) {
    WritePicture("room.png", {800, 400});
    EXPECT_EQ(Said("room.png"), "");
    EXPECT_FALSE(view_.isHidden());
    const QSize shown = view_.pixmap().size();
    EXPECT_EQ(shown.width(), 2 * shown.height());
    EXPECT_LT(shown.width(), 800);
}

TEST_F(PictureViewTest, APictureThatIsSmallIsNotEnlarged) {
    WritePicture("sign.bmp", {20, 10});
    Said("sign.bmp");
    EXPECT_EQ(view_.pixmap().size(), QSize(20, 10));
}

TEST_F(PictureViewTest, SaysThatAFileIsMissing) {
    EXPECT_EQ(Said("nowhere.png"), "The file is missing.");
}

TEST_F(PictureViewTest, SaysThatAFileIsNoPicture) {
    std::ofstream(folder_ / "room.png") << "This is no picture.";
    EXPECT_EQ(Said("room.png"), "The file holds no picture that can be shown.");
}

TEST_F(PictureViewTest, ReadsNothingOutsideOfTheGamesFolder) {
    EXPECT_EQ(Said("../room.png"), "The file lies outside of the game's folder.");
}

TEST_F(PictureViewTest, APictureThatIsTakenAwayIsGone) {
    WritePicture("room.png", {80, 40});
    Said("room.png");
    EXPECT_EQ(Said(""), "");
    EXPECT_TRUE(view_.pixmap().isNull());
    EXPECT_TRUE(view_.isHidden());
}

}  // namespace
}  // namespace fabula::ide
