#include "midi/device_output.h"

#include <filesystem>
#include <vector>

#include <rtmidi/RtMidi.h>

#include "platform/error.h"

namespace fabula::midi {

namespace {

/// Where the system has its MIDI devices. Without it the library would complain on the terminal.
constexpr const char* kSequencer = "/dev/snd/seq";

constexpr std::string_view kLoopBack = "Midi Through";

class DeviceOutput final : public Output {
  public:
    explicit DeviceOutput(std::unique_ptr<RtMidiOut> device) : device_(std::move(device)) {}

    void Send(const Message& message) override {
        bytes_.assign({message.status, message.data1});
        if ((message.status & 0xF0) != kProgramChange) bytes_.push_back(message.data2);
        device_->sendMessage(&bytes_);
    }

  private:
    std::unique_ptr<RtMidiOut> device_;
    std::vector<unsigned char> bytes_;
};

/// The numbers of the devices that can be heard.
std::vector<unsigned> Ports(RtMidiOut& devices) {
    std::vector<unsigned> ports;
    for (unsigned port = 0; port < devices.getPortCount(); ++port) {
        if (devices.getPortName(port).find(kLoopBack) == std::string::npos) ports.push_back(port);
    }
    return ports;
}

unsigned Choose(RtMidiOut& devices, const std::vector<unsigned>& ports, const std::string& name,
                int device) {
    for (const unsigned port : ports) {
        if (!name.empty() && devices.getPortName(port).find(name) != std::string::npos) return port;
    }
    const bool numbered = device >= 0 && device < static_cast<int>(ports.size());
    return ports[numbered ? static_cast<std::size_t>(device) : 0];
}

/// What goes wrong behind an open device is nothing that a player could mend.
void Ignore(RtMidiError::Type, const std::string&, void*) {}

bool HasSequencer() {
    std::error_code error;
    return std::filesystem::exists(kSequencer, error);
}

}  // namespace

std::vector<std::string> DeviceNames() {
    if (!HasSequencer()) return {};
    try {
        RtMidiOut devices(RtMidi::LINUX_ALSA, "Fabula");
        devices.setErrorCallback(Ignore, nullptr);
        std::vector<std::string> names;
        for (const unsigned port : Ports(devices))
            names.push_back(devices.getPortName(port));
        return names;
    } catch (const RtMidiError&) {
        // The system has no MIDI at all.
        return {};
    }
}

std::unique_ptr<Output> OpenDevice(const std::string& name, int device) {
    if (!HasSequencer()) return nullptr;
    try {
        auto devices = std::make_unique<RtMidiOut>(RtMidi::LINUX_ALSA, "Fabula");
        devices->setErrorCallback(Ignore, nullptr);
        const std::vector<unsigned> ports = Ports(*devices);
        if (ports.empty()) return nullptr;
        devices->openPort(Choose(*devices, ports, name, device), "Fabula");
        if (!devices->isPortOpen()) throw Error("Could not open the MIDI device.");
        return std::make_unique<DeviceOutput>(std::move(devices));
    } catch (const RtMidiError&) {
        // The system has no MIDI at all.
        return nullptr;
    }
}

}  // namespace fabula::midi
