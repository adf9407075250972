#include "ide/settings_dialog.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSlider>
#include <QTabWidget>
#include <QTest>
#include <QTimer>
#include <fstream>
#include <memory>

#include <gtest/gtest.h>

#include "authoring/desk.h"
#include "ide/dialog_checks.h"
#include "qt/strings.h"
#include "support/game_builder.h"

namespace fabula::ide {
namespace {

using store::TableNum;

/// The settings of a fresh adventure, open in their dialog.
class SettingsDialogTest : public testing::Test {
  protected:
    void Set(std::string_view field, text::Value value) {
        store::Cursor& record = desk_.Adventure().OpenTable(TableNum::Adventure, "def");
        record.SetField(field, std::move(value));
        record.Update();
        desk_.Adventure().ReadSettings();
    }
    void Open() {
        screen_ = std::make_unique<authoring::frmVelAdvSettings>(desk_.session,
                                                                 std::vector<std::string>{"USB keys"});
        dialog_ = std::make_unique<SettingsDialog>(*screen_, sound_);
        dialog_->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(dialog_.get()));
    }
    template <typename Control>
    Control& Part(const char* name) {
        auto* control = dialog_->findChild<Control*>(name);
        if (control == nullptr) throw std::logic_error(std::string("there is no part ") + name);
        return *control;
    }
    void TurnTo(int page) { Part<QTabWidget>("tabSettings").setCurrentIndex(page); }
    std::string Stored(std::string_view fields) { return desk_.Rows(TableNum::Adventure, fields).at(0); }

