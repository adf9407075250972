#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace fabula::platform {

/// How another program is run: directly, never through a shell, so that names may hold what they like.
struct ProgramCall {
    std::filesystem::path program;  ///< absolute
    std::vector<std::string> arguments;
    std::filesystem::path output;  ///< the file that receives its standard output
    std::filesystem::path folder;  ///< in which it works
};

/// How a program came to its end.
struct ProgramEnd {
    enum class How {
        Exited,
        Crashed,
        Stopped,  ///< it was ended because its caller wanted no more of it
    };
    How how = How::Exited;
    int status = 0;      ///< it exited with
    std::string errors;  ///< the start of what it wrote to its standard error, as it came
};

/// Other programs of the system.
class Programs {
  public:
    virtual ~Programs() = default;

    /// Runs a program until its end; its standard input is empty. `goesOn` is called several times a second
    /// meanwhile, and the program is ended when it gives false. Throws fabula::Error when the program can't
    /// be started.
    virtual ProgramEnd Run(const ProgramCall& call, const std::function<bool()>& goesOn) = 0;

    /// Shows a text file in the system's own viewer of texts. False when the system has none.
    virtual bool ShowText(const std::filesystem::path& file) = 0;

    /// How much of what a program writes to its standard error is kept, in bytes.
    static constexpr std::size_t kMostErrors = 16 * 1024;
};

}  // namespace fabula::platform
