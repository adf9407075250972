#pragma once

#include <compare>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

#include "condacts/numbers.h"
#include "store/schema/table_catalogue.h"

namespace fabula::references {

/// What a game names by number. A word stands for its number, which synonyms share; a process table is its
/// description's record too; a character is numbered by its `charkey`, set times 1000 plus number.
enum class Kind : std::uint8_t {
    Flag,
    Object,
    Location,
    Message,
    SystemMessage,
    Word,
    Process,
    Picture,
    CharacterSet,
    Character,
};

/// What is known of a kind of things that are used.
struct KindEntry {
    Kind kind;
    std::string_view name;      ///< as it is told and typed: "system message"
    std::string_view option;    ///< the same in one word: "sysmess"
    store::TableNum table;      ///< whose records they are
    std::string_view keyField;  ///< that numbers them
};

std::span<const KindEntry> AllKinds();
const KindEntry& EntryOf(Kind kind);
/// The kind of a name or an option, case ignored.
std::optional<Kind> KindFrom(std::string_view name);
/// The kind that the records of a table are; nullopt for tables that nothing is named from.
std::optional<Kind> KindOf(store::TableNum table);

/// Something that can be named: "flag 60". What is asked of all kinds alike goes by this plain number.
struct Target {
    Kind kind = Kind::Flag;
    int number = 0;

    static constexpr Target Of(condacts::FlagNumber flag) { return {Kind::Flag, flag.value}; }
    static constexpr Target Of(condacts::ObjectNumber object) { return {Kind::Object, object.value}; }

    friend auto operator<=>(const Target&, const Target&) = default;
};

/// The types of words, as a set: one bit for each `voctypen`.
using WordTypes = unsigned;
constexpr WordTypes TypeBit(int wordType) {
    return wordType < 0 || wordType > 7 ? 0U : 1U << static_cast<unsigned>(wordType);
}
inline constexpr WordTypes kAnyType = 0xFF;

}  // namespace fabula::references
