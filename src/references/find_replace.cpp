#include "references/find_replace.h"

#include <algorithm>
#include <map>
#include <optional>
#include <tuple>
#include <utility>

#include "condacts/language/convert.h"
#include "condacts/language/load.h"
#include "condacts/language/parser.h"
#include "condacts/language/validate.h"
#include "references/kinds.h"
#include "store/comments.h"
#include "store/schema/record_check.h"
#include "store/tags.h"
#include "text/encoding/utf8.h"
#include "text/line_ends.h"
#include "text/markup.h"
#include "text/str_edit.h"

namespace fabula::references {
namespace {

using store::TableNum;

using enum SearchedField::Form;

constexpr std::string_view kComments = "comments";

constexpr SearchedField kFields[] = {
    {TableNum::Locations, "locnum", "locdesc", "locations", Markup},
    {TableNum::Locations, "locnum", "locshortdesc", "locations", Markup},
    {TableNum::Messages, "msgnum", "msgmsg", "messages", Markup},
    {TableNum::Objects, "objnum", "objdesc", "objects", Markup},
    {TableNum::ProcessTables, "canum", "condacts", "rules", Rules},
    {TableNum::SystemMessages, "smsgnum", "smsgmsg", "system messages", Markup},
    {TableNum::Flags, "flgnum", "flgdesc", "flags", Note},
    {TableNum::ProcDesc, "pmsgnum", "pmsgmsg", "process tables", Note},
    {TableNum::Locations, "locnum", store::kCommentField, kComments, Comment},
    {TableNum::Messages, "msgnum", store::kCommentField, kComments, Comment},
    {TableNum::Objects, "objnum", store::kCommentField, kComments, Comment},
    {TableNum::ProcessTables, "canum", store::kCommentField, kComments, Comment},
    {TableNum::SystemMessages, "smsgnum", store::kCommentField, kComments, Comment},
    {TableNum::Vocabulary, "vocindex", store::kCommentField, kComments, Comment},
    {TableNum::Flags, "flgnum", store::kCommentField, kComments, Comment},
    {TableNum::ProcDesc, "pmsgnum", store::kCommentField, kComments, Comment},
    {TableNum::Characters, "charkey", store::kCommentField, kComments, Comment},
    {TableNum::Pictures, "locnum", store::kCommentField, kComments, Comment},
};

bool IsRules(const SearchedField& field) {
    return field.form == Rules;
}

/// The checks that the screens make.
class Checks {
  public:
    explicit Checks(store::Adventure& adventure)
        : adventure_(adventure),
          tags_(store::LoadTagCatalogue(adventure)),
          catalogue_(condacts::LoadCatalogue(adventure)),
          facts_(condacts::LoadFacts(adventure)) {}

    std::string FaultOf(const SearchedField& field, const std::string& value) const {
        if (IsRules(field)) return FaultOfLine(value);
        const store::TableSchema& schema = adventure_.Schema(field.table);
        const store::Field& declared = schema.fields[*schema.Find(field.field)];
        if (const auto fault = store::FaultOf(schema, declared, text::Value(value))) return *fault;
        if (field.form == Comment) return {};
        const text::Verdict verdict = text::ValidateDescription(value, field.form == Markup, tags_);
        return verdict.IsValid() ? std::string() : verdict.BoxText();
    }

    /// The compiled form of a line that has no fault.
    std::string Compiled(const std::string& line) const {
        return condacts::CondActsToNumeric(line, catalogue_, facts_.words).line;
    }
    std::string WithNumbers(const std::string& line) const {
        return condacts::LocationWordsToNumbers(line, catalogue_);
    }

  private:
    std::string FaultOfLine(const std::string& line) const {
        if (condacts::CountTokens(line) == 0) return std::string(condacts::kNoCondActs);
        const auto fault = condacts::ValidateCondActs(line, catalogue_, facts_);
        return fault ? fault->message : std::string();
    }

