#include "qt/report_window.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTextDocument>
#include <QTimer>
#include <fstream>
#include <iterator>
#include <string>

#include <gtest/gtest.h>

#include "qt/qt_dialogs.h"
#include "qt/strings.h"
#include "support/temp_folder.h"

namespace fabula::test {
namespace {

using qt::ReportWindow;

constexpr const char* kText = "Messages: Key 3\nMessages: Key 4";

/// Names a file in the dialog that asks for one, and closes the boxes that come after it.
void Name(const std::filesystem::path& file, QString& told) {
    QTimer::singleShot(0, [file, &told] {
        auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        if (!dialog) return;
        dialog->setDirectory(qt::PathToQt(file.parent_path()));
        dialog->selectFile(qt::PathToQt(file.filename()));
        QTimer::singleShot(0, [&told] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (!box) return;
            told = box->text();
            box->reject();
        });
        static_cast<QDialog*>(dialog)->done(QDialog::Accepted);
    });
}

TEST(ReportWindow, ShowsItsTextToBeReadOnly) {
    const ReportWindow window(kText, "Duplicate Key Errors", ReportWindow::Answer::Close);
    EXPECT_EQ(window.windowTitle(), "Duplicate Key Errors");
    const auto* pane = window.findChild<QPlainTextEdit*>();
    EXPECT_EQ(pane->toPlainText(), kText);
    EXPECT_TRUE(pane->isReadOnly());
}

TEST(ReportWindow, PrintsAllOfItsText) {
    ReportWindow window(kText, "Duplicate Key Errors", ReportWindow::Answer::Close);
    QString printed;
    window.print = [&](const QTextDocument& text) { printed = text.toPlainText(); };
    window.findChild<QPushButton*>("print")->click();
    EXPECT_EQ(printed, kText);
}

TEST(ReportWindow, SavesItsText) {
    const TempFolder folder;
    ReportWindow window(kText, "Duplicate Key Errors", ReportWindow::Answer::Close);
    QString told;
    Name(folder / "keys.txt", told);
    window.findChild<QPushButton*>("save")->click();
    std::ifstream saved(folder / "keys.txt");
    const std::string content{std::istreambuf_iterator<char>(saved), {}};
    EXPECT_EQ(content, std::string(kText) + "\n");
    EXPECT_EQ(told, "");
}

TEST(ReportWindow, TellsThatItCouldNotBeSaved) {
    const TempFolder folder;
    std::filesystem::create_directory(folder / "keys.txt");
    ReportWindow window(kText, "Duplicate Key Errors", ReportWindow::Answer::Close);
    QString told;
    Name(folder / "keys.txt", told);
    window.findChild<QPushButton*>("save")->click();
    EXPECT_TRUE(told.startsWith(qt::ToQt("Could not write " + (folder / "keys.txt").string() + ": ")))
        << qt::FromQt(told);
}

/// Clicks a button of the report that comes up.
void ReportAnswer(QDialogButtonBox::StandardButton which) {
    QTimer::singleShot(0, [which] {
        auto* window = dynamic_cast<ReportWindow*>(QApplication::activeModalWidget());
        if (window) window->findChild<QDialogButtonBox*>()->button(which)->click();
    });
}

TEST(ReportWindow, TellsOkFromCancel) {
    ReportAnswer(QDialogButtonBox::Ok);
    EXPECT_TRUE(qt::QtDialogs().ProceedFromReport(kText, "Version 6 Flag Change"));
    ReportAnswer(QDialogButtonBox::Cancel);
    EXPECT_FALSE(qt::QtDialogs().ProceedFromReport(kText, "Version 6 Flag Change"));
}

}  // namespace
}  // namespace fabula::test
