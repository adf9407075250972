#pragma once

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>

#include <unistd.h>

#include "interchange/file_kinds.h"
#include "interchange/shared/job_status.h"
#include "platform/clock.h"
#include "platform/error.h"
#include "platform/event_pump.h"
#include "store/adventure.h"
#include "store/create.h"
#include "support/doubles/scripted_person.h"
#include "support/places.h"

namespace fabula::fuzz {

/// A new adventure, made once, into which one kind of source after another is read; each reading is undone.
class ReaderHarness {
  public:
    explicit ReaderHarness(const char* kind, store::AdventureKind type)
        : kind_(*interchange::FindFileKind(kind)),
          folder_(std::filesystem::temp_directory_path() / ("fuzz-" + std::to_string(getpid()))),
          source_(folder_ / "source.txt") {
        std::filesystem::create_directories(folder_);
        store::AdventureSetup setup;
        setup.ChooseType(type);
        platform::ScriptedPerson person;
        const platform::FixedClock clock({2026, 1, 2, 3, 4, 5});
        platform::NoEvents events;
        store::CreateAdventure(folder_ / "game.fbd", setup, {person, clock, events, test::DefaultData()});
        adventure_ = store::Adventure::Open(folder_ / "game.fbd");
    }
    ReaderHarness(const ReaderHarness&) = delete;
    ReaderHarness& operator=(const ReaderHarness&) = delete;
    ~ReaderHarness() {
        adventure_.reset();
        std::error_code ignored;
        std::filesystem::remove_all(folder_, ignored);
    }

    void Read(const std::uint8_t* data, std::size_t size) {
        std::ofstream(source_, std::ios::binary)
            .write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
        platform::ScriptedPerson person;
        interchange::NoObserver nobody;
        interchange::JobStatus status(nobody);
        interchange::ImportContext context{source_, *adventure_, person, status};
        const store::Transaction undone(*adventure_);
        try {
            kind_.setup(source_);
            kind_.read(context);
        } catch (const Error&) {
        } catch (const interchange::TooManyFaults&) {
        }
    }

  private:
    const interchange::FileKind& kind_;
    std::filesystem::path folder_;
    std::filesystem::path source_;
    std::unique_ptr<store::Adventure> adventure_;
};

}  // namespace fabula::fuzz
