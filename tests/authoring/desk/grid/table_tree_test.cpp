#include "authoring/desk/grid/table_tree.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/games/template_adventure.h"
#include "support/raw_database.h"

namespace fabula::authoring {
namespace {

using store::AdventureKind;
using store::TableNum;
using testing::Contains;
using testing::ElementsAre;
using testing::Not;

std::vector<std::string> Names(const std::vector<TreeNode>& nodes) {
    std::vector<std::string> names;
    for (const TreeNode& node : nodes)
        names.push_back(node.name);
    return names;
}

void SetSwitch(store::Adventure& adventure, const char* field, bool on) {
    store::Cursor& settings = adventure.OpenTable(TableNum::Adventure, field);
    settings.SetField(field, std::int64_t{on});
    settings.Update();
    adventure.ReadSettings();
}

/// Adds a record to `DataBases`.
void AddNode(store::Adventure& adventure, int table, int sort, const char* key, const char* parent,
             const char* type) {
    store::Cursor& rows = adventure.OpenTable(TableNum::DataBases, "def");
    rows.AddNew();
    rows.SetField("dbnum", std::int64_t{table});
    rows.SetField("dbtreename", std::string("Added"));
    rows.SetField("dbtreesort", std::int64_t{sort});
    rows.SetField("dbtreekey", std::string(key));
    rows.SetField("dbtreeparent", std::string(parent));
    rows.SetField("tabletype", std::string(type));
    rows.Update();
}

TEST(LoadTreeView, ShowsTheTablesOfAFabulaAdventureInTheirOrder) {
    const test::OpenedAdventure adventure;
    EXPECT_THAT(Names(LoadTreeView(*adventure, false)),
                ElementsAre("Adventure", "Adventure Settings", "Locations", "Objects", "Vocabulary",
                            "Flags", "Texts", "Process Tables", "Messages", "System Messages",
                            "Process Descriptions", "Response (P0)", "Process 1", "Process 2",
                            "Other Processes", "Reference", "Conditions and Actions", "Special Codes"));
}

TEST(LoadTreeView, OfAMarloAdventureHasNoNodeOfVelAndFabulaOnly) {
    const test::OpenedAdventure adventure(AdventureKind::Marlo);
    const auto names = Names(LoadTreeView(*adventure, false));
    EXPECT_THAT(names, Contains("Process 1"));
    EXPECT_THAT(names, Not(Contains("Process 2")));
    EXPECT_THAT(names, Not(Contains("Other Processes")));
}

TEST(LoadTreeView, OfAVelAdventureHasAllProcesses) {
    const test::OpenedAdventure adventure(AdventureKind::Vel);
    const auto names = Names(LoadTreeView(*adventure, false));
    EXPECT_THAT(names, Contains("Process 2"));
    EXPECT_THAT(names, Contains("Other Processes"));
}

TEST(LoadTreeView, ShowsPicturesOnlyWithGraphics) {
    const test::OpenedAdventure adventure;
    EXPECT_THAT(Names(LoadTreeView(*adventure, false)), Not(Contains("Pictures")));
    SetSwitch(*adventure, "graphics", true);
    const auto names = Names(LoadTreeView(*adventure, false));
    EXPECT_THAT(names, Contains("Pictures"));
    EXPECT_THAT(names, Contains("Graphics Commands"));
    EXPECT_THAT(names, Contains("Keypad Templates"));
}

TEST(LoadTreeView, ShowsCharacterSetsOnlyWhenTheyAreOn) {
    const test::OpenedAdventure adventure;
    EXPECT_THAT(Names(LoadTreeView(*adventure, false)), Not(Contains("Character Sets")));
    SetSwitch(*adventure, "charsets", true);
    EXPECT_THAT(Names(LoadTreeView(*adventure, false)), Contains("Character Sets"));
}

TEST(LoadTreeView, ShowsTheProgramsTablesInTheMaintenanceViewOnly) {
    const test::OpenedAdventure adventure;
    EXPECT_THAT(Names(LoadTreeView(*adventure, false)), Not(Contains("Tables")));
    EXPECT_THAT(Names(LoadTreeView(*adventure, true)), Contains("Tables"));
}

TEST(LoadTreeView, PutsNodesBelowTheirParents) {
    const test::OpenedAdventure adventure;
    const auto nodes = LoadTreeView(*adventure, false);
    const TreeNode* const messages = NodeAt(nodes, 10);
    ASSERT_NE(messages, nullptr);
    ASSERT_TRUE(messages->parent.has_value());
    EXPECT_EQ(nodes[*messages->parent].name, "Texts");
    EXPECT_TRUE(nodes[*messages->parent].group);
    EXPECT_FALSE(messages->group);
    EXPECT_EQ(nodes[0].parent, std::nullopt);
}

TEST(LoadTreeView, GivesNodesTheirIcons) {
    const test::OpenedAdventure adventure;
    const auto nodes = LoadTreeView(*adventure, false);
    EXPECT_EQ(NodeAt(nodes, 2)->icon, "map");
    EXPECT_EQ(NodeAt(nodes, 2)->selectedIcon, "map-open");
}

TEST(LoadTreeView, AlwaysExpandsTextsAndProcesses) {
    const test::OpenedAdventure adventure;
    const auto nodes = LoadTreeView(*adventure, false);
    EXPECT_TRUE(NodeAt(nodes, 8)->expanded);
    EXPECT_TRUE(NodeAt(nodes, 9)->expanded);
    EXPECT_TRUE(NodeAt(nodes, 0)->expanded);
    EXPECT_FALSE(NodeAt(nodes, 21)->expanded);
}

TEST(LoadTreeView, ExpandsPicturesAndCharacterSetsWhenTheyAreOn) {
    const test::OpenedAdventure adventure;
    SetSwitch(*adventure, "graphics", true);
    SetSwitch(*adventure, "charsets", true);
    const auto nodes = LoadTreeView(*adventure, false);
    EXPECT_TRUE(NodeAt(nodes, 14)->expanded);
    EXPECT_TRUE(NodeAt(nodes, 15)->expanded);
}

TEST(LoadTreeView, OfAFileWithoutTemplatesShowsTheFirstSixteenNodesOnly) {
    const test::OpenedAdventure adventure;
    SetSwitch(*adventure, "graphics", true);
    adventure->DeleteFrom(TableNum::DataBases, "dbnum=35");
    const auto nodes = LoadTreeView(*adventure, true);
    EXPECT_NE(NodeAt(nodes, 15), nullptr);
    EXPECT_EQ(NodeAt(nodes, 16), nullptr);
    EXPECT_EQ(NodeAt(nodes, 21), nullptr);
}

TEST(LoadTreeView, OpensTheProcessTablesOneByOneAndTheRestTogether) {
    const test::OpenedAdventure adventure;
    const auto nodes = LoadTreeView(*adventure, false);
    EXPECT_EQ(NodeAt(nodes, 13)->view, (TableView{TableNum::ProcessTables, 0}));
    EXPECT_EQ(NodeAt(nodes, 16)->view, (TableView{TableNum::ProcessTables, 1}));
    EXPECT_EQ(NodeAt(nodes, 17)->view, (TableView{TableNum::ProcessTables, 2}));
    EXPECT_EQ(NodeAt(nodes, 18)->view, (TableView{TableNum::ProcessTables, kOtherProcesses}));
    EXPECT_EQ(NodeAt(nodes, 9)->view, (TableView{TableNum::ProcessTables, 0}));
}

TEST(LoadTreeView, LeavesOutARecordThatNamesNoTable) {
    const test::OpenedAdventure adventure;
    AddNode(*adventure, 13, 50, "50_", "0_", "VMF");
    AddNode(*adventure, 16, 51, "51_", "0_", "VMF");
    AddNode(*adventure, -7, 52, "52_", "0_", "VMF");
    EXPECT_THAT(Names(LoadTreeView(*adventure, true)), Not(Contains("Added")));
}

TEST(LoadTreeView, LeavesOutANodeWhoseParentIsNotShownOrComesLater) {
    const test::OpenedAdventure adventure;
    AddNode(*adventure, 1, 50, "50_", "15_", "VMF");
    AddNode(*adventure, 1, 51, "51_", "52_", "VMF");
    AddNode(*adventure, 1, 53, "53_", "53_", "VMF");
    EXPECT_THAT(Names(LoadTreeView(*adventure, false)), Not(Contains("Added")));
}

TEST(NodeOf, PrefersATableToItsGroup) {
    const test::OpenedAdventure adventure;
    const auto nodes = LoadTreeView(*adventure, false);
    EXPECT_EQ(NodeOf(nodes, {TableNum::Messages})->name, "Messages");
    EXPECT_EQ(NodeOf(nodes, {TableNum::Adventure})->name, "Adventure Settings");
    EXPECT_EQ(NodeOf(nodes, {TableNum::ProcessTables, 0})->name, "Response (P0)");
    EXPECT_EQ(NodeOf(nodes, {TableNum::Pictures}), nullptr);
}

TEST(AdventureStatus, TellsTypeGraphicsAndCharacterSets) {
    const test::OpenedAdventure fabula;
    EXPECT_EQ(AdventureStatus(*fabula), "Adventure Type: Fabula     Graphics: OFF    CharSets: OFF");
    const test::OpenedAdventure marlo(AdventureKind::Marlo);
    EXPECT_EQ(AdventureStatus(*marlo), "Adventure Type: Marlo     Graphics: OFF    CharSets: ON");
}

TEST(TableTree, LeavesOutWhatIsFarTooMuchForATree) {
    test::OpenedAdventure adventure;
    adventure.Close();
    test::RawDatabase(adventure.File())
        .Run(
            "WITH RECURSIVE n(i) AS (SELECT 100 UNION ALL SELECT i+1 FROM n WHERE i<50000)"
            "INSERT INTO DataBases (dbnum, dbtreesort, dbtreekey, dbtreeparent, tabletype, dbtreename) "
            "SELECT 5, i, i || '_', (i-1) || '_', 'FVM', 'node' FROM n");
    adventure.Reopen();
    EXPECT_LE(LoadTreeView(*adventure, true).size(), 500U);
}

TEST(TableTree, CutsNamesThatAreFarTooLong) {
    test::OpenedAdventure adventure;
    adventure.Close();
    test::RawDatabase(adventure.File()).Run("UPDATE DataBases SET dbtreename=hex(zeroblob(500000))");
    adventure.Reopen();
    EXPECT_EQ(LoadTreeView(*adventure, false).at(0).name, std::string(60, '0'));
}

TEST(TableTree, CutsATypeThatIsFarTooLongInTheStatus) {
    test::OpenedAdventure adventure;
    adventure.Close();
    test::RawDatabase(adventure.File()).Run("UPDATE Adventure SET adventype=hex(zeroblob(500000))");
    adventure.Reopen();
    EXPECT_EQ(AdventureStatus(*adventure),
              "Adventure Type: " + std::string(60, '0') + "     Graphics: OFF    CharSets: OFF");
}

TEST(TableTree, NodesThatAreTheirOwnParentsOrNobodysAreLeftOut) {
    test::OpenedAdventure adventure;
    adventure.Close();
    test::RawDatabase(adventure.File())
        .Run(
            "UPDATE DataBases SET dbtreeparent=dbtreekey WHERE dbtreekey='1_';"
            "UPDATE DataBases SET dbtreeparent='nowhere' WHERE dbtreekey='2_'");
    adventure.Reopen();
    EXPECT_THAT(Names(LoadTreeView(*adventure, false)), Not(Contains("Locations")));
    EXPECT_THAT(Names(LoadTreeView(*adventure, false)), Contains("Objects"));
}

}  // namespace
}  // namespace fabula::authoring
