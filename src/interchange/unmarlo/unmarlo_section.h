#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "condacts/numbers.h"
#include "interchange/listing/listing_job.h"

namespace fabula::interchange {

// The sections, in the order of the listing; `version` is that of the decompiler.

std::unique_ptr<ListingSection> UnMarloEntries(ListingJob& job, condacts::ProcessNumber table);
std::unique_ptr<ListingSection> UnMarloObjects(ListingJob& job, const std::string& version);
std::unique_ptr<ListingSection> UnMarloLocations(ListingJob& job, const std::string& version);
std::unique_ptr<ListingSection> UnMarloMessages(ListingJob& job, const std::string& version);
std::unique_ptr<ListingSection> UnMarloConnections(ListingJob& job);
std::unique_ptr<ListingSection> UnMarloVocabulary(ListingJob& job);
std::unique_ptr<ListingSection> UnMarloObjectPlaces(ListingJob& job);
std::unique_ptr<ListingSection> UnMarloObjectWords(ListingJob& job);
std::unique_ptr<ListingSection> UnMarloSystemMessages(ListingJob& job, const std::string& version);
std::unique_ptr<ListingSection> UnMarloCharacters(ListingJob& job);
std::unique_ptr<ListingSection> UnMarloPictures(ListingJob& job);

/// Whether the line bears an address: "0A1F: ...".
bool HasAddress(std::string_view line);
/// Whether `mark` stands at the start of the line or behind its address.
bool HasMark(std::string_view line, std::string_view mark);
/// The record number behind a label of so many words: "0A1F: System message  3:". Nothing when there is
/// none within bounds.
std::optional<int> NumberBehind(std::string_view line, int labelWords);

/// The column of an address' colon, and that of the label behind it.
inline constexpr std::size_t kColonColumn = 4;
inline constexpr std::size_t kLabelColumn = 6;

}  // namespace fabula::interchange
