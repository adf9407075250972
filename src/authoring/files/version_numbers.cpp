#include "authoring/files/version_numbers.h"

#include <array>
#include <cstdio>
#include <fstream>
#include <sstream>
#include <system_error>

#include "platform/error.h"
#include "platform/whole_file.h"
#include "text/encoding/utf8.h"
#include "text/str_edit.h"

namespace fabula::authoring {
namespace {

using std::filesystem::path;

constexpr const char* kFileName = "VersionNumbers.dat";

struct ProgramRow {
    std::string_view name;
    const char* field;         ///< of `System`
    std::string_view changed;  ///< how the report begins
};

constexpr std::array<ProgramRow, 2> kPrograms{{
    {"FabulaIDE", "ideversion", "IDEVersion"},
    {"FabulaEngine", "engversion", "EngVersion"},
}};

const ProgramRow& ProgramRowOf(Program program) {
    return kPrograms[static_cast<std::size_t>(program)];
}

/// What can't be looked at lists nothing.
std::string ReadStart(const path& file) {
    try {
        return platform::ReadStartOfFile(file, kLargestVersionFile, "read " + file.string());
    } catch (const Error&) {
        return {};
    }
}

bool Lists(const std::string& content, std::string_view name, std::string_view version) {
    std::istringstream lines(content);
    for (std::string line; std::getline(lines, line);) {
        std::istringstream words(line);
        std::string listedName;
        std::string listedVersion;
        words >> listedName >> listedVersion;
        if (text::EqualsNoCase(listedName, name) && listedVersion == version) return true;
    }
    return false;
}

/// Whether a line can be added where it will be found again, and without waiting for a pipe's other end.
bool CanGrow(const path& file) {
    std::error_code error;  // what can't be looked at can't be written either
    const auto status = std::filesystem::status(file, error);
    if (!std::filesystem::exists(status)) return true;
    return std::filesystem::is_regular_file(status) &&
           std::filesystem::file_size(file, error) < kLargestVersionFile;
}

bool AddLine(const path& file, const std::string& line) {
    if (!CanGrow(file)) return false;
    const std::string before = ReadStart(file);
    const bool startsLine = before.empty() || before.ends_with('\n');
    std::ofstream stream(file, std::ios::binary | std::ios::app);
    stream << (startsLine ? "" : "\n") << line << "\n";
    stream.close();
    return stream.good();
}

std::string DateText(const platform::DateTime& date) {
    char shown[40];
    std::snprintf(shown, sizeof shown, "%04d-%02d-%02d", date.year, date.month, date.day);
    return shown;
}

}  // namespace

std::string_view NameOf(Program program) {
    return ProgramRowOf(program).name;
}

std::string NoteVersion(store::Adventure& adventure, Program program, std::string_view version) {
    const ProgramRow& row = ProgramRowOf(program);
    store::PreparedQuery known =
        adventure.Prepare(store::TableNum::Tables, "fieldname", "tablenum=30 and fieldname='Engversion'");
    const bool isKnown = known.First({});
    known.Reset();
    if (!isKnown) return {};
    store::Cursor& system = adventure.OpenTable(store::TableNum::System, "def");
    if (system.Eof()) return {};
    const std::string old(text::TrimBlanks(system.Text(row.field)));
    if (old == version) return {};
    system.SetField(row.field, std::string(version));
    system.Update();
    return std::string(row.changed) + " changed from " + (old.empty() ? "space" : old) + " to " +
           std::string(version);
}

std::string ListVersion(const std::vector<path>& folders, Program program, std::string_view version,
                        const platform::DateTime& today) {
    const std::string_view name = ProgramRowOf(program).name;
    for (const path& folder : folders) {
        if (Lists(ReadStart(folder / kFileName), name, version)) return {};
    }
    const std::string line = std::string(name) + " " + std::string(version) + " " + DateText(today);
    for (const path& folder : folders) {
        std::error_code error;  // a folder that can't be made can't be written either
        std::filesystem::create_directories(folder, error);
        if (!AddLine(folder / kFileName, line)) continue;
        return "Version " + std::string(version) + " added to VersionNumbers.dat.";
    }
    return "Could not add version " + std::string(version) +
           " to VersionNumbers.dat: no folder for it can be written.";
}

std::string VersionReport(const std::vector<std::string>& lines) {
    std::string report;
    for (const std::string& line : lines) {
        if (line.empty()) continue;
        if (!report.empty()) report += " ";
        report += line;
        if (!line.ends_with('.')) report += ".";
    }
    return report;
}

}  // namespace fabula::authoring
