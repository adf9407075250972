#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/dialogs.h"
#include "platform/event_pump.h"
#include "platform/programs.h"
#include "platform/settings.h"

namespace fabula::authoring {

/// The decompilers that this screen knows how to call.
enum class Decompiler { UnMarlo, UnVel };

/// What the screen needs of its program.
struct DecompileHost {
    platform::Dialogs& dialogs;
    platform::EventPump& events;
    platform::Settings& settings;
    platform::Programs& programs;
};

/// Runs a decompiler that the author has on a game of an older engine, and keeps what it writes as a
/// listing, which an import reads.
class DecompileScreen {
  public:
    explicit DecompileScreen(const DecompileHost& host);

    static constexpr std::string_view kTitle = "Decompile an Older Game";

    /// The options, in their order: "&UnMarlo", "Un&Vel".
    static constexpr std::array<std::string_view, 2> kOptions = {"&UnMarlo", "Un&Vel"};

    /// Nothing is chosen at first.
    std::optional<Decompiler> chosen;
    std::array<std::string, 2> programs;  ///< the file of each decompiler, as it is remembered
    std::string input;                    ///< the older game
    std::string output;                   ///< the listing
    bool passL = false;                   ///< UnMarlo gets the option -L too

    /// Ask for the files. A program of another name is refused; an input proposes the output beside it.
    void FindProgram(Decompiler decompiler);
    void ChooseInput();
    void ChooseOutput();

    /// Runs the chosen program and shows the listing. Nothing while one runs. True when there is a listing;
    /// else a file that was there before is as it was.
    bool Run();
    /// Ends the program that runs; what it has written goes.
    void Cancel() { cancel_ = true; }

    bool Running() const { return running_; }
    const std::string& Status() const { return status_; }
    /// What is being written, and how much of it there is: "game.unq: 4,096 bytes"; "" while nothing runs.
    std::string ProgressLine() const;

    /// Called when what is shown has changed.
    std::function<void()> changed = [] {};

  private:
    /// One call of a program.
    struct Step {
        std::vector<std::string> arguments;
        std::filesystem::path output;
    };

    bool MayRun();
    bool HasProgram(Decompiler decompiler);
    std::vector<Step> Steps() const;
    bool RunSteps();
    bool RunStep(const Step& step);
    bool GoesOn(const std::filesystem::path& written);
    bool Keep(const platform::ProgramEnd& end, const Step& step, const std::filesystem::path& written);
    void Say(std::string_view text);
    void RememberFolder(const std::filesystem::path& file);
    std::filesystem::path LastFolder() const;

    DecompileHost host_;
    std::filesystem::path agreed_;  ///< a file that its dialog has asked about already
    std::string status_;
    std::filesystem::path writing_;
    std::uintmax_t bytes_ = 0;
    bool cancel_ = false;
    bool tooMuch_ = false;
    bool running_ = false;
};

}  // namespace fabula::authoring
