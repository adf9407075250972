#pragma once

#include <chrono>
#include <cstddef>
#include <string_view>

#include "condacts/numbers.h"
#include "condacts/process_numbers.h"
#include "store/adventure_kind.h"
#include "store/record_limits.h"
#include "text/colours.h"

namespace fabula::condacts {

/// What an adventure may hold, by its records' numbers. The older engines count in bytes.
namespace limit {

/// Locations, objects, messages and system messages of "Fabula", and of sources of whatever type.
using store::kHighestRecord;
/// The same of the other types, but for objects, of which kNoObject stands for none.
inline constexpr int kHighestRecordOfOthers = 255;
inline constexpr ObjectNumber kNoObject{255};
inline constexpr int kHighestObjectOfOthers = kNoObject.value - 1;

inline constexpr ProcessNumber kHighestProcess{256};
inline constexpr ProcessNumber kLastFixedProcess{store::kLastFixedProcess};
static_assert(kLastFixedProcess == kEachTurn);

/// The numbers of an author's words.
inline constexpr int kLowestWord = 2;
inline constexpr int kHighestWord = 254;

/// Games of type "Marlo" know the flags up to here.
inline constexpr int kHighestMarloFlag = 32;
/// The flags to which the engine gives a meaning beyond those of the older types.
inline constexpr int kFirstExtendedFlag = 1000;
inline constexpr int kHighestSystemFlag = 1024;

/// The highest weight that an object of the older types can have, and the most that the engine adds up.
inline constexpr int kHeaviestObject = 63;
inline constexpr int kHeaviestLoad = 255;

/// Of ink, paper and border.
using text::kFirstBrightColour;
using text::kHighestColour;

/// The unit of TIME.
inline constexpr std::chrono::milliseconds kTimeOutUnit{1280};

}  // namespace limit

// What is told of a number beyond these limits.
inline constexpr std::string_view kWordNumberFault = "Word # must be from 2 to 254 inclusive";
inline constexpr std::string_view kWeightFault = "Weight must be from 0 to 63";

/// How many letters of a word count.
constexpr int SignificantLetters(store::AdventureKind kind) {
    switch (kind) {
        case store::AdventureKind::Marlo:
            return 4;
        case store::AdventureKind::Vel:
            return 5;
        case store::AdventureKind::Fabula:
            break;
    }
    return 30;
}

/// The highest number of a location, message or system message.
constexpr int HighestRecord(store::AdventureKind kind) {
    return kind == store::AdventureKind::Fabula ? limit::kHighestRecord : limit::kHighestRecordOfOthers;
}

constexpr int HighestObject(store::AdventureKind kind) {
    return kind == store::AdventureKind::Fabula ? limit::kHighestRecord : limit::kHighestObjectOfOthers;
}

}  // namespace fabula::condacts
