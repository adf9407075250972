#include "pictures/files/room_bitmaps.h"

#include <gtest/gtest.h>

#include "support/games/template_adventure.h"

namespace fabula::pictures {
namespace {

using store::TableNum;

/// A new adventure, whose one location is room 0.
class RoomBitmaps : public testing::Test {
  protected:
    void AddPicture(int number, const std::string& drawstring) {
        store::Cursor& picture = adventure_->OpenTable(TableNum::Pictures, "def", "locnum=-1");
        picture.AddNew();
        picture.SetField("locnum", number);
        picture.SetField("loctype", "Picture");
        picture.SetField("locpaper", -1);
        picture.SetField("locink", -1);
        picture.SetField("drawstring", drawstring);
        picture.Update();
    }

    void SetDefaultPicture(const std::string& bitmap) {
        store::Cursor& settings = adventure_->OpenTable(TableNum::Adventure, "def");
        settings.SetField("defpickey", "Mine");
        settings.SetField("defpicloc", bitmap);
        settings.Update();
    }

    std::string DefaultPicture() {
        return std::string(adventure_->OpenTable(TableNum::Adventure, "def").Text("defpicloc"));
    }

    test::OpenedAdventure adventure_;
};

TEST_F(RoomBitmaps, WithoutAPictureOfARoomNothingIsMade) {
    AddPicture(700, "END");
    EXPECT_EQ(SaveRoomBitmaps(*adventure_).saved, 0);
    EXPECT_FALSE(std::filesystem::exists(adventure_.Folder() / "pictures"));
}

TEST_F(RoomBitmaps, AdventureWithoutADefaultPictureGetsAnEmptyOne) {
    AddPicture(0, "PLOT 0 1 1 END");
    EXPECT_EQ(SaveRoomBitmaps(*adventure_).saved, 1);
    EXPECT_EQ(DefaultPicture(), "pictures/game/Default.bmp");
}

TEST_F(RoomBitmaps, DefaultPictureOfTheAuthorStays) {
    SetDefaultPicture("mine.bmp");
    AddPicture(0, "PLOT 0 1 1 END");
    EXPECT_EQ(SaveRoomBitmaps(*adventure_).saved, 1);
    EXPECT_EQ(DefaultPicture(), "mine.bmp");
}

TEST_F(RoomBitmaps, PictureThatCannotBeDrawnIsToldAndNotSaved) {
    AddPicture(0, "GOSUB sc=0 0 END");
    const SavedBitmaps saved = SaveRoomBitmaps(*adventure_);
    EXPECT_EQ(saved.saved, 0);
    EXPECT_EQ(saved.faults.size(), 1U);
}

}  // namespace
}  // namespace fabula::pictures
