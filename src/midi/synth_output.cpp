#include "midi/synth_output.h"

#include <array>

#include <fluidsynth.h>

#include "platform/error.h"

namespace fabula::midi {

namespace {

constexpr int kBlock = 64;

constexpr std::array<const char*, 3> kSoundFonts = {
    "/usr/share/sounds/sf2/default-GM.sf2",
    "/usr/share/sounds/sf2/TimGM6mb.sf2",
    "/usr/share/sounds/sf2/FluidR3_GM.sf2",
};

/// The ways to the loudspeakers, the usual one of today first.
constexpr std::array<const char*, 3> kDrivers = {"pipewire", "pulseaudio", "alsa"};

struct Deleter {
    void operator()(fluid_settings_t* settings) const { delete_fluid_settings(settings); }
    void operator()(fluid_synth_t* synth) const { delete_fluid_synth(synth); }
    void operator()(fluid_audio_driver_t* driver) const { delete_fluid_audio_driver(driver); }
    void operator()(fluid_file_renderer_t* renderer) const { delete_fluid_file_renderer(renderer); }
};
template <typename Part>
using Owned = std::unique_ptr<Part, Deleter>;

}  // namespace

// Destroyed from the last to the first.
struct SynthOutput::Parts {
    Owned<fluid_settings_t> settings{new_fluid_settings()};
    Owned<fluid_synth_t> synth;
    Owned<fluid_audio_driver_t> driver;
    Owned<fluid_file_renderer_t> renderer;
};

std::optional<std::filesystem::path> FindSoundFont() {
    for (const char* file : kSoundFonts) {
        std::error_code error;
        if (std::filesystem::is_regular_file(file, error)) return file;
    }
    return std::nullopt;
}

void SynthOutput::Load(const std::filesystem::path& soundFont) {
    // The library speaks to the terminal otherwise.
    for (const int level : {FLUID_PANIC, FLUID_ERR, FLUID_WARN, FLUID_INFO})
        fluid_set_log_function(level, nullptr, nullptr);
    parts_ = std::make_unique<Parts>();
    fluid_settings_t* settings = parts_->settings.get();
    fluid_settings_setnum(settings, "synth.sample-rate", kSampleRate);
    fluid_settings_setnum(settings, "synth.gain", 0.6);
    fluid_settings_setint(settings, "synth.dynamic-sample-loading", 1);
    parts_->synth.reset(new_fluid_synth(settings));
    if (!parts_->synth || fluid_synth_sfload(parts_->synth.get(), soundFont.c_str(), 1) == FLUID_FAILED)
        throw Error("Could not load the sound font " + soundFont.string() + ".");
}

SynthOutput::SynthOutput(const std::filesystem::path& soundFont) {
    Load(soundFont);
    for (const char* driver : kDrivers) {
        if (fluid_settings_setstr(parts_->settings.get(), "audio.driver", driver) == FLUID_FAILED) continue;
        parts_->driver.reset(new_fluid_audio_driver(parts_->settings.get(), parts_->synth.get()));
        if (parts_->driver) return;
    }
    throw Error("Could not open the loudspeakers.");
}

SynthOutput::SynthOutput(const std::filesystem::path& soundFont, const std::filesystem::path& file) {
    Load(soundFont);
    fluid_settings_t* settings = parts_->settings.get();
    fluid_settings_setstr(settings, "audio.file.name", file.c_str());
    fluid_settings_setstr(settings, "audio.file.type", "raw");
    fluid_settings_setint(settings, "audio.period-size", kBlock);
    parts_->renderer.reset(new_fluid_file_renderer(parts_->synth.get()));
    if (!parts_->renderer) throw Error("Could not write the sound file " + file.string() + ".");
}

SynthOutput::~SynthOutput() = default;

void SynthOutput::Send(const Message& message) {
    fluid_synth_t* synth = parts_->synth.get();
    const int channel = message.status & 0x0F;
    switch (message.status & 0xF0) {
        case kNoteOn:
            fluid_synth_noteon(synth, channel, message.data1, message.data2);
            break;
        case kNoteOff:
            fluid_synth_noteoff(synth, channel, message.data1);
            break;
        case kProgramChange:
            fluid_synth_program_change(synth, channel, message.data1);
            break;
        default:
            break;
    }
}

void SynthOutput::Render(std::chrono::milliseconds time) {
    for (auto samples = time.count() * kSampleRate / 1000; samples > 0; samples -= kBlock)
        fluid_file_renderer_process_block(parts_->renderer.get());
}

}  // namespace fabula::midi
