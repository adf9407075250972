#include "interchange/shared/source_map.h"

namespace fabula::interchange {

void SourceMap::Set(store::TableNum table, std::int64_t key, const SourcePlace& place) {
    Set(table, key, "", 0, place);
}

void SourceMap::Set(store::TableNum table, std::int64_t key, std::string_view field, std::size_t word,
                    const SourcePlace& place) {
    places_.insert_or_assign(Key{table, key, std::string(field), word},
                             SourcePlace{place.file, place.line, "", place.column});
}

const SourcePlace* SourceMap::Find(store::TableNum table, std::int64_t key, std::string_view field,
                                   std::size_t word) const {
    auto found = places_.find(Key{table, key, std::string(field), word});
    if (found == places_.end()) found = places_.find(Key{table, key, "", 0});
    return found == places_.end() ? nullptr : &found->second;
}

}  // namespace fabula::interchange
