#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "interchange/file_kinds.h"
#include "store/adventure.h"
#include "support/doubles/scripted_person.h"
#include "support/games/template_adventure.h"

namespace fabula::interchange {

/// A source that a reader has read into a new adventure.
class Reading {
  public:
    /// `kind` is the word of a file kind. The source is written as "game" with the kind's extension, byte
    /// for byte.
    Reading(std::string_view kind, const std::string& source);

    bool ok = false;
    std::string status;
    int faults = 0;
    platform::ScriptedPerson person;

    store::Adventure& operator*() const { return *adventure_; }
    store::Adventure* operator->() const { return &*adventure_; }

    /// A field of the first record that matches; a test without such a record fails.
    std::string Text(store::TableNum table, const char* where, const char* field) const;
    std::int64_t Number(store::TableNum table, const char* where, const char* field) const;
    int Count(store::TableNum table, const char* where) const;

    /// Whether a line of the status is this text, or tells it as a fault.
    bool Told(std::string_view line) const;
    /// Whether a fault of this line of the source was told in these words.
    bool ToldAt(int line, std::string_view message) const;
    /// The faults, "line:column entry: message", as they were told.
    std::vector<std::string> allFaults;

  private:
    store::Cursor& Record(store::TableNum table, const char* where) const;

    test::OpenedAdventure adventure_;
};

/// Reads `source` into `adventure`, as a job does.
bool ReadInto(store::Adventure& adventure, std::string_view kind, const std::filesystem::path& source,
              JobStatus& status);

/// Writes `adventure` as a kind of file and gives its bytes; `status` receives what the writer tells.
std::string Written(store::Adventure& adventure, std::string_view kind, std::string* status = nullptr);

/// A PC source of these sections: "/CTL" and "/VOC" come of themselves.
std::string PcSource(const std::string& vocabulary, const std::string& sections);

}  // namespace fabula::interchange
