#pragma once

#include <memory>
#include <set>

#include "interchange/pc/pc_source_job.h"
#include "interchange/shared/keyed_table.h"

namespace fabula::interchange {

/// "/OBJ": lines "/n location weight container wearable noun adjective". The location is a number, WORN or
/// CARRIED; container and wearable are "Y" or not. An adjective that is missing is the word for none.
class PcObjects final : public PcSection {
  public:
    explicit PcObjects(PcSourceJob& job) : job_(job) {}

    void Begin(const std::vector<std::string_view>& words) override;
    void Slash(std::string_view line) override;
    void Line(std::string_view line) override;
    void Finish() override;

  private:
    bool SetLocation(store::Cursor& object, std::string_view location);
    void SetAttributes(store::Cursor& object, bool container, bool wearable);
    void SetWords(store::Cursor& object, std::int64_t number, std::string_view noun,
                  std::string_view adjective);
    void NotePlaces(std::int64_t number, const std::vector<std::string_view>& tokens) const;
    const condacts::Word* FindWord(std::string_view word, condacts::WordTest test) const;

    PcSourceJob& job_;
    std::unique_ptr<KeyedTable> objects_;
    std::set<std::int64_t> locations_;  ///< those that exist
    std::set<std::int64_t> seen_;
};

}  // namespace fabula::interchange
