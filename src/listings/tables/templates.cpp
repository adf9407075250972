#include "listings/tables/templates.h"

#include <algorithm>
#include <optional>

#include "listings/record.h"
#include "listings/reports.h"
#include "platform/error.h"
#include "platform/whole_file.h"
#include "text/encoding/utf8.h"
#include "text/fields.h"
#include "text/line_ends.h"
#include "text/numbers.h"
#include "text/str_edit.h"

namespace fabula::listings {
namespace {

using store::TableNum;

[[noreturn]] void Refuse(std::string_view name, std::string_view why) {
    throw Error("The template " + std::string(name) + " can't be printed: " + std::string(why) + ".");
}

/// The words of a template one after the other.
class Words {
  public:
    Words(std::string_view text, std::string_view name) : name_(name) {
        for (const std::string_view word : text::Split(text, " ")) {
            if (!word.empty()) words_.push_back(word);
        }
    }

    bool AtEnd() const { return at_ == words_.size(); }
    std::string_view Next() {
        if (AtEnd()) Refuse(name_, "a count has nothing behind it");
        return words_[at_++];
    }
    std::size_t NextCount(std::size_t most) {
        const std::string_view word = Next();
        const auto count = text::WholeNumber(word);
        if (!count || *count < 0) Refuse(name_, "\"" + std::string(word) + "\" is no count");
        return static_cast<std::size_t>(
            std::min<std::int64_t>(*count, static_cast<std::int64_t>(most) + 1));
    }

  private:
    std::string_view name_;
    std::vector<std::string_view> words_;
    std::size_t at_ = 0;
};

/// A sign itself, or by its code: one digit is the digit.
std::string SignOf(std::string_view word, std::string_view name) {
    if (text::Length(word) == 1) return std::string(word);
    const auto code = text::WholeNumber(word);
    constexpr std::int64_t kLastCode = 0x10FFFF;
    constexpr std::int64_t kFirstSurrogate = 0xD800;
    constexpr std::int64_t kLastSurrogate = 0xDFFF;
    const bool isSurrogate = code && *code >= kFirstSurrogate && *code <= kLastSurrogate;
    if (!code || *code < 0 || *code > kLastCode || isSurrogate)
        Refuse(name, "\"" + std::string(word) + "\" is no sign and no code of one");
    std::string sign;
    text::AppendCodePoint(sign, static_cast<char32_t>(*code));
    return SafeText(sign);
}

}  // namespace

std::vector<std::string> DrawTemplate(std::string_view text, std::string_view name) {
    Words words(text, name);
    std::vector<std::string> lines;
    std::string line;
    while (!words.AtEnd()) {
        const std::size_t count = words.NextCount(kWidestTemplate);
        if (count == 0) {
            const std::size_t times = words.NextCount(kLongestTemplate);
            if (lines.size() + times > kLongestTemplate) Refuse(name, "it has too many lines");
            lines.insert(lines.end(), times, line);
            line.clear();
            continue;
        }
        const std::string sign = SignOf(words.Next(), name);
        if (text::Length(line) + count > kWidestTemplate) Refuse(name, "a line of it is too wide");
        for (std::size_t i = 0; i < count; ++i)
            line += sign;
    }
    return lines;
}

std::string TemplateWords(std::string_view text) {
    std::string words;
    const std::string lines = text::NormalizeLineEnds(text, "\n");
    for (const std::string_view line : text::Split(lines, "\n")) {
        if (line.starts_with('!')) continue;
        const std::string edited = text::StrEdit(line, "compress,trim");
        if (edited.empty()) continue;
        if (!words.empty()) words += ' ';
        words += edited;
    }
    return words;
}

std::vector<std::string> DrawTemplateFile(const std::filesystem::path& folder, const std::string& name) {
    const std::filesystem::path file = folder / (name + ".tpl");
    std::error_code error;
    if (!std::filesystem::exists(file, error)) throw Error(name + " is not available");
    const std::string text =
        platform::ReadWholeFile(file, kLargestTemplate, "read the template " + file.string());
    return DrawTemplate(TemplateWords(text), name);
}

std::vector<std::string> DrawTemplateRecord(store::Adventure& adventure, const std::string& name) {
    store::PreparedQuery row = adventure.Prepare(TableNum::Templates, "commands", "tempname=?");
    if (!row.First({std::string_view(name)})) throw Error(name + " is not available");
    if (row.Text(0).size() > kLargestTemplate) Refuse(name, "it is too large");
    return DrawTemplate(text::StrEdit(row.Text(0), "compress,trim"), name);
}

namespace {

/// A name with the extension of a file is that of a file.
std::vector<std::string> DrawNamed(store::Adventure& adventure, const std::string& name) {
    const std::filesystem::path path = name;
    if (!text::EqualsNoCase(path.extension().string(), ".tpl")) return DrawTemplateRecord(adventure, name);
    return DrawTemplateFile(path.parent_path(), path.stem().string());
}

}  // namespace

void WriteTemplates(const Listing& listing, const ReportRequest& request) {
    std::vector<std::string> names = request.names;
    if (names.empty()) {
        store::PreparedQuery rows = listing.adventure.Prepare(TableNum::Templates, "tempname", "");
        for (bool more = rows.First({}); more; more = rows.Next())
            names.emplace_back(rows.Text(0));
    }
    for (const std::string& name : names) {
        const std::vector<std::string> lines = DrawNamed(listing.adventure, name);
        listing.frame.Begin("Keypad Template " + name, {});
        for (const std::string& line : lines) {
            Record record;
            record.Row("%a", {line});
            listing.frame.Add(record.Take());
        }
    }
}

}  // namespace fabula::listings
