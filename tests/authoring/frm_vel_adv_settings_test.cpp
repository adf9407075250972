#include "authoring/frm_vel_adv_settings.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "authoring/settings_screen.h"
#include "authoring/text_editing.h"
#include "platform/error.h"

namespace fabula::authoring {
namespace {

using store::TableNum;
using testing::ElementsAre;

/// Keeps what it was asked to play.
class KeptSound final : public engine::SoundPlayer {
  public:
    void Configure(const engine::SoundSettings& given) override { settings = given; }
    bool PlayTone(int, std::chrono::milliseconds) override {
        ++notes;
        return sounds;
    }
    void SetVoice(int) override {}

    engine::SoundSettings settings;
    int notes = 0;
    bool sounds = true;
};

TEST_F(SettingsScreen, ShowsTheRecord) {
    Set("author", std::string("Ann"));
    Set("savename", std::string("cave"));
    Set("Version", std::string("1.2"));
    Set("maxobj", std::int64_t{7});
    Set("maxweight", std::int64_t{90});
    Set("advdesc", std::string("One.\u008CTwo. "));
    Set("advcontactinfo", std::string("Write to me."));
    Set("defpicloc", std::string("a.gif"));
    Set("advpicloc", std::string("b.gif"));
    Set("source", std::string("ACE"));
    const frmVelAdvSettings screen = Open();
    EXPECT_EQ(screen.kCaption, "Adventure Settings Editor");
    EXPECT_EQ(screen.txtAdventureName, "New Adventure");
    EXPECT_EQ(screen.txtAuthor, "Ann");
    EXPECT_EQ(screen.txtSaveName, "cave");
    EXPECT_EQ(screen.txtVersion, "1.2");
    EXPECT_EQ(screen.cboStartLoc.text, "0");
    EXPECT_EQ(screen.txtMaxObjects, "7");
    EXPECT_EQ(screen.txtMaxWeight, "90");
    EXPECT_EQ(screen.cboPrintWidth.Chosen()->number, 80);
    EXPECT_EQ(screen.lblBackColor, 15);
    EXPECT_EQ(screen.lblTextColor, 0);
    EXPECT_EQ(screen.cboFont.Chosen()->text, "0-Arial");
    EXPECT_EQ(screen.cboFontSize.Chosen()->text, "12");
    EXPECT_EQ(screen.txtAdvDesc, "One.\nTwo.");
    EXPECT_EQ(screen.txtContactInfo, "Write to me.");
    EXPECT_EQ(screen.txtDefaultPicture, "a.gif");
    EXPECT_EQ(screen.txtAboutPicture, "b.gif");
    EXPECT_EQ(screen.cboAdvenType.Chosen()->text, "Fabula");
    EXPECT_EQ(screen.cboSource.Chosen()->text, "ACE");
    EXPECT_EQ(screen.cboDevice.Chosen()->text, "MIDI Mapper");
    EXPECT_EQ(screen.cboChannel.Chosen()->text, " 0");
    EXPECT_EQ(screen.cboVoice.Chosen()->text, "0-Acoustic Grand Piano");
    EXPECT_EQ(screen.sldVolume, 100);
    EXPECT_EQ(screen.sldBalance, 64);
    EXPECT_EQ(screen.sldBass, 64);
}

TEST_F(SettingsScreen, OfAnAdventureWithoutSettingsFails) {
    desk_.Clear(TableNum::Adventure);
    EXPECT_THROW(Open(), Error);
}

TEST_F(SettingsScreen, StoresAllFieldsAsOneChange) {
    AddSet(1, "Runes");
    const test::Snapshot before = desk_.Everything();
    frmVelAdvSettings screen = Open();
    screen.txtAdventureName = "The Cave";
    screen.txtAuthor = "Ann";
    screen.txtSaveName = " cave ";
    screen.txtVersion = "2.0 beta";
    screen.cboAdvenType.ChooseText("VEL");
    screen.txtMaxObjects = " 9 ";
    screen.txtMaxWeight = "120";
    screen.cboPrintWidth.ChooseNumber(40);
    screen.lblBackColor = 1;
    screen.lblTextColor = 14;
    screen.cboFont.ChooseNumber(4);
    screen.cboFontSize.ChooseNumber(18);
    screen.chkGraphics = true;
    screen.chkGraphicsInDb = true;
    screen.txtDefaultPicture = "a.gif";
    screen.txtAboutPicture = "b.gif";
    screen.txtAdvDesc = "One.\nTwo.";
    screen.txtContactInfo = "Write.";
    screen.chkSound = true;
    screen.cboDevice.ChooseText("USB keys");
    screen.cboChannel.ChooseNumber(9);
    screen.cboVoice.ChooseNumber(73);
    screen.sldVolume = 90;
    screen.sldBalance = 10;
    screen.sldBass = 20;
    screen.cboSource.ChooseText("PCVel");
    ASSERT_TRUE(screen.cmdUpdate());
    EXPECT_EQ(Stored("advname, author, savename, Version, adventype, maxobj, maxweight, defprintwidth"),
              "The Cave|Ann|cave|2.0 beta|VEL|9|120|40");
    EXPECT_EQ(Stored("BackColor, TextColor, Font, FontSize, charsets, graphics, graphicsindb"),
              "1|14|4|18|0|1|1");
    EXPECT_EQ(Stored("defpickey, defpicloc, advpicloc"), "Default|a.gif|b.gif");
    EXPECT_EQ(Stored("advdesc, advcontactinfo"), "One.\u008CTwo. |Write.");
    EXPECT_EQ(Stored("sound, defsnddev, defsnddevname, defsndchan, defsndvoice"), "1|1|USB keys|9|73");
    EXPECT_EQ(Stored("defsndvol, defsndbal, defsndbass, source"), "90|10|20|PCVel");
    EXPECT_EQ(desk_.document.UndoName(), "edit the settings");
    desk_.document.Undo();
    EXPECT_EQ(desk_.Everything(), before);
    EXPECT_EQ(desk_.document.UndoName(), std::nullopt);
}

TEST_F(SettingsScreen, UpdateRefreshesWhatTheSessionKnows) {
    frmVelAdvSettings screen = Open();
    screen.cboAdvenType.ChooseText("VEL");
    screen.chkGraphics = true;
    ASSERT_TRUE(screen.cmdUpdate());
    EXPECT_EQ(desk_.Adventure().AdventureType(), "VEL");
    EXPECT_TRUE(desk_.Adventure().GraphicsOn());
}

TEST_F(SettingsScreen, KeepsTheSortOrders) {
    Set("sortobjects", std::string("objdesc"));
    frmVelAdvSettings screen = Open();
    screen.txtAuthor = "Ann";
    ASSERT_TRUE(screen.cmdUpdate());
    EXPECT_EQ(Stored("sortobjects, sortvocabulary, sorttables, sortcondacts, sortcommands"),
              "objdesc|voctypen, vocnum, word|tablenum, fieldname|canum|conum");
    EXPECT_EQ(desk_.Adventure().Sorts().objects, "objdesc");
}

TEST_F(SettingsScreen, UpdateWithoutAChangeStoresNothing) {
    const test::Snapshot before = desk_.Everything();
    frmVelAdvSettings screen = Open();
    EXPECT_TRUE(screen.cmdUpdate());
    EXPECT_EQ(desk_.Everything(), before);
    EXPECT_EQ(desk_.document.UndoName(), std::nullopt);
}

TEST_F(SettingsScreen, UpdateWithoutAChangeChecksAllTheSame) {
    Set("maxobj", std::int64_t{255});
    frmVelAdvSettings screen = Open();
    EXPECT_FALSE(screen.cmdUpdate());
    EXPECT_EQ(Box(), "Error: Maximum value allowed is 25");
}

TEST_F(SettingsScreen, OfFabulaAndVelOffersBoth) {
    const frmVelAdvSettings screen = Open();
    ASSERT_EQ(screen.cboAdvenType.items.size(), 2u);
    EXPECT_EQ(screen.cboAdvenType.items[0].text, "VEL");
    EXPECT_EQ(screen.cboAdvenType.items[1].text, "Fabula");
    EXPECT_EQ(screen.TypeNote(), "VEL && Fabula games may not be changed to Marlo");
    Set("adventype", std::string("VEL"));
    EXPECT_EQ(Open().cboAdvenType.Chosen()->text, "VEL");
}

TEST_F(MarloSettingsScreen, TypeOfAMarloGameCannotBeChangedToVel) {
    const frmVelAdvSettings screen = Open();
    ASSERT_EQ(screen.cboAdvenType.items.size(), 1u);
    EXPECT_EQ(screen.cboAdvenType.Chosen()->text, "Marlo");
    EXPECT_EQ(screen.TypeNote(), "Marlo games may not be changed to VEL");
}

TEST_F(MarloSettingsScreen, HasNeitherWeightsNorAPrintWidth) {
    Set("maxweight", std::int64_t{33});
    frmVelAdvSettings screen = Open();
    EXPECT_FALSE(screen.HasWeights());
    EXPECT_FALSE(screen.HasPrintWidth());
    screen.txtMaxWeight = "heavy";
    screen.cboPrintWidth.ChooseNumber(132);
    EXPECT_TRUE(screen.cmdUpdate());
    EXPECT_EQ(Stored("maxweight, defprintwidth"), "33|80");
}

TEST_F(SettingsScreen, CharacterSetsTakeThePlaceOfFonts) {
    AddSet(1, "Runes");
    frmVelAdvSettings screen = Open();
    screen.cboFont.ChooseNumber(4);
    screen.ClickChkCharSets(true);
    EXPECT_TRUE(screen.chkCharSets);
    EXPECT_THAT(screen.cboFont.items,
                ElementsAre(ListItem{0, "SET 0000 - Default"}, ListItem{1, "SET 0001 - Runes"}));
    EXPECT_EQ(screen.cboFont.Chosen()->number, 0);
    screen.ClickChkCharSets(false);
    EXPECT_EQ(screen.cboFont.Chosen()->text, "4-Georgia");
}

TEST_F(SettingsScreen, CharacterSetsAreStoredAsTheFont) {
    AddSet(1, "Runes");
    frmVelAdvSettings screen = Open();
    screen.ClickChkCharSets(true);
    screen.cboFont.ChooseNumber(1);
    ASSERT_TRUE(screen.cmdUpdate());
    EXPECT_EQ(Stored("charsets, Font"), "1|1");
    EXPECT_EQ(Open().cboFont.Chosen()->text, "SET 0001 - Runes");
}

TEST_F(SettingsScreen, WithoutACharacterSetNoneCanBeUsed) {
    desk_.Clear(TableNum::Characters);
    frmVelAdvSettings screen = Open();
    screen.ClickChkCharSets(true);
    EXPECT_FALSE(screen.cmdUpdate());
    EXPECT_EQ(Box(), "Error: No font is set");
}

TEST_F(SettingsScreen, FontTestShowsWhatIsChosen) {
    frmVelAdvSettings screen = Open();
    screen.cboFont.ChooseNumber(1);
    screen.cboFontSize.ChooseNumber(20);
    screen.lblBackColor = 1;
    screen.lblTextColor = 14;
    EXPECT_EQ(screen.FontTest(), (FontSample{"Times New Roman", std::nullopt, 20, 1, 14}));
    screen.ClickChkCharSets(true);
    EXPECT_EQ(screen.FontTest().charSet, 0);
}

TEST_F(SettingsScreen, FontTestOfMissingSettingsStartsFromAriel) {
    Set("Font", {});
    Set("FontSize", {});
    const frmVelAdvSettings screen = Open();
    EXPECT_EQ(screen.FontTest(), (FontSample{"Ariel", std::nullopt, 12, 15, 0}));
}

TEST_F(SettingsScreen, TextsAreShownInTheNewFontAfterwards) {
    frmVelAdvSettings screen = Open();
    screen.cboFont.ChooseNumber(4);
    screen.cboFontSize.ChooseNumber(18);
    ASSERT_TRUE(screen.cmdUpdate());
    const TextEditing editing(desk_.Adventure());
    EXPECT_EQ(editing.FontName(), "Georgia");
    EXPECT_EQ(editing.FontPoints(), 18);
}

TEST_F(SettingsScreen, PrintWidthThatIsNotUsualIsOfferedToo) {
    Set("defprintwidth", std::int64_t{57});
    frmVelAdvSettings screen = Open();
    EXPECT_EQ(screen.cboPrintWidth.Chosen()->text, "57");
    const auto& items = screen.cboPrintWidth.items;
    EXPECT_TRUE(std::is_sorted(items.begin(), items.end(),
                               [](const ListItem& a, const ListItem& b) { return a.number < b.number; }));
}

TEST_F(SettingsScreen, ChoosesPicturesByTheirTitles) {
    MakeFile("a.gif");
    MakeFile("b.gif");
    frmVelAdvSettings screen = Open();
    desk_.dialogs.AnswerFile(desk_.Adventure().GameDir() / "a.gif");
    screen.cmdGetPic();
    desk_.dialogs.AnswerFile(desk_.Adventure().GameDir() / "b.gif");
    screen.cmdGetAbout();
    ASSERT_EQ(desk_.dialogs.Questions().size(), 2u);
    EXPECT_EQ(desk_.dialogs.Questions()[0].title, "Load Room Picture");
    EXPECT_EQ(desk_.dialogs.Questions()[1].title, "Load About Adventure Picture");
    ASSERT_TRUE(screen.cmdUpdate());
    EXPECT_EQ(Stored("defpickey, defpicloc, advpicloc"), "Default|a.gif|b.gif");
}

TEST_F(SettingsScreen, PictureThatIsNotChosenStays) {
    Set("defpicloc", std::string("a.gif"));
    frmVelAdvSettings screen = Open();
    desk_.dialogs.AnswerFile(std::nullopt);
    screen.cmdGetPic();
    EXPECT_EQ(screen.txtDefaultPicture, "a.gif");
}

TEST_F(SettingsScreen, ClearedPicturesLeaveNothing) {
    Set("defpickey", std::string("Default"));
    for (const char* field : {"defpicloc", "olddefpicloc", "advpicloc", "oldadvpicloc"})
        Set(field, std::string("a.gif"));
    for (const char* field : {"defpicgraphic", "advpicgraphic"})
        Set(field, text::Blob(3));
    frmVelAdvSettings screen = Open();
    screen.cmdClearPic();
    screen.cmdClearAbout();
    ASSERT_TRUE(screen.cmdUpdate());
    EXPECT_EQ(Stored("defpickey, defpicloc, olddefpicloc, advpicloc, oldadvpicloc"), "|| || ");
    const store::Cursor& record = desk_.Adventure().OpenTable(TableNum::Adventure, "def");
    EXPECT_TRUE(record.IsNull("defpicgraphic"));
    EXPECT_TRUE(record.IsNull("advpicgraphic"));
}

TEST_F(SettingsScreen, SoundPageIsStoredOnlyAfterATest) {
    frmVelAdvSettings screen = Open();
    screen.page = SettingsPage::Sound;
    screen.cboVoice.ChooseNumber(73);
    EXPECT_FALSE(screen.cmdUpdate());
    EXPECT_EQ(Box(), "Error: You must Test Voice before I can update!");
    EXPECT_EQ(screen.Refused(), "cmdTestVoice");
    KeptSound sound;
    EXPECT_TRUE(screen.cmdTestVoice(sound));
    EXPECT_TRUE(screen.cmdUpdate());
    EXPECT_EQ(Stored("defsndvoice"), "73");
}

TEST_F(SettingsScreen, OtherPagesNeedNoTestOfTheVoice) {
    frmVelAdvSettings screen = Open();
    screen.page = SettingsPage::Source;
    screen.txtAuthor = "Ann";
    EXPECT_TRUE(screen.cmdUpdate());
}

TEST_F(SettingsScreen, TestVoicePlaysANoteWithWhatIsChosen) {
    frmVelAdvSettings screen = Open();
    screen.cboDevice.ChooseText("USB keys");
    screen.cboChannel.ChooseNumber(9);
    screen.cboVoice.ChooseNumber(73);
    screen.sldVolume = 90;
    screen.sldBalance = 10;
    screen.sldBass = 20;
    KeptSound sound;
    EXPECT_TRUE(screen.cmdTestVoice(sound));
    EXPECT_EQ(sound.notes, 1);
    EXPECT_EQ(sound.settings.deviceName, "USB keys");
    EXPECT_EQ(sound.settings.device, 1);
    EXPECT_EQ(sound.settings.channel, 9);
    EXPECT_EQ(sound.settings.voice, 73);
    EXPECT_EQ(sound.settings.volume, 90);
    EXPECT_EQ(sound.settings.balance, 10);
    EXPECT_EQ(sound.settings.bass, 20);
}

TEST_F(SettingsScreen, VoiceCountsAsTestedWhereNoDeviceCanPlayIt) {
    frmVelAdvSettings screen = Open();
    screen.page = SettingsPage::Sound;
    screen.cboVoice.ChooseNumber(73);
    engine::SilentPlayer silent;
    EXPECT_FALSE(screen.cmdTestVoice(silent));
    EXPECT_TRUE(screen.cmdUpdate());
}

TEST_F(SettingsScreen, SwitchOfTheSoundSaysWhichWayItStands) {
    frmVelAdvSettings screen = Open();
    screen.chkSound = true;
    EXPECT_EQ(screen.SoundCaption(), "Sound ON");
    screen.chkSound = false;
    EXPECT_EQ(screen.SoundCaption(), "Sound OFF");
}

TEST_F(SettingsScreen, DeviceOfAnotherComputerIsOfferedToo) {
    Set("defsnddevname", std::string("Far away"));
    Set("defsnddev", std::int64_t{5});
    frmVelAdvSettings screen = Open();
    EXPECT_THAT(screen.cboDevice.items,
                ElementsAre(ListItem{0, "MIDI Mapper"}, ListItem{0, "Grand synthesizer"},
                            ListItem{1, "USB keys"}, ListItem{5, "Far away"}));
    EXPECT_EQ(screen.cboDevice.Chosen()->text, "Far away");
}

TEST_F(SettingsScreen, DeviceIsTheMidiMapperUntilOneIsChosen) {
    Set("defsnddevname", std::string(" "));
    EXPECT_EQ(Open().cboDevice.Chosen()->text, "MIDI Mapper");
}

TEST_F(SettingsScreen, ChannelBeyondTheListStays) {
    Set("defsndchan", std::int64_t{16});
    frmVelAdvSettings screen = Open();
    EXPECT_EQ(screen.cboChannel.Chosen(), nullptr);
    screen.txtAuthor = "Ann";
    ASSERT_TRUE(screen.cmdUpdate());
    EXPECT_EQ(Stored("defsndchan"), "16");
}

TEST_F(SettingsScreen, SourceIsOneOfAList) {
    frmVelAdvSettings screen = Open();
    std::vector<std::string> sources;
    for (const ListItem& item : screen.cboSource.items)
        sources.push_back(item.text);
    EXPECT_THAT(sources, ElementsAre("New", "UnVel", "UnMarlo", "PCVel", "ACE", "FabulaExp", "Unknown!"));
    EXPECT_EQ(screen.cboSource.Chosen()->text, "Unknown!");
}

TEST_F(SettingsScreen, SourceThatIsNotInTheListStays) {
    Set("source", std::string("Elsewhere"));
    frmVelAdvSettings screen = Open();
    EXPECT_EQ(screen.cboSource.Chosen(), nullptr);
    screen.txtAuthor = "Ann";
    ASSERT_TRUE(screen.cmdUpdate());
    EXPECT_EQ(Stored("source"), "Elsewhere");
}

TEST_F(SettingsScreen, OffersChannelsVoicesAndSizes) {
    const frmVelAdvSettings screen = Open();
    ASSERT_EQ(screen.cboChannel.items.size(), 16u);
    EXPECT_EQ(screen.cboChannel.items[9].text, " 9");
    EXPECT_EQ(screen.cboChannel.items[15].text, "15");
    ASSERT_EQ(screen.cboVoice.items.size(), 128u);
    EXPECT_EQ(screen.cboVoice.items[127].text, "127-Gunshot");
    ASSERT_EQ(screen.cboFontSize.items.size(), 15u);
    EXPECT_EQ(screen.cboFontSize.items.front().text, "6");
    EXPECT_EQ(screen.cboFontSize.items.back().text, "20");
    ASSERT_EQ(screen.cboFont.items.size(), 27u);
    EXPECT_EQ(screen.cboFont.items[3].text, "3-Verdana");
}

}  // namespace
}  // namespace fabula::authoring
