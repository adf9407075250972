#pragma once

#include <string_view>

#include "condacts/flags.h"
#include "condacts/numbers.h"
#include "condacts/places.h"
#include "condacts/process_numbers.h"
#include "condacts/system_messages.h"
#include "condacts/words.h"

namespace fabula::engine {

// What a game numbers, under the names that it has everywhere. A flag's value is a plain number: whoever
// takes it for a place or a word says so.

namespace flag = condacts::flag;
namespace message = condacts::message;
namespace place = condacts::place;

using condacts::FlagNumber;
using condacts::MessageNumber;
using condacts::ObjectNumber;
using condacts::PlaceNumber;
using condacts::ProcessNumber;
using condacts::SystemMessageNumber;
using condacts::WordNumber;

using condacts::Inside;
using condacts::kDescribed;
using condacts::kEachTurn;
using condacts::kResponses;
using condacts::kSet;

/// What a flag of a word holds when there is none, and the text that goes with it.
using condacts::kNoWordNumber;
inline constexpr std::string_view kNoWordText = "Null";

/// The object that lights the dark.
inline constexpr ObjectNumber kLight{0};

/// All objects of a game, by number: for (const ObjectNumber object : game.state.Objects()).
class ObjectNumbers {
  public:
    explicit constexpr ObjectNumbers(int count) : count_(count) {}

    class Iterator {
      public:
        explicit constexpr Iterator(int number) : number_(number) {}
        constexpr ObjectNumber operator*() const { return ObjectNumber(number_); }
        constexpr Iterator& operator++() {
            ++number_;
            return *this;
        }
        friend constexpr bool operator==(const Iterator&, const Iterator&) = default;

      private:
        int number_;
    };
    constexpr Iterator begin() const { return Iterator(0); }
    constexpr Iterator end() const { return Iterator(count_); }

  private:
    int count_;
};

/// Whether digit `bit` (0 the lowest) is set when a value is written as 8 binary digits, greedily from 128
/// down. A value above 255 thus has all digits set, a negative one none.
constexpr bool BitSet(int value, int bit) {
    for (int digit = 7; digit >= bit; --digit) {
        const int weight = 1 << digit;
        if (value < weight) continue;
        if (digit == bit) return true;
        value -= weight;
    }
    return false;
}

}  // namespace fabula::engine
