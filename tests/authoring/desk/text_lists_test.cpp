// The upgrades and the search each list the fields that hold an author's texts. They differ in what else
// they say of a field, and so are compared here.

#include <set>
#include <string>
#include <tuple>

#include <gtest/gtest.h>

#include "references/find_replace.h"
#include "upgrades/descriptions.h"

namespace fabula {
namespace {

using Form = references::SearchedField::Form;
using store::TableNum;

/// Table, key, field, and whether tags may stand in it.
using TextField = std::tuple<TableNum, std::string_view, std::string_view, bool>;

std::set<TextField> TextsOfUpgrades(bool ofRecords) {
    std::set<TextField> fields;
    for (const upgrades::Description& text : upgrades::Descriptions()) {
        if ((text.table != TableNum::Adventure) == ofRecords)
            fields.insert({text.table, text.key, text.field, text.tagsAllowed});
    }
    return fields;
}

TEST(TextsOfRecords, AreTheSameForUpgradesAndForTheSearch) {
    std::set<TextField> searched;
    for (const references::SearchedField& field : references::SearchedFields()) {
        if (field.form == Form::Markup || field.form == Form::Note)
            searched.insert({field.table, field.key, field.field, field.form == Form::Markup});
    }
    EXPECT_EQ(searched, TextsOfUpgrades(true));
}

TEST(TextsOfTheSettings, AreCheckedByUpgradesAndNotSearched) {
    EXPECT_EQ(TextsOfUpgrades(false),
              (std::set<TextField>{{TableNum::Adventure, "", "advcontactinfo", false},
                                   {TableNum::Adventure, "", "advdesc", false},
                                   {TableNum::Adventure, "", "author", false}}));
    for (const references::SearchedField& field : references::SearchedFields())
        EXPECT_NE(field.table, TableNum::Adventure) << field.field;
}

}  // namespace
}  // namespace fabula
