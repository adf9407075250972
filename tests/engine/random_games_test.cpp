#include <random>

#include <gtest/gtest.h>

#include "engine/actions/condact_table.h"
#include "engine/game.h"
#include "support/games/game_builder.h"
#include "support/trials.h"

namespace fabula::test {
namespace {

using engine::Waiting;
using store::AdventureKind;

/// Games that no author would write: entries of random condacts with parameters that are mostly in range.
/// Whatever they do, the engine comes back, and the game waits for something or has ended.
class RandomGame {
  public:
    explicit RandomGame(std::uint32_t seed) : random_(seed) {}

    GameBuilder Build() {
        GameBuilder game(static_cast<AdventureKind>(UpTo(3)));
        if (UpTo(3) == 0) game.CharacterSets();
        if (UpTo(3) == 0) game.Graphics();
        game.CondactLimit(3000).Setting("sound", 1);
        game.Word("GO", 5, 2).Word("LAMP", 60, 2).Word("RED", 30, 3).Word("AND", 2, 5).Word("IT", 3, 6);
        game.Exit(0, 100, 1).Exit(1, 5, 2).Exit(2, 100, 0);
        for (int object = 0; object < 6; ++object) {
            game.Object(object, {.description = "<INK=" + std::to_string(object) + ">a thing_",
                                 .place = Pick({0, 1, 2, 3, 252, 253, 254}),
                                 .noun = "LAMP",
                                 .weight = UpTo(20),
                                 .container = UpTo(2) == 0,
                                 .wearable = UpTo(2) == 0});
        }
        for (int message = 0; message < 6; ++message)
            game.Message(message, Text());
        for (const int process : {0, 0, 0, 0, 1, 2, 3, 4}) {
            for (int entry = UpTo(5); entry > 0; --entry)
                game.Numbers(process, Pick({1, 5, 100, 255}), Pick({1, 60, 255}), Line());
        }
        return game;
    }

    std::string Typed() {
        static const std::vector<std::string> lines = {
            "DO",        "DO LAMP", "GO", "DO RED LAMP AND GO", "Y", "N", "", "DO \"GO\"", "XYZZY",
            "DO IT. GO", "\"\"",    ",",  "DO LAMP LAMP"};
        return lines[static_cast<std::size_t>(UpTo(static_cast<int>(lines.size())))];
    }

    int UpTo(int n) { return static_cast<int>(random_() % static_cast<std::uint32_t>(n)); }

  private:
    int Pick(const std::vector<int>& values) {
        return values[static_cast<std::size_t>(UpTo(static_cast<int>(values.size())))];
    }

    std::string Text() {
        std::string text;
        for (int piece = UpTo(8); piece > 0; --piece) {
            static const std::vector<std::string> pieces = {"word ",   "<TAB>",  "<BRIGHT>", "&amp;",
                                                            "_",       "\u008C", "<",        "  ",
                                                            "<#=140>", "ä",      "<HT>x ",   "<CENTER>mid"};
            text += pieces[static_cast<std::size_t>(UpTo(static_cast<int>(pieces.size())))];
        }
        return text;
    }

    /// The numbers of an entry's list.
    std::string Line() {
        const auto condacts = engine::AllCondActs();
        std::string line;
        for (int i = UpTo(6) + 1; i > 0; --i) {
            const auto& condact =
                condacts[static_cast<std::size_t>(UpTo(static_cast<int>(condacts.size())))];
            if (!line.empty()) line += ' ';
            line += std::to_string(condact.number);
            for (int p = UpTo(12) == 0 ? UpTo(3) : ParamsOf(condact.number); p > 0; --p)
                line += " " + std::to_string(Param());
        }
        return line;
    }

    static int ParamsOf(int number) {
        static const std::unique_ptr<GameRun> run = GameBuilder().Start();
        return run->engine.Running()->data.condActParams[static_cast<std::size_t>(number)];
    }

    int Param() {
        if (UpTo(200) == 0) return UpTo(60000) - 30000;
        return Pick(
            {0, 1, 2, 3, 4, 5, 28, 30, 34, 38, 48, 49, 51, 53, 58, 100, 128, 252, 253, 254, 255, 1003});
    }

    std::mt19937 random_;
};

std::unique_ptr<GameRun> Play(std::uint32_t seed, bool traced) {
    RandomGame random(seed);
    GameBuilder game = random.Build();
    if (traced) game.Traced();
    std::unique_ptr<GameRun> run = game.Open();
    std::mt19937 chances(seed);
    for (int i = 0; i < 200; ++i)
        run->random.numbers.push_back(static_cast<int>(chances() % 101));
    run->window.givesUp = true;
    run->engine.Initialize();
    run->GiveFiles();
    for (int step = 0; step < 40 && run->Waits() != Waiting::Nothing; ++step) {
        if (run->Waits() == Waiting::Pause) {
            run->engine.WaitTick();
        } else if (random.UpTo(6) == 0) {
            run->engine.TimeOutTick();
        } else {
            run->engine.EnterLine(random.Typed());
        }
        run->GiveFiles();
    }
    EXPECT_EQ(run->Waits() == Waiting::Nothing, run->engine.Running() == nullptr);
    return run;
}

/// Flags (but those that switch the trace), places of objects and visits; empty when the game has ended.
std::vector<std::int16_t> StateOf(GameRun& run) {
    engine::Game* game = run.engine.Running();
    if (!game) return {};
    std::vector<std::int16_t> all;
    for (const auto& store :
         {game->state.Flags(0), game->state.ObjectPlaces(0), game->state.VisitedMarks(0)})
        all.insert(all.end(), store.begin(), store.end());
    all[1004] = 0;
    return all;
}

std::uint32_t Games() {
    return static_cast<std::uint32_t>(Trials("FABULA_GAMES", 40));
}

TEST(RandomGames, ComeBackWhateverTheyDo) {
    for (std::uint32_t seed = 0; seed < Games(); ++seed)
        Play(seed, false);
}

/// A traced game looks at each condition of an entry by itself, another passes over the entries whose first
/// conditions fail.
TEST(RandomGames, RunTheSameWhetherTheyAreTracedOrNot) {
    for (std::uint32_t seed = 0; seed < Games(); ++seed) {
        const std::unique_ptr<GameRun> plain = Play(seed, false);
        const std::unique_ptr<GameRun> traced = Play(seed, true);
        ASSERT_EQ(plain->window.Screen(), traced->window.Screen()) << seed;
        ASSERT_EQ(plain->Box(), traced->Box()) << seed;
        ASSERT_EQ(StateOf(*plain), StateOf(*traced)) << seed;
    }
}

}  // namespace
}  // namespace fabula::test
