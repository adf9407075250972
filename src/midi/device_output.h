#pragma once

#include <memory>
#include <string>
#include <vector>

#include "midi/output.h"

namespace fabula::midi {

/// The MIDI devices of the system that can be heard, by number; none when it has none.
std::vector<std::string> DeviceNames();

/// Opens a MIDI device of the system: the one called `name`, or else the one with the number `device`, or
/// else the first. nullptr when the system has none. The system's own loop-back, which nobody hears, counts
/// as none. Throws fabula::Error when a device can't be opened.
std::unique_ptr<Output> OpenDevice(const std::string& name, int device);

}  // namespace fabula::midi
