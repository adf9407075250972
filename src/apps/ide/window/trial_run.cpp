#include "ide/window/trial_run.h"

#include <QEvent>
#include <cstdlib>

#include "text/format.h"

namespace fabula::ide {
namespace {

/// "game.fbd 2026-01-31 23:59:59 COMPUTER"
std::string TraceHeader(const std::filesystem::path& file, const platform::DateTime& begun) {
    std::string header = file.string() + text::FormatText(" !%z4!-!%z2!-!%z2! !%z2!:!%z2!:!%z2",
                                                          {begun.year, begun.month, begun.day, begun.hour,
                                                           begun.minute, begun.second});
    if (const char* computer = std::getenv("COMPUTER")) header += " " + std::string(computer);
    return header;
}

}  // namespace

TrialRun::TrialRun(const authoring::TestRun& run, const player::WindowServices& services,
                   const platform::DateTime& begun, std::function<void()> ended)
    : dialogs_(services.dialogs), ended_(std::move(ended)) {
    player::WindowServices testing = services;
    testing.testRun = true;
    if (run.trace) {
        traceFile_ = run.file.parent_path() / engine::TraceFileName(begun);
        trace_.emplace(traceFile_, TraceHeader(run.file, begun));
        testing.trace = &*trace_;
        testing.options.traceFile = run.debugAtOnce;
    }
    window_ = std::make_unique<player::PlayerWindow>(testing);
    window_->installEventFilter(this);
    window_->OpenAtStart(run.file);
    window_->show();
    window_->activateWindow();
}

TrialRun::~TrialRun() = default;

void TrialRun::FinishTrace() {
    if (!trace_ || traceFinished_) return;
    traceFinished_ = true;
    if (!trace_->Finish())
        dialogs_.Tell("Could not write all of the trace " + traceFile_.string() + ".", "Error");
}

bool TrialRun::eventFilter(QObject*, QEvent* event) {
    // The window is at work on the event that hides it: the owner may end it afterwards.
    if (event->type() == QEvent::Hide && !event->spontaneous())
        QMetaObject::invokeMethod(
            this,
            [this] {
                FinishTrace();
                ended_();
            },
            Qt::QueuedConnection);
    return false;
}

}  // namespace fabula::ide
