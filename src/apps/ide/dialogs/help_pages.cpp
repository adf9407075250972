#include "ide/dialogs/help_pages.h"

#include <array>

#include "qt/strings.h"
#include "text/value.h"

namespace fabula::ide {
namespace {

using store::TableNum;

struct PageOfTable {
    TableNum table;
    const char* page;
};

constexpr std::array kPages = {
    PageOfTable{TableNum::Locations, "frmvellocation.html"},
    PageOfTable{TableNum::Messages, "frmbothmessages.html"},
    PageOfTable{TableNum::Objects, "objects.html"},
    PageOfTable{TableNum::Adventure, "frmveladvsettings.html"},
    PageOfTable{TableNum::ProcessTables, "processes.html"},
    PageOfTable{TableNum::SystemMessages, "systemmessages.html"},
    PageOfTable{TableNum::Vocabulary, "vocabulary.html"},
    PageOfTable{TableNum::Flags, "flags.html"},
    PageOfTable{TableNum::ProcDesc, "processes.html"},
    PageOfTable{TableNum::Pictures, "pictures.html"},
    PageOfTable{TableNum::CondActs, "conditions.html"},
    PageOfTable{TableNum::Commands, "drawing.html"},
    PageOfTable{TableNum::Codes, "markup.html"},
    PageOfTable{TableNum::Characters, "charactereditor.html"},
    PageOfTable{TableNum::Sounds, "sound.html"},
    PageOfTable{TableNum::Package, "packaging.html"},
};

}  // namespace

QString HelpPageOf(const authoring::TableView& view) {
    for (const PageOfTable& each : kPages) {
        if (each.table == view.table) return each.page;
    }
    return kMainWindowPage;
}

qt::HelpTopic HelpTopicOf(const authoring::TableGrid& grid, int row) {
    const TableNum table = grid.View().table;
    qt::HelpTopic topic{HelpPageOf(grid.View()), {}};
    if (row < 0 || row >= grid.RowCount()) return topic;
    const QString own = qt::ToQt(text::ToText(grid.ValueOf(row, authoring::kHelpPageField))).trimmed();
    if (!own.isEmpty()) topic.page = own;
    if (table == TableNum::Flags) topic.anchors << QString("f%1").arg(grid.KeyOf(row));
    if (table == TableNum::SystemMessages) topic.anchors << QString("m%1").arg(grid.KeyOf(row));
    return topic;
}

}  // namespace fabula::ide
