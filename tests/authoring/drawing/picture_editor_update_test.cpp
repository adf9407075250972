#include <fstream>
#include <iterator>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "authoring/drawing/easel.h"
#include "pictures/files/image.h"
#include "platform/error.h"

namespace fabula::test {
namespace {

using store::TableNum;
using testing::ElementsAre;
using testing::IsEmpty;
namespace fs = std::filesystem;

std::string BytesOf(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

class PictureUpdateTest : public testing::Test {
  protected:
    fs::path Folder() { return easel_.Adventure().GameDir(); }
    std::string Room(const char* field, int number = 1) {
        return easel_.Rows(TableNum::Locations, field, "locnum=" + std::to_string(number)).at(0);
    }

    Easel easel_{"INK 2 PLOT 0 9 9 END"};
    authoring::PictureEditor* editor_ = &easel_.Editor();
};

TEST_F(PictureUpdateTest, StoresTheDrawstringAsOneStepOfUndo) {
    easel_.Run("INK 3");
    EXPECT_TRUE(editor_->Update());
    EXPECT_EQ(easel_.Stored("drawstring"), "INK 3 INK 2 PLOT 0 9 9 END");
    EXPECT_EQ(easel_.document.UndoName(), "edit picture 1");
    easel_.document.Undo();
    EXPECT_EQ(easel_.Stored("drawstring"), "INK 2 PLOT 0 9 9 END");
}

TEST_F(PictureUpdateTest, WithoutAFileNameNothingIsAskedAndSaved) {
    EXPECT_TRUE(editor_->Update());
    EXPECT_THAT(easel_.Boxes(), IsEmpty());
    EXPECT_EQ(Room("pickey"), "");
}

TEST_F(PictureUpdateTest, LeavingWithoutUpdateStoresNothing) {
    const Snapshot before = easel_.Everything();
    easel_.Run("INK 3");
    easel_.dialogs.AnswerNext(true);
    easel_.Run("DEFPAPER 1");
    easel_.Open();
    EXPECT_EQ(easel_.Everything(), before);
}

TEST_F(PictureUpdateTest, ANewPictureBeginsWithEndAndTheColoursOfTheAdventure) {
    auto& editor = easel_.Open(2, true);
    EXPECT_EQ(editor.drawstring, "END");
    EXPECT_EQ(editor.LocationLine(), "2: Location You are in room 2");
    easel_.At(5, 5, "PLOT");
    EXPECT_TRUE(editor.Update());
    EXPECT_EQ(
        easel_.Rows(TableNum::Pictures, "locnum, loctype, drawstring, picname, roompicnum", "locnum=2"),
        (std::vector<std::string>{"2|Picture|PLOT 0 5 5 END||-1"}));
    const auto colours = easel_.Rows(TableNum::Adventure, "backcolor, textcolor");
    EXPECT_EQ(easel_.Rows(TableNum::Pictures, "locpaper, locink", "locnum=2"), colours);
}

TEST_F(PictureUpdateTest, ANewPictureWithoutALocationIsASubroutine) {
    auto& editor = easel_.Open(77, true);
    EXPECT_TRUE(editor.Update());
    EXPECT_EQ(easel_.Stored("loctype", 77), "Subroutine");
}

TEST_F(PictureUpdateTest, AnInvalidCommandLineEndsIt) {
    editor_->commandLine = "INK 99";
    EXPECT_FALSE(editor_->Update());
    EXPECT_THAT(easel_.Boxes(), ElementsAre("99 is an invalid color for INK"));
    EXPECT_EQ(editor_->Refused(), "CommandLine");
}

TEST_F(PictureUpdateTest, AnInvalidTextInTheBoxRefusesAndStaysOpen) {
    editor_->drawstring = "PLOT END";
    EXPECT_FALSE(editor_->Update());
    EXPECT_THAT(easel_.Boxes(), ElementsAre("Non-numeric parameter for PLOT command"));
    EXPECT_EQ(easel_.Stored("drawstring"), "INK 2 PLOT 0 9 9 END");
}

TEST_F(PictureUpdateTest, TheRoomMustBeNamedAndThere) {
    editor_->saveAsRoomPicture = true;
    editor_->roomNumber = " ";
    EXPECT_FALSE(editor_->Update());
    editor_->roomNumber = "44";
    EXPECT_FALSE(editor_->LeaveRoomNumber());
    editor_->roomNumber = "hall";
    EXPECT_FALSE(editor_->LeaveRoomNumber());
    EXPECT_THAT(easel_.Boxes(),
                ElementsAre("To save it, you must have a Room Number", "44 is not a valid room number",
                            "hall is not a valid room number"));
    editor_->saveAsRoomPicture = false;
    EXPECT_TRUE(editor_->LeaveRoomNumber());
}

TEST_F(PictureUpdateTest, BrowseProposesTheNameOfTheRoomAndStoresARelativePath) {
    editor_->saveAsRoomPicture = true;
    editor_->roomNumber = "12";
    easel_.dialogs.AnswerFile(Folder() / "art" / "Room012.bmp");
    EXPECT_TRUE(editor_->Browse());
    EXPECT_EQ(editor_->fileName, "art/Room012.bmp");
    const platform::FileQuestion& question = easel_.dialogs.Questions().at(0);
    EXPECT_EQ(question.title, "Save Graphics Picture As");
    EXPECT_EQ(question.filter, "Bitmap Picture(*.bmp)|*.bmp");
    EXPECT_EQ(question.extension, "bmp");
    EXPECT_EQ(question.start, Folder() / "Room012");
    EXPECT_FALSE(question.asksToOverwrite);
}

TEST_F(PictureUpdateTest, BrowseRefusesAFileOutsideOfTheGamesFolder) {
    easel_.dialogs.AnswerFile(Folder().parent_path() / "elsewhere.bmp");
    EXPECT_FALSE(editor_->Browse());
    EXPECT_THAT(easel_.Boxes(), ElementsAre("The Picture must be at or below the directory of the game"));
    EXPECT_EQ(editor_->fileName, "");
}

TEST_F(PictureUpdateTest, APictureThatIsNotDrawnToItsEndIsDrawnAndAskedFor) {
    std::vector<std::string> said;
    editor_->saying = [&](std::string_view text) { said.emplace_back(text); };
    editor_->fileName = "hall.bmp";
    easel_.dialogs.AnswerNext(true);
    EXPECT_TRUE(editor_->Update());
    EXPECT_THAT(easel_.Boxes(), ElementsAre("Does picture draw OK"));
    EXPECT_THAT(said, ElementsAre("Drawing Picture so it can be saved.", ""));
    EXPECT_EQ(BytesOf(Folder() / "hall.bmp"),
              pictures::EncodeBmp(pictures::ImageOf(pictures::DrawPicture(editor_->Book(), 1).colour)));
    EXPECT_EQ(easel_.Stored("picname"), "hall.bmp");
}

TEST_F(PictureUpdateTest, AnAnswerOfNoStoresTheDrawstringAndNoFile) {
    editor_->fileName = "hall.bmp";
    editor_->saveAsRoomPicture = true;
    editor_->roomNumber = "1";
    easel_.Run("INK 3");
    easel_.dialogs.AnswerNext(false);
    EXPECT_TRUE(editor_->Update());
    EXPECT_EQ(easel_.Stored("drawstring"), "INK 3 INK 2 PLOT 0 9 9 END");
    EXPECT_EQ(easel_.Stored("picname"), "");
    EXPECT_EQ(Room("pickey"), "");
    EXPECT_FALSE(fs::exists(Folder() / "hall.bmp"));
}

TEST_F(PictureUpdateTest, ADrawnPictureIsNotAskedForAndTheRoomShowsItsFile) {
    editor_->fileName = "Room001.bmp";
    editor_->saveAsRoomPicture = true;
    editor_->roomNumber = "1";
    easel_.Run("REDRAW");
    EXPECT_TRUE(editor_->Update());
    EXPECT_THAT(easel_.Boxes(), IsEmpty());
    EXPECT_EQ(easel_.Stored("roompicnum"), "1");
    EXPECT_EQ(Room("picloc"), "Room001.bmp");
    EXPECT_EQ(Room("pickey"), "Room1");
    EXPECT_TRUE(fs::exists(Folder() / "Room001.bmp"));
    auto& again = easel_.Open();
    EXPECT_TRUE(again.saveAsRoomPicture);
    EXPECT_EQ(again.roomNumber, "1");
    EXPECT_EQ(again.fileName, "Room001.bmp");
}

TEST_F(PictureUpdateTest, AFileThatExistsIsAskedForInItsOwnWords) {
    std::ofstream(Folder() / "hall.bmp") << "old";
    editor_->fileName = "hall.bmp";
    easel_.Run("REDRAW");
    easel_.dialogs.AnswerNext(false);
    EXPECT_TRUE(editor_->Update());
    EXPECT_EQ(easel_.dialogs.Boxes(), (std::vector<platform::ScriptedDialogs::Shown>{
                                          {"File hall.bmp Exists. OverWrite", "File Exists"}}));
    EXPECT_EQ(BytesOf(Folder() / "hall.bmp"), "old");
    easel_.dialogs.AnswerNext(true);
    EXPECT_TRUE(editor_->Update());
    EXPECT_EQ(BytesOf(Folder() / "hall.bmp").substr(0, 2), "BM");
}

TEST_F(PictureUpdateTest, TheGridAndTheGuideAreNotInTheSavedBitmap) {
    editor_->fileName = "hall.bmp";
    easel_.Run("REDRAW");
    easel_.Run("GRID");
    editor_->PointAt({200, 160});
    EXPECT_TRUE(editor_->Update());
    EXPECT_EQ(BytesOf(Folder() / "hall.bmp"),
              pictures::EncodeBmp(pictures::ImageOf(pictures::DrawPicture(editor_->Book(), 1).colour)));
}

TEST_F(PictureUpdateTest, WherePicturesAreKeptInTheAdventureTheRoomKeepsTheNewOne) {
    store::Cursor& settings = easel_.Adventure().OpenTable(TableNum::Adventure, "def");
    settings.SetField("graphicsindb", true);
    settings.Update();
    editor_->fileName = "hall.bmp";
    editor_->saveAsRoomPicture = true;
    editor_->roomNumber = "1";
    easel_.Run("REDRAW");
    EXPECT_TRUE(editor_->Update());
    EXPECT_EQ(Room("oldpicloc"), "hall.bmp");
    const text::Value kept =
        easel_.Adventure().OpenTable(TableNum::Locations, "picgraphic", "locnum=1").Field("picgraphic");
    ASSERT_TRUE(std::holds_alternative<text::Blob>(kept));
    EXPECT_EQ(std::get<text::Blob>(kept).size(), BytesOf(Folder() / "hall.bmp").size());
}

TEST_F(PictureUpdateTest, AFolderThatCannotBeMadeStoresNothingAndKeepsTheWork) {
    std::ofstream(Folder() / "art") << "a file, no folder";
    editor_->fileName = "art/hall.bmp";
    easel_.Run("REDRAW");
    easel_.Run("INK 5");
    EXPECT_THROW(editor_->Update(), Error);
    EXPECT_EQ(easel_.Stored("drawstring"), "INK 2 PLOT 0 9 9 END");
    EXPECT_EQ(easel_.Drawstring(), "INK 2 PLOT 0 9 9 INK 5 END");
    EXPECT_FALSE(easel_.document.UndoName());
}

TEST_F(PictureUpdateTest, AFileNameThatLeavesTheGamesFolderIsRefused) {
    editor_->fileName = "../hall.bmp";
    easel_.Run("REDRAW");
    EXPECT_FALSE(editor_->Update());
    EXPECT_THAT(easel_.Boxes(), ElementsAre("The Picture must be at or below the directory of the game"));
    EXPECT_FALSE(fs::exists(Folder().parent_path() / "hall.bmp"));
}

TEST_F(PictureUpdateTest, AnImageTakenAsDrawstringIsDrawnAndCanBeTakenBack) {
    pictures::CellImage image;
    image.numbers.fill(7);
    for (int x = 40; x < 90; ++x)
        image.At(x, 33) = 12;
    editor_->TakeImage(image, true);
    EXPECT_EQ(editor_->Position(), editor_->Words().size() - 1);
    EXPECT_TRUE(pictures::ImageOf(editor_->Planes().colour).pixels == image.ToImage().pixels);
    editor_->Undo();
    EXPECT_EQ(easel_.Drawstring(), "INK 2 PLOT 0 9 9 END");
}

TEST_F(PictureUpdateTest, AnImageTakenAsBitmapIsWhatIsSavedUntilSomethingIsDrawn) {
    pictures::CellImage image;
    image.numbers.fill(4);
    editor_->TakeImage(image, false);
    editor_->fileName = "hall.bmp";
    EXPECT_TRUE(editor_->Update());
    EXPECT_THAT(easel_.Boxes(), IsEmpty());
    EXPECT_EQ(BytesOf(Folder() / "hall.bmp"), pictures::EncodeBmp(image.ToImage()));
    EXPECT_EQ(easel_.Stored("drawstring"), "INK 2 PLOT 0 9 9 END");
    easel_.Run("INK 3");
    EXPECT_FALSE(editor_->TakenImage());
}

}  // namespace
}  // namespace fabula::test
