#include "terminal/screen.h"

#include <deque>
#include <sstream>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include "captured_output.h"
#include "platform/error.h"

namespace fabula::terminal {
namespace {

/// Lines that stand ready, as of a file.
class ReadyLines final : public LineSource {
  public:
    explicit ReadyLines(std::deque<std::string> lines) : lines_(std::move(lines)) {}

    TypedLine Read(const Question&) override {
        if (lines_.empty()) return {};
        const std::string line = lines_.front();
        lines_.pop_front();
        return {TypedLine::Kind::Line, line};
    }

  private:
    std::deque<std::string> lines_;
};

class ScreenTest : public testing::Test {
  protected:
    Screen Made(const ScreenStyle& style, engine::Transcript* transcript = nullptr) {
        return Screen(style, *output_, lines_, transcript);
    }

    test::CapturedOutput output_;
    ReadyLines lines_{{"look\x1B[2J"}};
    std::ostringstream text_;
    engine::Transcript transcript_{text_};
};

TEST_F(ScreenTest, ClearingWhatNobodyHasWrittenOnWritesNothing) {
    Screen screen = Made({});
    screen.Clear();
    EXPECT_EQ(output_.Text(), "");
}

TEST_F(ScreenTest, PromptBeforeALineThatMustBeWaitedForIsOutBeforeItIsRead) {
    Screen screen = Made({});
    screen.ReadLine(Screen::Prompt::Own, false, std::nullopt);
    EXPECT_EQ(output_.Flushed(), "\n>");
}

TEST_F(ScreenTest, LinesThatAreShownAndPromptsAreMadeSafe) {
    Screen screen = Made({.interactive = true, .width = 40});
    screen.WritePrompt("\x1B>", {});
    screen.ReadLine(Screen::Prompt::Own, false, std::nullopt);
    screen.Played("north\x1B");
    EXPECT_EQ(output_.Text(), "\uFFFD>look\uFFFD[2J\nnorth\uFFFD\n");
}

TEST_F(ScreenTest, TypedLinesOfATranscriptAreMadeSafe) {
    Screen screen = Made({}, &transcript_);
    screen.ReadLine(Screen::Prompt::Own, false, std::nullopt);
    EXPECT_EQ(text_.str(), ">look\uFFFD[2J\n");
}

TEST_F(ScreenTest, LastLineOfATranscriptIsEnded) {
    Screen screen = Made({}, &transcript_);
    screen.Write("The end", {});
    screen.Finish();
    EXPECT_EQ(text_.str(), "The end\n");
}

TEST_F(ScreenTest, TranscriptThatFailsIsAnErrorThoughTheOutputIsWell) {
    Screen screen = Made({}, &transcript_);
    screen.Check();
    text_.setstate(std::ios::badbit);
    EXPECT_THROW(screen.Check(), Error);
}

TEST(Screen, OutputThatFailsIsAnError) {
    const int full = open("/dev/full", O_WRONLY | O_CLOEXEC);
    Output output(full);
    ReadyLines lines({});
    Screen screen({}, output, lines, nullptr);
    screen.Say("Hello");
    screen.Finish();
    EXPECT_THROW(screen.Check(), Error);
    close(full);
}

}  // namespace
}  // namespace fabula::terminal
