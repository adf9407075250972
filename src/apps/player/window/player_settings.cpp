#include "player/window/player_settings.h"

#include <QSettings>
#include <QVariant>
#include <algorithm>
#include <array>
#include <vector>

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

platform::RecentFiles ReadRecent(const QSettings& store) {
    const bool isKept = store.childGroups().contains(kRecent);
    std::vector<std::filesystem::path> recent;
    for (std::size_t place = 0; place < platform::RecentFiles::kMostFiles; ++place) {
        const QString file = store.value(RecentKey(isKept ? kRecent : kRecentOfBefore, place)).toString();
        if (!file.isEmpty()) recent.push_back(qt::PathFromQt(file));
    }
    return platform::RecentFiles(recent);
}

/// What one window has done to its list, `before`, is done to the list as others have left it: one game
/// came to the top, or some were taken out.
platform::RecentFiles Merged(platform::RecentFiles others, const platform::RecentFiles& before,
                             const platform::RecentFiles& now) {
    const auto& files = now.Files();
    if (files.size() >= before.Files().size()) {
        others.AddMRUItem(files.front());
        return others;
    }
    for (const std::filesystem::path& file : before.Files()) {
        if (std::find(files.begin(), files.end(), file) == files.end()) others.Remove(file);
    }
    return others;
}

struct KeptValue {
    const char* key;
    QVariant value;
};

/// All but the recent games.
std::vector<KeptValue> ValuesOf(const PlayerSettings& settings) {
    return {
        {"Startup/Geometry", settings.geometry},
        {"Startup/Theme", QString::fromUtf8(NameOf(settings.theme))},
        {"Startup/Zoom", settings.zoom},
        {"Startup/CharacterZoom", settings.characterZoom},
        {"Startup/Flashing", settings.flashing},
        {"Startup/PlainText", settings.plainText},
        {"Startup/Font", settings.text.family},
        {"Startup/FontSize", settings.text.points},
        {"Startup/LineWidth", settings.text.columns},
        {"Startup/KeptLines", settings.text.lines},
        {"Startup/Colours", static_cast<int>(settings.colours)},
        {"Startup/SoundDevice", qt::ToQt(settings.sound.device)},
        {"Startup/Volume", settings.sound.volume},
    };
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
    settings.text.lines = Number(store, "Startup/KeptLines", kLeastLines, kMostLines, kDefaultKeptLines);
    settings.colours =
        static_cast<Colours>(Number(store, "Startup/Colours", 0, static_cast<int>(Colours::Dark), 0));
    settings.sound.device = qt::FromQt(store.value("Startup/SoundDevice").toString());
    settings.sound.volume = Number(store, "Startup/Volume", 0, 100, settings.sound.volume);
    settings.recent = ReadRecent(store);
    return settings;
}

void PlayerSettings::KeepChanges(QSettings& store, PlayerSettings& kept) {
    const std::vector<KeptValue> before = ValuesOf(kept);
    const std::vector<KeptValue> now = ValuesOf(*this);
    for (std::size_t i = 0; i < now.size(); ++i) {
        if (now[i].value != before[i].value) store.setValue(now[i].key, now[i].value);
    }
    if (recent.Files() != kept.recent.Files()) {
        store.sync();  // reads what another program has written
        recent = Merged(ReadRecent(store), kept.recent, recent);
        store.remove(kRecent);
        for (std::size_t place = 0; place < recent.Files().size(); ++place)
            store.setValue(RecentKey(kRecent, place), qt::PathToQt(recent.Files()[place]));
    }
    kept = *this;
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
