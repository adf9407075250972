// The page of the shortcuts against the commands and the keys of both programs.

#include <QAction>
#include <QApplication>
#include <QFile>
#include <QShortcut>
#include <QXmlStreamReader>
#include <map>
#include <set>

#include <gtest/gtest.h>

#include "authoring/desk/commands.h"
#include "ide/dialog_stand.h"
#include "ide/opened_window.h"
#include "player/play/commands.h"
#include "qt/strings.h"
#include "support/places.h"

namespace fabula::test {
namespace {

using Keys = std::set<QString>;

/// The keys of each section of the page, by its anchor.
std::map<QString, Keys> KeysOfThePage() {
    QFile file(qt::PathToQt(SourceFolder() / "help" / "shortcuts.html"));
    EXPECT_TRUE(file.open(QFile::ReadOnly));
    QXmlStreamReader page(&file);
    std::map<QString, Keys> keys;
    QString section;
    bool first = false;  // whether a cell is the first of its row
    while (!page.atEnd()) {
        if (page.readNext() != QXmlStreamReader::StartElement) continue;
        if (page.name() == u"a" && page.attributes().hasAttribute("name"))
            section = page.attributes().value("name").toString();
        if (page.name() == u"tr") first = true;
        if (page.name() != u"td") continue;
        QString cell = page.readElementText(QXmlStreamReader::IncludeChildElements);
        if (!std::exchange(first, false)) continue;
        for (const QString& key : cell.replace(" or ", ", ").split(", "))
            keys[section].insert(key.simplified());
    }
    EXPECT_FALSE(page.hasError()) << qt::FromQt(page.errorString());
    return keys;
}

/// As the page writes it.
QString Written(const QKeySequence& key) {
    return key.toString(QKeySequence::PortableText).replace("Return", "Enter").replace("PgDown", "PgDn");
}

Keys KeysOf(const QWidget& window) {
    Keys keys;
    for (const QAction* action : window.findChildren<QAction*>()) {
        for (const QKeySequence& key : action->shortcuts())
            keys.insert(Written(key));
    }
    for (const QShortcut* shortcut : window.findChildren<QShortcut*>())
        keys.insert(Written(shortcut->key()));
    return keys;
}

/// Those of `keys` that none of the sections has.
std::vector<std::string> Missing(const Keys& keys, const std::vector<const char*>& sections) {
    const std::map<QString, Keys> page = KeysOfThePage();
    std::vector<std::string> missing;
    for (const QString& key : keys) {
        bool found = key.isEmpty();
        for (const char* section : sections)
            found = found || page.at(section).contains(key);
        if (!found) missing.push_back(qt::FromQt(key));
    }
    return missing;
}

const std::vector<std::string> kNone;

TEST(ShortcutsPage, HasTheKeysOfTheCommandsOfTheAuthoringTool) {
    Keys keys;
    for (const authoring::CommandEntry& command : authoring::AllCommands())
        keys.insert(Written(QKeySequence(qt::ToQt(command.shortcut))));
    EXPECT_GT(keys.size(), 20u);
    EXPECT_EQ(Missing(keys, {"main"}), kNone);
}

TEST(ShortcutsPage, HasTheKeysOfTheCommandsOfThePlayer) {
    Keys keys;
    for (const player::CommandEntry& command : player::AllCommands()) {
        for (const QString& key : qt::ToQt(command.shortcut).split("; "))
            keys.insert(key);
    }
    EXPECT_GT(keys.size(), 10u);
    EXPECT_EQ(Missing(keys, {"game"}), kNone);
}

TEST(ShortcutsPage, HasEveryKeyOfTheMainWindow) {
    OpenedWindow opened;
    opened.Open(GameBuilder());
    EXPECT_EQ(Missing(KeysOf(opened.Window()), {"main"}), kNone);
}

TEST(ShortcutsPage, HasNoKeyOfTheMainWindowThatDoesNothing) {
    OpenedWindow opened;
    opened.Open(GameBuilder());
    const Keys keys = KeysOf(opened.Window());
    // Of the rows, their cells and groups, and the filter.
    const Keys elsewhere = {"Enter", "Down", "Esc", "Left", "Right", "-", "+", "a letter", "F2"};
    const std::map<QString, Keys> page = KeysOfThePage();
    for (const QString& key : page.at("main"))
        EXPECT_TRUE(keys.contains(key) || elsewhere.contains(key)) << qt::FromQt(key);
}

TEST(ShortcutsPage, HasEveryKeyOfEveryDialog) {
    Desk desk;
    Furnish(desk);
    const std::map<std::string, const char*> own = {
        {"Picture", "pictures"}, {"Character", "characters"}, {"Preview", "preview"}};
    for (const DialogStand& stand : EveryDialog()) {
        const auto section = own.find(stand.name);
        const char* const also = section == own.end() ? "screens" : section->second;
        EXPECT_EQ(Missing(KeysOf(*stand.open(desk)), {"screens", also}), kNone) << stand.name;
    }
}

}  // namespace
}  // namespace fabula::test
