#include <algorithm>
#include <random>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "records.h"
#include "references/index.h"
#include "support/games/template_adventure.h"

namespace fabula::references {
namespace {

/// A condition or action with what each of its parameters is, and what it does with a flag or an object:
/// written down from the manual, apart from the catalogue and the tables of the library.
struct Said {
    const char* name;
    const char* number;
    std::vector<std::pair<const char*, const char*>> parameters;  ///< kind and access
};

const std::vector<Said>& Manual() {
    static const std::vector<Said> manual = {
        {"AT", "101", {{"location", "names"}}},
        {"PRESENT", "105", {{"object", "reads"}}},
        {"ISAT", "111", {{"object", "reads"}, {"location", "names"}}},
        {"ZERO", "113", {{"flag", "reads"}}},
        {"SAME", "119", {{"flag", "reads"}, {"flag", "reads"}}},
        {"CHANCE", "126", {{"", ""}}},
        {"YESNO", "128", {{"message", "names"}}},
        {"GET", "201", {{"object", "sets"}}},
        {"SWAP", "207", {{"object", "reads and sets"}, {"object", "reads and sets"}}},
        {"COPYOO", "219", {{"object", "reads"}, {"object", "sets"}}},
        {"WEIGH", "223", {{"object", "reads"}, {"flag", "sets"}}},
        {"SET", "224", {{"flag", "sets"}}},
        {"PLUS", "226", {{"flag", "reads and sets"}, {"", ""}}},
        {"SUB", "230", {{"flag", "reads"}, {"flag", "reads and sets"}}},
        {"RANDOM", "232", {{"flag", "sets"}}},
        {"GOTO", "234", {{"location", "names"}}},
        {"INVEN", "262", {}},
        {"SYSMESS", "251", {{"system message", "names"}}},
        {"MES", "249", {{"message", "names"}}},
        {"PROCESS", "277", {{"process table", "names"}}},
        {"DONE", "265", {}},
        {"PRINT", "244", {{"flag", "reads"}}},
    };
    return manual;
}

/// Random games, and what each record of them names.
class RandomGame {
  public:
    explicit RandomGame(unsigned seed) : random_(seed) {}

    void Fill(store::Adventure& adventure) {
        for (int i = 0; i < 40; ++i)
            AddEntry(adventure, i);
        for (int i = 0; i < 12; ++i)
            AddLocation(adventure, i);
        for (int i = 0; i < 12; ++i)
            AddObject(adventure, i);
        for (int i = 0; i < 6; ++i)
            AddPicture(adventure, i);
    }

    const std::multiset<std::string>& Expected() const { return expected_; }

  private:
    int Below(int n) { return std::uniform_int_distribution<int>(0, n - 1)(random_); }

    void Expect(const std::string& kind, int number, const std::string& place,
                const std::string& access = "names") {
        expected_.insert(kind + " " + std::to_string(number) + ": " + place + " " + access);
    }

    void AddEntry(store::Adventure& adventure, int canum) {
        const std::string entry = "entry " + std::to_string(canum) + " ";
        const int process = Below(6);
        const int verb = Below(3) == 0 ? 255 : 2 + Below(20);
        const int noun = Below(3) == 0 ? 255 : 2 + Below(20);
        Expect("process table", process, entry + "estype 0");
        if (verb != 255) Expect("word", verb, entry + "w1 0");
        if (noun != 255) Expect("word", noun, entry + "w2 0");
        std::string line;
        std::string numbers;
        int token = 0;
        for (int i = Below(8); i > 0; --i) {
            const Said& said = Manual()[static_cast<std::size_t>(Below(static_cast<int>(Manual().size())))];
            line.append(" ").append(said.name);
            numbers.append(" ").append(said.number);
            ++token;
            for (const auto& [kind, access] : said.parameters) {
                const int value = Below(300);
                const std::string text = std::to_string(value);
                line.append(" ").append(text);
                numbers.append(" ").append(text);
                const bool special = kind == std::string("location") && value >= 252 && value <= 255;
                if (*kind != '\0' && !special)
                    Expect(kind, value, entry + "condacts " + std::to_string(token), access);
                ++token;
            }
        }
        test::PutEntry(adventure, canum, process, verb, noun, line, numbers);
    }

    void AddLocation(store::Adventure& adventure, int number) {
        const std::string location = "location " + std::to_string(number) + " exits ";
        std::string words;
        std::string numbers;
        for (int i = 0, exits = Below(5); i < exits; ++i) {
            const int word = 2 + Below(12);
            const int to = Below(300);
            words += (i > 0 ? " N " : "N ") + std::to_string(to);
            numbers += (i > 0 ? " " : "") + std::to_string(word) + " " + std::to_string(to);
            Expect("word", word, location + std::to_string(2 * i));
            Expect("location", to, location + std::to_string(2 * i + 1));
        }
        test::PutLocation(adventure, number, words, numbers);
    }

    void AddObject(store::Adventure& adventure, int number) {
        const std::string object = "object " + std::to_string(number) + " ";
        const int place = Below(2) == 0 ? 252 + Below(3) : Below(12);
        const int noun = Below(3) == 0 ? 255 : 2 + Below(20);
        const bool container = Below(4) == 0;
        if (place < 252) Expect("location", place, object + "objloc 0");
        if (noun != 255) Expect("word", noun, object + "objnoun 0");
        if (container) Expect("location", number, object + "objattr 0");
        test::PutObject(adventure, number, place, noun, 255, container);
    }

    void AddPicture(store::Adventure& adventure, int number) {
        const std::string picture = "picture " + std::to_string(number) + " drawstring ";
        std::string drawing;
        int token = 0;
        for (int i = Below(5); i > 0; --i) {
            const int called = Below(9);
            if (Below(2) == 0) {
                drawing += "GOSUB sc=0 " + std::to_string(called) + " ";
                Expect("picture", called, picture + std::to_string(token + 2));
                token += 3;
            } else {
                drawing += "LINE 0 5 " + std::to_string(called) + " ";
                token += 4;
            }
        }
        test::PutPicture(adventure, number, drawing + "END");
    }

    std::mt19937 random_;
    std::multiset<std::string> expected_;
};

std::multiset<std::string> Found(const Index& index) {
    std::multiset<std::string> found;
    for (const auto& [target, uses] : index.AllUses()) {
        for (const KeptUse& kept : uses) {
            if (kept.use.table != store::TableNum::Adventure) found.insert(test::Shown(kept.use));
        }
    }
    return found;
}

TEST(ReferenceIndex, HoldsWhatTheRecordsOfRandomGamesName) {
    for (unsigned seed = 1; seed <= 30; ++seed) {
        test::OpenedAdventure file;
        const auto game = file->CopyInMemory();
        for (const store::TableNum table :
             {store::TableNum::Locations, store::TableNum::Objects, store::TableNum::ProcessTables})
            game->DeleteFrom(table);
        RandomGame random(seed);
        {
            store::Transaction transaction(*game);
            random.Fill(*game);
            transaction.Commit();
        }
        EXPECT_EQ(Found(Index(*game)), random.Expected()) << "seed " << seed;
    }
}

}  // namespace
}  // namespace fabula::references
