#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTableWidget>
#include <QTest>
#include <QTextEdit>
#include <QToolButton>
#include <string>

#include <gtest/gtest.h>

#include "authoring/document/document.h"
#include "ide/dialogs/records/flag_dialog.h"
#include "ide/dialogs/records/location_dialog.h"
#include "ide/dialogs/records/object_dialog.h"
#include "ide/dialogs/records/word_dialog.h"
#include "ide/dialogs/settings/colour_dialog.h"
#include "qt/strings.h"
#include "support/active_window.h"
#include "support/doubles/scripted_dialogs.h"
#include "support/games/template_adventure.h"
#include "support/temp_folder.h"

namespace fabula::ide {
namespace {

using store::TableNum;

/// A fresh adventure with location 0 and the verb CLIMB.
class RecordDialogs : public testing::Test {
  protected:
    RecordDialogs() : document_(Made(folder_ / "game.fbd")) {
        store::Cursor& words = document_.Adventure().OpenTable(TableNum::Vocabulary, "def");
        words.AddNew();
        words.SetField("vocindex", std::int64_t{200});
        words.SetField("vocnum", std::int64_t{30});
        words.SetField("word", std::string("CLIMB"));
        words.SetField("voctypen", std::int64_t{0});
        words.SetField("voctype", std::string("Verb"));
        words.Update();
        authoring::ReadNextKeys(context_);
    }

    static std::filesystem::path Made(const std::filesystem::path& file) {
        test::MakeAdventure(file);
        return file;
    }

    static void Open(QDialog& dialog) {
        dialog.show();
        ASSERT_TRUE(test::BecomesActive(&dialog));
    }
    template <typename Control>
    static Control* Find(QDialog& dialog, const char* name) {
        auto* control = dialog.findChild<Control*>(name);
        EXPECT_NE(control, nullptr) << name;
        return control;
    }
    std::string Stored(TableNum table, const char* field, const char* where) {
        const store::Cursor& record = document_.Adventure().OpenTable(table, "def", where);
        return record.Eof() ? "no record" : text::ToText(record.Field(field));
    }

