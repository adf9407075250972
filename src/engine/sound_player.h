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

/// The notes that there are, counted in half tones from the channel's note offset.
inline constexpr int kLowestNote = -60;
inline constexpr int kHighestNote = 67;

/// What plays a game's notes. A player whose device fails goes silent and tells it once; it never throws.
class SoundPlayer {
  public:
    virtual ~SoundPlayer() = default;

    /// Nothing sounds, so that there is nothing to wait for. The player keeps this true by itself: nobody
    /// is asked when it is read.
    bool IsSilent() const { return silent_; }

    /// A game starts with these settings.
    virtual void Configure(const SoundSettings& settings) = 0;
    /// Starts a note, kLowestNote to kHighestNote, that ends by itself. Returns at once.
    virtual void PlayTone(int note, std::chrono::milliseconds length) = 0;
    virtual void SetVoice(int voice) = 0;

  protected:
    void SetSilent(bool silent) { silent_ = silent; }

  private:
    bool silent_ = false;
};

/// For programs without sound.
class SilentPlayer final : public SoundPlayer {
  public:
    SilentPlayer() { SetSilent(true); }
    void Configure(const SoundSettings&) override {}
    void PlayTone(int, std::chrono::milliseconds) override {}
    void SetVoice(int) override {}
};

}  // namespace fabula::engine
