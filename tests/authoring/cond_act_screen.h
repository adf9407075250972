#pragma once

#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "authoring/desk.h"
#include "authoring/screens/process_entry_screen.h"

namespace fabula::authoring {

inline const std::pair<std::string, int> kAny{"_", 255};

inline ScreenRequest New(const test::Desk& desk) {
    return {.screen = Screen::ProcessEntry,
            .key = {.key = desk.context.nextEntry, .isNew = true},
            .table = store::TableNum::ProcessTables};
}

inline ScreenRequest Old(int canum) {
    return {.screen = Screen::ProcessEntry, .key = {.key = canum}, .table = store::TableNum::ProcessTables};
}

/// A game of five locations (0 to 4), three messages, two objects (1 a container) and a few words.
class CondActScreen {
  public:
    explicit CondActScreen(store::AdventureKind kind = store::AdventureKind::Fabula) : desk(kind) {
        desk.FillUp(store::TableNum::Locations, 5);
        desk.FillUp(store::TableNum::Messages, 3);
        desk.FillUp(store::TableNum::Objects, 2);
        desk.AddWord(500, "GET", 20, 0);
        desk.AddWord(501, "TAKE", 20, 0);
        desk.AddWord(502, "LAMP", 50, 2);
        desk.AddWord(503, "LIGHT", 30, 0);
        desk.AddWord(504, "LIGHT", 80, 2);
        ReadNextKeys(desk.context);
    }

    std::vector<std::string> Entries() {
        return desk.Rows(store::TableNum::ProcessTables,
                         "canum, estype, w1, w1num, w2, w2num, condacts, numericcondacts, numcas", "",
                         "canum");
    }
    std::string Box() const { return desk.dialogs.Boxes().empty() ? "" : desk.dialogs.Boxes().back().text; }
    std::string Title() const { return desk.dialogs.Boxes().back().title; }

    /// What the box says when a line is left; "" for none.
    std::string Left(const std::string& line) {
        ProcessEntryScreen screen(desk.context, New(desk));
        screen.line = line;
        const std::size_t before = desk.dialogs.Boxes().size();
        const bool valid = screen.LeaveLine();
        EXPECT_EQ(valid, desk.dialogs.Boxes().size() == before);
        if (valid) return "";
        EXPECT_EQ(screen.Refused(), "line");
        EXPECT_EQ(Title(), "Error");
        return Box();
    }

    test::Desk desk;
};

}  // namespace fabula::authoring
