#include "interchange/shared/job_status.h"

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
    status.AddFault("ERROR: Duplicate Word.", {"old games/game.sce", 12, "LAMP 5 noun", 6});
    EXPECT_EQ(status.Text(), "old games/game.sce:12:6: fault: ERROR: Duplicate Word.\n");
    EXPECT_EQ(status.Faults(), 1);
}

TEST(JobStatus, AFaultTellsItsEntry) {
    Recorder recorder;
    JobStatus status(recorder);
    status.AddFault("Invalid number for parameter 1", {"a.sce", 36, "", 14}, "GET LAMP");
    EXPECT_EQ(status.Text(), "a.sce:36:14: fault: GET LAMP: Invalid number for parameter 1\n");
}

TEST(JobStatus, AFaultIsOneLine) {
    Recorder recorder;
    JobStatus status(recorder);
    status.AddFault("ERROR: Duplicate Word.\nWord LAMP deleted.", {"a.sce", 1, ""});
    EXPECT_EQ(status.Text(), "a.sce:1:1: fault: ERROR: Duplicate Word. Word LAMP deleted.\n");
}

TEST(JobStatus, AFaultWithoutASourceIsToldInItsOwnWords) {
    Recorder recorder;
    JobStatus status(recorder);
    status.Report({"Invalid location", {}, "Object 3"});
    EXPECT_EQ(status.Text(), "Object 3: Invalid location\n");
    EXPECT_EQ(status.AllFaults().at(0).entry, "Object 3");
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
