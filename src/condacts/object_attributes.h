#pragma once

namespace fabula::condacts::attribute {

/// Bits of the attributes of an object (`objattrn`).
inline constexpr int kContainer = 1;
inline constexpr int kWearable = 2;

}  // namespace fabula::condacts::attribute
