#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "authoring/drawing/easel.h"

// Keys, stepping, the status, the typed drawstring, and taking operations back.

namespace fabula::test {
namespace {

using authoring::DrawingKey;
using pictures::Point;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kHouse = "INK 2 ABSMOVE 100 50 LINE 0 10 -20 GOSUB sc=0 2 END";

class PictureStepsTest : public testing::Test {
  protected:
    PictureStepsTest() { easel_.AddPicture(2, "LINE 0 5 5 END", "Subroutine"); }

    authoring::PictureEditor& Open(std::string_view drawstring) {
        easel_.Clear(store::TableNum::Pictures);
        easel_.AddPicture(2, "LINE 0 5 5 END", "Subroutine");
        easel_.AddPicture(1, drawstring);
        return easel_.Open();
    }
    Point After(DrawingKey key, bool shift = false) {
        easel_.Editor().PointAt({100, 100});
        easel_.Editor().PressKey(key, shift);
        return easel_.Editor().KeyCursor();
    }
    std::size_t Position() { return easel_.Editor().Position(); }

    Easel easel_;
};

TEST_F(PictureStepsTest, EachKeyMovesInItsOwnDirection) {
    EXPECT_EQ(After(DrawingKey::Right), (Point{101, 100}));
    EXPECT_EQ(After(DrawingKey::Left), (Point{99, 100}));
    EXPECT_EQ(After(DrawingKey::Up), (Point{100, 101}));
    EXPECT_EQ(After(DrawingKey::Down), (Point{100, 99}));
    EXPECT_EQ(After(DrawingKey::Home), (Point{101, 101}));
    EXPECT_EQ(After(DrawingKey::End), (Point{101, 99}));
    EXPECT_EQ(After(DrawingKey::Insert), (Point{99, 101}));
    EXPECT_EQ(After(DrawingKey::Delete), (Point{99, 99}));
}

TEST_F(PictureStepsTest, WithShiftEachKeyMovesByEight) {
    EXPECT_EQ(After(DrawingKey::Right, true), (Point{108, 100}));
    EXPECT_EQ(After(DrawingKey::Left, true), (Point{92, 100}));
    EXPECT_EQ(After(DrawingKey::Up, true), (Point{100, 108}));
    EXPECT_EQ(After(DrawingKey::Down, true), (Point{100, 92}));
    EXPECT_EQ(After(DrawingKey::Home, true), (Point{108, 108}));
    EXPECT_EQ(After(DrawingKey::End, true), (Point{108, 92}));
    EXPECT_EQ(After(DrawingKey::Insert, true), (Point{92, 108}));
    EXPECT_EQ(After(DrawingKey::Delete, true), (Point{92, 92}));
}

TEST_F(PictureStepsTest, TheCursorWrapsOnAllFourSides) {
    auto& editor = easel_.Editor();
    editor.PointAt({255, 175});
    editor.PressKey(DrawingKey::Home, false);
    EXPECT_EQ(editor.KeyCursor(), (Point{0, 0}));
    editor.PressKey(DrawingKey::Delete, true);
    EXPECT_EQ(editor.KeyCursor(), (Point{248, 168}));
}

TEST_F(PictureStepsTest, DuringRPlotEachKeyLeavesATraceAndShiftMakesNoLongerStep) {
    auto& editor = easel_.Editor();
    easel_.At(10, 10, "RELMOVE");
    easel_.Run("RPLOT");
    editor.PressKey(DrawingKey::Right, true);
    editor.PressKey(DrawingKey::Home, false);
    editor.PressKey(DrawingKey::Down, false);
    EXPECT_EQ(easel_.Drawstring(), "RELMOVE 10 10 RPLOT 0 1 0 RPLOT 0 1 1 RPLOT 0 0 -1 END");
    EXPECT_EQ(editor.KeyCursor(), (Point{12, 10}));
    EXPECT_TRUE(easel_.PlanesAreWhatIsDrawn());
    EXPECT_FALSE(editor.Guide());
}

TEST_F(PictureStepsTest, DuringRPlotAClickDoesNothingAndDraggingGoesStepByStep) {
    auto& editor = easel_.Editor();
    easel_.At(10, 10, "RELMOVE");
    easel_.Run("RPLOT");
    editor.PointAt({200, 100});
    EXPECT_EQ(editor.KeyCursor(), (Point{10, 10}));
    editor.DragTo({13, 11});
    EXPECT_EQ(easel_.Drawstring(), "RELMOVE 10 10 RPLOT 0 1 1 RPLOT 0 1 0 RPLOT 0 1 0 END");
}

TEST_F(PictureStepsTest, APictureOpensAtItsStartWithAnEmptyCanvas) {
    auto& editor = Open(kHouse);
    EXPECT_EQ(editor.Position(), 0U);
    EXPECT_TRUE(easel_.PlanesAreWhatIsDrawn());
    EXPECT_EQ(editor.drawstring, kHouse);
}

TEST_F(PictureStepsTest, ADrawstringIsCompressedAndTrimmedWhenItOpens) {
    EXPECT_EQ(Open("  INK   2  END ").drawstring, "INK 2 END");
}

TEST_F(PictureStepsTest, NextDrawsOneCommandAndTheRubberLineFollows) {
    auto& editor = Open(kHouse);
    editor.PressKey(DrawingKey::PageDown, false);
    EXPECT_EQ(Position(), 2U);
    easel_.Run("NEXT");
    EXPECT_EQ(Position(), 5U);
    EXPECT_EQ(editor.KeyCursor(), (Point{100, 50}));
    EXPECT_FALSE(editor.Guide());
    EXPECT_TRUE(easel_.PlanesAreWhatIsDrawn());
}

TEST_F(PictureStepsTest, NextAtTheEndSaysSoWithAFullStopAndStays) {
    Open("INK 2 END");
    easel_.Run("NEXT");
    EXPECT_FALSE(easel_.Run("NEXT"));
    EXPECT_EQ(easel_.dialogs.Boxes(), (std::vector<platform::ScriptedDialogs::Shown>{
                                          {"You are at the END of the drawstring.", "Error"}}));
    EXPECT_EQ(Position(), 2U);
}

TEST_F(PictureStepsTest, PrevGoesBackToTheWordOfTheCommandAndNotToItsNumbers) {
    auto& editor = Open(kHouse);
    easel_.Run("REDRAW");
    EXPECT_EQ(Position(), 12U);
    editor.PressKey(DrawingKey::PageUp, false);
    EXPECT_EQ(Position(), 9U);  // the word GOSUB, over its number and its scale
    easel_.Run("PREV");
    EXPECT_EQ(Position(), 5U);  // the word LINE, not -20
    EXPECT_EQ(editor.KeyCursor(), (Point{100, 50}));
    EXPECT_TRUE(easel_.PlanesAreWhatIsDrawn());
}

TEST_F(PictureStepsTest, PrevAtTheStartSaysSoWithoutAFullStop) {
    Open(kHouse);
    EXPECT_FALSE(easel_.Run("PREV"));
    EXPECT_THAT(easel_.Boxes(), ElementsAre("You are already at the START of the drawstring"));
}

TEST_F(PictureStepsTest, DeleteRemovesTheWholeCommandInFront) {
    Open(kHouse);
    easel_.Run("REDRAW");
    EXPECT_TRUE(easel_.Run("DELETE"));
    EXPECT_EQ(easel_.Drawstring(), "INK 2 ABSMOVE 100 50 LINE 0 10 -20 END");
    EXPECT_EQ(Position(), 9U);
    EXPECT_TRUE(easel_.PlanesAreWhatIsDrawn());
}

TEST_F(PictureStepsTest, DeleteAtTheStartSaysTheSameAsPrev) {
    Open(kHouse);
    EXPECT_FALSE(easel_.Run("DELETE"));
    EXPECT_THAT(easel_.Boxes(), ElementsAre("You are already at the START of the drawstring"));
}

TEST_F(PictureStepsTest, DelNextRemovesTheCommandBehindWithoutDrawing) {
    auto& editor = Open(kHouse);
    easel_.Run("NEXT");
    editor.PointAt({7, 7});
    EXPECT_TRUE(easel_.Run("DELNEXT"));
    EXPECT_EQ(easel_.Drawstring(), "INK 2 LINE 0 10 -20 GOSUB sc=0 2 END");
    EXPECT_EQ(Position(), 2U);
    EXPECT_EQ(editor.KeyCursor(), (Point{7, 7}));
}

TEST_F(PictureStepsTest, DelNextAtTheEndSaysSoWithoutAFullStop) {
    Open("END");
    EXPECT_FALSE(easel_.Run("DELNEXT"));
    EXPECT_THAT(easel_.Boxes(), ElementsAre("You are at the END of the drawstring"));
}

TEST_F(PictureStepsTest, CommandsGoInAtThePosition) {
    Open(kHouse);
    easel_.Run("NEXT");
    easel_.Run("PAPER 6");
    EXPECT_EQ(easel_.Drawstring(), "INK 2 PAPER 6 ABSMOVE 100 50 LINE 0 10 -20 GOSUB sc=0 2 END");
    EXPECT_EQ(Position(), 4U);
}

TEST_F(PictureStepsTest, TheStatusTellsAttributesCursorDefaultsAndTheNextCommand) {
    auto& editor = Open(kHouse);
    easel_.Run("NEXT");
    easel_.Run("NEXT");
    easel_.Run("OVER 1");
    easel_.Run("INVERSE 1");
    editor.PressKey(DrawingKey::Left, false);
    EXPECT_EQ(editor.Status(),
              "Current - Ink: 2   Paper: 7   Flash: 0   Bright: 0\n"
              "X: 99   Y: 50   Location: 1     Picture     OI\n"
              "Default - Ink: 0     Paper: 7\n"
              "Next Graphics command:\n"
              "LINE 0 10 -20");
    easel_.Run("RPLOT");
    EXPECT_NE(editor.Status().find("     OIRPLOT \n"), std::string::npos);
}

TEST_F(PictureStepsTest, TheStatusSaysNoneForDefaultsOfTheAdventureAndOfOlderFiles) {
    store::Cursor& record = easel_.Adventure().OpenTable(store::TableNum::Pictures, "def", "locnum=1");
    record.SetField("locink", std::int64_t{-1});
    record.SetField("locpaper", std::int64_t{65535});
    record.Update();
    EXPECT_NE(easel_.Open().Status().find("Default - Ink: None     Paper: None\n"), std::string::npos);
}

TEST_F(PictureStepsTest, TheLineAboveTellsWhatThePictureIs) {
    EXPECT_EQ(Open("END").LocationLine(), "1: Location The hall");
    easel_.AddPicture(3, "END");
    EXPECT_EQ(easel_.Open(3).LocationLine(), "3: Location You are in room 3");
    easel_.AddPicture(8, "END");
    EXPECT_EQ(easel_.Open(8).LocationLine(), "No matching Location record.");
    easel_.AddPicture(9, "END", "Subroutine");
    EXPECT_EQ(easel_.Open(9).LocationLine(), "9: Subroutine");
}

TEST_F(PictureStepsTest, ATypedDrawstringIsTakenAndThePositionStaysAtACommand) {
    auto& editor = Open("INK 2 PAPER 6 END");
    easel_.Run("NEXT");
    editor.drawstring = "  INK 3   PLOT 0 9 9 END";
    EXPECT_TRUE(editor.LeaveDrawstring());
    EXPECT_EQ(editor.drawstring, "INK 3 PLOT 0 9 9 END");
    EXPECT_EQ(Position(), 2U);
    EXPECT_EQ(editor.State().ink, 3);
}

TEST_F(PictureStepsTest, WhereNoCommandBeginsThePositionGoesToTheLastOneBefore) {
    auto& editor = Open("INK 2 PAPER 6 END");
    easel_.Run("NEXT");
    editor.drawstring = "PLOT 0 9 9 INK 3 END";
    EXPECT_TRUE(editor.LeaveDrawstring());
    EXPECT_EQ(Position(), 0U);
    easel_.Run("REDRAW");
    editor.drawstring = "PLOT 0 9 9 END";
    EXPECT_TRUE(editor.LeaveDrawstring());
    EXPECT_EQ(Position(), 4U);
    EXPECT_TRUE(easel_.PlanesAreWhatIsDrawn());
}

TEST_F(PictureStepsTest, ATypedDrawstringThatDoesNotPassIsRefusedAndChangesNothing) {
    auto& editor = Open("INK 2 END");
    editor.drawstring = "INK 2";
    EXPECT_FALSE(editor.LeaveDrawstring());
    EXPECT_THAT(easel_.Boxes(), ElementsAre("DrawString not terminated with END"));
    EXPECT_EQ(editor.Refused(), "Drawstring");
    EXPECT_EQ(editor.Words(), (std::vector<std::string>{"INK", "2", "END"}));
    editor.drawstring = " ";
    EXPECT_FALSE(editor.LeaveDrawstring());
    EXPECT_EQ(easel_.Boxes().back(), "Invalid DrawString. Must have an END");
}

TEST_F(PictureStepsTest, ABrokenDrawstringOpensAndSteppingStopsBeforeTheFault) {
    auto& editor = Open("INK 2 PLOT 0 300 5 INK 3 END");
    EXPECT_EQ(editor.drawstring, "INK 2 PLOT 0 300 5 INK 3 END");
    ASSERT_TRUE(editor.Fault());
    EXPECT_EQ(editor.Fault()->word, 4U);
    EXPECT_TRUE(easel_.Run("NEXT"));
    EXPECT_FALSE(easel_.Run("NEXT"));
    EXPECT_EQ(Position(), 2U);
    EXPECT_FALSE(easel_.Run("REDRAW"));
    EXPECT_EQ(Position(), 2U);
    EXPECT_THAT(easel_.Boxes(), ElementsAre("300 is an invalid relative X number for command PLOT",
                                            "300 is an invalid relative X number for command PLOT"));
    EXPECT_TRUE(easel_.Run("DELNEXT"));
    EXPECT_FALSE(editor.Fault());
    EXPECT_TRUE(easel_.Run("REDRAW"));
}

TEST_F(PictureStepsTest, ADrawstringWithoutEndIsSteppedThroughToWhereItIsMissing) {
    auto& editor = Open("INK 2 PLOT 0 3 5");
    EXPECT_TRUE(easel_.Run("NEXT"));
    EXPECT_FALSE(easel_.Run("NEXT"));
    EXPECT_EQ(Position(), 6U);
    EXPECT_FALSE(easel_.Run("NEXT"));
    EXPECT_THAT(easel_.Boxes(),
                ElementsAre("DrawString not terminated with END", "DrawString not terminated with END"));
    EXPECT_FALSE(editor.Update());
}

TEST_F(PictureStepsTest, ACommandThatLacksParametersIsTheFaultAndNotTheNextOne) {
    auto& editor = Open("INK 2 LINE 0 5 INK 3 END");
    ASSERT_TRUE(editor.Fault());
    EXPECT_EQ(editor.Fault()->message, "Non-numeric parameter for LINE command");
    EXPECT_EQ(editor.Fault()->word, 5U);
    EXPECT_FALSE(easel_.Run("REDRAW"));
    EXPECT_EQ(Position(), 2U);
    EXPECT_TRUE(easel_.Run("DELNEXT"));
    EXPECT_EQ(easel_.Drawstring(), "INK 2 INK 3 END");
}

TEST_F(PictureStepsTest, TheCommandsAreListedWithWhatTheyDoInWords) {
    auto& editor = Open(kHouse);
    ASSERT_EQ(editor.Commands().size(), 4U);
    EXPECT_EQ(editor.CommandText(2), "LINE 0 10 -20");
    EXPECT_EQ(editor.CommandInWords(2), "Line 10 right, 20 down");
    EXPECT_TRUE(editor.GoBehind(3));
    EXPECT_EQ(editor.CommandsDrawn(), 3U);
    EXPECT_TRUE(easel_.PlanesAreWhatIsDrawn());
}

TEST_F(PictureStepsTest, ACommandCanBeChangedWhereItStands) {
    auto& editor = Open("INK 2 ABSMOVE 9 9 LINE 0 5 5 END");
    editor.GoBehind(3);
    EXPECT_TRUE(editor.ChangeCommand(1, " block 1  2 3 4 "));
    EXPECT_EQ(easel_.Drawstring(), "INK 2 block 1 2 3 4 LINE 0 5 5 END");
    EXPECT_EQ(editor.CommandsDrawn(), 3U);
    EXPECT_TRUE(easel_.PlanesAreWhatIsDrawn());
    EXPECT_FALSE(editor.ChangeCommand(0, "INK"));
    EXPECT_THAT(easel_.Boxes(), ElementsAre("Non-numeric parameter for INK command"));
    editor.Undo();
    EXPECT_EQ(easel_.Drawstring(), "INK 2 ABSMOVE 9 9 LINE 0 5 5 END");
}

TEST_F(PictureStepsTest, TheLastCommandTellsThePixelsThatItChanged) {
    auto& editor = Open("INK 2 PLOT 0 3 175 RELMOVE 1 -1 END");
    EXPECT_THAT(editor.PixelsOfLastCommand(), IsEmpty());
    editor.GoBehind(2);
    const std::vector<bool> changed = editor.PixelsOfLastCommand();
    EXPECT_EQ(std::count(changed.begin(), changed.end(), true), 1);
    EXPECT_TRUE(changed[3]);
    editor.GoBehind(3);
    const std::vector<bool> none = editor.PixelsOfLastCommand();
    EXPECT_EQ(std::count(none.begin(), none.end(), true), 0);
}

TEST_F(PictureStepsTest, UndoTakesBackSingleOperationsAndRedoRepeatsThem) {
    auto& editor = easel_.Editor();
    easel_.Run("INK 2");
    easel_.At(9, 9, "PLOT");
    easel_.At(19, 19, "LINE");
    const std::string drawn = PlanesAsText(editor.Planes());
    editor.Undo();
    EXPECT_EQ(easel_.Drawstring(), "INK 2 PLOT 0 9 9 END");
    EXPECT_EQ(editor.KeyCursor(), (Point{19, 19}));
    EXPECT_TRUE(easel_.PlanesAreWhatIsDrawn());
    editor.Undo();
    editor.Undo();
    EXPECT_EQ(easel_.Drawstring(), "END");
    EXPECT_FALSE(editor.CanUndo());
    for (int i = 0; i < 3; ++i)
        editor.Redo();
    EXPECT_EQ(easel_.Drawstring(), "INK 2 PLOT 0 9 9 LINE 0 10 10 END");
    EXPECT_EQ(PlanesAsText(editor.Planes()), drawn);
    EXPECT_FALSE(editor.CanRedo());
}

TEST_F(PictureStepsTest, UndoBringsBackAClearedPictureADefaultColourAndASwitch) {
    auto& editor = Open(kHouse);
    easel_.Run("REDRAW");
    const std::string drawn = PlanesAsText(editor.Planes());
    easel_.Run("CLEAR");
    easel_.Run("DEFPAPER 1");
    easel_.Run("OVER 1");
    editor.Undo();
    EXPECT_FALSE(editor.Over());
    editor.Undo();
    EXPECT_EQ(editor.Defaults().paper, 7);
    editor.Undo();
    EXPECT_EQ(easel_.Drawstring(), kHouse);
    EXPECT_EQ(PlanesAsText(editor.Planes()), drawn);
}

TEST_F(PictureStepsTest, ANewOperationForgetsWhatWasUndone) {
    easel_.Run("INK 2");
    easel_.Editor().Undo();
    easel_.Run("INK 3");
    EXPECT_FALSE(easel_.Editor().CanRedo());
}

}  // namespace
}  // namespace fabula::test
