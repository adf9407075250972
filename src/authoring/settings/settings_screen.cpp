#include "authoring/settings/settings_screen.h"

#include <algorithm>
#include <chrono>

#include "authoring/fields/location_names.h"
#include "authoring/fields/picture_choice.h"
#include "authoring/fields/texts/text_editing.h"
#include "authoring/fields/texts/text_field.h"
#include "authoring/settings/settings_lists.h"
#include "condacts/places.h"
#include "platform/error.h"
#include "store/game_source.h"
#include "store/ifid.h"
#include "text/line_ends.h"
#include "text/markup.h"
#include "text/numbers.h"
#include "text/str_edit.h"

namespace fabula::authoring {
namespace {

using store::Cursor;
using store::TableNum;

constexpr int kTestNote = 0;  ///< middle C
constexpr std::chrono::milliseconds kTestLength(1000);

int NumberOfSetting(const Cursor& record, std::string_view field) {
    return static_cast<int>(record.Number(field));
}

/// Writes the number of what is chosen in a list.
void StoreChoice(Cursor& record, std::string_view field, const DropList& list) {
    if (const ListItem* chosen = list.Chosen()) record.SetField(field, std::int64_t{chosen->number});
}

void StoreNumber(Cursor& record, std::string_view field, std::string_view typed) {
    record.SetField(field, text::WholeNumber(text::TrimBlanks(typed)).value_or(0));
}

void StoreSwitch(Cursor& record, std::string_view field, bool on) {
    record.SetField(field, std::int64_t{on ? 1 : 0});
}

/// A picture's path. Without one nothing is left of it; the bytes of a new one are copied afterwards.
void StorePicture(Cursor& record, const std::string& path, std::string_view pathField,
                  std::string_view bytesField, std::string_view oldPathField) {
    record.SetField(pathField, path);
    if (!path.empty()) return;
    record.SetField(bytesField, {});
    record.SetField(oldPathField, std::string(" "));
}

}  // namespace

SettingsScreen::SettingsScreen(ScreenContext& context, const std::vector<std::string>& soundDevices)
    : EditScreen(context) {
    startPlace.items = LocationNames(Adventure());
    fontSize.items = FontSizeItems(Adventure());
    channel.items = ChannelItems();
    voice.items = VoiceItems(Adventure());
    source.items = SourceItems();
    ifid_ = store::IfidOf(Adventure());
    const Cursor& record = OpenSettings();
    ReadGame(record);
    ReadLook(record);
    ReadAbout(record);
    ReadSound(record, soundDevices);
    opened_ = Typed();
}

Cursor& SettingsScreen::OpenSettings() const {
    Cursor& record = Adventure().OpenTable(TableNum::Adventure, "def");
    if (record.Eof()) throw Error("Could not edit the settings: they are not there.");
    return record;
}

bool SettingsScreen::HasField(std::string_view field) const {
    return Adventure().Schema(TableNum::Adventure).Find(field).has_value();
}

void SettingsScreen::ReadGame(const Cursor& record) {
    name = text::Trimmed(record.Text("advname"));
    author = text::Trimmed(record.Text("author"));
    saveName = text::Trimmed(record.Text("savename"));
    version = text::Trimmed(record.Text("Version"));
    const std::string stored = text::Trimmed(record.Text("adventype"));
    type.items = TypeItems(stored);
    type.ChooseText(stored);
    startPlace.text = storedStart_ = std::to_string(record.Number("startloc"));
    maxObjects = std::to_string(record.Number("maxobj"));
    maxWeight = std::to_string(record.Number("maxweight"));
    const std::string origin = text::Trimmed(record.Text("source"));
    source.ChooseText(origin == store::kUnknownSource ? std::string(kUnknownSourceShown) : origin);
}

void SettingsScreen::ReadLook(const Cursor& record) {
    const int width = NumberOfSetting(record, "defprintwidth");
    printWidth.items = PrintWidthItems(width);
    printWidth.ChooseNumber(width);
    paper = NumberOfSetting(record, "BackColor");
    ink = NumberOfSetting(record, "TextColor");
    charSets = record.Truth("charsets");
    graphics = record.Truth("graphics");
    graphicsInDb = record.Truth("graphicsindb");
    font.items = charSets ? CharSetItems(Adventure()) : FontItems(Adventure());
    otherFonts_.items = charSets ? FontItems(Adventure()) : CharSetItems(Adventure());
    if (!record.IsNull("Font")) font.ChooseNumber(NumberOfSetting(record, "Font"));
    fontSize.ChooseNumber(NumberOfSetting(record, "FontSize"));
    defaultPicture = text::Trimmed(record.Text("defpicloc"));
}

void SettingsScreen::ReadAbout(const Cursor& record) {
    // The blank at the end of the stored description is not the author's.
    if (HasAdvDesc()) {
        description = ToEdited(record.Text("advdesc"));
        if (!description.empty() && description.back() == ' ') description.pop_back();
    }
    if (HasContactInfo()) contactInfo = ToEdited(record.Text("advcontactinfo"));
    if (HasAboutPicture()) aboutPicture = text::Trimmed(record.Text("advpicloc"));
}

void SettingsScreen::ReadSound(const Cursor& record, const std::vector<std::string>& devices) {
    sound = record.Truth("sound");
    channel.ChooseNumber(NumberOfSetting(record, "defsndchan"));
    voice.ChooseNumber(NumberOfSetting(record, "defsndvoice"));
    volume = NumberOfSetting(record, "defsndvol");
    balance = NumberOfSetting(record, "defsndbal");
    bass = NumberOfSetting(record, "defsndbass");
    device.items = DeviceItems(devices);
    std::string wanted = text::Trimmed(record.Text("defsnddevname"));
    if (wanted.empty()) wanted = kMidiMapper;
    device.ChooseText(wanted);
    if (device.index >= 0) return;
    // The game was made on a system with another device.
    device.items.push_back({NumberOfSetting(record, "defsnddev"), wanted});
    device.ChooseText(wanted);
}

std::string_view SettingsScreen::TypeNote() const {
    return authoring::TypeNote(Adventure().AdventureType());
}

FontSample SettingsScreen::FontTest() const {
    FontSample sample{.fontName = std::string(kMissingFont),
                      .charSet = std::nullopt,
                      .points = text::kDefaultPoints,
                      .paper = paper,
                      .ink = ink};
    if (const ListItem* size = fontSize.Chosen()) sample.points = text::ShownPoints(size->number);
    const ListItem* chosen = font.Chosen();
    if (chosen == nullptr) return sample;
    if (charSets) {
        sample.charSet = chosen->number;
    } else {
        sample.fontName = chosen->text.substr(chosen->text.find('-') + 1);
    }
    return sample;
}

bool SettingsScreen::LeaveName() {
    return CheckLength("name", name, kLongestText);
}

bool SettingsScreen::LeaveAuthor() {
    return CheckLength("author", author, kLongestText);
}

bool SettingsScreen::LeaveSaveName() {
    if (text::Trimmed(saveName).empty()) return RefuseField("saveName", "Must have a Save Name");
    return CheckLength("saveName", saveName, kLongestText);
}

bool SettingsScreen::LeaveVersion() {
    return CheckLength("version", version, kLongestText);
}

bool SettingsScreen::LeaveStartPlace() {
    const std::string typed = text::Trimmed(startPlace.text);
    if (typed == storedStart_) return true;
    if (typed.empty()) return RefuseField("startPlace", "No start location is set");
    const auto number = text::WholeNumber(typed);
    const bool exists = number && std::any_of(startPlace.items.begin(), startPlace.items.end(),
                                              [&](const ListItem& item) { return item.number == *number; });
    if (exists) return true;
    return RefuseField("startPlace", condacts::NoLocationMessage(typed));
}

bool SettingsScreen::CheckNumber(std::string_view control, std::string_view what, std::string_view typed,
                                 int most) {
    const auto number = text::WholeNumber(text::TrimBlanks(typed));
    if (!number) return RefuseField(control, std::string(what) + " is not numeric");
    if (*number > most) return RefuseField(control, "Maximum value allowed is " + std::to_string(most));
    if (*number < 0) return RefuseField(control, "Minimum value allowed is 0");
    return true;
}

bool SettingsScreen::LeaveMaxObjects() {
    if (text::Trimmed(maxObjects).empty())
        return RefuseField("maxObjects", "Must have Maximum Objects that can be carried");
    return CheckNumber("maxObjects", "Maximum Objects", maxObjects, kMostObjects);
}

bool SettingsScreen::LeaveMaxWeight() {
    return !HasWeights() || CheckNumber("maxWeight", "Maximum Weight", maxWeight, kMostWeight);
}

bool SettingsScreen::LeaveFont() {
    return font.Chosen() != nullptr || RefuseField("font", "No font is set");
}

bool SettingsScreen::LeaveFontSize() {
    return fontSize.Chosen() != nullptr || RefuseField("fontSize", "No font size is set");
}

bool SettingsScreen::LeaveDescription() {
    return CheckLength("description", description, kLongestText) &&
           CheckText("description", description, false);
}

bool SettingsScreen::LeaveContactInfo() {
    return CheckText("contactInfo", contactInfo, false);
}

void SettingsScreen::ClickCharSets(bool on) {
    if (on == charSets) return;
    charSets = on;
    std::swap(font, otherFonts_);
    if (font.index < 0 && !font.items.empty()) font.index = 0;
}

void SettingsScreen::ChoosePicture() {
    const auto chosen = authoring::ChoosePicture(context_, kDefaultPictureTitle, defaultPicture);
    if (chosen) defaultPicture = *chosen;
}

void SettingsScreen::ChooseAboutPicture() {
    const auto chosen = authoring::ChoosePicture(context_, kAboutPictureTitle, aboutPicture);
    if (chosen) aboutPicture = *chosen;
}

bool SettingsScreen::TestVoice(engine::SoundPlayer& player) {
    const auto number = [](const DropList& list) { return list.Chosen() ? list.Chosen()->number : 0; };
    player.Configure({.channel = number(channel),
                      .device = number(device),
                      .deviceName = device.Chosen() ? device.Chosen()->text : "",
                      .voice = number(voice),
                      .volume = volume,
                      .balance = balance,
                      .bass = bass});
    voiceTested_ = true;
    player.PlayTone(kTestNote, kTestLength);
    return !player.IsSilent();
}

bool SettingsScreen::CheckAll() {
    if (!LeaveName() || !LeaveAuthor() || !LeaveSaveName() || !LeaveVersion() || !LeaveStartPlace() ||
        !LeaveMaxObjects() || !LeaveMaxWeight() || !LeaveFont() || !LeaveFontSize() ||
        !LeaveDescription() || !LeaveContactInfo())
        return false;
    if (page != SettingsPage::Sound || voiceTested_) return true;
    return RefuseField("testVoice", "You must Test Voice before I can update!");
}

std::vector<std::string> SettingsScreen::Typed() const {
    std::vector<std::string> typed{name,       author,    saveName,       version,      startPlace.text,
                                   maxObjects, maxWeight, defaultPicture, aboutPicture, description,
                                   contactInfo};
    for (const DropList* list : {&type, &printWidth, &font, &fontSize, &device, &channel, &voice, &source})
        typed.push_back(std::to_string(list->index));
    for (const int number : {paper, ink, volume, balance, bass})
        typed.push_back(std::to_string(number));
    for (const bool on : {charSets, graphics, graphicsInDb, sound})
        typed.push_back(on ? "on" : "off");
    return typed;
}

void SettingsScreen::StoreGame(Cursor& record) const {
    record.SetField("advname", name);
    record.SetField("author", author);
    record.SetField("savename", text::Trimmed(saveName));
    record.SetField("Version", version);
    if (const ListItem* chosen = type.Chosen()) record.SetField("adventype", chosen->text);
    StoreNumber(record, "startloc", startPlace.text);
    StoreNumber(record, "maxobj", maxObjects);
    if (HasWeights()) StoreNumber(record, "maxweight", maxWeight);
    if (const ListItem* chosen = source.Chosen()) record.SetField("source", chosen->text);
}

void SettingsScreen::StoreLook(Cursor& record) const {
    if (HasPrintWidth()) StoreChoice(record, "defprintwidth", printWidth);
    record.SetField("BackColor", std::int64_t{paper});
    record.SetField("TextColor", std::int64_t{ink});
    StoreChoice(record, "Font", font);
    StoreChoice(record, "FontSize", fontSize);
    StoreSwitch(record, "charsets", charSets);
    StoreSwitch(record, "graphics", graphics);
    StoreSwitch(record, "graphicsindb", graphicsInDb);
}

void SettingsScreen::StorePictures(Cursor& record) const {
    record.SetField("defpickey", std::string(defaultPicture.empty() ? "" : "Default"));
    StorePicture(record, defaultPicture, "defpicloc", "defpicgraphic", "olddefpicloc");
    if (HasAboutPicture()) StorePicture(record, aboutPicture, "advpicloc", "advpicgraphic", "oldadvpicloc");
}

void SettingsScreen::StoreAbout(Cursor& record) const {
    if (HasAdvDesc())
        record.SetField("advdesc", text::NormalizeLineEnds(description, text::kLineEndMarker) + " ");
    if (HasContactInfo()) record.SetField("advcontactinfo", ToStored(contactInfo));
}

void SettingsScreen::StoreSound(Cursor& record) const {
    StoreSwitch(record, "sound", sound);
    StoreChoice(record, "defsnddev", device);
    if (const ListItem* chosen = device.Chosen()) record.SetField("defsnddevname", chosen->text);
    StoreChoice(record, "defsndchan", channel);
    StoreChoice(record, "defsndvoice", voice);
    record.SetField("defsndvol", std::int64_t{volume});
    record.SetField("defsndbal", std::int64_t{balance});
    record.SetField("defsndbass", std::int64_t{bass});
}

bool SettingsScreen::Update() {
    if (!CheckAll()) return false;
    if (!Changed()) return true;
    Change change(context_.document, "edit the settings");
    Cursor& record = OpenSettings();
    StoreGame(record);
    StoreLook(record);
    StorePictures(record);
    StoreAbout(record);
    StoreSound(record);
    record.Update();
    change.Commit();
    Adventure().ReadSettings();
    return true;
}

}  // namespace fabula::authoring
