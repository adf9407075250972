// What goes out comes in again, on adventures made at random. What the kinds of files are known to lose is
// not in these adventures (see random_adventure.h); the tests of the writers show that each such loss is
// named.

#include <fstream>

#include <gtest/gtest.h>

#include "condacts/language/convert.h"
#include "condacts/language/load.h"
#include "random_adventure.h"
#include "reading.h"
#include "support/trials.h"
#include "text/str_edit.h"

namespace fabula::interchange {
namespace {

using store::AdventureKind;

constexpr int kAdventures = 4;
constexpr const char* kInComments =
    "The source form has no place for these; they stand in comments that only Fabula reads:";

std::uint32_t Adventures() {
    return static_cast<std::uint32_t>(test::Trials("FABULA_GAMES", kAdventures));
}

/// Writes `from` as a kind of file and reads it into `to`; nothing may be told as lost or wrong.
void Carry(store::Adventure& from, store::Adventure& to, std::string_view kind) {
    const test::TempFolder folder;
    std::string told;
    const std::string file = Written(from, kind, &told);
    EXPECT_EQ(told.substr(0, told.find('\n')), kind == "fabula" ? "" : kInComments);
    std::ofstream(folder / "game.txt", std::ios::binary) << file;
    NoObserver nobody;
    JobStatus status(nobody);
    EXPECT_TRUE(ReadInto(to, kind, folder / "game.txt", status));
    EXPECT_EQ(status.Faults(), 0) << status.Text();
}

class RoundTrip : public testing::TestWithParam<AdventureKind> {
  protected:
    static int Letters() {
        if (GetParam() == AdventureKind::Fabula) return 12;
        return GetParam() == AdventureKind::Vel ? 5 : 4;
    }
};

INSTANTIATE_TEST_SUITE_P(AllKinds, RoundTrip,
                         testing::Values(AdventureKind::Fabula, AdventureKind::Vel, AdventureKind::Marlo),
                         [](const auto& kind) { return std::string(store::NameOf(kind.param)); });

TEST_P(RoundTrip, AnExportFileCarriesEveryFieldThatTravels) {
    for (std::uint32_t seed = 1; seed <= Adventures(); ++seed) {
        const test::OpenedAdventure before(GetParam());
        FillAtRandom(*before, seed, Letters());
        const test::OpenedAdventure after(GetParam());
        Carry(*before, *after, "fabula");
        ASSERT_EQ(ExportedFields(*after), ExportedFields(*before)) << "seed " << seed;
    }
}

TEST_P(RoundTrip, AnExportFileWrittenTwiceIsTheSame) {
    const test::OpenedAdventure before(GetParam());
    FillAtRandom(*before, 77, Letters());
    const test::OpenedAdventure after(GetParam());
    Carry(*before, *after, "fabula");
    EXPECT_EQ(Written(*after, "fabula"), Written(*before, "fabula"));
}

TEST(RoundTripOfTexts, TheTextFormOfEntriesComesBackWithItsNumbersForPlaces) {
    const test::OpenedAdventure before;
    FillAtRandom(*before, 5, 12);
    const test::OpenedAdventure after;
    Carry(*before, *after, "fabula");
    // The text of the numeric form, which is what the file carries: places that are no room stand there as
    // words.
    store::Cursor& read = after->OpenTable(store::TableNum::ProcessTables, "def", std::nullopt, "canum");
    store::Cursor& written =
        before->OpenTable(store::TableNum::ProcessTables, "def", std::nullopt, "canum");
    const condacts::Catalogue catalogue = condacts::LoadCatalogue(*after);
    ASSERT_EQ(read.RecordCount(), written.RecordCount());
    for (; !read.Eof(); read.MoveNext(), written.MoveNext()) {
        EXPECT_EQ(condacts::LocationWordsToNumbers(read.Text("condacts"), catalogue),
                  written.Text("condacts"));
    }
}

TEST(RoundTripOfSources, AnAceSourceCarriesItsContents) {
    for (std::uint32_t seed = 1; seed <= Adventures(); ++seed) {
        const test::OpenedAdventure before;
        before->DeleteFrom(store::TableNum::Vocabulary, "voctypen<7");
        FillAtRandom(*before, seed, 12);
        const test::OpenedAdventure after;
        Carry(*before, *after, "ace");
        ASSERT_EQ(SourceContents(*after), SourceContents(*before)) << "seed " << seed;
    }
}

TEST(RoundTripOfSources, APcSourceCarriesItsContents) {
    for (std::uint32_t seed = 1; seed <= Adventures(); ++seed) {
        // A game that was imported once has the words and entries that control scripts.
        const Reading before("pcvel", PcSource("LOAD 219 verb\n", "/PRO 0\n_ _ DONE\n"));
        FillAtRandom(*before, seed, 5);
        const test::OpenedAdventure after(AdventureKind::Vel);
        Carry(*before, *after, "pcvel");
        ASSERT_EQ(SourceContents(*after), SourceContents(*before)) << "seed " << seed;
    }
}

/// Without what the sections of a source bring in another order or form.
std::vector<std::string> WhatExtrasCarry(store::Adventure& adventure) {
    std::vector<std::string> fields;
    for (const char* field : {"startloc", "maxobj", "maxweight", "BackColor", "textcolor", "author",
                              "Version", "advdesc", "defprintwidth"}) {
        const store::Cursor& settings = adventure.OpenTable(store::TableNum::Adventure, "def");
        fields.push_back(std::string(field) + " " +
                         std::string(text::TrimBlanks(text::ToText(settings.Field(field)))));
    }
    const auto add = [&](store::TableNum table, const char* columns, const char* where) {
        store::PreparedQuery rows = adventure.Prepare(table, columns, where);
        for (bool more = rows.First({}); more; more = rows.Next()) {
            const std::string text(text::TrimBlanks(rows.Text(1)));
            if (!text.empty())
                fields.push_back(std::string(columns) + ": " + std::to_string(rows.Number(0)) + " " + text);
        }
    };
    add(store::TableNum::Locations, "locnum, locshortdesc", "");
    add(store::TableNum::Locations, "locnum, picloc", "");
    add(store::TableNum::ProcDesc, "pmsgnum, pmsgmsg", "");
    add(store::TableNum::Pictures, "locnum, drawstring", "");
    return fields;
}

TEST(RoundTripOfSources, CommentsCarryWhatTheSectionsDoNot) {
    for (std::uint32_t seed = 1; seed <= Adventures(); ++seed) {
        const test::OpenedAdventure before;
        FillAtRandom(*before, seed, 12);
        const test::OpenedAdventure after;
        Carry(*before, *after, "ace");
        ASSERT_EQ(WhatExtrasCarry(*after), WhatExtrasCarry(*before)) << "seed " << seed;
    }
}

}  // namespace
}  // namespace fabula::interchange
