// A writer is killed at any moment. What it had committed is there afterwards, and nothing of what it had
// begun.

#include <random>

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include "store/adventure.h"
#include "support/child_process.h"
#include "support/games/template_adventure.h"
#include "support/raw_database.h"
#include "support/trials.h"

namespace fabula::store {
namespace {

constexpr int kKills = 50;
/// How many of the latest records the writer keeps.
constexpr int kKept = 20;

/// One step of the writer, whole or not at all: record `number` in two tables, and the oldest gone from
/// both.
void WriteStep(Adventure& adventure, int number) {
    Transaction step(adventure);
    for (const auto& [table, key, text] :
         {std::tuple(TableNum::Messages, "msgnum", "msgmsg"), std::tuple(TableNum::Sounds, "sndnum", "")}) {
        Cursor& records = adventure.OpenTable(table, "*", std::string(key) + "=-1");
        records.AddNew();
        records.SetField(key, number);
        if (*text) records.SetField(text, std::string(static_cast<std::size_t>(number) * 977 % 30000, 'x'));
        records.Update();
        adventure.DeleteFrom(table, std::string(key) + "<=" + std::to_string(number - kKept));
    }
    step.Commit();
}

/// Writes without end. Tells of being ready, and then of every committed step, by one byte.
int WriteForever(const std::filesystem::path& file, int number, int report) {
    const auto adventure = Adventure::Open(file);
    while (write(report, "+", 1) == 1)
        WriteStep(*adventure, ++number);
    return 1;
}

/// When a writer is killed: some time after it has told of some steps.
struct Moment {
    int steps;
    unsigned microseconds;
};

/// Lets a writer go on from `number` and kills it; how many steps it told of.
int StepsUntilKilled(const std::filesystem::path& file, int number, Moment moment) {
    int ends[2];
    if (pipe(ends) != 0) throw std::runtime_error("no pipe");
    const pid_t writer = test::StartChild([&] { return WriteForever(file, number, ends[1]); });
    close(ends[1]);
    char byte = 0;
    int told = -1;  // the first byte tells of no step
    while (told < moment.steps && read(ends[0], &byte, 1) == 1)
        ++told;
    usleep(moment.microseconds);
    kill(writer, SIGKILL);
    waitpid(writer, nullptr, 0);
    while (read(ends[0], &byte, 1) == 1)
        ++told;
    close(ends[0]);
    return told;
}

std::vector<std::int64_t> Numbers(Adventure& adventure, TableNum table, const char* key) {
    std::vector<std::int64_t> numbers;
    for (Cursor& records = adventure.OpenTable(table, "*"); !records.Eof(); records.MoveNext())
        numbers.push_back(records.Number(key));
    return numbers;
}

TEST(KilledWriter, LeavesEveryCommittedStepAndNoHalfOne) {
    const test::TempFolder folder;
    const auto file = folder / "game.fbd";
    test::MakeAdventure(file);
    std::mt19937 random(1);
    int number = 0;
    int journalsLeft = 0;
    const int kills = test::Trials("FABULA_KILLS", kKills);
    for (int round = 0; round < kills; ++round) {
        const Moment moment{static_cast<int>(random() % 4), static_cast<unsigned>(random() % 6000)};
        const int told = number + StepsUntilKilled(file, number, moment);
        journalsLeft += std::filesystem::exists(file.string() + "-journal");

        const auto adventure = Adventure::Open(file);
        const auto messages = Numbers(*adventure, TableNum::Messages, "msgnum");
        ASSERT_EQ(messages, Numbers(*adventure, TableNum::Sounds, "sndnum"));
        number = messages.empty() ? 0 : static_cast<int>(messages.back());
        // The last step may have been committed before the writer could tell of it.
        ASSERT_TRUE(number == told || number == told + 1) << number << " after " << told;
        ASSERT_EQ(messages.size(), static_cast<std::size_t>(std::min(number, kKept)));
        for (std::size_t i = 1; i < messages.size(); ++i)
            ASSERT_EQ(messages[i], messages[i - 1] + 1);
        ASSERT_EQ(test::RawDatabase(file).Ask("PRAGMA integrity_check"), "ok");
    }
    EXPECT_GT(journalsLeft, 0) << "no kill fell into a step, so the test tells little";
}

TEST(KilledWriter, LeavesTheOldCopyOrTheNewOne) {
    const test::TempFolder folder;
    const auto source = folder / "game.fbd";
    const auto target = folder / "copy.fbd";
    test::MakeAdventure(source);
    test::MakeAdventure(target);
    std::mt19937 random(2);
    for (int round = 0; round < 30; ++round) {
        const pid_t writer = test::StartChild([&] {
            const auto adventure = Adventure::Open(source);
            for (;;)
                adventure->SaveCopy(target);
            return 0;
        });
        usleep(static_cast<unsigned>(random() % 25000));
        kill(writer, SIGKILL);
        waitpid(writer, nullptr, 0);
        EXPECT_GT(Adventure::Open(target)->OpenTable(TableNum::Flags, "*").RecordCount(), 0);
    }
}

}  // namespace
}  // namespace fabula::store
