#pragma once

#include <chrono>
#include <filesystem>
#include <memory>
#include <optional>

#include "midi/output.h"

namespace fabula::midi {

/// The General MIDI sound font of the system, or nullopt when none is installed.
std::optional<std::filesystem::path> FindSoundFont();

/// Synthesizes what it is sent with a sound font.
class SynthOutput final : public Output {
  public:
    /// Plays on the system's loudspeakers. Throws fabula::Error.
    explicit SynthOutput(const std::filesystem::path& soundFont);

    /// Writes to a file instead: 16-bit samples, left and right in turn, kSampleRate a second. The time of
    /// the file passes by Render alone. Throws fabula::Error.
    SynthOutput(const std::filesystem::path& soundFont, const std::filesystem::path& file);

    ~SynthOutput() override;

    void Send(const Message& message) override;
    void Render(std::chrono::milliseconds time);

    static constexpr int kSampleRate = 44100;

  private:
    struct Parts;

    void Load(const std::filesystem::path& soundFont);

    std::unique_ptr<Parts> parts_;
};

}  // namespace fabula::midi
