#include <QApplication>
#include <QDialog>
#include <QTest>

#include <gtest/gtest.h>

#include "ide/dialog_stand.h"
#include "translation/pseudo_language.h"
#include "translation/shown_texts.h"

// Every dialog of the authoring tool in a language whose words are 40 % longer.

namespace fabula::test {
namespace {

/// What dialogs show of the game and of the world: fields and tables by their names in the file, voices,
/// places and sets with their numbers, devices and letters, the sample of a font, what a record is, a sheet
/// of a listing, and commands and kinds of files, whose names stand beside a text.
const std::vector<std::string> kOfTheGame = {
    "[a-z0-9]+",
    "\\w+ \\([a-z0-9]+\\)",
    "ProcessTables|SystemMessages|ProcDesc",
    "(<p[^>]*>)?\\d+ ?- ?.*",
    "MIDI Mapper|Fabula",
    "You are in a dark cave. 123",
    "\\d+: Subroutine",
    "\\[.*\\]\\s*END",
    "UTF-8|Windows-1252",
    ".*Listing of Flag Descriptions.*",
    "&?Un&?(Marlo|Vel)|PCVel|FabulaExp",
    "\\w+( \\d)?: \\[.*\\]",
    "\\[.*\\]: [A-Z]+",
};

/// Lays out what has changed, and what follows from that.
void Settle() {
    for (int round = 0; round < 3; ++round)
        QApplication::processEvents();
}

class TranslatedDialog : public testing::TestWithParam<DialogStand> {
  protected:
    TranslatedDialog() { Furnish(desk_); }

    PseudoLanguage language_;
    Desk desk_;
};

TEST_P(TranslatedDialog, ShowsNoUntranslatedText) {
    const auto dialog = GetParam().open(desk_);
    dialog->show();
    Settle();
    EXPECT_EQ(UntranslatedTexts(*dialog, kOfTheGame), "");
}

TEST_P(TranslatedDialog, CutsNoTextAsItOpens) {
    const auto dialog = GetParam().open(desk_);
    dialog->show();
    Settle();
    EXPECT_EQ(CutTexts(*dialog), "");
}

TEST_P(TranslatedDialog, CutsNoTextAtItsSmallest) {
    const auto dialog = GetParam().open(desk_);
    dialog->show();
    dialog->resize(dialog->minimumSizeHint());
    Settle();
    EXPECT_EQ(CutTexts(*dialog), "");
}

INSTANTIATE_TEST_SUITE_P(Dialogs, TranslatedDialog, testing::ValuesIn(EveryDialog()),
                         [](const auto& given) { return std::string(given.param.name); });

}  // namespace
}  // namespace fabula::test
