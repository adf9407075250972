// Any bytes as a saved game: it is refused with nothing changed, or the game goes on from it.

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>

#include <unistd.h>

#include "engine/engine.h"
#include "platform/event_pump.h"
#include "store/create.h"
#include "support/doubles/recording_window.h"
#include "support/doubles/scripted_person.h"
#include "support/places.h"

using namespace fabula;

namespace {

/// One game, made once from the project's own default data.
class GameHarness {
  public:
    GameHarness() {
        std::filesystem::create_directories(folder_);
        const platform::FixedClock clock({2026, 1, 2, 3, 4, 5});
        platform::NoEvents events;
        store::CreateAdventure(folder_ / "game.fbd", store::AdventureSetup(),
                               {person_, clock, events, test::DefaultData()});
        adventure_ = store::Adventure::Open(folder_ / "game.fbd", store::OpenMode::ReadOnly);
        engine_ = std::make_unique<engine::Engine>(
            *adventure_, engine::Host{window_, person_, random_, sound_, nullptr, window_.Parts()});
    }
    ~GameHarness() { std::filesystem::remove_all(folder_); }

    void Load(const std::uint8_t* data, std::size_t size) {
        const auto file = folder_ / "game.sav";
        std::ofstream(file, std::ios::binary)
            .write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
        if (!engine_->Running()) engine_->Initialize();
        engine_->LoadFrom(file);
        engine_->EnterLine("LOOK");
    }

  private:
    const std::filesystem::path folder_ =
        std::filesystem::temp_directory_path() / ("fuzz-" + std::to_string(getpid()));
    platform::ScriptedPerson person_;
    platform::SeededRandom random_{1};
    engine::RecordingWindow window_;
    engine::SilentPlayer sound_;
    std::unique_ptr<store::Adventure> adventure_;
    std::unique_ptr<engine::Engine> engine_;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static GameHarness harness;
    harness.Load(data, size);
    return 0;
}
