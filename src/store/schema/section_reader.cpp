#include "store/schema/section_reader.h"

#include <algorithm>
#include <optional>

#include "store/character_key.h"
#include "store/schema/record_check.h"
#include "text/encoding/utf8.h"
#include "text/fields.h"
#include "text/format.h"
#include "text/line_ends.h"
#include "text/numbers.h"
#include "text/str_edit.h"

namespace fabula::store {
namespace {

constexpr std::size_t kCharacterColumns = 4;
constexpr std::size_t kCharacterRows = 8;

std::optional<bool> TruthValue(std::string_view text) {
    if (text::EqualsNoCase(text, "True")) return true;
    if (text::EqualsNoCase(text, "False")) return false;
    return std::nullopt;
}

/// Reads the sections whose records begin at lines "/n", and the plain rows.
class SectionReader {
  public:
    SectionReader(const DefaultData& data, const std::string& section, const SectionForm& form,
                  const TableSchema& schema, platform::EventPump& events)
        : data_(data), section_(section), form_(form), schema_(schema), events_(events) {
        if (!form.columns.empty()) columns_ = text::Split(form.columns, " ");
    }

    std::vector<Record> Read() {
        for (const DefaultData::Line& line : data_.Lines(section_)) {
            events_.Pump();
            if (form_.shape == SectionForm::Shape::Rows) {
                AddRow(line, static_cast<std::int64_t>(records_.size()) + 1);
            } else if (line.text.starts_with('/')) {
                number_ = ReadNumber(data_, section_, line, std::string_view(line.text).substr(1));
                if (form_.shape == SectionForm::Shape::NumberedTexts) BeginText(line);
            } else if (!number_) {
                data_.Malformed(section_, line, "there is no line \"/n\" before it");
            } else if (form_.shape == SectionForm::Shape::NumberedRows) {
                AddRow(line, *number_);
            } else {
                AddTextLine(line);
            }
        }
        FinishText();
        return std::move(records_);
    }

    std::optional<Record> Find(std::string_view field, std::string_view value) const {
        const auto column = static_cast<std::size_t>(std::ranges::find(columns_, field) - columns_.begin());
        for (const DefaultData::Line& line : data_.Lines(section_)) {
            if (line.text.find(value) == std::string::npos) continue;
            if (data_.Columns(section_, line, columns_.size()).at(column) == value) return ReadRow(line, 0);
        }
        return std::nullopt;
    }

  private:
    Record ReadRow(const DefaultData::Line& line, std::int64_t number) const {
        Record record;
        auto values = data_.Columns(section_, line, columns_.size());
        // The last column is free text and may hold the delimiter.
        for (std::size_t i = columns_.size(); i < values.size(); ++i) {
            values[columns_.size() - 1] += data_.Info("Delimiter") + values[i];
        }
        for (std::size_t i = 0; i < columns_.size(); ++i) {
            if (columns_[i] != "-")
                SetText(record, data_, {section_, line, schema_}, columns_[i], values[i]);
        }
        if (!form_.number.empty()) {
            SetValue(record, data_, {section_, line, schema_}, form_.number, number);
        }
        return record;
    }

    void AddRow(const DefaultData::Line& line, std::int64_t number) {
        records_.push_back(ReadRow(line, number));
    }

    void BeginText(const DefaultData::Line& line) {
        FinishText();
        pending_.emplace();
        SetValue(*pending_, data_, {section_, line, schema_}, form_.number, *number_);
        needsRow_ = !columns_.empty();
        lines_.clear();
    }

    void AddTextLine(const DefaultData::Line& line) {
        if (needsRow_) {
            *pending_ = ReadRow(line, *number_);
            needsRow_ = false;
        } else {
            lines_.push_back(line.text);
        }
    }

    void FinishText() {
        if (!pending_) return;
        (*pending_)[std::string(form_.text)] = columns_.empty() ? JoinedByLineEnds() : JoinedByBlanks();
        records_.push_back(std::move(*pending_));
        pending_.reset();
    }

    std::string JoinedByLineEnds() const {
        std::string text;
        for (std::size_t i = 0; i < lines_.size(); ++i) {
            if (i > 0) text += text::kLineEndMarker;
            text += lines_[i];
        }
        return text;
    }

    /// The form of a description: lines run on, and an empty one is a line end.
    std::string JoinedByBlanks() const {
        std::string text;
        bool lineStarts = true;
        for (const std::string& line : lines_) {
            if (line.empty()) {
                text += text::kLineEndMarker;
                lineStarts = true;
                continue;
            }
            if (!lineStarts) text += ' ';
            text += line;
            lineStarts = false;
        }
        return text;
    }

