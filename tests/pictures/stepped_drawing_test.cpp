#include "pictures/stepped_drawing.h"

#include <random>

#include <gtest/gtest.h>

#include "drawstring_maker.h"
#include "pictures/drawstring.h"
#include "platform/error.h"
#include "test_book.h"

namespace fabula::pictures {
namespace {

using StepWords = std::vector<std::string>;

/// The places where commands begin, the last word included.
std::vector<std::size_t> CommandStarts(const PictureBook& book, const StepWords& words) {
    std::vector<std::size_t> starts;
    for (std::size_t i = 0; i < words.size();) {
        starts.push_back(i);
        i += 1 + static_cast<std::size_t>(book.commands.Find(words[i])->drawnParameters);
    }
    return starts;
}

/// What drawing the words in front of `position` alone gives.
Canvas DrawnUpTo(const PictureBook& book, const StepWords& words, std::size_t position) {
    Drawing drawing(book);
    drawing.CommDraw(Picture{}, JoinWords(StepWords(
                                    words.begin(), words.begin() + static_cast<std::ptrdiff_t>(position))));
    return drawing.Planes();
}

void ExpectSame(const Canvas& a, const Canvas& b) {
    EXPECT_TRUE(SamePixels(a.colour, b.colour));
    EXPECT_TRUE(SamePixels(a.pixel, b.pixel));
}

/// A book in which pictures 5 to 7 can be called, and a long random drawstring.
class SteppedDrawingTest : public testing::Test {
  protected:
    SteppedDrawingTest() {
        for (const int number : {5, 6, 7})
            AddPicture(book_, number, "LINE 0 9 4 QFILL 2 1 END");
        words_ = DrawstringWords(DrawstringMaker(31).Make(book_.commands, 300));
        starts_ = CommandStarts(book_, words_);
        stepped_.Start(Picture{});
    }

    PictureBook book_ = TestBook();
    StepWords words_;
    std::vector<std::size_t> starts_;
    SteppedDrawing stepped_{book_};
};

TEST_F(SteppedDrawingTest, SteppedToTheEndItHasDrawnThePicture) {
    for (const std::size_t start : starts_)
        stepped_.GoTo(words_, start);
    ExpectSame(stepped_.Planes(), Draw(book_, JoinWords(words_)));
}

TEST_F(SteppedDrawingTest, AnyPlaceReachedForwardsOrBackwardsHasWhatIsDrawnUpToThere) {
    std::mt19937 random(5);
    for (int i = 0; i < 60; ++i) {
        const std::size_t start =
            starts_[std::uniform_int_distribution<std::size_t>(0, starts_.size() - 1)(random)];
        stepped_.GoTo(words_, start);
        ASSERT_EQ(stepped_.Position(), start);
        ExpectSame(stepped_.Planes(), DrawnUpTo(book_, words_, start));
    }
}

TEST_F(SteppedDrawingTest, AfterAChangeInTheMiddleTheNewWordsCount) {
    stepped_.GoTo(words_, words_.size() - 1);
    const std::size_t middle = starts_[starts_.size() / 2];
    const StepWords inserted = {"INK", "3", "BLOCK", "20", "30", "0", "0", "FILL", "1", "1"};
    words_.insert(words_.begin() + static_cast<std::ptrdiff_t>(middle), inserted.begin(), inserted.end());
    stepped_.Forget(middle);
    stepped_.GoTo(words_, words_.size() - 1);
    ExpectSame(stepped_.Planes(), Draw(book_, JoinWords(words_)));
}

TEST_F(SteppedDrawingTest, PlaceBehindAParameterThatHasChangedIsDrawnAnewWhenItIsSteppedBackTo) {
    StepWords words;
    for (int i = 0; i < SteppedDrawing::kInterval; ++i)
        words.insert(words.end(), {"RPLOT", "0", "1", "0"});
    words.push_back("END");
    const std::size_t end = words.size() - 1;
    stepped_.GoTo(words, end);
    words[end - 1] = "1";
    stepped_.Forget(end - 1);
    stepped_.GoTo(words, words.size());
    stepped_.GoTo(words, end);
    ExpectSame(stepped_.Planes(), DrawnUpTo(book_, words, end));
}

TEST_F(SteppedDrawingTest, ADrawstringWithMoreCommandsThanItKeepsSnapshotsOfIsSteppedBackAllTheSame) {
    const int many = static_cast<int>(SteppedDrawing::kMostSnapshots) * SteppedDrawing::kInterval * 3;
    StepWords words;
    for (int i = 0; i < many; ++i) {
        words.push_back("RPLOT");
        words.push_back("0");
        words.push_back(i % 3 == 0 ? "0" : "1");
        words.push_back(i % 7 == 0 ? "1" : "0");
    }
    words.push_back("END");
    stepped_.GoTo(words, words.size() - 1);
    for (const std::size_t command : {many - 1, many - 17, many / 2, 5}) {
        stepped_.GoTo(words, 4 * command);
        ExpectSame(stepped_.Planes(), DrawnUpTo(book_, words, 4 * command));
    }
}

TEST_F(SteppedDrawingTest, ACommandThatCannotBeDrawnLeavesItStandingBeforeIt) {
    AddPicture(book_, 5, "LINE 0 5 5 GOSUB sc=0 5 END");
    const StepWords words = DrawstringWords("INK 2 ABSMOVE 9 9 GOSUB sc=0 5 END");
    EXPECT_THROW(stepped_.GoTo(words, 8), Error);
    EXPECT_EQ(stepped_.Position(), 5U);
    ExpectSame(stepped_.Planes(), DrawnUpTo(book_, words, 5));
}

TEST_F(SteppedDrawingTest, StartingAnewTakesFreshAttributes) {
    stepped_.GoTo(DrawstringWords("INK 2 BRIGHT 1 PLOT 11 5 5 END"), 8);
    stepped_.Start(Picture{});
    EXPECT_EQ(stepped_.State().bright, 0);
    EXPECT_FALSE(stepped_.State().inverse);
    EXPECT_FALSE(stepped_.State().over);
    EXPECT_EQ(CountColoured(stepped_.Planes()), 0);
}

TEST_F(SteppedDrawingTest, StepsOfOneDrawShareItsMostCommands) {
    PictureBook book = TestBook();
    std::string many;
    for (int i = 0; i < 30'000; ++i)
        many += "RPLOT 0 1 0 ";
    AddPicture(book, 5, many + "END");
    SteppedDrawing stepped(book);
    stepped.Start(Picture{});
    const StepWords words = DrawstringWords("GOSUB sc=0 5 GOSUB sc=0 5 END");
    stepped.GoTo(words, 3);
    EXPECT_THROW(stepped.GoTo(words, 6), Error);
    EXPECT_EQ(stepped.Position(), 3U);
}

}  // namespace
}  // namespace fabula::pictures
