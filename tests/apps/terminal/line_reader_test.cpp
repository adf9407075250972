#include "terminal/line_reader.h"

#include <fstream>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include "platform/error.h"
#include "support/temp_folder.h"

namespace fabula::terminal {
namespace {

/// A pipe that a test writes into.
class Pipe {
  public:
    Pipe() {
        if (pipe2(ends_, O_CLOEXEC) != 0) throw std::runtime_error("could not make a pipe for a test");
    }
    ~Pipe() {
        close(ends_[0]);
        Close();
    }
    int ReadEnd() const { return ends_[0]; }
    void Write(std::string_view text) {
        if (write(ends_[1], text.data(), text.size()) != static_cast<ssize_t>(text.size()))
            throw std::runtime_error("could not write into a pipe");
    }
    void Close() {
        if (open_) close(ends_[1]);
        open_ = false;
    }

  private:
    int ends_[2] = {};
    bool open_ = true;
};

TEST(LineReader, GivesEachLineWithoutItsEnd) {
    Pipe pipe;
    pipe.Write("one\ntwo\r\n\n");
    LineReader reader(pipe.ReadEnd());
    EXPECT_EQ(reader.Read({}).text, "one");
    EXPECT_EQ(reader.Read({}).text, "two");
    EXPECT_EQ(reader.Read({}).text, "");
}

TEST(LineReader, ALineMayComeInPieces) {
    Pipe pipe;
    pipe.Write("ta");
    LineReader reader(pipe.ReadEnd());
    EXPECT_EQ(reader.Read({.timeOut = std::chrono::milliseconds(0)}).kind, TypedLine::Kind::TimeOut);
    pipe.Write("ke\n");
    EXPECT_EQ(reader.Read({}).text, "take");
}

TEST(LineReader, TheLastLineNeedsNoEnd) {
    Pipe pipe;
    pipe.Write("quit");
    pipe.Close();
    LineReader reader(pipe.ReadEnd());
    EXPECT_EQ(reader.Read({}).text, "quit");
    EXPECT_EQ(reader.Read({}).kind, TypedLine::Kind::End);
    EXPECT_EQ(reader.Read({}).kind, TypedLine::Kind::End);
}

TEST(LineReader, OfALongLineTheRestIsLeftAway) {
    const test::TempFolder folder;
    std::ofstream(folder / "lines") << std::string(kLongestTypedLine + 5000, 'x') << "\nnext\n";
    LineReader reader(folder / "lines");
    EXPECT_EQ(reader.Read({}).text, std::string(kLongestTypedLine, 'x'));
    EXPECT_EQ(reader.Read({}).text, "next");
}

TEST(LineReader, KnowsWhetherAWholeLineHasCome) {
    Pipe pipe;
    pipe.Write("one\ntwo\nthr");
    LineReader reader(pipe.ReadEnd());
    EXPECT_FALSE(reader.HasLine());  // nothing was read yet
    EXPECT_EQ(reader.Read({}).text, "one");
    EXPECT_TRUE(reader.HasLine());
    EXPECT_EQ(reader.Read({}).text, "two");
    EXPECT_FALSE(reader.HasLine());
    pipe.Write("ee\n");
    EXPECT_EQ(reader.Read({}).text, "three");
}

TEST(LineReader, AFileThatIsNotThereIsToldSo) {
    EXPECT_THROW(LineReader(std::filesystem::path("/nowhere/lines")), Error);
}

TEST(LineReader, OnlyTheFirstLineMayBeginWithAByteOrderMark) {
    Pipe pipe;
    pipe.Write("\xEF\xBB\xBFone\n\xEF\xBB\xBFtwo\n");
    LineReader reader(pipe.ReadEnd());
    EXPECT_EQ(reader.Read({}).text, "one");
    EXPECT_EQ(reader.Read({}).text, "\xEF\xBB\xBFtwo");
}

TEST(LineReader, WhatCanNotBeReadIsAnErrorAndNoEnd) {
    const int onlyForWriting = open("/dev/null", O_WRONLY | O_CLOEXEC);
    LineReader reader(onlyForWriting);
    EXPECT_THROW(reader.Read({}), Error);
    close(onlyForWriting);
}

TEST(LineReader, ADeviceIsRefused) {
    EXPECT_THROW(LineReader(std::filesystem::path("/dev/zero")), Error);
}

TEST(LineReader, ASequenceGivesTheLinesOfTheFirstThenThoseOfTheSecond) {
    Pipe first;
    first.Write("one\n");
    first.Close();
    Pipe second;
    second.Write("two\n");
    second.Close();
    LineSequence both(std::make_unique<LineReader>(first.ReadEnd()),
                      std::make_unique<LineReader>(second.ReadEnd()));
    EXPECT_EQ(both.Read({}).text, "one");
    EXPECT_EQ(both.Read({}).text, "two");
    EXPECT_EQ(both.Read({}).kind, TypedLine::Kind::End);
}

}  // namespace
}  // namespace fabula::terminal
