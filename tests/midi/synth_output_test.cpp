#include "midi/synth_output.h"

#include <cstdint>
#include <fstream>
#include <vector>

#include <gtest/gtest.h>

#include "midi/player.h"
#include "platform/error.h"
#include "support/doubles/manual_timers.h"
#include "support/games/game_builder.h"

namespace fabula::midi {
namespace {

using std::chrono::milliseconds;

/// The left side of a sound file.
std::vector<double> Samples(const std::filesystem::path& file) {
    std::ifstream input(file, std::ios::binary);
    std::vector<double> samples;
    std::int16_t both[2];
    while (input.read(reinterpret_cast<char*>(both), sizeof both))
        samples.push_back(both[0]);
    return samples;
}

/// How often the sound from `begin` on repeats itself in a second: the length of the shift by which it is
/// most like itself, to a fraction of a sample.
double PitchOf(const std::vector<double>& samples, std::size_t begin) {
    constexpr std::size_t kWindow = 8192;
    constexpr std::size_t kShortest = 40;  // 1,100 Hz
    constexpr std::size_t kLongest = 400;  // 110 Hz
    std::vector<double> likeness(kLongest + 2);
    for (std::size_t shift = kShortest - 1; shift < likeness.size(); ++shift) {
        for (std::size_t i = begin; i < begin + kWindow; ++i)
            likeness[shift] += samples[i] * samples[i + shift];
    }
    double best = 0;
    for (std::size_t shift = kShortest; shift <= kLongest; ++shift)
        best = std::max(best, likeness[shift]);
    // The first shift that is nearly as good is one period; the later ones are several.
    std::size_t period = kShortest;
    while (likeness[period] < 0.9 * best || likeness[period] < likeness[period - 1] ||
           likeness[period] < likeness[period + 1])
        ++period;
    const double left = likeness[period - 1];
    const double middle = likeness[period];
    const double right = likeness[period + 1];
    const double fraction = 0.5 * (left - right) / (left - 2 * middle + right);
    return SynthOutput::kSampleRate / (static_cast<double>(period) + fraction);
}

double Loudness(const std::vector<double>& samples, std::size_t begin, std::size_t end) {
    double sum = 0;
    for (std::size_t i = begin; i < end; ++i)
        sum += samples[i] * samples[i];
    return sum / static_cast<double>(end - begin);
}

/// Plays a game whose process 1 is one BEEP, through the synthesizer into a file of 900 ms.
std::vector<double> RenderBeep(const std::string& beep) {
    const test::TempFolder folder;
    test::GameBuilder game;
    game.Setting("sound", 1).Setting("defsndvoice", 80).Setting("defsndvol", 100).Entry(1, "_", "_", beep);
    game.Write(folder / "game.fbd");
    const auto adventure = store::Adventure::Open(folder / "game.fbd", store::OpenMode::ReadOnly);

    auto synth = std::make_unique<SynthOutput>(FindSoundFont().value(), folder / "sound.raw");
    SynthOutput& rendered = *synth;
    platform::ManualTimers timers;
    Player player(
        timers, [&](const std::string&, int) { return std::move(synth); }, [](const auto&) {});
    engine::RecordingWindow window;
    platform::ScriptedPerson person;
    test::QueuedRandom random;
    engine::Engine engine(*adventure, {window, person, random, player, nullptr, window.Parts()});
    engine.Initialize();
    for (int step = 0; step < 90; ++step) {
        rendered.Render(milliseconds(10));
        timers.Advance(milliseconds(10));
    }
    return Samples(folder / "sound.raw");
}

TEST(SynthOutput, BeepsHaveTheirPitchWithinOnePercent) {
    struct Beep {
        int pitch;
        double frequency;
    };
    for (const Beep beep : {Beep{96, 130.813}, Beep{120, 261.626}, Beep{138, 440.0}, Beep{144, 523.251}}) {
        const auto samples = RenderBeep("BEEP 60 " + std::to_string(beep.pitch));
        EXPECT_NEAR(PitchOf(samples, 8820), beep.frequency, beep.frequency * 0.01);
    }
}

TEST(SynthOutput, BeepLastsTenMillisecondsForEachUnit) {
    const auto samples = RenderBeep("BEEP 30 138");
    const double during = Loudness(samples, 8820, 12348);
    EXPECT_GT(during, 1000.0);
    EXPECT_LT(Loudness(samples, 30870, 39690), during / 100);
}

/// When a sound is last as loud as a tenth of `during`, in milliseconds.
double EndOf(const std::vector<double>& samples, double during) {
    constexpr std::size_t kStep = 441;  // 10 ms
    std::size_t end = 0;
    for (std::size_t begin = 0; begin + kStep <= samples.size(); begin += kStep) {
        if (Loudness(samples, begin, begin + kStep) > during / 10) end = begin + kStep;
    }
    return static_cast<double>(end) * 1000 / SynthOutput::kSampleRate;
}

TEST(SynthOutput, BeepOfTwiceTheLengthEndsThatMuchLater) {
    const auto shorter = RenderBeep("BEEP 30 138");
    const auto longer = RenderBeep("BEEP 60 138");
    const double during = Loudness(shorter, 8820, 12348);
    // The voice rings on for a moment when its note has ended.
    EXPECT_NEAR(EndOf(shorter, during), 300, 100);
    EXPECT_NEAR(EndOf(longer, during) - EndOf(shorter, during), 300, 10);
}

TEST(SynthOutput, NoteEndsOnTheChannelThatItBeganOn) {
    const test::TempFolder folder;
    {
        SynthOutput synth(FindSoundFont().value(), folder / "sound.raw");
        synth.Send({kProgramChange + 3, 80, 0});
        synth.Send({kNoteOn + 3, 69, 100});
        synth.Render(milliseconds(300));
        synth.Send({kNoteOff + 3, 69, 0});
        synth.Render(milliseconds(600));
    }
    const auto samples = Samples(folder / "sound.raw");
    const double during = Loudness(samples, 8820, 12348);
    EXPECT_GT(during, 1000.0);
    EXPECT_LT(Loudness(samples, 30870, 38000), during / 100);
}

TEST(SynthOutput, SoundFileThatCanNotBeWrittenIsAnError) {
    const test::TempFolder folder;
    EXPECT_THROW(SynthOutput(FindSoundFont().value(), folder / "none" / "sound.raw"), Error);
}

TEST(SynthOutput, SoundFontThatIsNoneIsAnError) {
    const test::TempFolder folder;
    EXPECT_THROW(SynthOutput(folder / "none.sf2", folder / "sound.raw"), Error);
}

}  // namespace
}  // namespace fabula::midi
