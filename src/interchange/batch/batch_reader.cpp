#include "interchange/batch/batch_reader.h"

#include <map>
#include <optional>
#include <utility>

#include "interchange/shared/source_file.h"
#include "platform/error.h"
#include "text/encoding/utf8.h"
#include "text/str_edit.h"

namespace fabula::interchange {
namespace {

class BatchReader {
  public:
    BatchReader(const std::filesystem::path& file, store::Adventure& adventure, JobStatus& status)
        : source_(file), adventure_(adventure), status_(status) {}

    std::vector<BatchRecord> Read() {
        if (!source_.EncodingNote().empty()) status_.AddToStatusCR(source_.EncodingNote());
        while (source_.Next(line_)) {
            const std::string_view word = text::TrimBlanks(line_);
            if (word.empty()) continue;
            const BatchTable* table = FindBatchTable(word);
            if (table != nullptr) {
                ReadSection(*table);
            } else {
                Fault("This line is not the marker of a section.");
                PassSection();
            }
        }
        return std::move(records_);
    }

  private:
    /// What is in a section whose marker is unknown, or that has none, is passed over.
    void PassSection() {
        while (text::TrimBlanks(line_) != kBatchSectionEnd && source_.Next(line_)) {
        }
    }

    const std::vector<BatchField>& FieldsOf(const BatchTable& table) {
        auto& fields = fields_[&table];
        if (fields.empty()) fields = BatchFields(adventure_, table.number);
        return fields;
    }

    void ReadSection(const BatchTable& table) {
        const SourcePlace start = Here();
        const std::vector<BatchField>& fields = FieldsOf(table);
        BatchRecord record;
        bool inRecord = false;
        bool good = true;
        while (source_.Next(line_)) {
            const std::string_view word = text::TrimBlanks(line_);
            if (word == kBatchSectionEnd) {
                if (inRecord) status_.AddFault("The record has no ENDRECORD.", PlaceOf(record));
                return;
            }
            if (word.empty()) continue;
            if (word == kBatchRecordEnd) {
                if (!inRecord) good = Fault("The record has no fields.");
                if (good) Keep(std::move(record));
                record = {};
                inRecord = false;
                good = true;
                continue;
            }
            if (!inRecord) record = {&table, source_.LineNumber(), line_, {}};
            inRecord = true;
            if (!ReadField(fields, record)) good = false;
        }
        status_.AddFault("The section has no /END.", start);
    }

    /// The field that begins on this line. False when it was told as a fault.
    bool ReadField(const std::vector<BatchField>& fields, BatchRecord& record) {
        const std::size_t equals = line_.find('=');
        if (equals == std::string::npos) return Fault("This line is no field: it has no \"=\".");
        const std::string name(text::TrimBlanks(std::string_view(line_).substr(0, equals)));
        std::size_t index = 0;
        while (index < fields.size() && !text::EqualsNoCase(fields[index].name, name))
            ++index;
        if (index == fields.size()) return Fault("The table has no field of this name: " + name);
        BatchEntry entry{index, line_.substr(equals + 1), source_.LineNumber(), line_};
        bool good = true;
        for (const BatchEntry& other : record.entries) {
            if (other.field == index) good = Fault("The field stands twice in its record: " + name);
        }
        if (fields[index].form != BatchForm::Line && !ReadLines(fields[index], entry)) good = false;
        record.entries.push_back(std::move(entry));
        return good;
    }

    bool ReadLines(const BatchField& field, BatchEntry& entry) {
        const SourcePlace start = Here();
        if (!text::TrimBlanks(entry.value).empty()) {
            status_.AddFault("The text begins on the next line.", start);
            return false;
        }
        entry.value.clear();
        bool first = true;
        while (source_.Next(line_)) {
            if (line_ == EndMarkerOf(field.form)) return true;
            if (!first) entry.value += '\n';
            entry.value += UnescapeBatchLine(line_, field.form);
            first = false;
        }
        status_.AddFault("The text has no " + std::string(EndMarkerOf(field.form)) + ".", start);
        return false;
    }

    void Keep(BatchRecord record) {
        if (records_.size() >= kMostBatchRecords) {
            throw Error("Could not read " + source_.File().string() + ": it holds more than " +
                        std::to_string(kMostBatchRecords) + " records.");
        }
        records_.push_back(std::move(record));
    }

    SourcePlace Here() const { return {source_.File(), source_.LineNumber(), line_}; }
    SourcePlace PlaceOf(const BatchRecord& record) const {
        return {source_.File(), record.line, record.text};
    }
    bool Fault(const std::string& message) {
        status_.AddFault(message, Here());
        return false;
    }

    SourceFile source_;
    store::Adventure& adventure_;
    JobStatus& status_;
    std::string line_;
    std::map<const BatchTable*, std::vector<BatchField>> fields_;
    std::vector<BatchRecord> records_;
};

}  // namespace

std::vector<BatchRecord> ReadBatchRecords(const std::filesystem::path& file, store::Adventure& adventure,
                                          JobStatus& status) {
    return BatchReader(file, adventure, status).Read();
}

}  // namespace fabula::interchange
