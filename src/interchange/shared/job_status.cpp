#include "interchange/shared/job_status.h"

#include <algorithm>
#include <utility>

#include "text/encoding/utf8.h"

namespace fabula::interchange {

std::string Fault::Line() const {
    const std::string what = entry.empty() ? message : entry + ": " + message;
    if (!place) return what;
    return place->file.string() + ":" + std::to_string(place->line) + ":" + std::to_string(place->column) +
           ": fault: " + what;
}

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

void JobStatus::AddFault(std::string_view message, const SourcePlace& place, std::string_view entry) {
    std::string line(message);
    std::replace(line.begin(), line.end(), '\n', ' ');
    Report({std::move(line), place, std::string(entry)});
    if (Faults() >= kMostFaults) throw TooManyFaults();
}

void JobStatus::Report(Fault fault, std::string_view text) {
    AddToStatusCR(text);
    faults_.push_back(std::move(fault));
}

void JobStatus::Report(Fault fault) {
    const std::string line = fault.Line();
    Report(std::move(fault), line);
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
