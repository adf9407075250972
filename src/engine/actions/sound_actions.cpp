#include "engine/actions/sound_actions.h"

#include <cmath>

#include "engine/actions/flag_actions.h"
#include "engine/actions/print_actions.h"
#include "engine/actions/state_actions.h"
#include "engine/game.h"

namespace fabula::engine {

namespace {

using std::chrono::milliseconds;

milliseconds PauseLength(int value) {
    return milliseconds(value > 0 ? value * 20 : 0);
}

/// Half tones from the middle C of the channel; a half goes to the even note.
int NoteOf(int pitch) {
    return static_cast<int>(std::nearbyint(pitch / 2.0 - 60));
}

constexpr int kSeriesDuration = 5;
constexpr int kRepeatedPitch = 120;
constexpr int kLowestPitch = 100;

void AddTone(Game& game, int pitch) {
    game.tones.push_back({kSeriesDuration, pitch, true});
}

/// Starts a tone. How long it sounds: not at all with the sound off, without anything that plays it, and
/// for a note that there is not.
milliseconds StartTone(Game& game, const Tone& tone) {
    const int note = NoteOf(tone.pitch);
    if (!game.sitting.soundOn || note < kLowestNote || note > kHighestNote) return milliseconds(0);
    const milliseconds length(tone.duration > 0 ? tone.duration * 10 : 0);
    game.host.sound.PlayTone(note, length);
    // What plays it may be found missing at the first tone.
    return game.host.sound.IsSilent() ? milliseconds(0) : length;
}

bool RisingTones(Game& game, int value) {
    for (int i = 0; i <= value; ++i)
        AddTone(game, kLowestPitch + i);
    return true;
}

bool FallingTones(Game& game, int value) {
    for (int i = value; i >= 0; --i)
        AddTone(game, kLowestPitch + i);
    return true;
}

bool RepeatedTones(Game& game, int value) {
    for (int i = 0; i < value; ++i)
        AddTone(game, kRepeatedPitch);
    return true;
}

bool RestartGame(Game& game) {
    game.restart = true;
    game.done = true;
    game.SetFlag(flag::kEnded, kSet);
    return true;
}

/// What PAUSE does in "marlo" while flag 28 holds 1 to 21. The tones of a series wait to be played.
bool PauseFunction(Game& game, int function, int value) {
    constexpr int kRamSaveValue = 50;
    if (function <= 6 && function != 4) game.host.sound.SetVoice(game.data.soundSettings.voice);
    switch (function) {
        case 1:
            return RisingTones(game, value);
        case 3:
            return FallingTones(game, value);
        case 2:
        case 5:
        case 6:
            return RepeatedTones(game, value);
        case 7:
        case 8:
            return CharSet(game, value);
        case 11:
            return Let(game, flag::kPauseFunction, value);
        case 12:
        case 13:
            return RestartGame(game);
        case 14:
            return Plus(game, flag::kPauseFunction, value);
        case 15:
            return Minus(game, flag::kMaxObjects, value);
        case 19:
            return Graphic(game, value);
        case 21:
            return value == kRamSaveValue ? RamSave(game) : RamLoad(game, FlagNumber(value));
        default:
            return true;  // 4, 9, 10, 16, 17, 18 and 20 have no effect here
    }
}

/// Runs the function that flag 28 asks of a PAUSE; false when it asks for none.
bool RunPauseFunction(Game& game, int value) {
    constexpr int kHighestFunction = 21;
    const int function = game.IsMarlo() ? game.Flag(flag::kPauseFunction) : 0;
    if (function < 1 || function > kHighestFunction) return false;
    PauseFunction(game, function, value);
    Clear(game, flag::kPauseFunction);
    return true;
}

/// The PAUSE behind a tone: how long it waits.
milliseconds PauseBehind(Game& game, const Tone& tone) {
    const int value = game.Flag(flag::kBeepPause);
    if (value != 0 && !tone.ofSeries && RunPauseFunction(game, value)) return milliseconds(0);
    return PauseLength(value);
}

}  // namespace

bool Pause(Game& game, int value) {
    if (RunPauseFunction(game, value)) {
        PlayTones(game);
        return true;
    }
    game.runner.Wait(PauseLength(value));
    return true;
}

bool Beep(Game& game, int duration, int pitch) {
    game.tones.push_back({duration, pitch});
    PlayTones(game);
    return true;
}

bool Sound(Game& game, int voice) {
    game.host.sound.SetVoice(voice);
    return true;
}

bool PlayTones(Game& game) {
    while (!game.tones.empty()) {
        const Tone tone = game.tones.front();
        game.tones.pop_front();
        const milliseconds sounds = StartTone(game, tone);
        const milliseconds wait = sounds + PauseBehind(game, tone);
        if (wait.count() == 0) continue;
        game.runner.Wait(wait);
        return true;
    }
    return false;
}

}  // namespace fabula::engine
