#include "interchange/unvel/unvel_head.h"

#include <algorithm>
#include <iterator>

#include "interchange/shared/source_file.h"
#include "text/encoding/utf8.h"
#include "text/str_edit.h"

namespace fabula::interchange {
namespace {

struct VersionRow {
    std::string_view ending;  ///< the last 8 characters of the line
    int versionClass;
};
constexpr VersionRow kVersions[] = {
    {"0.1 Beta", 1}, {"on 2.0.0", 1},                                    // the first
    {"VELS 1.0", 2}, {"on 2.1.0", 2},                                    // with characters
    {"ELS v1.1", 3}, {"S32 v1.1", 3}, {"on 2.2.0", 3}, {"on 4.0.0", 3},  //
    {"v2.0beta", 4}, {"ELS v2.0", 4}, {"S32 v2.0", 4}, {"ELS v2.1", 4}, {"S32 v2.1", 4}, {"on 5.0.0", 4},
};
constexpr std::size_t kEndingLength = 8;
constexpr int kFirstForMarlo = 4;
constexpr int kFirstForVel = 2;
constexpr std::size_t kLongestHeadShown = 200;

constexpr const char* kTooOldForMarlo =
    "This version of UnVels is < 2.0. It is not compatible with Fabula 4.0 and Marlo snapshots. It does "
    "not support characters and Graphics correctly.";
constexpr const char* kTooOldForVel =
    "This version of UnVels is < 1.0. It is not compatible with Fabula 4.0 and Vel snapshots. It does not "
    "support characters and Graphics correctly.";

/// What follows the colon of a line "VEL Database: NAME", with or without a blank before the colon.
std::optional<std::string> NameBehind(std::string_view line, std::string_view label) {
    if (!line.starts_with(label)) return std::nullopt;
    line.remove_prefix(label.size());
    if (line.starts_with(' ')) line.remove_prefix(1);
    if (!line.starts_with(':')) return std::nullopt;
    return std::string(text::TrimBlanks(line.substr(1)));
}

std::optional<UnVelHead> HeadIn(std::string_view line) {
    if (const auto name = NameBehind(line, kVelDatabase)) return UnVelHead{false, *name};
    if (const auto name = NameBehind(line, kMarloDatabase)) return UnVelHead{true, *name};
    return std::nullopt;
}

std::optional<int> ClassOf(std::string_view line) {
    const std::string_view ending = text::Right(text::TrimBlanks(line), kEndingLength);
    for (const VersionRow& row : kVersions) {
        if (row.ending == ending) return row.versionClass;
    }
    return std::nullopt;
}

bool IsVersionLine(const std::string* line) {
    return line != nullptr && std::find(std::begin(kUnVelVersions), std::end(kUnVelVersions),
                                        TrimRight(*line)) != std::end(kUnVelVersions);
}

/// Refuses what was extracted by a program that is unknown or too old. What this system has written it can
/// read, whatever form it was written in.
bool AcceptVersion(const std::string& line, bool isMarlo, ListingLines& lines, platform::Person& person) {
    if (line.starts_with(kOwnExtract) && IsVersionLine(lines.Peek())) {
        std::string version;
        lines.Next(version);
        return true;
    }
    const std::optional<int> versionClass = ClassOf(line);
    if (!versionClass) {
        person.Tell("Incorrect version of UnVels. Let the makers of Fabula know about '" +
                        std::string(text::Left(line, kLongestHeadShown)) + "'",
                    "Error");
        return false;
    }
    if (*versionClass >= (isMarlo ? kFirstForMarlo : kFirstForVel)) return true;
    person.Tell(isMarlo ? kTooOldForMarlo : kTooOldForVel, "Error");
    return false;
}

}  // namespace

std::optional<UnVelHead> ReadUnVelHead(ListingLines& lines, platform::Person& person) {
    std::optional<UnVelHead> head;
    std::string line;
    while (!head && lines.Next(line))
        head = HeadIn(line);
    if (!head) {
        person.Tell("Not an UnVEL file", "Error");
        return std::nullopt;
    }
    while (lines.Next(line)) {
        if (line.starts_with(kExtracted))
            return AcceptVersion(line, head->isMarlo, lines, person) ? head : std::nullopt;
    }
    person.Tell("Not an UnVEL file", "Error");
    return std::nullopt;
}

store::AdventureSetup SetupOfUnVel(const std::filesystem::path& listing) {
    store::AdventureSetup setup;
    setup.ChooseType(store::AdventureKind::Vel);
    SourceFile file(listing);
    for (std::string line; file.Next(line);) {
        const auto head = HeadIn(line);
        if (!head) continue;
        if (head->isMarlo) setup.ChooseType(store::AdventureKind::Marlo);
        break;
    }
    return setup;
}

}  // namespace fabula::interchange
