#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>

#include "store/adventure.h"
#include "store/file/file_forms.h"

namespace fabula::store {

class Connection;

/// The largest adventure file that is opened, in bytes.
inline constexpr std::uintmax_t kLargestFile = 1024ULL * 1024 * 1024;

/// Opens a file that may come from a stranger. Before anything is read through the database its header must
/// say that it is an adventure of a form this program knows; then its schema must be exactly what this
/// program makes (its tables and indexes and nothing else), its pages sound, its settings and all needed
/// fields there. With Ages::Any a file may lack what the steps of the upgrade chain add (file_forms.h).
/// Throws OpenError otherwise. A refused file has not been written to.
std::unique_ptr<Connection> OpenChecked(const std::filesystem::path& file, OpenMode mode,
                                        Ages ages = Ages::Current);

/// The type of a column that holds fields of a type.
std::string_view SqlTypeOf(FieldType type);

/// Whether a file is an adventure by its header, of whatever version and however damaged behind it.
bool IsAdventureFile(const std::filesystem::path& file);

/// Refuses a file that is there but can't be written, itself or for want of a place beside it
/// (CannotBeWritten), and what OpenChecked refuses by the header alone.
void CheckCanBeWritten(const std::filesystem::path& file);

/// Throws the OpenError for a reason: "Could not open game.fbd: it is damaged."
[[noreturn]] void Refuse(Refusal reason, const std::filesystem::path& file);

/// The statement that makes a table of these fields, the one form that OpenChecked accepts.
std::string CreateTableSql(const TableSchema& schema);

/// The statements that make the indexes of a new file.
std::vector<std::string> CreateIndexSql();

}  // namespace fabula::store
