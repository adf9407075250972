#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "condacts/numbers.h"
#include "condacts/words.h"
#include "interchange/listing/game_words.h"
#include "interchange/listing/listing_job.h"

namespace fabula::interchange {

/// What the sections of an UnVel listing share besides.
struct UnVelJob {
    ListingJob& listing;
    bool isMarlo = false;
    const DefaultWords& defaults;
    condacts::WordIndex words = {};  ///< once the vocabulary is read

    void Fault(const std::string& message) const { listing.Fault(message); }
    void Status(const std::string& text) const { listing.Status(text); }
    store::Adventure& Adventure() const { return listing.Adventure(); }
};

enum class UnVelTextKind { Messages, SystemMessages, Locations, ObjectNames };

std::unique_ptr<ListingSection> UnVelVocabulary(UnVelJob& job);
std::unique_ptr<ListingSection> UnVelTexts(UnVelJob& job, UnVelTextKind kind);
std::unique_ptr<ListingSection> UnVelConnections(UnVelJob& job);
std::unique_ptr<ListingSection> UnVelObjectWords(UnVelJob& job);
std::unique_ptr<ListingSection> UnVelObjectPlaces(UnVelJob& job);
std::unique_ptr<ListingSection> UnVelObjectWeights(UnVelJob& job);
std::unique_ptr<ListingSection> UnVelEntries(UnVelJob& job, condacts::ProcessNumber table);
std::unique_ptr<ListingSection> UnVelPictures(UnVelJob& job);
std::unique_ptr<ListingSection> UnVelCharacters(UnVelJob& job);

/// The number of a line that consists of a label and four columns: "Message   12".
std::optional<int> NumberAlone(std::string_view line, std::string_view label);

}  // namespace fabula::interchange
