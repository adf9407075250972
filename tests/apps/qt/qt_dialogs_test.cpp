#include "qt/qt_dialogs.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QScopeGuard>
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

}  // namespace
}  // namespace fabula::test
