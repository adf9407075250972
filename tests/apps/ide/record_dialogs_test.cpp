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

#include "authoring/document.h"
#include "ide/colors_dialog.h"
#include "ide/flag_dialog.h"
#include "ide/location_dialog.h"
#include "ide/object_dialog.h"
#include "ide/word_dialog.h"
#include "platform/scripted_dialogs.h"
#include "support/temp_folder.h"
#include "support/template_adventure.h"

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
        authoring::ReadNextKeys(session_);
    }

    static std::filesystem::path Made(const std::filesystem::path& file) {
        test::MakeAdventure(file);
        return file;
    }

    static void Open(QDialog& dialog) {
        dialog.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
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
    authoring::Session session_{document_, boxes_};
};

TEST_F(RecordDialogs, ALocationIsEditedByKeysAlone) {
    authoring::frmVelLocation screen(session_, {0, false});
    LocationDialog dialog(screen);
    Open(dialog);
    Find<QPlainTextEdit>(dialog, "txtShortDesc")->setFocus();
    QTest::keyClicks(dialog.focusWidget(), "The hall");
    QTest::keyClick(dialog.focusWidget(), Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_EQ(Stored(TableNum::Locations, "locshortdesc", "locnum=0"), "The hall");
}

TEST_F(RecordDialogs, ExitLeavesTheLocationAsItWas) {
    authoring::frmVelLocation screen(session_, {0, false});
    LocationDialog dialog(screen);
    Open(dialog);
    Find<QPlainTextEdit>(dialog, "txtShortDesc")->setPlainText("The hall");
    QTest::keyClick(&dialog, Qt::Key_Escape);
    EXPECT_EQ(dialog.result(), QDialog::Rejected);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(Stored(TableNum::Locations, "locshortdesc", "locnum=0"), " ");
}

TEST_F(RecordDialogs, ARefusedFieldKeepsTheFocus) {
    authoring::frmVelLocation screen(session_, {0, false});
    LocationDialog dialog(screen);
    Open(dialog);
    auto* shortDescription = Find<QPlainTextEdit>(dialog, "txtShortDesc");
    shortDescription->setFocus();
    QTest::keyClicks(shortDescription, "Fish & chips");
    QTest::keyClick(shortDescription, Qt::Key_Tab);
    QApplication::processEvents();
    ASSERT_EQ(boxes_.Boxes().size(), 1u);
    EXPECT_EQ(boxes_.Boxes().at(0).title, "Error");
    EXPECT_EQ(dialog.focusWidget(), shortDescription);
}

TEST_F(RecordDialogs, TheShortDescriptionIsPreviewedWithItsMarkup) {
    authoring::frmVelLocation screen(session_, {0, false});
    LocationDialog dialog(screen);
    Open(dialog);
    QTest::keyClicks(Find<QPlainTextEdit>(dialog, "txtShortDesc"), "<BRIGHT>The hall</BRIGHT>");
    EXPECT_EQ(Find<QTextEdit>(dialog, "txtShortPreview")->toPlainText(), "The hall");
    EXPECT_EQ(Find<QLabel>(dialog, "lblShortCounts")->text(), "2 words, 7 letters");
}

TEST_F(RecordDialogs, UpdateOfARefusedFieldKeepsTheDialogOpen) {
    authoring::frmVelLocation screen(session_, {0, false});
    LocationDialog dialog(screen);
    Open(dialog);
    Find<QLineEdit>(dialog, "txtExits")->setText("XYZZY 0");
    Find<QPushButton>(dialog, "cmdUpdate")->click();
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(boxes_.Boxes().at(0).text, "XYZZY is not a valid word");
    EXPECT_EQ(dialog.focusWidget(), Find<QLineEdit>(dialog, "txtExits"));
}

TEST_F(RecordDialogs, EnterAddsAnExitAndClosesNothing) {
    authoring::frmVelLocation screen(session_, {0, false});
    LocationDialog dialog(screen);
    Open(dialog);
    Find<QComboBox>(dialog, "cboExit")->setFocus();
    QTest::keyClicks(dialog.focusWidget(), "CLIMB");
    QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
    QTest::keyClicks(dialog.focusWidget(), "0");
    QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(Find<QLineEdit>(dialog, "txtExits")->text(), "CLIMB 0");
    EXPECT_EQ(Find<QComboBox>(dialog, "cboLoc")->currentText(), "");
    EXPECT_EQ(dialog.focusWidget(), Find<QComboBox>(dialog, "cboExit"));
}

TEST_F(RecordDialogs, RowsOfExitsAndTheirLineAreKeptInStep) {
    authoring::frmVelLocation screen(session_, {0, false});
    LocationDialog dialog(screen);
    Open(dialog);
    Find<QComboBox>(dialog, "cboExit")->setEditText("CLIMB");
    Find<QComboBox>(dialog, "cboLoc")->setEditText("0");
    Find<QPushButton>(dialog, "cmdAdd")->click();
    auto* line = Find<QLineEdit>(dialog, "txtExits");
    auto* rows = Find<QTableWidget>(dialog, "grdExits");
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
    Find<QPushButton>(dialog, "cmdRemove")->click();
    EXPECT_EQ(line->text(), "CLIMB 1");
}

TEST_F(RecordDialogs, AnObjectIsAdded) {
    authoring::frmVelObjects screen(session_, {1, true});
    ObjectDialog dialog(screen);
    Open(dialog);
    Find<QPlainTextEdit>(dialog, "txtObjDesc")->setPlainText("a lamp");
    EXPECT_FALSE(Find<QComboBox>(dialog, "cboInRoom")->isEnabled());
    Find<QRadioButton>(dialog, "optInitiaLloc3")->click();
    EXPECT_TRUE(Find<QComboBox>(dialog, "cboInRoom")->isEnabled());
    Find<QComboBox>(dialog, "cboInRoom")->setCurrentIndex(0);
    Find<QPushButton>(dialog, "cmdUpdate")->click();
    EXPECT_TRUE(boxes_.Boxes().empty());
    EXPECT_EQ(Stored(TableNum::Objects, "objlocdesc", "objnum=1"), "In Room 0.");
}

TEST_F(RecordDialogs, AContainerThatIsRefusedIsNotTicked) {
    authoring::frmVelObjects screen(session_, {5, true});
    ObjectDialog dialog(screen);
    Open(dialog);
    auto* container = Find<QCheckBox>(dialog, "chkContainer");
    container->click();
    EXPECT_EQ(boxes_.Boxes().at(0).text, "There is no location with this object number");
    EXPECT_FALSE(container->isChecked());
}

TEST_F(RecordDialogs, AWordIsAddedWithTheNumberThatItsTypeProposes) {
    authoring::frmVelVocabulary screen(session_, {session_.nextWord, true});
    WordDialog dialog(screen);
    Open(dialog);
    QTest::keyClicks(Find<QLineEdit>(dialog, "txtWord"), "jump");
    Find<QRadioButton>(dialog, "optType0")->click();
    EXPECT_EQ(Find<QLineEdit>(dialog, "txtWordNum")->text(), "31");
    Find<QPushButton>(dialog, "cmdUpdate")->click();
    EXPECT_EQ(Stored(TableNum::Vocabulary, "vocnum", "word='JUMP'"), "31");
}

TEST_F(RecordDialogs, AFlagIsDescribed) {
    authoring::frmFlags screen(session_, {60, false});
    FlagDialog dialog(screen);
    Open(dialog);
    Find<QComboBox>(dialog, "cboFlgUse")->setCurrentText("Switch");
    Find<QPlainTextEdit>(dialog, "txtFlgDesc")->setPlainText("The door is open.");
    Find<QPushButton>(dialog, "cmdUpdate")->click();
    EXPECT_EQ(Stored(TableNum::Flags, "flguse", "flgnum=60"), "Switch");
}

TEST_F(RecordDialogs, AColorIsPicked) {
    authoring::frmColors screen(authoring::frmColors::Purpose::Ink, 0);
    ColorsDialog dialog(screen);
    Open(dialog);
    EXPECT_EQ(dialog.windowTitle(), "Set Color for Ink");
    Find<QToolButton>(dialog, "lblColor9")->click();
    Find<QPushButton>(dialog, "cmdUpdate")->click();
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_EQ(screen.Current(), 9);
}

TEST_F(RecordDialogs, ADoubleClickTakesAColor) {
    authoring::frmColors screen(authoring::frmColors::Purpose::Ink, 0);
    ColorsDialog dialog(screen);
    Open(dialog);
    auto* colour = Find<QToolButton>(dialog, "lblColor9");
    QTest::mouseClick(colour, Qt::LeftButton);
    QTest::mouseDClick(colour, Qt::LeftButton);
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_EQ(screen.Current(), 9);
}

TEST_F(RecordDialogs, TheColorsStandInTwoFramesOfEight) {
    authoring::frmColors screen(authoring::frmColors::Purpose::Paper, 0);
    ColorsDialog dialog(screen);
    Open(dialog);
    EXPECT_EQ(dialog.windowTitle(), "Set Color for Paper");
    QStringList frames;
    for (const QGroupBox* frame : dialog.findChildren<QGroupBox*>()) {
        frames << frame->title();
        EXPECT_EQ(frame->findChildren<QToolButton*>().size(), 8);
    }
    EXPECT_EQ(frames, (QStringList{"Normal Colors", "Bright Colors"}));
    const QImage swatch = Find<QToolButton>(dialog, "lblColor2")->icon().pixmap(16).toImage();
    EXPECT_EQ(swatch.pixelColor(swatch.width() / 2, swatch.height() / 2).name().toStdString(), "#e60000");
}

TEST_F(RecordDialogs, ExitLeavesTheColorToTheCaller) {
    authoring::frmColors screen(authoring::frmColors::Purpose::Ink, 3);
    ColorsDialog dialog(screen);
    Open(dialog);
    Find<QToolButton>(dialog, "lblColor9")->click();
    Find<QPushButton>(dialog, "cmdExit")->click();
    EXPECT_EQ(dialog.result(), QDialog::Rejected);
}

}  // namespace
}  // namespace fabula::ide
