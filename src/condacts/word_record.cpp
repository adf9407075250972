#include "condacts/word_record.h"

#include <cstdint>

#include "store/query/cursor.h"

namespace fabula::condacts {

void SetWord(store::Cursor& record, const Word& word) {
    record.SetField("word", word.word);
    record.SetField("vocnum", std::int64_t{word.number.value});
    record.SetField("voctypen", std::int64_t{word.type});
    record.SetField("voctype", std::string(WordTypeName(word.type)));
}

}  // namespace fabula::condacts
