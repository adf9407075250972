#include "interchange/file_kinds.h"

#include <algorithm>

#include "interchange/fabula/fabula_reader.h"
#include "interchange/fabula/fabula_writer.h"
#include "interchange/pc/pc_source_reader.h"
#include "interchange/pc/pc_source_writer.h"
#include "interchange/unmarlo/unmarlo_reader.h"
#include "interchange/unvel/unvel_head.h"
#include "interchange/unvel/unvel_reader.h"
#include "interchange/unvel/unvel_writer.h"
#include "store/extensions.h"
#include "store/game_source.h"
#include "text/encoding/utf8.h"
#include "text/fields.h"
#include "text/numbers.h"

namespace fabula::interchange {
namespace {

using condacts::Dialect;
using store::AdventureKind;

store::AdventureSetup SetupOfPcSource(const std::filesystem::path&) {
    store::AdventureSetup setup;
    setup.ChooseType(AdventureKind::Vel);
    return setup;
}

store::AdventureSetup SetupOfAceSource(const std::filesystem::path&) {
    return {};
}

bool ReadHeadOfUnMarlo(ListingLines& lines, platform::Person&, JobStatus& status) {
    return ReadUnMarloHead(lines, status).has_value();
}

bool ReadHeadOfUnVel(ListingLines& lines, platform::Person& person, JobStatus&) {
    return ReadUnVelHead(lines, person).has_value();
}

/// An export file begins with its version and goes on with the fields of records.
bool BeginsLikeExport(std::string_view start) {
    const auto lines = text::Split(start, "\n");
    return lines.size() > 1 && text::Split(lines[0], ".").size() == 3 &&
           text::WholeNumber(text::Split(lines[1], "|")[0]) && lines[1].find('|') != std::string_view::npos;
}

/// Sources of both dialects have a section /CTL.
bool BeginsLikePcSource(std::string_view start) {
    if (BeginsLikeExport(start)) return false;
    const auto lines = text::Split(start, "\n");
    return std::ranges::any_of(
        lines, [](std::string_view line) { return text::EqualsNoCase(line.substr(0, 4), "/CTL"); });
}

constexpr std::string_view kUsualKind = "pcvel";
constexpr std::string_view kKindOfNewGames = "fabula";

// Paper and ink of an ACE source are white and black as screen colours; these are their numbers.
const FileKind kKinds[] = {
    {.word = "unmarlo",
     .name = "UnMarlo",
     .about = "the listing of a Marlo game",
     .extension = ".unq",
     .importDialog = {"", "Load an UnMarlo output file", "All files|*.*"},
     .exportDialog = {},
     .setup = SetupOfUnMarlo,
     .read = LoadUnMarlo,
     .write = nullptr,
     .settings = {"UnMarlo", 2, true, false, 0, 0, 0},
     .rules = {},
     .savesPictures = true,
     .readHead = ReadHeadOfUnMarlo},
    {.word = "unvel",
     .name = "UnVel",
     .about = "the listing of a VEL game",
     .extension = ".pex",
     .importDialog = {"", "Load an UnVel output file", "All files|*.*"},
     .exportDialog = {"*.pex", "Save as an UnVEL Extract", "UnVEL Extract (*.pex)|*.pex"},
     .setup = SetupOfUnVel,
     .read = LoadUnVel,
     .write = ExportUnVel,
     .settings = {"UnVel", 1, true, false, 0, 0, 0},
     .rules = {"Vel", Dialect::Vel, "vel", true},
     .isInExportDialog = true,
     .hasVersions = true,
     .savesPictures = true,
     .readHead = ReadHeadOfUnVel},
    {.word = "pcvel",
     .name = "PCVEL",
     .about = "a source of the PC engine",
     .extension = store::extension::kPcSource,
     .importDialog = {"*.sce", "Load an PC VEL source file", "PC VEL Sources (*.sce)|*.sce|All files|*.*"},
     .exportDialog = {"*.sce", "Save as a PC VEL source", "PC VEL source (*.sce)|*.sce"},
     .setup = SetupOfPcSource,
     .read = LoadPCVel,
     .write = ExportPCVel,
     .settings = {"PCVel", 3, true, true, 15, 0, 80},
     .rules = {"PCVel", Dialect::PCVel, ""},
     .isInExportDialog = true,
     .beginsLike = BeginsLikePcSource},
    {.word = "fabula",
     .name = "Fabula",
     .about = "an export file of this program",
     .extension = store::extension::kExport,
     .importDialog = {"", "Load an Fabula Exportfile", "Fabula Export (*.ext)|*.ext|All files|*.*"},
     .exportDialog = {"*.ext", "Save as an FabuLA Extract", "FabuLA Extract (*.ext)|*.ext"},
     .setup = SetupOfExport,
     .read = LoadFabula,
     .write = ExportFabula,
     .settings = {"FabulaExp", 5, true, false, 0, 0, 0},
     .rules = {"Fabula", Dialect::Fabula, "fabula"},
     .isInExportDialog = true,
     .beginsLike = BeginsLikeExport},
    {.word = "ace",
     .name = "ACE",
     .about = "an ACE source",
     .extension = ".txt",
     .importDialog = {"*.txt", "Load an ACE source file", "ACE Sources (*.*)|*.*|All files|*.*"},
     .exportDialog = {"", "Save as an ACE source", "ACE source(*.txt)|*.txt"},
     .setup = SetupOfAceSource,
     .read = LoadAce,
     .write = ExportAce,
     .settings = {"ACE", 4, true, true, 15, 0, 80},
     .rules = {"ACE", Dialect::Fabula, "fabula"},
     .beginsLike = BeginsLikePcSource},
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

const FileKind& UsualFileKind() {
    return *FindFileKind(kUsualKind);
}

const FileKind& FirstExportKind(std::string_view source) {
    if (text::EqualsNoCase(source, store::kNewSource)) return *FindFileKind(kKindOfNewGames);
    for (const FileKind& kind : kKinds) {
        if (kind.isInExportDialog && text::EqualsNoCase(kind.settings.source, source)) return kind;
    }
    return UsualFileKind();
}

const FileKind* KindThatBegins(std::string_view start, const FileKind& chosen) {
    if (chosen.beginsLike && chosen.beginsLike(start)) return &chosen;
    for (const FileKind& kind : kKinds) {
        if (kind.beginsLike && kind.beginsLike(start)) return &kind;
    }
    return nullptr;
}

}  // namespace fabula::interchange
