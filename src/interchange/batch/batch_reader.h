#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "interchange/batch/batch_tables.h"
#include "interchange/shared/job_status.h"

namespace fabula::interchange {

/// A field as a batch file has it.
struct BatchEntry {
    std::size_t field = 0;  ///< among the BatchFields of its table
    std::string value;      ///< as BatchValue gives it
    std::int64_t line = 0;  ///< of its name
    std::string text = {};  ///< of that line
};

/// A record of a batch file: the fields that stand there, which need not be all.
struct BatchRecord {
    const BatchTable* table = nullptr;
    std::int64_t line = 0;  ///< of its first field
    std::string text = {};
    std::vector<BatchEntry> entries;
};

/// The records of a batch file, in its order. What can't be read is told as a fault, and the rest is read
/// on. Throws fabula::Error when the file can't be read or holds more than kMostBatchRecords.
std::vector<BatchRecord> ReadBatchRecords(const std::filesystem::path& file, store::Adventure& adventure,
                                          JobStatus& status);

inline constexpr std::size_t kMostBatchRecords = 100'000;

}  // namespace fabula::interchange
