#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "authoring/drawing/easel.h"

// Every command of the picture editor, by what it writes, draws and says.

namespace fabula::test {
namespace {

using pictures::Point;
using testing::ElementsAre;
using testing::IsEmpty;

int ColourAt(int x, int y, authoring::PictureEditor& editor) {
    return pictures::ColourToIndex(editor.Planes().colour.Pixel(x, pictures::LineOfY(y)));
}

class PictureCommandsTest : public testing::Test {
  protected:
    int Colour(int x, int y) { return ColourAt(x, y, easel_.Editor()); }
    bool Drawn(int x, int y) {
        return easel_.Editor().Planes().pixel.Pixel(x, pictures::LineOfY(y)) !=
               easel_.Editor().Planes().pixel.Background();
    }
    void TearDown() override { EXPECT_TRUE(easel_.PlanesAreWhatIsDrawn()); }

    Easel easel_;
};

TEST_F(PictureCommandsTest, AbsMoveWritesTheKeyCursorAndMarksItOnBothPlanes) {
    EXPECT_TRUE(easel_.At(100, 50, "ABSMOVE"));
    EXPECT_EQ(easel_.Drawstring(), "ABSMOVE 100 50 END");
    EXPECT_EQ(Colour(100, 50), 0);
    EXPECT_TRUE(Drawn(100, 50));
    EXPECT_EQ(easel_.Editor().State().cursor, (Point{100, 50}));
}

TEST_F(PictureCommandsTest, PlotWritesOverAndInverse) {
    EXPECT_TRUE(easel_.At(3, 4, "PLOT"));
    EXPECT_TRUE(easel_.Run("INVERSE 1"));
    EXPECT_TRUE(easel_.At(5, 6, "PLOT"));
    EXPECT_TRUE(easel_.Run("OVER 1"));
    EXPECT_TRUE(easel_.At(7, 8, "PLOT"));
    EXPECT_TRUE(easel_.Run("INVERSE 0"));
    EXPECT_TRUE(easel_.At(9, 10, "PLOT"));
    EXPECT_EQ(easel_.Drawstring(), "PLOT 0 3 4 PLOT 1 5 6 PLOT 11 7 8 PLOT 10 9 10 END");
}

TEST_F(PictureCommandsTest, RelMoveWritesTheWayAndDrawsNothing) {
    EXPECT_TRUE(easel_.At(20, 30, "RELMOVE"));
    EXPECT_TRUE(easel_.At(15, 10, "RELMOVE"));
    EXPECT_EQ(easel_.Drawstring(), "RELMOVE 20 30 RELMOVE -5 -20 END");
    EXPECT_FALSE(Drawn(20, 30));
    EXPECT_EQ(easel_.Editor().State().cursor, (Point{15, 10}));
}

TEST_F(PictureCommandsTest, LineMakesTheRubberLineReal) {
    easel_.At(10, 10, "RELMOVE");
    easel_.Editor().PointAt({20, 5});
    ASSERT_TRUE(easel_.Editor().Guide());
    EXPECT_EQ(*easel_.Editor().Guide(), (authoring::RubberLine{{10, 165}, {20, 170}}));
    EXPECT_TRUE(easel_.Run("LINE"));
    EXPECT_EQ(easel_.Drawstring(), "RELMOVE 10 10 LINE 0 10 -5 END");
    EXPECT_FALSE(easel_.Editor().Guide());
    EXPECT_TRUE(Drawn(10, 10));
    EXPECT_TRUE(Drawn(20, 5));
}

TEST_F(PictureCommandsTest, FillsStartAtTheKeyCursorAndLeaveTheDrawingCursor) {
    easel_.At(10, 10, "ABSMOVE");
    EXPECT_TRUE(easel_.At(15, 12, "FILL"));
    EXPECT_TRUE(easel_.At(16, 13, "QFILL"));
    EXPECT_EQ(easel_.Drawstring(), "ABSMOVE 10 10 FILL 5 2 QFILL 6 3 END");
    EXPECT_EQ(easel_.Editor().State().cursor, (Point{10, 10}));
    EXPECT_EQ(easel_.Editor().KeyCursor(), (Point{16, 13}));
    EXPECT_TRUE(Drawn(200, 100));
}

TEST_F(PictureCommandsTest, ShadeWritesTheSecondShadeTimes16PlusTheFirst) {
    EXPECT_TRUE(easel_.At(1, 2, "SHADE 3 5"));
    EXPECT_EQ(easel_.Drawstring(), "SHADE 0 1 2 83 END");
}

TEST_F(PictureCommandsTest, ShadesByColumnsWriteTheirByte) {
    EXPECT_TRUE(easel_.At(1, 2, "QSHADE 129"));
    EXPECT_TRUE(easel_.Run("INVERSE 1"));
    EXPECT_TRUE(easel_.At(2, 3, "BSHADE 7"));
    EXPECT_EQ(easel_.Drawstring(), "QSHADE 0 1 2 129 BSHADE 1 2 3 7 END");
}

TEST_F(PictureCommandsTest, TextGoesIntoTheCellUnderTheKeyCursor) {
    EXPECT_TRUE(easel_.At(17, 170, "TEXT 0 65"));
    EXPECT_EQ(easel_.Drawstring(), "TEXT 0 0 65 2 0 END");
    EXPECT_TRUE(easel_.At(255, 0, "TEXT 0 66"));
    EXPECT_EQ(easel_.Drawstring(), "TEXT 0 0 65 2 0 TEXT 0 0 66 31 21 END");
}

TEST_F(PictureCommandsTest, BlockLeavesOutTheRowAndTheColumnOfTheFarCorner) {
    easel_.Run("PAPER 2");
    easel_.At(8, 167, "RELMOVE");              // column 1, row 1
    EXPECT_TRUE(easel_.At(39, 136, "BLOCK"));  // column 4, row 4
    EXPECT_EQ(easel_.Drawstring(), "PAPER 2 RELMOVE 8 167 BLOCK 2 2 1 1 END");
    EXPECT_EQ(Colour(8, 167), 2);
    EXPECT_EQ(Colour(31, 144), 2);
    EXPECT_EQ(Colour(32, 136), 7);
}

TEST_F(PictureCommandsTest, BlockWithBothCornersInOneRowIsRefusedInTheWordsOfTheCheck) {
    easel_.At(8, 100, "RELMOVE");
    EXPECT_FALSE(easel_.At(80, 100, "BLOCK"));
    EXPECT_THAT(easel_.Boxes(), ElementsAre("-1 is an invalid height for command BLOCK"));
    EXPECT_FALSE(easel_.At(8, 20, "BLOCK"));
    EXPECT_EQ(easel_.Boxes().back(), "-1 is an invalid width for command BLOCK");
    EXPECT_EQ(easel_.Drawstring(), "RELMOVE 8 100 END");
}

TEST_F(PictureCommandsTest, AttributesAreSetAndWritten) {
    for (const char* line : {"INK 2", "PAPER 6", "BRIGHT 1", "FLASH 1"})
        EXPECT_TRUE(easel_.Run(line));
    EXPECT_EQ(easel_.Drawstring(), "INK 2 PAPER 6 BRIGHT 1 FLASH 1 END");
    const pictures::DrawingState& state = easel_.Editor().State();
    EXPECT_EQ(state.ink, 2);
    EXPECT_EQ(state.paper, 6);
    EXPECT_EQ(state.bright, 1);
    EXPECT_EQ(state.flash, 1);
}

TEST_F(PictureCommandsTest, InverseAndOverWriteNothing) {
    EXPECT_TRUE(easel_.Run("INVERSE 1"));
    EXPECT_TRUE(easel_.Run("OVER 1"));
    EXPECT_TRUE(easel_.Editor().Inverse());
    EXPECT_TRUE(easel_.Editor().Over());
    EXPECT_EQ(easel_.Drawstring(), "END");
}

TEST_F(PictureCommandsTest, GoSubDrawsTheOtherPictureWithTheStateOfTheMoment) {
    easel_.AddPicture(2, "LINE 0 16 0 END", "Subroutine");
    easel_.Open();
    easel_.Run("INK 3");
    easel_.At(40, 40, "RELMOVE");
    EXPECT_TRUE(easel_.Run("GOSUB 4 2"));
    EXPECT_EQ(easel_.Drawstring(), "INK 3 RELMOVE 40 40 GOSUB sc=4 2 END");
    EXPECT_EQ(Colour(48, 40), 3);
    EXPECT_EQ(Colour(49, 40), 7);
    EXPECT_EQ(easel_.Editor().State().cursor, (Point{48, 40}));
}

TEST_F(PictureCommandsTest, GoSubToALocationWithoutAPictureIsRefusedBeforeItIsWritten) {
    EXPECT_FALSE(easel_.Run("GOSUB 0 3"));
    EXPECT_THAT(easel_.Boxes(), ElementsAre("3 is an invalid location"));
    EXPECT_EQ(easel_.Drawstring(), "END");
}

TEST_F(PictureCommandsTest, GoSubToItselfIsToldAndHasNeverBeen) {
    EXPECT_FALSE(easel_.Run("GOSUB 0 1"));
    EXPECT_THAT(easel_.Boxes(), ElementsAre("Picture 1 can't be drawn: its GOSUBs are nested over 64 deep, "
                                            "in picture 1."));
    EXPECT_EQ(easel_.Drawstring(), "END");
    EXPECT_EQ(easel_.Editor().Position(), 0U);
}

TEST_F(PictureCommandsTest, ClearEmptiesTheWholePicture) {
    easel_.At(9, 9, "PLOT");
    EXPECT_TRUE(easel_.Run("CLEAR"));
    EXPECT_EQ(easel_.Drawstring(), "END");
    EXPECT_EQ(easel_.Editor().KeyCursor(), (Point{0, 0}));
    EXPECT_EQ(easel_.Editor().Position(), 0U);
    EXPECT_FALSE(Drawn(9, 9));
}

TEST_F(PictureCommandsTest, StartClearsTheCanvasAndKeepsTheText) {
    easel_.At(9, 9, "PLOT");
    EXPECT_TRUE(easel_.Run("START"));
    EXPECT_EQ(easel_.Drawstring(), "PLOT 0 9 9 END");
    EXPECT_EQ(easel_.Editor().KeyCursor(), (Point{0, 0}));
    EXPECT_EQ(easel_.Editor().Position(), 0U);
    EXPECT_FALSE(Drawn(9, 9));
}

TEST_F(PictureCommandsTest, DefInkOfAnEmptyPictureAsksNothing) {
    EXPECT_TRUE(easel_.Run("DEFINK 2"));
    EXPECT_TRUE(easel_.Run("DEFPAPER 1"));
    EXPECT_THAT(easel_.Boxes(), IsEmpty());
    EXPECT_EQ(easel_.Editor().Defaults().ink, 2);
    EXPECT_EQ(Colour(0, 0), 1);
}

TEST_F(PictureCommandsTest, DefaultColoursOfADrawnPictureWarnAndDrawItAnew) {
    easel_.At(9, 9, "PLOT");
    easel_.dialogs.AnswerNext(false);
    EXPECT_FALSE(easel_.Run("DEFINK 2"));
    EXPECT_EQ(Colour(9, 9), 0);
    easel_.dialogs.AnswerNext(true);
    EXPECT_TRUE(easel_.Run("DEFINK 2"));
    EXPECT_EQ(Colour(9, 9), 2);
    easel_.dialogs.AnswerNext(true);
    EXPECT_TRUE(easel_.Run("DEFPAPER 5"));
    EXPECT_EQ(Colour(0, 0), 5);
    EXPECT_EQ(easel_.dialogs.Boxes()[0],
              (platform::ScriptedDialogs::Shown{"Changing The default Ink at this time will cause a ReDraw",
                                                "Warning"}));
    EXPECT_EQ(easel_.dialogs.Boxes()[2].text,
              "Changing The default Paper at this time will cause a ReDraw");
}

TEST_F(PictureCommandsTest, EndIsRefused) {
    EXPECT_FALSE(easel_.Run("END"));
    EXPECT_THAT(easel_.Boxes(), ElementsAre("END is not allowed as a command"));
}

TEST_F(PictureCommandsTest, AWordThatIsNoneIsRefusedWithTheTitleError) {
    EXPECT_FALSE(easel_.Run("JUMP"));
    EXPECT_EQ(easel_.dialogs.Boxes().at(0),
              (platform::ScriptedDialogs::Shown{"JUMP is an invalid command", "Error"}));
    EXPECT_EQ(easel_.Editor().Refused(), "CommandLine");
}

TEST_F(PictureCommandsTest, TheCommandLineIsEmptiedByWhatWasDoneOnly) {
    easel_.Editor().commandLine = "INK 9";
    EXPECT_FALSE(easel_.Editor().RunCommandLine());
    EXPECT_EQ(easel_.Editor().commandLine, "INK 9");
    easel_.Editor().commandLine = "  ink   5 ";
    EXPECT_TRUE(easel_.Editor().RunCommandLine());
    EXPECT_EQ(easel_.Editor().commandLine, "");
    EXPECT_EQ(easel_.Drawstring(), "INK 5 END");
}

TEST_F(PictureCommandsTest, Shade15And15PassesWhenTypedAndIsRefusedAsAWholeOnPurpose) {
    EXPECT_TRUE(easel_.At(1, 1, "SHADE 15 15"));
    EXPECT_EQ(easel_.Drawstring(), "SHADE 0 1 1 255 END");
    ASSERT_TRUE(easel_.Editor().Fault());
    EXPECT_EQ(easel_.Editor().Fault()->message, "255 is an invalid pattern for command SHADE");
    EXPECT_EQ(easel_.Editor().Fault()->word, 4U);
    EXPECT_FALSE(easel_.Editor().Update());
    EXPECT_EQ(easel_.Boxes().back(), "255 is an invalid pattern for command SHADE");
}

TEST_F(PictureCommandsTest, RPlotIsAMode) {
    EXPECT_TRUE(easel_.Run("RPLOT"));
    EXPECT_TRUE(easel_.Editor().RPlotOn());
    EXPECT_TRUE(easel_.Run("INK 3"));
    EXPECT_FALSE(easel_.Run("LINE"));
    EXPECT_THAT(easel_.Boxes(), ElementsAre("RPLOT is on. LINE is not allowed during RPLOT"));
    EXPECT_TRUE(easel_.Run("RPLOT"));
    EXPECT_FALSE(easel_.Editor().RPlotOn());
    EXPECT_EQ(easel_.Drawstring(), "INK 3 END");
}

TEST_F(PictureCommandsTest, RPlotBeginsAtTheDrawingCursor) {
    easel_.At(50, 50, "RELMOVE");
    easel_.Editor().PointAt({90, 90});
    easel_.Run("RPLOT");
    EXPECT_EQ(easel_.Editor().KeyCursor(), (Point{50, 50}));
}

TEST_F(PictureCommandsTest, TheGridIsALayerAndNeverGetsIntoThePicture) {
    const std::string before = PlanesAsText(easel_.Editor().Planes());
    EXPECT_TRUE(easel_.Run("GRID"));
    EXPECT_TRUE(easel_.Editor().GridOn());
    EXPECT_EQ(PlanesAsText(easel_.Editor().Planes()), before);
    EXPECT_EQ(easel_.Drawstring(), "END");
    const pictures::Plane& grid = easel_.Editor().Grid();
    const auto number = [&](int column, int row) {
        return pictures::ColourToIndex(grid.Pixel(8 * column, 8 * row));
    };
    EXPECT_EQ(number(0, 0), 6);
    EXPECT_EQ(number(1, 0), 7);
    EXPECT_EQ(number(0, 1), 7);
    EXPECT_EQ(number(1, 1), 6);
    EXPECT_EQ(number(31, 21), 6);
    EXPECT_TRUE(easel_.Run("GRID"));
    EXPECT_FALSE(easel_.Editor().GridOn());
}

TEST_F(PictureCommandsTest, TheGridStaysWhenACommandIsPutInAndGoesWithARedraw) {
    easel_.Run("GRID");
    easel_.At(5, 5, "PLOT");
    EXPECT_TRUE(easel_.Editor().GridOn());
    EXPECT_EQ(easel_.Drawstring(), "PLOT 0 5 5 END");
    easel_.Run("REDRAW");
    EXPECT_FALSE(easel_.Editor().GridOn());
}

TEST_F(PictureCommandsTest, TheGridKeepsTheKeyCursorAndTheGuide) {
    easel_.Editor().PointAt({30, 40});
    easel_.Run("GRID");
    easel_.Run("GRID");
    EXPECT_EQ(easel_.Editor().KeyCursor(), (Point{30, 40}));
    EXPECT_TRUE(easel_.Editor().Guide());
}

}  // namespace
}  // namespace fabula::test
