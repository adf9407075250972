#pragma once

#include <string>
#include <string_view>

#include "condacts/language/catalogue.h"
#include "condacts/places.h"
#include "interchange/listing/listing_lines.h"
#include "interchange/shared/flag_analysis.h"
#include "interchange/shared/job_host.h"
#include "interchange/shared/keyed_table.h"

namespace fabula::interchange {

/// What the sections of a listing share while it is read.
struct ListingJob {
    ImportContext& context;
    ListingLines& lines;
    condacts::Catalogue catalogue;
    FlagAnalysis analysis;

    /// Reports the line at hand, which is left out.
    void Fault(const std::string& message) const { context.status.AddFault(message, lines.Place()); }
    void Status(const std::string& text) const { context.status.AddToStatusCR(text); }
    store::Adventure& Adventure() const { return context.adventure; }
};

/// One section of a listing, fed line by line.
class ListingSection {
  public:
    virtual ~ListingSection() = default;
    virtual void Line(std::string_view line) = 0;
    /// Its end was met, or the file's: what is pending is stored and the status told.
    virtual void Finish() = 0;
};

/// Stores a location as listings make it: without exits and pictures. One of that number is written over.
void StoreLocation(KeyedTable& locations, std::int64_t number, const std::string& text);
/// Stores an object as listings make it: without words, not created, of weight 1.
void StoreObject(KeyedTable& objects, std::int64_t number, const std::string& text);
/// Puts the text into the record of that number, a new one where there is none.
void StoreText(KeyedTable& texts, std::string_view field, std::int64_t number, const std::string& text);

/// Sets the place of the object and the text that goes with it: "In Room 3.", "Worn.".
void SetPlace(store::Cursor& object, condacts::PlaceNumber place);

/// Adds "Script IS on." and "Script IS off." behind the last system message, unless they are there.
void AddScriptMessages(store::Adventure& adventure);

/// Sets one field of the settings record.
void SetSetting(store::Adventure& adventure, std::string_view field, std::int64_t value);

}  // namespace fabula::interchange
