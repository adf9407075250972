#include "authoring/settings/settings_lists.h"

#include <algorithm>

#include "interchange/file_kinds.h"
#include "store/game_source.h"
#include "store/setup.h"

namespace fabula::authoring {
namespace {

using store::Adventure;
using store::TableNum;

constexpr int kChannels = 16;
constexpr int kUsualWidths[] = {32, 35, 40, 42, 51, 64, 72, 80, 100, 120, 132};

bool IsMarlo(std::string_view type) {
    return store::AdventureKindFrom(type) == store::AdventureKind::Marlo;
}

/// The codes that have a name in `field`, by number: "4-Georgia".
std::vector<ListItem> NamedCodes(Adventure& adventure, const std::string& field) {
    store::PreparedQuery row =
        adventure.Prepare(TableNum::Codes, "codenum, " + field, field + "<>''", "codenum");
    std::vector<ListItem> items;
    for (bool more = row.First({}); more; more = row.Next()) {
        const int code = static_cast<int>(row.Number(0));
        items.push_back({code, std::to_string(code) + "-" + std::string(row.Text(1))});
    }
    return items;
}

}  // namespace

std::vector<ListItem> FontItems(Adventure& adventure) {
    return NamedCodes(adventure, "fontname");
}

std::vector<ListItem> VoiceItems(Adventure& adventure) {
    return NamedCodes(adventure, "voicename");
}

std::vector<ListItem> CharSetItems(Adventure& adventure) {
    store::PreparedQuery row = adventure.Prepare(TableNum::Characters, "charsetnum, charset, charsetname",
                                                 "charnum=70", "charsetnum");
    std::vector<ListItem> items;
    for (bool more = row.First({}); more; more = row.Next()) {
        items.push_back(
            {static_cast<int>(row.Number(0)), std::string(row.Text(1)) + " - " + std::string(row.Text(2))});
    }
    return items;
}

std::vector<ListItem> FontSizeItems(Adventure& adventure) {
    store::PreparedQuery row =
        adventure.Prepare(TableNum::Codes, "codenum", "codenum=fontsize and fontsize<=20", "codenum");
    std::vector<ListItem> items;
    for (bool more = row.First({}); more; more = row.Next()) {
        const int code = static_cast<int>(row.Number(0));
        items.push_back({code, std::to_string(code)});
    }
    return items;
}

std::vector<ListItem> ChannelItems() {
    std::vector<ListItem> items;
    for (int channel = 0; channel < kChannels; ++channel)
        items.push_back({channel, (channel < 10 ? " " : "") + std::to_string(channel)});
    return items;
}

std::vector<ListItem> PrintWidthItems(int present) {
    std::vector<int> widths(std::begin(kUsualWidths), std::end(kUsualWidths));
    if (std::find(widths.begin(), widths.end(), present) == widths.end()) widths.push_back(present);
    std::sort(widths.begin(), widths.end());
    std::vector<ListItem> items;
    for (const int width : widths)
        items.push_back({width, std::to_string(width)});
    return items;
}

std::vector<ListItem> SourceItems() {
    const auto kinds = interchange::FileKinds();
    const int last = static_cast<int>(kinds.size()) + 1;
    std::vector<ListItem> items{{0, std::string(store::kNewSource)},
                                {last, std::string(kUnknownSourceShown)}};
    for (const interchange::FileKind& kind : kinds)
        items.push_back({kind.settings.sourceRow, std::string(kind.settings.source)});
    std::ranges::sort(items, {}, &ListItem::number);
    return items;
}

std::vector<ListItem> TypeItems(std::string_view present) {
    using store::AdventureKind;
    const auto item = [](AdventureKind kind) {
        return ListItem{static_cast<int>(kind), std::string(store::NameOf(kind))};
    };
    if (IsMarlo(present)) return {item(AdventureKind::Marlo)};
    return {item(AdventureKind::Vel), item(AdventureKind::Fabula)};
}

std::string_view TypeNote(std::string_view present) {
    return IsMarlo(present) ? "Marlo games may not be changed to VEL"
                            : "VEL && Fabula games may not be changed to Marlo";
}

std::vector<ListItem> DeviceItems(const std::vector<std::string>& devices) {
    std::vector<ListItem> items{{0, std::string(kMidiMapper)}};
    for (const std::string& device : devices)
        items.push_back({static_cast<int>(items.size()) - 1, device});
    return items;
}

}  // namespace fabula::authoring
