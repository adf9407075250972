#include "player/play/preferred_sound.h"

namespace fabula::player {

PreferredSound::PreferredSound(engine::SoundPlayer& player) : player_(player) {
    SetSilent(player.IsSilent());
}

void PreferredSound::SetChoice(const SoundChoice& choice) {
    if (choice == choice_) return;
    choice_ = choice;
    Apply();
}

void PreferredSound::Configure(const engine::SoundSettings& settings) {
    game_ = settings;
    Apply();
}

void PreferredSound::Apply() {
    engine::SoundSettings wanted = game_;
    if (!choice_.device.empty()) wanted.deviceName = choice_.device;
    wanted.volume = game_.volume * choice_.volume / 100;
    player_.Configure(wanted);
    SetSilent(player_.IsSilent());
}

void PreferredSound::PlayTone(int note, std::chrono::milliseconds length) {
    player_.PlayTone(note, length);
    SetSilent(player_.IsSilent());
}

void PreferredSound::SetVoice(int voice) {
    game_.voice = voice;
    player_.SetVoice(voice);
}

}  // namespace fabula::player
