#include "interchange/pc/pc_source_reader.h"

#include <array>
#include <memory>
#include <string>

#include "condacts/language/load.h"
#include "interchange/pc/pc_connections.h"
#include "interchange/pc/pc_objects.h"
#include "interchange/pc/pc_processes.h"
#include "interchange/pc/pc_script_commands.h"
#include "interchange/pc/pc_source_job.h"
#include "interchange/pc/pc_texts.h"
#include "interchange/pc/pc_vocabulary.h"
#include "interchange/shared/given_records.h"
#include "interchange/shared/source_extras.h"
#include "store/tags.h"
#include "text/encoding/utf8.h"

namespace fabula::interchange {
namespace {

using store::Cursor;
using store::TableNum;

/// The keywords of the sections, in the order in which they must come, and those of the documentation that
/// the writer of these files adds, which is not read.
constexpr std::string_view kSections[] = {"VOC", "STX", "MTX", "OTX", "LTX", "CON", "OBJ", "PRO"};
constexpr std::string_view kDocumentation[] = {"FLG", "PRD"};
constexpr std::size_t kSectionCount = std::size(kSections);

std::optional<std::size_t> SectionIndex(std::string_view keyword) {
    for (std::size_t i = 0; i < kSectionCount; ++i) {
        if (text::EqualsNoCase(kSections[i], keyword)) return i;
    }
    return std::nullopt;
}

bool IsDocumentation(std::string_view keyword) {
    return text::EqualsNoCase(kDocumentation[0], keyword) || text::EqualsNoCase(kDocumentation[1], keyword);
}

bool IsKeyword(std::string_view line, std::string_view keyword) {
    if (!line.starts_with('/')) return false;
    const auto words = SplitSlashLine(line);
    return !words.empty() && text::EqualsNoCase(words[0], keyword);
}

/// The reading of one source, section by section.
class SourceReader {
  public:
    explicit SourceReader(PcSourceJob& job) : job_(job) {
        sections_[0] = std::make_unique<PcVocabulary>(job);
        for (std::size_t i = 0; i < std::size(kPcTextTables); ++i) {
            sections_[1 + i] = std::make_unique<PcTexts>(job, kPcTextTables[i]);
        }
        sections_[5] = std::make_unique<PcConnections>(job);
        sections_[6] = std::make_unique<PcObjects>(job);
        sections_[7] = std::make_unique<PcProcesses>(job);
    }

    bool Read() {
        if (!FindVocabulary()) return false;
        std::string line;
        while (job_.lines.RdSrcFile(line, section_ == nullptr || !section_->TakesBlankLines())) {
            job_.line = line;
            if (line.starts_with('/')) {
                TakeSlash(line);
            } else if (section_ != nullptr) {
                section_->Line(line);
            }
        }
        if (job_.lines.Failed()) return false;
        EndSection();
        return true;
    }

  private:
    /// Reads up to the vocabulary. The first character line of the control section is the word for "no
    /// word".
    bool FindVocabulary() {
        bool inControl = false;
        bool first = true;
        std::string line;
        while (job_.lines.RdSrcFile(line, true)) {
            job_.line = line;
            if (IsKeyword(line, "VOC") && inControl) {
                TakeSlash(line);
                return true;
            }
            if (IsKeyword(line, "VOC")) break;
            if (IsKeyword(line, "CTL")) {
                inControl = true;
            } else if (inControl && first) {
                const auto words = SplitWords(line);
                if (words.size() == 1 && text::Length(words[0]) == 1) job_.nullWord = words[0];
                first = false;
            }
        }
        if (job_.lines.Failed()) return false;
        job_.Status("ERROR: Invalid file.");
        if (!inControl) {
            job_.Status("Cannot find /CTL keyword");
            job_.Status("Import aborted");
        } else {
            job_.Status("Cannot find /VOC keyword");
            job_.Status("Add it at the start of your vocabulary");
            job_.Status("Import aborted.");
        }
        return false;
    }

    void TakeSlash(std::string_view line) {
        const auto words = SplitSlashLine(line);
        const std::string_view keyword = words.empty() ? std::string_view() : words[0];
        if (IsDocumentation(keyword)) {
            EndSection();
            return;
        }
        const auto index = SectionIndex(keyword);
        if (!index) {
            if (section_ != nullptr) section_->Slash(line);
            return;
        }
        if (section_ != nullptr && *index == current_) {
            section_->Begin(words);
            return;
        }
        EndSection();
        if (*index < current_) {
            job_.Fault(kSectionBehind, keyword);
            return;
        }
        current_ = *index;
        section_ = sections_[current_].get();
        section_->Begin(words);
    }

    void EndSection() {
        if (section_ != nullptr) section_->Finish();
        section_ = nullptr;
    }

    PcSourceJob& job_;
    std::array<std::unique_ptr<PcSection>, kSectionCount> sections_;
    PcSection* section_ = nullptr;  ///< nullptr: the lines are passed over
    std::size_t current_ = 0;
};

bool Load(ImportContext& context, const PcDialect& dialect) {
    PcLines lines(context.source, dialect.comment, std::string(dialect.kind), context.status,
                  context.encoding);
    context.status.AddToStatusCR(kLookForFlags);
    const condacts::Catalogue catalogue = condacts::LoadCatalogue(context.adventure);
    const AceTags tags(context.adventure);
    PcSourceJob job{
        context,
        lines,
        dialect,
        catalogue,
        FlagAnalysis(context.adventure, catalogue),
        PcTextForm(dialect, store::LoadTagCatalogue(context.adventure), dialect.hasTags ? &tags : nullptr),
        {}};
    if (!SourceReader(job).Read()) return false;
    if (context.adventure.OpenTable(TableNum::ProcessTables, "canum").RecordCount() == 0) {
        context.status.AddToStatusCR("No status records generated from file");
    }
    if (dialect.getsScriptCommands) AddScriptCommands(job);
    NameGame(context.adventure, lines.AdventureName());
    job.analysis.PrintFlagAnal(context.adventure, context.status);
    for (const PcLines::Extra& extra : lines.Extras()) {
        const std::string fault = ApplyExtra(context.adventure, extra.text);
        if (!fault.empty()) context.status.AddFault(fault, extra.place);
    }
    return true;
}

}  // namespace

bool LoadPCVel(ImportContext& context) {
    return Load(context, kPcSource);
}

bool LoadAce(ImportContext& context) {
    return Load(context, kAceSource);
}

}  // namespace fabula::interchange
