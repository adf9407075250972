#include "player/window/player_settings.h"

#include <QSettings>
#include <algorithm>
#include <array>

#include "qt/strings.h"

namespace fabula::player {

namespace {

constexpr std::array kZooms = {kSmallestZoom, 60,  75,  90,  100, 110,         125,
                               150,           175, 200, 250, 300, kLargestZoom};

int Number(const QSettings& store, const char* key, int smallest, int largest, int otherwise) {
    bool read = false;
    const int value = store.value(key, otherwise).toInt(&read);
    return read && value >= smallest && value <= largest ? value : otherwise;
}

/// 0 stands for what the game has.
int NumberOrNone(const QSettings& store, const char* key, int smallest, int largest) {
    return Number(store, key, smallest, largest, 0);
}

/// "MRUFiles" is the authoring tool's list; programs of before kept the games there too.
constexpr const char* kRecent = "PlayedFiles";
constexpr const char* kRecentOfBefore = "MRUFiles";

QString RecentKey(const char* section, std::size_t place) {
    return QStringLiteral("%1/%2").arg(section).arg(place + 1);
}

}  // namespace

ScreenLook PlayerSettings::Look() const {
    Page page = Page::OfTheGame;
    const bool byTheme = colours == Colours::ByTheme;
    if (colours == Colours::Light || (byTheme && theme == qt::Theme::Light)) page = Page::Light;
    if (colours == Colours::Dark || (byTheme && theme == qt::Theme::Dark)) page = Page::Dark;
    return {.zoom = zoom,
            .characterZoom = characterZoom,
            .page = page,
            .flashing = flashing,
            .plainText = plainText,
            .text = text};
}

PlayerSettings PlayerSettings::Load(const QSettings& store) {
    PlayerSettings settings;
    settings.geometry = store.value("Startup/Geometry").toByteArray();
    settings.theme = qt::ThemeFrom(qt::FromQt(store.value("Startup/Theme").toString()));
    settings.zoom = Number(store, "Startup/Zoom", kSmallestZoom, kLargestZoom, settings.zoom);
    settings.characterZoom =
        Number(store, "Startup/CharacterZoom", -kMostCharacterZoom, kMostCharacterZoom, 0);
    settings.flashing = store.value("Startup/Flashing", settings.flashing).toBool();
    settings.plainText = store.value("Startup/PlainText", settings.plainText).toBool();
    settings.text.family = store.value("Startup/Font").toString();
    settings.text.points = NumberOrNone(store, "Startup/FontSize", kLeastPoints, kMostPoints);
    settings.text.columns = NumberOrNone(store, "Startup/LineWidth", kLeastColumns, kMostColumns);
    settings.text.lines =
        Number(store, "Startup/KeptLines", kLeastLines, kMostLines, TextChoice::kDefaultLines);
    settings.colours =
        static_cast<Colours>(Number(store, "Startup/Colours", 0, static_cast<int>(Colours::Dark), 0));
    settings.sound.device = qt::FromQt(store.value("Startup/SoundDevice").toString());
    settings.sound.volume = Number(store, "Startup/Volume", 0, 100, settings.sound.volume);
    const bool isKept = store.childGroups().contains(kRecent);
    std::vector<std::filesystem::path> recent;
    for (std::size_t place = 0; place < platform::RecentFiles::kMostFiles; ++place) {
        const QString file = store.value(RecentKey(isKept ? kRecent : kRecentOfBefore, place)).toString();
        if (!file.isEmpty()) recent.push_back(qt::PathFromQt(file));
    }
    settings.recent = platform::RecentFiles(recent);
    return settings;
}

void PlayerSettings::Save(QSettings& store) const {
    store.setValue("Startup/Geometry", geometry);
    store.setValue("Startup/Theme", QString::fromUtf8(NameOf(theme)));
    store.setValue("Startup/Zoom", zoom);
    store.setValue("Startup/CharacterZoom", characterZoom);
    store.setValue("Startup/Flashing", flashing);
    store.setValue("Startup/PlainText", plainText);
    store.setValue("Startup/Font", text.family);
    store.setValue("Startup/FontSize", text.points);
    store.setValue("Startup/LineWidth", text.columns);
    store.setValue("Startup/KeptLines", text.lines);
    store.setValue("Startup/Colours", static_cast<int>(colours));
    store.setValue("Startup/SoundDevice", qt::ToQt(sound.device));
    store.setValue("Startup/Volume", sound.volume);
    store.remove(kRecent);
    for (std::size_t place = 0; place < recent.Files().size(); ++place)
        store.setValue(RecentKey(kRecent, place), qt::PathToQt(recent.Files()[place]));
}

int NextZoom(int percent, int direction) {
    if (direction > 0) {
        const auto larger = std::upper_bound(kZooms.begin(), kZooms.end(), percent);
        return larger == kZooms.end() ? percent : *larger;
    }
    const auto smaller = std::lower_bound(kZooms.begin(), kZooms.end(), percent);
    return smaller == kZooms.begin() ? percent : *(smaller - 1);
}

}  // namespace fabula::player
