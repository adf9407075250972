#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "condacts/process_numbers.h"
#include "condacts/words.h"
#include "interchange/listing/listing_job.h"

namespace fabula::interchange {

/// An entry of a process table as a listing has it.
struct ListedEntry {
    condacts::ProcessNumber table;  ///< `estype`
    std::string w1;
    std::string w2;
    condacts::WordNumber w1Number = condacts::kNoWordNumber;
    condacts::WordNumber w2Number = condacts::kNoWordNumber;
    std::string condActs;

    bool IsEmpty() const { return condActs.empty(); }
    /// Adds a further line of conditions and actions behind those that are there.
    void AddCondActs(std::string_view line);
};

/// The process tables while a listing is read into them. Nobody else may open the table meanwhile.
class ListedEntries {
  public:
    explicit ListedEntries(store::Adventure& adventure)
        : table_(adventure, store::TableNum::ProcessTables) {}

    /// Adds an entry at the next key. Its numeric form is made with `words`.
    void Add(const ListedEntry& entry, const condacts::Catalogue& catalogue,
             const condacts::WordIndex& words);
    /// Adds what was read of an entry, unless it is empty, and makes it the next one of the same table.
    void Flush(ListedEntry& entry, const condacts::Catalogue& catalogue, const condacts::WordIndex& words);

  private:
    KeyedTable table_;
};

/// One line of conditions and actions, with single blanks; nothing when it can't be taken, which is then
/// reported. Numbers are not compared with what the game has: the check of the game does that. The flags of
/// the line are counted. In a listing of UnVel (`words` given) the word conditions have numbers, which
/// become words.
std::optional<std::string> TakeCondActs(ListingJob& job, std::string_view line,
                                        const condacts::WordIndex* words);

}  // namespace fabula::interchange
