// Compares the forms of the sections with the default data: which of its fields each names.

#include "store/schema/section_forms.h"

#include <map>
#include <set>

#include <gtest/gtest.h>

#include "store/schema/default_data.h"
#include "store/schema/schema_section.h"
#include "support/places.h"
#include "text/encoding/utf8.h"
#include "text/fields.h"

namespace fabula::store {
namespace {

using Names = std::set<std::string>;

constexpr const char* kTypesOfAdventures[] = {"Fabula", "VEL", "Marlo"};

/// Fields that no row of the default data gives, in small letters: they are empty in a new adventure, or
/// filled by what creates it.
struct Unfilled {
    TableNum table;
    const char* fields;
};
constexpr Unfilled kUnfilled[] = {
    {TableNum::Locations, "picgraphic oldpicloc comment"},
    {TableNum::Messages, "comment"},
    {TableNum::Objects, "comment"},
    {TableNum::Adventure,
     "advnum savename datecreated unmarloed advcontactinfo graphics sound charsets advpicgraphic "
     "defpicgraphic graphicsindb graphicsadded oldadvpicloc olddefpicloc source"},
    {TableNum::ProcessTables, "numericcondacts comment"},
    {TableNum::SystemMessages, "comment"},
    {TableNum::Vocabulary, "comment"},
    {TableNum::Flags, "comment"},
    {TableNum::ProcDesc, "comment"},
};

Names Lower(std::string_view names) {
    Names lower;
    for (const std::string_view name : text::Split(names, " ")) {
        if (!name.empty() && name != "-") lower.insert(text::LowerCase(name));
    }
    return lower;
}

Names NamedBy(const SectionForm& form) {
    return Lower(std::string(form.columns).append(" ").append(form.number).append(" ").append(form.text));
}

Names UnfilledOf(TableNum table) {
    for (const Unfilled& unfilled : kUnfilled) {
        if (unfilled.table == table) return Lower(unfilled.fields);
    }
    return {};
}

std::string Without(const Names& names, const Names& others) {
    std::string left;
    for (const std::string& name : names) {
        if (!others.contains(name)) left.append(left.empty() ? "" : " ").append(name);
    }
    return left;
}

class SectionFormsTest : public testing::Test {
  protected:
    Names FieldsOf(TableNum table) const {
        Names fields;
        for (const Field& field : ReadSchemaSection(data_, *FindTable(table), nullptr).fields)
            fields.insert(text::LowerCase(field.name));
        return fields;
    }

    const DefaultData data_ = DefaultData::Read(test::DefaultData());
};

TEST_F(SectionFormsTest, NameFieldsThatTheDefaultDataDeclares) {
    for (const SectionForm& form : SectionForms())
        EXPECT_EQ(Without(NamedBy(form), FieldsOf(form.table)), "") << FindTable(form.table)->name;
}

TEST_F(SectionFormsTest, LeaveOutNoFieldsButThoseThatNoRowGives) {
    for (const SectionForm& form : SectionForms()) {
        const Names left = UnfilledOf(form.table);
        Names named = NamedBy(form);
        EXPECT_EQ(Without(left, FieldsOf(form.table)), "") << FindTable(form.table)->name;
        named.insert(left.begin(), left.end());
        EXPECT_EQ(Without(FieldsOf(form.table), named), "") << FindTable(form.table)->name;
    }
}

TEST_F(SectionFormsTest, AreThereForEverySectionOfRecordsButThatOfCharacters) {
    std::map<TableNum, int> forms;
    for (const SectionForm& form : SectionForms())
        ++forms[form.table];
    for (const TableEntry& table : AllTables()) {
        bool hasSection = false;
        for (const char* type : kTypesOfAdventures)
            hasSection = hasSection || data_.Has(DataSection(table, type));
        const bool wanted = hasSection && table.number != TableNum::Characters;
        EXPECT_EQ(forms[table.number], wanted ? 1 : 0) << table.name;
    }
}

}  // namespace
}  // namespace fabula::store
