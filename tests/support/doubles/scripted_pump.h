#pragma once

#include <functional>

#include "platform/event_pump.h"

namespace fabula::test {

/// A window that does something at each of its turns.
class ScriptedPump final : public platform::EventPump {
  public:
    std::function<void()> atTurn = [] {};
    int turns = 0;

    void Pump() override {
        ++turns;
        atTurn();
    }
};

}  // namespace fabula::test
