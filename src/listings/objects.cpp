#include <cstdint>
#include <map>
#include <string>

#include "condacts/places.h"
#include "listings/record.h"
#include "listings/reports.h"

namespace fabula::listings {
namespace {

using store::TableNum;

constexpr TextArea kDescription{5, 40};
/// Where the place of an object stands, counted from 0.
constexpr std::size_t kPlaceColumn = 71;
constexpr std::string_view kWords = "!%a30! !%a30! !%r3! !%a4! !%a";
constexpr std::string_view kVerboseWords = "!%a30! !%a30! !%r3! !%a4! !%a!%t92!%a";

using RoomNames = std::map<std::int64_t, std::string>;

/// The short descriptions of the locations.
RoomNames LoadRoomNames(store::Adventure& adventure) {
    RoomNames names;
    store::PreparedQuery rows = adventure.Prepare(TableNum::Locations, "locnum, locshortdesc", "");
    for (bool more = rows.First({}); more; more = rows.Next())
        names.try_emplace(rows.Number(0), rows.Text(1));
    return names;
}

}  // namespace

void WriteObjects(const Listing& listing, const ReportRequest& request) {
    if (request.detail == Detail::Brief) return WriteBrief(listing, TableNum::Objects);
    const bool verbose = request.detail == Detail::Verbose;
    const std::string lastHeading = "!%c30-! !%c30-! --- ---- !%c12-";
    listing.frame.Begin("Object Listing",
                        {Heading("Num!%t5!Description"), Heading("%c3-!  !%c40-"),
                         Heading(std::string("Noun!%c27 !Adj.!%c27 !Wt. Attr Initially At") +
                                 (verbose ? "!%t92!Room Description" : "")),
                         Heading(lastHeading + (verbose ? "!%t92!%c16-" : ""))});
    const RoomNames rooms = verbose ? LoadRoomNames(listing.adventure) : RoomNames();
    store::PreparedQuery rows = listing.adventure.Prepare(
        TableNum::Objects,
        "objnum, objdesc, objnoun, objadject, objweight, objattr, objlocdesc, objloc, comment", "");
    for (bool more = rows.First({}); more; more = rows.Next()) {
        const Place place{TableNum::Objects, static_cast<int>(rows.Number(0))};
        Record record(place);
        record.Text("!%a!%t5!%a", {rows.Number(0)}, rows.Text(1), kDescription);
        record.LinkTo(place, 0, std::to_string(rows.Number(0)).size());
        const std::string initially(rows.Text(6));
        std::vector<text::Value> words{std::string(rows.Text(2)), std::string(rows.Text(3)), rows.Number(4),
                                       std::string(rows.Text(5)), initially};
        const std::int64_t at = rows.Number(7);
        if (verbose) {
            const auto room = rooms.find(at);
            words.emplace_back(room == rooms.end() ? std::string() : room->second);
        }
        record.Row(verbose ? kVerboseWords : kWords, std::move(words));
        if (!condacts::IsSpecialPlace(at))
            record.LinkTo({TableNum::Locations, static_cast<int>(at)}, kPlaceColumn, initially.size());
        if (verbose) AddComment(record, rows.Text(8));
        listing.frame.Add(record.Take());
    }
}

}  // namespace fabula::listings
