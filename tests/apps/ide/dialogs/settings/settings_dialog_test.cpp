#include "ide/dialogs/settings/settings_dialog.h"

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
#include "support/active_window.h"
#include "support/games/game_builder.h"

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
        screen_ = std::make_unique<authoring::SettingsScreen>(desk_.context,
                                                              std::vector<std::string>{"USB keys"});
        dialog_ = std::make_unique<SettingsDialog>(*screen_, sound_);
        dialog_->show();
        ASSERT_TRUE(test::BecomesActive(dialog_.get()));
    }
    template <typename Control>
    Control& Part(const char* name) {
        auto* control = dialog_->findChild<Control*>(name);
        if (control == nullptr) throw std::logic_error(std::string("there is no part ") + name);
        return *control;
    }
    void TurnTo(int page) { Part<QTabWidget>("pages").setCurrentIndex(page); }
    std::string Stored(std::string_view fields) { return desk_.Rows(TableNum::Adventure, fields).at(0); }

    test::Desk desk_;
    test::RecordingSound sound_;
    std::unique_ptr<authoring::SettingsScreen> screen_;
    std::unique_ptr<SettingsDialog> dialog_;
};

TEST_F(SettingsDialogTest, IsEditedByKeysAlone) {
    Open();
    EXPECT_EQ(dialog_->windowTitle(), "Adventure Settings Editor");
    ASSERT_EQ(dialog_->focusWidget(), &Part<QLineEdit>("name"));
    Part<QLineEdit>("name").selectAll();
    QTest::keyClicks(dialog_->focusWidget(), "The Cave");
    QTest::keyClick(dialog_->focusWidget(), Qt::Key_Tab);
    ASSERT_EQ(dialog_->focusWidget(), &Part<QLineEdit>("author"));
    QTest::keyClicks(dialog_->focusWidget(), "Ann");
    QTest::keyClick(dialog_->focusWidget(), Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(dialog_->result(), QDialog::Accepted);
    EXPECT_EQ(Stored("advname, author"), "The Cave|Ann");
}

TEST_F(SettingsDialogTest, AsksNothingAboutTextsWithBlanksThatDoNotBreak) {
    Set("advdesc", std::string("la\u00A0porte "));
    Set("advcontactinfo", std::string("A.\u00A0Author"));
    Open();
    QTest::keyClick(dialog_->focusWidget(), Qt::Key_Escape);
    EXPECT_FALSE(dialog_->isVisible());
    EXPECT_TRUE(desk_.Boxes().empty());
}

TEST_F(SettingsDialogTest, StoresAllItsControls) {
    Open();
    Part<QLineEdit>("saveName").setText("cave");
    Part<QLineEdit>("version").setText("2");
    Part<QComboBox>("type").setCurrentText("VEL");
    Part<QLineEdit>("maxObjects").setText("9");
    Part<QLineEdit>("maxWeight").setText("50");
    Part<QComboBox>("font").setCurrentText("4-Georgia");
    Part<QComboBox>("fontSize").setCurrentText("18");
    Part<QComboBox>("printWidth").setCurrentText("40");
    Part<QCheckBox>("graphics").click();
    Part<QCheckBox>("graphicsInDb").click();
    Part<QPlainTextEdit>("description").setPlainText("One.\nTwo.");
    Part<QPlainTextEdit>("contactInfo").setPlainText("Write.");
    Part<QCheckBox>("sound").setChecked(true);
    Part<QComboBox>("device").setCurrentText("USB keys");
    Part<QComboBox>("channel").setCurrentText(" 9");
    Part<QComboBox>("voice").setCurrentText("73-Flute");
    Part<QSlider>("volume").setValue(90);
    Part<QSlider>("balance").setValue(10);
    Part<QSlider>("bass").setValue(20);
    Part<QComboBox>("source").setCurrentText("ACE");
    Part<QPushButton>("update").click();
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
    Part<QLineEdit>("author").setText("Ann");
    desk_.dialogs.AnswerLeaving(platform::Leaving::Discard);
    QTest::keyClick(dialog_.get(), Qt::Key_Escape);
    EXPECT_FALSE(dialog_->isVisible());
    EXPECT_EQ(desk_.document.UndoName(), std::nullopt);
}

TEST_F(SettingsDialogTest, UpdateWithoutATouchStoresNothing) {
    Set("defsndvol", std::int64_t{500});
    Set("defsndchan", std::int64_t{16});
    Open();
    Part<QPushButton>("update").click();
    EXPECT_EQ(dialog_->result(), QDialog::Accepted);
    EXPECT_EQ(desk_.document.UndoName(), std::nullopt);
}

TEST_F(SettingsDialogTest, RefusedFieldGetsTheFocusBack) {
    Open();
    auto& objects = Part<QLineEdit>("maxObjects");
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
    Part<QLineEdit>("saveName").setText("");
    TurnTo(2);
    Part<QPushButton>("update").click();
    EXPECT_TRUE(dialog_->isVisible());
    EXPECT_EQ(desk_.Boxes(), std::vector<std::string>{"Must have a Save Name"});
    EXPECT_EQ(Part<QTabWidget>("pages").currentIndex(), 0);
    EXPECT_EQ(dialog_->focusWidget(), &Part<QLineEdit>("saveName"));
}

TEST_F(SettingsDialogTest, SoundPageIsUpdatedAfterATestOnly) {
    Open();
    TurnTo(1);
    Part<QPushButton>("update").click();
    EXPECT_EQ(desk_.Boxes(), std::vector<std::string>{"You must Test Voice before I can update!"});
    EXPECT_EQ(dialog_->focusWidget(), &Part<QPushButton>("testVoice"));
    Part<QComboBox>("voice").setCurrentText("73-Flute");
    Part<QPushButton>("testVoice").click();
    EXPECT_EQ(sound_.settings.voice, 73);
    EXPECT_EQ(sound_.notes.size(), 1u);
    EXPECT_EQ(Part<QLabel>("heard").text(), "The note is played.");
    Part<QPushButton>("update").click();
    EXPECT_EQ(dialog_->result(), QDialog::Accepted);
}

TEST_F(SettingsDialogTest, TestVoiceSaysWhenNothingCanPlay) {
    sound_.SetSilent(true);
    Open();
    Part<QPushButton>("testVoice").click();
    EXPECT_EQ(Part<QLabel>("heard").text(),
              "This computer has nothing that plays notes. The settings count as tested.");
}

TEST_F(SettingsDialogTest, SwitchOfTheSoundSaysWhichWayItStands) {
    Open();
    auto& on = Part<QCheckBox>("sound");
    on.setChecked(true);
    EXPECT_EQ(on.text(), "&Sound ON");
    on.setChecked(false);
    EXPECT_EQ(on.text(), "&Sound OFF");
}

TEST_F(SettingsDialogTest, FontTestFollowsFontSizeAndColours) {
    Open();
    auto& sample = Part<QLabel>("FontTest");
    Part<QComboBox>("font").setCurrentText("18-Liberation Mono");
    Part<QComboBox>("fontSize").setCurrentText("20");
    EXPECT_EQ(sample.font().family(), "Liberation Mono");
    EXPECT_EQ(sample.font().pointSize(), 20);
    QTimer::singleShot(0, [] {
        QWidget* colours = QApplication::activeModalWidget();
        ASSERT_NE(colours, nullptr);
        EXPECT_EQ(colours->windowTitle(), "Set Color for Paper");
        colours->findChild<QAbstractButton*>("colour1")->click();
        colours->findChild<QPushButton*>("update")->click();
    });
    auto& paper = Part<QPushButton>("paper");
    paper.click();
    EXPECT_EQ(paper.text().trimmed(), "Blue");
    EXPECT_EQ(paper.accessibleName(), "Paper: Blue");
    EXPECT_EQ(sample.palette().color(QPalette::Window), QColor(0, 0, 0xe6));
}

TEST_F(SettingsDialogTest, CharacterSetsTakeThePlaceOfFontsAndOfTheSample) {
    Open();
    auto& font = Part<QComboBox>("font");
    auto& sample = Part<QLabel>("FontTest");
    Part<QCheckBox>("charSets").click();
    EXPECT_EQ(font.count(), 1);
    EXPECT_EQ(font.currentText(), "SET 0000 - Default");
    EXPECT_FALSE(sample.pixmap(Qt::ReturnByValue).isNull());
    Part<QCheckBox>("charSets").click();
    EXPECT_EQ(font.currentText(), "0-Arial");
    EXPECT_TRUE(sample.pixmap(Qt::ReturnByValue).isNull());
}

TEST_F(SettingsDialogTest, DescriptionIsCounted) {
    Open();
    Part<QPlainTextEdit>("description").setPlainText("Caf\u00E9");
    EXPECT_EQ(Part<QLabel>("count").text(), "4 of 255 characters");
}

TEST_F(SettingsDialogTest, PictureIsChosenAndCleared) {
    Open();
    const auto file = desk_.Adventure().GameDir() / "a.gif";
    std::ofstream(file) << "a";
    desk_.dialogs.AnswerFile(file);
    Part<QPushButton>("choosePicture").click();
    EXPECT_EQ(Part<QLineEdit>("defaultPicture").text(), "a.gif");
    Part<QPushButton>("clearPicture").click();
    EXPECT_EQ(Part<QLineEdit>("defaultPicture").text(), "");
}

TEST_F(SettingsDialogTest, PictureThatCannotBeReadIsTold) {
    Open();
    desk_.dialogs.AnswerFile(desk_.Adventure().GameDir() / "gone.gif");
    Part<QPushButton>("chooseAboutPicture").click();
    ASSERT_EQ(desk_.Boxes().size(), 1u);
    EXPECT_EQ(Part<QLineEdit>("aboutPicture").text(), "");
}

TEST_F(SettingsDialogTest, MarloGamesHaveNeitherWeightNorPrintWidth) {
    Set("adventype", std::string("Marlo"));
    Open();
    EXPECT_FALSE(Part<QLineEdit>("maxWeight").isEnabled());
    EXPECT_FALSE(Part<QComboBox>("printWidth").isEnabled());
    EXPECT_EQ(Part<QLabel>("typeNote").text(), "Marlo games may not be changed to VEL");
}

TEST_F(SettingsDialogTest, NoteOfTheTypesShowsOneAmpersand) {
    Open();
    EXPECT_EQ(Part<QLabel>("typeNote").text(), "VEL & Fabula games may not be changed to Marlo");
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
    EXPECT_EQ(names, (std::vector<std::string>{"name",
                                               "author",
                                               "saveName",
                                               "version",
                                               "ifid",
                                               "type",
                                               "startPlace",
                                               "maxObjects",
                                               "maxWeight",
                                               "description",
                                               "contactInfo",
                                               "paper",
                                               "ink",
                                               "charSets",
                                               "font",
                                               "fontSize",
                                               "printWidth",
                                               "graphics",
                                               "graphicsInDb",
                                               "defaultPicture",
                                               "choosePicture",
                                               "clearPicture",
                                               "aboutPicture",
                                               "chooseAboutPicture",
                                               "clearAboutPicture",
                                               "update",
                                               "exit",
                                               "qt_tabwidget_tabbar"}));
}

TEST_F(SettingsDialogTest, OpensInASizeThatHoldsItsColumns) {
    Open();
    EXPECT_EQ(test::ScrollsSideways(*dialog_), 0);
}

TEST_F(SettingsDialogTest, ShowsTheWholeIfidWhereTheScreenHasRoomForIt) {
    QFont large = QApplication::font();
    const QFont before = large;
    for (const int points : {9, 12}) {
        large.setPointSize(points);
        QApplication::setFont(large);
        Open();
        dialog_->resize(1260, 800);
        QApplication::processEvents();
        const QLineEdit& ifid = Part<QLineEdit>("ifid");
        ASSERT_EQ(ifid.text().size(), 36);
        EXPECT_GT(ifid.width(), ifid.fontMetrics().horizontalAdvance(ifid.text())) << points;
        dialog_.reset();
    }
    QApplication::setFont(before);
}

TEST_F(SettingsDialogTest, ATipTellsTheWholeStartLocation) {
    Open();
    auto& start = Part<QComboBox>("startPlace");
    start.setEditText("a place with a name that is longer than any line of the settings");
    EXPECT_TRUE(start.toolTip().contains("longer than any line of the settings"));
    EXPECT_EQ(start.accessibleDescription().toStdString(), start.currentText().toStdString());
}

TEST_F(SettingsDialogTest, ATipShowsMarkupInANameAsItStands) {
    Open();
    auto& start = Part<QComboBox>("startPlace");
    start.setEditText("<img src=\"file:///dev/zero\">");
    EXPECT_TRUE(start.toolTip().contains("&lt;img"));
    EXPECT_FALSE(start.toolTip().contains("<img"));
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
    Part<QCheckBox>("charSets").click();
    test::GrabInBothThemes(*dialog_, "settings-charsets");
}

}  // namespace
}  // namespace fabula::ide
