// Sources that no author wrote. Each must get an answer: a game, or a refusal.

#include <gtest/gtest.h>

#include "reading.h"

namespace fabula::interchange {
namespace {

using store::TableNum;

constexpr const char* kHostileWords = "GO 20 verb\nNORTH 2 noun\nLAMP 50 noun\n";

std::string Repeated(const std::string& text, int times) {
    std::string result;
    for (int i = 0; i < times; ++i)
        result += text;
    return result;
}

TEST(HostileSource, ALineOfAMegabyteIsAText) {
    const std::string line(1'000'000, 'x');
    const Reading game("pcvel", PcSource(kHostileWords, "/MTX\n/0\n" + line));
    EXPECT_EQ(game.Text(TableNum::Messages, "msgnum=0", "msgmsg").size(), line.size());
}

TEST(HostileSource, AHundredThousandSectionsAreRead) {
    const Reading game("pcvel", PcSource(kHostileWords, Repeated("/MTX\n", 100'000) + "/7\nabc\n"));
    EXPECT_TRUE(game.ok);
    EXPECT_EQ(game.Count(TableNum::Messages, "msgnum>=0"), 1);
}

TEST(HostileSource, ALongEntryIsAnEntry) {
    const Reading game("ace",
                       PcSource(kHostileWords, "/PRO 0\nGO _ " + Repeated("SET 60 BELL ", 50'000) + "\n"));
    EXPECT_EQ(game.Number(TableNum::ProcessTables, "canum=0", "numcas"), 250'000);
}

TEST(HostileSource, NulBytesAreBlanks) {
    std::string source = PcSource(kHostileWords, "/MTX\n/0\nabc\n");
    source.insert(source.find("abc") + 1, 1, '\0');
    EXPECT_EQ(Reading("pcvel", source).Text(TableNum::Messages, "msgnum=0", "msgmsg"), "a bc");
}

TEST(HostileSource, NothingButNulBytesIsInvalid) {
    EXPECT_FALSE(Reading("pcvel", std::string(100'000, '\0')).ok);
}

TEST(HostileSource, BracketsWithoutEndAreText) {
    const Reading game("ace", PcSource(kHostileWords, "/MTX\n/0\n" + std::string(200'000, '<') +
                                                          std::string(200'000, '&')));
    EXPECT_EQ(game.Text(TableNum::Messages, "msgnum=0", "msgmsg").size(), 200'000U * 4 + 200'000U * 5);
}

TEST(HostileSource, TextThatLooksLikeAQueryIsText) {
    const Reading game("ace", PcSource("x';-- 50 noun\n", "/PRO 0\n_ x';-- NOUN2 x';--\nGO' LAMP DONE\n"));
    EXPECT_EQ(game.Number(TableNum::Vocabulary, "vocnum=50", "voctypen"), 2);
    EXPECT_EQ(game.Text(TableNum::ProcessTables, "w2num=50", "condacts"), "NOUN2 X';--");
    EXPECT_TRUE(game.ToldAt(7, "Word1 (GO') not a verb"));
}

TEST(HostileSource, ALineOfBarsIsRefused) {
    const Reading game("fabula", "4.0.0\n" + std::string(1'000'000, '|'));
    EXPECT_FALSE(game.ok);
}

TEST(HostileSource, AnExportFileMayGoToAndFroBetweenTables) {
    std::string lines = "4.0.0\n";
    for (int i = 0; i < 5'000; ++i) {
        lines += "8|vocindex|" + std::to_string(i % 1000) +
                 "\n8|vocnum|7\n8|word|W\n1|locnum|0\n1|numericexits|7 1\n";
    }
    EXPECT_TRUE(Reading("fabula", lines).ok);
}

TEST(HostileSource, AnExportedFilterIsNoFilter) {
    const Reading game("fabula", "4.0.0\n2|msgnum|1 or 1=1\n");
    EXPECT_FALSE(game.ok);
}

}  // namespace
}  // namespace fabula::interchange
