#pragma once

#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>

#include "interchange/pc/pc_source_job.h"
#include "interchange/shared/keyed_table.h"

namespace fabula::interchange {

/// "/CON": a line "/n" for a location, then lines "word destination", one exit or several.
class PcConnections final : public PcSection {
  public:
    explicit PcConnections(PcSourceJob& job) : job_(job) {}

    void Begin(const std::vector<std::string_view>& words) override;
    void Slash(std::string_view line) override;
    void Line(std::string_view line) override;
    void Finish() override;

  private:
    void AddExit(std::string_view word, std::string_view destination);
    bool LeadsElsewhere(condacts::WordNumber word, condacts::PlaceNumber destination) const;
    void Flush();

    PcSourceJob& job_;
    std::unique_ptr<KeyedTable> locations_;
    std::optional<std::int64_t> location_;
    std::set<std::int64_t> seen_;
    std::string exits_;
    std::string numericExits_;
    /// Of the location at hand, by the word.
    std::map<condacts::WordNumber, condacts::PlaceNumber> destinations_;
    std::int64_t tokens_ = 0;
};

}  // namespace fabula::interchange
