#pragma once

namespace fabula::store {

/// The highest number of a location, an object, a message, a system message and a picture that any type of
/// adventure has.
inline constexpr int kHighestRecord = 999;

/// Process tables 0 to 2 are there in every game. Those of "Marlo" have 0 and 1 only.
inline constexpr int kLastFixedProcess = 2;

/// The highest number by which a person may ask for a record, of whatever table.
inline constexpr int kHighestKey = 999'999;

}  // namespace fabula::store
