#include <algorithm>
#include <array>
#include <stdexcept>
#include <string>

#include "listings/record.h"
#include "listings/reports.h"
#include "listings/table_titles.h"
#include "store/new_flag.h"

namespace fabula::listings {
namespace {

using store::TableNum;

/// A table of a brief listing: the number, and the fields of which the first that says something is told.
struct BriefTable {
    TableNum table{};
    std::string_view fields;
    int texts = 1;
};

constexpr std::array<BriefTable, 5> kTables = {{
    {TableNum::Locations, "locnum, locshortdesc, locdesc", 2},
    {TableNum::Objects, "objnum, objdesc"},
    {TableNum::Messages, "msgnum, msgmsg"},
    {TableNum::SystemMessages, "smsgnum, smsgmsg"},
    {TableNum::Flags, "flgnum, flgdesc, flguse", 2},
}};

constexpr std::string_view kFormat = "!%A!%t10!%a";
constexpr TextArea kBriefArea{10, 70};

/// The use of a flag that nobody has described may say something.
std::string_view FirstWithText(const store::PreparedQuery& rows, int texts) {
    for (int i = 1; i <= texts; ++i) {
        if (!IsEmpty(rows.Text(i)) && rows.Text(i) != store::kUnknownFlagUse) return rows.Text(i);
    }
    return "";
}

/// The first line that is not blank.
std::string FirstLine(std::string_view text) {
    const std::vector<std::string> lines = WrappedText(text, kBriefArea.width);
    const auto first = std::ranges::find_if_not(lines, IsEmpty);
    return first == lines.end() ? std::string() : *first;
}

}  // namespace

bool HasBrief(TableNum number) {
    return std::ranges::find(kTables, number, &BriefTable::table) != kTables.end();
}

void WriteBrief(const Listing& listing, TableNum number) {
    const auto table = std::ranges::find(kTables, number, &BriefTable::table);
    if (table == kTables.end()) throw std::logic_error("a table without a brief listing");
    listing.frame.Begin("Brief " + PrintTitle(number),
                        {Heading("!Number!%t10!Description"), Heading("!%c6-!%t10!%c70-")});
    store::PreparedQuery rows = listing.adventure.Prepare(number, table->fields, "");
    for (bool more = rows.First({}); more; more = rows.Next()) {
        const auto key = rows.Number(0);
        const Place place{number, static_cast<int>(key)};
        Record record(place);
        record.Row(kFormat, {key, FirstLine(FirstWithText(rows, table->texts))});
        record.LinkTo(place, 0, std::to_string(key).size());
        listing.frame.Add(record.Take());
    }
}

}  // namespace fabula::listings
