#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <string_view>
#include <utility>
#include <vector>

#include "condacts/numbers.h"
#include "references/extract.h"
#include "references/use.h"
#include "store/adventure.h"
#include "store/file/change_set.h"

namespace fabula::references {

/// Who uses what in an adventure: for each flag, object, location, text, word, process table, picture,
/// character set and character the places that name it. Made from the records once, and kept current by
/// the change sets of what is changed; it follows nothing by itself.
///
///     Index index(adventure);
///     for (const Use& use : index.UsesOf({Kind::Flag, 60})) ...
///     index.Update(adventure, recorder.Changes());
class Index {
  public:
    /// Reads the whole adventure. Throws fabula::Error when it can't be read.
    explicit Index(store::Adventure& adventure);

    /// Reads what a change set touched again. The adventure must be as the change set left it (or, after
    /// an Undo, found it). A change of a catalogue or of the settings reads everything again.
    void Update(store::Adventure& adventure, std::string_view changes);

    /// The places that use something, in the order of tables, records, fields and their words; those that
    /// only may use it are marked as possible. Of a word only uses as one of `types` count.
    std::vector<Use> UsesOf(const Target& target, WordTypes types = kAnyType) const;
    /// How many that would be, possible ones left out.
    int CountOf(const Target& target, WordTypes types = kAnyType) const;
    /// What a record names, in the order of its fields. `record` is its number, 0 for the settings; of
    /// several with this number all.
    std::vector<Use> UsesBy(store::TableNum table, std::int64_t record) const;

    /// All uses of a kind of thing, by what is used, with what tells of the numbers in flags.
    std::map<Target, std::vector<KeptUse>> AllUses() const;

    /// Whether the numbers that a flag holds are taken for something of this kind.
    bool Carries(condacts::FlagNumber flag, Kind kind) const;

    friend bool operator==(const Index& a, const Index& b);

  private:
    using Record = store::TouchedRecord;

    void ReadAll(store::Adventure& adventure);
    void Put(const Record& record, std::vector<KeptUse> uses);
    void Take(const Record& record);
    void Count(const KeptUse& kept, int difference);
    void AppendValues(const Target& target, std::vector<Use>& found) const;
    void AppendCarriers(const Target& target, std::vector<Use>& found) const;
    bool IsComputed(condacts::FlagNumber flag) const;
    template <typename Visit>
    void ForEachUse(const Target& target, Visit visit) const;

    Language language_;
    std::map<Record, std::vector<KeptUse>> byRecord_;
    std::map<Target, std::set<Record>> byTarget_;
    std::map<std::pair<Kind, condacts::FlagNumber>, int>
        carriers_;  ///< how often a flag is taken for a kind
};

}  // namespace fabula::references
