#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

#include "condacts/language/catalogue.h"
#include "condacts/words.h"
#include "store/adventure.h"
#include "store/setup.h"

namespace fabula::test {

/// A game in the making, in an adventure file: the default data of its type and its starter (the words,
/// entries and messages that authors begin with), to which a test adds what is its own.
///
///     StarterGame game(file, store::AdventureKind::Vel);
///     game.Word("LAMP", 50, condacts::kNoun);
///     game.Location(0, "A stage.", "The stage.", "NORTH 1");
///     game.Object(0, "a lamp", 0, "LAMP");
///     game.Entry(0, "LIGHT", "LAMP", "PRESENT 0 MESSAGE 5 DONE");
///     game.Finish();
///
/// Words come before what is named by them. They are cut to the letters that count in the type, here and
/// where they are used. Records are added; a number that is there already is replaced.
class StarterGame {
  public:
    StarterGame(const std::filesystem::path& file, store::AdventureKind kind, bool characterSets = false);
    StarterGame(const StarterGame&) = delete;
    StarterGame& operator=(const StarterGame&) = delete;
    ~StarterGame();

    void Word(std::string_view word, int number, condacts::WordType type);
    /// `exits` are pairs of a word and a location: "NORTH 1 DOWN 2".
    void Location(int number, std::string_view text, std::string_view shortText = " ",
                  std::string_view exits = "");
    struct Thing {
        int weight = 1;
        bool container = false;
        bool wearable = false;
    };
    /// `name` is a noun, or an adjective and a noun: "SILVER COIN"; "_" for an object without a name.
    void Object(int number, std::string_view text, int place, std::string_view name, const Thing& thing);
    void Object(int number, std::string_view text, int place, std::string_view name) {
        Object(number, text, place, name, {});
    }
    void Message(int number, std::string_view text);
    void SystemMessage(int number, std::string_view text);
    /// An entry of a process table, which it makes; words, "_" or "*", and condacts in their text form.
    void Entry(int process, std::string_view verb, std::string_view noun, std::string_view condacts);
    void Setting(std::string_view field, text::Value value);

    /// Keeps what was added. Without it the file has the starter only.
    void Finish();

  private:
    int NumberOf(std::string_view word, bool verb);
    std::string Cut(std::string_view word) const;
    void SetText(store::TableNum table, std::string_view key, std::string_view field, int number,
                 std::string_view text);

    std::unique_ptr<store::Adventure> adventure_;
    std::unique_ptr<store::Transaction> transaction_;
    std::size_t letters_;
    condacts::Catalogue catalogue_;
    condacts::WordIndex words_;
    bool wordsChanged_ = true;
    std::int64_t nextWord_ = 0;
    std::int64_t nextEntry_ = 0;
};

}  // namespace fabula::test
