#include <iostream>
#include <sstream>

#include "cli/verbs.h"
#include "engine/output/script.h"
#include "platform/error.h"
#include "platform/whole_file.h"
#include "store/file/file_copy.h"
#include "terminal/line_reader.h"
#include "terminal/player_files.h"
#include "terminal/terminal_game.h"
#include "terminal/unified_diff.h"
#include "text/encoding/safe_text.h"

namespace fabula::cli {
namespace {

/// The largest transcript that is compared, in bytes.
constexpr std::uintmax_t kLargestTranscript = 256 * 1024 * 1024;

struct TestOptions {
    std::string file;
    std::string script;
    std::string transcript;
    std::uint32_t seed = 1;
    bool update = false;
};

/// The typed lines of a script that the game itself wrote, which holds what was shown too.
class RecordedLines final : public terminal::LineSource {
  public:
    explicit RecordedLines(const std::filesystem::path& file) { script_.Load(file); }

    terminal::TypedLine Read(const terminal::Question&) override {
        const auto line = script_.NextInput();
        if (!line) return {};
        return {terminal::TypedLine::Kind::Line, *line};
    }

  private:
    engine::Script script_;
};

std::unique_ptr<terminal::LineSource> LinesOf(const std::filesystem::path& file) {
    engine::Script script;
    script.Load(file);
    if (script.NextInput()) return std::make_unique<RecordedLines>(file);
    return std::make_unique<terminal::LineReader>(file);
}

std::string PlayScript(const TestOptions& options) {
    const auto adventure = OpenToRead(options.file);
    const auto script = LinesOf(options.script);
    const terminal::ScratchFiles files(std::filesystem::path(options.script).parent_path());
    std::ostringstream played;
    engine::Transcript transcript(played);
    terminal::Output nowhere(terminal::Output::kNowhere);
    terminal::Screen screen({}, nowhere, *script, &transcript);
    terminal::TerminalWindow window(screen, files);
    terminal::PlayInTerminal(*adventure, window, screen, {.seed = options.seed});
    return played.str();
}

std::filesystem::path ExpectedFile(const TestOptions& options) {
    std::filesystem::path file = options.transcript;
    if (file.empty()) file = std::filesystem::path(options.script).replace_extension("transcript");
    if (file == options.script || store::IsSameFile(file, options.script))
        throw UsageError("the script can't be its own transcript");
    return file;
}

std::string ReadExpected(const std::filesystem::path& file) {
    std::error_code error;  // what can't be looked at can't be read either
    if (!std::filesystem::exists(file, error))
        throw Error("Could not read " + file.string() + "; --update writes it.");
    return platform::ReadWholeFile(file, kLargestTranscript, "read the transcript " + file.string());
}

void WriteExpected(const std::filesystem::path& file, const std::string& transcript) {
    store::CheckTarget(file, store::Content::Text);
    store::WriteFile(file, transcript);
}

int Test(const TestOptions& options) {
    const std::filesystem::path expectedFile = ExpectedFile(options);
    const std::string played = PlayScript(options);
    if (options.update) {
        WriteExpected(expectedFile, played);
        return kDone;
    }
    const std::string difference =
        terminal::UnifiedDiff(ReadExpected(expectedFile), played, expectedFile.string(), "played");
    std::cout << text::SafeLines(difference);
    return difference.empty() ? kDone : kFailed;
}

}  // namespace

void AddTestVerb(CLI::App& verb, Chosen& chosen) {
    const auto options = std::make_shared<TestOptions>();
    verb.footer(
        "Shows nothing and ends with 0 when the transcript is the expected one, else shows the difference\n"
        "and ends with 1. SCRIPT has one command a line, as 'fabula play' reads them from a pipe; a\n"
        "script that a game has recorded will do, of which the lines that begin with >> are played. Files "
        "that\n"
        "the game saves live as long as the test.");
    AddAdventureOption(verb, options->file)->required();
    verb.add_option("script", options->script, "The commands")->required();
    verb.add_option("--transcript", options->transcript,
                    "The expected transcript; else SCRIPT with the extension .transcript");
    verb.add_option("--seed", options->seed, "Draw the random numbers of this seed")->capture_default_str();
    verb.add_flag("--update", options->update, "Write the transcript instead of comparing it");
    Runs(verb, chosen, options, Test);
}

}  // namespace fabula::cli
