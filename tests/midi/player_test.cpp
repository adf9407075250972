#include "midi/player.h"

#include <vector>

#include <gtest/gtest.h>

#include "platform/error.h"
#include "support/doubles/manual_timers.h"

namespace fabula::midi {
namespace {

using std::chrono::milliseconds;
using Messages = std::vector<Message>;

class PlayedEvents final : public Output {
  public:
    explicit PlayedEvents(Messages& sent) : sent_(sent) {}
    void Send(const Message& message) override { sent_.push_back(message); }

  private:
    Messages& sent_;
};

/// Volume 64 on channel 0 with voice 0.
engine::SoundSettings Settings() {
    engine::SoundSettings settings;
    settings.volume = 64;
    return settings;
}

engine::SoundSettings OnDevice(const std::string& name, int device) {
    engine::SoundSettings settings = Settings();
    settings.deviceName = name;
    settings.device = device;
    return settings;
}

class PlayerTest : public testing::Test {
  protected:
    Player::Opener Open() {
        return [this](const std::string& name, int device) -> std::unique_ptr<Output> {
            opened_.push_back(name + "#" + std::to_string(device));
            if (broken_) throw Error("There is no MIDI device.");
            return std::make_unique<PlayedEvents>(sent_);
        };
    }

    Messages sent_;
    std::vector<std::string> opened_;
    std::vector<std::string> told_;
    bool broken_ = false;
    platform::ManualTimers timers_;
    Player player_{timers_, Open(), [this](const std::string& sentence) { told_.push_back(sentence); }};
};

TEST_F(PlayerTest, ToneIsANoteOnAndAfterItsLengthANoteOff) {
    engine::SoundSettings settings;
    settings.channel = 3;
    settings.voice = 19;
    settings.volume = 100;
    player_.Configure(settings);
    player_.PlayTone(9, milliseconds(500));
    EXPECT_FALSE(player_.IsSilent());
    EXPECT_EQ(sent_, (Messages{{195, 19, 0}, {147, 69, 100}}));
    timers_.Advance(milliseconds(499));
    EXPECT_EQ(sent_.size(), 2U);
    timers_.Advance(milliseconds(1));
    EXPECT_EQ(sent_.back(), (Message{131, 69, 0}));
}

TEST_F(PlayerTest, NextToneEndsTheOneBefore) {
    player_.Configure(Settings());
    player_.PlayTone(0, milliseconds(500));
    player_.PlayTone(2, milliseconds(500));
    EXPECT_EQ(sent_, (Messages{{192, 0, 0}, {144, 60, 64}, {128, 60, 0}, {144, 62, 64}}));
}

TEST_F(PlayerTest, NegativeNotesLieBelowMiddleC) {
    player_.Configure(Settings());
    player_.PlayTone(-60, milliseconds(10));
    EXPECT_EQ(sent_.back(), (Message{144, 0, 64}));
}

TEST_F(PlayerTest, NoteThatNoDeviceHasSendsNothing) {
    player_.Configure(Settings());
    for (const int note : {-61, 68, 65535})
        player_.PlayTone(note, milliseconds(10));
    EXPECT_TRUE(sent_.empty());
    EXPECT_TRUE(opened_.empty());
}

TEST_F(PlayerTest, HighestNoteOfMidiIsPlayed) {
    player_.Configure(Settings());
    player_.PlayTone(67, milliseconds(10));
    EXPECT_EQ(sent_, (Messages{{192, 0, 0}, {144, 127, 64}}));
}

TEST_F(PlayerTest, VoiceIsAProgramChange) {
    engine::SoundSettings settings = Settings();
    settings.channel = 1;
    player_.Configure(settings);
    player_.PlayTone(0, milliseconds(10));
    player_.SetVoice(40);
    EXPECT_EQ(sent_.back(), (Message{193, 40, 0}));
}

TEST_F(PlayerTest, VoiceThatWasSetBeforeTheFirstToneIsSentWithIt) {
    player_.Configure(Settings());
    player_.SetVoice(40);
    EXPECT_TRUE(sent_.empty());
    player_.PlayTone(0, milliseconds(10));
    EXPECT_EQ(sent_.front(), (Message{192, 40, 0}));
}

TEST_F(PlayerTest, ChannelAndVolumeStayInTheRangeOfMidi) {
    engine::SoundSettings settings;
    settings.channel = 16;
    settings.volume = 1000;
    player_.Configure(settings);
    player_.PlayTone(0, milliseconds(10));
    EXPECT_EQ(sent_.back(), (Message{159, 60, 127}));
}

TEST_F(PlayerTest, ChannelAndVolumeAndVoiceBelowZeroCountAsZero) {
    engine::SoundSettings settings;
    settings.channel = -1;
    settings.volume = -1;
    settings.voice = -1;
    player_.Configure(settings);
    player_.PlayTone(0, milliseconds(10));
    EXPECT_EQ(sent_, (Messages{{192, 0, 0}, {144, 60, 0}}));
}

TEST_F(PlayerTest, NextGameOnTheSameDeviceEndsTheToneAndSendsItsVoice) {
    player_.Configure(Settings());
    player_.PlayTone(0, milliseconds(500));
    sent_.clear();
    engine::SoundSettings next = Settings();
    next.voice = 7;
    player_.Configure(next);
    EXPECT_EQ(sent_, (Messages{{128, 60, 0}, {192, 7, 0}}));
}

TEST_F(PlayerTest, GameWithTheDeviceOfAnotherNumberOpensThatOne) {
    player_.Configure(OnDevice("", 2));
    player_.PlayTone(0, milliseconds(10));
    player_.Configure(OnDevice("", 3));
    player_.PlayTone(0, milliseconds(10));
    EXPECT_EQ(opened_, (std::vector<std::string>{"#2", "#3"}));
}

TEST_F(PlayerTest, EndOfThePlayerEndsItsTone) {
    {
        Player player(timers_, Open(), [](const auto&) {});
        player.Configure(Settings());
        player.PlayTone(0, milliseconds(500));
    }
    EXPECT_EQ(sent_.back(), (Message{128, 60, 0}));
}

TEST_F(PlayerTest, DeviceIsOpenedAtTheFirstToneAndKept) {
    player_.Configure(OnDevice("MIDI Mapper", 2));
    EXPECT_TRUE(opened_.empty());
    player_.PlayTone(0, milliseconds(10));
    player_.Configure(OnDevice("MIDI Mapper", 2));
    player_.PlayTone(0, milliseconds(10));
    EXPECT_EQ(opened_, std::vector<std::string>{"MIDI Mapper#2"});
}

TEST_F(PlayerTest, GameWithAnotherDeviceOpensThatOne) {
    player_.Configure(OnDevice("A", 2));
    player_.PlayTone(0, milliseconds(10));
    player_.Configure(OnDevice("B", 2));
    EXPECT_EQ(sent_.back(), (Message{128, 60, 0}));
    player_.PlayTone(0, milliseconds(10));
    EXPECT_EQ(opened_, (std::vector<std::string>{"A#2", "B#2"}));
}

TEST_F(PlayerTest, DeviceThatCanNotBeOpenedIsToldOnceAndTheGameGoesOnSilently) {
    broken_ = true;
    player_.Configure(Settings());
    player_.PlayTone(0, milliseconds(10));
    EXPECT_TRUE(player_.IsSilent());
    player_.PlayTone(0, milliseconds(10));
    EXPECT_TRUE(player_.IsSilent());
    EXPECT_EQ(told_, std::vector<std::string>{"The game goes on without sound. There is no MIDI device."});
    EXPECT_EQ(opened_.size(), 1U);
}

TEST_F(PlayerTest, NextGameTriesTheDeviceAgain) {
    broken_ = true;
    player_.Configure(Settings());
    player_.PlayTone(0, milliseconds(10));
    broken_ = false;
    player_.Configure(Settings());
    EXPECT_FALSE(player_.IsSilent());
    player_.PlayTone(0, milliseconds(10));
    EXPECT_EQ(sent_.back(), (Message{144, 60, 64}));
}

}  // namespace
}  // namespace fabula::midi
