#pragma once

#include <string>

#include "engine/sound_player.h"

namespace fabula::player {

/// What the player wants of the sound otherwise than the game has it.
struct SoundChoice {
    std::string device{};  ///< the name of a device; "" for the game's own
    int volume = 100;      ///< in percent of the game's own, 0 to 100

    friend bool operator==(const SoundChoice&, const SoundChoice&) = default;
};

/// Hands a game's tones on, as the player wants to hear them.
class PreferredSound final : public engine::SoundPlayer {
  public:
    explicit PreferredSound(engine::SoundPlayer& player);

    /// From the next tone on.
    void SetChoice(const SoundChoice& choice);

    void Configure(const engine::SoundSettings& settings) override;
    void PlayTone(int note, std::chrono::milliseconds length) override;
    void SetVoice(int voice) override;

  private:
    void Apply();

    engine::SoundPlayer& player_;
    engine::SoundSettings game_;
    SoundChoice choice_;
};

}  // namespace fabula::player
