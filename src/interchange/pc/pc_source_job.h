#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "condacts/language/catalogue.h"
#include "condacts/words.h"
#include "interchange/pc/ace_tags.h"
#include "interchange/pc/pc_dialect.h"
#include "interchange/pc/pc_lines.h"
#include "interchange/pc/pc_text_form.h"
#include "interchange/shared/flag_analysis.h"
#include "interchange/shared/job_host.h"

namespace fabula::interchange {

/// Told of what stands behind the last word of a line.
inline constexpr const char* kRestNotRead = "ERROR: The rest of this line is not read.";

/// What the sections of a source share while it is read.
struct PcSourceJob {
    ImportContext& context;
    PcLines& lines;
    const PcDialect& dialect;
    condacts::Catalogue catalogue;
    FlagAnalysis analysis;
    PcTextForm texts;
    condacts::WordIndex words;  ///< the vocabulary, once its section is read
    std::string nullWord = std::string(condacts::kNoWord);

    std::string_view line = {};  ///< the line at hand, of which the sections are given pieces

    /// Reports the line at hand, or the piece of it that is at fault, and the entry where it has a name.
    void Fault(const std::string& message, std::string_view at = "", std::string_view entry = "") const {
        context.status.AddFault(message, PlaceOf(at), entry);
    }
    /// Reports what stands behind the last word that the line may have.
    void FaultBehind(const std::vector<std::string_view>& pieces, std::size_t most) const {
        if (pieces.size() > most) Fault(kRestNotRead, pieces[most]);
    }
    SourcePlace PlaceOf(std::string_view at) const;
    /// Notes where a word of a record's field stands.
    void Note(store::TableNum table, std::int64_t key, std::string_view field, std::size_t word,
              const SourcePlace& place) const {
        if (context.places != nullptr) context.places->Set(table, key, field, word, place);
    }
    void Status(const std::string& text) const { context.status.AddToStatusCR(text); }

    /// A word as it counts: in capitals, cut.
    std::string Word(std::string_view word) const;
    bool IsNullWord(std::string_view word) const;
};

/// The number behind the "/" of a line "/n"; nullopt when it has none or one beyond the highest.
std::optional<std::int64_t> RecordNumber(const std::vector<std::string_view>& words);

/// The words of a "/" line, the first without its "/".
std::vector<std::string_view> SplitSlashLine(std::string_view line);

/// One section of a source.
class PcSection {
  public:
    virtual ~PcSection() = default;

    /// True where a blank line is part of the content.
    virtual bool TakesBlankLines() const { return false; }
    /// The section's keyword was met; `words` are those of its line, the keyword first.
    virtual void Begin(const std::vector<std::string_view>& words) = 0;
    /// A line that begins with "/" and is no keyword.
    virtual void Slash(std::string_view line) = 0;
    virtual void Line(std::string_view line) = 0;
    /// Another section begins, or the source ends.
    virtual void Finish() = 0;
};

}  // namespace fabula::interchange
