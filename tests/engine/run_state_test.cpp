#include <random>

#include <gtest/gtest.h>

#include "engine/game.h"
#include "support/games/game_builder.h"

namespace fabula::test {
namespace {

using engine::RunState;

GameBuilder RunWorld() {
    GameBuilder game;
    game.Object(0, {.place = 1}).Object(1, {.place = 254});
    return game;
}

/// The same state with a history of eleven copies, the plain way.
struct Model {
    struct Slot {
        std::vector<int> flags;
        std::vector<int> objects;
        std::vector<int> visits;
        friend bool operator==(const Slot&, const Slot&) = default;
    };

    std::vector<Slot> slots = std::vector<Slot>(RunState::kSlots);
    Slot ram;

    void Shift() {
        for (std::size_t slot = RunState::kSlots - 1; slot > 0; --slot)
            slots[slot] = slots[slot - 1];
    }
};

Model::Slot SlotOf(RunState& state, int slot) {
    const auto flags = state.Flags(slot);
    const auto objects = state.ObjectPlaces(slot);
    const auto visits = state.VisitedMarks(slot);
    return {{flags.begin(), flags.end()}, {objects.begin(), objects.end()}, {visits.begin(), visits.end()}};
}

TEST(RunState, IsAHistoryOfElevenCopiesWhateverIsDoneToIt) {
    const auto run = RunWorld().Start();
    RunState& state = run->engine.Running()->state;
    Model model;
    for (int slot = 0; slot < RunState::kSlots; ++slot)
        model.slots[static_cast<std::size_t>(slot)] = SlotOf(state, slot);
    state.RamSave();
    model.ram = model.slots[0];
    std::mt19937 random(1);
    for (int step = 0; step < 3000; ++step) {
        const int value = static_cast<int>(random() % 500);
        const auto flag = random() % static_cast<unsigned>(state.FlagCount());
        const auto slot = random() % RunState::kSlots;
        Model::Slot& now = model.slots[0];
        switch (random() % 7) {
            case 0:
                state.ShiftHistory();
                model.Shift();
                break;
            case 1:
                state.TakeSlot(static_cast<int>(slot));
                now = model.slots[slot];
                break;
            case 2:
                state.RamSave();
                model.ram = now;
                break;
            case 3:
                state.RamLoad(engine::FlagNumber(static_cast<int>(flag)));
                std::copy_n(model.ram.flags.begin(), flag + 1, now.flags.begin());
                now.objects = model.ram.objects;
                now.visits = model.ram.visits;
                break;
            case 4:
                state.SetObjectPlace(engine::ObjectNumber(static_cast<int>(slot % 2)),
                                     engine::PlaceNumber(value));
                now.objects[slot % 2] = value;
                break;
            case 5:
                state.SetVisited(engine::PlaceNumber(static_cast<int>(slot % 3)), 1);
                now.visits[slot % 3] = 1;
                break;
            default:
                state.SetFlag(engine::FlagNumber(static_cast<int>(flag)), value);
                now.flags[flag] = value;
                break;
        }
        for (int s = 0; s < RunState::kSlots; ++s) {
            ASSERT_EQ(SlotOf(state, s), model.slots[static_cast<std::size_t>(s)])
                << "slot " << s << " at step " << step;
        }
    }
}

TEST(RunState, AllSlotsHoldTheStartOfTheGame) {
    const auto run = RunWorld().Entry(1, "_", "_", "SET 200").Start();
    RunState& state = run->engine.Running()->state;
    EXPECT_EQ(state.Flags(0)[200], 255);
    for (int slot = 1; slot < RunState::kSlots; ++slot) {
        EXPECT_EQ(state.Flags(slot)[200], 0) << slot;
        EXPECT_EQ(state.Flags(slot)[1], 1) << slot;
        EXPECT_EQ(state.ObjectPlaces(slot)[1], 254) << slot;
        EXPECT_EQ(state.Flags(slot)[37], 10) << slot;
    }
}

TEST(RunState, EverySentenceMovesTheHistoryOn) {
    const auto run = RunWorld().Entry(0, "DO", "_", "PLUS 200 1").Start();
    for (int turn = 0; turn < 4; ++turn)
        run->Type("DO");
    RunState& state = run->engine.Running()->state;
    EXPECT_EQ(state.Flags(0)[200], 4);
    EXPECT_EQ(state.Flags(1)[200], 3);
    EXPECT_EQ(state.Flags(4)[200], 0);
}

TEST(RunState, ASlotOutOfRangeIsARunTimeFailure) {
    const auto run = RunWorld().Start();
    EXPECT_THROW(run->engine.Running()->state.Flags(11), engine::RunFailure);
    EXPECT_THROW(run->engine.Running()->state.TakeSlot(-1), engine::RunFailure);
}

TEST(RunState, AnObjectsPlaceHas16Bits) {
    const auto run = RunWorld().Start();
    EXPECT_THROW(
        run->engine.Running()->state.SetObjectPlace(engine::ObjectNumber(0), engine::PlaceNumber(40000)),
        engine::RunFailure);
}

TEST(TwoGames, SideBySideDoNotNoticeEachOther) {
    const auto one = RunWorld().Entry(0, "DO", "_", "SET 200").Start();
    const auto two = RunWorld().Entry(0, "DO", "_", "SET 201").Start();
    one->Type("DO");
    two->Type("DO");
    EXPECT_EQ(one->Flag(200), 255);
    EXPECT_EQ(one->Flag(201), 0);
    EXPECT_EQ(two->Flag(200), 0);
    EXPECT_EQ(two->Flag(201), 255);
}

}  // namespace
}  // namespace fabula::test
