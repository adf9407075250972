#include "reading.h"

#include <fstream>
#include <iterator>

#include <gtest/gtest.h>

namespace fabula::interchange {
namespace {

store::AdventureKind KindFor(std::string_view kind) {
    return kind == "pcvel" ? store::AdventureKind::Vel : store::AdventureKind::Fabula;
}

}  // namespace

bool ReadInto(store::Adventure& adventure, std::string_view kind, const std::filesystem::path& source,
              JobStatus& status) {
    platform::ScriptedOperator person;
    ImportContext context{source, adventure, person, status};
    store::Transaction transaction(adventure);
    const bool ok = FindFileKind(kind)->read(context);
    transaction.Commit();
    return ok;
}

Reading::Reading(std::string_view kind, const std::string& source) : adventure_(KindFor(kind)) {
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
    return ("\n" + status).find("\n" + std::string(line) + "\n") != std::string::npos;
}

std::string Written(store::Adventure& adventure, std::string_view kind, std::string* status) {
    const test::TempFolder folder;
    platform::ScriptedOperator person;
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
