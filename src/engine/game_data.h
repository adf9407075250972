#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "condacts/limits.h"
#include "engine/cycle/process_table.h"
#include "engine/numbers.h"
#include "engine/output/text_settings.h"
#include "engine/sound_player.h"
#include "store/adventure.h"
#include "store/adventure_kind.h"

namespace fabula::engine {

/// An object as its record has it at the start of a game.
struct ObjectData {
    PlaceNumber startPlace;
    std::int16_t weight = 0;
    std::int16_t attributes = 0;  ///< bit 0 container, bit 1 wearable
    WordNumber noun;
    WordNumber adjective;
};

/// A location's exits: pairs of verb and destination, `length` numbers of the list that all locations
/// share.
struct LocationData {
    bool exists = false;
    std::uint32_t first = 0;
    std::uint32_t length = 0;
};

/// Everything numeric of an adventure, and its settings, read once. Entries are addressed as the process
/// tables tell them: cell 4 is the first number of an entry's list.
class GameData : public TextSettings {
  public:
    /// Throws fabula::Error, with the record that is at fault, when the adventure can't be played.
    explicit GameData(store::Adventure& adventure);

    store::AdventureKind type = store::AdventureKind::Fabula;
    bool IsMarlo() const { return type == store::AdventureKind::Marlo; }
    int significantLetters = condacts::SignificantLetters(store::AdventureKind::Fabula);

    std::string title;  ///< of the window
    std::string saveName;
    bool graphics = false;
    bool sound = false;
    PlaceNumber startLocation;
    int maxObjects = 0;
    int maxWeight = 0;
    std::string defaultPicture;  ///< "" when there is none
    SoundSettings soundSettings;

    int flagCount = 0;
    std::vector<ObjectData> objects;
    std::vector<LocationData> locations;  ///< by number, up to the highest
    std::vector<std::string> pictures;    ///< `picloc` by location; "" when it has no picture of its own

    std::vector<ProcessTable> processes;
    /// How many parameters each condact takes, by number; kUnknownCondAct for a number without a row.
    std::vector<std::int8_t> condActParams;
    static constexpr std::int8_t kUnknownCondAct = -1;

    std::vector<std::string> conjunctions;  ///< in the order of the vocabulary

    const ObjectData& Object(ObjectNumber object) const {
        return objects[static_cast<std::size_t>(object.value)];
    }
    /// Of a number up to the last location's.
    std::span<const std::int16_t> ExitsOf(PlaceNumber number) const {
        const LocationData& location = locations[static_cast<std::size_t>(number.value)];
        return {exits_.data() + location.first, location.length};
    }
    std::span<const std::int16_t> CondActsOf(const ProcessEntry& entry) const {
        return {condActs_.data() + entry.first, entry.length};
    }
    bool LocationExists(PlaceNumber location) const {
        const auto index = static_cast<std::size_t>(location.value);
        return index < locations.size() && locations[index].exists;
    }
    PlaceNumber LastLocation() const { return PlaceNumber(static_cast<int>(locations.size()) - 1); }

  private:
    void ReadSettings(store::Adventure& adventure);
    void ReadSoundSettings(store::Adventure& adventure);
    void CheckTextSettings() const;
    void ReadConjunctions(store::Adventure& adventure);
    void ReadCondActParams(store::Adventure& adventure);
    void ReadObjects(store::Adventure& adventure);
    void ReadLocations(store::Adventure& adventure);
    void ReadProcesses(store::Adventure& adventure);

    std::vector<std::int16_t> exits_;
    std::vector<std::int16_t> condActs_;
};

}  // namespace fabula::engine
