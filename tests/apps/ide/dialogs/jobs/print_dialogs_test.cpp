#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QScrollArea>
#include <QTest>
#include <QTimer>
#include <fstream>
#include <iterator>

#include <gtest/gtest.h>

#include "authoring/document/screen_context.h"
#include "ide/dialogs/jobs/keypad_dialog.h"
#include "ide/dialogs/jobs/preview_dialog.h"
#include "ide/dialogs/jobs/print_dialog.h"
#include "platform/error.h"
#include "support/doubles/scripted_dialogs.h"
#include "support/places.h"
#include "support/temp_folder.h"

namespace fabula::test {
namespace {

using listings::PrintScreen;
using store::TableNum;

/// A printer that keeps what it was given.
struct Tray {
    std::vector<std::size_t> sheets = {};
    std::vector<QString> titles = {};
    bool jams = false;

    ide::PrintPaper Printer() {
        return [this](const listings::Paper& paper, const QString& title, QWidget*) {
            if (jams) throw Error("Could not print the listing: the paper is jammed.");
            sheets.push_back(paper.Sheets().size());
            titles.push_back(title);
            return true;
        };
    }
};

class PrintDialogs : public testing::Test {
  protected:
    PrintDialogs() {
        std::filesystem::copy_file(ExampleGames() / "lighthouse.fbd", folder_ / "game.fbd");
        adventure_ = store::Adventure::Open(folder_ / "game.fbd");
    }
    ide::PrintServices Services() { return {*adventure_, dialogs_, tray_.Printer()}; }

    template <typename Widget>
    static Widget& Part(QWidget& window, const char* name) {
        return *window.findChild<Widget*>(name);
    }
    static QPushButton& Button(QWidget& window, const char* name) {
        return Part<QPushButton>(window, name);
    }
    static void Click(QWidget& window, const char* name) {
        QTest::mouseClick(&Button(window, name), Qt::LeftButton);
    }

