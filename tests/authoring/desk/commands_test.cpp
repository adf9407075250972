#include "authoring/desk/commands.h"

#include <algorithm>
#include <set>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace fabula::authoring {
namespace {

TEST(Commands, HaveTheKeysOfTheToolBar) {
    for (const char* key :
         {"AddNewBefore", "BatExp", "BatImp", "Decomp",  "Delete",  "Edit",   "Exit", "Export",
          "Find",         "In",     "Import", "LoadSet", "NewAdv",  "NewTab", "Open", "Package",
          "Preview",      "Print",  "Run",    "SaveSet", "TabSort", "Verify"}) {
        EXPECT_EQ(std::ranges::count(AllCommands(), key, &CommandEntry::key), 1) << key;
    }
}

TEST(Commands, StandOnceInTheTableWithAKeyOfTheirOwn) {
    std::set<Command> ids;
    std::set<std::string_view> keys;
    for (const CommandEntry& entry : AllCommands()) {
        EXPECT_TRUE(ids.insert(entry.id).second) << entry.key;
        EXPECT_TRUE(keys.insert(entry.key).second) << entry.key;
        EXPECT_EQ(&EntryOf(entry.id), &entry);
    }
    EXPECT_EQ(ids.size(), static_cast<std::size_t>(Command::About) + 1);
}

TEST(Commands, ShareNoShortcut) {
    std::set<std::string_view> shortcuts;
    for (const CommandEntry& entry : AllCommands()) {
        if (entry.shortcut.empty()) continue;
        EXPECT_TRUE(shortcuts.insert(entry.shortcut).second) << entry.shortcut;
    }
}

TEST(Commands, HaveTheirShortcuts) {
    EXPECT_EQ(EntryOf(Command::New).shortcut, "Ctrl+Shift+N");
    EXPECT_EQ(EntryOf(Command::Open).shortcut, "Ctrl+O");
    EXPECT_EQ(EntryOf(Command::SaveAs).shortcut, "Ctrl+Shift+S");
    EXPECT_EQ(EntryOf(Command::Close).shortcut, "Ctrl+W");
    EXPECT_EQ(EntryOf(Command::Exit).shortcut, "Ctrl+Q");
    EXPECT_EQ(EntryOf(Command::Add).shortcut, "Ctrl+N");
    EXPECT_EQ(EntryOf(Command::Edit).shortcut, "Ctrl+E");
    EXPECT_EQ(EntryOf(Command::Load).shortcut, "Ctrl+L");
    EXPECT_EQ(EntryOf(Command::Delete).shortcut, "Del");
    EXPECT_EQ(EntryOf(Command::Find).shortcut, "Ctrl+F");
    EXPECT_EQ(EntryOf(Command::FindNext).shortcut, "F3");
    EXPECT_EQ(EntryOf(Command::Filter).shortcut, "Ctrl+K");
    EXPECT_EQ(EntryOf(Command::Undo).shortcut, "Ctrl+Z");
    EXPECT_EQ(EntryOf(Command::Redo).shortcut, "Ctrl+Shift+Z");
    EXPECT_EQ(EntryOf(Command::Run).shortcut, "F5");
    EXPECT_EQ(EntryOf(Command::Verify).shortcut, "F7");
    EXPECT_EQ(EntryOf(Command::Import).shortcut, "Ctrl+I");
    EXPECT_EQ(EntryOf(Command::Help).shortcut, "F1");
}

TEST(Commands, OfAMenuHaveMnemonicsOfTheirOwn) {
    std::set<std::pair<Menu, char>> taken;
    for (const CommandEntry& entry : AllCommands()) {
        std::size_t mark = entry.text.find('&');
        ASSERT_LT(mark + 1, entry.text.size()) << entry.key;
        const char letter = static_cast<char>(std::tolower(entry.text[mark + 1]));
        EXPECT_TRUE(taken.emplace(entry.menu, letter).second) << entry.text;
    }
}

TEST(Commands, StandTogetherWithTheirMenuAndGroup) {
    std::pair<Menu, int> before{Menu::File, 0};
    for (const CommandEntry& entry : AllCommands()) {
        const std::pair<Menu, int> place{entry.menu, entry.group};
        EXPECT_LE(before, place) << entry.key;
        before = place;
    }
}

TEST(Menus, HaveTheirNames) {
    EXPECT_EQ(NameOf(Menu::File), "&File");
    EXPECT_EQ(NameOf(Menu::Edit), "&Edit");
    EXPECT_EQ(NameOf(Menu::View), "&View");
    EXPECT_EQ(NameOf(Menu::Game), "&Game");
    EXPECT_EQ(NameOf(Menu::Tools), "&Tools");
    EXPECT_EQ(NameOf(Menu::Help), "&Help");
}

}  // namespace
}  // namespace fabula::authoring
