#include <gtest/gtest.h>

#include "store/create_fixture.h"
#include "support/child_process.h"
#include "support/raw_database.h"

namespace fabula::store {
namespace {

using test::ReadBytes;
using test::WriteBytes;
using CreatedLines = std::vector<std::string>;

TEST_F(Create, MakesAFileThatOpens) {
    MakeWith(test::DefaultData());
    EXPECT_GT(Open()->OpenTable(TableNum::CondActs, "*").RecordCount(), 0);
    EXPECT_TRUE(person_.Boxes().empty());
    EXPECT_EQ(FilesInGames(), std::vector<std::string>{"island.fbd"});
}

TEST_F(Create, SetsTheSettingsThatHaveNoColumn) {
    AdventureSetup setup;
    setup.ChooseGraphics(true);
    MakeWith(test::DefaultData(), setup);
    const auto adventure = Open();
    const Cursor& settings = adventure->OpenTable(TableNum::Adventure, "*");
    EXPECT_EQ(settings.Text("savename"), "island");
    EXPECT_EQ(settings.Text("DateCreated"), "2026-03-04 05:06:07");
    EXPECT_EQ(settings.Number("unmarloed"), 0);
    EXPECT_EQ(settings.Text("advcontactinfo"), " ");
    EXPECT_TRUE(settings.Truth("graphics"));
    EXPECT_FALSE(settings.Truth("charsets"));
    EXPECT_FALSE(settings.Truth("graphicsindb"));
    EXPECT_FALSE(settings.Truth("graphicsadded"));
    EXPECT_EQ(settings.Field("advpicgraphic"), text::Value(text::Blob{}));
    EXPECT_EQ(settings.Field("defpicgraphic"), text::Value(text::Blob{}));
    EXPECT_EQ(settings.Text("oldadvpicloc"), " ");
    EXPECT_EQ(settings.Text("olddefpicloc"), " ");
    EXPECT_EQ(settings.Text("source"), "Unknown");
}

TEST_F(Create, TheSystemRecordHoldsTheDataOfTheDefaults) {
    Replace("INFO", {"Tables=2001-02-03", "Delimiter=|", "ExportVersion=4.5.6"});
    Make();
    const auto adventure = Open();
    const Cursor& system = adventure->OpenTable(TableNum::System, "*");
    EXPECT_EQ(system.RecordCount(), 1);
    EXPECT_EQ(system.Text("sysinidate"), "2001-02-03");
    EXPECT_EQ(system.Text("sysexportversion"), "4.5.6");
    EXPECT_EQ(system.Text("ideversion"), " ");
    EXPECT_EQ(system.Text("engversion"), " ");
}

struct TypedSections {
    AdventureKind kind;
    const char* prefix;
};

class EachType : public Create, public testing::WithParamInterface<TypedSections> {};

TEST_P(EachType, ReadsItsOwnTypedSectionsAndTheCommonOnes) {
    const std::string prefix = GetParam().prefix;
    Replace(prefix + "LOCATIONS", {"/0", "0||||| ", "A room of this type."});
    Replace(prefix + "SYSMESS", {"/0", "A message of this type."});
    Replace("VELPROCDESC", {"0|a common text"});
    Make(SetupFor(GetParam().kind));
    const auto adventure = Open();
    EXPECT_EQ(adventure->OpenTable(TableNum::Locations, "*").Text("locdesc"), "A room of this type.");
    EXPECT_EQ(adventure->OpenTable(TableNum::SystemMessages, "*").Text("smsgmsg"),
              "A message of this type.");
    EXPECT_EQ(adventure->OpenTable(TableNum::ProcDesc, "*").Text("pmsgmsg"), "a common text");
    EXPECT_EQ(adventure->AdventureType(), NameOf(GetParam().kind));
}

TEST_P(EachType, NeedsEveryOneOfItsTypedSections) {
    const CreatedLines complete = lines_;
    for (const char* stem :
         {"LOCATIONS", "MESSAGES", "OBJECT", "ADVENTURE", "PROCESSTABLES", "SYSMESS", "VOCABULARY"}) {
        lines_ = complete;
        const std::string section = std::string(GetParam().prefix) + stem;
        RemoveSection(section);
        EXPECT_EQ(ErrorOf(SetupFor(GetParam().kind)), "has no section ::" + section + ".");
        EXPECT_TRUE(FilesInGames().empty());
    }
}

INSTANTIATE_TEST_SUITE_P(Types, EachType,
                         testing::Values(TypedSections{AdventureKind::Fabula, "FABULA"},
                                         TypedSections{AdventureKind::Vel, "VEL"},
                                         TypedSections{AdventureKind::Marlo, "MARLO"}),
                         [](const auto& type) { return std::string(type.param.prefix); });

TEST_F(Create, MarloUsesCharacterSets) {
    MakeWith(test::DefaultData(), SetupFor(AdventureKind::Marlo));
    EXPECT_TRUE(Open()->CharSetsOn());
}

TEST_F(Create, AnExistingFileIsReplacedAtOnce) {
    WriteBytes(file_, "old");
    MakeWith(test::DefaultData());
    EXPECT_TRUE(person_.Boxes().empty());
    EXPECT_GT(Open()->OpenTable(TableNum::Flags, "*").RecordCount(), 0);
}

TEST_F(Create, AFailureLeavesTheOldFile) {
    WriteBytes(file_, "old");
    Replace("VELFLAGS", {"nonsense"});
    EXPECT_THROW(Make(), Error);
    EXPECT_EQ(ReadBytes(file_), "old");
    EXPECT_EQ(FilesInGames(), std::vector<std::string>{"island.fbd"});
}

TEST_F(Create, AFullDiskLeavesTheOldFileAndNothingBesideIt) {
    WriteBytes(file_, "old");
    EXPECT_EQ(test::RunInChild([&] {
                  test::LimitFileSize(64 * 1024);
                  try {
                      MakeWith(test::DefaultData());
                  } catch (const Error&) {
                      return 0;
                  }
                  return 1;
              }),
              0);
    EXPECT_EQ(ReadBytes(file_), "old");
    EXPECT_EQ(FilesInGames(), std::vector<std::string>{"island.fbd"});
}

TEST_F(Create, AFolderThatIsNotThereIsAnError) {
    const platform::FixedClock clock({2026, 3, 4, 5, 6, 7});
    platform::NoEvents events;
    const auto lost = folder_ / "nowhere/game.fbd";
    EXPECT_THROW(CreateAdventure(lost, {}, {person_, clock, events, test::DefaultData()}), Error);
    const auto longName = folder_.Path() / (std::string(300, 'x') + ".fbd");
    EXPECT_THROW(CreateAdventure(longName, {}, {person_, clock, events, test::DefaultData()}), Error);
}

TEST_F(Create, GivesTheWindowATurnForEveryLineOfData) {
    struct Counter final : platform::EventPump {
        void Pump() override { ++turns; }
        int turns = 0;
    } events;
    const platform::FixedClock clock({2026, 3, 4, 5, 6, 7});
    CreateAdventure(file_, {}, {person_, clock, events, test::DefaultData()});
    EXPECT_GT(events.turns, 1000);
}

}  // namespace
}  // namespace fabula::store
