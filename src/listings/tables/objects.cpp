#include <cstdint>
#include <string>
#include <vector>

#include "authoring/fields/location_names.h"
#include "condacts/places.h"
#include "listings/record.h"
#include "listings/reports.h"

namespace fabula::listings {
namespace {

using store::TableNum;

constexpr TextArea kObjectText{5, 40};
/// Where the place of an object stands, counted from 0.
constexpr std::size_t kPlaceColumn = 71;
constexpr std::string_view kWords = "!%a30! !%a30! !%r3! !%a4! !%a";
constexpr TextArea kRoom{92, 40};

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
    std::vector<authoring::ListItem> rooms;
    if (verbose) rooms = authoring::LocationNames(listing.adventure);
    store::PreparedQuery rows = listing.adventure.Prepare(
        TableNum::Objects,
        "objnum, objdesc, objnoun, objadject, objweight, objattr, objlocdesc, objloc, comment", "");
    for (bool more = rows.First({}); more; more = rows.Next()) {
        const Place place{TableNum::Objects, static_cast<int>(rows.Number(0))};
        Record record(place);
        record.Text("!%a!%t5!%a", {rows.Number(0)}, rows.Text(1), kObjectText);
        record.LinkTo(place, 0, std::to_string(rows.Number(0)).size());
        const std::string initially(rows.Text(6));
        std::vector<text::Value> words{std::string(rows.Text(2)), std::string(rows.Text(3)), rows.Number(4),
                                       std::string(rows.Text(5)), initially};
        const condacts::PlaceNumber at(static_cast<int>(rows.Number(7)));
        record.Row(kWords, std::move(words));
        if (!condacts::IsSpecialPlace(at))
            record.LinkTo({TableNum::Locations, at.value}, kPlaceColumn, initially.size());
        if (verbose) record.Aside(authoring::NameIn(rooms, at), kRoom);
        if (verbose) AddComment(record, rows.Text(8));
        listing.frame.Add(record.Take());
    }
}

}  // namespace fabula::listings
