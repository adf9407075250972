#include <optional>

#include "authoring/batch/batch_work.h"
#include "authoring/settings/settings_screen.h"
#include "condacts/limits.h"
#include "text/encoding/utf8.h"
#include "text/numbers.h"
#include "text/str_edit.h"

// The one record of the settings.

namespace fabula::authoring {
namespace {

struct TextSetting {
    std::string_view field;
    std::string SettingsScreen::*text;
};
constexpr TextSetting kTexts[] = {
    {"advname", &SettingsScreen::name},
    {"savename", &SettingsScreen::saveName},
    {"author", &SettingsScreen::author},
    {"version", &SettingsScreen::version},
    {"maxobj", &SettingsScreen::maxObjects},
    {"maxweight", &SettingsScreen::maxWeight},
    {"advdesc", &SettingsScreen::description},
    {"advcontactinfo", &SettingsScreen::contactInfo},
    {"defpicloc", &SettingsScreen::defaultPicture},
    {"advpicloc", &SettingsScreen::aboutPicture},
};

struct NumberSetting {
    std::string_view field;
    int SettingsScreen::*number;
    int most;
};
constexpr NumberSetting kNumbers[] = {
    {"backcolor", &SettingsScreen::paper, condacts::limit::kHighestColour},
    {"textcolor", &SettingsScreen::ink, condacts::limit::kHighestColour},
    {"defsndvol", &SettingsScreen::volume, SettingsScreen::kLoudest},
    {"defsndbal", &SettingsScreen::balance, SettingsScreen::kLoudest},
    {"defsndbass", &SettingsScreen::bass, SettingsScreen::kLoudest},
};

struct ListSetting {
    std::string_view field;
    DropList SettingsScreen::*list;
};
constexpr ListSetting kLists[] = {
    {"font", &SettingsScreen::font},
    {"fontsize", &SettingsScreen::fontSize},
    {"defsndchan", &SettingsScreen::channel},
    {"defsndvoice", &SettingsScreen::voice},
    {"defprintwidth", &SettingsScreen::printWidth},
};

struct SwitchSetting {
    std::string_view field;
    bool SettingsScreen::*on;
};
constexpr SwitchSetting kSwitches[] = {
    {"graphics", &SettingsScreen::graphics},
    {"sound", &SettingsScreen::sound},
};

bool NotOffered(const BatchChange& change, std::string_view field, std::string_view typed) {
    return change.Refuse(field, "The settings do not offer the value " + std::string(typed));
}

std::optional<bool> TruthOf(std::string_view typed) {
    if (text::EqualsNoCase(typed, "true")) return true;
    if (text::EqualsNoCase(typed, "false")) return false;
    return std::nullopt;
}

bool PutNumbers(const BatchChange& change, SettingsScreen& screen) {
    for (const NumberSetting& each : kNumbers) {
        const auto typed = change.Text(each.field);
        if (!typed) continue;
        const auto number = text::WholeNumber(text::TrimBlanks(*typed));
        if (!number || *number < 0 || *number > each.most) return NotOffered(change, each.field, *typed);
        screen.*each.number = static_cast<int>(*number);
    }
    return true;
}

bool PutSwitches(const BatchChange& change, SettingsScreen& screen) {
    for (const SwitchSetting& each : kSwitches) {
        const auto typed = change.Text(each.field);
        if (!typed) continue;
        const auto on = TruthOf(text::TrimBlanks(*typed));
        if (!on) return NotOffered(change, each.field, *typed);
        screen.*each.on = *on;
    }
    const auto typed = change.Text("charsets");
    if (!typed) return true;
    const auto on = TruthOf(text::TrimBlanks(*typed));
    if (!on) return NotOffered(change, "charsets", *typed);
    screen.ClickCharSets(*on);
    return true;
}

/// Fonts and sets have lists of their own, so that character sets are switched before.
bool PutLists(const BatchChange& change, SettingsScreen& screen) {
    for (const ListSetting& each : kLists) {
        const auto typed = change.Text(each.field);
        if (!typed) continue;
        const auto number = text::WholeNumber(text::TrimBlanks(*typed));
        DropList& list = screen.*each.list;
        list.index = -1;
        for (std::size_t i = 0; number && i < list.items.size(); ++i) {
            if (list.items[i].number == *number) list.index = static_cast<int>(i);
        }
        if (list.index < 0) return NotOffered(change, each.field, *typed);
    }
    const auto type = change.Text("adventype");
    if (type) screen.type.ChooseText(std::string(text::TrimBlanks(*type)));
    return !type || screen.type.Chosen() != nullptr || NotOffered(change, "adventype", *type);
}

/// A device need not be one of this system.
bool PutDevice(const BatchChange& change, SettingsScreen& screen) {
    if (!change.Has("defsnddev") && !change.Has("defsnddevname")) return true;
    ListItem device = screen.device.Chosen() ? *screen.device.Chosen() : ListItem{};
    if (const auto name = change.Text("defsnddevname")) device.text = *name;
    if (const auto typed = change.Text("defsnddev")) {
        const auto number = text::WholeNumber(text::TrimBlanks(*typed));
        if (!number || *number < -1 || *number > SettingsScreen::kMostWeight)
            return NotOffered(change, "defsnddev", *typed);
        device.number = static_cast<int>(*number);
    }
    screen.device.items.push_back(device);
    screen.device.index = static_cast<int>(screen.device.items.size()) - 1;
    return true;
}

}  // namespace

bool StoreSettings(BatchWork& work, const BatchChange& change) {
    if (change.Has("datecreated")) return change.Refuse("datecreated", "This setting cannot be edited.");
    SettingsScreen screen(work.context);
    for (const TextSetting& each : kTexts) {
        if (auto typed = change.Text(each.field)) screen.*each.text = std::move(*typed);
    }
    if (auto start = change.Text("startloc")) screen.startPlace.text = std::move(*start);
    if (!CheckPictureFile(work, change, "defpicloc") || !CheckPictureFile(work, change, "advpicloc") ||
        !PutNumbers(change, screen) || !PutSwitches(change, screen) || !PutLists(change, screen) ||
        !PutDevice(change, screen))
        return false;
    if (screen.Update()) return true;
    return change.RefuseAt(work.dialogs, screen.Refused(),
                           {{"name", "advname"},
                            {"author", "author"},
                            {"saveName", "savename"},
                            {"version", "version"},
                            {"startPlace", "startloc"},
                            {"maxObjects", "maxobj"},
                            {"maxWeight", "maxweight"},
                            {"font", "font"},
                            {"fontSize", "fontsize"},
                            {"description", "advdesc"},
                            {"contactInfo", "advcontactinfo"}});
}

}  // namespace fabula::authoring
