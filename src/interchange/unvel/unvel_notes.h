#pragma once

#include <map>
#include <string>
#include <string_view>

#include "store/adventure.h"

namespace fabula::interchange {

/// The descriptions of flags or process tables that this system adds to a listing as comments: a line
/// "; Flag    12" and one with its text below.
class UnVelNotes {
  public:
    explicit UnVelNotes(std::string_view label) : label_(label) {}

    void Line(std::string_view line);
    const std::map<int, std::string>& All() const { return notes_; }

  private:
    std::string_view label_;
    int number_ = -1;  ///< whose text is the next line
    std::map<int, std::string> notes_;
};

/// Where a listing describes flags, these are the game's own descriptions: they stand in place of all
/// others.
void StoreFlagNotes(store::Adventure& adventure, const UnVelNotes& notes);
/// Descriptions of process tables from 3 up; a table that is described exists.
void StoreProcessNotes(store::Adventure& adventure, const UnVelNotes& notes);

inline constexpr std::string_view kFlagNote = "Flag";
inline constexpr std::string_view kProcessNote = "Process";

}  // namespace fabula::interchange
