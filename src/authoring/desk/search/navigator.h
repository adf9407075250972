#pragma once

#include <deque>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "authoring/desk/main_screen.h"
#include "authoring/fields/named_record.h"
#include "references/index.h"
#include "references/place_text.h"

namespace fabula::authoring {

/// A record that the author can be taken to.
struct Jump {
    TableView view;
    int key = 0;

    friend bool operator==(const Jump&, const Jump&) = default;
};

/// A line of a list of places: what it says, and where it leads.
struct JumpLine {
    Jump jump;
    std::string text;
    bool possible = false;  ///< a use that only may be one
};

/// What stands above the uses of a record: "message 7: 3 uses".
std::string TitleOfUses(const std::string& name, std::size_t count);

/// Ways through the open adventure: what uses the selected record, what that names, any record by a few
/// letters, and back and forward through the jumps. The index of references is made when it is first asked
/// for, and follows the document's changes.
class Navigator {
  public:
    /// Counts the uses of records for `main`.
    explicit Navigator(MainScreen& main);
    Navigator(const Navigator&) = delete;
    Navigator& operator=(const Navigator&) = delete;
    ~Navigator();

    /// "message 7: 3 uses", "message 7: not used"; "" without a record. Of an entry, which nothing names:
    /// "process table 0, entry 12 names 4 records".
    std::string Title();
    /// The uses of the selected record, or what the selected entry names.
    std::vector<JumpLine> Lines();
    /// What the selected record names, each record once.
    std::vector<JumpLine> Named();

    /// Records by what the author typed: a letter and a number ("m40": l location, m message, o object, s
    /// system message, f flag, p process table, d drawing), two words of the vocabulary for the entries
    /// that answer to them ("get lamp"), or a part of a text or word. At most kMostFound.
    std::vector<JumpLine> Search(std::string_view typed);
    static constexpr std::size_t kMostFound = 100;

    /// Shows the record; where the author was before is kept for Back. A record that has gone is told in
    /// the status line.
    void GoTo(const Jump& jump);
    /// Within the open adventure. False when there is nowhere to go.
    bool Back();
    bool Forward();

    /// What a record names, each record once; only while an adventure is open.
    std::vector<JumpLine> NamedBy(store::TableNum table, std::int64_t key);
    /// What uses a record, and its name; only while an adventure is open.
    std::vector<JumpLine> UsesOf(const Jump& record);
    std::string NameOf(const Jump& record);
    /// Where a record is shown; nullopt when it is not there.
    std::optional<Jump> Find(const NamedRecord& record);

    /// The record, with the beginning of its text; only while an adventure is open. "message 7: It is
    /// dark."
    JumpLine LineTo(store::TableNum table, std::int64_t key);
    /// Where a record is shown; only while an adventure is open.
    Jump JumpTo(store::TableNum table, std::int64_t key);

    /// How often each record of a table is used, by their keys; uses that only may be one don't count.
    std::vector<int> CountsOf(store::TableNum table, const std::vector<int>& keys);

    /// Of the open adventure; only while one is open.
    const references::Index& Index();

    /// Another number after each change of the open adventure, and for each adventure; 0 while none is
    /// open.
    int Edition();

  private:
    struct Followed;

    Document* OpenDocument();
    references::PlaceText& Places();
    std::optional<Jump> Here() const;
    void Show(const Jump& jump);
    void ForgetJumps();
    JumpLine LineFor(const references::Use& use);
    std::optional<JumpLine> LineOf(const references::Target& target, references::WordTypes types);
    void SearchNumber(std::string_view typed, std::vector<JumpLine>& found);
    void SearchEntries(std::string_view typed, std::vector<JumpLine>& found);
    void SearchTexts(std::string_view typed, std::vector<JumpLine>& found);

    MainScreen& main_;
    std::shared_ptr<Followed> followed_;
    int edition_ = 0;
    std::vector<Jump> back_;
    std::vector<Jump> forward_;
};

}  // namespace fabula::authoring
