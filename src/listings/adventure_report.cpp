#include <array>

#include "listings/reports.h"

namespace fabula::listings {
namespace {

using store::TableNum;
using Write = void (*)(const Listing& listing, const ReportRequest& request);

/// The tables of a complete listing by their numbers: 5, 8, 1, 4, 2, 7, 9, 15, 6, 33, 34.
constexpr std::array<Write, 11> kComplete = {
    WriteSettings,      WriteVocabularyByWord, WriteLocations, WriteObjects,
    WriteMessages,      WriteSystemMessages,   WriteFlags,     WriteProcessDescriptions,
    WriteProcessTables, WriteCharacterSets,    WriteGraphics,
};
constexpr std::array<TableNum, 5> kBrief = {TableNum::Locations, TableNum::Objects, TableNum::Messages,
                                            TableNum::SystemMessages, TableNum::Flags};

}  // namespace

void WriteAdventure(const Listing& listing, const ReportRequest& request) {
    if (request.detail == Detail::Brief) {
        for (const TableNum table : kBrief)
            WriteBrief(listing, table);
        return;
    }
    const ReportRequest whole{.detail = request.detail, .complete = true};
    for (const Write write : kComplete)
        write(listing, whole);
}

}  // namespace fabula::listings
