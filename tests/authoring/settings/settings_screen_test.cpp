#include "authoring/settings/settings_screen.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "authoring/fields/texts/text_editing.h"
#include "authoring/settings_stand.h"
#include "platform/error.h"

namespace fabula::authoring {
namespace {

using store::TableNum;
using testing::ElementsAre;

/// Keeps what it was asked to play.
class KeptSound final : public engine::SoundPlayer {
  public:
    void Configure(const engine::SoundSettings& given) override { settings = given; }
    void PlayTone(int, std::chrono::milliseconds) override { ++notes; }
    void SetVoice(int) override {}

    engine::SoundSettings settings;
    int notes = 0;
};

TEST_F(SettingsScreenTest, ShowsTheRecord) {
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
    const SettingsScreen screen = Open();
    EXPECT_EQ(screen.kCaption, "Adventure Settings Editor");
    EXPECT_EQ(screen.name, "New Adventure");
    EXPECT_EQ(screen.author, "Ann");
    EXPECT_EQ(screen.saveName, "cave");
    EXPECT_EQ(screen.version, "1.2");
    EXPECT_EQ(screen.startPlace.text, "0");
    EXPECT_EQ(screen.maxObjects, "7");
    EXPECT_EQ(screen.maxWeight, "90");
    EXPECT_EQ(screen.printWidth.Chosen()->number, 80);
    EXPECT_EQ(screen.paper, 15);
    EXPECT_EQ(screen.ink, 0);
    EXPECT_EQ(screen.font.Chosen()->text, "0-Arial");
    EXPECT_EQ(screen.fontSize.Chosen()->text, "12");
    EXPECT_EQ(screen.description, "One.\nTwo.");
    EXPECT_EQ(screen.contactInfo, "Write to me.");
    EXPECT_EQ(screen.defaultPicture, "a.gif");
    EXPECT_EQ(screen.aboutPicture, "b.gif");
    EXPECT_EQ(screen.type.Chosen()->text, "Fabula");
    EXPECT_EQ(screen.source.Chosen()->text, "ACE");
    EXPECT_EQ(screen.device.Chosen()->text, "MIDI Mapper");
    EXPECT_EQ(screen.channel.Chosen()->text, " 0");
    EXPECT_EQ(screen.voice.Chosen()->text, "0-Acoustic Grand Piano");
    EXPECT_EQ(screen.volume, 100);
    EXPECT_EQ(screen.balance, 64);
    EXPECT_EQ(screen.bass, 64);
}

TEST_F(SettingsScreenTest, OfAnAdventureWithoutSettingsFails) {
    desk_.Clear(TableNum::Adventure);
    EXPECT_THROW(Open(), Error);
}

TEST_F(SettingsScreenTest, StoresAllFieldsAsOneChange) {
    AddSet(1, "Runes");
    const test::Snapshot before = desk_.Everything();
    SettingsScreen screen = Open();
    screen.name = "The Cave";
    screen.author = "Ann";
    screen.saveName = " cave ";
    screen.version = "2.0 beta";
    screen.type.ChooseText("VEL");
    screen.maxObjects = " 9 ";
    screen.maxWeight = "120";
    screen.printWidth.ChooseNumber(40);
    screen.paper = 1;
    screen.ink = 14;
    screen.font.ChooseNumber(4);
    screen.fontSize.ChooseNumber(18);
    screen.graphics = true;
    screen.graphicsInDb = true;
    screen.defaultPicture = "a.gif";
    screen.aboutPicture = "b.gif";
    screen.description = "One.\nTwo.";
    screen.contactInfo = "Write.";
    screen.sound = true;
    screen.device.ChooseText("USB keys");
    screen.channel.ChooseNumber(9);
    screen.voice.ChooseNumber(73);
    screen.volume = 90;
    screen.balance = 10;
    screen.bass = 20;
    screen.source.ChooseText("PCVel");
    ASSERT_TRUE(screen.Update());
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

TEST_F(SettingsScreenTest, UpdateRefreshesWhatTheSessionKnows) {
    SettingsScreen screen = Open();
    screen.type.ChooseText("VEL");
    screen.graphics = true;
    ASSERT_TRUE(screen.Update());
    EXPECT_EQ(desk_.Adventure().AdventureType(), "VEL");
    EXPECT_TRUE(desk_.Adventure().GraphicsOn());
}

TEST_F(SettingsScreenTest, KeepsTheSortOrders) {
    Set("sortobjects", std::string("objdesc"));
    SettingsScreen screen = Open();
    screen.author = "Ann";
    ASSERT_TRUE(screen.Update());
    EXPECT_EQ(Stored("sortobjects, sortvocabulary, sorttables, sortcondacts, sortcommands"),
              "objdesc|voctypen, vocnum, word|tablenum, fieldname|canum|conum");
    EXPECT_EQ(desk_.Adventure().Sorts().objects, "objdesc");
}

TEST_F(SettingsScreenTest, UpdateWithoutAChangeStoresNothing) {
    const test::Snapshot before = desk_.Everything();
    SettingsScreen screen = Open();
    EXPECT_TRUE(screen.Update());
    EXPECT_EQ(desk_.Everything(), before);
    EXPECT_EQ(desk_.document.UndoName(), std::nullopt);
}

TEST_F(SettingsScreenTest, UpdateWithoutAChangeChecksAllTheSame) {
    Set("maxobj", std::int64_t{255});
    SettingsScreen screen = Open();
    EXPECT_FALSE(screen.Update());
    EXPECT_EQ(Box(), "Error: Maximum value allowed is 25");
}

TEST_F(SettingsScreenTest, OfFabulaAndVelOffersBoth) {
    const SettingsScreen screen = Open();
    ASSERT_EQ(screen.type.items.size(), 2u);
    EXPECT_EQ(screen.type.items[0].text, "VEL");
    EXPECT_EQ(screen.type.items[1].text, "Fabula");
    EXPECT_EQ(screen.TypeNote(), "VEL && Fabula games may not be changed to Marlo");
    Set("adventype", std::string("VEL"));
    EXPECT_EQ(Open().type.Chosen()->text, "VEL");
}

TEST_F(MarloSettingsScreenTest, TypeOfAMarloGameCannotBeChangedToVel) {
    const SettingsScreen screen = Open();
    ASSERT_EQ(screen.type.items.size(), 1u);
    EXPECT_EQ(screen.type.Chosen()->text, "Marlo");
    EXPECT_EQ(screen.TypeNote(), "Marlo games may not be changed to VEL");
}

TEST_F(MarloSettingsScreenTest, HasNeitherWeightsNorAPrintWidth) {
    Set("maxweight", std::int64_t{33});
    SettingsScreen screen = Open();
    EXPECT_FALSE(screen.HasWeights());
    EXPECT_FALSE(screen.HasPrintWidth());
    screen.maxWeight = "heavy";
    screen.printWidth.ChooseNumber(132);
    EXPECT_TRUE(screen.Update());
    EXPECT_EQ(Stored("maxweight, defprintwidth"), "33|80");
}

TEST_F(SettingsScreenTest, CharacterSetsTakeThePlaceOfFonts) {
    AddSet(1, "Runes");
    SettingsScreen screen = Open();
    screen.font.ChooseNumber(4);
    screen.ClickCharSets(true);
    EXPECT_TRUE(screen.charSets);
    EXPECT_THAT(screen.font.items,
                ElementsAre(ListItem{0, "SET 0000 - Default"}, ListItem{1, "SET 0001 - Runes"}));
    EXPECT_EQ(screen.font.Chosen()->number, 0);
    screen.ClickCharSets(false);
    EXPECT_EQ(screen.font.Chosen()->text, "4-Georgia");
}

TEST_F(SettingsScreenTest, CharacterSetsAreStoredAsTheFont) {
    AddSet(1, "Runes");
    SettingsScreen screen = Open();
    screen.ClickCharSets(true);
    screen.font.ChooseNumber(1);
    ASSERT_TRUE(screen.Update());
    EXPECT_EQ(Stored("charsets, Font"), "1|1");
    EXPECT_EQ(Open().font.Chosen()->text, "SET 0001 - Runes");
}

TEST_F(SettingsScreenTest, WithoutACharacterSetNoneCanBeUsed) {
    desk_.Clear(TableNum::Characters);
    SettingsScreen screen = Open();
    screen.ClickCharSets(true);
    EXPECT_FALSE(screen.Update());
    EXPECT_EQ(Box(), "Error: No font is set");
}

TEST_F(SettingsScreenTest, FontTestShowsWhatIsChosen) {
    SettingsScreen screen = Open();
    screen.font.ChooseNumber(1);
    screen.fontSize.ChooseNumber(20);
    screen.paper = 1;
    screen.ink = 14;
    EXPECT_EQ(screen.FontTest(), (FontSample{"Times New Roman", std::nullopt, 20, 1, 14}));
    screen.ClickCharSets(true);
    EXPECT_EQ(screen.FontTest().charSet, 0);
}

TEST_F(SettingsScreenTest, FontTestOfMissingSettingsStartsFromAriel) {
    Set("Font", {});
    Set("FontSize", {});
    const SettingsScreen screen = Open();
    EXPECT_EQ(screen.FontTest(), (FontSample{"Ariel", std::nullopt, 12, 15, 0}));
}

TEST_F(SettingsScreenTest, TextsAreShownInTheNewFontAfterwards) {
    SettingsScreen screen = Open();
    screen.font.ChooseNumber(4);
    screen.fontSize.ChooseNumber(18);
    ASSERT_TRUE(screen.Update());
    const TextEditing editing(desk_.Adventure());
    EXPECT_EQ(editing.FontName(), "Georgia");
    EXPECT_EQ(editing.FontPoints(), 18);
}

TEST_F(SettingsScreenTest, PrintWidthThatIsNotUsualIsOfferedToo) {
    Set("defprintwidth", std::int64_t{57});
    SettingsScreen screen = Open();
    EXPECT_EQ(screen.printWidth.Chosen()->text, "57");
    const auto& items = screen.printWidth.items;
    EXPECT_TRUE(std::is_sorted(items.begin(), items.end(),
                               [](const ListItem& a, const ListItem& b) { return a.number < b.number; }));
}

TEST_F(SettingsScreenTest, ChoosesPicturesByTheirTitles) {
    MakeFile("a.gif");
    MakeFile("b.gif");
    SettingsScreen screen = Open();
    desk_.dialogs.AnswerFile(desk_.Adventure().GameDir() / "a.gif");
    screen.ChoosePicture();
    desk_.dialogs.AnswerFile(desk_.Adventure().GameDir() / "b.gif");
    screen.ChooseAboutPicture();
    ASSERT_EQ(desk_.dialogs.Questions().size(), 2u);
    EXPECT_EQ(desk_.dialogs.Questions()[0].title, "Load Room Picture");
    EXPECT_EQ(desk_.dialogs.Questions()[1].title, "Load About Adventure Picture");
    ASSERT_TRUE(screen.Update());
    EXPECT_EQ(Stored("defpickey, defpicloc, advpicloc"), "Default|a.gif|b.gif");
}

TEST_F(SettingsScreenTest, PictureThatIsNotChosenStays) {
    Set("defpicloc", std::string("a.gif"));
    SettingsScreen screen = Open();
    desk_.dialogs.AnswerFile(std::nullopt);
    screen.ChoosePicture();
    EXPECT_EQ(screen.defaultPicture, "a.gif");
}

TEST_F(SettingsScreenTest, ClearedPicturesLeaveNothing) {
    Set("defpickey", std::string("Default"));
    for (const char* field : {"defpicloc", "olddefpicloc", "advpicloc", "oldadvpicloc"})
        Set(field, std::string("a.gif"));
    for (const char* field : {"defpicgraphic", "advpicgraphic"})
        Set(field, text::Blob(3));
    SettingsScreen screen = Open();
    screen.ClearPicture();
    screen.ClearAboutPicture();
    ASSERT_TRUE(screen.Update());
    EXPECT_EQ(Stored("defpickey, defpicloc, olddefpicloc, advpicloc, oldadvpicloc"), "|| || ");
    const store::Cursor& record = desk_.Adventure().OpenTable(TableNum::Adventure, "def");
    EXPECT_TRUE(record.IsNull("defpicgraphic"));
    EXPECT_TRUE(record.IsNull("advpicgraphic"));
}

TEST_F(SettingsScreenTest, SoundPageIsStoredOnlyAfterATest) {
    SettingsScreen screen = Open();
    screen.page = SettingsPage::Sound;
    screen.voice.ChooseNumber(73);
    EXPECT_FALSE(screen.Update());
    EXPECT_EQ(Box(), "Error: You must Test Voice before I can update!");
    EXPECT_EQ(screen.Refused(), "testVoice");
    KeptSound sound;
    EXPECT_TRUE(screen.TestVoice(sound));
    EXPECT_TRUE(screen.Update());
    EXPECT_EQ(Stored("defsndvoice"), "73");
}

TEST_F(SettingsScreenTest, OtherPagesNeedNoTestOfTheVoice) {
    SettingsScreen screen = Open();
    screen.page = SettingsPage::Source;
    screen.author = "Ann";
    EXPECT_TRUE(screen.Update());
}

TEST_F(SettingsScreenTest, TestVoicePlaysANoteWithWhatIsChosen) {
    SettingsScreen screen = Open();
    screen.device.ChooseText("USB keys");
    screen.channel.ChooseNumber(9);
    screen.voice.ChooseNumber(73);
    screen.volume = 90;
    screen.balance = 10;
    screen.bass = 20;
    KeptSound sound;
    EXPECT_TRUE(screen.TestVoice(sound));
    EXPECT_EQ(sound.notes, 1);
    EXPECT_EQ(sound.settings.deviceName, "USB keys");
    EXPECT_EQ(sound.settings.device, 1);
    EXPECT_EQ(sound.settings.channel, 9);
    EXPECT_EQ(sound.settings.voice, 73);
    EXPECT_EQ(sound.settings.volume, 90);
    EXPECT_EQ(sound.settings.balance, 10);
    EXPECT_EQ(sound.settings.bass, 20);
}

TEST_F(SettingsScreenTest, VoiceCountsAsTestedWhereNoDeviceCanPlayIt) {
    SettingsScreen screen = Open();
    screen.page = SettingsPage::Sound;
    screen.voice.ChooseNumber(73);
    engine::SilentPlayer silent;
    EXPECT_FALSE(screen.TestVoice(silent));
    EXPECT_TRUE(screen.Update());
}

TEST_F(SettingsScreenTest, SwitchOfTheSoundSaysWhichWayItStands) {
    SettingsScreen screen = Open();
    screen.sound = true;
    EXPECT_EQ(screen.SoundCaption(), "Sound ON");
    screen.sound = false;
    EXPECT_EQ(screen.SoundCaption(), "Sound OFF");
}

TEST_F(SettingsScreenTest, DeviceOfAnotherComputerIsOfferedToo) {
    Set("defsnddevname", std::string("Far away"));
    Set("defsnddev", std::int64_t{5});
    SettingsScreen screen = Open();
    EXPECT_THAT(screen.device.items,
                ElementsAre(ListItem{0, "MIDI Mapper"}, ListItem{0, "Grand synthesizer"},
                            ListItem{1, "USB keys"}, ListItem{5, "Far away"}));
    EXPECT_EQ(screen.device.Chosen()->text, "Far away");
}

TEST_F(SettingsScreenTest, DeviceIsTheMidiMapperUntilOneIsChosen) {
    Set("defsnddevname", std::string(" "));
    EXPECT_EQ(Open().device.Chosen()->text, "MIDI Mapper");
}

TEST_F(SettingsScreenTest, ChannelBeyondTheListStays) {
    Set("defsndchan", std::int64_t{16});
    SettingsScreen screen = Open();
    EXPECT_EQ(screen.channel.Chosen(), nullptr);
    screen.author = "Ann";
    ASSERT_TRUE(screen.Update());
    EXPECT_EQ(Stored("defsndchan"), "16");
}

TEST_F(SettingsScreenTest, SourceIsOneOfAList) {
    SettingsScreen screen = Open();
    std::vector<std::string> sources;
    for (const ListItem& item : screen.source.items)
        sources.push_back(item.text);
    EXPECT_THAT(sources, ElementsAre("New", "UnVel", "UnMarlo", "PCVel", "ACE", "FabulaExp", "Unknown!"));
    EXPECT_EQ(screen.source.Chosen()->text, "Unknown!");
}

TEST_F(SettingsScreenTest, SourceThatIsNotInTheListStays) {
    Set("source", std::string("Elsewhere"));
    SettingsScreen screen = Open();
    EXPECT_EQ(screen.source.Chosen(), nullptr);
    screen.author = "Ann";
    ASSERT_TRUE(screen.Update());
    EXPECT_EQ(Stored("source"), "Elsewhere");
}

TEST_F(SettingsScreenTest, OffersChannelsVoicesAndSizes) {
    const SettingsScreen screen = Open();
    ASSERT_EQ(screen.channel.items.size(), 16u);
    EXPECT_EQ(screen.channel.items[9].text, " 9");
    EXPECT_EQ(screen.channel.items[15].text, "15");
    ASSERT_EQ(screen.voice.items.size(), 128u);
    EXPECT_EQ(screen.voice.items[127].text, "127-Gunshot");
    ASSERT_EQ(screen.fontSize.items.size(), 15u);
    EXPECT_EQ(screen.fontSize.items.front().text, "6");
    EXPECT_EQ(screen.fontSize.items.back().text, "20");
    ASSERT_EQ(screen.font.items.size(), 27u);
    EXPECT_EQ(screen.font.items[3].text, "3-Verdana");
}

}  // namespace
}  // namespace fabula::authoring