    store::Adventure& adventure_;
    text::TagCatalogue tags_;
    condacts::Catalogue catalogue_;
    condacts::Facts facts_;
};

bool IsBlankAt(std::string_view line, std::size_t at) {
    return at >= line.size() || line[at] == ' ';
}

/// Whether a match in a line of conditions and actions begins and ends with a token.
bool IsWhole(std::string_view line, const Match& match) {
    const std::size_t end = match.start + match.length;
    const bool begins = match.start == 0 || line[match.start - 1] == ' ' || line[match.start] == ' ';
    return begins && (IsBlankAt(line, end) || line[end - 1] == ' ');
}

std::string Replaced1(const std::string& text, const Match& match) {
    std::string result = text;
    return result.replace(match.start, match.length, match.replacement);
}

/// In capitals, as entries are stored.
std::string StoredForm(const SearchedField& field, const std::string& text) {
    return IsRules(field) ? text::StrEdit(text::UpperCase(text), "compress,trim") : text;
}

std::string OnOneLine(std::string_view text) {
    return text::ReplaceAll(text, text::kLineEndMarker, " ");
}

/// Up to `most` bytes at the end or the start of a text, in whole characters.
std::string_view EndOf(std::string_view text, std::size_t most) {
    return text.substr(text::NextCharacterStart(text, text.size() > most ? text.size() - most : 0));
}

std::string_view StartOf(std::string_view text, std::size_t most) {
    return text.substr(0, text::CharacterStart(text, std::min(text.size(), most)));
}

std::string Around(const Hit& hit, std::string_view middle, std::size_t around) {
    const std::string_view text = hit.text;
    std::string line(EndOf(text.substr(0, hit.match.start), around));
    line.append(middle).append(StartOf(text.substr(hit.match.start + hit.match.length), around));
    return OnOneLine(line);
}

}  // namespace

std::span<const SearchedField> SearchedFields() {
    return kFields;
}

std::string Hit::Shown(std::size_t around) const {
    return Around(*this, std::string_view(text).substr(match.start, match.length), around);
}

std::string Hit::Preview(std::size_t around) const {
    return Around(*this, match.replacement, around);
}

std::vector<Hit> FindEverywhere(store::Adventure& adventure, const Wanted& wanted, const SearchScope& scope,
                                bool replacing) {
    std::vector<Hit> hits;
    if (wanted.text.empty()) return hits;
    const Pattern pattern(wanted);
    const store::ReadTransaction reading(adventure);
    std::optional<Checks> checks;
    if (replacing) checks.emplace(adventure);
    for (const SearchedField& field : kFields) {
        if (!scope.empty() && !scope.contains(field.name)) continue;
        std::string fields(field.key);
        store::PreparedQuery rows =
            adventure.Prepare(field.table, fields.append(", ").append(field.field), "", field.key);
        for (bool more = rows.First({}); more; more = rows.Next()) {
            const std::string_view text = rows.Text(1);
            for (Match& match : pattern.FindAll(text)) {
                if (IsRules(field) && !IsWhole(text, match)) continue;
                Hit hit{&field, rows.Number(0), std::string(text), std::move(match), {}};
                if (checks)
                    hit.refusal = checks->FaultOf(field, StoredForm(field, Replaced1(hit.text, hit.match)));
                hits.push_back(std::move(hit));
            }
        }
    }
    return hits;
}

Replaced ReplaceHits(store::Adventure& adventure, const std::vector<Hit>& hits) {
    using Place = std::tuple<const SearchedField*, std::int64_t, std::string>;
    std::map<Place, std::vector<const Hit*>> byField;
    for (const Hit& hit : hits)
        byField[{hit.where, hit.record, hit.text}].push_back(&hit);
    const Checks checks(adventure);
    Replaced done;
    for (auto& [place, here] : byField) {
        const auto& [field, record, before] = place;
        std::sort(here.begin(), here.end(),
                  [](const Hit* a, const Hit* b) { return a->match.start > b->match.start; });
        std::string after = before;
        for (const Hit* hit : here)
            after.replace(hit->match.start, hit->match.length, hit->match.replacement);
        after = StoredForm(*field, after);
        if (IsRules(*field)) after = checks.WithNumbers(after);
        if (const std::string fault = checks.FaultOf(*field, after); !fault.empty()) {
            std::string why(field->table == TableNum::ProcessTables ? "entry"
                                                                    : EntryOf(*KindOf(field->table)).name);
            done.refused.push_back(
                why.append(" ").append(std::to_string(record)).append(": ").append(fault));
            continue;
        }
        store::Cursor& records = adventure.OpenTable(
            TableNum::Free22, "* from " + std::string(store::FindTable(field->table)->name),
            std::string(field->key) + "=" + std::to_string(record));
        while (!records.Eof() && records.Text(field->field) != before)
            records.MoveNext();
        if (records.Eof()) continue;
        const bool isNoComment = field->form == Comment && after.empty();
        records.SetField(field->field, isNoComment ? text::Value() : text::Value(after));
        if (IsRules(*field)) {
            records.SetField("numericcondacts", checks.Compiled(after));
            records.SetField("numcas", std::int64_t{condacts::CountTokens(after)});
        }
        records.Update();
        done.places += static_cast<int>(here.size());
        ++done.records;
    }
    return done;
}

}  // namespace fabula::references
