#include "qt/qt_dialogs.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QInputDialog>
#include <QLabel>
#include <QMessageBox>
#include <QScopeGuard>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include "qt/strings.h"
#include "support/temp_folder.h"

namespace fabula::test {
namespace {

/// The folder that is shown when a file is asked for.
QString FolderShown(const platform::FileQuestion& question) {
    QString shown;
    QTimer::singleShot(0, [&shown] {
        auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        if (!dialog) return;
        shown = dialog->directory().absolutePath();
        dialog->reject();
    });
    qt::QtDialogs().ChooseFile(question);
    return shown;
}

platform::FileQuestion Question(const std::filesystem::path& start) {
    return {.title = "Open", .filter = "Games|*.fbd", .extension = "fbd", .start = start};
}

/// What Enter answers to a question.
bool AnsweredByEnter(std::string_view title) {
    QTimer::singleShot(0, [] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (box) QTest::keyClick(box, Qt::Key_Return);
    });
    return qt::QtDialogs().Confirm("Go on?", title);
}

TEST(Confirm, EnterSaysYesToAQuestionAndNoToAWarning) {
    EXPECT_TRUE(AnsweredByEnter("Confirm"));
    EXPECT_FALSE(AnsweredByEnter("Warning"));
}

TEST(ChooseFile, BeginsInTheFolderThatItIsGiven) {
    const TempFolder folder;
    EXPECT_EQ(FolderShown(Question(folder.Path())), qt::PathToQt(folder.Path()));
}

TEST(ChooseFile, BeginsInThePersonsOwnFolderWithoutAny) {
    const TempFolder home;
    const auto restored = qScopeGuard([old = qgetenv("HOME")] { qputenv("HOME", old); });
    qputenv("HOME", qt::PathToQt(home.Path()).toUtf8());
    EXPECT_EQ(FolderShown(Question({})), qt::PathToQt(home.Path()));
    std::filesystem::create_directory(home.Path() / "Documents");
    EXPECT_EQ(FolderShown(Question({})), qt::PathToQt(home.Path() / "Documents"));
}

/// Answers the box in which a line is asked for, and gives what its prompt and its proposal looked like.
std::optional<std::string> Answer(const platform::TextQuestion& question, bool agree,
                                  Qt::TextFormat& format, QString& prompt) {
    QTimer::singleShot(0, [&] {
        auto* box = qobject_cast<QInputDialog*>(QApplication::activeModalWidget());
        if (!box) return;
        const auto* label = box->findChild<QLabel*>();
        format = label->textFormat();
        prompt = label->text();
        agree ? box->accept() : box->reject();
    });
    return qt::QtDialogs().AskText(question);
}

TEST(AskText, ShowsItsPromptAsItIs) {
    auto format = Qt::AutoText;
    QString prompt;
    const auto answer =
        Answer({.prompt = "Name of <b>7</b>", .title = "Name", .proposal = "lamp"}, true, format, prompt);
    EXPECT_EQ(format, Qt::PlainText);
    EXPECT_EQ(prompt, "Name of <b>7</b>");
    EXPECT_EQ(answer, "lamp");
}

TEST(AskText, GivesNothingWhenItIsCancelled) {
    auto format = Qt::AutoText;
    QString prompt;
    EXPECT_EQ(Answer({.prompt = "Name", .title = "Name", .proposal = "lamp"}, false, format, prompt),
              std::nullopt);
}

TEST(TipOf, ShowsATextAsItIs) {
    EXPECT_EQ(qt::TipOf("a <b> & \"c\""),
              "<p style='white-space: pre-wrap'>a &lt;b&gt; &amp; &quot;c&quot;</p>");
}

}  // namespace
}  // namespace fabula::test
