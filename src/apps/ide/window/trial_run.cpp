#include "ide/window/trial_run.h"

#include <QEvent>

#include "platform/error.h"

namespace fabula::ide {

TrialRun::TrialRun(const authoring::Trial& run, const player::WindowServices& services,
                   const platform::DateTime& begun, std::function<void()> ended)
    : dialogs_(services.dialogs), ended_(std::move(ended)) {
    player::WindowServices testing = services;
    testing.isTrial = true;
    if (run.trace) {
        traceFile_ = run.file.parent_path() / engine::TraceFileName(begun);
        trace_.emplace(traceFile_, engine::TraceHeader(run.file, begun));
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
    try {
        trace_->Finish();
    } catch (const Error& error) {
        dialogs_.Tell(error.what(), "Error");
    }
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
