#include "authoring/frm_vel_adv_settings.h"

#include <algorithm>
#include <chrono>

#include "authoring/location_names.h"
#include "authoring/picture_choice.h"
#include "authoring/settings_lists.h"
#include "authoring/text_editing.h"
#include "authoring/text_field.h"
#include "platform/error.h"
#include "text/line_ends.h"
#include "text/numbers.h"
#include "text/str_edit.h"

namespace fabula::authoring {
namespace {

using store::Cursor;
using store::TableNum;

constexpr int kTestNote = 0;  ///< middle C
constexpr std::chrono::milliseconds kTestLength(1000);

std::string Trimmed(std::string_view text) {
    return std::string(text::TrimBlanks(text));
}

int NumberOf(const Cursor& record, std::string_view field) {
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

frmVelAdvSettings::frmVelAdvSettings(Session& session, const std::vector<std::string>& soundDevices)
    : EditScreen(session) {
    cboStartLoc.items = LocationNames(Adventure());
    cboFontSize.items = FontSizeItems(Adventure());
    cboChannel.items = ChannelItems();
    cboVoice.items = VoiceItems(Adventure());
    cboSource.items = SourceItems();
    const Cursor& record = OpenSettings();
    ReadGame(record);
    ReadLook(record);
    ReadAbout(record);
    ReadSound(record, soundDevices);
    opened_ = Typed();
}

Cursor& frmVelAdvSettings::OpenSettings() const {
    Cursor& record = Adventure().OpenTable(TableNum::Adventure, "def");
    if (record.Eof()) throw Error("Could not edit the settings: they are not there.");
    return record;
}

bool frmVelAdvSettings::HasField(std::string_view field) const {
    return Adventure().Schema(TableNum::Adventure).Find(field).has_value();
}

void frmVelAdvSettings::ReadGame(const Cursor& record) {
    txtAdventureName = Trimmed(record.Text("advname"));
    txtAuthor = Trimmed(record.Text("author"));
    txtSaveName = Trimmed(record.Text("savename"));
    txtVersion = Trimmed(record.Text("Version"));
    const std::string type = Trimmed(record.Text("adventype"));
    cboAdvenType.items = TypeItems(type);
    cboAdvenType.ChooseText(type);
    cboStartLoc.text = storedStart_ = std::to_string(record.Number("startloc"));
    txtMaxObjects = std::to_string(record.Number("maxobj"));
    txtMaxWeight = std::to_string(record.Number("maxweight"));
    const std::string source = Trimmed(record.Text("source"));
    cboSource.ChooseText(source == "Unknown" ? "Unknown!" : source);
}

void frmVelAdvSettings::ReadLook(const Cursor& record) {
    const int width = NumberOf(record, "defprintwidth");
    cboPrintWidth.items = PrintWidthItems(width);
    cboPrintWidth.ChooseNumber(width);
    lblBackColor = NumberOf(record, "BackColor");
    lblTextColor = NumberOf(record, "TextColor");
    chkCharSets = record.Truth("charsets");
    chkGraphics = record.Truth("graphics");
    chkGraphicsInDb = record.Truth("graphicsindb");
    cboFont.items = chkCharSets ? CharSetItems(Adventure()) : FontItems(Adventure());
    otherFonts_.items = chkCharSets ? FontItems(Adventure()) : CharSetItems(Adventure());
    if (!record.IsNull("Font")) cboFont.ChooseNumber(NumberOf(record, "Font"));
    cboFontSize.ChooseNumber(NumberOf(record, "FontSize"));
    txtDefaultPicture = Trimmed(record.Text("defpicloc"));
}

void frmVelAdvSettings::ReadAbout(const Cursor& record) {
    // The blank at the end of the stored description is not the author's.
    if (HasAdvDesc()) {
        txtAdvDesc = ToEdited(record.Text("advdesc"));
        if (!txtAdvDesc.empty() && txtAdvDesc.back() == ' ') txtAdvDesc.pop_back();
    }
    if (HasContactInfo()) txtContactInfo = ToEdited(record.Text("advcontactinfo"));
    if (HasAboutPicture()) txtAboutPicture = Trimmed(record.Text("advpicloc"));
}

void frmVelAdvSettings::ReadSound(const Cursor& record, const std::vector<std::string>& devices) {
    chkSound = record.Truth("sound");
    cboChannel.ChooseNumber(NumberOf(record, "defsndchan"));
    cboVoice.ChooseNumber(NumberOf(record, "defsndvoice"));
    sldVolume = NumberOf(record, "defsndvol");
    sldBalance = NumberOf(record, "defsndbal");
    sldBass = NumberOf(record, "defsndbass");
    cboDevice.items = DeviceItems(devices);
    std::string device = Trimmed(record.Text("defsnddevname"));
    if (device.empty()) device = kMidiMapper;
    cboDevice.ChooseText(device);
    if (cboDevice.index >= 0) return;
    // The game was made on a system with another device.
    cboDevice.items.push_back({NumberOf(record, "defsnddev"), device});
    cboDevice.ChooseText(device);
}

std::string_view frmVelAdvSettings::TypeNote() const {
    return authoring::TypeNote(Adventure().AdventureType());
}

FontSample frmVelAdvSettings::FontTest() const {
    FontSample sample{.fontName = std::string(kMissingFont),
                      .charSet = std::nullopt,
                      .points = TextEditing::kDefaultPoints,
                      .paper = lblBackColor,
                      .ink = lblTextColor};
    if (const ListItem* size = cboFontSize.Chosen()) sample.points = size->number;
    const ListItem* font = cboFont.Chosen();
    if (font == nullptr) return sample;
    if (chkCharSets) {
        sample.charSet = font->number;
    } else {
        sample.fontName = font->text.substr(font->text.find('-') + 1);
    }
    return sample;
}

bool frmVelAdvSettings::LeaveTxtAdventureName() {
    return CheckLength("txtAdventureName", txtAdventureName, kLongestText);
}

bool frmVelAdvSettings::LeaveTxtAuthor() {
    return CheckLength("txtAuthor", txtAuthor, kLongestText);
}

bool frmVelAdvSettings::LeaveTxtSaveName() {
    if (Trimmed(txtSaveName).empty()) return RefuseField("txtSaveName", "Must have a Save Name");
    return CheckLength("txtSaveName", txtSaveName, kLongestText);
}

bool frmVelAdvSettings::LeaveTxtVersion() {
    return CheckLength("txtVersion", txtVersion, kLongestText);
}

bool frmVelAdvSettings::LeaveCboStartLoc() {
    const std::string typed = Trimmed(cboStartLoc.text);
    if (typed == storedStart_) return true;
    if (typed.empty()) return RefuseField("cboStartLoc", "No start location is set");
    const auto number = text::WholeNumber(typed);
    const bool exists = number && std::any_of(cboStartLoc.items.begin(), cboStartLoc.items.end(),
                                              [&](const ListItem& item) { return item.number == *number; });
    if (exists) return true;
    return RefuseField("cboStartLoc", "There is not a location with a number of " + typed);
}

bool frmVelAdvSettings::CheckNumber(std::string_view control, std::string_view name, std::string_view typed,
                                    int most) {
    const auto number = text::WholeNumber(text::TrimBlanks(typed));
    if (!number) return RefuseField(control, std::string(name) + " is not numeric");
    if (*number > most) return RefuseField(control, "Maximum value allowed is " + std::to_string(most));
    if (*number < 0) return RefuseField(control, "Minimum value allowed is 0");
    return true;
}

bool frmVelAdvSettings::LeaveTxtMaxObjects() {
    if (Trimmed(txtMaxObjects).empty())
        return RefuseField("txtMaxObjects", "Must have Maximum Objects that can be carried");
    return CheckNumber("txtMaxObjects", "Maximum Objects", txtMaxObjects, kMostObjects);
}

bool frmVelAdvSettings::LeaveTxtMaxWeight() {
    return !HasWeights() || CheckNumber("txtMaxWeight", "Maximum Weight", txtMaxWeight, kMostWeight);
}

bool frmVelAdvSettings::LeaveCboFont() {
    return cboFont.Chosen() != nullptr || RefuseField("cboFont", "No font is set");
}

bool frmVelAdvSettings::LeaveCboFontSize() {
    return cboFontSize.Chosen() != nullptr || RefuseField("cboFontSize", "No font size is set");
}

bool frmVelAdvSettings::LeaveTxtAdvDesc() {
    return CheckLength("txtAdvDesc", txtAdvDesc, kLongestText) &&
           CheckText("txtAdvDesc", txtAdvDesc, false);
}

bool frmVelAdvSettings::LeaveTxtContactInfo() {
    return CheckText("txtContactInfo", txtContactInfo, false);
}

void frmVelAdvSettings::ClickChkCharSets(bool on) {
    if (on == chkCharSets) return;
    chkCharSets = on;
    std::swap(cboFont, otherFonts_);
    if (cboFont.index < 0 && !cboFont.items.empty()) cboFont.index = 0;
}

void frmVelAdvSettings::cmdGetPic() {
    const auto chosen = ChoosePicture(session_, kDefaultPictureTitle, txtDefaultPicture);
    if (chosen) txtDefaultPicture = *chosen;
}

void frmVelAdvSettings::cmdGetAbout() {
    const auto chosen = ChoosePicture(session_, kAboutPictureTitle, txtAboutPicture);
    if (chosen) txtAboutPicture = *chosen;
}

bool frmVelAdvSettings::cmdTestVoice(engine::SoundPlayer& player) {
    const auto number = [](const DropList& list) { return list.Chosen() ? list.Chosen()->number : 0; };
    player.Configure({.channel = number(cboChannel),
                      .device = number(cboDevice),
                      .deviceName = cboDevice.Chosen() ? cboDevice.Chosen()->text : "",
                      .voice = number(cboVoice),
                      .volume = sldVolume,
                      .balance = sldBalance,
                      .bass = sldBass});
    voiceTested_ = true;
    return player.PlayTone(kTestNote, kTestLength);
}

bool frmVelAdvSettings::CheckAll() {
    if (!LeaveTxtAdventureName() || !LeaveTxtAuthor() || !LeaveTxtSaveName() || !LeaveTxtVersion() ||
        !LeaveCboStartLoc() || !LeaveTxtMaxObjects() || !LeaveTxtMaxWeight() || !LeaveCboFont() ||
        !LeaveCboFontSize() || !LeaveTxtAdvDesc() || !LeaveTxtContactInfo())
        return false;
    if (page != SettingsPage::Sound || voiceTested_) return true;
    return RefuseField("cmdTestVoice", "You must Test Voice before I can update!");
}

std::vector<std::string> frmVelAdvSettings::Typed() const {
    std::vector<std::string> typed{txtAdventureName, txtAuthor,     txtSaveName,   txtVersion,
                                   cboStartLoc.text, txtMaxObjects, txtMaxWeight,  txtDefaultPicture,
                                   txtAboutPicture,  txtAdvDesc,    txtContactInfo};
    for (const DropList* list : {&cboAdvenType, &cboPrintWidth, &cboFont, &cboFontSize, &cboDevice,
                                 &cboChannel, &cboVoice, &cboSource})
        typed.push_back(std::to_string(list->index));
    for (const int number : {lblBackColor, lblTextColor, sldVolume, sldBalance, sldBass})
        typed.push_back(std::to_string(number));
    for (const bool on : {chkCharSets, chkGraphics, chkGraphicsInDb, chkSound})
        typed.push_back(on ? "on" : "off");
    return typed;
}

void frmVelAdvSettings::StoreGame(Cursor& record) const {
    record.SetField("advname", txtAdventureName);
    record.SetField("author", txtAuthor);
    record.SetField("savename", Trimmed(txtSaveName));
    record.SetField("Version", txtVersion);
    if (const ListItem* type = cboAdvenType.Chosen()) record.SetField("adventype", type->text);
    StoreNumber(record, "startloc", cboStartLoc.text);
    StoreNumber(record, "maxobj", txtMaxObjects);
    if (HasWeights()) StoreNumber(record, "maxweight", txtMaxWeight);
    if (const ListItem* source = cboSource.Chosen()) record.SetField("source", source->text);
}

void frmVelAdvSettings::StoreLook(Cursor& record) const {
    if (HasPrintWidth()) StoreChoice(record, "defprintwidth", cboPrintWidth);
    record.SetField("BackColor", std::int64_t{lblBackColor});
    record.SetField("TextColor", std::int64_t{lblTextColor});
    StoreChoice(record, "Font", cboFont);
    StoreChoice(record, "FontSize", cboFontSize);
    StoreSwitch(record, "charsets", chkCharSets);
    StoreSwitch(record, "graphics", chkGraphics);
    StoreSwitch(record, "graphicsindb", chkGraphicsInDb);
}

void frmVelAdvSettings::StorePictures(Cursor& record) const {
    record.SetField("defpickey", std::string(txtDefaultPicture.empty() ? "" : "Default"));
    StorePicture(record, txtDefaultPicture, "defpicloc", "defpicgraphic", "olddefpicloc");
    if (HasAboutPicture())
        StorePicture(record, txtAboutPicture, "advpicloc", "advpicgraphic", "oldadvpicloc");
}

void frmVelAdvSettings::StoreAbout(Cursor& record) const {
    if (HasAdvDesc())
        record.SetField("advdesc", text::NormalizeLineEnds(txtAdvDesc, text::kLineEndMarker) + " ");
    if (HasContactInfo()) record.SetField("advcontactinfo", ToStored(txtContactInfo));
}

void frmVelAdvSettings::StoreSound(Cursor& record) const {
    StoreSwitch(record, "sound", chkSound);
    StoreChoice(record, "defsnddev", cboDevice);
    if (const ListItem* device = cboDevice.Chosen()) record.SetField("defsnddevname", device->text);
    StoreChoice(record, "defsndchan", cboChannel);
    StoreChoice(record, "defsndvoice", cboVoice);
    record.SetField("defsndvol", std::int64_t{sldVolume});
    record.SetField("defsndbal", std::int64_t{sldBalance});
    record.SetField("defsndbass", std::int64_t{sldBass});
}

bool frmVelAdvSettings::cmdUpdate() {
    if (!CheckAll()) return false;
    if (Typed() == opened_) return true;
    Change change(session_.document, "edit the settings");
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
