#include "pictures/drawing.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "pictures/drawstring.h"
#include "platform/error.h"
#include "test_book.h"

namespace fabula::pictures {
namespace {

using testing::ElementsAre;

/// The sentence of the Error that drawing ends in.
std::string DrawingFault(const PictureBook& book, std::string_view drawstring) {
    try {
        Drawing drawing(book);
        Picture picture;
        picture.number = 12;
        drawing.CommDraw(picture, drawstring);
    } catch (const Error& error) {
        return error.what();
    }
    return "drawn";
}

TEST(ScaleCalc, ShortensTowardZero) {
    EXPECT_EQ(ScaleCalc(-10, 4), -5);
    EXPECT_EQ(ScaleCalc(7, 1), 0);
    EXPECT_EQ(ScaleCalc(-7, 1), 0);
    EXPECT_EQ(ScaleCalc(-5, 4), -2);
    EXPECT_EQ(ScaleCalc(255, 7), 223);
}

TEST(DrawClear, TakesTheColoursOfThePicture) {
    PictureBook book = TestBook();
    Drawing drawing(book);
    Picture picture;
    picture.paper = 4;
    picture.ink = 10;
    drawing.DrawClear(picture);
    EXPECT_EQ(drawing.Planes().colour.Background(), IndexToColour(4));
    EXPECT_EQ(drawing.State().defaultPaper, 4);
    EXPECT_EQ(drawing.State().paper, 4);
    EXPECT_EQ(drawing.State().paperColour, IndexToColour(4));
    EXPECT_EQ(drawing.State().defaultInk, 10);
    EXPECT_EQ(drawing.State().ink, 10);
    EXPECT_EQ(drawing.State().inkColour, IndexToColour(10));
    EXPECT_EQ(drawing.State().currentInk, 10);
}

TEST(DrawClear, TakesTheColoursOfTheAdventureWhereThePictureHasNone) {
    PictureBook book = TestBook();
    book.backColour = IndexToColour(5);
    book.textColour = IndexToColour(2);
    Drawing drawing(book);
    drawing.DrawClear(Picture{});
    EXPECT_EQ(drawing.Planes().colour.Background(), IndexToColour(5));
    EXPECT_EQ(drawing.State().defaultPaper, 5);
    EXPECT_EQ(drawing.State().defaultInk, 2);
}

TEST(DrawClear, ABackgroundOfNoPaletteCountsAsWhitePaper) {
    PictureBook book = TestBook();
    book.backColour = MakeColour(1, 2, 3);
    Drawing drawing(book);
    drawing.DrawClear(Picture{});
    EXPECT_EQ(drawing.Planes().colour.Background(), MakeColour(1, 2, 3));
    EXPECT_EQ(drawing.State().defaultPaper, 7);
    EXPECT_EQ(drawing.State().paperColour, IndexToColour(7));
}

TEST(Ink, EightIsTransparentAndDrawsInTheDefaultInk) {
    const Drawing drawing = DrawAndKeep(TestBook(), "INK 2 INK 8 END");
    EXPECT_EQ(drawing.State().ink, 8);
    EXPECT_EQ(drawing.State().inkColour, IndexToColour(0));
}

TEST(Ink, SixteenIsBrightBlack) {
    const Drawing drawing = DrawAndKeep(TestBook(), "INK 16 END");
    EXPECT_EQ(drawing.State().ink, 0);
    EXPECT_EQ(drawing.State().inkColour, IndexToColour(8));
}

TEST(Paper, EightKeepsThePaperColour) {
    const Drawing drawing = DrawAndKeep(TestBook(), "PAPER 3 PAPER 8 END");
    EXPECT_EQ(drawing.State().paper, 8);
    EXPECT_EQ(drawing.State().paperColour, IndexToColour(3));
}

TEST(Paper, OfAPictureWhoseDefaultIsEightBeginsInTheColourOfTheAdventure) {
    PictureBook book = TestBook();
    book.backColour = IndexToColour(5);
    Picture picture;
    picture.paper = 8;
    Drawing drawing(book);
    drawing.DrawClear(picture);
    EXPECT_EQ(drawing.Planes().colour.Background(), IndexToColour(8));
    EXPECT_EQ(drawing.State().paperColour, IndexToColour(5));
}

TEST(Bright, LeavesThePaperAlone) {
    const Drawing drawing = DrawAndKeep(TestBook(), "PAPER 3 INK 2 BRIGHT 1 END");
    EXPECT_EQ(drawing.State().bright, 1);
    EXPECT_EQ(drawing.State().paperColour, IndexToColour(3));
    EXPECT_EQ(drawing.State().inkColour, IndexToColour(10));
}

TEST(Bright, TurnsBrightBlackBackToBlack) {
    EXPECT_EQ(DrawAndKeep(TestBook(), "INK 16 BRIGHT 1 END").State().inkColour, IndexToColour(8));
    EXPECT_EQ(DrawAndKeep(TestBook(), "INK 16 BRIGHT 0 END").State().inkColour, IndexToColour(0));
}

TEST(Flash, IsNoted) {
    EXPECT_EQ(DrawAndKeep(TestBook(), "FLASH 1 END").State().flash, 1);
}

TEST(CommDraw, KeepsBrightFlashAndInverseFromThePictureBefore) {
    const PictureBook book = TestBook();
    Drawing drawing(book);
    drawing.CommDraw(Picture{}, "BRIGHT 1 FLASH 1 PLOT 11 3 3 END");
    drawing.CommDraw(Picture{}, "END");
    EXPECT_EQ(drawing.State().bright, 1);
    EXPECT_EQ(drawing.State().flash, 1);
    EXPECT_TRUE(drawing.State().inverse);
    EXPECT_FALSE(drawing.State().over);
}

TEST(CommDraw, AFillInTheNextPictureIsStillInverse) {
    const PictureBook book = TestBook();
    Drawing drawing(book);
    drawing.CommDraw(Picture{}, "PLOT 1 3 3 END");
    drawing.CommDraw(Picture{}, "PAPER 6 FILL 0 0 END");
    EXPECT_EQ(ColourAt(drawing.Planes(), 100, 100), 6);
}

TEST(CommDraw, CopiesAgainAfterAPictureThatEndedInOver) {
    const PictureBook book = TestBook();
    Drawing drawing(book);
    drawing.CommDraw(Picture{}, "INK 2 PLOT 10 3 3 END");
    drawing.CommDraw(Picture{}, "INK 2 ABSMOVE 3 3 END");
    EXPECT_EQ(ColourAt(drawing.Planes(), 3, 3), 2);
}

TEST(CommDraw, BeginsWithAnEmptyCanvas) {
    const PictureBook book = TestBook();
    Drawing drawing(book);
    drawing.CommDraw(Picture{}, "INK 2 FILL 0 0 END");
    drawing.CommDraw(Picture{}, "END");
    EXPECT_EQ(CountColoured(drawing.Planes()), 0);
    EXPECT_EQ(CountDrawn(drawing.Planes()), 0);
    EXPECT_EQ(drawing.State().cursor, (Point{0, 0}));
    EXPECT_EQ(drawing.State().ink, 0);
}

TEST(CommDraw, StopsBehindTheCommandThatHoldsTheLastWord) {
    const PictureBook book = TestBook();
    Drawing drawing(book);
    drawing.CommDraw(Picture{}, "INK 2 ABSMOVE 3 3 ABSMOVE 5 5 END", 2);
    EXPECT_EQ(drawing.State().cursor, (Point{3, 3}));
    drawing.CommDraw(Picture{}, "INK 2 ABSMOVE 3 3 ABSMOVE 5 5 END", 1);
    EXPECT_EQ(drawing.State().cursor, (Point{0, 0}));
    EXPECT_EQ(drawing.State().ink, 2);
}

TEST(DrawCommand, RunsOneCommandAndGivesTheIndexOfTheNext) {
    const PictureBook book = TestBook();
    const std::vector<std::string> words = DrawstringWords("INK 2 GOSUB sc=0 5 END");
    PictureBook withSubroutine = book;
    AddPicture(withSubroutine, 5, "ABSMOVE 7 7 END");
    Drawing drawing(withSubroutine);
    EXPECT_EQ(drawing.DrawCommand(words, 0), 2U);
    EXPECT_EQ(drawing.State().ink, 2);
    EXPECT_EQ(drawing.State().cursor, (Point{0, 0}));
    EXPECT_EQ(drawing.DrawCommand(words, 2), 5U);
    EXPECT_EQ(drawing.State().cursor, (Point{7, 7}));
    EXPECT_EQ(drawing.DrawCommand(words, 5), 6U);
}

TEST(DrawCommand, StepByStepGivesThePictureOfOneDraw) {
    const PictureBook book = TestBook();
    const std::string drawstring =
        "INK 2 RELMOVE 20 20 LINE 0 40 0 LINE 0 -20 30 LINE 0 -20 -30 SHADE 10 10 5 17 PAPER 6 TEXT 11 0 "
        "65 4 18 "
        "LINE 10 30 7 END";
    Drawing atOnce(book);
    atOnce.CommDraw(Picture{}, drawstring);
    Drawing stepped(book);
    stepped.DrawClear(Picture{});
    const std::vector<std::string> words = DrawstringWords(drawstring);
    for (std::size_t index = 0; index < words.size();) {
        index = stepped.DrawCommand(words, index);
    }
    EXPECT_EQ(ColourRows(stepped.Planes(), {}), ColourRows(atOnce.Planes(), {}));
    EXPECT_EQ(PixelRows(stepped.Planes(), {}), PixelRows(atOnce.Planes(), {}));
}

TEST(GoSub, ToItselfFailsAndNamesThePicture) {
    PictureBook book = TestBook();
    AddPicture(book, 12, "GOSUB sc=0 12 END");
    EXPECT_EQ(DrawingFault(book, "GOSUB sc=0 12 END"),
              "Picture 12 can't be drawn: its GOSUBs are nested over 64 deep, in picture 12.");
}

TEST(GoSub, InARingFailsAndNamesAllPicturesOfTheRing) {
    PictureBook book = TestBook();
    AddPicture(book, 5, "GOSUB sc=0 6 END");
    AddPicture(book, 6, "GOSUB sc=0 7 END");
    AddPicture(book, 7, "GOSUB sc=0 5 END");
    EXPECT_EQ(DrawingFault(book, "GOSUB sc=0 5 END"),
              "Picture 12 can't be drawn: its GOSUBs are nested over 64 deep, in pictures 12, 5, 6 and 7.");
}

TEST(GoSub, SixtyFourDeepIsDrawn) {
    PictureBook book = TestBook();
    for (int number = 101; number < 164; ++number) {
        AddPicture(book, number, "GOSUB sc=0 " + std::to_string(number + 1) + " END");
    }
    AddPicture(book, 164, "ABSMOVE 9 9 END");
    EXPECT_EQ(DrawAndKeep(book, "GOSUB sc=0 101 END").State().cursor, (Point{9, 9}));
    AddPicture(book, 164, "GOSUB sc=0 165 END");
    AddPicture(book, 165, "END");
    EXPECT_THROW(Draw(book, "GOSUB sc=0 101 END"), Error);
}

TEST(GoSub, ThatMultipliesWithoutEndFails) {
    PictureBook book = TestBook();
    for (int number = 100; number < 160; ++number) {
        const std::string next = std::to_string(number + 1);
        AddPicture(book, number, "GOSUB sc=0 " + next + " GOSUB sc=0 " + next + " END");
    }
    AddPicture(book, 160, "END");
    const std::string drawn = DrawingFault(book, "GOSUB sc=0 999 END");
    EXPECT_EQ(
        DrawingFault(book, "GOSUB sc=0 100 END"),
        drawn.substr(0, drawn.find(':')) + ": with its subroutines it runs more than 50000 commands.");
}

TEST(CommDraw, RunsFiftyThousandCommandsAndNotOneMore) {
    std::string most;
    for (int i = 1; i < kMostCommands; ++i)
        most += "FLASH 0 ";
    EXPECT_EQ(DrawingFault(TestBook(), most + "END"), "drawn");
    EXPECT_NE(DrawingFault(TestBook(), most + "FLASH 0 END"), "drawn");
}

TEST(CommDraw, KeepsTheCursorWithinTheLargestNumber) {
    const PictureBook book = TestBook();
    Drawing drawing(book);
    drawing.CommDraw(Picture{}, "ABSMOVE -32767 -32767 RELMOVE -32767 -32767 END");
    EXPECT_EQ(drawing.State().cursor, (Point{-kLargestNumber, -kLargestNumber}));
}

TEST(GoSub, ADrawAfterAFailureIsNotHarmed) {
    PictureBook book = TestBook();
    AddPicture(book, 5, "GOSUB sc=0 5 END");
    AddPicture(book, 6, "ABSMOVE 3 3 END");
    Drawing drawing(book);
    EXPECT_THROW(drawing.CommDraw(Picture{}, "GOSUB sc=0 5 END"), Error);
    drawing.CommDraw(Picture{}, "GOSUB sc=0 6 END");
    EXPECT_EQ(drawing.State().cursor, (Point{3, 3}));
}

TEST(StoredDrawstring, WithoutItsParametersFails) {
    EXPECT_EQ(DrawingFault(TestBook(), "LINE 0 5"),
              "Picture 12 can't be drawn: a parameter of LINE is missing or is no number.");
    EXPECT_EQ(DrawingFault(TestBook(), "LINE 0 5 END"),
              "Picture 12 can't be drawn: a parameter of LINE is missing or is no number.");
    EXPECT_EQ(DrawingFault(TestBook(), "GOSUB"),
              "Picture 12 can't be drawn: a parameter of GOSUB is missing or is no number.");
    EXPECT_EQ(DrawingFault(TestBook(), "GOSUB 3 5 END"),
              "Picture 12 can't be drawn: a parameter of GOSUB is missing or is no number.");
}

TEST(StoredDrawstring, NamesTheSubroutineThatFails) {
    PictureBook book = TestBook();
    AddPicture(book, 5, "LINE x 0 0 END");
    EXPECT_EQ(DrawingFault(book, "GOSUB sc=0 5 END"),
              "Picture 5 can't be drawn: a parameter of LINE is missing or is no number.");
}

TEST(StoredDrawstring, WithACharacterOrPictureThatIsGoneFails) {
    EXPECT_EQ(DrawingFault(TestBook(), "TEXT 0 0 200 1 1 END"),
              "Picture 12 can't be drawn: character set 0 has no character 200.");
    EXPECT_EQ(DrawingFault(TestBook(), "SHADE 0 0 0 85 END"),
              "Picture 12 can't be drawn: no character set has a character 5.");
    EXPECT_EQ(DrawingFault(TestBook(), "GOSUB sc=0 99 END"),
              "Picture 12 can't be drawn: there is no picture 99 for its GOSUB.");
}

TEST(StoredDrawstring, WithoutTheSolidCharacterCanNotFill) {
    PictureBook book = TestBook();
    book.characters = {};
    EXPECT_EQ(DrawingFault(book, "QFILL 0 0 END"),
              "Picture 12 can't be drawn: no character set has a character 143.");
}

TEST(StoredDrawstring, WithASolidCharacterThatHasGapsFailsInsteadOfFillingForEver) {
    PictureBook book = TestBook();
    book.characters = {};
    book.characters.Add({0, 143, "Default", {255, 255, 0, 0, 0, 0, 0, 0}});
    EXPECT_EQ(DrawingFault(book, "QFILL 50 50 END"),
              "Picture 12 can't be drawn: a fill does not end, since character 143, which marks what is "
              "filled, has "
              "gaps.");
}

TEST(StoredDrawstring, ACatalogueThatGivesAWordTooFewParametersFails) {
    PictureBook book;
    book.commands.Add({304, "LINE", 0, 1, {}, {"IO"}});
    EXPECT_EQ(DrawingFault(book, "LINE 0 5 5 END"),
              "Picture 12 can't be drawn: a parameter of LINE is missing or is no number.");
}

TEST(StoredDrawstring, CommandsAreKnownByTheirNumbersNotTheirNames) {
    PictureBook book;
    book.commands.Add({302, "DOT", 0, 3, {}, {"IO", "XP", "YP"}});
    EXPECT_TRUE(DrawnAt(Draw(book, "DOT 0 4 5 END"), 4, 5));
}

TEST(StoredDrawstring, OutrageousNumbersAreClipped) {
    const Canvas canvas =
        Draw(TestBook(),
             "ABSMOVE 999999999999 -999999999999 LINE 0 999999999 999999999 RELMOVE 32767 32767 "
             "RELMOVE 32767 32767 PLOT 0 -32767 32767 FILL 32767 32767 BLOCK 9999 9999 -9999 -9999 END");
    EXPECT_EQ(CountDrawn(canvas), 0);
}

TEST(DrawPicture, DrawsARecordOfTheBook) {
    PictureBook book = TestBook();
    AddPicture(book, 5, "ABSMOVE 3 3 END");
    EXPECT_TRUE(DrawnAt(DrawPicture(book, 5), 3, 3));
    EXPECT_FALSE(DrawnAt(DrawPicture(book, 5, 0), 5, 3));
}

TEST(DrawPicture, ThatDoesNotExistFails) {
    EXPECT_THROW(DrawPicture(TestBook(), 5), Error);
}

class Listener final : public DrawWatcher {
  public:
    void Status(std::string_view text) override { texts.emplace_back(text); }
    void TimerWait(int milliseconds) override { waited += milliseconds; }

    std::vector<std::string> texts;
    int waited = 0;
};

TEST(DrawWatcher, IsToldWhatIsDoneAndWaitsAfterEverySpan) {
    const PictureBook book = TestBook();
    Listener listener;
    Drawing drawing(book, &listener);
    drawing.CommDraw(Picture{}, "RELMOVE 4 4 LINE 0 2 0 LINE 0 0 2 LINE 0 -2 0 LINE 0 0 -2 FILL 1 1 END");
    EXPECT_THAT(listener.texts, ElementsAre("Drawing.....", "Working...", "Working..."));
    EXPECT_EQ(listener.waited, 1);

    listener = {};
    drawing.CommDraw(Picture{}, "FILL 0 0 END");
    EXPECT_EQ(listener.waited, 176);
}

}  // namespace
}  // namespace fabula::pictures
