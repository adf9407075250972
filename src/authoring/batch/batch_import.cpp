#include "authoring/batch/batch_import.h"

#include <algorithm>
#include <map>
#include <optional>
#include <set>
#include <utility>

#include "authoring/batch/batch_work.h"
#include "authoring/entries/entries.h"
#include "platform/error.h"
#include "store/record_limits.h"
#include "text/encoding/utf8.h"
#include "text/numbers.h"
#include "text/str_edit.h"

namespace fabula::authoring {
namespace {

using interchange::BatchField;
using interchange::BatchRecord;
using store::TableNum;

using StoreRecord = bool (*)(BatchWork& work, const BatchChange& change);

struct Step {
    TableNum table;
    StoreRecord store;
};

/// What others name comes before them. A process table is made by its first entry, and described then.
constexpr Step kSteps[] = {
    {TableNum::Vocabulary, StoreWord},    {TableNum::SystemMessages, StoreMessage},
    {TableNum::Messages, StoreMessage},   {TableNum::Locations, StoreLocation},
    {TableNum::Locations, StoreExits},    {TableNum::Objects, StoreObject},
    {TableNum::Flags, StoreFlag},         {TableNum::ProcessTables, StoreProcessEntry},
    {TableNum::ProcDesc, StoreMessage},   {TableNum::Pictures, StorePicture},
    {TableNum::Adventure, StoreSettings},
};

/// A record's place among those of its table: its number, or a word's spelling and type.
using Identity = std::string;

class Importer {
  public:
    Importer(Document& document, const std::filesystem::path& file, interchange::JobStatus& status)
        : file_(file),
          status_(status),
          context_{document, dialogs_},
          work_{context_, dialogs_},
          records_(interchange::ReadBatchRecords(file, document.Adventure(), status)) {
        ReadNextKeys(context_);
    }

    /// How many records were stored.
    int Store() {
        for (const Step& step : kSteps)
            StoreTable(step);
        return static_cast<int>(changed_.size());
    }

    ScreenContext& Context() { return context_; }
    const std::vector<int>& NewLocations() const { return newLocations_; }

  private:
    struct Found {
        const BatchRecord* record;
        Identity identity;
        int number;  ///< by which records are taken in order; that of a word is of no matter
    };

    void StoreTable(const Step& step) {
        const bool named = std::any_of(records_.begin(), records_.end(), [&](const BatchRecord& record) {
            return record.table->number == step.table;
        });
        if (!named) return;
        context_.currentTable = step.table;
        fields_ = interchange::BatchFields(work_.Adventure(), step.table);
        ReadStored(step.table);
        std::vector<Found> found = RecordsOf(step);
        std::stable_sort(found.begin(), found.end(),
                         [](const Found& a, const Found& b) { return a.number < b.number; });
        for (const Found& each : found)
            StoreOne(step, each);
    }

    /// What the table holds, as a batch file has it.
    void ReadStored(TableNum table) {
        stored_.clear();
        const std::string_view key = store::FindTable(table)->key;
        const bool numbered = table != TableNum::Adventure;
        store::Cursor& rows = work_.Adventure().OpenTable(table, "def");
        for (; !rows.Eof(); rows.MoveNext()) {
            Stored stored;
            stored.key = numbered ? static_cast<int>(rows.Number(key)) : 0;
            for (const BatchField& field : fields_)
                stored.values.push_back(interchange::BatchValue(field, rows.Field(field.field)));
            const Identity identity = table == TableNum::Vocabulary
                                          ? WordIdentity(rows.Text("word"), rows.Text("voctype"))
                                          : std::to_string(stored.key);
            stored_.emplace(identity, std::move(stored));
        }
    }

    static Identity WordIdentity(std::string_view word, std::string_view type) {
        return text::UpperCase(text::TrimBlanks(word)) + " " + text::UpperCase(text::TrimBlanks(type));
    }

    std::vector<Found> RecordsOf(const Step& step) {
        std::vector<Found> found;
        std::set<Identity> seen;
        const bool again = step.store == StoreExits;
        for (const BatchRecord& record : records_) {
            if (record.table->number != step.table) continue;
            auto identified = Identify(record, again);
            if (!identified) continue;
            if (seen.insert(identified->identity).second) {
                found.push_back(std::move(*identified));
            } else if (!again) {
                Fault(record, "The record stands twice in the file.");
            }
        }
        return found;
    }

    const interchange::BatchEntry* EntryOf(const BatchRecord& record, std::string_view field) const {
        for (const interchange::BatchEntry& entry : record.entries) {
            if (text::EqualsNoCase(fields_[entry.field].field, field)) return &entry;
        }
        return nullptr;
    }

