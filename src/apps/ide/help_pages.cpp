#include "ide/help_pages.h"

#include <array>

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
};

}  // namespace

QString HelpPageOf(const authoring::TableView& view) {
    for (const PageOfTable& each : kPages) {
        if (each.table == view.table) return each.page;
    }
    return kMainWindowPage;
}

}  // namespace fabula::ide
