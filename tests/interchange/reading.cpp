#include "reading.h"

#include <algorithm>
#include <fstream>
#include <iterator>

#include <gtest/gtest.h>

namespace fabula::interchange {
namespace {

store::AdventureKind KindFor(std::string_view kind, const std::string& source) {
    const bool isMarlo = source.find("Marlo Database") != std::string::npos;
    if (kind == "unmarlo" || (kind == "unvel" && isMarlo)) return store::AdventureKind::Marlo;
    return kind == "pcvel" || kind == "unvel" ? store::AdventureKind::Vel : store::AdventureKind::Fabula;
}

}  // namespace

bool ReadInto(store::Adventure& adventure, std::string_view kind, const std::filesystem::path& source,
              JobStatus& status) {
    platform::ScriptedPerson person;
    ImportContext context{source, adventure, person, status};
    store::Transaction transaction(adventure);
    const bool ok = FindFileKind(kind)->read(context);
    transaction.Commit();
    return ok;
}

Reading::Reading(std::string_view kind, const std::string& source) : adventure_(KindFor(kind, source)) {
    const FileKind& fileKind = *FindFileKind(kind);
    const std::filesystem::path file =
        adventure_.Folder().Path() / ("game" + std::string(fileKind.extension));
    std::ofstream(file, std::ios::binary) << source;
    NoObserver nobody;
    JobStatus jobStatus(nobody);
    ImportContext context{file, *adventure_, person, jobStatus};
    store::Transaction transaction(*adventure_);
    ok = fileKind.read(context);
    transaction.Commit();
    status = jobStatus.Text();
    faults = jobStatus.Faults();
    for (const Fault& fault : jobStatus.AllFaults()) {
        const std::string entry = fault.entry.empty() ? "" : fault.entry + ": ";
        allFaults.push_back(std::to_string(fault.place->line) + ":" + std::to_string(fault.place->column) +
                            " " + entry + fault.message);
    }
}

store::Cursor& Reading::Record(store::TableNum table, const char* where) const {
    store::Cursor& record = adventure_->OpenTable(table, "def", where);
    EXPECT_GE(record.RecordCount(), 1) << "no record where " << where << "\n" << status;
    return record;
}

std::string Reading::Text(store::TableNum table, const char* where, const char* field) const {
    store::Cursor& record = Record(table, where);
    return record.Eof() ? "no record" : std::string(record.Text(field));
}

std::int64_t Reading::Number(store::TableNum table, const char* where, const char* field) const {
    store::Cursor& record = Record(table, where);
    return record.Eof() ? -1 : record.Number(field);
}

int Reading::Count(store::TableNum table, const char* where) const {
    return adventure_->OpenTable(table, "def", where).RecordCount();
}

bool Reading::Told(std::string_view line) const {
    return ("\n" + status).find("\n" + std::string(line) + "\n") != std::string::npos ||
           std::any_of(allFaults.begin(), allFaults.end(),
                       [&](const std::string& fault) { return fault.ends_with(" " + std::string(line)); });
}

bool Reading::ToldAt(int line, std::string_view message) const {
    const std::string start = std::to_string(line) + ":";
    return std::any_of(allFaults.begin(), allFaults.end(), [&](const std::string& fault) {
        return fault.starts_with(start) && fault.ends_with(" " + std::string(message));
    });
}

std::string Written(store::Adventure& adventure, std::string_view kind, std::string* status) {
    const test::TempFolder folder;
    platform::ScriptedPerson person;
    NoObserver nobody;
    JobStatus jobStatus(nobody);
    ExportContext context{adventure, folder / "out", person, jobStatus};
    const bool ok = FindFileKind(kind)->write(context);
    if (status != nullptr) *status = jobStatus.Text();
    if (!ok) return "";
    std::ifstream file(folder / "out", std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

std::string PcSource(const std::string& vocabulary, const std::string& sections) {
    return "/CTL\n_\n/VOC\n" + vocabulary + sections;
}

}  // namespace fabula::interchange
