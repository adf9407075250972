#include "upgrades/defaults.h"

#include <utility>

#include "platform/error.h"
#include "platform/event_pump.h"
#include "store/adventure_kind.h"
#include "store/schema/schema_section.h"
#include "text/encoding/utf8.h"
#include "text/fields.h"

namespace fabula::upgrades {
namespace {

using store::Record;
using store::TableNum;

const store::SectionForm* FormFor(TableNum table) {
    for (const store::SectionForm& form : store::SectionForms()) {
        if (form.table == table) return &form;
    }
    return nullptr;
}

/// Records come from the sections of the type Fabula, whatever the type of the file.
std::string SectionOf(TableNum table) {
    return store::DataSection(*store::FindTable(table), store::NameOf(store::AdventureKind::Fabula));
}

}  // namespace

Defaults::Defaults(std::filesystem::path file)
    : file_(std::move(file)), data_(store::DefaultData::Read(file_)) {}

const store::TableSchema& Defaults::Schema(TableNum table) {
    const auto known = schemas_.find(table);
    if (known != schemas_.end()) return known->second;
    return schemas_[table] = store::ReadSchemaSection(data_, *store::FindTable(table), nullptr);
}

const std::vector<Record>& Defaults::FieldRecords(TableNum table) {
    const auto known = fields_.find(table);
    if (known != fields_.end()) return known->second;
    return fields_[table] =
               store::ReadFieldRecords(data_, *store::FindTable(table), Schema(TableNum::Tables));
}

const Record* Defaults::FieldRecord(TableNum table, std::string_view field) {
    for (const Record& record : FieldRecords(table)) {
        if (text::EqualsNoCase(TextOf(record, "fieldname"), field)) return &record;
    }
    return nullptr;
}

const std::vector<Record>& Defaults::Records(TableNum table) {
    const auto known = records_.find(table);
    if (known != records_.end()) return known->second;
    const std::string section = SectionOf(table);
    platform::NoEvents events;
    const store::SectionForm* form = FormFor(table);
    if (form) return records_[table] = store::ReadSection(data_, section, *form, Schema(table), events);
    if (table == TableNum::Characters)
        return records_[table] = store::ReadCharacters(data_, section, Schema(table));
    return records_[table];
}

const Record& Defaults::CondAct(std::string_view name) {
    const auto known = condActs_.find(name);
    if (known != condActs_.end()) return known->second;
    const std::string section = SectionOf(TableNum::CondActs);
    auto found = store::FindRow(data_, section, *FormFor(TableNum::CondActs), Schema(TableNum::CondActs),
                                "caname", name);
    if (found) return condActs_[std::string(name)] = std::move(*found);
    throw Error("The default data " + file_.string() + " has no " + std::string(name) +
                " in section ::VELCONDACT.");
}

std::vector<Record> Defaults::Templates() const {
    return store::ReadTemplates(file_);
}

const text::Value* FindValue(const Record& record, std::string_view field) {
    for (const auto& [name, value] : record) {
        if (text::EqualsNoCase(name, field)) return &value;
    }
    return nullptr;
}

std::string TextOf(const Record& record, std::string_view field) {
    const text::Value* value = FindValue(record, field);
    const auto* found = value ? std::get_if<std::string>(value) : nullptr;
    return found ? *found : std::string();
}

std::int64_t NumberOf(const Record& record, std::string_view field) {
    const text::Value* value = FindValue(record, field);
    const auto* number = value ? std::get_if<std::int64_t>(value) : nullptr;
    return number ? *number : 0;
}

}  // namespace fabula::upgrades
