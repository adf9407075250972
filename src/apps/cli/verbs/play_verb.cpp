#include <filesystem>
#include <fstream>
#include <vector>

#include <unistd.h>

#include "cli/host/terminal_person.h"
#include "cli/target.h"
#include "cli/verbs.h"
#include "engine/output/trace_file.h"
#include "platform/clock.h"
#include "platform/error.h"
#include "store/extensions.h"
#include "store/file/temporary_file.h"
#include "terminal/line_editor.h"
#include "terminal/line_reader.h"
#include "terminal/terminal_game.h"
#include "terminal/tty.h"

namespace fabula::cli {
namespace {

struct PlayOptions {
    std::string file;
    std::string script;
    std::string transcript;
    std::string trace;
    std::string origins;
    std::optional<std::uint32_t> seed;
    int width = 0;
    bool plain = false;
    bool realTime = false;
    bool debug = false;
    bool force = false;
};

std::unique_ptr<terminal::LineSource> OpenInput(const PlayOptions& options) {
    std::unique_ptr<terminal::LineSource> typed;
    if (terminal::IsInteractive()) {
        typed = std::make_unique<terminal::LineEditor>();
    } else {
        typed = std::make_unique<terminal::LineReader>(STDIN_FILENO);
    }
    if (options.script.empty()) return typed;
    return std::make_unique<terminal::LineSequence>(std::make_unique<terminal::LineReader>(options.script),
                                                    std::move(typed));
}

/// The files that a game is played with besides its own. A file that is read or written already is no
/// target: what it holds would be lost.
class FilesInUse {
  public:
    void Add(const std::string& file) {
        if (!file.empty()) files_.emplace_back(file);
    }
    /// Throws fabula::Error when `file` is one of them; a device or a pipe may be.
    void CheckUnused(const std::string& file) const {
        if (store::IsStream(file)) return;
        for (const std::filesystem::path& used : files_) {
            if (store::IsSameFile(file, used))
                throw Error("Could not write " + file + ": another option names it too.");
        }
    }

  private:
    std::vector<std::filesystem::path> files_;
};

/// A text that is written as the game runs, when the command line names a file for it.
class Record {
  public:
    Record(const std::string& file, const PlayOptions& options, FilesInUse& inUse, platform::Person& person)
        : file_(file) {
        if (file.empty()) return;
        inUse.CheckUnused(file);
        CheckTarget({file, store::Content::Text, {}, options.file, options.force}, person);
        stream_.open(file, std::ios::binary);
        if (!stream_) throw Error("Could not write " + file + ".");
        inUse.Add(file);
    }

    bool IsWanted() const { return !file_.empty(); }
    std::ostream& Stream() { return stream_; }

    /// Throws fabula::Error when not all of it could be written; `what` names it: "transcript".
    void Finish(const std::string& what) {
        if (IsWanted()) stream_.close();
        if (!stream_) throw Error("Could not write all of the " + what + " " + file_ + ".");
    }

  private:
    const std::string& file_;
    std::ofstream stream_;
};

int Play(const PlayOptions& options) {
    const auto adventure = OpenToRead(options.file);
    const std::unique_ptr<terminal::LineSource> input = OpenInput(options);
    TerminalPerson person;
    FilesInUse inUse;
    inUse.Add(options.script);
    Record transcriptFile(options.transcript, options, inUse, person);
    std::optional<engine::Transcript> transcript;
    if (transcriptFile.IsWanted()) transcript.emplace(transcriptFile.Stream());
    Record originsFile(options.origins, options, inUse, person);
    std::optional<engine::OriginLog> origins;
    if (originsFile.IsWanted()) origins.emplace(originsFile.Stream());
    std::optional<engine::TraceFile> trace;
    if (!options.trace.empty()) {
        inUse.CheckUnused(options.trace);
        CheckTarget(
            {options.trace, store::Content::Text, store::extension::kTrace, options.file, options.force},
            person);
        trace.emplace(options.trace, engine::TraceHeader(options.file, platform::SystemClock().Now()));
    }

    const bool interactive = terminal::IsInteractive();
    terminal::ScreenStyle style;
    style.interactive = interactive;
    style.attributes = interactive && !options.plain && terminal::HasColours();
    style.width = options.width;
    terminal::Output output(STDOUT_FILENO);
    terminal::Screen screen(style, output, *input, transcript ? &*transcript : nullptr);
    const terminal::NamedFiles files;
    terminal::TerminalWindow window(screen, files);
    const bool ended =
        terminal::PlayInTerminal(*adventure, window, screen,
                                 {options.seed, interactive || options.realTime, options.debug,
                                  trace ? &*trace : nullptr, origins ? &*origins : nullptr});
    transcriptFile.Finish("transcript");
    originsFile.Finish("list of origins");
    if (trace) trace->Finish();
    return ended ? kDone : kFailed;
}

}  // namespace

void AddPlayVerb(CLI::App& verb, Chosen& chosen) {
    const auto options = std::make_shared<PlayOptions>();
    verb.footer(
        "In a terminal lines are edited and remembered, and time passes as in the game's own window.\n"
        "From a pipe or a file nothing is echoed, pauses pass at once, and an empty line stands for a\n"
        "time-out when the game waits with one. Before each line is read a \">\" stands at the head of a\n"
        "line as the last character of the output. The end of the input ends the game.");
    AddAdventureOption(verb, options->file)->required();
    verb.add_option("--script", options->script, "Take commands from this file first");
    verb.add_option("--transcript", options->transcript, "Write all that is shown and typed to this file");
    verb.add_option("--trace", options->trace, "Write what the engine does to this file");
    verb.add_option("--origins", options->origins,
                    "Write where each text came from to this file: the entry and action, the record, and "
                    "the text, with tabs between them");
    verb.add_option("--seed", options->seed, "Draw the random numbers of this seed");
    verb.add_option("--width", options->width, "Break lines at this many columns")
        ->check(CLI::Range(10, 10000));
    verb.add_flag("--plain", options->plain, "No colours and looks");
    verb.add_flag("--real-time", options->realTime,
                  "Let pauses and time-outs take their time in a pipe, too");
    verb.add_flag("--debug", options->debug,
                  "Lines that begin with \":\" look into the game: \":F38\", \":=5\"");
    AddForceFlag(verb, options->force);
    Runs(verb, chosen, options, Play);
}

}  // namespace fabula::cli
