#include "authoring/jobs/verify_screen.h"

#include "authoring/jobs/status_text.h"
#include "text/numbers.h"

namespace fabula::authoring {
namespace {

/// The window gets its turn when the bar has gone so far.
constexpr std::int64_t kVerifyStepsAYield = 10;

/// Takes `word` off the front of `text`.
bool Take(std::string_view& text, std::string_view word) {
    if (!text.starts_with(word)) return false;
    text.remove_prefix(word.size());
    return true;
}

}  // namespace

VerifyScreen::VerifyScreen(store::Adventure& adventure, VerifyTarget target, platform::EventPump& events)
    : adventure_(adventure), target_(target), events_(events) {}

std::string_view VerifyScreen::Title() const {
    return target_ == kForPlay ? "Verify Adventure" : "Verify for export";
}

void VerifyScreen::Run() {
    if (running_ || finished_) return;
    running_ = true;
    interchange::JobStatus status(*this);
    try {
        passed_ = VerifyAdventure(adventure_, target_, status);
    } catch (const interchange::JobCancelled&) {
        status.AddToStatusCR("Verify cancelled");
    } catch (...) {
        Finish();
        throw;
    }
    Finish();
}

void VerifyScreen::Finish() {
    running_ = false;
    finished_ = true;
    progress_.clear();
    Show();
}

void VerifyScreen::Ok() {
    cancel_ = true;
    if (!running_) finished_ = true;
}

bool VerifyScreen::SaveStatus(platform::Dialogs& dialogs) const {
    const auto& file = adventure_.CurrentFile();
    return SaveStatusText(status_, file.parent_path() / (file.stem().string() + "-verify.txt"), dialogs);
}

std::optional<VerifyScreen::Entry> VerifyScreen::EntryOf(std::string_view line) {
    if (!Take(line, "Process Table ")) return std::nullopt;
    const std::optional<int> table = text::TakeNumber(line);
    if (!table || !Take(line, " Entry # ")) return std::nullopt;
    const std::optional<int> entry = text::TakeNumber(line);
    if (!entry || !Take(line, " (")) return std::nullopt;
    return Entry{*table, *entry};
}

void VerifyScreen::StatusAdded(std::string_view text) {
    status_ += text;
    Show();
}

void VerifyScreen::StatusCleared() {
    status_.clear();
    Show();
}

void VerifyScreen::ProgressLine(std::string_view text) {
    progress_ = text;
}

void VerifyScreen::Progress(std::int64_t value, std::int64_t) {
    if (value / kVerifyStepsAYield == yielded_) return;
    yielded_ = value / kVerifyStepsAYield;
    Show();
}

void VerifyScreen::Show() {
    changed();
    events_.Pump();
}

}  // namespace fabula::authoring
