#pragma once

#include "engine/game_window.h"

namespace fabula::engine {

/// The parts of a host's window, each of which can be asked whether the host has it or not.
class HostParts final : private GameEvents,
                        private InputLine,
                        private PictureScreen,
                        private StatusLine,
                        private GameTimers {
  public:
    explicit HostParts(const WindowParts& parts)
        : events(parts.events ? *parts.events : *this),
          input(parts.input ? *parts.input : *this),
          pictures(parts.pictures ? *parts.pictures : *this),
          status(parts.status ? *parts.status : *this),
          timers(parts.timers ? *parts.timers : *this),
          measures(parts.measures ? *parts.measures : unlimited_) {}
    HostParts(const HostParts&) = delete;
    HostParts& operator=(const HostParts&) = delete;

    GameEvents& events;
    InputLine& input;
    PictureScreen& pictures;
    StatusLine& status;
    GameTimers& timers;
    const PaneMeasures& measures;

  private:
    const PaneMeasures unlimited_;

    // What stands in for a part that the host lacks.
    void StartGame(const GameLook&) override {}
    void EndGame() override {}
    void ShowInput(std::string_view, std::string_view) override {}
    void EndInput(std::string_view) override {}
    void ShowPicture(const Picture&) override {}
    void HidePicture() override {}
    void ShowStatus(StatusField, std::string_view) override {}
    void EnableNext(bool) override {}
    void StartTimeOut(std::chrono::milliseconds) override {}
    void StopTimeOut() override {}
    void StartWait(std::chrono::milliseconds) override {}
};

}  // namespace fabula::engine
