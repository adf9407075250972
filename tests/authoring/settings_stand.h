#pragma once

#include <cstdint>
#include <fstream>
#include <string>
#include <string_view>
#include <utility>

#include <gtest/gtest.h>

#include "authoring/desk.h"
#include "authoring/settings/settings_screen.h"

namespace fabula::authoring {

/// The settings of a fresh adventure.
class SettingsScreenTest : public testing::Test {
  protected:
    SettingsScreen Open() { return SettingsScreen(desk_.context, {"Grand synthesizer", "USB keys"}); }

    void Set(std::string_view field, text::Value value) {
        store::Cursor& record = desk_.Adventure().OpenTable(store::TableNum::Adventure, "def");
        record.SetField(field, std::move(value));
        record.Update();
        desk_.Adventure().ReadSettings();
    }
    /// The settings' fields, between bars.
    std::string Stored(std::string_view fields) {
        return desk_.Rows(store::TableNum::Adventure, fields).at(0);
    }

    void AddSet(int number, const std::string& name) {
        desk_.Add(store::TableNum::Characters, {{"charkey", std::int64_t{number * 1000 + 70}},
                                                {"charset", "SET 000" + std::to_string(number)},
                                                {"charsetnum", std::int64_t{number}},
                                                {"charsetname", name},
                                                {"charnum", std::int64_t{70}},
                                                {"charvals", std::string("0 0 0 0 0 0 0 0")}});
    }
    void MakeFile(const std::string& name) { std::ofstream(desk_.Adventure().GameDir() / name) << "bytes"; }

    /// A box that was shown, title and text; "" when there was none.
    std::string Box() const {
        if (desk_.dialogs.Boxes().empty()) return "";
        return desk_.dialogs.Boxes().back().title + ": " + desk_.dialogs.Boxes().back().text;
    }

    test::Desk desk_;
};

class MarloSettingsScreenTest : public SettingsScreenTest {
  protected:
    MarloSettingsScreenTest() { Set("adventype", std::string("Marlo")); }
};

}  // namespace fabula::authoring
