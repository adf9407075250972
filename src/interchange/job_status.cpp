#include "interchange/job_status.h"

#include "text/utf8.h"

namespace fabula::interchange {
namespace {

/// How much of a faulty line is shown, in characters.
constexpr std::size_t kShownOfALine = 200;

}  // namespace

void JobStatus::AddToStatus(std::string_view text) {
    if (text::EqualsNoCase(text, "cls")) {
        text_.clear();
        observer_.StatusCleared();
        return;
    }
    text_ += text;
    observer_.StatusAdded(text);
}

void JobStatus::AddToStatusCR(std::string_view text) {
    AddToStatus(std::string(text) + "\n");
}

void JobStatus::AddFault(std::string_view message, const SourcePlace& place) {
    AddToStatusCR(message);
    AddToStatusCR("    " + place.file.filename().string() + ":" + std::to_string(place.line) + ": " +
                  std::string(text::Left(place.text, kShownOfALine)));
    if (++faults_ >= kMostFaults) throw TooManyFaults();
}

void JobStatus::AddLoss(std::string_view message) {
    AddToStatusCR(message);
    ++losses_;
}

void JobStatus::StartBar(std::int64_t maximum) {
    maximum_ = maximum;
    SetBar(0);
}

void JobStatus::IncBar(std::int64_t step) {
    SetBar(value_ + step);
}

void JobStatus::SetBar(std::int64_t value) {
    value_ = value;
    observer_.Progress(value_, maximum_);
    if (observer_.CancelWanted()) throw JobCancelled();
}

}  // namespace fabula::interchange
