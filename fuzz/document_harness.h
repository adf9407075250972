#pragma once

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>

#include <unistd.h>

#include "authoring/document/document.h"
#include "platform/clock.h"
#include "platform/event_pump.h"
#include "store/create.h"
#include "support/doubles/scripted_person.h"
#include "support/places.h"

namespace fabula::fuzz {

/// An adventure on the author's desk, made once, for readers that change it; what they change is undone.
class DocumentHarness {
  public:
    DocumentHarness()
        : folder(std::filesystem::temp_directory_path() / ("fuzz-" + std::to_string(getpid()))),
          source(folder / "source.txt") {
        std::filesystem::create_directories(folder);
        platform::ScriptedPerson person;
        const platform::FixedClock clock({2026, 1, 2, 3, 4, 5});
        platform::NoEvents events;
        store::CreateAdventure(folder / "game.fbd", store::AdventureSetup(),
                               {person, clock, events, test::DefaultData()});
        document = std::make_unique<authoring::Document>(folder / "game.fbd");
    }
    DocumentHarness(const DocumentHarness&) = delete;
    DocumentHarness& operator=(const DocumentHarness&) = delete;
    ~DocumentHarness() {
        document.reset();
        std::error_code ignored;
        std::filesystem::remove_all(folder, ignored);
    }

    void Write(const std::uint8_t* data, std::size_t size) const {
        std::ofstream(source, std::ios::binary)
            .write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
    }
    void UndoAll() const {
        while (document->UndoName())
            document->Undo();
    }

    const std::filesystem::path folder;
    const std::filesystem::path source;
    std::unique_ptr<authoring::Document> document;
};

}  // namespace fabula::fuzz
