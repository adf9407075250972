// Any text as a filter, an order and a free cursor's statement: it is parsed or refused, and what was
// parsed can be asked of a record and turned into a condition.

#include <cstdint>
#include <string_view>

#include "store/filter/filter.h"
#include "store/query/selection.h"

using namespace fabula;

namespace {

const store::TableSchema kSchema{"Vocabulary",
                                 {{"vocindex", store::FieldType::SmallInt, 0},
                                  {"Word", store::FieldType::VarWChar, 30},
                                  {"weight", store::FieldType::Double, 0},
                                  {"used", store::FieldType::Boolean, 0},
                                  {"picture", store::FieldType::LongVarBinary, 0}}};

class Record final : public store::FieldSource {
  public:
    text::Value ValueOf(std::size_t field) const override { return kValues[field]; }

  private:
    inline static const text::Value kValues[] = {
        std::int64_t{3}, std::string("LAMP"), 2.5, std::int64_t{1}, {}};
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    try {
        const store::FilterNode filter = store::ParseFilter(text, kSchema);
        std::string sql;
        std::vector<text::Value> values;
        store::AppendSql(filter, kSchema, sql, values);
        store::Matches(filter, Record());
    } catch (const store::FilterError&) {
    }
    store::IsOrderOf(kSchema, text);
    try {
        store::SplitFreeStatement(text);
    } catch (const store::FilterError&) {
    }
    return 0;
}