    const DefaultData& data_;
    const std::string& section_;
    const SectionForm& form_;
    const TableSchema& schema_;
    platform::EventPump& events_;
    std::vector<std::string_view> columns_;
    std::vector<Record> records_;
    std::optional<std::int64_t> number_;
    std::optional<Record> pending_;  ///< of a section of texts: the record whose lines are being read
    bool needsRow_ = false;
    std::vector<std::string> lines_;
};

std::string ReadCharacterValues(const DefaultData& data, const std::string& section,
                                const DefaultData::Line& line, std::string_view text) {
    std::string values;
    const auto pieces = text::Split(text, " ");
    if (pieces.size() != kCharacterRows) data.Malformed(section, line, "a character has eight values");
    for (const std::string_view piece : pieces) {
        const bool isNumber = text::WholeNumber(piece) || text::EqualsNoCase(piece.substr(0, 2), "&h");
        const int value = text::HexToValue(piece);
        if (!isNumber || value < 0 || value > 255)
            data.Malformed(section, line, "a value is from 0 to 255");
        values += (values.empty() ? "" : " ") + std::to_string(value);
    }
    return values;
}

const Field& FieldOf(const DefaultData& data, const Place& place, std::string_view field) {
    const auto index = place.schema.Find(field);
    if (!index) data.Malformed(place.section, place.line, "there is no field " + std::string(field));
    return place.schema.fields[*index];
}

}  // namespace

std::int64_t ReadNumber(const DefaultData& data, std::string_view section, const DefaultData::Line& line,
                        std::string_view text) {
    const auto number = text::WholeNumber(text::TrimBlanks(text));
    if (!number) data.Malformed(section, line, "'" + std::string(text) + "' is no number");
    return *number;
}

void SetValue(Record& record, const DefaultData& data, const Place& place, std::string_view field,
              text::Value value) {
    const Field& target = FieldOf(data, place, field);
    if (const auto fault = FaultOf(place.schema, target, value)) {
        data.Malformed(place.section, place.line, *fault);
    }
    record[std::string(field)] = std::move(value);
}

void SetText(Record& record, const DefaultData& data, const Place& place, std::string_view field,
             std::string_view text) {
    text::Value value;
    switch (ClassOf(FieldOf(data, place, field).type)) {
        case FieldClass::Number:
            value = text.empty() ? 0 : ReadNumber(data, place.section, place.line, text);
            break;
        case FieldClass::Truth: {
            const auto truth = TruthValue(text);
            if (!truth)
                data.Malformed(place.section, place.line,
                               "'" + std::string(text) + "' is not True or False");
            value = std::int64_t{*truth};
            break;
        }
        case FieldClass::Text:
            value = std::string(text);
            break;
        case FieldClass::Binary:
            data.Malformed(place.section, place.line, std::string(field) + " takes no text");
    }
    SetValue(record, data, place, field, std::move(value));
}

std::vector<Record> ReadSection(const DefaultData& data, const std::string& section,
                                const SectionForm& form, const TableSchema& schema,
                                platform::EventPump& events) {
    return SectionReader(data, section, form, schema, events).Read();
}

std::optional<Record> FindRow(const DefaultData& data, const std::string& section, const SectionForm& form,
                              const TableSchema& schema, std::string_view field, std::string_view value) {
    platform::NoEvents events;
    return SectionReader(data, section, form, schema, events).Find(field, value);
}

std::vector<Record> ReadCharacters(const DefaultData& data, const std::string& section,
                                   const TableSchema& schema) {
    std::vector<Record> records;
    for (const DefaultData::Line& line : data.Lines(section)) {
        const auto columns = data.Columns(section, line, kCharacterColumns);
        const std::int64_t set = ReadNumber(data, section, line, columns[0]);
        const std::int64_t number = ReadNumber(data, section, line, columns[1]);
        const Place place{section, line, schema};
        Record& record = records.emplace_back();
        SetValue(record, data, place, "charsetnum", set);
        SetValue(record, data, place, "charnum", number);
        SetValue(record, data, place, "charkey", set * kCharactersOfASet + number);
        SetValue(record, data, place, "CharSet", text::FormatText("SET !%z4", {set}));
        SetValue(record, data, place, "charsetname", columns[2]);
        SetValue(record, data, place, "charvals", ReadCharacterValues(data, section, line, columns[3]));
    }
    return records;
}

}  // namespace fabula::store
