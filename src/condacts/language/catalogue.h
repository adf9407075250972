#pragma once

#include <array>
#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "condacts/places.h"
#include "condacts/system_messages.h"
#include "condacts/words.h"
#include "store/adventure_kind.h"

namespace fabula::condacts {

/// What a parameter names; the numbers stand in the catalogue's `caparam1` and `caparam2`.
enum class ParamKind : int {
    None = 0,
    Location = 1,
    Message = 2,
    Object = 4,
    Process = 6,
    SystemMessage = 7,
    Word = 8,
    Flag = 9,
    Value = 10,
};

/// What one parameter of a condition or action takes.
struct Parameter {
    ParamKind kind = ParamKind::None;
    /// The bound of the parameter, for the kinds that use one. A location with the bound 255 may be given
    /// by a location word; a location or object with -1 must exist; a system message with 5 is one of 2
    /// to 5.
    int maxValue = 0;
};

inline constexpr int kNoSpecialLocations = -1;
inline constexpr int kLocationWordsAllowed = place::kHere.value;
inline constexpr int kSystemMessagesTwoToFive = message::kLastPrompt.value;

/// The kinds of adventure and source that a condition or action may exist in.
enum class Dialect { Fabula, Vel, Marlo, PCVel };

/// The dialect of an adventure by its type.
Dialect DialectOf(store::AdventureKind kind);

/// One condition or action.
struct CondAct {
    int number = 0;  ///< `canum`; its place in a numeric list
    bool isAction = false;
    std::string name;    ///< in capitals
    int paramCount = 0;  ///< 0 to 2
    std::array<Parameter, 2> params;
    bool fabula = true;
    bool vel = true;
    bool marlo = true;
    bool pcVel = true;

    bool ExistsIn(Dialect dialect) const;
};

/// All conditions and actions of an adventure. Names are found without regard to case. Where two rows bear
/// one name or number the first counts.
class Catalogue {
  public:
    Catalogue() = default;
    explicit Catalogue(std::vector<CondAct> condActs);

    /// nullptr when there is none. What is found lives as long as the catalogue.
    const CondAct* Find(std::string_view name) const;
    const CondAct* Find(std::string_view name, Dialect dialect) const;
    const CondAct* Find(int number) const;

    const std::vector<CondAct>& All() const { return condActs_; }

  private:
    std::vector<CondAct> condActs_;
    std::unordered_map<std::string, std::size_t> byName_;
    std::map<int, std::size_t> byNumber_;
};

/// A condition whose parameter is a word, and the type of word that it asks.
struct WordCondition {
    std::string_view name;
    WordType wordType;
    std::string_view phrase;  ///< "an adjective"
};

/// ADVERB, NOUN2, PREP, ADJECT1 and ADJECT2; nullptr for any other name.
const WordCondition* FindWordCondition(std::string_view name);

}  // namespace fabula::condacts