    test::TempFolder folder_;
    platform::ScriptedDialogs boxes_;
    authoring::Document document_;
    authoring::ScreenContext context_{document_, boxes_};
};

TEST_F(RecordDialogs, ALocationIsEditedByKeysAlone) {
    authoring::LocationScreen screen(context_, {0, false});
    LocationDialog dialog(screen);
    Open(dialog);
    Find<QPlainTextEdit>(dialog, "shortDescription")->setFocus();
    QTest::keyClicks(dialog.focusWidget(), "The hall");
    QTest::keyClick(dialog.focusWidget(), Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_EQ(Stored(TableNum::Locations, "locshortdesc", "locnum=0"), "The hall");
}

TEST_F(RecordDialogs, ExitLeavesTheLocationAsItWas) {
    authoring::LocationScreen screen(context_, {0, false});
    LocationDialog dialog(screen);
    Open(dialog);
    Find<QPlainTextEdit>(dialog, "shortDescription")->setPlainText("The hall");
    boxes_.AnswerLeaving(platform::Leaving::Discard);
    QTest::keyClick(&dialog, Qt::Key_Escape);
    EXPECT_EQ(dialog.result(), QDialog::Rejected);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(Stored(TableNum::Locations, "locshortdesc", "locnum=0"), " ");
}

TEST_F(RecordDialogs, TheWindowsOwnSignKeepsWhatWasTypedUntilTheAuthorHasDecided) {
    authoring::LocationScreen screen(context_, {0, false});
    LocationDialog dialog(screen);
    Open(dialog);
    Find<QPlainTextEdit>(dialog, "shortDescription")->setPlainText("The hall");
    boxes_.AnswerLeaving(platform::Leaving::KeepEditing);
    dialog.close();
    EXPECT_TRUE(dialog.isVisible());
    boxes_.AnswerLeaving(platform::Leaving::Store);
    dialog.close();
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_EQ(Stored(TableNum::Locations, "locshortdesc", "locnum=0"), "The hall");
}

TEST_F(RecordDialogs, AnExitThatWasNotAddedYetIsAChange) {
    authoring::LocationScreen screen(context_, {0, false});
    LocationDialog dialog(screen);
    Open(dialog);
    Find<QComboBox>(dialog, "exitWord")->setEditText("CLIMB");
    boxes_.AnswerLeaving(platform::Leaving::KeepEditing);
    QTest::keyClick(&dialog, Qt::Key_Escape);
    EXPECT_TRUE(dialog.isVisible());
}

TEST_F(RecordDialogs, EscapeWithoutAChangeClosesAtOnce) {
    authoring::LocationScreen screen(context_, {0, false});
    LocationDialog dialog(screen);
    Open(dialog);
    QTest::keyClick(&dialog, Qt::Key_Escape);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_TRUE(boxes_.Boxes().empty());
}

TEST_F(RecordDialogs, ARefusedFieldKeepsTheFocus) {
    authoring::LocationScreen screen(context_, {0, false});
    LocationDialog dialog(screen);
    Open(dialog);
    auto* shortDescription = Find<QPlainTextEdit>(dialog, "shortDescription");
    shortDescription->setFocus();
    QTest::keyClicks(shortDescription, "Fish & chips");
    QTest::keyClick(shortDescription, Qt::Key_Tab);
    QApplication::processEvents();
    ASSERT_EQ(boxes_.Boxes().size(), 1u);
    EXPECT_EQ(boxes_.Boxes().at(0).title, "Error");
    EXPECT_EQ(dialog.focusWidget(), shortDescription);
}

TEST_F(RecordDialogs, TheShortDescriptionIsPreviewedWithItsMarkup) {
    authoring::LocationScreen screen(context_, {0, false});
    LocationDialog dialog(screen);
    Open(dialog);
    QTest::keyClicks(Find<QPlainTextEdit>(dialog, "shortDescription"), "<BRIGHT>The hall</BRIGHT>");
    EXPECT_EQ(Find<QTextEdit>(dialog, "shortPreview")->toPlainText(), "The hall");
    EXPECT_EQ(Find<QLabel>(dialog, "shortCounts")->text(), "2 words, 7 letters");
}

TEST_F(RecordDialogs, UpdateOfARefusedFieldKeepsTheDialogOpen) {
    authoring::LocationScreen screen(context_, {0, false});
    LocationDialog dialog(screen);
    Open(dialog);
    Find<QLineEdit>(dialog, "exits")->setText("XYZZY 0");
    Find<QPushButton>(dialog, "update")->click();
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(boxes_.Boxes().at(0).text, "XYZZY is not a valid word");
    EXPECT_EQ(dialog.focusWidget(), Find<QLineEdit>(dialog, "exits"));
}

TEST_F(RecordDialogs, EnterAddsAnExitAndClosesNothing) {
    authoring::LocationScreen screen(context_, {0, false});
    LocationDialog dialog(screen);
    Open(dialog);
    Find<QComboBox>(dialog, "exitWord")->setFocus();
    QTest::keyClicks(dialog.focusWidget(), "CLIMB");
    QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
    QTest::keyClicks(dialog.focusWidget(), "0");
    QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(Find<QLineEdit>(dialog, "exits")->text(), "CLIMB 0");
    EXPECT_EQ(Find<QComboBox>(dialog, "exitPlace")->currentText(), "");
    EXPECT_EQ(dialog.focusWidget(), Find<QComboBox>(dialog, "exitWord"));
}

TEST_F(RecordDialogs, RowsOfExitsAndTheirLineAreKeptInStep) {
    authoring::LocationScreen screen(context_, {0, false});
    LocationDialog dialog(screen);
    Open(dialog);
    Find<QComboBox>(dialog, "exitWord")->setEditText("CLIMB");
    Find<QComboBox>(dialog, "exitPlace")->setEditText("0");
    Find<QPushButton>(dialog, "add")->click();
    auto* line = Find<QLineEdit>(dialog, "exits");
    auto* rows = Find<QTableWidget>(dialog, "exitRows");
    EXPECT_EQ(line->text(), "CLIMB 0");
    ASSERT_EQ(rows->rowCount(), 1);
    EXPECT_EQ(rows->item(0, 2)->text(), "You are in a bare, empty room.");
    rows->item(0, 1)->setText("7");
    QApplication::processEvents();
    EXPECT_EQ(line->text(), "CLIMB 7");
    EXPECT_EQ(rows->item(0, 2)->text(), "");
    line->setFocus();
    line->selectAll();
    QTest::keyClicks(line, "CLIMB 0 CLIMB 1");
    EXPECT_EQ(rows->rowCount(), 2);
    rows->setCurrentCell(0, 0);
    Find<QPushButton>(dialog, "remove")->click();
    EXPECT_EQ(line->text(), "CLIMB 1");
}

TEST_F(RecordDialogs, AnObjectIsAdded) {
    authoring::ObjectScreen screen(context_, {1, true});
    ObjectDialog dialog(screen);
    Open(dialog);
    Find<QPlainTextEdit>(dialog, "description")->setPlainText("a lamp");
    EXPECT_FALSE(Find<QComboBox>(dialog, "room")->isEnabled());
    Find<QRadioButton>(dialog, "initialPlace3")->click();
    EXPECT_TRUE(Find<QComboBox>(dialog, "room")->isEnabled());
    Find<QComboBox>(dialog, "room")->setCurrentIndex(0);
    Find<QPushButton>(dialog, "update")->click();
    EXPECT_TRUE(boxes_.Boxes().empty());
    EXPECT_EQ(Stored(TableNum::Objects, "objlocdesc", "objnum=1"), "In Room 0.");
}

TEST_F(RecordDialogs, AContainerThatIsRefusedIsNotTicked) {
    authoring::ObjectScreen screen(context_, {5, true});
    ObjectDialog dialog(screen);
    Open(dialog);
    auto* container = Find<QCheckBox>(dialog, "container");
    boxes_.AnswerNext(false);
    container->click();
    EXPECT_EQ(
        boxes_.Boxes().at(0).text,
        "What a container holds lies in the location of its number. There is no location 5. Make it?");
    EXPECT_FALSE(container->isChecked());
    EXPECT_FALSE(Find<QLabel>(dialog, "inside")->isVisible());
    boxes_.AnswerNext(true);
    container->click();
    EXPECT_TRUE(container->isChecked());
    EXPECT_EQ(Find<QLabel>(dialog, "inside")->text(), "What is in it lies in location 5, which is made.");
}

TEST_F(RecordDialogs, ANewObjectIsOfferedItsNounAndAWordThatIsNotThereIsMadeWithIt) {
    authoring::ObjectScreen screen(context_, {5, true});
    ObjectDialog dialog(screen);
    Open(dialog);
    auto* offer = Find<QCheckBox>(dialog, "makeNoun");
    EXPECT_FALSE(offer->isVisible());
    QTest::keyClicks(QApplication::focusWidget(), "a rusty trow");
    EXPECT_TRUE(offer->isVisible());
    EXPECT_EQ(offer->text().remove('&'), "Make the noun TROW");
    QTest::keyClicks(QApplication::focusWidget(), "el");
    EXPECT_EQ(offer->text().remove('&'), "Make the noun TROWEL");
    EXPECT_EQ(Find<QComboBox>(dialog, "noun")->currentText(), "TROWEL");
    EXPECT_TRUE(offer->isChecked());
    Find<QRadioButton>(dialog, "initialPlace2")->click();
    Find<QPushButton>(dialog, "update")->click();
    EXPECT_TRUE(boxes_.Boxes().empty());
    EXPECT_EQ(Stored(TableNum::Objects, "objnoun", "objnum=5"), "TROWEL");
    EXPECT_EQ(Stored(TableNum::Vocabulary, "voctype", "word='TROWEL'"), "Noun");
}

TEST_F(RecordDialogs, TheOfferedNounComesAndGoesWithItsTick) {
    authoring::ObjectScreen screen(context_, {5, true});
    ObjectDialog dialog(screen);
    Open(dialog);
    auto* noun = Find<QComboBox>(dialog, "noun");
    auto* offer = Find<QCheckBox>(dialog, "makeNoun");
    QTest::keyClicks(QApplication::focusWidget(), "a trowel");
    offer->click();
    EXPECT_EQ(noun->currentText(), "");
    EXPECT_TRUE(offer->isVisible());
    QTest::keyClicks(Find<QPlainTextEdit>(dialog, "description"), " of tin");
    EXPECT_EQ(noun->currentText(), "") << "the author has decided";
    EXPECT_EQ(offer->text().remove('&'), "Make the noun TIN");
    offer->click();
    EXPECT_EQ(noun->currentText(), "TIN");
    noun->setFocus();
    noun->lineEdit()->selectAll();
    QTest::keyClicks(noun, "spade");
    EXPECT_EQ(offer->text().remove('&'), "Make the noun SPADE");
    EXPECT_TRUE(offer->isChecked());
}

TEST_F(RecordDialogs, ANounThatALongerOneBeginsWithStaysAsItIsTypedAndIsOffered) {
    store::Cursor& words = document_.Adventure().OpenTable(TableNum::Vocabulary, "def");
    words.AddNew();
    words.SetField("vocindex", std::int64_t{201});
    words.SetField("vocnum", std::int64_t{31});
    words.SetField("word", std::string("SPADES"));
    words.SetField("voctypen", std::int64_t{2});
    words.SetField("voctype", std::string("Noun"));
    words.Update();
    authoring::ObjectScreen screen(context_, {5, true});
    ObjectDialog dialog(screen);
    Open(dialog);
    auto* noun = Find<QComboBox>(dialog, "noun");
    noun->setFocus();
    QTest::keyClicks(noun, "spad");
    QTest::keyClick(noun, Qt::Key_Tab);
    QApplication::processEvents();
    EXPECT_EQ(noun->currentText(), "spad");
    EXPECT_EQ(Find<QCheckBox>(dialog, "makeNoun")->text().remove('&'), "Make the noun SPAD");
}

TEST_F(RecordDialogs, ALocationThatIsTypedStaysThatNumberWhereALongerOneBeginsWithIt) {
    store::Cursor& places = document_.Adventure().OpenTable(TableNum::Locations, "def");
    places.AddNew();
    places.SetField("locnum", std::int64_t{10});
    places.SetField("locshortdesc", std::string("The cellar"));
    places.Update();
    authoring::ObjectScreen screen(context_, {5, true});
    ObjectDialog dialog(screen);
    Open(dialog);
    Find<QRadioButton>(dialog, "initialPlace3")->click();
    auto* room = Find<QComboBox>(dialog, "room");
    room->setFocus();
    room->lineEdit()->selectAll();
    QTest::keyClicks(room, "1");
    EXPECT_EQ(room->currentText(), "1");
    QTest::keyClicks(room, "0");
    QTest::keyClick(room, Qt::Key_Tab);
    QApplication::processEvents();
    EXPECT_EQ(room->currentText(), "10 - The cellar");
}

TEST_F(RecordDialogs, WhatAnExitDoesIsToldWhileItIsTyped) {
    authoring::LocationScreen screen(context_, {0, false});
    LocationDialog dialog(screen);
    Open(dialog);
    auto* word = Find<QComboBox>(dialog, "exitWord");
    const auto* told = Find<QLabel>(dialog, "whatAddDoes");
    EXPECT_TRUE(Find<QCheckBox>(dialog, "andBack")->isChecked());
    word->setFocus();
    EXPECT_FALSE(told->isVisible());
    QTest::keyClicks(word, "CLIMB The loft");
    EXPECT_TRUE(told->isVisible());
    EXPECT_EQ(
        qt::FromQt(told->text()),
        "Makes location 1, \u201CThe loft\u201D; no word leads back, as none is the opposite of CLIMB.");
    EXPECT_EQ(word->accessibleDescription(), told->text());
    Find<QCheckBox>(dialog, "andBack")->click();
    EXPECT_EQ(qt::FromQt(told->text()), "Makes location 1, \u201CThe loft\u201D.");
    QTest::keyClick(word, Qt::Key_Return);
    EXPECT_EQ(told->text(), "");
    EXPECT_EQ(Find<QLineEdit>(dialog, "exits")->text(), "CLIMB 1");
    QTest::keyClicks(word, "CLIMB");
    QTest::keyClick(word, Qt::Key_Tab);
    QTest::keyClicks(dialog.focusWidget(), "7");
    EXPECT_EQ(told->text(), "There is not a location with a number of 7 for CLIMB");
    EXPECT_TRUE(boxes_.Boxes().empty());
}

TEST_F(RecordDialogs, AWordIsAddedWithTheNumberThatItsTypeProposes) {
    authoring::WordScreen screen(context_, {context_.nextWord, true});
    WordDialog dialog(screen);
    Open(dialog);
    QTest::keyClicks(Find<QLineEdit>(dialog, "word"), "jump");
    Find<QRadioButton>(dialog, "type0")->click();
    EXPECT_EQ(Find<QLineEdit>(dialog, "number")->text(), "31");
    Find<QPushButton>(dialog, "update")->click();
    EXPECT_EQ(Stored(TableNum::Vocabulary, "vocnum", "word='JUMP'"), "31");
}

TEST_F(RecordDialogs, AFlagIsDescribed) {
    authoring::FlagScreen screen(context_, {60, false});
    FlagDialog dialog(screen);
    Open(dialog);
    Find<QComboBox>(dialog, "use")->setCurrentText("Switch");
    Find<QPlainTextEdit>(dialog, "description")->setPlainText("The door is open.");
    Find<QPushButton>(dialog, "update")->click();
    EXPECT_EQ(Stored(TableNum::Flags, "flguse", "flgnum=60"), "Switch");
}

TEST_F(RecordDialogs, AColorIsPicked) {
    authoring::ColourScreen screen(authoring::ColourScreen::Purpose::Ink, 0);
    ColourDialog dialog(screen);
    Open(dialog);
    EXPECT_EQ(dialog.windowTitle(), "Set Color for Ink");
    Find<QToolButton>(dialog, "colour9")->click();
    Find<QPushButton>(dialog, "update")->click();
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_EQ(screen.Current(), 9);
}

TEST_F(RecordDialogs, ADoubleClickTakesAColor) {
    authoring::ColourScreen screen(authoring::ColourScreen::Purpose::Ink, 0);
    ColourDialog dialog(screen);
    Open(dialog);
    auto* colour = Find<QToolButton>(dialog, "colour9");
    QTest::mouseClick(colour, Qt::LeftButton);
    QTest::mouseDClick(colour, Qt::LeftButton);
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_EQ(screen.Current(), 9);
}

TEST_F(RecordDialogs, TheColorsStandInTwoFramesOfEight) {
    authoring::ColourScreen screen(authoring::ColourScreen::Purpose::Paper, 0);
    ColourDialog dialog(screen);
    Open(dialog);
    EXPECT_EQ(dialog.windowTitle(), "Set Color for Paper");
    QStringList frames;
    for (const QGroupBox* frame : dialog.findChildren<QGroupBox*>()) {
        frames << frame->title();
        EXPECT_EQ(frame->findChildren<QToolButton*>().size(), 8);
    }
    EXPECT_EQ(frames, (QStringList{"Normal Colors", "Bright Colors"}));
    const QImage swatch = Find<QToolButton>(dialog, "colour2")->icon().pixmap(16).toImage();
    EXPECT_EQ(swatch.pixelColor(swatch.width() / 2, swatch.height() / 2).name().toStdString(), "#e60000");
}

TEST_F(RecordDialogs, ExitLeavesTheColorToTheCaller) {
    authoring::ColourScreen screen(authoring::ColourScreen::Purpose::Ink, 3);
    ColourDialog dialog(screen);
    Open(dialog);
    Find<QToolButton>(dialog, "colour9")->click();
    Find<QPushButton>(dialog, "exit")->click();
    EXPECT_EQ(dialog.result(), QDialog::Rejected);
}

}  // namespace
}  // namespace fabula::ide
