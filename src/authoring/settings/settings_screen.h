#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "authoring/fields/controls.h"
#include "authoring/fields/edit_screen.h"
#include "condacts/numbers.h"
#include "engine/sound_player.h"
#include "store/query/cursor.h"
#include "store/schema/schema.h"

namespace fabula::authoring {

/// The pages of the settings' screen.
enum class SettingsPage { Adventure, Sound, Source };

/// How a game's text looks with the settings as they are chosen.
struct FontSample {
    std::string fontName;        ///< kMissingFont when no font is chosen
    std::optional<int> charSet;  ///< the set that takes the font's place where character sets are on
    int points = 0;
    int paper = 0;
    int ink = 0;

    friend bool operator==(const FontSample&, const FontSample&) = default;
};

/// The screen of the settings, the one record of the adventure itself. It is open in one copy at a time.
///
/// A list in which nothing is chosen leaves its field as it is, where no check asks for a choice. What an
/// Update asks for beyond the record itself, such as copies of pictures, is done by `FollowSettings`.
class SettingsScreen final : public EditScreen {
  public:
    /// `soundDevices` are the system's MIDI devices, by number. Throws Error when the settings can't be
    /// read.
    explicit SettingsScreen(ScreenContext& context, const std::vector<std::string>& soundDevices = {});

    static constexpr std::string_view kCaption = "Adventure Settings Editor";

    SettingsPage page = SettingsPage::Adventure;  ///< the one that is shown

    // --- Adventure Settings ---
    std::string name;
    std::string author;
    std::string saveName;
    std::string version;
    DropList type;
    ComboBox startPlace;  ///< the locations; `text` is a number
    std::string maxObjects;
    std::string maxWeight;
    DropList printWidth;
    int paper = 0;  ///< 0 to 15
    int ink = 0;
    DropList font;  ///< fonts or, while `charSets` is set, character sets
    DropList fontSize;
    bool charSets = false;  ///< changed by ClickCharSets
    bool graphics = false;
    bool graphicsInDb = false;
    std::string defaultPicture;  ///< a path, as stored; "" for none
    std::string aboutPicture;
    std::string description;  ///< with "\n" for line ends
    std::string contactInfo;

    // --- Sound ---
    bool sound = false;
    DropList device;
    DropList channel;
    DropList voice;
    int volume = 0;   ///< 0 to kLoudest
    int balance = 0;  ///< the same; the middle is 64
    int bass = 0;

    // --- Source ---
    DropList source;

    /// The name by which libraries of games know the adventure, which nobody changes; "" for none.
    const std::string& Ifid() const { return ifid_; }

    /// What the author is told of the choice of types.
    std::string_view TypeNote() const;
    /// False in adventures of type Marlo: their controls are off, and what the record holds stays.
    bool HasWeights() const { return !IsMarlo(); }
    bool HasPrintWidth() const { return !IsMarlo(); }
    /// Whether the file has what About this Adventure shows beside the name: older ones may not.
    bool HasAdvDesc() const { return HasField("advdesc"); }
    bool HasContactInfo() const { return HasField("advcontactinfo"); }
    bool HasAboutPicture() const { return HasField("advpicloc"); }
    std::string_view SoundCaption() const { return sound ? "Sound ON" : "Sound OFF"; }
    FontSample FontTest() const;

    bool LeaveName();
    bool LeaveAuthor();
    bool LeaveSaveName();
    bool LeaveVersion();
    bool LeaveStartPlace();
    bool LeaveMaxObjects();
    bool LeaveMaxWeight();
    bool LeaveFont();
    bool LeaveFontSize();
    bool LeaveDescription();
    bool LeaveContactInfo();

    /// Puts the character sets in the place of the fonts, or the fonts back.
    void ClickCharSets(bool on);

    void ChoosePicture();
    void ClearPicture() { defaultPicture.clear(); }
    void ChooseAboutPicture();
    void ClearAboutPicture() { aboutPicture.clear(); }

    /// Plays a note with the sound settings as they are chosen. False when nothing sounds, since there is
    /// no device: the settings count as tested all the same.
    bool TestVoice(engine::SoundPlayer& player);

    bool Changed() const override { return Typed() != opened_; }

    /// True when the screen can close: what was changed is stored.
    bool Update();

    static constexpr std::string_view kDefaultPictureTitle = "Load Room Picture";
    static constexpr std::string_view kAboutPictureTitle = "Load About Adventure Picture";
    static constexpr std::string_view kMissingFont = "Ariel";
    static constexpr int kMostObjects = 25;
    static constexpr int kMostWeight = condacts::kHighestNumber;  ///< of a flag
    static constexpr int kLoudest = 127;
    static constexpr std::size_t kLongestText =
        store::kDefaultTextSize;  ///< of names, and of the description

  private:
    store::Cursor& OpenSettings() const;
    bool HasField(std::string_view field) const;
    void ReadGame(const store::Cursor& record);
    void ReadLook(const store::Cursor& record);
    void ReadAbout(const store::Cursor& record);
    void ReadSound(const store::Cursor& record, const std::vector<std::string>& devices);
    bool CheckNumber(std::string_view control, std::string_view name, std::string_view typed, int most);
    bool CheckAll();
    std::vector<std::string> Typed() const;
    void StoreGame(store::Cursor& record) const;
    void StoreLook(store::Cursor& record) const;
    void StorePictures(store::Cursor& record) const;
    void StoreAbout(store::Cursor& record) const;
    void StoreSound(store::Cursor& record) const;

    DropList otherFonts_;  ///< the list that `font` does not show
    std::string storedStart_;
    std::string ifid_;
    bool voiceTested_ = false;
    std::vector<std::string> opened_;  ///< what `Typed` gave at first
};

}  // namespace fabula::authoring
