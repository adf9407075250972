#pragma once

#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "authoring/desk.h"
#include "authoring/screens/location_screen.h"

namespace fabula::authoring {

/// Locations 0 to 5 and 7, and words of every sort.
class PlacesAndWords : public testing::Test {
  protected:
    PlacesAndWords() {
        desk_.Clear(store::TableNum::Locations);
        for (const int number : {0, 1, 2, 3, 4, 5, 7})
            AddLocation(number);
        desk_.AddWord(100, "NORTH", 2, 2);
        desk_.AddWord(101, "NORD", 2, 2);
        desk_.AddWord(102, "CLIMB", 30, 0);
        desk_.AddWord(103, "LAMP", 20, 2);
        desk_.AddWord(104, "WAND", 30, 2);
        desk_.AddWord(105, "RED", 60, 3);
        desk_.AddWord(106, "S\u00DCD", 3, 2);
        desk_.AddWord(107, "LAST", 19, 2);
    }

    void AddLocation(int number) {
        desk_.Add(store::TableNum::Locations, {{"locnum", std::int64_t{number}},
                                               {"locdesc", "Long text of " + std::to_string(number) + "."},
                                               {"locshortdesc", "Room " + std::to_string(number)},
                                               {"numexits", std::int64_t{0}},
                                               {"exits", std::string()},
                                               {"numericexits", std::string()},
                                               {"picloc", std::string()},
                                               {"pickey", std::string()},
                                               {"oldpicloc", std::string(" ")}});
    }

    void AddNamed(int number, const char* name) {
        AddLocation(number);
        store::Cursor& record = desk_.Adventure().OpenTable(store::TableNum::Locations, "*",
                                                            "locnum=" + std::to_string(number));
        record.SetField("locshortdesc", std::string(name));
        record.Update();
    }

    LocationScreen Open(int number) { return {desk_.context, {number, false}}; }
    LocationScreen OpenNew(int number) { return {desk_.context, {number, true}}; }

    /// The fields of one location, between bars.
    std::string Stored(int number, std::string_view fields) {
        const auto rows =
            desk_.Rows(store::TableNum::Locations, fields, "locnum=" + std::to_string(number));
        return rows.size() == 1 ? rows.front() : std::to_string(rows.size()) + " records";
    }

    test::Desk desk_;
};

}  // namespace fabula::authoring
