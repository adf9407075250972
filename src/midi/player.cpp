#include "midi/player.h"

#include <algorithm>
#include <utility>

#include "midi/device_output.h"
#include "midi/synth_output.h"
#include "platform/error.h"

namespace fabula::midi {

namespace {

constexpr int kHighestChannel = 15;
constexpr int kHighestData = 127;
/// Note 0 of a game is middle C.
constexpr int kNoteOffset = 60;
static_assert(engine::kLowestNote + kNoteOffset == 0 && engine::kHighestNote + kNoteOffset == kHighestData);

std::uint8_t Data(int value) {
    return static_cast<std::uint8_t>(std::clamp(value, 0, kHighestData));
}

std::uint8_t Status(int kind, int channel) {
    return static_cast<std::uint8_t>(kind + channel);
}

}  // namespace

std::unique_ptr<Output> OpenOutput(const std::string& deviceName, int device) {
    if (auto opened = OpenDevice(deviceName, device)) return opened;
    const auto soundFont = FindSoundFont();
    if (!soundFont) throw Error("There is no MIDI device and no sound font.");
    return std::make_unique<SynthOutput>(*soundFont);
}

Player::Player(platform::Timers& timers, Opener open, Tell tell)
    : open_(std::move(open)), tell_(std::move(tell)), soundTimer_(timers, [this] { EndTone(); }) {}

Player::~Player() {
    CloseMIDI();
}

void Player::Configure(const engine::SoundSettings& settings) {
    const bool otherDevice =
        settings.device != settings_.device || settings.deviceName != settings_.deviceName;
    EndTone();
    if (otherDevice) CloseMIDI();
    settings_ = settings;
    channel_ = std::clamp(settings.channel, 0, kHighestChannel);
    SetSilent(false);
    SendVoice();
}

bool Player::OpenMidi() {
    if (output_) return true;
    if (IsSilent()) return false;
    try {
        output_ = open_(settings_.deviceName, settings_.device);
    } catch (const Error& error) {
        SetSilent(true);
        tell_(std::string("The game goes on without sound. ") + error.what());
        return false;
    }
    SendVoice();
    return true;
}

void Player::CloseMIDI() {
    EndTone();
    output_.reset();
}

void Player::SendVoice() {
    if (output_) output_->Send({Status(kProgramChange, channel_), Data(settings_.voice)});
}

void Player::PlayTone(int note, std::chrono::milliseconds length) {
    if (note < engine::kLowestNote || note > engine::kHighestNote || !OpenMidi()) return;
    const int key = note + kNoteOffset;
    EndTone();
    output_->Send({Status(kNoteOn, channel_), Data(key), Data(settings_.volume)});
    playing_ = key;
    soundTimer_.Start(length);
}

void Player::EndTone() {
    soundTimer_.Stop();
    const int key = std::exchange(playing_, kNothing);
    if (key != kNothing && output_) output_->Send({Status(kNoteOff, channel_), Data(key)});
}

void Player::SetVoice(int voice) {
    settings_.voice = voice;
    SendVoice();
}

}  // namespace fabula::midi