    std::optional<Found> Identify(const BatchRecord& record, bool quietly) {
        if (record.table->number == TableNum::Adventure) return Found{&record, "0", 0};
        if (record.table->number == TableNum::Vocabulary) {
            const auto* word = EntryOf(record, "word");
            const auto* type = EntryOf(record, "voctype");
            if (word && type) return Found{&record, WordIdentity(word->value, type->value), 0};
            return Reject(record, "A word needs its spelling and its type.");
        }
        const std::string_view key = store::FindTable(record.table->number)->key;
        const auto* entry = EntryOf(record, key);
        const auto number = entry ? text::WholeNumber(text::TrimBlanks(entry->value)) : std::nullopt;
        if (number && *number >= 0 && *number <= store::kHighestKey)
            return Found{&record, std::to_string(*number), static_cast<int>(*number)};
        if (quietly) return std::nullopt;
        return Reject(record, "The record has no number that is valid.");
    }

    void StoreOne(const Step& step, const Found& found) {
        const auto stored = stored_.find(found.identity);
        const bool isNew = stored == stored_.end();
        std::vector<BatchChange::Field> changed;
        for (const interchange::BatchEntry& entry : found.record->entries) {
            const BatchField& field = fields_[entry.field];
            const bool isExits = text::EqualsNoCase(field.field, "exits");
            if (step.table == TableNum::Locations && isExits != (step.store == StoreExits)) continue;
            const bool same = !isNew && stored->second.values[entry.field] == entry.value;
            if (!same) changed.push_back({field.field, &entry});
        }
        if (step.store == StoreExits && isNew) return;  // told already
        if (changed.empty()) return;
        const auto key = isNew ? NewKey(step.table, found) : std::optional(ScreenKey{stored->second.key});
        if (!key || !MayEdit(step.table, *key, *found.record)) return;
        const BatchChange change(*found.record, *key, std::move(changed), file_, status_);
        if (!step.store(work_, change)) return;
        changed_.insert(found.record);
        if (isNew && step.table == TableNum::Locations) newLocations_.push_back(key->key);
    }

    /// The number that the table's Add gives, which must be that of the file.
    std::optional<ScreenKey> NewKey(TableNum table, const Found& found) {
        const std::string number = std::to_string(found.number);
        if (table == TableNum::Pictures) return ScreenKey{found.number, true};
        if (table == TableNum::Flags || table == TableNum::ProcDesc || table == TableNum::Adventure)
            return Reject(*found.record, "There is no such record, and none can be added: " + number);
        const auto request = Entries(context_).AddEntry();
        if (!request) return Reject(*found.record, dialogs_.TakeTold());
        if (table == TableNum::Vocabulary || request->key.key == found.number) return request->key;
        return Reject(*found.record,
                      "The number of a new record must be " + std::to_string(request->key.key));
    }

    /// Some records can't be edited by hand.
    bool MayEdit(TableNum table, ScreenKey key, const BatchRecord& record) {
        const bool guarded = table == TableNum::Flags || table == TableNum::ProcDesc;
        if (key.isNew || !guarded) return true;
        context_.currentEntry = key.key;
        return Entries(context_).EditEntry().has_value() || Fault(record, dialogs_.TakeTold());
    }

    std::nullopt_t Reject(const BatchRecord& record, const std::string& message) {
        Fault(record, message);
        return std::nullopt;
    }

    bool Fault(const BatchRecord& record, const std::string& message) {
        status_.AddFault(message, {file_, record.line, record.text});
        return false;
    }

    struct Stored {
        int key = 0;
        std::vector<std::string> values;
    };

    const std::filesystem::path file_;
    interchange::JobStatus& status_;
    BatchDialogs dialogs_;
    ScreenContext context_;
    BatchWork work_;
    std::vector<BatchRecord> records_;
    std::vector<BatchField> fields_;
    std::map<Identity, Stored> stored_;
    std::set<const BatchRecord*> changed_;
    std::vector<int> newLocations_;
};

/// What the screens' windows do when they close: part of the step of Undo that the import made.
bool Follow(Importer& importer, const SettingsBefore& before) {
    ScreenContext& context = importer.Context();
    for (const int location : importer.NewLocations())
        Entries(context).AfterScreen({.screen = Screen::Location, .key = {location, true}});
    return FollowSettings(context, before);
}

}  // namespace

BatchImportResult ImportBatch(Document& document, const std::filesystem::path& file,
                              interchange::JobStatus& status) {
    BatchImportResult result;
    try {
        const SettingsBefore before = ReadSettingsBefore(document);
        Importer importer(document, file, status);
        {
            Change change(document, "read " + file.filename().string());
            result.changed = importer.Store();
            result.done = status.Faults() == 0;
            if (result.done) change.Commit();
        }
        if (result.done && result.changed > 0) result.mustExit = !Follow(importer, before);
    } catch (const interchange::TooManyFaults&) {
        result.done = false;
        status.AddToStatusCR("The file has too many faults; the rest was not read.");
    }
    if (!result.done) result.changed = 0;
    document.Adventure().ReadSettings();
    return result;
}

}  // namespace fabula::authoring
