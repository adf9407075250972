#pragma once

#include <memory>
#include <set>
#include <string>

#include "interchange/keyed_table.h"
#include "interchange/pc_source_job.h"

namespace fabula::interchange {

/// "/PRO n": entries that begin with their two words in column 0; conditions and actions follow on the same
/// line or on lines of their own, indented. Tables are numbered without gaps.
class PcProcesses final : public PcSection {
  public:
    explicit PcProcesses(PcSourceJob& job);

    void Begin(const std::vector<std::string_view>& words) override;
    void Slash(std::string_view line) override;
    void Line(std::string_view line) override;
    void Finish() override;

  private:
    struct Entry {
        std::string w1;
        std::string w2;
        int w1Number = 0;
        int w2Number = 0;
        std::string condActs;
        std::string numeric;
        bool good = true;
    };

    void BeginEntry(std::string_view line);
    void AddCondActs(std::string_view line);
    std::string WithoutBells(std::string_view line);
    void Refuse(const std::string& why);
    void Flush();

    PcSourceJob& job_;
    condacts::Catalogue withBell_;  ///< the catalogue and BELL, which this system does not have
    std::unique_ptr<KeyedTable> entries_;
    std::unique_ptr<KeyedTable> descriptions_;
    int process_ = -1;
    bool skipping_ = false;  ///< behind the last table that there may be
    std::unique_ptr<Entry> entry_;
    bool hadBell_ = false;
};

}  // namespace fabula::interchange
