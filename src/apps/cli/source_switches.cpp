#include "cli/source_switches.h"

#include <iostream>
#include <string>

#include "interchange/pc/pc_dialect.h"
#include "interchange/pc/pc_lines.h"
#include "text/encoding/safe_text.h"

namespace fabula::cli {
namespace {

constexpr std::string_view kDirective = "lint off ";

void TellUnknownSwitch(std::string_view switches, const interchange::SourcePlace& place) {
    const std::string code(switches.substr(0, switches.find(' ')));
    std::cerr << text::SafeLines(place.file.string() + ":" + std::to_string(place.line) +
                                 ": warning: there is no finding '" + code + "'; --rules shows them")
              << "\n";
}

}  // namespace

void AddSwitchesOfSource(const interchange::FileKind& kind, const std::filesystem::path& source,
                         references::LintSwitches& switches) {
    for (const interchange::PcDialect& dialect : {interchange::kPcSource, interchange::kAceSource}) {
        if (kind.name != dialect.kind) continue;
        interchange::NoObserver nobody;
        interchange::JobStatus status(nobody);
        interchange::PcLines lines(source, dialect.comment, std::string(dialect.kind), status);
        lines.WatchComments([&](std::string_view comment, const interchange::SourcePlace& place) {
            const std::size_t at = comment.find(kDirective);
            if (at == std::string_view::npos) return;
            const std::string_view named = comment.substr(at + kDirective.size());
            if (!switches.Add(named)) TellUnknownSwitch(named, place);
        });
        for (std::string line; lines.RdSrcFile(line, true);) {
        }
    }
}

}  // namespace fabula::cli
