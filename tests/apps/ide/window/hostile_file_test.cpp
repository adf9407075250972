// Adventure files from strangers: whatever stands in their records, the window shows it, edits it, deletes
// it and takes that back without a crash and without a wait.

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QPushButton>
#include <QTableView>
#include <QTimer>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <algorithm>

#include <gtest/gtest.h>

#include "ide/dialog_stand.h"
#include "ide/opened_window.h"
#include "store/adventure.h"
#include "support/raw_database.h"

namespace fabula::test {
namespace {

/// A person who says yes to everything and keeps what was told.
class YesSayer final : public platform::Dialogs {
  public:
    void Tell(std::string_view text, std::string_view) override { told.emplace_back(text); }
    bool Confirm(std::string_view, std::string_view) override { return true; }
    bool Proceed(std::string_view, std::string_view) override { return true; }
    platform::Leaving AskLeaving(std::string_view, std::string_view) override {
        return platform::Leaving::Discard;
    }
    std::optional<std::filesystem::path> ChooseFile(const platform::FileQuestion&) override {
        return std::nullopt;
    }
    std::optional<std::string> AskText(const platform::TextQuestion& question) override {
        return question.proposal;
    }
    void Report(std::string_view text, std::string_view) override { told.emplace_back(text); }
    bool ProceedFromReport(std::string_view text, std::string_view) override {
        told.emplace_back(text);
        return true;
    }

    std::vector<std::string> told;
};

class HostileFile : public testing::TestWithParam<const char*> {
  protected:
    HostileFile() : window_(&person_) {
        QObject::connect(&every_, &QTimer::timeout, &every_, [this] { WorkInDialog(); });
        every_.start(0);
    }

    /// A small game that somebody has changed with other tools.
    std::filesystem::path Make(const std::string& sql) {
        static const std::string kGame = [] {
            Desk desk;
            Furnish(desk);
            return ReadBytes(desk.document.File());
        }();
        const auto file = window_.folder / "game.fbd";
        WriteBytes(file, kGame);
        RawDatabase(file).Run(sql);
        return file;
    }

    /// Looks at the dialog in front, gives Update, and leaves it.
    void WorkInDialog() {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (!dialog) return;
        dialog->grab();
        for (const char* button : {"update", "goOn"})
            if (auto* update = dialog->findChild<QPushButton*>(button)) update->click();
        if (dialog->isVisible()) dialog->reject();
    }

    void ShowRow(int row) {
        auto& grid = window_.Part<QTableView>("Grid");
        const QAbstractItemModel& rows = *grid.model();
        grid.setCurrentIndex(rows.index(row, 0));
        for (int column = 0; column < rows.columnCount(); ++column) {
            const QString tip = rows.index(row, column).data(Qt::ToolTipRole).toString();
            EXPECT_LE(tip.size(), 40'000);
            EXPECT_FALSE(tip.contains("<b")) << tip.toStdString();
        }
    }

    /// Everything that can be done with the table in view, on its last row: each statement changes all
    /// rows alike, so that the first is no other case.
    void UseTable() {
        auto& grid = window_.Part<QTableView>("Grid");
        if (grid.model()->rowCount() == 0) return;
        ShowRow(0);
        ShowRow(grid.model()->rowCount() - 1);
        for (const char* command : {"Edit", "AddNewBefore", "Delete", "Undo", "Redo", "Undo"})
            window_.Action(command).trigger();
        window_.Window().grab();
    }

    void UseEverything() {
        auto& tree = window_.Part<QTreeWidget>("Tree");
        for (int node = 0; node < 30; ++node) {
            QTreeWidgetItemIterator item(&tree);
            item += node;
            if (!*item) break;
            tree.setCurrentItem(*item);
            UseTable();
        }
        tree.grab();
        window_.Action("NewTab").trigger();
        window_.Action("Settings").trigger();
        window_.Action("LstRecs").trigger();
    }

    YesSayer person_;
    OpenedWindow window_;
    QTimer every_;
};

TEST_P(HostileFile, IsUsedWithoutACrash) {
    const auto file = Make(GetParam());
    window_.Window().Start(file);
    UseEverything();
    // It is shown, or it is told why not.
    EXPECT_TRUE(window_.Part<QTreeWidget>("Tree").topLevelItemCount() > 0 || !person_.told.empty());
    for (const std::string& sentence : person_.told) {
        EXPECT_FALSE(sentence.empty());
        for (const char* inner : {"std::", "bad_alloc", "vector", "SELECT ", "constraint", "unknown"})
            EXPECT_EQ(sentence.find(inner), std::string::npos) << sentence;
        EXPECT_TRUE(std::all_of(sentence.begin(), sentence.end(), [](unsigned char c) {
            return c >= ' ' || c == '\n' || c == '\t';
        })) << sentence;
    }
    window_.Window().close();
    EXPECT_FALSE(window_.Window().isVisible());
    // What the window did to it left it sound.
    EXPECT_NO_THROW(store::Adventure::Open(file, store::OpenMode::ReadOnly));
}

INSTANTIATE_TEST_SUITE_P(
    Statements, HostileFile,
    testing::Values(
        "UPDATE Locations SET locnum=9223372036854775807, numexits=-9223372036854775808",
        "UPDATE Locations SET locdesc=char(0)||'<b>x</b>', locshortdesc=CAST(x'ff80c3fe41' AS TEXT),"
        " exits=' 1 2 3 ', numericexits='x', picloc='/dev/zero', pickey='../../etc/passwd'",
        "UPDATE Messages SET msgnum=-1, msgmsg=replace(hex(zeroblob(20000)),'0','<b> x')",
        "UPDATE Objects SET objnum=2147483647, objweight=-1, objloc=NULL, objnoun=NULL, objattr='\x01'",
        "UPDATE ProcessTables SET canum=-5, estype=9223372036854775807, w1=NULL, w1num=NULL,"
        " CondActs='<b>', numericcondacts='99999999999 -1 x'",
        "UPDATE Vocabulary SET vocindex=7, vocnum=NULL, voctypen=-3, Word=NULL, voctype=char(0)",
        "UPDATE Adventure SET Font=-1, FontSize=2147483647, BackColor=-9, textcolor=99999, startloc=-1,"
        " defprintwidth=2147483647, maxobj=NULL, defpicloc='../../etc/passwd', adventype='<b>',"
        " defsndvoice=-1, defsndvol=2147483647, advdesc=CAST(x'ff00' AS TEXT), sortobjects='x; drop'",
        "UPDATE Codes SET FontName='no such font', FontSize=2147483647, FabulaTag='<b>', FabulaTagParam=-1",
        "UPDATE CondActs SET caname=NULL, canumparam=2147483647, htmlpage='../../etc/passwd'",
        "UPDATE DataBases SET dbtreekey='1_', dbtreeiconkey='../../etc/passwd', dbtreename='<b>x</b>'",
        "UPDATE DataBases SET dbtreeparent=dbtreekey", "UPDATE DataBases SET dbnum=22",
        "UPDATE Tables SET gridwidth=-5, see=0, altname='<b>', expand=NULL, search='Y'",
        "DELETE FROM DataBases; DELETE FROM CondActs; DELETE FROM Codes; DELETE FROM Flags",
        "INSERT INTO Locations (locnum) SELECT locnum FROM Locations"));

}  // namespace
}  // namespace fabula::test
