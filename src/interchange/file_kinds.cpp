#include "interchange/file_kinds.h"

#include "interchange/fabula_reader.h"
#include "interchange/fabula_writer.h"
#include "interchange/pc_source_reader.h"
#include "interchange/pc_source_writer.h"
#include "interchange/unmarlo/unmarlo_reader.h"
#include "interchange/unvel/unvel_head.h"
#include "interchange/unvel/unvel_reader.h"
#include "interchange/unvel/unvel_writer.h"
#include "text/utf8.h"

namespace fabula::interchange {
namespace {

using store::AdventureKind;

store::AdventureSetup SetupOfPcSource(const std::filesystem::path&) {
    store::AdventureSetup setup;
    setup.ChooseType(AdventureKind::Vel);
    return setup;
}

store::AdventureSetup SetupOfAceSource(const std::filesystem::path&) {
    return {};
}

// Paper and ink of an ACE source are white and black as screen colours; these are their numbers.
const FileKind kKinds[] = {
    {"unmarlo",
     "UnMarlo",
     ".unq",
     {"", "Load an UnMarlo output file", "All files|*.*"},
     {},
     SetupOfUnMarlo,
     LoadUnMarlo,
     nullptr,
     {"UnMarlo", true, false, 0, 0, 0},
     true},
    {"unvel",
     "UnVel",
     ".pex",
     {"", "Load an UnVel output file", "All files|*.*"},
     {"*.pex", "Save as an UnVEL Extract", "UnVEL Extract (*.pex)|*.pex"},
     SetupOfUnVel,
     LoadUnVel,
     ExportUnVel,
     {"UnVel", true, false, 0, 0, 0},
     true},
    {"pcvel",
     "PCVEL",
     ".sce",
     {"*.sce", "Load an PC VEL source file", "PC VEL Sources (*.sce)|*.sce|All files|*.*"},
     {"*.sce", "Save as a PC VEL source", "PC VEL source (*.sce)|*.sce"},
     SetupOfPcSource,
     LoadPCVel,
     ExportPCVel,
     {"PCVel", true, true, 15, 0, 80}},
    {"fabula",
     "Fabula",
     ".ext",
     {"", "Load an Fabula Exportfile", "Fabula Export (*.ext)|*.ext|All files|*.*"},
     {"*.ext", "Save as an FabuLA Extract", "FabuLA Extract (*.ext)|*.ext"},
     SetupOfExport,
     LoadFabula,
     ExportFabula,
     {"FabulaExp", true, false, 0, 0, 0}},
    {"ace",
     "ACE",
     ".txt",
     {"*.txt", "Load an ACE source file", "ACE Sources (*.*)|*.*|All files|*.*"},
     {"", "Save as an ACE source", "ACE source(*.txt)|*.txt"},
     SetupOfAceSource,
     LoadAce,
     ExportAce,
     {"ACE", true, true, 15, 0, 80}},
};

}  // namespace

std::span<const FileKind> FileKinds() {
    return kKinds;
}

const FileKind* FindFileKind(std::string_view wordOrName) {
    for (const FileKind& kind : kKinds) {
        if (text::EqualsNoCase(kind.word, wordOrName) || text::EqualsNoCase(kind.name, wordOrName))
            return &kind;
    }
    return nullptr;
}

}  // namespace fabula::interchange
