#pragma once

#include <memory>
#include <optional>
#include <set>
#include <string>

#include "interchange/pc/pc_source_job.h"
#include "interchange/shared/keyed_table.h"

namespace fabula::interchange {

/// What sets the four sections of texts apart.
struct PcTextTable {
    store::TableNum table;
    std::string_view name;  ///< in the status line
};

/// "/STX", "/MTX", "/OTX" and "/LTX": a line "/n" opens text n, the lines up to the next "/" are it.
class PcTexts final : public PcSection {
  public:
    PcTexts(PcSourceJob& job, const PcTextTable& table) : job_(job), kind_(table) {}

    bool TakesBlankLines() const override { return true; }
    void Begin(const std::vector<std::string_view>& words) override;
    void Slash(std::string_view line) override;
    void Line(std::string_view line) override;
    void Finish() override;

  private:
    void Flush();
    void SetDefaults(store::Cursor& record) const;
    void AddScriptMessages();

    PcSourceJob& job_;
    const PcTextTable& kind_;
    std::unique_ptr<KeyedTable> table_;
    std::optional<std::int64_t> number_;  ///< of the text being read
    std::set<std::int64_t> seen_;
    std::string text_;
    bool hasLine_ = false;
};

/// The four sections, in the order of a source.
extern const PcTextTable kPcTextTables[4];

}  // namespace fabula::interchange
