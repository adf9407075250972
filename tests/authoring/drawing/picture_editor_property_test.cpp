#include <gtest/gtest.h>

#include "../../pictures/drawstring_maker.h"
#include "authoring/drawing/easel.h"
#include "pictures/drawing.h"
#include "pictures/drawstring_check.h"

// Whatever is drawn, stepping shows what drawing gives, and what is put in can be taken out.

namespace fabula::test {
namespace {

/// An editor on a random drawstring of all commands.
class AnyDrawstringTest : public testing::TestWithParam<unsigned> {
  protected:
    AnyDrawstringTest() {
        for (const int number : {5, 6, 7})
            easel_.AddPicture(number, "LINE 0 9 4 QFILL 2 1 END", "Subroutine");
        const auto& book = easel_.Open().Book();
        do {
            drawstring_ = maker_.Make(book.commands, 40);
        } while (!pictures::ValidateDrawString(book, drawstring_, pictures::PictureKind::Room).Passed());
        easel_.Editor().drawstring = drawstring_;
        EXPECT_TRUE(easel_.Editor().LeaveDrawstring());
    }

    Easel easel_;
    pictures::DrawstringMaker maker_{GetParam()};
    std::string drawstring_;
};

TEST_P(AnyDrawstringTest, SteppedToTheEndItIsTheDrawnPicture) {
    easel_.Run("START");
    for (std::size_t i = 0; i < easel_.Editor().Commands().size(); ++i)
        ASSERT_TRUE(easel_.Run("NEXT"));
    pictures::Drawing drawing(easel_.Editor().Book());
    drawing.CommDraw(easel_.Editor().Defaults(), drawstring_);
    EXPECT_TRUE(PlanesAsText(easel_.Editor().Planes()) == PlanesAsText(drawing.Planes()));
}

TEST_P(AnyDrawstringTest, AnyPositionReachedByPrevIsTheDrawingUpToThere) {
    easel_.Run("REDRAW");
    while (easel_.Editor().Position() > 0) {
        ASSERT_TRUE(easel_.Run("PREV"));
        ASSERT_TRUE(easel_.PlanesAreWhatIsDrawn()) << easel_.Editor().Position();
    }
}

TEST_P(AnyDrawstringTest, InsertAndDeleteGiveBackTextAndPlanes) {
    const char* kInsertions[] = {"INK 3",    "LINE",      "PLOT",      "ABSMOVE",   "RELMOVE",
                                 "FILL",     "QFILL",     "SHADE 2 3", "TEXT 0 65", "FLASH 1",
                                 "QSHADE 9", "GOSUB 0 5", "BRIGHT 1"};
    for (const char* line : kInsertions) {
        const auto commands = static_cast<int>(easel_.Editor().Commands().size());
        easel_.Editor().GoBehind(static_cast<std::size_t>(maker_.Between(0, commands)));
        const std::string planes = PlanesAsText(easel_.Editor().Planes());
        easel_.Editor().PointAt({maker_.Between(0, 255), maker_.Between(0, 175)});
        if (!easel_.Run(line)) continue;  // from a cursor that is far off the canvas
        ASSERT_TRUE(easel_.Run("DELETE"));
        ASSERT_EQ(easel_.Drawstring(), drawstring_) << line;
        ASSERT_TRUE(PlanesAsText(easel_.Editor().Planes()) == planes) << line;
    }
}

TEST_P(AnyDrawstringTest, AllThatWasDoneCanBeUndoneAndDoneAgain) {
    const std::string before = PlanesAsText(easel_.Editor().Planes());
    const char* kLines[] = {"INK 1", "LINE", "OVER 1",  "LINE",  "DELETE",
                            "PREV",  "PLOT", "DELNEXT", "CLEAR", "PLOT"};
    for (const char* line : kLines) {
        easel_.Editor().PointAt({maker_.Between(0, 255), maker_.Between(0, 175)});
        easel_.Run(line);
    }
    const std::string text = easel_.Drawstring();
    const std::string after = PlanesAsText(easel_.Editor().Planes());
    int undone = 0;
    for (; easel_.Drawstring() != drawstring_ || easel_.Editor().Over(); ++undone) {
        ASSERT_TRUE(easel_.Editor().CanUndo());
        easel_.Editor().Undo();
    }
    EXPECT_TRUE(PlanesAsText(easel_.Editor().Planes()) == before || easel_.PlanesAreWhatIsDrawn());
    while (easel_.Editor().CanRedo())
        easel_.Editor().Redo();
    EXPECT_EQ(easel_.Drawstring(), text);
    EXPECT_TRUE(PlanesAsText(easel_.Editor().Planes()) == after);
}

INSTANTIATE_TEST_SUITE_P(Random, AnyDrawstringTest, testing::Range(1U, 7U));

}  // namespace
}  // namespace fabula::test
