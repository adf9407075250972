#include "pictures/drawstring_check.h"

#include <gtest/gtest.h>

#include "pictures/drawstring.h"
#include "test_book.h"

namespace fabula::pictures {
namespace {

/// What the check says to a drawstring: its fault, or "ok".
std::string Check(std::string_view drawstring, PictureKind kind = PictureKind::Room) {
    PictureBook book = TestBook();
    AddPicture(book, 5, "END", PictureKind::Subroutine);
    const DrawstringCheck check = ValidateDrawString(book, drawstring, kind);
    return check.Passed() ? "ok" : check.fault;
}

TEST(ValidateDrawString, EndAloneIsValid) {
    EXPECT_EQ(Check("END"), "ok");
}

TEST(ValidateDrawString, AnEmptyTextMustHaveAnEnd) {
    EXPECT_EQ(Check(""), "Invalid DrawString. Must have an END");
    EXPECT_EQ(Check("   "), "Invalid DrawString. Must have an END");
}

TEST(ValidateDrawString, TheLastWordMustBeEndInCapitals) {
    EXPECT_EQ(Check("INK 2"), "DrawString not terminated with END");
    EXPECT_EQ(Check("INK 2 end"), "DrawString not terminated with END");
}

TEST(ValidateDrawString, EndBeforeTheLastWordIsAWordWithoutParameters) {
    EXPECT_EQ(Check("END END"), "ok");
    EXPECT_EQ(Check("END INK 2 END"), "ok");
}

TEST(ValidateDrawString, GivesTheWordsBack) {
    const DrawstringCheck check = ValidateDrawString(TestBook(), "  INK   2  END", PictureKind::Room);
    EXPECT_EQ(JoinWords(check.words), "INK 2 END");
}

TEST(ValidateDrawString, ARefusedDrawstringHasNoWords) {
    EXPECT_TRUE(ValidateDrawString(TestBook(), "INK 9 END", PictureKind::Room).words.empty());
}

TEST(ValidateDrawString, AWordThatIsNotInTheCatalogueIsRefused) {
    EXPECT_EQ(Check("CIRCLE 5 END"), "Invalid command: CIRCLE");
    EXPECT_EQ(Check("INK 2 3 END"), "Invalid command: 3");
}

TEST(ValidateDrawString, WordsMayBeInSmallLetters) {
    EXPECT_EQ(Check("ink 2 gosub sc=0 5 END"), "ok");
    EXPECT_EQ(Check("line 0 x 5 END"), "Non-numeric parameter for line command");
}

TEST(ValidateDrawString, InverseAndOverHaveNoParametersInADrawstring) {
    EXPECT_EQ(Check("INVERSE 1 END"), "Invalid command: 1");
    EXPECT_EQ(Check("OVER 0 END"), "Invalid command: 0");
}

TEST(ValidateDrawString, AMissingParameterIsTheNextWord) {
    EXPECT_EQ(Check("LINE 1 5 END"), "Non-numeric parameter for LINE command");
    EXPECT_EQ(Check("LINE 1 5 PLOT 0 1 1 END"), "Non-numeric parameter for LINE command");
    EXPECT_EQ(Check("GOSUB sc=0 END"), "Non-numeric parameter for GOSUB command");
}

TEST(ValidateDrawString, ParametersAreWholeNumbers) {
    EXPECT_EQ(Check("INK 1.5 END"), "Non-numeric parameter for INK command");
    EXPECT_EQ(Check("INK &H2 END"), "Non-numeric parameter for INK command");
    EXPECT_EQ(Check("INK +2 END"), "ok");
}

TEST(ValidateDrawString, TellsTheFirstFaultFromTheLeft) {
    EXPECT_EQ(Check("PLOT 5 999 999 CIRCLE END"), "5 is an invalid Inverse/Over value for command PLOT");
}

TEST(ValidateDrawString, AbsoluteCoordinatesHaveNoLowerBound) {
    EXPECT_EQ(Check("ABSMOVE -5 -200 END"), "ok");
    EXPECT_EQ(Check("PLOT 0 -99999999999 0 END"), "ok");
}

TEST(ValidateDrawString, AbsoluteCoordinatesAreReportedAsRelativeOnes) {
    EXPECT_EQ(Check("PLOT 0 -5 200 END"), "200 is an invalid relative Y number for command PLOT");
    EXPECT_EQ(Check("ABSMOVE 256 0 END"), "256 is an invalid relative X number for command ABSMOVE");
    EXPECT_EQ(Check("ABSMOVE 255 175 END"), "ok");
}

TEST(ValidateDrawString, RelativeCoordinatesReachOverTheWholePicture) {
    EXPECT_EQ(Check("RELMOVE -255 -175 RELMOVE 255 175 END"), "ok");
    EXPECT_EQ(Check("RELMOVE -256 0 END"), "-256 is an invalid relative X number for command RELMOVE");
    EXPECT_EQ(Check("RELMOVE 0 -176 END"), "-176 is an invalid relative Y number for command RELMOVE");
    EXPECT_EQ(Check("RELMOVE 0 176 END"), "176 is an invalid relative Y number for command RELMOVE");
}

TEST(ValidateDrawString, NumbersOfAnyLengthAreRead) {
    EXPECT_EQ(Check("RELMOVE 99999999999999999999 0 END"),
              "99999999999999999999 is an invalid relative X number for command RELMOVE");
}

TEST(ValidateDrawString, OverAndInverseAreTwoDigits) {
    EXPECT_EQ(Check("PLOT 0 1 1 PLOT 1 1 1 PLOT 10 1 1 PLOT 11 1 1 PLOT 01 1 1 END"), "ok");
    EXPECT_EQ(Check("LINE 2 1 1 END"), "2 is an invalid Inverse/Over value for command LINE");
    EXPECT_EQ(Check("LINE 12 1 1 END"), "12 is an invalid Inverse/Over value for command LINE");
    EXPECT_EQ(Check("LINE -1 1 1 END"), "-1 is an invalid Inverse/Over value for command LINE");
}

TEST(ValidateDrawString, PatternsEndAt225AlthoughTwoShadesWouldReach255) {
    EXPECT_EQ(Check("SHADE 0 1 1 225 END"), "ok");
    EXPECT_EQ(Check("SHADE 0 1 1 226 END"), "226 is an invalid pattern for command SHADE");
    EXPECT_EQ(Check("SHADE 0 1 1 -1 END"), "-1 is an invalid pattern for command SHADE");
}

TEST(ValidateDrawString, ShadeBytesAreOneTo255) {
    EXPECT_EQ(Check("QSHADE 0 1 1 1 BSHADE 0 1 1 255 END"), "ok");
    EXPECT_EQ(Check("QSHADE 0 1 1 0 END"), "0 is an invalid Marlo Shade (1-255)");
    EXPECT_EQ(Check("BSHADE 0 1 1 256 END"), "256 is an invalid Marlo Shade (1-255)");
}

TEST(ValidateDrawString, StepsOfRPlotAreOnePixel) {
    EXPECT_EQ(Check("RPLOT 0 -1 1 END"), "ok");
    EXPECT_EQ(Check("RPLOT 0 2 0 END"), "2 is an invalid value for RPLOT");
}

TEST(ValidateDrawString, BlocksAreGivenInCells) {
    EXPECT_EQ(Check("BLOCK 21 31 31 21 END"), "ok");
    EXPECT_EQ(Check("BLOCK 22 0 0 0 END"), "22 is an invalid height for command BLOCK");
    EXPECT_EQ(Check("BLOCK 0 32 0 0 END"), "32 is an invalid width for command BLOCK");
    EXPECT_EQ(Check("BLOCK 0 0 32 0 END"), "32 is an invalid Column number for command BLOCK");
    EXPECT_EQ(Check("BLOCK 0 0 0 22 END"), "22 is an invalid row number for command BLOCK");
    EXPECT_EQ(Check("BLOCK -1 0 0 0 END"), "-1 is an invalid height for command BLOCK");
}

TEST(ValidateDrawString, CharactersAreLookedForInAnySetThenInTheirsThenInTheRange) {
    EXPECT_EQ(Check("TEXT 0 0 65 1 1 TEXT 0 0 164 1 1 TEXT 0 1 33 1 1 END"), "ok");
    EXPECT_EQ(Check("TEXT 0 0 200 1 1 END"), "200 is an invalid character number for command TEXT");
    EXPECT_EQ(Check("TEXT 0 0 33 1 1 END"), "33 is an invalid character number for set 0");
    EXPECT_EQ(Check("TEXT 0 0 15 1 1 END"),
              "Characters must be between 32 and 164 inclusive for command TEXT");
    EXPECT_EQ(Check("TEXT 0 1 15 1 1 END"), "15 is an invalid character number for set 1");
}

TEST(ValidateDrawString, ACharacterSetMustExist) {
    EXPECT_EQ(Check("TEXT 0 2 65 1 1 END"), "2 is an invalid number for Character Set");
}

TEST(ValidateDrawString, GosubNamesItsScaleInAnyCase) {
    EXPECT_EQ(Check("GOSUB sc=3 5 END"), "ok");
    EXPECT_EQ(Check("GOSUB SC=3 5 END"), "ok");
    EXPECT_EQ(Check("GOSUB Sc=0 5 END"), "ok");
    EXPECT_EQ(Check("GOSUB 0 5 END"), "First parameter for GOSUB must start with SC=");
    EXPECT_EQ(Check("GOSUB sc 5 END"), "First parameter for GOSUB must start with SC=");
    EXPECT_EQ(Check("GOSUB sc= 5 END"), "Non-numeric parameter for GOSUB command");
}

TEST(ValidateDrawString, GosubScalesByUpToSevenEighths) {
    EXPECT_EQ(Check("GOSUB sc=7 5 END"), "ok");
    EXPECT_EQ(Check("GOSUB sc=8 5 END"), "8 is an invalid scale (0-7)");
    EXPECT_EQ(Check("GOSUB sc=-1 5 END"), "-1 is an invalid scale (0-7)");
}

TEST(ValidateDrawString, ASubroutineCanNotScale) {
    EXPECT_EQ(Check("GOSUB sc=0 5 END", PictureKind::Subroutine), "ok");
    EXPECT_EQ(Check("GOSUB sc=3 5 END", PictureKind::Subroutine),
              "Cannot specifiy a scale>0 in a subroutine");
    EXPECT_EQ(Check("GOSUB sc=8 5 END", PictureKind::Subroutine), "8 is an invalid scale (0-7)");
}

TEST(ValidateDrawString, GosubNeedsAPictureAndALocationWillNotDo) {
    EXPECT_EQ(Check("GOSUB sc=0 2 END"), "2 is an invalid location");
}

TEST(ValidateDrawString, ColoursAreZeroToEightAndTheMessageNamesNoCommand) {
    EXPECT_EQ(Check("INK 8 PAPER 0 END"), "ok");
    EXPECT_EQ(Check("INK 9 END"), "9 is an invalid color for ");
    EXPECT_EQ(Check("PAPER -1 END"), "-1 is an invalid color for ");
}

TEST(ValidateDrawString, SwitchesAreZeroOrOneAndTheMessageNamesNoCommand) {
    EXPECT_EQ(Check("BRIGHT 1 FLASH 0 END"), "ok");
    EXPECT_EQ(Check("BRIGHT 2 END"), " must have a value of 0 or 1");
}

TEST(ValidateDrawString, TheMessagesOfColoursAndSwitchesNameTheActionThatAGameRanLast) {
    const PictureBook book = TestBook();
    EXPECT_EQ(ValidateDrawString(book, "INK 9 END", PictureKind::Room, "GOTO").fault,
              "9 is an invalid color for GOTO");
    EXPECT_EQ(ValidateDrawString(book, "FLASH 9 END", PictureKind::Room, "GOTO").fault,
              "GOTO must have a value of 0 or 1");
}

TEST(ValidateDrawString, ParametersOfAnUnknownCodeAreNotChecked) {
    PictureBook book = TestBook();
    book.commands.Add({399, "SPARKLE", 0, 1, {}, {"ZZ"}});
    EXPECT_TRUE(ValidateDrawString(book, "SPARKLE -31000 END", PictureKind::Room).Passed());
}

TEST(ValidateDrawString, NumbersOfParametersComeFromTheCatalogueAlone) {
    PictureBook book;
    book.commands.Add({304, "LINE", 0, 1, {}, {"CO"}});
    book.commands.Add({325, "END", 0, 0, {}, {}});
    EXPECT_TRUE(ValidateDrawString(book, "LINE 8 LINE 1 END", PictureKind::Room).Passed());
}

TEST(ValidateDrawString, TellsTheWordAtFaultAndThatOfItsCommand) {
    const PictureBook book = TestBook();
    const auto faultAt = [&](std::string_view text) {
        return ValidateDrawString(book, text, PictureKind::Room).faultAt;
    };
    EXPECT_EQ(ValidateDrawString(book, "INK 2 LINE 0 300 5 END", PictureKind::Room).faultyCommand, 2U);
    EXPECT_EQ(ValidateDrawString(book, "INK 2", PictureKind::Room).faultyCommand, 2U);
    EXPECT_EQ(faultAt("INK 2 LINE 0 300 5 END"), 4U);
    EXPECT_EQ(faultAt("INK 2 FOO END"), 2U);
    EXPECT_EQ(faultAt("INK 2 LINE 0 5 END"), 5U);
    EXPECT_EQ(faultAt("INK 2 GOSUB 0 5 END"), 3U);
    EXPECT_EQ(faultAt("INK 2"), 2U);
    EXPECT_EQ(faultAt(""), 0U);
}

}  // namespace
}  // namespace fabula::pictures
