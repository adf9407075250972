#include "upgrades/refresh.h"

#include <array>

#include "store/new_flag.h"
#include "text/fields.h"
#include "text/markup.h"
#include "text/numbers.h"
#include "text/str_edit.h"
#include "upgrades/descriptions.h"

namespace fabula::upgrades {
namespace {

using store::Cursor;
using store::Record;
using store::TableNum;

/// From this version on descriptions hold the markup.
constexpr std::array kFirstWithMarkup = {2, 0, 0};

/// The numbers of a version, "4.0.0"; what is none counts as 0, so that a blank is below every version.
std::array<int, 3> NumbersOf(std::string_view version) {
    std::array<int, 3> numbers{};
    std::size_t i = 0;
    for (std::string_view part : text::Split(version, ".")) {
        if (i == numbers.size()) break;
        numbers[i++] = text::TakeNumber(part).value_or(0);
    }
    return numbers;
}

struct Replacement {
    std::string_view character;
    std::string_view entity;
};

/// "&" goes first, since the entities of the others begin with it.
constexpr Replacement kReplacements[] = {{"&", "&amp;"}, {"<", "&lt;"}, {">", "&gt;"}};

/// Brings the texts from before the markup into it: their "&", "<" and ">" were letters like others. Each
/// change is listed for the author.
void FixOldDescriptions(Work& work) {
    std::string changes;
    for (const Description& description : Descriptions()) {
        const bool isOld = description.table != TableNum::Flags && description.table != TableNum::ProcDesc;
        if (!isOld || !work.Has(description.table, {description.field})) continue;
        const std::string field(description.field);
        Cursor& texts = work.adventure.OpenTable(
            description.table, "*",
            field + " like '%&%' or " + field + " like '%<%' or " + field + " like '%>%'");
        for (; !texts.Eof(); texts.MoveNext()) {
            std::string text(texts.Text(field));
            const std::int64_t key = description.key.empty() ? 0 : texts.Number(description.key);
            for (const Replacement& replacement : kReplacements) {
                if (text.find(replacement.character) == std::string::npos) continue;
                text = text::ReplaceAll(text, replacement.character, replacement.entity);
                changes += std::string(replacement.character) +
                           " replaced: " + NameOfField(description, key) + "\n";
            }
            texts.SetField(field, text);
            texts.Update();
        }
    }
    if (!changes.empty()) work.reports.push_back({Report::Kind::List, "Converted Descriptions", changes});
}

void RefreshFields(Work& work) {
    FillFromDefaults(work, TableNum::Tables,
                     {"search", "Expand", "see", "export", "allowadd", "allowaddbef", "AllowDelete",
                      "allowedit", "allowload", "allowsave", "allowprint", "allowprpre", "allowkeychg",
                      "allowimpexp", "allowexp", "fbbexp", "altname", "allowchgsort"});
}

void RefreshSystemFlags(Work& work) {
    for (const Record& known : work.defaults.Records(TableNum::Flags)) {
        Cursor& flag = work.adventure.OpenTable(TableNum::Flags, "flgdesc, flgchg",
                                                store::SystemFlag(NumberOf(known, "flgnum")));
        if (flag.Eof() || TextOf(known, "flgtype") != store::kSystemFlagType) continue;
        flag.SetField("flgdesc", TextOf(known, "flgdesc"));
        flag.SetField("flgchg", NumberOf(known, "flgchg"));
        flag.Update();
    }
}

/// A node is the same when it has its place.
void RefreshNodeNames(Work& work) {
    for (const Record& known : work.defaults.Records(TableNum::DataBases)) {
        Cursor& node = work.adventure.OpenTable(
            TableNum::DataBases, "dbtreename",
            "dbnum=" + std::to_string(NumberOf(known, "dbnum")) +
                " and dbtreesort=" + std::to_string(NumberOf(known, "dbtreesort")));
        if (node.Eof() || node.Text("dbtreename") == TextOf(known, "dbtreename")) continue;
        node.SetField("dbtreename", TextOf(known, "dbtreename"));
        node.Update();
    }
}

void AddNewTemplates(Work& work) {
    for (const Record& known : work.defaults.Templates()) {
        const std::string same = "tempname=" + store::QuoteText(TextOf(known, "tempname"));
        if (!Finds(work, TableNum::Templates, same)) work.AddRecord(TableNum::Templates, known);
    }
}

void SetSystem(Work& work, std::string_view field, const std::string& value) {
    Cursor& system = work.adventure.OpenTable(TableNum::System, field);
    system.SetField(field, value);
    system.Update();
}

}  // namespace

bool HasOtherDate(Work& work) {
    if (!work.Has(TableNum::System, {"sysinidate", "sysexportversion"})) return false;
    store::PreparedQuery system =
        work.adventure.Prepare(TableNum::System, "sysinidate, sysexportversion", "");
    if (!system.First({})) return false;
    return system.Text(0) != work.defaults.Date() || system.Text(1) != work.defaults.ExportVersion();
}

void RefreshCatalogues(Work& work, const Step&) {
    RefreshFields(work);
    RefreshSystemFlags(work);
    FillFromDefaults(work, TableNum::CondActs,
                     {"camaxval1", "camaxval2", "PageNum", "htmlpage", "Fabula", "Vel", "Marlo", "PCVel"});
    RefreshNodeNames(work);
    FillFromDefaults(work, TableNum::Codes, {"fontname"});
    FillFromDefaults(work, TableNum::Commands, {"ccsubname", "cdsubname"});
    const std::string version(
        work.adventure.OpenTable(TableNum::System, "sysexportversion").Text("sysexportversion"));
    if (NumbersOf(version) < kFirstWithMarkup) FixOldDescriptions(work);
    SetSystem(work, "sysexportversion", work.defaults.ExportVersion());
    AddNewTemplates(work);
    FillFromDefaults(work, TableNum::Codes, {"FabulaTag", "ACETag", "FabulaTagParam", "FabulaTagVal"});
    SetSystem(work, "sysinidate", work.defaults.Date());
}

}  // namespace fabula::upgrades
