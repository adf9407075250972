#include "packages/package_list.h"

#include <algorithm>
#include <utility>

#include "text/encoding/utf8.h"
#include "text/fields.h"
#include "text/str_edit.h"

namespace fabula::packages {
namespace {

using store::TableNum;

constexpr std::size_t kLongestPackage = 12;
constexpr const char* kIncluded = "X";

/// The order of the list.
constexpr std::string_view kTypes[] = {package_type::kDatabase, package_type::kGraphic,
                                       package_type::kEngine, package_type::kFile, package_type::kReadMe};

int RankOf(std::string_view type) {
    return static_cast<int>(std::find(std::begin(kTypes), std::end(kTypes), type) - std::begin(kTypes));
}

/// What two names of one file have in common: "pictures//A.png" and "pictures/a.png" are one in a zip.
std::string KeyOf(std::string_view name) {
    const std::optional<std::string> inZip = ZipName(name);
    return text::LowerCase(inZip ? *inZip : text::ReplaceAll(name, "\\", "/"));
}

}  // namespace

bool CanPackage(const store::Adventure& adventure) {
    const store::TableSchema& schema = adventure.Schema(TableNum::Package);
    for (const char* field : {"PkgInclude", "PkgType", "PkgName", "PkgPackage"}) {
        if (!schema.Find(field)) return false;
    }
    return true;
}

PackageList::PackageList(store::Adventure& adventure) : facts_(ReadFacts(adventure)) {
    for (PackageRow& row : Stored(adventure)) {
        const bool kept = row.type == package_type::kEngine || row.type == package_type::kFile;
        if (kept) Insert(std::move(row));
    }
    Add(package_type::kDatabase, adventure.CurrentFile().filename().string());
    if (!facts_.picturesInside) AddGraphics(adventure);
    Add(package_type::kReadMe, ReadMeName());
}

std::string PackageList::Package() const {
    return std::string(text::TrimBlanks(text::Left(facts_.Title(), kLongestPackage)));
}

std::vector<PackageRow> PackageList::Stored(store::Adventure& adventure) const {
    std::vector<PackageRow> rows;
    const std::string package = Package();
    store::Cursor& row = adventure.OpenTable(TableNum::Free22, "* from package");
    for (; !row.Eof(); row.MoveNext()) {
        if (row.Text("pkgpackage") != package) continue;
        rows.push_back({std::string(row.Text("pkgtype")), std::string(row.Text("pkgname")),
                        row.Text("pkginclude") == kIncluded});
    }
    return rows;
}

void PackageList::AddGraphics(store::Adventure& adventure) {
    Add(package_type::kGraphic, facts_.aboutPicture);
    Add(package_type::kGraphic, facts_.defaultPicture);
    struct Source {
        TableNum table;
        const char* field;
    };
    for (const Source& source : {Source{TableNum::Locations, "picloc"}, {TableNum::Pictures, "picname"}}) {
        const std::string filter = std::string(source.field) + "<>''";
        store::PreparedQuery names = adventure.Prepare(source.table, source.field, filter, "locnum");
        for (bool more = names.First({}); more; more = names.Next())
            Add(package_type::kGraphic, std::string(text::TrimBlanks(names.Text(0))));
    }
}

const PackageRow* PackageList::Find(std::string_view name) const {
    const std::string key = KeyOf(name);
    if (!keys_.contains(key)) return nullptr;
    const auto found = std::find_if(rows_.begin(), rows_.end(),
                                    [&](const PackageRow& row) { return KeyOf(row.name) == key; });
    return &*found;
}

bool PackageList::Add(std::string_view type, const std::string& name) {
    return !name.empty() && Insert({std::string(type), name, true});
}

bool PackageList::Insert(PackageRow row) {
    if (!keys_.insert(KeyOf(row.name)).second) return false;
    const auto behind =
        std::upper_bound(rows_.begin(), rows_.end(), RankOf(row.type),
                         [](int rank, const PackageRow& other) { return rank < RankOf(other.type); });
    rows_.insert(behind, std::move(row));
    return true;
}

void PackageList::RemoveRows(const std::function<bool(const PackageRow&)>& which) {
    std::erase_if(rows_, [&](const PackageRow& row) {
        if (!which(row)) return false;
        keys_.erase(KeyOf(row.name));
        return true;
    });
}

void PackageList::RemoveType(std::string_view type) {
    RemoveRows([&](const PackageRow& row) { return row.type == type; });
}

void PackageList::Remove(std::string_view name) {
    RemoveRows([key = KeyOf(name)](const PackageRow& row) { return KeyOf(row.name) == key; });
}

void PackageList::Store(store::Adventure& adventure) const {
    const auto ordered = [](std::vector<PackageRow> rows) {
        std::sort(rows.begin(), rows.end(), [](const PackageRow& a, const PackageRow& b) {
            return std::pair(a.type, a.name) < std::pair(b.type, b.name);
        });
        return rows;
    };
    if (ordered(Stored(adventure)) == ordered(rows_)) return;
    store::Transaction step(adventure);
    const std::string package = Package();
    adventure.DeleteFrom(TableNum::Package, "pkgpackage=" + store::QuoteText(package));
    store::Cursor& table = adventure.OpenTable(TableNum::Free22, "* from package");
    for (const PackageRow& row : rows_) {
        table.AddNew();
        table.SetField("pkgpackage", package);
        table.SetField("pkgname", row.name);
        table.SetField("pkgtype", row.type);
        table.SetField("pkginclude", std::string(row.included ? kIncluded : ""));
        table.Update();
    }
    step.Commit();
}

std::optional<std::string> ZipName(std::string_view stored) {
    const std::string slashes = text::ReplaceAll(stored, "\\", "/");
    if (!text::IsValidUtf8(slashes) || slashes.starts_with('/')) return std::nullopt;
    std::string name;
    for (const std::string_view piece : text::Split(slashes, "/")) {
        if (piece.empty() || piece == ".") continue;
        const bool drive = piece.find(':') != std::string_view::npos;
        const bool control = std::any_of(piece.begin(), piece.end(), [](char c) {
            return static_cast<unsigned char>(c) < ' ' || c == '\x7F';
        });
        if (piece == ".." || drive || control) return std::nullopt;
        if (!name.empty()) name += '/';
        name += piece;
    }
    return name.empty() ? std::nullopt : std::optional(name);
}

}  // namespace fabula::packages
