#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <tuple>

#include "interchange/shared/job_status.h"
#include "store/schema/table_catalogue.h"

namespace fabula::interchange {

/// Where the records of an adventure stand in the source that they were read from, so that what is found
/// later in the adventure can be told at its place in the source.
class SourceMap {
  public:
    /// The place of a record as a whole.
    void Set(store::TableNum table, std::int64_t key, const SourcePlace& place);
    /// The place of one word of a field, counted from 0, by the field's name in lower case.
    void Set(store::TableNum table, std::int64_t key, std::string_view field, std::size_t word,
             const SourcePlace& place);

    /// The place of the word, or else of its record; nullptr for a record that came from elsewhere.
    const SourcePlace* Find(store::TableNum table, std::int64_t key, std::string_view field = "",
                            std::size_t word = 0) const;

  private:
    using Key = std::tuple<store::TableNum, std::int64_t, std::string, std::size_t>;

    std::map<Key, SourcePlace> places_;
};

}  // namespace fabula::interchange
