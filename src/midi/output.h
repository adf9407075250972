#pragma once

#include <cstdint>

namespace fabula::midi {

/// A short message: a status with the channel in its low four bits, and one or two bytes of data.
struct Message {
    std::uint8_t status = 0;
    std::uint8_t data1 = 0;
    std::uint8_t data2 = 0;

    friend bool operator==(const Message&, const Message&) = default;
};

inline constexpr int kNoteOff = 128;
inline constexpr int kNoteOn = 144;
inline constexpr int kProgramChange = 192;  ///< without a second byte of data

/// An open MIDI device, or something that stands in for one.
class Output {
  public:
    virtual ~Output() = default;

    /// Sends at once. A device that is gone swallows the message.
    virtual void Send(const Message& message) = 0;
};

}  // namespace fabula::midi
