#include "engine/run_state.h"

#include <algorithm>

namespace fabula::engine {

namespace {

constexpr int kHighestClamped = 999;

std::int16_t Clamped(const char* verb, FlagNumber flag, int value) {
    if (!condacts::FitsNumber(value)) {
        FailRange(std::string(verb) + ": flag " + std::to_string(flag.value), value);
    }
    return static_cast<std::int16_t>(std::clamp(value, 0, kHighestClamped));
}

}  // namespace

RunState::RunState(const GameData& data)
    : flagCount_(data.flagCount),
      objectCount_(static_cast<int>(data.objects.size())),
      locationCount_(static_cast<int>(data.locations.size())),
      stride_(static_cast<std::size_t>(flagCount_ + objectCount_ + locationCount_)),
      slots_(stride_ * kSlots),
      now_(slots_.data()),
      ram_(stride_) {
    wordText.fill(std::string(kNoWordText));
    oldWordText.fill(std::string(kNoWordText));
}

std::int16_t* RunState::Slot(int slot) {
    if (slot < 0 || slot >= kSlots) FailMissing("history slot", slot);
    return slots_.data() + stride_ * static_cast<std::size_t>((head_ + slot) % kSlots);
}

void RunState::Plus(FlagNumber flag, int value) {
    SetFlag(flag, Clamped("PLUS", flag, Flag(flag) + value));
}

void RunState::Minus(FlagNumber flag, int value) {
    SetFlag(flag, Clamped("MINUS", flag, Flag(flag) - value));
}

void RunState::SetObjectPlace(ObjectNumber object, PlaceNumber place) {
    const int index = ObjectIndex(object);
    if (!condacts::FitsNumber(place.value)) {
        FailRange("the place of object " + std::to_string(object.value), place.value);
    }
    now_[index] = static_cast<std::int16_t>(place.value);
}

void RunState::ShiftHistory() {
    const std::int16_t* before = now_;
    head_ = (head_ + kSlots - 1) % kSlots;
    now_ = Slot(0);
    std::copy_n(before, stride_, now_);
}

void RunState::FillHistory() {
    for (int slot = 1; slot < kSlots; ++slot)
        std::copy_n(now_, stride_, Slot(slot));
    std::copy_n(now_, stride_, ram_.begin());
}

void RunState::TakeSlot(int slot) {
    const std::int16_t* from = Slot(slot);
    if (from != now_) std::copy_n(from, stride_, now_);
}

void RunState::RamSave() {
    std::copy_n(now_, stride_, ram_.begin());
}

void RunState::RamLoad(FlagNumber lastFlag) {
    const int kept = std::clamp(lastFlag.value + 1, 0, flagCount_);
    std::copy_n(ram_.begin(), kept, now_);
    std::copy(ram_.begin() + flagCount_, ram_.end(), now_ + flagCount_);
}

}  // namespace fabula::engine
