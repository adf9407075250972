#include <string>
#include <vector>

#include "listings/record.h"
#include "listings/reports.h"

namespace fabula::listings {
namespace {

constexpr std::string_view kWordLine = "!%t20!%a!%t55!%a5!%t65!%a";

void WriteType(const Listing& listing, const std::string& where, std::string_view order) {
    store::PreparedQuery rows = listing.adventure.Prepare(store::TableNum::Vocabulary,
                                                          "vocindex, word, vocnum, voctype", where, order);
    for (bool more = rows.First({}); more; more = rows.Next()) {
        Record record({store::TableNum::Vocabulary, static_cast<int>(rows.Number(0))});
        record.Row(kWordLine, {std::string(rows.Text(1)), rows.Number(2), std::string(rows.Text(3))});
        listing.frame.Add(record.Take());
    }
}

void WriteWords(const Listing& listing, std::string_view title, std::string_view order,
                const std::optional<std::vector<int>>& types) {
    listing.frame.Begin(
        title, {Heading("!%t20!Name!%t55!Num!%t65!Type"), Heading("!%t20!Word!%t55!Word!%t65!Word"),
                Heading("!%t20!%C30-!%t55!%c5-!%T65!%c11-")});
    if (!types) return WriteType(listing, "vocindex>=0", order);
    for (const int type : *types)
        WriteType(listing, "vocindex>=0 and voctypen=" + std::to_string(type), order);
}

}  // namespace

void WriteVocabularyByWord(const Listing& listing, const ReportRequest& request) {
    WriteWords(listing, "Vocabulary Listing by Type and Word", "voctypen, word", request.numbers);
}

void WriteVocabularyByNumber(const Listing& listing, const ReportRequest& request) {
    WriteWords(listing, "Vocabulary Listing by Type and Word Num", "voctypen, vocnum, word",
               request.numbers);
}

}  // namespace fabula::listings
