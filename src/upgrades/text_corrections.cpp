#include "upgrades/text_corrections.h"

#include <algorithm>

#include "condacts/language/convert.h"
#include "condacts/language/load.h"
#include "condacts/places.h"
#include "store/tags.h"
#include "text/encoding/utf8.h"
#include "text/line_ends.h"
#include "text/markup.h"
#include "text/str_edit.h"
#include "upgrades/descriptions.h"

namespace fabula::upgrades {
namespace {

using store::Cursor;
using store::TableNum;

constexpr std::string_view kAnyKey = "any key";
constexpr std::string_view kAnyKeyMessage = "smsgnum=16 and smsgmsg like '*any key*'";

/// Which descriptions a correction looks through.
using Chosen = bool (*)(const Description& description);

bool IsLongText(const Description& description) {
    return description.field != "locshortdesc" && description.table != TableNum::Adventure;
}

bool IsNotAuthor(const Description& description) {
    return description.field != "author";
}

bool IsOfRecords(const Description& description) {
    return description.table != TableNum::Adventure;
}

/// Whether one of these control characters stands in a text of the chosen fields.
bool AnyTextHolds(Work& work, Chosen chosen, std::string_view controls) {
    std::uint32_t sought = 0;
    for (const char control : controls)
        sought |= std::uint32_t{1} << control;
    return std::ranges::any_of(Descriptions(), [&](const Description& description) {
        return chosen(description) && (work.ControlsIn(description.table, description.field) & sought) != 0;
    });
}

/// Puts every text of the chosen fields through `change`.
template <typename Change>
void ChangeTexts(Work& work, Chosen chosen, Change change) {
    for (const Description& description : Descriptions()) {
        if (!chosen(description) || !work.Has(description.table, {description.field})) continue;
        for (Cursor& texts = work.adventure.OpenTable(description.table, description.field); !texts.Eof();
             texts.MoveNext()) {
            const std::string before(texts.Text(description.field));
            std::string after = change(before);
            if (after == before) continue;
            texts.SetField(description.field, std::move(after));
            texts.Update();
        }
    }
}

constexpr std::string_view kForeignLineEnds = "\r\n";

/// The characters that separated lines before the line-end marker did: the four separators among the
/// control characters, which no text holds for itself.
constexpr std::string_view kOldSeparators = "\x1c\x1d\x1e\x1f";

std::string WithPresentSeparator(std::string_view text) {
    std::string result;
    for (const char c : text) {
        if (kOldSeparators.find(c) == std::string_view::npos)
            result += c;
        else
            result += text::kLineEndMarker;
    }
    return result;
}

bool IsDigitOrBlank(char c) {
    return c == ' ' || (c >= '0' && c <= '9');
}

bool HasLocationWord(std::string_view numbers) {
    if (std::ranges::all_of(numbers, IsDigitOrBlank)) return false;  // as nearly every line is
    const std::string capitals = text::UpperCase(numbers);
    return std::ranges::any_of(condacts::kLocationWords, [&](const condacts::LocationWord& word) {
        return capitals.find(word.word) != std::string::npos;
    });
}

/// In a numeric line every location word is a parameter, since names are numbers there.
std::string WithNumbers(std::string_view numbers) {
    std::string line = " " + text::StrEdit(text::UpperCase(numbers), "compress,trim") + " ";
    for (const condacts::LocationWord& word : condacts::kLocationWords) {
        const std::string token = " " + std::string(word.word) + " ";
        for (auto at = line.find(token); at != std::string::npos; at = line.find(token, at))
            line.replace(at + 1, word.word.size(), std::to_string(word.number.value));
    }
    return text::StrEdit(line, "compress,trim");
}

}  // namespace

bool SaysAnyKey(Work& work) {
    return Finds(work, TableNum::SystemMessages, kAnyKeyMessage);
}

void SayEnter(Work& work, const Step&) {
    for (Cursor& message = work.adventure.OpenTable(TableNum::SystemMessages, "smsgmsg", kAnyKeyMessage);
         !message.Eof(); message.MoveNext()) {
        std::string text(message.Text("smsgmsg"));
        for (std::size_t at = 0; at + kAnyKey.size() <= text.size(); ++at) {
            if (text::EqualsNoCase(text.substr(at, kAnyKey.size()), kAnyKey))
                text.replace(at, kAnyKey.size(), "ENTER");
        }
        message.SetField("smsgmsg", text);
        message.Update();
    }
}

bool HasLocationWords(Work& work) {
    if (!work.Has(TableNum::ProcessTables, {"numericcondacts"})) return false;
    store::PreparedQuery lines =
        work.adventure.Prepare(TableNum::ProcessTables, "numericcondacts", "", std::string_view());
    for (bool found = lines.First({}); found; found = lines.Next()) {
        if (HasLocationWord(lines.Text(0)) && WithNumbers(lines.Text(0)) != lines.Text(0)) return true;
    }
    return false;
}

void NumberLocationWords(Work& work, const Step&) {
    const condacts::Catalogue catalogue = condacts::LoadCatalogue(work.adventure);
    for (Cursor& lines = work.adventure.OpenTable(TableNum::ProcessTables, "condacts, numericcondacts");
         !lines.Eof(); lines.MoveNext()) {
        if (!HasLocationWord(lines.Text("numericcondacts"))) continue;
        const std::string text(lines.Text("condacts"));
        lines.SetField("numericcondacts", WithNumbers(lines.Text("numericcondacts")));
        lines.SetField("condacts",
                       text::StrEdit(condacts::LocationWordsToNumbers(text, catalogue), "compress,trim"));
        lines.Update();
    }
}

bool HasForeignLineEnds(Work& work) {
    return AnyTextHolds(work, IsLongText, kForeignLineEnds);
}

void NormaliseLineEnds(Work& work, const Step&) {
    ChangeTexts(work, IsLongText, [](const std::string& text) {
        return text::NormalizeLineEnds(text, text::kLineEndMarker);
    });
}

bool HasOldSeparators(Work& work) {
    return AnyTextHolds(work, IsNotAuthor, kOldSeparators);
}

void RenewSeparators(Work& work, const Step&) {
    ChangeTexts(work, IsNotAuthor, [](const std::string& text) { return WithPresentSeparator(text); });
}

bool HasOtherExportVersion(Work& work) {
    if (!work.Has(TableNum::System, {"sysexportversion"})) return false;
    store::PreparedQuery system = work.adventure.Prepare(TableNum::System, "sysexportversion", "");
    return system.First({}) && system.Text(0) != work.defaults.ExportVersion();
}

void CheckDescriptions(Work& work, const Step&) {
    const text::TagCatalogue tags = store::LoadTagCatalogue(work.adventure);
    std::string found;
    for (const Description& description : Descriptions()) {
        if (!IsOfRecords(description)) continue;
        const Cursor& texts = work.adventure.OpenTable(
            description.table, std::string(description.key) + ", " + std::string(description.field), {},
            description.key);
        for (Cursor& walk = work.adventure.Table(description.table); !texts.Eof(); walk.MoveNext()) {
            const std::string_view text = texts.Text(description.field);
            if (text::ValidateDescription(text, description.tagsAllowed, tags).IsValid()) continue;
            found += NameOfField(description, texts.Number(description.key)) + "\n";
        }
    }
    if (found.empty()) return;
    work.reports.push_back({Report::Kind::List, "Description Errors",
                            "Below is a listing of descriptions which do not meet current validation.\n"
                            "Possible reasons could be:\n"
                            "1. Use of & without a matching ;.\n"
                            "2. Use of < without matching > or a > by itself.\n"
                            "3. An invalid tag (tags use <>).\n"
                            "4. An invalid Entity (Entities use &;).\n"
                            "5. A Tag used inproperly.\n"
                            "6. A word which is too long (over 30 characters).\n"
                            "(A word is anything delimited by spaces with the Tags and Entities removed.)\n"
                            "For further information on the above, see the Help in Fabula.\n\n" +
                                found});
}

}  // namespace fabula::upgrades
