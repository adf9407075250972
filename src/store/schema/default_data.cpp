#include "store/schema/default_data.h"

#include <algorithm>

#include "platform/error.h"
#include "platform/whole_file.h"
#include "text/fields.h"
#include "text/str_edit.h"

namespace fabula::store {
namespace {

struct MarkerRow {
    std::string_view marker;
    std::string_view edit;  ///< the keyword that decodes a line
};

constexpr MarkerRow kMarkers[] = {
    {"SCRAMBLED", "unscramble"},
    {"SCRAMBLECED", "unscramblec"},
    {"ENCODED", "unscramblec"},
    {"CRYPTED", "uncrypt"},
};

constexpr std::string_view kInfoSection = "INFO";

std::string_view EditFor(std::string_view marker) {
    for (const MarkerRow& row : kMarkers) {
        if (row.marker == marker) return row.edit;
    }
    return {};
}

std::string ReadBytes(const std::filesystem::path& file) {
    return platform::ReadWholeFile(file, kLargestDefaultData, "read the default data " + file.string());
}

/// Takes the next line off `rest`, with its end, and gives it without.
std::string_view TakeLine(std::string_view& rest) {
    const std::size_t end = std::min(rest.find('\n'), rest.size());
    std::string_view line = rest.substr(0, end);
    rest.remove_prefix(std::min(end + 1, rest.size()));
    if (line.ends_with('\r')) line.remove_suffix(1);
    return line;
}

}  // namespace

DefaultData DefaultData::Read(const std::filesystem::path& file) {
    DefaultData data;
    data.file_ = file;
    Section* section = nullptr;
    std::string name;
    const std::string bytes = ReadBytes(file);
    std::string_view rest = bytes;
    const std::string_view edit = EditFor(text::StrEdit(TakeLine(rest), "trim"));
    for (int number = 2; !rest.empty(); ++number) {
        const std::string_view stored = TakeLine(rest);
        Line line{number, edit.empty() ? std::string(stored) : text::StrEdit(stored, edit)};
        const bool isMark = line.text.starts_with("::");
        if (!section) {
            if (!isMark) continue;
            name = line.text.substr(2);
            const auto [place, isNew] = data.sections_.try_emplace(name);
            if (!isNew) data.Malformed(name, line, "the section stands there twice");
            section = &place->second;
        } else if (line.text == "::END") {
            section = nullptr;
        } else if (isMark) {
            data.Malformed(name, line, "the section has no end");
        } else {
            section->push_back(std::move(line));
        }
    }
    if (section)
        throw Error("The default data " + file.string() + " has no end to its section ::" + name + ".");
    for (const Line& line : data.Lines(kInfoSection)) {
        const std::size_t sign = line.text.find('=');
        if (sign == std::string::npos) data.Malformed(kInfoSection, line, "there is no '='");
        data.info_[line.text.substr(0, sign)] = line.text.substr(sign + 1);
    }
    if (data.Info("Delimiter").empty())
        throw Error("The default data " + file.string() + " names no delimiter.");
    return data;
}

const std::string& DefaultData::Info(std::string_view key) const {
    const auto found = info_.find(key);
    if (found == info_.end()) {
        throw Error("The default data " + file_.string() + " has no '" + std::string(key) + "' in ::INFO.");
    }
    return found->second;
}

bool DefaultData::Has(std::string_view section) const {
    return sections_.contains(section);
}

const DefaultData::Section& DefaultData::Lines(std::string_view section) const {
    const auto found = sections_.find(section);
    if (found == sections_.end()) {
        throw Error("The default data " + file_.string() + " has no section ::" + std::string(section) +
                    ".");
    }
    return found->second;
}

std::vector<std::string> DefaultData::Columns(std::string_view section, const Line& row,
                                              std::size_t least) const {
    std::vector<std::string> columns;
    for (const std::string_view column : text::Split(row.text, Info("Delimiter")))
        columns.emplace_back(column);
    if (columns.size() < least) Malformed(section, row, "it has too few columns");
    return columns;
}

void DefaultData::Malformed(std::string_view section, const Line& line, const std::string& why) const {
    throw Error("The default data " + file_.string() + " is wrong in section ::" + std::string(section) +
                " at line " + std::to_string(line.number) + ": " + why + ".");
}

}  // namespace fabula::store
