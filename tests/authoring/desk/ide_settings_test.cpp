#include "authoring/desk/ide_settings.h"

#include <gtest/gtest.h>

namespace fabula::authoring {
namespace {

using store::TableNum;

TEST(LastView, IsKeptInTheSettingsOfTheStart) {
    platform::MemorySettings settings;
    WriteLastView(settings, {{TableNum::ProcessTables, 2}, 17});
    EXPECT_EQ(settings.Get("Startup", "CurrentSet"), "6");
    EXPECT_EQ(settings.Get("Startup", "CurrentESNum"), "2");
    const LastView last = ReadLastView(settings);
    EXPECT_EQ(last.view, (TableView{TableNum::ProcessTables, 2}));
    EXPECT_EQ(last.key, 17);
}

TEST(LastView, OfAnotherTableLeavesTheProcessAsItWas) {
    platform::MemorySettings settings;
    WriteLastView(settings, {{TableNum::ProcessTables, 1}, 0});
    WriteLastView(settings, {{TableNum::Messages}, 4});
    EXPECT_EQ(settings.Get("Startup", "CurrentSet"), "2");
    EXPECT_EQ(settings.Get("Startup", "CurrentESNum"), "1");
    EXPECT_EQ(ReadLastView(settings).view, TableView{TableNum::Messages});
}

TEST(LastView, WithoutSenseIsTheFirstProcess) {
    for (const char* table : {"", "0", "13", "16", "-1", "99", "x", "4294967297000"}) {
        platform::MemorySettings settings;
        settings.Set("Startup", "CurrentSet", table);
        EXPECT_EQ(ReadLastView(settings).view, (TableView{TableNum::ProcessTables, 0})) << table;
    }
    platform::MemorySettings settings;
    settings.Set("Startup", "CurrentSet", "6");
    settings.Set("Startup", "CurrentESNum", "99");
    EXPECT_EQ(ReadLastView(settings).view, (TableView{TableNum::ProcessTables, kOtherProcesses}));
}

TEST(RecentFilesOfTheSettings, StandByPositionInASectionOfTheirOwn) {
    platform::MemorySettings settings;
    platform::RecentFiles recent;
    recent.AddMRUItem("/games/one.fbd");
    recent.AddMRUItem("/games/two.fbd");
    WriteRecentFiles(settings, recent);
    EXPECT_EQ(settings.Get("MRUFiles", "1"), "/games/two.fbd");
    EXPECT_EQ(settings.Get("MRUFiles", "2"), "/games/one.fbd");
    EXPECT_EQ(ReadRecentFiles(settings).Files(), recent.Files());
}

TEST(RecentFilesOfTheSettings, AreRewrittenAsAWhole) {
    platform::MemorySettings settings;
    platform::RecentFiles recent;
    recent.AddMRUItem("/games/one.fbd");
    recent.AddMRUItem("/games/two.fbd");
    WriteRecentFiles(settings, recent);
    recent.Remove("/games/one.fbd");
    WriteRecentFiles(settings, recent);
    EXPECT_EQ(settings.Get("MRUFiles", "2"), "");
}

TEST(TraceModeOfTheSettings, IsOffUntilItIsSwitchedOn) {
    platform::MemorySettings settings;
    EXPECT_FALSE(TraceMode(settings));
    SetTraceMode(settings, true);
    EXPECT_TRUE(TraceMode(settings));
    SetTraceMode(settings, false);
    EXPECT_FALSE(TraceMode(settings));
}

}  // namespace
}  // namespace fabula::authoring