    TempFolder folder_;
    std::unique_ptr<store::Adventure> adventure_;
    platform::ScriptedDialogs dialogs_;
    Tray tray_;
};

TEST_F(PrintDialogs, PrintSendsTheListingToThePrinterAndCloses) {
    PrintScreen screen(*adventure_, TableNum::Locations, 0, PrintScreen::Purpose::Print, dialogs_);
    ide::PrintDialog dialog(screen, Services());
    dialog.show();
    EXPECT_EQ(dialog.windowTitle(), "Print for Location Table");
    Click(dialog, "print");
    EXPECT_EQ(tray_.titles, std::vector<QString>{"Location Table"});
    EXPECT_FALSE(dialog.isVisible());
}

TEST_F(PrintDialogs, WindowsHaveTheirOwnWords) {
    PrintScreen screen(*adventure_, TableNum::ProcessTables, authoring::kOtherProcesses,
                       PrintScreen::Purpose::Preview, dialogs_);
    ide::PrintDialog dialog(screen, Services());
    const auto words = [](const QString& text) {
        return QString(text).remove(QRegularExpression("&(?!&)"));
    };
    EXPECT_EQ(dialog.windowTitle(), "Print Preview Setup for Other Process Tables");
    EXPECT_EQ(words(Part<QCheckBox>(dialog, "special").text()), "Special Listing");
    EXPECT_EQ(words(Part<QCheckBox>(dialog, "complete").text()), "Print the complete Adventure");
    EXPECT_EQ(words(Part<QRadioButton>(dialog, "completeVerbose").text()), "Verbose");
    EXPECT_EQ(words(Part<QRadioButton>(dialog, "completeNonVerbose").text()), "Non-Verbose");
    EXPECT_EQ(Part<QRadioButton>(dialog, "completeBrief").text(),
              "&Brief of Loc, Mess, Obj, Sys Mess, && Flags");
    EXPECT_EQ(Part<QComboBox>(dialog, "detail").itemText(0), "Verbose");
    EXPECT_EQ(Part<QComboBox>(dialog, "detail").itemText(1), "Non-Verbose");
    ide::KeypadDialog keypad(dialogs_);
    EXPECT_EQ(keypad.windowTitle(), "Size of your KeyPad");
    EXPECT_EQ(keypad.findChild<QGroupBox*>()->title(), "Top Extended KeyPad Size");
    EXPECT_EQ(words(Part<QRadioButton>(keypad, "size1").text()), "About 1 1/8 inches");
    EXPECT_EQ(words(Part<QRadioButton>(keypad, "size2").text()), "About 1 1/2 inches");
    EXPECT_EQ(words(Part<QRadioButton>(keypad, "size3").text()), "Another size");
    EXPECT_EQ(Button(keypad, "continue").text(), "&Continue");
}

TEST_F(PrintDialogs, PrinterThatFailsIsToldInOneSentenceAndTheWindowStays) {
    tray_.jams = true;
    PrintScreen screen(*adventure_, TableNum::Locations, 0, PrintScreen::Purpose::Print, dialogs_);
    ide::PrintDialog dialog(screen, Services());
    dialog.show();
    Click(dialog, "print");
    ASSERT_EQ(dialogs_.Boxes().size(), 1u);
    EXPECT_EQ(dialogs_.Boxes()[0].text, "Could not print the listing: the paper is jammed.");
    EXPECT_EQ(dialogs_.Boxes()[0].title, "Error");
    EXPECT_TRUE(dialog.isVisible());
    tray_.jams = false;
    Click(dialog, "print");
    EXPECT_EQ(tray_.sheets.size(), 1u);
}

TEST_F(PrintDialogs, RangeIsTypedAndAWrongOneKeepsTheWindow) {
    PrintScreen screen(*adventure_, TableNum::ProcessTables, authoring::kOtherProcesses,
                       PrintScreen::Purpose::Print, dialogs_);
    ide::PrintDialog dialog(screen, Services());
    dialog.show();
    QTest::keyClicks(&Part<QLineEdit>(dialog, "range"), "5-3");
    QTest::keyClick(&dialog, Qt::Key_Return);
    EXPECT_EQ(dialogs_.Boxes().back().text, "Beginning range > ending range in 5-3");
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_TRUE(tray_.sheets.empty());
    Part<QLineEdit>(dialog, "range").clear();
    QTest::keyClicks(&Part<QLineEdit>(dialog, "range"), "3-");
    QTest::keyClick(&dialog, Qt::Key_Return);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(tray_.sheets.size(), 1u);
}

TEST_F(PrintDialogs, SpecialListingTakesTypeVerbAndNoun) {
    PrintScreen screen(*adventure_, TableNum::ProcessTables, 0, PrintScreen::Purpose::Print, dialogs_);
    ide::PrintDialog dialog(screen, Services());
    dialog.show();
    EXPECT_FALSE(Part<QComboBox>(dialog, "verb").isEnabled());
    QTest::mouseClick(&Part<QCheckBox>(dialog, "special"), Qt::LeftButton, {}, QPoint(5, 8));
    EXPECT_TRUE(Part<QComboBox>(dialog, "verb").isEnabled());
    Click(dialog, "print");
    EXPECT_EQ(dialogs_.Boxes().back().text, "No Type selected");
    Part<QComboBox>(dialog, "wordType").setCurrentIndex(0);
    EXPECT_GT(Part<QComboBox>(dialog, "verb").count(), 10);
    Part<QComboBox>(dialog, "verb").setCurrentIndex(3);
    Part<QComboBox>(dialog, "noun").setCurrentIndex(3);
    Click(dialog, "print");
    EXPECT_FALSE(dialog.isVisible());
}

TEST_F(PrintDialogs, CompleteListingSwitchesTheTableOff) {
    PrintScreen screen(*adventure_, TableNum::Flags, 0, PrintScreen::Purpose::Print, dialogs_);
    ide::PrintDialog dialog(screen, Services());
    dialog.show();
    EXPECT_FALSE(Part<QRadioButton>(dialog, "completeBrief").isEnabled());
    Part<QCheckBox>(dialog, "complete").setChecked(true);
    EXPECT_FALSE(Part<QComboBox>(dialog, "form").isEnabled());
    Part<QRadioButton>(dialog, "completeBrief").setChecked(true);
    Click(dialog, "print");
    ASSERT_EQ(tray_.sheets.size(), 1u);
    EXPECT_GT(tray_.sheets[0], 20u);
}

TEST_F(PrintDialogs, SaveAsWritesTheFormOfTheExtension) {
    for (const auto& [name, start] : {std::pair{"x.pdf", "%PDF-"}, std::pair{"x.html", "<!DOCTYPE html>"},
                                      std::pair{"x.txt", "             "}}) {
        PrintScreen screen(*adventure_, TableNum::Locations, 0, PrintScreen::Purpose::Print, dialogs_);
        ide::PrintDialog dialog(screen, Services());
        dialog.show();
        dialogs_.AnswerFile(folder_ / name);
        Click(dialog, "save");
        std::ifstream file(folder_ / name, std::ios::binary);
        const std::string bytes((std::istreambuf_iterator<char>(file)), {});
        EXPECT_TRUE(bytes.starts_with(start)) << name;
        EXPECT_FALSE(dialog.isVisible());
    }
}

TEST_F(PrintDialogs, FileThatCannotBeWrittenIsToldInOneSentence) {
    PrintScreen screen(*adventure_, TableNum::Locations, 0, PrintScreen::Purpose::Print, dialogs_);
    ide::PrintDialog dialog(screen, Services());
    dialog.show();
    dialogs_.AnswerFile(folder_ / "no" / "such.pdf");
    Click(dialog, "save");
    ASSERT_EQ(dialogs_.Boxes().size(), 1u);
    EXPECT_TRUE(dialogs_.Boxes()[0].text.starts_with("Could not write"));
    EXPECT_EQ(dialogs_.Boxes()[0].text.find('\n'), std::string::npos);
    EXPECT_TRUE(dialog.isVisible());
}

TEST_F(PrintDialogs, SaveAsDoesNotReplaceAnAdventure) {
    PrintScreen screen(*adventure_, TableNum::Locations, 0, PrintScreen::Purpose::Print, dialogs_);
    ide::PrintDialog dialog(screen, Services());
    dialog.show();
    const auto size = std::filesystem::file_size(folder_ / "game.fbd");
    dialogs_.AnswerFile(folder_ / "game.fbd");
    Click(dialog, "save");
    EXPECT_EQ(dialogs_.Boxes().size(), 1u);
    EXPECT_EQ(std::filesystem::file_size(folder_ / "game.fbd"), size);
}

TEST_F(PrintDialogs, PreviewClosesWithTheJob) {
    PrintScreen screen(*adventure_, TableNum::Messages, 0, PrintScreen::Purpose::Preview, dialogs_);
    ide::PrintDialog dialog(screen, Services());
    dialog.show();
    EXPECT_EQ(dialog.findChild<QPushButton*>("save"), nullptr);
    Click(dialog, "print");
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_TRUE(tray_.sheets.empty());
    ASSERT_TRUE(dialog.Job());
    EXPECT_EQ(dialog.Job()->title, "Messages Table");
}

TEST_F(PrintDialogs, TemplatesAskForTheSizeOfTheKeypad) {
    PrintScreen screen(*adventure_, TableNum::Templates, 0, PrintScreen::Purpose::Print, dialogs_);
    ide::PrintDialog dialog(screen, Services());
    dialog.show();
    QTimer::singleShot(0, [&] {
        auto* keypad = dialog.findChild<ide::KeypadDialog*>();
        ASSERT_NE(keypad, nullptr);
        EXPECT_EQ(keypad->windowTitle(), "Size of your KeyPad");
        Part<QRadioButton>(*keypad, "size2").setChecked(true);
        Click(*keypad, "continue");
    });
    Click(dialog, "print");
    EXPECT_EQ(screen.templateName, "keypad_large");
    EXPECT_EQ(tray_.sheets, std::vector<std::size_t>{1});
}

TEST_F(PrintDialogs, AnotherSizeOfKeypadIsTold) {
    ide::KeypadDialog keypad(dialogs_);
    keypad.show();
    Part<QRadioButton>(keypad, "size3").setChecked(true);
    Click(keypad, "continue");
    EXPECT_TRUE(dialogs_.Boxes().back().text.starts_with("That size is not made up."));
    EXPECT_EQ(keypad.result(), QDialog::Rejected);
}

TEST_F(PrintDialogs, StatusOfAJobIsPrintedLineByLine) {
    std::vector<std::string> lines;
    const auto keep = [&](const listings::Paper& paper, const QString&, QWidget*) {
        for (const listings::Line& line : paper.Sheets().front().lines)
            lines.push_back(line.text);
        return true;
    };
    ide::PrintText("Locations\nNo Errors Found\n", "Verify Adventure", dialogs_, nullptr, keep);
    ASSERT_GE(lines.size(), 5u);
    EXPECT_EQ(lines[0], "                                Verify Adventure                     Page    1");
    EXPECT_EQ(lines[3], "Locations");
    EXPECT_EQ(lines[4], "No Errors Found");
    tray_.jams = true;
    ide::PrintText("x", "Status", dialogs_, nullptr, tray_.Printer());
    EXPECT_EQ(dialogs_.Boxes().back().text, "Could not print the listing: the paper is jammed.");
}

class PreviewDialogs : public PrintDialogs {
  protected:
    PreviewDialogs() {
        dialog_.show();
        QApplication::processEvents();
    }
    QString Place() { return Part<QLabel>(dialog_, "place").text(); }

