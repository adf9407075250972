#include "authoring/desk/commands.h"

#include <string>
#include <string_view>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "help_pages.h"
#include "text/str_edit.h"

/// What the pages say is compared with the commands of the authoring tool.
namespace fabula::help_test {
namespace {

using authoring::AllCommands;
using authoring::CommandEntry;
using testing::Contains;
using testing::HasSubstr;
using tinyxml2::XMLElement;

std::string SmallLetters(std::string_view text) {
    std::string small;
    for (const char c : text)
        small += static_cast<char>(c >= 'A' && c <= 'Z' ? c - 'A' + 'a' : c);
    return small;
}

TEST(MainWindowPage, HasAnAnchorForEachCommand) {
    const std::vector<std::string> anchors = AnchorNames(FindPage("frmvelidemain.html"));
    for (const CommandEntry& command : AllCommands())
        EXPECT_THAT(anchors, Contains(SmallLetters(command.key)));
}

TEST(ShortcutsPage, HasTheKeysOfEveryCommand) {
    std::string keys;
    const auto tables = Elements(FindPage("shortcuts.html"), "table");
    for (const XMLElement* row : Children(*tables.at(0)))
        keys += ShownText(*Children(*row).at(0)) + " ";
    for (const CommandEntry& command : AllCommands()) {
        if (command.shortcut.empty()) continue;
        const std::string key = text::ReplaceAll(command.shortcut, "Return", "Enter");  // as it is written
        EXPECT_THAT(keys, HasSubstr(key + " "));
    }
}

}  // namespace
}  // namespace fabula::help_test
