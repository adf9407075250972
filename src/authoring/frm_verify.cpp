#include "authoring/frm_verify.h"

#include <charconv>

#include "authoring/status_text.h"

namespace fabula::authoring {
namespace {

/// The window gets its turn when the bar has gone so far.
constexpr std::int64_t kStepsAYield = 10;

/// Takes `word` off the front of `text`.
bool Take(std::string_view& text, std::string_view word) {
    if (!text.starts_with(word)) return false;
    text.remove_prefix(word.size());
    return true;
}

bool TakeNumber(std::string_view& text, int& number) {
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc()) return false;
    text.remove_prefix(static_cast<std::size_t>(end - text.data()));
    return true;
}

}  // namespace

frmVerify::frmVerify(store::Adventure& adventure, VerifyTarget target, platform::EventPump& events)
    : adventure_(adventure), target_(target), events_(events) {}

std::string_view frmVerify::Title() const {
    return target_ == VerifyTarget::Play ? "Verify Adventure" : "Verify for export";
}

void frmVerify::Run() {
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

void frmVerify::Finish() {
    running_ = false;
    finished_ = true;
    progress_.clear();
    Show();
}

void frmVerify::cmdOK() {
    cancel_ = true;
    if (!running_) finished_ = true;
}

bool frmVerify::SaveStatus(platform::Dialogs& dialogs) const {
    const auto& file = adventure_.CurrentFile();
    return SaveStatusText(status_, file.parent_path() / (file.stem().string() + "-verify.txt"), dialogs);
}

std::optional<frmVerify::Entry> frmVerify::EntryOf(std::string_view line) {
    Entry entry;
    if (Take(line, "Process Table ") && TakeNumber(line, entry.estype) && Take(line, " Entry # ") &&
        TakeNumber(line, entry.canum) && Take(line, " ("))
        return entry;
    return std::nullopt;
}

void frmVerify::StatusAdded(std::string_view text) {
    status_ += text;
    Show();
}

void frmVerify::StatusCleared() {
    status_.clear();
    Show();
}

void frmVerify::ProgressLine(std::string_view text) {
    progress_ = text;
}

void frmVerify::Progress(std::int64_t value, std::int64_t) {
    if (value / kStepsAYield == yielded_) return;
    yielded_ = value / kStepsAYield;
    Show();
}

void frmVerify::Show() {
    changed();
    events_.Pump();
}

}  // namespace fabula::authoring
