#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "listings/pages/frame.h"
#include "store/adventure.h"

namespace fabula::listings {

/// How much a listing tells.
enum class Detail { Brief, Plain, Verbose };

/// What a report is asked for. Each takes what concerns it.
struct ReportRequest {
    Detail detail = Detail::Plain;
    /// Of locations: with conditional exits and the objects that are present.
    bool complete = false;
    /// Process tables, pictures or types of words; without any, all of them.
    std::optional<std::vector<int>> numbers = std::nullopt;
    /// Of the flags of the user: only so many behind the first 60 flags.
    std::optional<int> extraEntries = std::nullopt;
    /// Of the special listing: the words of the entries, in any case.
    std::string verb = {};
    std::string noun = {};
    /// Of templates: their names, or files *.tpl; without any, all of the adventure.
    std::vector<std::string> names = {};
};

/// Where reports write, and what they tell of. The adventure is read only, and none of its cursors is
/// touched but those of the settings, pictures and characters.
struct Listing {
    store::Adventure& adventure;
    Frame& frame;
};

/// What the text of a range means for a report.
enum class RangeOf { Nothing, ProcessTables, Flags, Pictures, WordTypes, Names };

/// A report.
struct Report {
    std::string_view name;     ///< "system-messages"
    store::TableNum table{};   ///< that it tells of
    std::string_view tells;    ///< what it lists, for those who choose
    std::string_view caption;  ///< in the print window of its table; "" where that does not offer it
    RangeOf range = RangeOf::Nothing;
    /// Throws fabula::Error when the adventure can't be read, and for a word or a template that is not
    /// there.
    void (*write)(const Listing& listing, const ReportRequest& request);
    bool isOfBook = false;  ///< part of a complete listing
};

/// All reports, those of a complete listing in its order.
std::span<const Report> AllReports();
/// The report of that name; nullptr when there is none.
const Report* FindReport(std::string_view name);

/// The name that a listing bears; "" in an adventure without settings.
std::string AdventureName(store::Adventure& adventure);

/// Writes a report to a page.
void WriteReport(const Report& report, const ReportRequest& request, store::Adventure& adventure,
                 Page& page);

// The reports, each in a file of its subject.

void WriteSettings(const Listing& listing, const ReportRequest& request);
void WriteVocabularyByWord(const Listing& listing, const ReportRequest& request);
void WriteVocabularyByNumber(const Listing& listing, const ReportRequest& request);
void WriteLocations(const Listing& listing, const ReportRequest& request);
void WriteObjects(const Listing& listing, const ReportRequest& request);
void WriteMessages(const Listing& listing, const ReportRequest& request);
void WriteSystemMessages(const Listing& listing, const ReportRequest& request);
void WriteFlags(const Listing& listing, const ReportRequest& request);
void WriteUserFlags(const Listing& listing, const ReportRequest& request);
void WriteProcessDescriptions(const Listing& listing, const ReportRequest& request);
void WriteUserProcessDescriptions(const Listing& listing, const ReportRequest& request);
void WriteProcessTables(const Listing& listing, const ReportRequest& request);
void WriteVerbAndNoun(const Listing& listing, const ReportRequest& request);
void WriteCharacterSets(const Listing& listing, const ReportRequest& request);
void WriteCharacterSetsInFull(const Listing& listing, const ReportRequest& request);
void WriteGraphics(const Listing& listing, const ReportRequest& request);
void WriteGosubs(const Listing& listing, const ReportRequest& request);
void WriteTemplates(const Listing& listing, const ReportRequest& request);
/// All tables: in the order of their numbers in a complete listing, or one line for each record.
void WriteAdventure(const Listing& listing, const ReportRequest& request);

/// One line for each record of a table: its number and the first line of its text. Locations, objects,
/// messages, system messages and flags have one.
void WriteBrief(const Listing& listing, store::TableNum table);
bool HasBrief(store::TableNum table);

}  // namespace fabula::listings
