#include "interchange/job_status.h"

#include <vector>

#include <gtest/gtest.h>

namespace fabula::interchange {
namespace {

class Recorder final : public JobObserver {
  public:
    void StatusAdded(std::string_view text) override { shown += text; }
    void StatusCleared() override { shown.clear(); }
    void Progress(std::int64_t value, std::int64_t maximum) override { bar.push_back({value, maximum}); }
    bool CancelWanted() override { return cancel; }

    std::string shown;
    std::vector<std::pair<std::int64_t, std::int64_t>> bar;
    bool cancel = false;
};

using Bar = std::vector<std::pair<std::int64_t, std::int64_t>>;

TEST(JobStatus, AddsTextWithAndWithoutALineEnd) {
    Recorder recorder;
    JobStatus status(recorder);
    status.AddToStatus("a");
    status.AddToStatusCR("b");
    status.AddToStatus("c");
    EXPECT_EQ(status.Text(), "ab\nc");
    EXPECT_EQ(recorder.shown, "ab\nc");
}

TEST(JobStatus, TheTextClsClears) {
    Recorder recorder;
    JobStatus status(recorder);
    status.AddToStatus("a");
    status.AddToStatus("Cls");
    EXPECT_EQ(status.Text(), "");
    EXPECT_EQ(recorder.shown, "");
}

TEST(JobStatus, AFaultTellsItsPlace) {
    Recorder recorder;
    JobStatus status(recorder);
    status.AddFault("ERROR: Duplicate Word.", {"/games/old/game.sce", 12, "LAMP 5 noun"});
    EXPECT_EQ(status.Text(), "ERROR: Duplicate Word.\n    game.sce:12: LAMP 5 noun\n");
    EXPECT_EQ(status.Faults(), 1);
}

TEST(JobStatus, OnlyTheHeadOfALongLineIsShown) {
    Recorder recorder;
    JobStatus status(recorder);
    status.AddFault("Bad", {"a.sce", 1, std::string(1000, 'x')});
    EXPECT_EQ(status.Text(), "Bad\n    a.sce:1: " + std::string(200, 'x') + "\n");
}

TEST(JobStatus, TheThousandthFaultEndsTheJob) {
    Recorder recorder;
    JobStatus status(recorder);
    for (int i = 1; i < 1000; ++i)
        status.AddFault("Bad", {"a.sce", i, ""});
    EXPECT_THROW(status.AddFault("Bad", {"a.sce", 1000, ""}), TooManyFaults);
}

TEST(JobStatus, MovesTheBar) {
    Recorder recorder;
    JobStatus status(recorder);
    status.StartBar(10);
    status.IncBar(3);
    status.SetBar(7);
    EXPECT_EQ(recorder.bar, (Bar{{0, 10}, {3, 10}, {7, 10}}));
}

TEST(JobStatus, ACancelledJobEndsAtItsNextStep) {
    Recorder recorder;
    JobStatus status(recorder);
    recorder.cancel = true;
    EXPECT_THROW(status.IncBar(1), JobCancelled);
}

}  // namespace
}  // namespace fabula::interchange
