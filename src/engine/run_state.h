#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "engine/game_data.h"
#include "engine/numbers.h"
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

    bool HasFlag(FlagNumber flag) const { return IsBelow(flag.value, flagCount_); }
    bool HasObject(ObjectNumber object) const { return IsBelow(object.value, objectCount_); }
    ObjectNumbers Objects() const { return ObjectNumbers(objectCount_); }

    int Flag(FlagNumber flag) const {
        if (!HasFlag(flag)) FailMissing("flag", flag.value);
        return now_[flag.value];
    }
    void SetFlag(FlagNumber flag, int value) {
        if (!HasFlag(flag)) FailMissing("flag", flag.value);
        if (!condacts::FitsNumber(value)) FailRange("flag " + std::to_string(flag.value), value);
        now_[flag.value] = static_cast<std::int16_t>(value);
    }
    bool FlagBitSet(FlagNumber flag, int bit) const { return BitSet(Flag(flag), bit); }

    /// PLUS and MINUS: the result is clamped to 0 to 999 behind the sum, which itself must fit 16 bits.
    void Plus(FlagNumber flag, int value);
    void Minus(FlagNumber flag, int value);

    PlaceNumber ObjectPlace(ObjectNumber object) const { return PlaceNumber(now_[ObjectIndex(object)]); }
    void SetObjectPlace(ObjectNumber object, PlaceNumber place);
    int Visited(PlaceNumber location) const { return now_[LocationIndex(location)]; }
    void SetVisited(PlaceNumber location, int value) {
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
    void RamLoad(FlagNumber lastFlag);

    /// A flag that changes by itself, and when and how (auto_flags.h).
    struct AutoFlag {
        FlagNumber flag;
        int kind = 0;
    };
    /// All of them, by flag. No part of the history.
    std::vector<AutoFlag> autoFlags;

    /// The text of the word behind flags 33 to 47, kNoWordText for none, and that of the sentence before.
    static constexpr FlagNumber kFirstWordFlag = flag::kVerb;
    std::array<std::string, 15> wordText;
    std::array<std::string, 15> oldWordText;
    std::string& WordText(FlagNumber wordFlag) {
        return wordText[static_cast<std::size_t>(wordFlag.value - kFirstWordFlag.value)];
    }
    const std::string& WordText(FlagNumber wordFlag) const {
        return wordText[static_cast<std::size_t>(wordFlag.value - kFirstWordFlag.value)];
    }

  private:
    std::int16_t* Slot(int slot);
    static bool IsBelow(int number, int count) {
        return static_cast<unsigned>(number) < static_cast<unsigned>(count);
    }
    int ObjectIndex(ObjectNumber object) const {
        if (!HasObject(object)) FailMissing("object", object.value);
        return flagCount_ + object.value;
    }
    int LocationIndex(PlaceNumber location) const {
        if (!IsBelow(location.value, locationCount_)) FailMissing("location", location.value);
        return flagCount_ + objectCount_ + location.value;
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
