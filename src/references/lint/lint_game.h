#pragma once

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "condacts/language/catalogue.h"
#include "condacts/language/facts.h"
#include "condacts/language/parser.h"
#include "condacts/numbers.h"
#include "references/index.h"
#include "references/lint/lint.h"
#include "store/adventure.h"

namespace fabula::references {

/// An entry of a process table.
struct LintEntry {
    std::int64_t key = 0;       ///< `canum`, which others may bear too
    std::int64_t storeKey = 0;  ///< that the store knows it by
    condacts::ProcessNumber process;
    condacts::WordNumber verb;
    condacts::WordNumber noun;
    std::string text;
    std::string numbers;
    condacts::ParsedLine line;      ///< its tokens look into `text`
    condacts::ParsedLine compiled;  ///< of an entry without a text; its tokens look into `numbers`

    /// The line that names what the entry uses: its text, or what is compiled where it has lost that.
    const condacts::ParsedLine& UsedLine() const { return line.tokens.empty() ? compiled : line; }
    /// The condition or action whose first parameter stands at this word of the line; "" for any other
    /// word.
    std::string_view CondActBefore(std::size_t token) const;
};

struct LintLocation {
    condacts::PlaceNumber number;
    std::vector<std::string> exits;    ///< words and numbers as they are written
    std::vector<std::string> numbers;  ///< the same as they are compiled
};

struct LintObject {
    condacts::ObjectNumber number;
    condacts::PlaceNumber place;
    condacts::WordNumber noun;
    condacts::WordNumber adjective;
    bool container = false;
};

/// Whether a list of names holds one.
template <std::size_t Size>
bool Holds(const std::string_view (&names)[Size], std::string_view name) {
    return std::find(std::begin(names), std::end(names), name) != std::end(names);
}

/// Of a message, a system message or a process table.
template <class Number>
struct LintText {
    Number number;
    std::string text;
};

struct LintFlag {
    condacts::FlagNumber number;
    bool system = false;
    std::string description;
};

struct LintWord {
    std::int64_t index = 0;
    condacts::Word word;
};

struct LintPicture {
    std::int64_t number = 0;
    bool subroutine = false;
};

/// A whole game in memory, for the checks. Entries stand in the order in which they run.
struct LintGame {
    explicit LintGame(store::Adventure& adventure);

    Index index;
    std::map<Target, std::vector<KeptUse>> uses;
    condacts::Catalogue catalogue;  ///< the statements of entries look into it
    condacts::Facts facts;
    bool draws = false;  ///< it has pictures or character sets of its own
    bool characterSets = false;
    condacts::PlaceNumber start;
    std::vector<std::unique_ptr<LintEntry>> entries;
    std::vector<LintLocation> locations;
    std::vector<LintObject> objects;
    std::vector<LintText<condacts::MessageNumber>> messages;
    std::vector<LintText<condacts::SystemMessageNumber>> systemMessages;
    std::vector<LintText<condacts::ProcessNumber>> processes;
    std::vector<LintFlag> flags;
    std::vector<LintWord> words;
    std::vector<LintPicture> pictures;
    std::set<int> characterSetNumbers;
    std::set<int> characters;  ///< by `charkey`

    /// The entry that names something; it must be one that does.
    const LintEntry& EntryOf(const KeptUse& kept) const;
    const std::vector<KeptUse>& UsesOf(const Target& target) const;

  private:
    void Read(store::Adventure& adventure);

    void ReadEntries(store::Adventure& adventure);

    std::map<std::int64_t, const LintEntry*> byStoreKey_;
};

/// Gathers what the checks find.
class Findings {
  public:
    void Add(std::string_view code, store::TableNum table, std::int64_t record, std::string message,
             std::string_view field = {}, std::size_t token = 0) {
        all_.push_back({code, table, record, field, token, std::move(message)});
    }
    std::vector<Finding>& All() { return all_; }

  private:
    std::vector<Finding> all_;
};

// The checks, by subject.
void CheckMissing(const LintGame& game, Findings& findings);
void CheckUnused(const LintGame& game, Findings& findings);
void CheckReach(const LintGame& game, Findings& findings);
void CheckEntries(const LintGame& game, Findings& findings);
void CheckOrder(const LintGame& game, Findings& findings);
void CheckRecords(const LintGame& game, Findings& findings);

/// "process table 3, entry 12"
std::string NameOf(const LintEntry& entry);

}  // namespace fabula::references
