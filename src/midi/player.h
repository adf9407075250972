#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <string>

#include "engine/sound_player.h"
#include "midi/output.h"
#include "platform/timers.h"

namespace fabula::midi {

/// Opens what tones are sent to: a device of the system, else the synthesizer. Throws fabula::Error when
/// there is neither.
std::unique_ptr<Output> OpenOutput(const std::string& deviceName, int device);

/// Plays a game's tones through MIDI. The output is opened at the first tone. When that fails it is told
/// once, and the player is silent until the next game.
class Player final : public engine::SoundPlayer {
  public:
    using Opener = std::function<std::unique_ptr<Output>(const std::string& deviceName, int device)>;
    using Tell = std::function<void(const std::string& sentence)>;

    Player(platform::Timers& timers, Opener open, Tell tell);
    ~Player() override;

    void Configure(const engine::SoundSettings& settings) override;
    void PlayTone(int note, std::chrono::milliseconds length) override;
    void SetVoice(int voice) override;

  private:
    bool OpenMidi();
    void CloseMIDI();
    void SendVoice();
    void EndTone();

    Opener open_;
    Tell tell_;
    platform::Alarm soundTimer_;
    engine::SoundSettings settings_;
    int channel_ = 0;
    int playing_ = kNothing;
    std::unique_ptr<Output> output_;

    static constexpr int kNothing = -1;
};

}  // namespace fabula::midi
