#pragma once

#include <chrono>
#include <deque>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "engine/engine.h"
#include "platform/random_source.h"
#include "store/adventure.h"
#include "store/setup.h"
#include "support/doubles/recording_window.h"
#include "support/doubles/scripted_person.h"
#include "support/temp_folder.h"

namespace fabula::test {

struct ObjectSpec {
    std::string description = "a thing";
    int place = 0;
    std::string noun = "_";  ///< a word of the game, or "_"
    std::string adjective = "_";
    int weight = 1;
    bool container = false;
    bool wearable = false;
};

/// A sound player that keeps what it was asked to play.
class RecordingSound final : public engine::SoundPlayer {
  public:
    void Configure(const engine::SoundSettings& given) override { settings = given; }
    void PlayTone(int note, std::chrono::milliseconds length) override {
        notes.emplace_back(note, length.count());
    }
    void SetVoice(int voice) override { voices.push_back(voice); }

    engine::SoundSettings settings;
    std::vector<std::pair<int, long long>> notes;  ///< note and milliseconds
    std::vector<int> voices;

    using SoundPlayer::SetSilent;  ///< true: as if there were no device
};

/// Gives the numbers that a test queued, then 50 (or the highest that is asked, if that is lower).
class QueuedRandom final : public platform::RandomSource {
  public:
    int UpTo(int n) override;
    std::deque<int> numbers;
};

class RecordingTrace final : public engine::TextTrace {
  public:
    void WriteLine(std::string_view line) override { lines.emplace_back(line); }
    bool Has(std::string_view line) const;
    std::vector<std::string> lines;
};

/// A game being played in a test. It reads the screen and the state, and plays keys and time.
class GameRun {
  public:
    GameRun(std::unique_ptr<TempFolder> folder, const engine::Options& options, bool traced);

    /// Types a line and gives what the game said in answer, up to the next prompt.
    std::string Type(std::string_view line);
    /// Answers the questions for files as the window was told to. Type does so by itself.
    void GiveFiles();
    /// What the game said since the last call, without the prompt at its end.
    std::string Said();
    /// The message of the latest box; "" when there was none.
    std::string Box() const;

    int Flag(int flag);
    void SetFlag(int flag, int value);
    int PlaceOf(int object);
    void Place(int object, int place);
    bool Visited(int location);
    engine::Waiting Waits() const { return engine.WaitingFor(); }

    std::filesystem::path File(const char* name) const { return *folder_ / name; }

  private:
    std::unique_ptr<TempFolder> folder_;
    std::unique_ptr<store::Adventure> adventure_;

  public:
    engine::RecordingWindow window;
    platform::ScriptedPerson person;
    QueuedRandom random;
    RecordingSound sound;
    RecordingTrace trace;
    engine::Engine engine;
};

/// Builds small games. A game begins with locations 0 ("Room 0") to 2, no objects, no messages, no words
/// but the verb DO (number 100), and empty process tables. Each system message n says "(n)", but for these:
///
///     2 to 5 "?" (the prompt), 30 "Y", 31 "N", 33 ">", 34 "_" (the cursor)
///
/// A test adds what it needs and plays:
///
///     GameBuilder game;
///     game.Object(1, {.description = "a lamp", .place = 0});
///     auto run = game.Do("GET 1");            // one entry "DO _: GET 1"; starts the game and types DO
///     EXPECT_EQ(run->PlaceOf(1), 254);
///
/// Condacts are written in text form, with the words of the game; `Numbers` takes what no author could
/// write.
class GameBuilder {
  public:
    explicit GameBuilder(store::AdventureKind kind = store::AdventureKind::Fabula) : kind_(kind) {}

    GameBuilder& CharacterSets();
    GameBuilder& Graphics();

    GameBuilder& Location(int number, std::string text, std::string shortText = " ");
    /// Adds an exit by the number of its verb.
    GameBuilder& Exit(int from, int verb, int to);
    GameBuilder& PictureOf(int location, std::string path);
    GameBuilder& Object(int number, ObjectSpec object);
    GameBuilder& Message(int number, std::string text);
    GameBuilder& SystemMessage(int number, std::string text);
    /// A word of a type: 0 verb, 1 adverb, 2 noun, 3 adjective, 4 preposition, 5 conjunction, 6 pronoun.
    GameBuilder& Word(std::string word, int number, int type);
    /// A number of the settings: "maxobj", "maxweight", "startloc", "textcolor", ...
    GameBuilder& Setting(std::string field, int value);
    /// A text of the settings: "advname", "savename", "defpicloc", ...
    GameBuilder& SettingText(std::string field, std::string value);

    /// An entry of a process table; words of the game, "_" or "*".
    GameBuilder& Entry(int process, std::string verb, std::string noun, std::string condacts);
    /// The same with the numbers of words and condacts as they are stored.
    GameBuilder& Numbers(int process, int verb, int noun, std::string numbers);

    GameBuilder& CondactLimit(std::int64_t limit);
    GameBuilder& Slice(std::int64_t condacts);
    GameBuilder& Traced();
    /// Keeps the first `count` flags only.
    GameBuilder& FlagCount(int count);

    /// Writes the game into an adventure file.
    void Write(const std::filesystem::path& file) const;

    /// Opens the game without starting it: engine.Initialize is the test's to call.
    std::unique_ptr<GameRun> Open() const;
    /// Starts the game. What it said up to the first prompt can be read by Said.
    std::unique_ptr<GameRun> Start() const;
    /// Adds the entry "DO _: condacts" to process 0, starts the game and types DO. Said then tells the
    /// answer.
    std::unique_ptr<GameRun> Do(std::string condacts);
    /// True when a condition (or several) holds in the entry that DO runs.
    bool Holds(const std::string& conditions);

  private:
    struct LocationSpec {
        std::string text = {};
        std::string shortText = " ";
        std::string exits = {};
        std::string picture = {};
    };
    struct EntrySpec {
        int process;
        std::string verb;
        std::string noun;
        std::string condacts;
        bool numeric;
    };
    struct WordSpec {
        std::string word;
        int number;
        int type;
    };

    const std::filesystem::path& Template() const;
    void WriteLocations(store::Adventure& adventure) const;
    void WriteObjects(store::Adventure& adventure) const;
    void WriteTexts(store::Adventure& adventure) const;
    void WriteWords(store::Adventure& adventure) const;
    void WriteEntries(store::Adventure& adventure) const;
    void WriteSettings(store::Adventure& adventure) const;
    int NumberOf(const std::string& word, std::initializer_list<int> types) const;
    LocationSpec& LocationOf(int number);

    store::AdventureKind kind_;
    bool characterSets_ = false;
    bool graphics_ = false;
    bool traced_ = false;
    int flagCount_ = -1;
    engine::Options options_;
    std::vector<std::pair<int, LocationSpec>> locations_{{0, {"Room 0"}}, {1, {"Room 1"}}, {2, {"Room 2"}}};
    std::vector<std::pair<int, ObjectSpec>> objects_;
    std::vector<std::pair<int, std::string>> messages_;
    std::vector<std::pair<int, std::string>> systemMessages_;
    std::vector<WordSpec> words_{{"DO", 100, 0}};
    std::vector<EntrySpec> entries_;
    std::vector<std::pair<std::string, int>> numberSettings_;
    std::vector<std::pair<std::string, std::string>> textSettings_;
};

}  // namespace fabula::test