    test::Desk desk_;
    test::RecordingSound sound_;
    std::unique_ptr<authoring::frmVelAdvSettings> screen_;
    std::unique_ptr<SettingsDialog> dialog_;
};

TEST_F(SettingsDialogTest, IsEditedByKeysAlone) {
    Open();
    EXPECT_EQ(dialog_->windowTitle(), "Adventure Settings Editor");
    ASSERT_EQ(dialog_->focusWidget(), &Part<QLineEdit>("txtAdventureName"));
    Part<QLineEdit>("txtAdventureName").selectAll();
    QTest::keyClicks(dialog_->focusWidget(), "The Cave");
    QTest::keyClick(dialog_->focusWidget(), Qt::Key_Tab);
    ASSERT_EQ(dialog_->focusWidget(), &Part<QLineEdit>("txtAuthor"));
    QTest::keyClicks(dialog_->focusWidget(), "Ann");
    QTest::keyClick(dialog_->focusWidget(), Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(dialog_->result(), QDialog::Accepted);
    EXPECT_EQ(Stored("advname, author"), "The Cave|Ann");
}

TEST_F(SettingsDialogTest, StoresAllItsControls) {
    Open();
    Part<QLineEdit>("txtSaveName").setText("cave");
    Part<QLineEdit>("txtVersion").setText("2");
    Part<QComboBox>("cboAdvenType").setCurrentText("VEL");
    Part<QLineEdit>("txtMaxObjects").setText("9");
    Part<QLineEdit>("txtMaxWeight").setText("50");
    Part<QComboBox>("cboFont").setCurrentText("4-Georgia");
    Part<QComboBox>("cboFontSize").setCurrentText("18");
    Part<QComboBox>("cboPrintWidth").setCurrentText("40");
    Part<QCheckBox>("chkGraphics").click();
    Part<QCheckBox>("chkGraphicsInDb").click();
    Part<QPlainTextEdit>("txtAdvDesc").setPlainText("One.\nTwo.");
    Part<QPlainTextEdit>("txtContactInfo").setPlainText("Write.");
    Part<QCheckBox>("chkSound").setChecked(true);
    Part<QComboBox>("cboDevice").setCurrentText("USB keys");
    Part<QComboBox>("cboChannel").setCurrentText(" 9");
    Part<QComboBox>("cboVoice").setCurrentText("73-Flute");
    Part<QSlider>("sldVolume").setValue(90);
    Part<QSlider>("sldBalance").setValue(10);
    Part<QSlider>("sldBass").setValue(20);
    Part<QComboBox>("cboSource").setCurrentText("ACE");
    Part<QPushButton>("cmdUpdate").click();
    ASSERT_EQ(dialog_->result(), QDialog::Accepted);
    EXPECT_EQ(Stored("savename, Version, adventype, maxobj, maxweight, Font, FontSize, defprintwidth"),
              "cave|2|VEL|9|50|4|18|40");
    EXPECT_EQ(Stored("graphics, graphicsindb, advdesc, advcontactinfo"), "1|1|One.\u008CTwo. |Write.");
    EXPECT_EQ(Stored("sound, defsnddevname, defsndchan, defsndvoice, defsndvol, defsndbal, defsndbass"),
              "1|USB keys|9|73|90|10|20");
    EXPECT_EQ(Stored("source"), "ACE");
}

TEST_F(SettingsDialogTest, ExitStoresNothing) {
    Open();
    Part<QLineEdit>("txtAuthor").setText("Ann");
    QTest::keyClick(dialog_.get(), Qt::Key_Escape);
    EXPECT_FALSE(dialog_->isVisible());
    EXPECT_EQ(desk_.document.UndoName(), std::nullopt);
}

TEST_F(SettingsDialogTest, UpdateWithoutATouchStoresNothing) {
    Set("defsndvol", std::int64_t{500});
    Set("defsndchan", std::int64_t{16});
    Open();
    Part<QPushButton>("cmdUpdate").click();
    EXPECT_EQ(dialog_->result(), QDialog::Accepted);
    EXPECT_EQ(desk_.document.UndoName(), std::nullopt);
}

TEST_F(SettingsDialogTest, RefusedFieldGetsTheFocusBack) {
    Open();
    auto& objects = Part<QLineEdit>("txtMaxObjects");
    objects.setFocus();
    objects.selectAll();
    QTest::keyClicks(&objects, "26");
    QTest::keyClick(&objects, Qt::Key_Tab);
    QApplication::processEvents();
    ASSERT_EQ(desk_.Boxes(), std::vector<std::string>{"Maximum value allowed is 25"});
    EXPECT_EQ(dialog_->focusWidget(), &objects);
}

TEST_F(SettingsDialogTest, UpdateTurnsToThePageOfTheFault) {
    Open();
    Part<QLineEdit>("txtSaveName").setText("");
    TurnTo(2);
    Part<QPushButton>("cmdUpdate").click();
    EXPECT_TRUE(dialog_->isVisible());
    EXPECT_EQ(desk_.Boxes(), std::vector<std::string>{"Must have a Save Name"});
    EXPECT_EQ(Part<QTabWidget>("tabSettings").currentIndex(), 0);
    EXPECT_EQ(dialog_->focusWidget(), &Part<QLineEdit>("txtSaveName"));
}

TEST_F(SettingsDialogTest, SoundPageIsUpdatedAfterATestOnly) {
    Open();
    TurnTo(1);
    Part<QPushButton>("cmdUpdate").click();
    EXPECT_EQ(desk_.Boxes(), std::vector<std::string>{"You must Test Voice before I can update!"});
    EXPECT_EQ(dialog_->focusWidget(), &Part<QPushButton>("cmdTestVoice"));
    Part<QComboBox>("cboVoice").setCurrentText("73-Flute");
    Part<QPushButton>("cmdTestVoice").click();
    EXPECT_EQ(sound_.settings.voice, 73);
    EXPECT_EQ(sound_.notes.size(), 1u);
    EXPECT_EQ(Part<QLabel>("lblHeard").text(), "The note is played.");
    Part<QPushButton>("cmdUpdate").click();
    EXPECT_EQ(dialog_->result(), QDialog::Accepted);
}

TEST_F(SettingsDialogTest, TestVoiceSaysWhenNothingCanPlay) {
    sound_.sounds = false;
    Open();
    Part<QPushButton>("cmdTestVoice").click();
    EXPECT_EQ(Part<QLabel>("lblHeard").text(),
              "This computer has nothing that plays notes. The settings count as tested.");
}

TEST_F(SettingsDialogTest, SwitchOfTheSoundSaysWhichWayItStands) {
    Open();
    auto& on = Part<QCheckBox>("chkSound");
    on.setChecked(true);
    EXPECT_EQ(on.text(), "&Sound ON");
    on.setChecked(false);
    EXPECT_EQ(on.text(), "&Sound OFF");
}

TEST_F(SettingsDialogTest, FontTestFollowsFontSizeAndColours) {
    Open();
    auto& sample = Part<QLabel>("FontTest");
    Part<QComboBox>("cboFont").setCurrentText("18-Liberation Mono");
    Part<QComboBox>("cboFontSize").setCurrentText("20");
    EXPECT_EQ(sample.font().family(), "Liberation Mono");
    EXPECT_EQ(sample.font().pointSize(), 20);
    QTimer::singleShot(0, [] {
        QWidget* colours = QApplication::activeModalWidget();
        ASSERT_NE(colours, nullptr);
        EXPECT_EQ(colours->windowTitle(), "Set Color for Paper");
        colours->findChild<QAbstractButton*>("lblColor1")->click();
        colours->findChild<QPushButton*>("cmdUpdate")->click();
    });
    auto& paper = Part<QPushButton>("lblBackColor");
    paper.click();
    EXPECT_EQ(paper.text().trimmed(), "Blue");
    EXPECT_EQ(paper.accessibleName(), "Paper: Blue");
    EXPECT_EQ(sample.palette().color(QPalette::Window), QColor(0, 0, 0xe6));
}

TEST_F(SettingsDialogTest, CharacterSetsTakeThePlaceOfFontsAndOfTheSample) {
    Open();
    auto& font = Part<QComboBox>("cboFont");
    auto& sample = Part<QLabel>("FontTest");
    Part<QCheckBox>("chkCharSets").click();
    EXPECT_EQ(font.count(), 1);
    EXPECT_EQ(font.currentText(), "SET 0000 - Default");
    EXPECT_FALSE(sample.pixmap(Qt::ReturnByValue).isNull());
    Part<QCheckBox>("chkCharSets").click();
    EXPECT_EQ(font.currentText(), "0-Arial");
    EXPECT_TRUE(sample.pixmap(Qt::ReturnByValue).isNull());
}

TEST_F(SettingsDialogTest, DescriptionIsCounted) {
    Open();
    Part<QPlainTextEdit>("txtAdvDesc").setPlainText("Caf\u00E9");
    EXPECT_EQ(Part<QLabel>("lblCount").text(), "4 of 255 characters");
}

TEST_F(SettingsDialogTest, PictureIsChosenAndCleared) {
    Open();
    const auto file = desk_.Adventure().GameDir() / "a.gif";
    std::ofstream(file) << "a";
    desk_.dialogs.AnswerFile(file);
    Part<QPushButton>("cmdGetPic").click();
    EXPECT_EQ(Part<QLineEdit>("txtDefaultPicture").text(), "a.gif");
    Part<QPushButton>("cmdClearPic").click();
    EXPECT_EQ(Part<QLineEdit>("txtDefaultPicture").text(), "");
}

TEST_F(SettingsDialogTest, PictureThatCannotBeReadIsTold) {
    Open();
    desk_.dialogs.AnswerFile(desk_.Adventure().GameDir() / "gone.gif");
    Part<QPushButton>("cmdGetAbout").click();
    ASSERT_EQ(desk_.Boxes().size(), 1u);
    EXPECT_EQ(Part<QLineEdit>("txtAboutPicture").text(), "");
}

TEST_F(SettingsDialogTest, MarloGamesHaveNeitherWeightNorPrintWidth) {
    Set("adventype", std::string("Marlo"));
    Open();
    EXPECT_FALSE(Part<QLineEdit>("txtMaxWeight").isEnabled());
    EXPECT_FALSE(Part<QComboBox>("cboPrintWidth").isEnabled());
    EXPECT_EQ(Part<QLabel>("lblAdvenType").text(), "Marlo games may not be changed to VEL");
}

TEST_F(SettingsDialogTest, NoteOfTheTypesShowsOneAmpersand) {
    Open();
    EXPECT_EQ(Part<QLabel>("lblAdvenType").text(), "VEL & Fabula games may not be changed to Marlo");
}

TEST_F(SettingsDialogTest, MnemonicsOfEachPageAreDifferent) {
    Open();
    for (const int page : {0, 1, 2}) {
        TurnTo(page);
        EXPECT_EQ(test::MnemonicsTwice(*dialog_), std::vector<std::string>{});
    }
}

TEST_F(SettingsDialogTest, TabGoesThroughThePageAndThenToTheButtons) {
    Open();
    std::vector<std::string> names;
    const QWidget* first = dialog_->focusWidget();
    do {
        names.push_back(qt::FromQt(dialog_->focusWidget()->objectName()));
        QTest::keyClick(dialog_->focusWidget(), Qt::Key_Tab);
        QApplication::processEvents();
    } while (dialog_->focusWidget() != first && names.size() < 50);
    EXPECT_EQ(names, (std::vector<std::string>{
                         "txtAdventureName", "txtAuthor",       "txtSaveName",        "txtVersion",
                         "cboAdvenType",     "cboStartLoc",     "txtMaxObjects",      "txtMaxWeight",
                         "txtAdvDesc",       "txtContactInfo",  "lblBackColor",       "lblTextColor",
                         "chkCharSets",      "cboFont",         "cboFontSize",        "cboPrintWidth",
                         "chkGraphics",      "chkGraphicsInDb", "txtDefaultPicture",  "cmdGetPic",
                         "cmdClearPic",      "txtAboutPicture", "cmdGetAbout",        "cmdClearAbout",
                         "cmdUpdate",        "cmdExit",         "qt_tabwidget_tabbar"}));
}

TEST_F(SettingsDialogTest, OpensInASizeThatHoldsItsColumns) {
    Open();
    EXPECT_EQ(test::ScrollsSideways(*dialog_), 0);
}

TEST_F(SettingsDialogTest, FitsASmallScreen) {
    Open();
    dialog_->resize(640, 400);
    QApplication::processEvents();
    EXPECT_LE(dialog_->width(), 640);
    EXPECT_LE(dialog_->height(), 400);
    EXPECT_EQ(test::ScrollsSideways(*dialog_), 0);
    test::GrabInBothThemes(*dialog_, "settings-small");
}

TEST_F(SettingsDialogTest, SoundHasRoomForTextOfTwiceTheSize) {
    const QFont before = QApplication::font();
    QFont large = before;
    large.setPointSizeF(2 * before.pointSizeF());
    QApplication::setFont(large);
    Open();
    dialog_->resize(800, 600);
    QApplication::processEvents();
    EXPECT_LE(dialog_->width(), 800);
    TurnTo(1);
    EXPECT_EQ(test::ScrollsSideways(*dialog_), 0);
    test::GrabInBothThemes(*dialog_, "settings-large-sound");
    dialog_.reset();
    QApplication::setFont(before);
}

TEST_F(SettingsDialogTest, EveryControlHasANameAndBothThemesShowIt) {
    Open();
    for (const int page : {0, 1, 2}) {
        TurnTo(page);
        EXPECT_EQ(test::WidgetsWithoutName(*dialog_), std::vector<std::string>{});
        test::GrabInBothThemes(*dialog_, QString("settings-%1").arg(page));
    }
    TurnTo(0);
    Part<QCheckBox>("chkCharSets").click();
    test::GrabInBothThemes(*dialog_, "settings-charsets");
}

}  // namespace
}  // namespace fabula::ide
