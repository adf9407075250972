#pragma once

#include <string>
#include <string_view>

namespace fabula::interchange {

/// What begins a line that the reader of listings skips.
inline constexpr std::string_view kCommentMark = "; ";

/// A Spectrum text of an UnVel listing as description markup: "{16}{3}" becomes "<INK=3>", "^{7}" a line
/// end. Characters that would be taken for markup become entities; a "{" that begins no code stays.
std::string UnVelText(std::string_view text);

/// A text with markup as a line of a listing.
struct WrittenUnVelText {
    std::string line;
    bool comesBack = false;  ///< whether UnVelText gives the text again, small letters in tags apart
};

/// The inverse of UnVelText. Tags that the listing does not know go.
///
/// Kept from the older writer: "<INK>" becomes "(16}", with the wrong bracket, and does not come back.
WrittenUnVelText ToUnVelText(std::string_view text);

}  // namespace fabula::interchange