    listings::PrintPreview preview_{{listings::FindReport("messages"), {}, "Messages Table"}, *adventure_};
    ide::PreviewDialog dialog_{preview_, Services()};
};

TEST_F(PreviewDialogs, PagesAreMadeOnceTheWindowIsShown) {
    EXPECT_EQ(dialog_.windowTitle(), "Print Preview for Messages Table");
    EXPECT_GT(preview_.PageCount(), 10);
    EXPECT_EQ(Place(), QString("Page 1 of %1, 100 %").arg(preview_.PageCount()));
}

TEST_F(PreviewDialogs, ButtonsMoveAndEndAtTheEnds) {
    EXPECT_FALSE(Button(dialog_, "first").isEnabled());
    EXPECT_FALSE(Button(dialog_, "previous").isEnabled());
    Click(dialog_, "next");
    EXPECT_EQ(preview_.Page(), 2);
    Click(dialog_, "last");
    EXPECT_EQ(preview_.Page(), preview_.PageCount());
    EXPECT_FALSE(Button(dialog_, "next").isEnabled());
    EXPECT_FALSE(Button(dialog_, "last").isEnabled());
    Click(dialog_, "previous");
    EXPECT_EQ(preview_.Page(), preview_.PageCount() - 1);
    Click(dialog_, "first");
    EXPECT_EQ(preview_.Page(), 1);
}

TEST_F(PreviewDialogs, KeysMoveToo) {
    const auto press = [&](Qt::Key key) { QTest::keyClick(&dialog_, key); };
    press(Qt::Key_PageDown);
    press(Qt::Key_PageDown);
    EXPECT_EQ(preview_.Page(), 3);
    press(Qt::Key_PageUp);
    EXPECT_EQ(preview_.Page(), 2);
    press(Qt::Key_End);
    press(Qt::Key_PageDown);
    EXPECT_EQ(preview_.Page(), preview_.PageCount());
    press(Qt::Key_Home);
    EXPECT_EQ(preview_.Page(), 1);
}

TEST_F(PreviewDialogs, KeysReachThePagesFromThePaneThatHasTheKeyboard) {
    QTest::keyClick(&Part<QScrollArea>(dialog_, "pages"), Qt::Key_End);
    EXPECT_EQ(preview_.Page(), preview_.PageCount());
}

TEST_F(PreviewDialogs, PlusAndMinusChangeTheSize) {
    const int width = Part<QWidget>(dialog_, "sheet").width();
    Click(dialog_, "plus");
    EXPECT_GT(Part<QWidget>(dialog_, "sheet").width(), width);
    QTest::keyClick(&dialog_, Qt::Key_Minus);
    EXPECT_EQ(Part<QWidget>(dialog_, "sheet").width(), width);
    QTest::keyClick(&dialog_, Qt::Key_Plus);
    EXPECT_EQ(preview_.Percent(), 125);
}

TEST_F(PreviewDialogs, PrintSendsTheSameJobToThePrinter) {
    Click(dialog_, "print");
    EXPECT_EQ(tray_.sheets, std::vector<std::size_t>{static_cast<std::size_t>(preview_.PageCount())});
    EXPECT_TRUE(dialog_.isVisible());
    tray_.jams = true;
    Click(dialog_, "print");
    EXPECT_EQ(dialogs_.Boxes().back().text, "Could not print the listing: the paper is jammed.");
}

TEST_F(PreviewDialogs, SheetIsPaintedBlackOnWhite) {
    const QImage shot = Part<QWidget>(dialog_, "sheet").grab().toImage();
    int dark = 0;
    for (int y = 0; y < shot.height(); ++y) {
        for (int x = 0; x < shot.width(); ++x)
            dark += qGray(shot.pixel(x, y)) < 100 ? 1 : 0;
    }
    EXPECT_EQ(shot.pixelColor(2, 2), QColor(Qt::white));
    EXPECT_GT(dark, 1000);
    EXPECT_LT(dark, shot.width() * shot.height() / 4);
}

TEST_F(PreviewDialogs, ExitCloses) {
    Click(dialog_, "exit");
    EXPECT_FALSE(dialog_.isVisible());
}

}  // namespace
}  // namespace fabula::test
