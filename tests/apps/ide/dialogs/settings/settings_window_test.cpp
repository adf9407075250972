#include <QApplication>
#include <QCheckBox>
#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QSlider>
#include <QTabWidget>
#include <QTest>
#include <QTextBrowser>
#include <QTimer>
#include <QWheelEvent>
#include <fstream>
#include <functional>

#include <gtest/gtest.h>

#include "ide/opened_window.h"
#include "qt/help/help_window.h"
#include "support/active_window.h"

// The settings from the window's commands to the adventure and back.

namespace fabula::test {
namespace {

class SettingsInTheWindow : public testing::Test {
  protected:
    SettingsInTheWindow() { opened_.Open(GameBuilder()); }

    /// Chooses the command, and does `act` in the dialog that it shows.
    void EditSettings(const std::function<void(QDialog&)>& act) {
        bool shown = false;
        QTimer::singleShot(0, [&] {
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            ASSERT_TRUE(test::BecomesActive(dialog));
            shown = dialog->windowTitle() == "Adventure Settings Editor";
            act(*dialog);
            if (dialog->isVisible()) dialog->reject();
        });
        opened_.Action("Settings").trigger();
        EXPECT_TRUE(shown);
    }
    static void Update(QDialog& dialog) { dialog.findChild<QPushButton*>("update")->click(); }
    std::string Stored(std::string_view fields) {
        const store::Cursor& record = opened_.Logic().CurrentContext().document.Adventure().OpenTable(
            store::TableNum::Adventure, fields);
        return text::ToText(record.Field(fields));
    }

    OpenedWindow opened_;
};

TEST_F(SettingsInTheWindow, TheWheelOverASliderMovesItOnlyWithTheKeyboardOnIt) {
    EditSettings([this](QDialog& dialog) {
        auto& volume = *dialog.findChild<QSlider*>("volume");
        auto& balance = *dialog.findChild<QSlider*>("balance");
        auto& pages = *dialog.findChild<QTabWidget*>("pages");
        while (!volume.isVisible() && pages.currentIndex() + 1 < pages.count())
            pages.setCurrentIndex(pages.currentIndex() + 1);
        ASSERT_TRUE(volume.isVisible());
        const auto turnTheWheelOver = [](QWidget& control) {
            QWheelEvent turn({5, 5}, control.mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton, {},
                             Qt::NoScrollPhase, false);
            QApplication::sendEvent(&control, &turn);
        };
        balance.setFocus();
        const int before = volume.value();
        ASSERT_GT(before, volume.minimum());
        turnTheWheelOver(volume);
        EXPECT_EQ(volume.value(), before);
        volume.setFocus();
        turnTheWheelOver(volume);
        EXPECT_LT(volume.value(), before);
        opened_.dialogs.AnswerLeaving(platform::Leaving::Discard);
    });
}

TEST_F(SettingsInTheWindow, AreEditedUndoneAndDoneAgain) {
    EditSettings([](QDialog& dialog) {
        auto* author = dialog.findChild<QLineEdit*>("author");
        author->setFocus();
        author->selectAll();
        QTest::keyClicks(author, "Ann");
        QTest::keyClick(author, Qt::Key_Return, Qt::ControlModifier);
    });
    EXPECT_EQ(Stored("author"), "Ann");
    EXPECT_EQ(opened_.Logic().Message(), "Done: edit the settings");
    EXPECT_EQ(opened_.Action("Undo").text(), "&Undo edit the settings");
    opened_.Action("Undo").trigger();
    EXPECT_EQ(Stored("author"), "");
    opened_.Action("Redo").trigger();
    EXPECT_EQ(Stored("author"), "Ann");
}

TEST_F(SettingsInTheWindow, StayAsTheyAreAtExit) {
    opened_.dialogs.AnswerLeaving(platform::Leaving::Discard);
    EditSettings([](QDialog& dialog) { dialog.findChild<QLineEdit*>("author")->setText("Ann"); });
    EXPECT_EQ(Stored("author"), "");
    EXPECT_FALSE(opened_.Action("Undo").isEnabled());
}

TEST_F(SettingsInTheWindow, ShowTheirEffectAtOnce) {
    EditSettings([](QDialog& dialog) {
        dialog.findChild<QCheckBox*>("graphics")->click();
        Update(dialog);
    });
    EXPECT_NE(opened_.Logic().AdventureStatus().find("Graphics: ON"), std::string::npos);
    opened_.Action("Undo").trigger();
    EXPECT_NE(opened_.Logic().AdventureStatus().find("Graphics: OFF"), std::string::npos);
}

TEST_F(SettingsInTheWindow, CopyPicturesIntoTheAdventureAsPartOfTheSameStep) {
    std::ofstream(opened_.folder / "a.gif") << "a";
    opened_.dialogs.AnswerFile(opened_.folder / "a.gif");
    EditSettings([](QDialog& dialog) {
        dialog.findChild<QCheckBox*>("graphicsInDb")->click();
        dialog.findChild<QPushButton*>("choosePicture")->click();
        Update(dialog);
    });
    EXPECT_EQ(Stored("olddefpicloc"), "a.gif");
    opened_.Action("Undo").trigger();
    EXPECT_EQ(Stored("defpicloc"), "");
    EXPECT_EQ(Stored("olddefpicloc"), " ");
}

TEST_F(SettingsInTheWindow, TryTheSoundOnThePlayerOfTheProgram) {
    EditSettings([](QDialog& dialog) {
        dialog.findChild<QTabWidget*>("pages")->setCurrentIndex(1);
        dialog.findChild<QPushButton*>("testVoice")->click();
    });
    EXPECT_EQ(opened_.sound.notes.size(), 1u);
}

TEST_F(SettingsInTheWindow, EndTheProgramWhenCharacterSetsAreSwitched) {
    EditSettings([](QDialog& dialog) {
        dialog.findChild<QCheckBox*>("charSets")->click();
        Update(dialog);
    });
    EXPECT_EQ(opened_.dialogs.Boxes().back().text, "Changing Character Sets requires exiting program");
    EXPECT_FALSE(opened_.Window().isVisible());
}

TEST_F(SettingsInTheWindow, HaveHelpForEachField) {
    opened_.help.Write("frmveladvsettings.html",
                       "<title>Adventure settings</title><a name=\"txtmaxobjects\"></a>");
    EditSettings([](QDialog& dialog) {
        auto* objects = dialog.findChild<QLineEdit*>("maxObjects");
        objects->setFocus();
        QTest::keyClick(objects, Qt::Key_F1);
    });
    ASSERT_NE(opened_.Window().Help().Window(), nullptr);
    EXPECT_EQ(opened_.Window().Help().Window()->Page(), "frmveladvsettings.html");
    EXPECT_EQ(opened_.Window().Help().Window()->findChild<QTextBrowser*>()->source().fragment(),
              "txtmaxobjects");
}

}  // namespace
}  // namespace fabula::test
