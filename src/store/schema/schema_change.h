#pragma once

#include "store/adventure.h"
#include "store/schema/schema.h"
#include "store/schema/table_catalogue.h"

namespace fabula::store {

/// Changes of an adventure's tables and fields, for upgrades alone. They belong to a Transaction of the
/// caller's and go with it; what `Tables` tells of them is the caller's to write. Cursors on a table that
/// is changed have to be opened again.
class SchemaChange {
  public:
    explicit SchemaChange(Adventure& adventure);

    /// Makes a table without records.
    void AddTable(TableNum table, const TableSchema& schema);
    /// Adds a field behind the others, null in every record. A column of that name which no field tells of
    /// is taken as it is.
    void AddField(TableNum table, const Field& field);
    /// Makes a table anew with other types; its records come back, each value put through `convert`. Fields
    /// have the same names in the same order.
    using Convert = text::Value (*)(const Field& was, text::Value value);
    void Redefine(TableNum table, const TableSchema& schema, Convert convert);

    /// Reads the fields of all tables again, as `Tables` then tells of them.
    void ReadFields();
    /// The last of a chain of changes: makes the indexes that are missing and numbers the file as one of
    /// this program. Throws OpenError when a table or field is still missing.
    void Finish();

    /// The file's number, as it stands in its header.
    int FileNumber() const;

  private:
    Adventure& adventure_;
    Connection& connection_;
};

}  // namespace fabula::store
