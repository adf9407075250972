// The end of a trace, when the window of a test run closes.

#include <QApplication>
#include <chrono>

#include <gtest/gtest.h>

#include "ide/opened_window.h"
#include "ide/window/trial_run.h"
#include "support/child_process.h"
#include "support/raw_database.h"

namespace fabula::test {
namespace {

/// Runs a test of a game with trace from its start.
void Trace(OpenedWindow& opened) {
    opened.Open(GameBuilder().Entry(1, "_", "_", "SET 200"));
    opened.Action("Trace").trigger();
    opened.dialogs.AnswerNext(true);
    opened.Action("Run").trigger();
    opened.timers.Advance(std::chrono::seconds(1));
}

/// Closes the window of the test; the boxes that this brought.
std::vector<std::string> BoxesOfClosing(const OpenedWindow& opened) {
    const std::size_t before = opened.dialogs.Boxes().size();
    opened.Window().Test()->Window().close();
    QApplication::processEvents();
    std::vector<std::string> texts;
    for (std::size_t i = before; i < opened.dialogs.Boxes().size(); ++i)
        texts.push_back(opened.dialogs.Boxes()[i].text);
    return texts;
}

TEST(TraceEnd, IsWrittenWhenTheWindowCloses) {
    OpenedWindow opened;
    Trace(opened);
    const std::filesystem::path file = opened.Window().Test()->TraceFile();
    EXPECT_EQ(BoxesOfClosing(opened), std::vector<std::string>{});
    EXPECT_NE(ReadBytes(file).find("set 200 \n"), std::string::npos);
}

TEST(TraceEnd, ThatDoesNotFitTheDiskIsTold) {
    OpenedWindow opened;
    Trace(opened);
    const std::filesystem::path file = opened.Window().Test()->TraceFile();
    const std::vector<std::string> expected = {"Could not write all of the trace " + file.string() + "."};
    EXPECT_EQ(RunInChild([&] {
                  LimitFileSize(static_cast<long>(std::filesystem::file_size(file)));
                  return BoxesOfClosing(opened) == expected ? 0 : 1;
              }),
              0);
    EXPECT_EQ(BoxesOfClosing(opened), std::vector<std::string>{});
}

}  // namespace
}  // namespace fabula::test
