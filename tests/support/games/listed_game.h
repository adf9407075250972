#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "store/adventure.h"

namespace fabula::test {

/// A game of an older engine as its decompiler knows it, and as Fabula holds it.
struct ListedGame {
    /// A text, in its three forms: with the markup of Fabula, and as each decompiler writes it.
    struct Text {
        std::string markup;
        std::string unMarlo;
        std::string unVel;
    };
    struct Word {
        std::string word;
        int number = 0;
        int type = 2;  ///< 0 verb, 1 adverb, 2 noun, 3 adjective, 4 preposition
    };
    struct Exit {
        Word word;
        int destination = 0;
    };
    struct Location {
        Text text;
        std::vector<Exit> exits;
    };
    struct Object {
        Text text;
        Word noun;       ///< "_" with 255 for none
        Word adjective;  ///< likewise; always none in a game of the older engine
        int place = 252;
        int weight = 1;
        int attributes = 0;  ///< 1 container, 2 wearable
    };
    /// One condition or action in both forms: in the listing of UnVel, words are numbers.
    struct CondAct {
        std::string stored;
        std::string listed;
    };
    struct Entry {
        Word w1;
        Word w2;
        std::vector<CondAct> condActs;
    };
    /// One command of a drawing in its three forms.
    struct Command {
        std::string stored;
        std::string unMarlo;
        std::string unVel;
    };
    struct Picture {
        bool isSubroutine = false;
        int ink = 0;
        int paper = 7;
        std::vector<Command> commands;
    };
    /// Eight rows, the left pixel in bit 7.
    using Glyph = std::vector<int>;

    bool isMarlo = false;
    int maxObjects = 4;
    int ink = 0;
    int paper = 7;
    std::vector<Word> words;
    std::vector<Location> locations;
    std::vector<Object> objects;
    std::vector<Text> messages;
    std::vector<Text> systemMessages;
    std::vector<std::vector<Entry>> tables;  ///< by process; two in a game of the older engine
    std::vector<Picture> pictures;           ///< by location; none in a game without pictures
    std::vector<Glyph> userGraphics;
    std::vector<Glyph> shades;              ///< none in a game of the older engine
    std::vector<std::vector<Glyph>> fonts;  ///< by set
};

/// A game with a bit of everything; the same seed gives the same game.
ListedGame RandomListedGame(bool isMarlo, std::uint32_t seed);

/// What an adventure made of the game must hold, a line for each record, in this order: settings, words,
/// texts, locations, objects, entries, pictures, characters. Words, messages and entries that an import
/// adds of its own accord are not among them.
std::vector<std::string> ExpectedRecords(const ListedGame& game);

/// The same lines from an adventure, without what the game does not have.
std::vector<std::string> RecordsOf(store::Adventure& adventure, const ListedGame& game);

}  // namespace fabula::test
