#include "qt/translator.h"

#include <QCoreApplication>
#include <fstream>

#include <gtest/gtest.h>

#include "qt/strings.h"
#include "support/temp_folder.h"
#include "translation/pseudo_language.h"

namespace fabula::test {
namespace {

TEST(ValuesIn, AreWhatStandsBetweenThePieces) {
    EXPECT_EQ(qt::ValuesIn("Could not write a.fbd: it is read-only.", {"Could not write ", ": ", "."}),
              QStringList({"a.fbd", "it is read-only"}));
}

TEST(ValuesIn, MayHoldWhatPartsThem) {
    EXPECT_EQ(qt::ValuesIn("a.b.c.", {"", "."}), QStringList({"a.b.c"}));
}

TEST(ValuesIn, AreNoneInAnotherText) {
    EXPECT_EQ(qt::ValuesIn("Could not read a.fbd.", {"Could not write ", "."}), std::nullopt);
    EXPECT_EQ(qt::ValuesIn("Could not write a.fbd", {"Could not write ", "."}), std::nullopt);
}

TEST(ValuesIn, AreNeverEmpty) {
    EXPECT_EQ(qt::ValuesIn("Could not write .", {"Could not write ", "."}), std::nullopt);
    EXPECT_EQ(qt::ValuesIn(": not used", {"", ": not used"}), std::nullopt);
}

TEST(Filled, PutsValuesInAnyOrder) {
    EXPECT_EQ(qt::Filled("%2 before %1", {"one", "two"}), "two before one");
}

TEST(Filled, LeavesAPlaceWithinAValueAlone) {
    EXPECT_EQ(qt::Filled("<%1> <%2>", {"%2", "b"}), "<%2> <b>");
}

TEST(Filled, LeavesAPlaceWithoutAValueAlone) {
    EXPECT_EQ(qt::Filled("%1 %3 100 %", {"a"}), "a %3 100 %");
}

class Translated : public testing::Test {
  protected:
    static std::string Of(const char* sentence) { return qt::FromQt(qt::Translated(sentence)); }

    PseudoLanguage language_;
};

TEST_F(Translated, ASentenceOfALibraryIsLookedUp) {
    EXPECT_EQ(Of("That Flag cannot be edited"), "[Ţĥàţ Ƒĺàĝ çàññóţ ƀé éďìţéď~~~~~~ ~~]");
}

TEST_F(Translated, ValuesArePutIntoTheTranslationOfThePattern) {
    EXPECT_EQ(Of("Sorry, but you cannot delete word LAMP"),
              "[Šóŕŕŷ, ƀùţ ŷóù çàññóţ ďéĺéţé ŵóŕď LAMP~~~~~~ ~~~~~~]");
}

TEST_F(Translated, TheReasonBehindAFailureIsTranslatedToo) {
    EXPECT_EQ(Of("Could not open cave.fbd: it is damaged."),
              "[Çóùĺď ñóţ óƥéñ cave.fbd: [ìţ ìš ďàṁàĝéď~~~].~~~~~~ ~]");
}

TEST_F(Translated, NothingStaysOfASentenceThatALibraryMakesOfParts) {
    for (const char* sentence : {"There is not a location with a number of 9",
                                 "There is not a location with a number of 9 for NORTH",
                                 "Could not read the image x.png: it is no PNG, JPEG or BMP file.",
                                 "Could not read the image x.png: it has too many pixels."}) {
        const std::string translated = Of(sentence);
        for (const char* word : {"location", "number", " for ", "Could", "image", "JPEG or", "many"})
            EXPECT_EQ(translated.find(word), std::string::npos) << translated;
    }
}

TEST_F(Translated, EachLineForItself) {
    EXPECT_EQ(Of("Sound ON\n  Sound OFF\n"), "[Šóùñď ÓÑ~]\n  [Šóùñď ÓƑƑ~~]\n");
}

TEST_F(Translated, WhatTheSystemDoesNotSayStays) {
    EXPECT_EQ(Of("Ye olde inn"), "Ye olde inn");
    EXPECT_EQ(Of(""), "");
}

TEST_F(Translated, OnlyTextsOfTheWindowsHavePatterns) {
    EXPECT_EQ(QCoreApplication::translate("QFileDialog", "Sorry, but you cannot delete word LAMP"),
              "Sorry, but you cannot delete word LAMP");
}

TEST(Translations, WithoutAFileAllStaysAsItIs) {
    const TempFolder folder;
    const qt::Translations translations({folder.Path()}, QLocale("eo"));
    EXPECT_FALSE(translations.Found());
    EXPECT_EQ(qt::Translated("That Flag cannot be edited"), "That Flag cannot be edited");
}

TEST(Translations, OfAnotherLanguageAreNotTaken) {
    const qt::Translations translations({PseudoLanguageFolder()}, QLocale("de"));
    EXPECT_FALSE(translations.Found());
}

TEST(Translations, OfALanguageServeItsCountries) {
    const TempFolder folder;
    std::filesystem::create_directory(folder / "translations");
    std::filesystem::copy(PseudoLanguageFolder() / "translations/fabula_eo.qm",
                          folder / "translations/fabula_de.qm");
    const qt::Translations translations({"/nowhere", folder.Path()}, QLocale("de_AT"));
    EXPECT_TRUE(translations.Found());
}

TEST(Translations, ThatAreDamagedAreNotTaken) {
    const TempFolder folder;
    std::filesystem::create_directory(folder / "translations");
    std::ofstream(folder / "translations/fabula_de.qm") << "no translation at all";
    const qt::Translations translations({folder.Path()}, QLocale("de"));
    EXPECT_FALSE(translations.Found());
}

TEST(Translations, EndWithTheirObject) {
    { const PseudoLanguage language; }
    EXPECT_EQ(qt::Translated("That Flag cannot be edited"), "That Flag cannot be edited");
}

}  // namespace
}  // namespace fabula::test
