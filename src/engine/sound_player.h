#pragma once

#include <chrono>
#include <string>

namespace fabula::engine {

/// The sound defaults of a game, as its settings hold them.
struct SoundSettings {
    int channel = 0;  ///< 0 to 16
    int device = 0;
    std::string deviceName;
    int voice = 0;  ///< MIDI program
    int volume = 0;
    int balance = 0;
    int bass = 0;
};

/// What plays a game's notes. A player whose device fails goes silent and tells it once; it never throws.
class SoundPlayer {
  public:
    virtual ~SoundPlayer() = default;

    /// A game starts with these settings.
    virtual void Configure(const SoundSettings& settings) = 0;
    /// Starts a note that ends by itself. `note` counts half tones from the channel's note offset and may
    /// be negative. Returns at once; false when nothing sounds, so that there is nothing to wait for.
    virtual bool PlayTone(int note, std::chrono::milliseconds length) = 0;
    virtual void SetVoice(int voice) = 0;
};

/// For programs without sound.
class SilentPlayer final : public SoundPlayer {
  public:
    void Configure(const SoundSettings&) override {}
    bool PlayTone(int, std::chrono::milliseconds) override { return false; }
    void SetVoice(int) override {}
};

}  // namespace fabula::engine
