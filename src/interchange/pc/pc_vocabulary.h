#pragma once

#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "interchange/pc/pc_source_job.h"
#include "interchange/shared/keyed_table.h"

namespace fabula::interchange {

/// "/VOC": lines "word number type". A source is a whole game: the default words but the reserved ones go
/// before it.
class PcVocabulary final : public PcSection {
  public:
    explicit PcVocabulary(PcSourceJob& job) : job_(job) {}

    void Begin(const std::vector<std::string_view>& words) override;
    void Slash(std::string_view line) override;
    void Line(std::string_view line) override;
    void Finish() override;

  private:
    PcSourceJob& job_;
    std::unique_ptr<KeyedTable> table_;
    std::unordered_map<std::string, std::vector<condacts::Word>> bySpelling_;
};

/// A type by its word in a source, case ignored; nullopt for any other text.
std::optional<condacts::WordType> FindWordType(std::string_view type);

/// A type by its word in a source, case ignored; any other text is a reserved word.
condacts::WordType WordTypeFromSource(std::string_view type);

}  // namespace fabula::interchange
