#include <vector>

#include <gtest/gtest.h>

#include "midi/player.h"
#include "support/doubles/manual_timers.h"
#include "support/games/game_builder.h"

namespace fabula::midi {
namespace {

using std::chrono::milliseconds;
using store::AdventureKind;

/// A message and when it was sent, in milliseconds.
struct Sent {
    long long time;
    Message message;

    friend bool operator==(const Sent&, const Sent&) = default;
};

class Recorder final : public Output {
  public:
    Recorder(std::vector<Sent>& sent, const long long& now) : sent_(sent), now_(now) {}
    void Send(const Message& message) override { sent_.push_back({now_, message}); }

  private:
    std::vector<Sent>& sent_;
    const long long& now_;
};

/// The messages of a game whose entry for DO holds `condacts`, from DO on, while its pauses pass. It plays
/// on channel 0 with voice 7 and volume 100.
std::vector<Sent> MessagesOf(const std::string& condacts, AdventureKind kind = AdventureKind::Fabula) {
    const test::TempFolder folder;
    test::GameBuilder game(kind);
    game.Setting("sound", 1)
        .Setting("defsndvoice", 7)
        .Setting("defsndvol", 100)
        .Entry(0, "DO", "_", condacts);
    game.Write(folder / "game.fbd");
    const auto adventure = store::Adventure::Open(folder / "game.fbd", store::OpenMode::ReadOnly);

    std::vector<Sent> sent;
    long long now = 0;
    platform::ManualTimers timers;
    Player player(
        timers, [&](const std::string&, int) { return std::make_unique<Recorder>(sent, now); },
        [](const auto&) {});
    engine::RecordingWindow window;
    platform::ScriptedPerson person;
    test::QueuedRandom random;
    engine::Engine engine(*adventure, {window, person, random, player, nullptr, window.Parts()});
    engine.Initialize();
    engine.EnterLine("DO");
    for (std::size_t pauses = 0; pauses < window.waits.size(); ++pauses) {
        for (milliseconds left = window.waits[pauses]; left > milliseconds(0); left -= milliseconds(10)) {
            now += 10;
            timers.Advance(milliseconds(10));
        }
        engine.WaitTick();
    }
    return sent;
}

void PrintTo(const Sent& sent, std::ostream* out) {
    *out << sent.time << " ms: " << int{sent.message.status} << " " << int{sent.message.data1} << " "
         << int{sent.message.data2};
}

TEST(GameSound, BeepIsVoiceVolumeAndANoteOfItsLengthBeforeItsPause) {
    // Pitch 138 is note 9 above middle C; 50 units are 500 ms.
    EXPECT_EQ(MessagesOf("BEEP 50 138"),
              (std::vector<Sent>{{0, {192, 7, 0}}, {0, {144, 69, 100}}, {500, {128, 69, 0}}}));
}

TEST(GameSound, NextBeepComesWhenThePauseOfFlag1012HasPassed) {
    EXPECT_EQ(MessagesOf("BEEP 20 120 BEEP 10 124"), (std::vector<Sent>{{0, {192, 7, 0}},
                                                                        {0, {144, 60, 100}},
                                                                        {200, {128, 60, 0}},
                                                                        {440, {144, 62, 100}},
                                                                        {540, {128, 62, 0}}}));
}

TEST(GameSound, SoundChangesTheVoiceOfTheBeepsBehindIt) {
    EXPECT_EQ(MessagesOf("SOUND 19 BEEP 10 120 SOUND 40 BEEP 10 120"),
              (std::vector<Sent>{{0, {192, 19, 0}},
                                 {0, {144, 60, 100}},
                                 {100, {128, 60, 0}},
                                 {340, {192, 40, 0}},
                                 {340, {144, 60, 100}},
                                 {440, {128, 60, 0}}}));
}

/// The notes of the tone function of PAUSE with the value 4.
std::vector<int> NotesOfPause(int function) {
    std::vector<int> notes;
    for (const Sent& sent :
         MessagesOf("LET 28 " + std::to_string(function) + " PAUSE 4", AdventureKind::Marlo)) {
        if (sent.message.status == 144) notes.push_back(sent.message.data1);
    }
    return notes;
}

TEST(GameSound, PauseFunction1RisesAndFunction3Falls) {
    EXPECT_EQ(NotesOfPause(1), (std::vector<int>{50, 50, 51, 52, 52}));
    EXPECT_EQ(NotesOfPause(3), (std::vector<int>{52, 52, 51, 50, 50}));
}

TEST(GameSound, PauseFunctions2And5And6RepeatMiddleC) {
    for (const int function : {2, 5, 6})
        EXPECT_EQ(NotesOfPause(function), (std::vector<int>{60, 60, 60, 60})) << function;
}

}  // namespace
}  // namespace fabula::midi
