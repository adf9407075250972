// Games made at random, written as their decompilers would and read back, and games that go out as extracts
// and come in again. The writers of the listings are independent of the readers (tests/support).

#include <fstream>

#include <gtest/gtest.h>

#include "interchange/random_adventure.h"
#include "interchange/reading.h"
#include "interchange/unvel/unvel_head.h"
#include "interchange/unvel/unvel_writer.h"
#include "support/games/listing_writers.h"
#include "support/trials.h"
#include "text/value.h"

namespace fabula::interchange {
namespace {

using store::AdventureKind;
using store::TableNum;
using test::ListedGame;

constexpr int kGames = 30;
constexpr int kExtracts = 2;
constexpr std::size_t kCarriedUserGraphics = 19;  ///< an extract has no room for more

std::uint32_t Games(int usual) {
    return static_cast<std::uint32_t>(test::Trials("FABULA_GAMES", usual));
}

/// One new adventure into which game after game is read; each reading is undone.
class Reader {
  public:
    Reader(const char* kind, AdventureKind type) : kind_(kind), adventure_(type) {}

    /// What the adventure holds of the game when its listing was read.
    std::vector<std::string> Read(const std::string& listing, const ListedGame& game) {
        const std::filesystem::path file = adventure_.Folder().Path() / "listing.txt";
        std::ofstream(file, std::ios::binary | std::ios::trunc) << listing;
        platform::ScriptedPerson person;
        NoObserver nobody;
        JobStatus status(nobody);
        ImportContext context{file, *adventure_, person, status};
        const store::Transaction undone(*adventure_);
        if (!FindFileKind(kind_)->read(context)) return {"refused", status.Text()};
        if (status.Faults() + status.Losses() > 0) return {"not read whole", status.Text()};
        return RecordsOf(*adventure_, game);
    }

  private:
    const char* kind_;
    test::OpenedAdventure adventure_;
};

TEST(ListingRoundTrip, GamesComeInFromUnMarlo) {
    Reader reader("unmarlo", AdventureKind::Marlo);
    for (std::uint32_t seed = 1; seed <= Games(kGames); ++seed) {
        const ListedGame game = test::RandomListedGame(true, seed);
        const std::string listing = UnMarloListing(game, seed);
        ASSERT_EQ(reader.Read(listing, game), ExpectedRecords(game)) << "seed " << seed << "\n" << listing;
    }
}

TEST(ListingRoundTrip, VelGamesComeInFromUnVel) {
    Reader reader("unvel", AdventureKind::Vel);
    for (std::uint32_t seed = 1; seed <= Games(kGames); ++seed) {
        const ListedGame game = test::RandomListedGame(false, seed);
        const std::string listing = UnVelListing(game);
        ASSERT_EQ(reader.Read(listing, game), ExpectedRecords(game)) << "seed " << seed << "\n" << listing;
    }
}

TEST(ListingRoundTrip, MarloGamesComeInFromUnVel) {
    Reader reader("unvel", AdventureKind::Marlo);
    for (std::uint32_t seed = 1; seed <= Games(kGames); ++seed) {
        ListedGame game = test::RandomListedGame(true, seed);
        game.maxObjects = 6;  // a listing of the older engine does not tell: that of a new adventure stays
        const std::string listing = UnVelListing(game);
        ASSERT_EQ(reader.Read(listing, game), ExpectedRecords(game)) << "seed " << seed << "\n" << listing;
    }
}

/// All that an extract carries of an adventure.
std::vector<std::string> Carried(store::Adventure& adventure) {
    std::vector<std::string> lines = SourceContents(adventure);
    const auto add = [&](TableNum table, std::initializer_list<const char*> fields, const char* where,
                         const char* order) {
        store::Cursor& records = adventure.OpenTable(table, "def", where, order);
        for (; !records.Eof(); records.MoveNext()) {
            std::string line(store::FindTable(table)->name);
            for (const char* field : fields)
                line += "|" + text::ToText(records.Field(field));
            lines.push_back(line);
        }
    };
    add(TableNum::Adventure,
        {"advname", "textcolor", "BackColor", "font", "graphics", "charsets", "adventype"}, "", "advnum");
    if (adventure.AdventureType() != "Marlo") add(TableNum::Adventure, {"maxobj"}, "", "advnum");
    add(TableNum::Pictures,
        {"locnum", "loctype", "locpaper", "locink", "drawstring", "picname", "roompicnum"}, "locnum>=0",
        "locnum");
    add(TableNum::Characters, {"charkey", "charset", "charsetnum", "charsetname", "charnum", "charvals"},
        "charkey>=0", "charkey");
    add(TableNum::Flags, {"flgnum", "flgtype", "flguse", "flgmod", "flgdesc"}, "flgnum>=0", "flgnum");
    add(TableNum::ProcDesc, {"pmsgnum", "pmsgmsg"}, "pmsgnum>=0", "pmsgnum");
    return lines;
}

std::string Extract(store::Adventure& adventure, std::string_view version, std::string& told) {
    const test::TempFolder folder;
    platform::ScriptedPerson person;
    NoObserver nobody;
    JobStatus status(nobody);
    ExportContext context{adventure, folder / "out.pex", person, status, std::string(version)};
    EXPECT_TRUE(ExportUnVel(context));
    told = status.Text();
    std::ifstream file(folder / "out.pex", std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

class ExtractRoundTrip : public testing::TestWithParam<std::string_view> {};

INSTANTIATE_TEST_SUITE_P(Versions, ExtractRoundTrip, testing::ValuesIn(kUnVelVersions),
                         [](const auto& version) {
                             std::string name(version.param);
                             std::replace(name.begin(), name.end(), '.', '_');
                             return "Version" + name;
                         });

TEST_P(ExtractRoundTrip, AGameGoesOutAndComesInAndGoesOutTheSame) {
    for (std::uint32_t seed = 1; seed <= Games(kExtracts); ++seed) {
        const bool isMarlo = seed % 2 == 0;
        ListedGame game = test::RandomListedGame(isMarlo, seed);
        game.userGraphics.resize(kCarriedUserGraphics);
        const Reading before("unvel", UnVelListing(game));
        ASSERT_TRUE(before.ok) << before.status;
        std::string told;
        const std::string first = Extract(*before, GetParam(), told);
        EXPECT_EQ(told, "");
        const Reading after("unvel", first);
        ASSERT_TRUE(after.ok) << after.status;
        ASSERT_EQ(Carried(*after), Carried(*before)) << "seed " << seed;
        ASSERT_EQ(Extract(*after, GetParam(), told), first) << "seed " << seed;
    }
}

TEST_P(ExtractRoundTrip, AGameOfUnMarloGoesOutAsAnExtract) {
    for (std::uint32_t seed = 1; seed <= Games(kExtracts); ++seed) {
        const Reading before("unmarlo", UnMarloListing(test::RandomListedGame(true, seed), seed));
        std::string told;
        const std::string first = Extract(*before, GetParam(), told);
        const Reading after("unvel", first);
        ASSERT_TRUE(after.ok) << after.status;
        ASSERT_EQ(SourceContents(*after), SourceContents(*before)) << "seed " << seed;
    }
}

}  // namespace
}  // namespace fabula::interchange
