#include "store/query/cursor.h"

#include <algorithm>
#include <new>
#include <stdexcept>

#include <sqlite3.h>

#include "platform/error.h"
#include "platform/whole_file.h"
#include "store/file/connection.h"
#include "store/schema/record_check.h"
#include "text/encoding/utf8.h"

namespace fabula::store {
namespace {

/// The record that stands at one row of a snapshot, seen by a filter.
class SnapshotRow final : public FieldSource {
  public:
    SnapshotRow(const Snapshot& snapshot, const std::vector<std::size_t>& fieldIndexes, std::size_t row)
        : snapshot_(snapshot), fieldIndexes_(fieldIndexes), row_(row) {}

    text::Value ValueOf(std::size_t field) const override {
        const auto column = std::find(fieldIndexes_.begin(), fieldIndexes_.end(), field);
        if (column == fieldIndexes_.end())
            throw std::logic_error("Find on a field that the cursor does not have");
        return snapshot_.ValueAt(row_, static_cast<std::size_t>(column - fieldIndexes_.begin()));
    }

  private:
    const Snapshot& snapshot_;
    const std::vector<std::size_t>& fieldIndexes_;
    std::size_t row_;
};

}  // namespace

void Cursor::MoveFirst() {
    CancelUpdate();
    betweenRecords_ = false;
    position_ = 0;
}

void Cursor::MoveLast() {
    CancelUpdate();
    betweenRecords_ = false;
    position_ = std::max<std::int64_t>(RowCount() - 1, 0);
}

void Cursor::MoveNext() {
    CancelUpdate();
    if (betweenRecords_) {
        betweenRecords_ = false;
        return;
    }
    if (position_ < RowCount()) ++position_;
}

void Cursor::MovePrevious() {
    CancelUpdate();
    betweenRecords_ = false;
    if (position_ >= 0) --position_;
}

int Cursor::AbsolutePosition() const {
    if (Eof() || Bof() || betweenRecords_) return 0;
    return static_cast<int>(position_) + 1;
}

void Cursor::SetAbsolutePosition(int position) {
    if (position < 1 || position > RecordCount())
        throw std::logic_error("a cursor was sent to a place it has not");
    CancelUpdate();
    betweenRecords_ = false;
    position_ = position - 1;
}

std::size_t Cursor::Column(std::string_view name) const {
    for (std::size_t i = 0; i < fields_.size(); ++i) {
        if (text::EqualsNoCase(fields_[i].name, name)) return i;
    }
    throw std::logic_error("a cursor was asked for the field '" + std::string(name) +
                           "', which it does not have");
}

std::size_t Cursor::CurrentRow() const {
    if (Eof() || Bof() || betweenRecords_)
        throw std::logic_error("a cursor that stands on no record was read");
    return static_cast<std::size_t>(position_);
}

const text::Value* Cursor::PendingValue(std::size_t column) const {
    if (!pending_ || !pending_->values[column]) return nullptr;
    return &*pending_->values[column];
}

text::Value Cursor::Field(std::size_t column) const {
    if (const text::Value* pending = PendingValue(column)) return *pending;
    if (ReadsPending()) return {};
    return snapshot_.ValueAt(CurrentRow(), column);
}

std::string_view Cursor::Text(std::size_t column) const {
    if (ClassOf(fields_[column].type) != FieldClass::Text) {
        throw std::logic_error("the field '" + fields_[column].name + "' was read as a text");
    }
    if (const text::Value* pending = PendingValue(column)) {
        const auto* text = std::get_if<std::string>(pending);
        return text ? std::string_view(*text) : "";
    }
    return ReadsPending() ? "" : snapshot_.TextAt(CurrentRow(), column);
}

std::int64_t Cursor::Number(std::size_t column) const {
    const FieldClass fieldClass = ClassOf(fields_[column].type);
    const bool isWhole = fieldClass == FieldClass::Number && fields_[column].type != FieldType::Double;
    if (!isWhole && fieldClass != FieldClass::Truth) {
        throw std::logic_error("the field '" + fields_[column].name + "' was read as a whole number");
    }
    if (const text::Value* pending = PendingValue(column)) {
        const auto* number = std::get_if<std::int64_t>(pending);
        return number ? *number : 0;
    }
    return ReadsPending() ? 0 : snapshot_.NumberAt(CurrentRow(), column);
}

bool Cursor::IsNull(std::string_view name) const {
    const std::size_t column = Column(name);
    if (const text::Value* pending = PendingValue(column)) return text::IsNull(*pending);
    return ReadsPending() || snapshot_.IsNullAt(CurrentRow(), column);
}

void Cursor::SetField(std::string_view name, text::Value value) {
    const std::size_t column = Column(name);
    if (!pending_) {
        CurrentRow();
        pending_.emplace(false, fields_.size());
    }
    // A floating field stores every number as one, so that it is here what it will be in the file.
    const auto* whole = std::get_if<std::int64_t>(&value);
    if (whole && fields_[column].type == FieldType::Double) value = static_cast<double>(*whole);
    pending_->values[column] = std::move(value);
}

void Cursor::AddNew() {
    if (!connection_) throw std::logic_error("a record was added to a cursor that is not open");
    pending_.emplace(true, fields_.size());
}

void Cursor::Update() {
    if (!pending_) return;
    for (std::size_t i = 0; i < fields_.size(); ++i) {
        if (pending_->values[i]) CheckValue(*schema_, fields_[i], *pending_->values[i]);
    }
    const std::int64_t key = Write();
    if (pending_->isNew) {
        std::vector<text::Value> values(fields_.size());
        for (std::size_t i = 0; i < fields_.size(); ++i)
            if (pending_->values[i]) values[i] = *pending_->values[i];
        snapshot_.AppendRow(key, values);
        position_ = RowCount() - 1;
        betweenRecords_ = false;
    } else {
        for (std::size_t i = 0; i < fields_.size(); ++i) {
            if (pending_->values[i]) snapshot_.SetValue(CurrentRow(), i, *pending_->values[i]);
        }
    }
    pending_.reset();
}

/// Writes the pending record and returns its key.
std::int64_t Cursor::Write() {
    connection_->CheckMayChange();
    std::string sql = pending_->isNew ? "INSERT INTO " : "UPDATE ";
    sql += schema_->name;
    const char* joint = pending_->isNew ? " (" : " SET ";
    std::string marks;
    std::vector<const text::Value*> values;
    for (std::size_t i = 0; i < fields_.size(); ++i) {
        if (!pending_->values[i]) continue;
        sql += joint + fields_[i].name;
        if (!pending_->isNew) sql += "=?";
        marks += marks.empty() ? "?" : ",?";
        joint = ",";
        values.push_back(&*pending_->values[i]);
    }
    if (values.empty()) {
        if (!pending_->isNew) return snapshot_.KeyOf(CurrentRow());
        sql += " DEFAULT VALUES";
    } else if (pending_->isNew) {
        sql += ") VALUES (" + marks + ")";
    } else {
        sql += " WHERE storekey=?";
    }
    sqlite3_stmt* statement = connection_->Cached(sql);
    const StatementUse use(statement);
    int parameter = 0;
    for (const text::Value* value : values)
        Connection::Bind(statement, ++parameter, *value);
    if (!pending_->isNew) sqlite3_bind_int64(statement, ++parameter, snapshot_.KeyOf(CurrentRow()));
    connection_->Step(statement, "store the record");
    if (pending_->isNew) return connection_->LastInsertKey();
    if (connection_->ChangedRows() == 0) {
        throw Error("Could not store the record: it was deleted from " + schema_->name +
                    " in the meantime.");
    }
    return snapshot_.KeyOf(CurrentRow());
}

void Cursor::CancelUpdate() {
    pending_.reset();
}

void Cursor::Delete() {
    CancelUpdate();
    const std::size_t row = CurrentRow();
    connection_->CheckMayChange();
    sqlite3_stmt* statement = connection_->Cached("DELETE FROM " + schema_->name + " WHERE storekey=?");
    const StatementUse use(statement);
    sqlite3_bind_int64(statement, 1, snapshot_.KeyOf(row));
    connection_->Step(statement, "delete the record");
    snapshot_.RemoveRow(row);
    betweenRecords_ = true;
}

void Cursor::Find(std::string_view criterion, std::optional<int> start) {
    if (!connection_) throw std::logic_error("a cursor that is not open was searched");
    const FilterNode filter = ParseFilter(criterion, *schema_);
    CancelUpdate();
    const std::int64_t behind = betweenRecords_ ? position_ : position_ + 1;
    betweenRecords_ = false;
    position_ = std::max<std::int64_t>(start ? std::int64_t{*start} - 1 : behind, 0);
    while (position_ < RowCount() &&
           !Matches(filter, SnapshotRow(snapshot_, fieldIndexes_, static_cast<std::size_t>(position_)))) {
        ++position_;
    }
    position_ = std::min(position_, RowCount());
}

void Cursor::Requery() {
    if (!connection_) throw std::logic_error("a cursor that is not open was read again");
    Snapshot read;
    ReadInto(read);
    snapshot_ = std::move(read);
    MoveFirst();
}

void Cursor::Reset() {
    connection_ = nullptr;
    schema_ = nullptr;
    fields_.clear();
    fieldIndexes_.clear();
    snapshot_.Clear(0);
    position_ = 0;
    betweenRecords_ = false;
    pending_.reset();
}

void Cursor::ReadInto(Snapshot& snapshot) const {
    snapshot.Clear(fields_.size());
    sqlite3_stmt* statement = connection_->Cached(sql_);
    const StatementUse use(statement);
    for (std::size_t i = 0; i < parameters_.size(); ++i) {
        Connection::Bind(statement, static_cast<int>(i) + 1, parameters_[i]);
    }
    try {
        while (connection_->Step(statement, "read the adventure"))
            snapshot.AppendRow(statement);
    } catch (const std::bad_alloc&) {
        snapshot.Clear(fields_.size());
        throw Error("Could not read the adventure: there is not enough memory.");
    }
}

void Cursor::StoreFileInField(const std::filesystem::path& file, std::string_view field,
                              std::string_view pathField) {
    const std::string bytes =
        platform::ReadWholeFile(file, kLargestBinary, "read the file " + file.string());
    const auto* first = reinterpret_cast<const std::byte*>(bytes.data());
    SetField(field, text::Blob(first, first + bytes.size()));
    SetField(pathField, file.generic_string());
}

}  // namespace fabula::store
