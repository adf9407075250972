#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "listings/record.h"
#include "listings/reports.h"
#include "store/new_flag.h"
#include "store/schema/record_fields.h"

namespace fabula::listings {
namespace {

using store::TableNum;

constexpr int kMostFields = 4;

/// A table of numbered texts: a record is its number, perhaps some words, and a text that goes on in its
/// column.
struct TextTable {
    std::string_view title;
    TableNum table{};
    /// The number first and the text last; where it is empty, these are all.
    std::string_view fields;
    std::array<std::string_view, 2> headings;
    std::string_view format;
    TextArea area;
    /// What stands for a field without a value, in the order of `fields`.
    std::array<std::string_view, kMostFields> whenEmpty = {};
    int fieldCount = 2;
};

constexpr std::array<std::string_view, 2> kTextHeadings = {"!Number!%t10!Description", "!%c6-!%t10!%c70-"};
constexpr std::string_view kTextFormat = "!%A!%t10!%a";
constexpr TextArea kTextArea{10, 70};

constexpr TextTable kMessages = {
    "Messages Table Listing", TableNum::Messages, "", kTextHeadings, kTextFormat, kTextArea};
constexpr TextTable kSystemMessages = {
    "System Messages Table Listing", TableNum::SystemMessages, "", kTextHeadings, kTextFormat, kTextArea};
constexpr TextTable kProcessDescriptions = {
    "Process Descriptions Table Listing", TableNum::ProcDesc, "", kTextHeadings, kTextFormat, kTextArea};
constexpr TextTable kUserProcessDescriptions = {"Process Descriptions Table User Listing",
                                                TableNum::ProcDesc,
                                                "",
                                                kTextHeadings,
                                                kTextFormat,
                                                kTextArea};
constexpr TextTable kFlags = {
    "Listing of Flag Descriptions",
    TableNum::Flags,
    "flgnum, flgtype, flguse, flgdesc",
    {"!Number!%T10!Type!%T20!Use!%t30!Description", "!%C6-!%T10!%c6-!%T20!%c9-!%t30!%C50-"},
    "!%a!%T10!%A!%t20!%a!%t30!%a",
    {30, 50},
    {"", "", "", "Not Described"},
    4};
constexpr TextTable kUserFlags = {"Listing of User Flags",
                                  TableNum::Flags,
                                  "flgnum, flguse, flgdesc",
                                  {"!Number!%T10!Use!%T20!Description", "!%C6-!%T10!%c9-!%T20!%C60-"},
                                  "!%a!%T10!%A!%t20!%a",
                                  {20, 60},
                                  {"", store::kUnknownFlagUse, ""},
                                  3};

/// The flags that every game has had since the older engines, which extra entries follow.
constexpr int kFirstExtraFlag = 60;

/// A text of one underscore stands for none.
constexpr std::string_view kNoText = "_";

enum class NoText { Shown, ShownAsEmpty, LeftOut };

/// Where a number of the table leads: that of a process description to its table.
Place LinkOf(const TextTable& table, int number) {
    return {table.table == TableNum::ProcDesc ? TableNum::ProcessTables : table.table, number};
}

void WriteTexts(const Listing& listing, const TextTable& table, NoText noText = NoText::Shown,
                std::string_view where = "") {
    listing.frame.Begin(table.title, {Heading(table.headings[0]), Heading(table.headings[1])});
    store::PreparedQuery rows = listing.adventure.Prepare(
        table.table, table.fields.empty() ? store::KeyAndText(table.table) : std::string(table.fields),
        where);
    for (bool more = rows.First({}); more; more = rows.Next()) {
        const auto shown = [&](int field) -> std::string_view {
            const std::string_view stored = rows.Text(field);
            if (noText == NoText::ShownAsEmpty && stored == kNoText) return "";
            return IsEmpty(stored) ? table.whenEmpty[static_cast<std::size_t>(field)] : stored;
        };
        const int last = table.fieldCount - 1;
        if (noText == NoText::LeftOut && rows.Text(last) == kNoText) continue;
        const int number = static_cast<int>(rows.Number(0));
        std::vector<text::Value> values{std::int64_t{number}};
        for (int field = 1; field < last; ++field)
            values.emplace_back(std::string(shown(field)));
        Record record({table.table, number});
        record.Text(table.format, std::move(values), shown(last), table.area);
        record.LinkTo(LinkOf(table, number), 0, std::to_string(number).size());
        listing.frame.Add(record.Take());
    }
}

/// The highest number of a flag of the user; -1 when there is none.
int LastUserFlag(store::Adventure& adventure) {
    store::PreparedQuery flags =
        adventure.Prepare(TableNum::Flags, "flgnum", store::OfUserFlags(), "flgnum desc");
    return flags.First({}) ? static_cast<int>(flags.Number(0)) : -1;
}

}  // namespace

void WriteMessages(const Listing& listing, const ReportRequest& request) {
    if (request.detail == Detail::Brief) return WriteBrief(listing, TableNum::Messages);
    WriteTexts(listing, kMessages);
}

void WriteSystemMessages(const Listing& listing, const ReportRequest& request) {
    if (request.detail == Detail::Brief) return WriteBrief(listing, TableNum::SystemMessages);
    WriteTexts(listing, kSystemMessages);
}

void WriteFlags(const Listing& listing, const ReportRequest& request) {
    if (request.detail == Detail::Brief) return WriteBrief(listing, TableNum::Flags);
    WriteTexts(listing, kFlags);
}

void WriteUserFlags(const Listing& listing, const ReportRequest& request) {
    int last = LastUserFlag(listing.adventure);
    if (request.extraEntries) last = std::min(last, kFirstExtraFlag - 1 + *request.extraEntries);
    WriteTexts(listing, kUserFlags, NoText::ShownAsEmpty, "flgmod>0 and flgnum<=" + std::to_string(last));
}

void WriteProcessDescriptions(const Listing& listing, const ReportRequest&) {
    WriteTexts(listing, kProcessDescriptions);
}

void WriteUserProcessDescriptions(const Listing& listing, const ReportRequest&) {
    WriteTexts(listing, kUserProcessDescriptions, NoText::LeftOut);
}

}  // namespace fabula::listings
