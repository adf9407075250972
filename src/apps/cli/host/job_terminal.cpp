#include "cli/host/job_terminal.h"

#include <csignal>

#include <unistd.h>

#include "text/encoding/safe_text.h"

namespace fabula::cli {
namespace {

/// Set by the signal handler, which can reach nothing else.
volatile std::sig_atomic_t interrupted = 0;

void Interrupt(int signal) {
    interrupted = 1;
    std::signal(signal, SIG_DFL);
}

}  // namespace

JobTerminal::JobTerminal(std::ostream& stream, bool showsProgress)
    : stream_(stream), showsProgress_(showsProgress) {
    // What was started to run undisturbed by Ctrl+C stays so.
    if (std::signal(SIGINT, Interrupt) == SIG_IGN) std::signal(SIGINT, SIG_IGN);
    std::signal(SIGTERM, Interrupt);
}

bool JobTerminal::CancelWanted() {
    return interrupted != 0;
}

void JobTerminal::StatusAdded(std::string_view text) {
    ClearProgress();
    stream_ << text::SafeLines(text);
}

void JobTerminal::ProgressLine(std::string_view text) {
    if (!showsProgress_) return;
    std::cerr << "\r" << text::SafeLines(text) << "\x1B[K" << std::flush;
    progressShown_ = true;
}

void JobTerminal::Progress(std::int64_t value, std::int64_t maximum) {
    if (!showsProgress_ || maximum <= 0) return;
    const std::int64_t percent = value * 100 / maximum;
    if (percent == shownPercent_) return;
    shownPercent_ = percent;
    ProgressLine(std::to_string(percent) + "%");
}

void JobTerminal::ClearProgress() {
    if (!progressShown_) return;
    std::cerr << "\r\x1B[K" << std::flush;
    progressShown_ = false;
}

bool ErrorsGoToTerminal() {
    return isatty(STDERR_FILENO) != 0;
}

}  // namespace fabula::cli
