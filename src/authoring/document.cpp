#include "authoring/document.h"

#include <utility>

namespace fabula::authoring {

Document::Document(const std::filesystem::path& file)
    : adventure_(store::Adventure::Open(file)), log_(adventure_->CurrentFile()) {}

std::optional<std::string> Document::UndoName() const {
    if (done_.empty()) return std::nullopt;
    return done_.back().name;
}

std::optional<std::string> Document::RedoName() const {
    if (undone_.empty()) return std::nullopt;
    return undone_.back().name;
}

std::set<store::TableNum> Document::Undo() {
    if (done_.empty()) return {};
    const std::string changes = log_.Get(done_.back().changes);
    store::TakeBack(*adventure_, changes);
    undone_.push_back(std::move(done_.back()));
    done_.pop_back();
    adventure_->ReadSettings();
    return store::TablesOf(changes);
}

std::set<store::TableNum> Document::Redo() {
    if (undone_.empty()) return {};
    const std::string changes = log_.Get(undone_.back().changes);
    store::DoAgain(*adventure_, changes);
    done_.push_back(std::move(undone_.back()));
    undone_.pop_back();
    adventure_->ReadSettings();
    return store::TablesOf(changes);
}

void Document::SaveAs(const std::filesystem::path& file) {
    adventure_->SaveCopy(file);
    adventure_ = store::Adventure::Open(file);
}

void Document::Add(Step step) {
    ++changes_;
    Forget(undone_);
    done_.push_back(std::move(step));
    if (done_.size() <= kMostChanges) return;
    log_.Remove(done_.front().changes);
    done_.pop_front();
}

void Document::Forget(std::deque<Step>& steps) {
    for (const Step& step : steps)
        log_.Remove(step.changes);
    steps.clear();
}

Change::Change(Document& document, std::string name)
    : document_(document), name_(std::move(name)), transaction_(document.Adventure()) {
    if (document_.depth_ == 0) recorder_.emplace(document.Adventure());
    ++document_.depth_;
}

Change::~Change() {
    --document_.depth_;
}

void Change::Commit() {
    if (!recorder_) return transaction_.Commit();
    const std::string changes = recorder_->Changes();
    if (changes.empty()) return transaction_.Commit();
    // First the log, then the file: nothing is changed that could not be taken back.
    Document::Step step{name_, document_.log_.Add(changes)};
    transaction_.Commit();
    document_.Add(std::move(step));
}

}  // namespace fabula::authoring
