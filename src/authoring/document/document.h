#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>

#include "store/adventure.h"
#include "store/file/change_log.h"
#include "store/file/change_set.h"

namespace fabula::authoring {

/// Where the author was when something was changed: a table, of the process tables also which, and the key
/// of the current record.
struct Place {
    store::TableNum table = store::TableNum::Adventure;
    int process = 0;
    std::optional<int> key = std::nullopt;

    friend bool operator==(const Place&, const Place&) = default;
};

/// The adventure on the author's desk: the open file, and the changes of this sitting, each of which can be
/// undone and redone. What was changed is in the file at once; there is nothing to save.
class Document {
  public:
    /// Opens the file for change, or for reading only: nothing can be changed then, but SaveAs goes on with
    /// a copy that can. Throws store::OpenError when it is refused: with OpenForChange when it is open for
    /// change elsewhere, and with CannotBeWritten when the file or its folder can't be written, for want of
    /// rights or of space.
    explicit Document(const std::filesystem::path& file, store::OpenMode mode = store::OpenMode::ReadWrite);
    /// Takes an adventure that was opened so: by Adventure::OpenForChange, or for reading only. Throws
    /// store::OpenError with CannotBeWritten for want of space.
    Document(std::unique_ptr<store::Adventure> adventure, store::OpenMode mode);
    Document(const Document&) = delete;
    Document& operator=(const Document&) = delete;

    store::Adventure& Adventure() { return *adventure_; }
    /// Whether the adventure is open for reading only.
    bool IsReadOnly() const { return !log_; }
    /// Throws what a change would throw that can't be written: before the author is asked for more.
    void CheckMayChange();
    const std::filesystem::path& File() const { return adventure_->CurrentFile(); }

    /// The name of the change that `Undo` would take back or `Redo` make again ("delete word LAMP");
    /// nullopt when there is none.
    std::optional<std::string> UndoName() const;
    std::optional<std::string> RedoName() const;
    /// Where that change was made; nullopt when nobody said.
    std::optional<Place> UndoPlace() const;
    std::optional<Place> RedoPlace() const;

    /// Says of the latest `count` changes where they were made.
    void PlaceLatest(int count, const Place& place);

    /// Take back the latest change, and make again the latest that was taken back. They give the tables
    /// whose records changed; cursors keep what they read, so open them again. Without such a change they
    /// do nothing. Throw fabula::Error when the file can't be written; nothing has changed then.
    std::set<store::TableNum> Undo();
    std::set<store::TableNum> Redo();

    /// How many changes were made in this sitting, for telling whether there was one. Undo and Redo don't
    /// count.
    int Changes() const { return changes_; }

    /// Copies the adventure to another file and goes on with the copy; the old file stays as it is. What
    /// could be undone still can. Throws fabula::Error, and nothing has happened then.
    void SaveAs(const std::filesystem::path& file);

    /// Told of each change set that has become part of the file, was taken back or made again: for what
    /// follows the records (references/index.h). It must not change anything.
    std::function<void(std::string_view changes)> onChange;

    /// The most changes that can be undone; older ones are forgotten.
    static constexpr std::size_t kMostChanges = 1000;

  private:
    friend class Change;

    struct Step {
        std::string name;
        std::int64_t changes;  ///< in the log
        std::optional<Place> place = std::nullopt;
    };

    void Add(Step step);
    void Replace(Step& step, std::int64_t changes);
    void Forget(std::deque<Step>& steps);
    void TellOf(std::string_view changes) const;

    std::unique_ptr<store::Adventure> adventure_;
    std::optional<store::ChangeLog> log_;  ///< without one nothing is changed
    std::deque<Step> done_;
    std::deque<Step> undone_;
    int changes_ = 0;
    int depth_ = 0;  ///< how many changes are in the making, one in the other
};

/// One change of an adventure, however many records and tables it takes: one transaction of the file and
/// one step of Undo. Without `Commit` it has never been. A change within a change is part of it.
///
///     Change change(document, "delete word LAMP");
///     ... work with cursors ...
///     change.Commit();
class Change {
  public:
    /// `name` follows the words Undo and Redo: "edit message 7".
    Change(Document& document, std::string name);
    /// What belongs to the latest change although it comes after it, such as what follows when a screen
    /// that stored something has closed: it becomes part of that step of Undo. Without a latest change it
    /// throws std::logic_error.
    struct WithLatest {};
    Change(Document& document, WithLatest);
    Change(const Change&) = delete;
    Change& operator=(const Change&) = delete;
    ~Change();

    /// Another name, where it became known on the way.
    void Rename(std::string name) { name_ = std::move(name); }

    /// Throws fabula::Error when the file can't be written; the work is then undone.
    void Commit();

  private:
    void CommitAsStep();
    void End();

    Document& document_;
    std::string name_;
    bool joins_ = false;
    bool open_ = true;
    std::optional<store::ChangeRecorder> recorder_;  ///< of the outermost change
    store::Transaction transaction_;
};

}  // namespace fabula::authoring
