#include "interchange/file_kinds.h"

#include <set>
#include <vector>

#include <gtest/gtest.h>

namespace fabula::interchange {
namespace {

std::vector<std::string_view> KindsWhich(bool (FileKind::*can)() const) {
    std::vector<std::string_view> words;
    for (const FileKind& kind : FileKinds()) {
        if ((kind.*can)()) words.push_back(kind.word);
    }
    return words;
}

using Words = std::vector<std::string_view>;

TEST(FileKinds, AreFoundByTheirWordAndTheirNameInAnyCase) {
    for (const FileKind& kind : FileKinds()) {
        EXPECT_EQ(FindFileKind(kind.word), &kind) << kind.word;
        EXPECT_EQ(FindFileKind(kind.name), &kind) << kind.word;
    }
    EXPECT_EQ(FindFileKind("PcVel")->word, "pcvel");
    EXPECT_EQ(FindFileKind("word"), nullptr);
    EXPECT_EQ(FindFileKind(""), nullptr);
}

TEST(FileKinds, DifferInWordNameExtensionAndSource) {
    std::set<std::string_view> words, names, extensions, sources;
    for (const FileKind& kind : FileKinds()) {
        EXPECT_TRUE(words.insert(kind.word).second) << kind.word;
        EXPECT_TRUE(names.insert(kind.name).second) << kind.word;
        EXPECT_TRUE(extensions.insert(kind.extension).second) << kind.word;
        EXPECT_TRUE(sources.insert(kind.settings.source).second) << kind.word;
        EXPECT_NE(kind.about, "") << kind.word;
    }
}

TEST(FileKinds, HaveARowEachInTheListOfSources) {
    std::set<int> rows;
    for (const FileKind& kind : FileKinds())
        rows.insert(kind.settings.sourceRow);
    EXPECT_EQ(rows, (std::set<int>{1, 2, 3, 4, 5}));
}

TEST(FileKinds, TellWhatCanBeReadWrittenAndTakenForPictures) {
    EXPECT_EQ(KindsWhich(&FileKind::CanRead), (Words{"unmarlo", "unvel", "pcvel", "fabula", "ace"}));
    EXPECT_EQ(KindsWhich(&FileKind::CanWrite), (Words{"unvel", "pcvel", "fabula", "ace"}));
    EXPECT_EQ(KindsWhich(&FileKind::CanLoadPictures), (Words{"unmarlo", "unvel"}));
}

TEST(FileKinds, ThatCanBeWrittenHaveRulesAndOnlyTheseAreOffered) {
    for (const FileKind& kind : FileKinds()) {
        EXPECT_EQ(kind.CanWrite(), !kind.rules.name.empty()) << kind.word;
        EXPECT_EQ(kind.CanWrite(), !kind.exportDialog.title.empty()) << kind.word;
        EXPECT_EQ(kind.CanRead(), !kind.importDialog.title.empty()) << kind.word;
        EXPECT_TRUE(kind.CanWrite() || !kind.isInExportDialog) << kind.word;
    }
}

TEST(FileKinds, AskForTheFilesThatTheyWrite) {
    for (const FileKind& kind : FileKinds()) {
        if (!kind.CanWrite()) continue;
        const std::string pattern = "*" + std::string(kind.extension);
        EXPECT_TRUE(kind.exportDialog.filter.ends_with("|" + pattern)) << kind.word;
        const std::string_view proposed = kind.exportDialog.defaultName;
        EXPECT_TRUE(proposed.empty() || proposed == pattern) << kind.word;
    }
}

TEST(FileKinds, OnlyUnVelExtractsComeInSeveralForms) {
    for (const FileKind& kind : FileKinds())
        EXPECT_EQ(kind.hasVersions, kind.word == "unvel") << kind.word;
}

TEST(FileKinds, HaveTheTextsOfTheirDialogs) {
    const FileKind& pc = *FindFileKind("PCVEL");
    EXPECT_EQ(pc.importDialog.defaultName, "*.sce");
    EXPECT_EQ(pc.importDialog.title, "Load an PC VEL source file");
    EXPECT_EQ(pc.importDialog.filter, "PC VEL Sources (*.sce)|*.sce|All files|*.*");
    EXPECT_EQ(pc.exportDialog.title, "Save as a PC VEL source");
    EXPECT_EQ(FindFileKind("fabula")->importDialog.title, "Load an Fabula Exportfile");
    EXPECT_EQ(FindFileKind("fabula")->exportDialog.filter, "FabuLA Extract (*.ext)|*.ext");
    EXPECT_EQ(FindFileKind("ace")->importDialog.filter, "ACE Sources (*.*)|*.*|All files|*.*");
    EXPECT_EQ(FindFileKind("ace")->exportDialog.title, "Save as an ACE source");
    EXPECT_EQ(FindFileKind("ace")->exportDialog.filter, "ACE source(*.txt)|*.txt");
}

TEST(FirstExportKind, IsTheKindThatAGameCameFromWhereItIsOffered) {
    EXPECT_EQ(FirstExportKind("UnVel").word, "unvel");
    EXPECT_EQ(FirstExportKind("fabulaexp").word, "fabula");
    EXPECT_EQ(FirstExportKind("New").word, "fabula");
    EXPECT_EQ(FirstExportKind("ACE").word, "pcvel");
    EXPECT_EQ(FirstExportKind("UnMarlo").word, "pcvel");
    EXPECT_EQ(FirstExportKind("Unknown!").word, "pcvel");
    EXPECT_EQ(FirstExportKind("").word, "pcvel");
}

TEST(KindThatBegins, IsThePcSourceBeforeTheAceSourceUnlessThatWasChosen) {
    const FileKind& unmarlo = *FindFileKind("unmarlo");
    const FileKind& ace = *FindFileKind("ace");
    EXPECT_EQ(KindThatBegins("; a game\n/CTL\n_\n", unmarlo)->word, "pcvel");
    EXPECT_EQ(KindThatBegins("/ctl\n_\n", ace)->word, "ace");
}

TEST(KindThatBegins, IsAnExportFileByItsVersionEvenWithTheLineOfASourceInIt) {
    const FileKind& ace = *FindFileKind("ace");
    EXPECT_EQ(KindThatBegins("4.0.0\n5|advnum|1\n", ace)->word, "fabula");
    EXPECT_EQ(KindThatBegins("4.0.0\n5|advnum|1\n/CTL\n", ace)->word, "fabula");
}

TEST(KindThatBegins, IsNothingForOtherFiles) {
    const FileKind& usual = UsualFileKind();
    EXPECT_EQ(KindThatBegins("", usual), nullptr);
    EXPECT_EQ(KindThatBegins("4.0.0\n", usual), nullptr);
    EXPECT_EQ(KindThatBegins("4.0.0\nadvnum|1\n", usual), nullptr);
    EXPECT_EQ(KindThatBegins("a letter to a friend\n", usual), nullptr);
}

}  // namespace
}  // namespace fabula::interchange
