#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "authoring/fields/controls.h"
#include "store/adventure.h"

namespace fabula::authoring {

// What the settings offer in their lists. The number of an item is what the record holds.

/// The fonts of the codes: "4-Georgia".
std::vector<ListItem> FontItems(store::Adventure& adventure);
/// The character sets: "SET 0001 - Runes". A set counts from the character 70 on.
std::vector<ListItem> CharSetItems(store::Adventure& adventure);
/// The sizes up to 20 points whose code is the size itself.
std::vector<ListItem> FontSizeItems(store::Adventure& adventure);
/// The MIDI voices: "73-Flute".
std::vector<ListItem> VoiceItems(store::Adventure& adventure);
/// " 0" to "15".
std::vector<ListItem> ChannelItems();
/// The usual widths of a column of text, with `present` among them.
std::vector<ListItem> PrintWidthItems(int present);
/// Where a game may have come from.
std::vector<ListItem> SourceItems();
/// What stands there for store::kUnknownSource.
inline constexpr std::string_view kUnknownSourceShown = "Unknown!";

/// The types that a game of type `present` may be given, and what the author is told of them.
std::vector<ListItem> TypeItems(std::string_view present);
std::string_view TypeNote(std::string_view present);

inline constexpr std::string_view kMidiMapper = "MIDI Mapper";

/// The devices of the system by their numbers, behind kMidiMapper, which leaves the choice to the system.
std::vector<ListItem> DeviceItems(const std::vector<std::string>& devices);

}  // namespace fabula::authoring
