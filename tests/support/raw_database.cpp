#include "support/raw_database.h"

#include <fstream>
#include <sstream>
#include <stdexcept>
#include <utility>

#include <sqlite3.h>
#include <strings.h>

namespace fabula::test {
namespace {

/// Close enough to the order of the store's indexes for texts in ASCII.
int CompareNoCase(void*, int leftLength, const void* left, int rightLength, const void* right) {
    const std::string first(static_cast<const char*>(left), static_cast<std::size_t>(leftLength));
    const std::string second(static_cast<const char*>(right), static_cast<std::size_t>(rightLength));
    return strcasecmp(first.c_str(), second.c_str());
}

}  // namespace

RawDatabase::RawDatabase(const std::filesystem::path& file) {
    if (sqlite3_open(file.c_str(), &handle_) != SQLITE_OK) {
        const std::string why = sqlite3_errmsg(handle_);
        sqlite3_close(handle_);
        throw std::runtime_error(why);
    }
    sqlite3_create_collation(handle_, "fabula_nocase", SQLITE_UTF8, nullptr, CompareNoCase);
}

RawDatabase::~RawDatabase() {
    sqlite3_close_v2(handle_);
}

void RawDatabase::Run(const std::string& sql) const {
    if (sqlite3_exec(handle_, sql.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK) {
        throw std::runtime_error(sqlite3_errmsg(handle_));
    }
}

std::string RawDatabase::Ask(const std::string& sql) const {
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v2(handle_, sql.c_str(), -1, &statement, nullptr) != SQLITE_OK) {
        throw std::runtime_error(sqlite3_errmsg(handle_));
    }
    std::string answer;
    if (sqlite3_step(statement) == SQLITE_ROW) {
        const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, 0));
        if (text) answer = text;
    }
    sqlite3_finalize(statement);
    return answer;
}

std::string ReadBytes(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    if (!stream) throw std::runtime_error("could not read " + file.string());
    std::ostringstream bytes;
    bytes << stream.rdbuf();
    if (stream.bad()) throw std::runtime_error("could not read " + file.string());
    return std::move(bytes).str();
}

void WriteBytes(const std::filesystem::path& file, const std::string& bytes) {
    std::ofstream stream(file, std::ios::binary | std::ios::trunc);
    stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    stream.close();
    if (!stream) throw std::runtime_error("could not write " + file.string());
}

}  // namespace fabula::test
