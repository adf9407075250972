#include "authoring/document/document.h"

#include <stdexcept>
#include <utility>

namespace fabula::authoring {

Document::Document(const std::filesystem::path& file, store::OpenMode mode)
    : Document(mode == store::OpenMode::ReadOnly ? store::Adventure::Open(file, mode)
                                                 : store::Adventure::OpenForChange(file),
               mode) {}

Document::Document(std::unique_ptr<store::Adventure> adventure, store::OpenMode mode)
    : adventure_(std::move(adventure)) {
    if (mode == store::OpenMode::ReadOnly) return;
    try {
        log_.emplace(adventure_->CurrentFile());
    } catch (const Error& failure) {
        throw store::OpenError(store::Refusal::CannotBeWritten, failure.what());
    }
}

std::optional<std::string> Document::UndoName() const {
    if (done_.empty()) return std::nullopt;
    return done_.back().name;
}

std::optional<std::string> Document::RedoName() const {
    if (undone_.empty()) return std::nullopt;
    return undone_.back().name;
}

std::optional<Place> Document::UndoPlace() const {
    return done_.empty() ? std::nullopt : done_.back().place;
}

std::optional<Place> Document::RedoPlace() const {
    return undone_.empty() ? std::nullopt : undone_.back().place;
}

void Document::PlaceLatest(int count, const Place& place) {
    for (auto step = done_.rbegin(); step != done_.rend() && count > 0; ++step, --count)
        step->place = place;
}

std::set<store::TableNum> Document::Undo() {
    if (done_.empty()) return {};
    const std::string changes = log_->Get(done_.back().changes);
    store::TakeBack(*adventure_, changes);
    undone_.push_back(std::move(done_.back()));
    done_.pop_back();
    adventure_->ReadSettings();
    TellOf(changes);
    return store::TablesOf(changes);
}

std::set<store::TableNum> Document::Redo() {
    if (undone_.empty()) return {};
    const std::string changes = log_->Get(undone_.back().changes);
    store::DoAgain(*adventure_, changes);
    done_.push_back(std::move(undone_.back()));
    undone_.pop_back();
    adventure_->ReadSettings();
    TellOf(changes);
    return store::TablesOf(changes);
}

void Document::SaveAs(const std::filesystem::path& file) {
    adventure_->SaveCopy(file);
    auto copy = store::Adventure::OpenForChange(file);
    if (!log_) log_.emplace(copy->CurrentFile());
    adventure_ = std::move(copy);
}

void Document::Add(Step step) {
    ++changes_;
    Forget(undone_);
    done_.push_back(std::move(step));
    if (done_.size() <= kMostChanges) return;
    log_->Remove(done_.front().changes);
    done_.pop_front();
}

void Document::Replace(Step& step, std::int64_t changes) {
    Forget(undone_);
    log_->Remove(step.changes);
    step.changes = changes;
}

void Document::Forget(std::deque<Step>& steps) {
    for (const Step& step : steps)
        log_->Remove(step.changes);
    steps.clear();
}

void Document::TellOf(std::string_view changes) const {
    if (onChange) onChange(changes);
}

void Document::CheckMayChange() {
    const store::Transaction nothing(*adventure_);
}

Change::Change(Document& document, std::string name)
    : document_(document), name_(std::move(name)), transaction_(document.Adventure()) {
    if (document_.depth_ == 0) recorder_.emplace(document.Adventure());
    ++document_.depth_;
}

Change::Change(Document& document, WithLatest) : Change(document, document.UndoName().value_or("")) {
    if (document.done_.empty()) throw std::logic_error("There is no change to join to.");
    joins_ = true;
}

Change::~Change() {
    End();
}

void Change::End() {
    if (open_) --document_.depth_;
    open_ = false;
}

void Change::Commit() {
    if (recorder_)
        CommitAsStep();
    else
        transaction_.Commit();
    End();
}

void Change::CommitAsStep() {
    const std::string changes = recorder_->Changes();
    if (changes.empty()) return transaction_.Commit();
    // First the log, then the file: nothing is changed that could not be taken back.
    if (!joins_) {
        Document::Step step{name_, document_.log_->Add(changes)};
        transaction_.Commit();
        document_.Add(std::move(step));
        return document_.TellOf(changes);
    }
    Document::Step& latest = document_.done_.back();
    const std::string before = document_.log_->Get(latest.changes);
    const std::int64_t joined = document_.log_->Add(store::Joined(before, changes));
    transaction_.Commit();
    document_.Replace(latest, joined);
    document_.TellOf(changes);
}

}  // namespace fabula::authoring
