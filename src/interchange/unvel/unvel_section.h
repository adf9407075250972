#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "condacts/words.h"
#include "interchange/unmarlo/game_words.h"
#include "interchange/unmarlo/listing_job.h"

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

/// One section of an UnVel listing, fed line by line.
class UnVelSection {
  public:
    virtual ~UnVelSection() = default;
    virtual void Line(std::string_view line) = 0;
    /// Its end was met, or the file's: what is pending is stored and the status told.
    virtual void Finish() = 0;
};

enum class UnVelTextKind { Messages, SystemMessages, Locations, ObjectNames };

std::unique_ptr<UnVelSection> UnVelVocabulary(UnVelJob& job);
std::unique_ptr<UnVelSection> UnVelTexts(UnVelJob& job, UnVelTextKind kind);
std::unique_ptr<UnVelSection> UnVelConnections(UnVelJob& job);
std::unique_ptr<UnVelSection> UnVelObjectWords(UnVelJob& job);
std::unique_ptr<UnVelSection> UnVelObjectPlaces(UnVelJob& job);
std::unique_ptr<UnVelSection> UnVelObjectWeights(UnVelJob& job);
std::unique_ptr<UnVelSection> UnVelEntries(UnVelJob& job, int table);
std::unique_ptr<UnVelSection> UnVelPictures(UnVelJob& job);
std::unique_ptr<UnVelSection> UnVelCharacters(UnVelJob& job);

/// The number of a line that consists of a label and four columns: "Message   12".
std::optional<int> NumberAlone(std::string_view line, std::string_view label);

}  // namespace fabula::interchange
