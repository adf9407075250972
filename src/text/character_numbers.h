#pragma once

namespace fabula::text {

// Numbers of characters: 0 to 15 shades, 32 to 127 the font, 128 to 143 block graphics (143 is the solid
// cell), 144 to 164 user-defined graphics.

inline constexpr int kLastShade = 15;
inline constexpr int kShades = kLastShade + 1;
inline constexpr int kFirstCharacter = 32;
inline constexpr int kPoundSign = 96;
inline constexpr int kCopyrightSign = 127;
inline constexpr int kLastOfFont = kCopyrightSign;
inline constexpr int kFirstBlock = kLastOfFont + 1;
inline constexpr int kSolidCharacter = 143;
inline constexpr int kFirstUserGraphic = kSolidCharacter + 1;
inline constexpr int kLastCharacter = 164;

/// Whether a character is the same in every adventure: what stands between shades and user-defined
/// graphics.
constexpr bool IsFixedCharacter(int number) {
    return number > kLastShade && number < kFirstUserGraphic;
}

}  // namespace fabula::text
