#pragma once

#include <cstdint>
#include <map>
#include <string>

#include "references/use.h"
#include "store/adventure.h"

namespace fabula::references {

/// Tells places of an adventure in words. It reads each table that it is asked about once, when it is first
/// asked, and does not follow later changes.
class PlaceText {
  public:
    explicit PlaceText(store::Adventure& adventure) : adventure_(adventure) {}

    /// "location 5", "process table 0, entry 101 (LIGHT LANTERN)", "the settings".
    std::string RecordName(store::TableNum table, std::int64_t record);
    /// What stands around a use: the condition or action with its parameters, the exit, the command of a
    /// drawstring, the name of the field.
    std::string Around(const Use& use);
    /// The whole field, on one line and at most `most` characters long: "EQ 60 1 MESSAGE 4 DONE".
    std::string FieldOf(const Use& use, std::size_t most = 120);

  private:
    struct Record {
        std::string name;
        std::map<std::string, std::string, std::less<>> texts;  ///< by field
    };

    const Record* Find(store::TableNum table, std::int64_t record);
    void Read(store::TableNum table);

    store::Adventure& adventure_;
    std::map<store::TableNum, std::map<std::int64_t, Record>> records_;
};

}  // namespace fabula::references
