#pragma once

#include <array>
#include <cstdint>
#include <limits>
#include <span>
#include <string>
#include <vector>

#include "engine/flags.h"
#include "engine/game_data.h"
#include "engine/run_failure.h"

namespace fabula::engine {

/// What changes while a game runs: flags, object locations and visited marks, with a history of eleven
/// slots. Slot 0 is the present; slots 1 to 10 are the state at the start of the last ten sentences. At the
/// start of the game all slots, and the store of RAMSAVE, hold its first state.
///
/// All values are 16-bit signed. Every access is checked and throws RunFailure.
class RunState {
  public:
    static constexpr int kSlots = 11;

    explicit RunState(const GameData& data);
    RunState(const RunState&) = delete;
    RunState& operator=(const RunState&) = delete;

    int FlagCount() const { return flagCount_; }
    int ObjectCount() const { return objectCount_; }
    int LocationCount() const { return locationCount_; }

    int Flag(int flag) const {
        if (static_cast<unsigned>(flag) >= static_cast<unsigned>(flagCount_)) FailMissing("flag", flag);
        return now_[flag];
    }
    void SetFlag(int flag, int value) {
        if (static_cast<unsigned>(flag) >= static_cast<unsigned>(flagCount_)) FailMissing("flag", flag);
        if (value < std::numeric_limits<std::int16_t>::min() ||
            value > std::numeric_limits<std::int16_t>::max()) {
            FailRange("flag " + std::to_string(flag), value);
        }
        now_[flag] = static_cast<std::int16_t>(value);
    }
    bool FlagBitSet(int flag, int bit) const { return BitSet(Flag(flag), bit); }

    /// PLUS and MINUS: the result is clamped to 0 to 999 behind the sum, which itself must fit 16 bits.
    void Plus(int flag, int value);
    void Minus(int flag, int value);

    int ObjectPlace(int object) const { return now_[ObjectIndex(object)]; }
    void SetObjectPlace(int object, int place);
    int Visited(int location) const { return now_[LocationIndex(location)]; }
    void SetVisited(int location, int value) {
        now_[LocationIndex(location)] = static_cast<std::int16_t>(value);
    }

    /// The three stores of a slot, for saving and loading.
    std::span<std::int16_t> Flags(int slot) { return {Slot(slot), static_cast<std::size_t>(flagCount_)}; }
    std::span<std::int16_t> ObjectPlaces(int slot) {
        return {Slot(slot) + flagCount_, static_cast<std::size_t>(objectCount_)};
    }
    std::span<std::int16_t> VisitedMarks(int slot) {
        return {Slot(slot) + flagCount_ + objectCount_, static_cast<std::size_t>(locationCount_)};
    }

    /// Every slot moves back by one, slot 0 into slot 1; the oldest is lost.
    void ShiftHistory();
    /// Every slot takes slot 0.
    void FillHistory();
    /// Slot 0 takes slot `slot`, 0 to 10.
    void TakeSlot(int slot);

    void RamSave();
    /// Visited marks, object locations and flags 0 to `lastFlag`; the flags above keep their values.
    void RamLoad(int lastFlag);

    /// A flag that changes by itself, and when and how (auto_flags.h).
    struct AutoFlag {
        int flag = 0;
        int kind = 0;
    };
    /// All of them, by flag. No part of the history.
    std::vector<AutoFlag> autoFlags;

    /// The text of the word behind flags 33 to 47, "Null" for none, and that of the sentence before.
    static constexpr int kFirstWordFlag = flag::kVerb;
    std::array<std::string, 15> wordText;
    std::array<std::string, 15> oldWordText;
    std::string& WordText(int wordFlag) {
        return wordText[static_cast<std::size_t>(wordFlag - kFirstWordFlag)];
    }
    const std::string& WordText(int wordFlag) const {
        return wordText[static_cast<std::size_t>(wordFlag - kFirstWordFlag)];
    }

  private:
    std::int16_t* Slot(int slot);
    int ObjectIndex(int object) const {
        if (static_cast<unsigned>(object) >= static_cast<unsigned>(objectCount_))
            FailMissing("object", object);
        return flagCount_ + object;
    }
    int LocationIndex(int location) const {
        if (static_cast<unsigned>(location) >= static_cast<unsigned>(locationCount_)) {
            FailMissing("location", location);
        }
        return flagCount_ + objectCount_ + location;
    }

    int flagCount_;
    int objectCount_;
    int locationCount_;
    std::size_t stride_;
    std::vector<std::int16_t> slots_;  ///< a ring: slot s lies at place (head_ + s) mod kSlots
    int head_ = 0;
    std::int16_t* now_;
    std::vector<std::int16_t> ram_;
};

}  // namespace fabula::engine
