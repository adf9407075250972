#include "authoring/desk/grid/sort_screen.h"

#include <algorithm>
#include <set>
#include <stdexcept>

#include "authoring/desk/grid/field_titles.h"
#include "authoring/desk/grid/sort_order.h"
#include "text/encoding/utf8.h"
#include "text/fields.h"
#include "text/str_edit.h"

namespace fabula::authoring {

using store::TableNum;

namespace {

std::string TitleOf(TableNum table, const std::string& name, std::string_view other) {
    const std::string title = FieldTitle(table, name, other);
    if (text::EqualsNoCase(name, title)) return name;
    return title + " (" + name + ")";
}

}  // namespace

SortScreen::SortScreen(ScreenContext& context, TableNum table, std::string_view caption,
                       const std::optional<std::string>& proposal)
    : context_(context), table_(table), caption_(caption) {
    const auto stored = StoredSort(context.document.Adventure(), table);
    if (!stored) throw std::logic_error("the order of this table can't be changed");
    ReadFields();
    ShowOrder(*stored);
    present_ = Order();
    if (proposal) ShowOrder(*proposal);
}

void SortScreen::ReadFields() {
    store::Adventure& adventure = context_.document.Adventure();
    const store::TableSchema& schema = adventure.Schema(table_);
    store::PreparedQuery rows =
        adventure.Prepare(TableNum::Tables, "fieldname, altname", "tablenum=?", "tablekey");
    for (bool more = rows.First({static_cast<std::int64_t>(table_)}); more; more = rows.Next()) {
        const std::string name(rows.Text(0));
        const auto place = schema.Find(name);
        if (!place || store::ClassOf(schema.fields[*place].type) == store::FieldClass::Binary) continue;
        fields_.push_back({text::LowerCase(name), TitleOf(table_, name, rows.Text(1))});
    }
}

/// What is no field of the table is left out.
void SortScreen::ShowOrder(std::string_view order) {
    levels.clear();
    for (const std::string_view part : text::Split(order, ",")) {
        const std::string term = text::StrEdit(part, "compress,trim");
        const auto words = text::Split(term, " ");
        const auto field = std::ranges::find_if(
            fields_, [&](const SortField& each) { return text::EqualsNoCase(each.name, words.front()); });
        if (field == fields_.end()) continue;
        levels.push_back({static_cast<std::size_t>(field - fields_.begin()),
                          words.size() > 1 && text::EqualsNoCase(words[1], "desc")});
    }
    levels.resize(std::max(levels.size(), kFewestLevels));
}

std::string SortScreen::Order() const {
    std::string order;
    for (const SortLevel& level : levels) {
        if (!level.field) continue;
        if (!order.empty()) order += ", ";
        order += fields_.at(*level.field).name;
        if (level.down) order += " desc";
    }
    return order;
}

void SortScreen::OwnOrder() {
    ShowOrder(PlainSort(table_));
}

std::string SortScreen::Fault() const {
    std::set<std::size_t> used;
    for (const SortLevel& level : levels) {
        if (level.field && !used.insert(*level.field).second)
            return "The field " + fields_[*level.field].title + " stands twice in the order.";
    }
    return FaultOfSort(context_.document.Adventure(), table_, Order());
}

bool SortScreen::Update() {
    if (Order() == present_) return true;
    const std::string fault = Fault();
    if (!fault.empty()) return Refuse(context_.dialogs, fault);
    StoreSort(context_.document, table_, Order());
    return true;
}

}  // namespace fabula::authoring
