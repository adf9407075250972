#include "support/games/listed_game.h"

#include <cstdlib>
#include <iterator>
#include <random>
#include <set>

namespace fabula::test {
namespace {

using Game = ListedGame;
using store::Cursor;
using store::TableNum;

/// Pieces of texts. The forms are those of the decompilers' own tables of codes.
const Game::Text kPieces[] = {
    {"damp ", "damp ", "damp "},
    {"Cellar", "Cellar", "Cellar"},
    {" ", " ", " "},
    {".", ".", "."},
    {", ", ", ", ", "},
    {"_", "_", "_"},
    {"(9)", "(9)", "(9)"},
    {"&amp;", "&", "&"},
    {"\u008C", "<BR>", "^{7}"},
    {"\u008C", "<BR>", "{13}"},
    {"<#=96>", "&pound;", "{96}"},
    {"<#=127>", "&copy;", "{127}"},
    {"<#=144>", "%90;", "{144}"},
    {"<TAB>", "<,>", "{6}"},
    {"<FLASH>", "<BLINK>", "{18}{1}"},
    {"</FLASH>", "</BLINK>", "{18}{0}"},
    {"<BRIGHT>", "<BRIGHT>", "{19}{1}"},
    {"</INVERSE>", "</INVERSE>", "{20}{0}"},
    {"</OVER>", "</OVER>", "{21}{0}"},
    {"<INK=3>", "<INK=3>", "{16}{3}"},
    {"<PAPER=6>", "<PAPER=6>", "{17}{6}"},
    {"<PAPER>", "<PAPER>", "{17}{8}"},
};

struct Parameters {
    const char* name;
    const char* kinds;  ///< "l" location, "o" object, "m" message, "s" system message, "f" flag, "v" value,
                        ///< "1" to "4" word of that type
    bool marlo;
};
constexpr Parameters kCondActs[] = {
    {"AT", "l", true},       {"NOTAT", "l", true},   {"PRESENT", "o", true},  {"ABSENT", "o", true},
    {"CARRIED", "o", true},  {"WORN", "o", true},    {"ZERO", "f", true},     {"NOTZERO", "f", true},
    {"EQ", "fv", true},      {"GT", "fv", true},     {"CHANCE", "v", true},   {"QUIT", "", true},
    {"GET", "o", true},      {"DROP", "o", true},    {"SWAP", "oo", true},    {"PLACE", "ol", true},
    {"SET", "f", true},      {"CLEAR", "f", true},   {"PLUS", "fv", true},    {"LET", "fv", true},
    {"GOTO", "l", true},     {"MESSAGE", "m", true}, {"DESC", "", true},      {"DONE", "", true},
    {"OK", "", true},        {"PAUSE", "v", true},   {"INVEN", "", true},     {"END", "", true},
    {"PREP", "4", false},    {"ADVERB", "1", false}, {"NOUN2", "2", false},   {"ADJECT1", "3", false},
    {"SYSMESS", "s", false}, {"MES", "m", false},    {"COPYFF", "ff", false}, {"NEWLINE", "", false},
    {"EXTERN", "v", false},
};

class Maker {
  public:
    Maker(bool isMarlo, std::uint32_t seed) : random_(seed) { game_.isMarlo = isMarlo; }

    Game Make() {
        game_.maxObjects = UpTo(10);
        game_.ink = Below(16);
        game_.paper = Below(16);
        MakeWords();
        const int locations = UpTo(6);
        const int objects = UpTo(5);
        const int messages = UpTo(8);
        for (int i = 0; i < messages; ++i)
            game_.messages.push_back(RandomText());
        for (int i = 0; i < 5; ++i)
            game_.systemMessages.push_back(RandomText());
        for (int i = 0; i < locations; ++i)
            game_.locations.push_back({RandomText(), RandomExits(locations)});
        for (int i = 0; i < objects; ++i)
            game_.objects.push_back(RandomObject(locations));
        const int tables = game_.isMarlo ? 2 : 3 + Below(3);
        for (int table = 0; table < tables; ++table) {
            game_.tables.emplace_back();
            for (int i = Below(6); i > 0; --i)
                game_.tables.back().push_back(RandomEntry());
        }
        MakePictures();
        MakeCharacters();
        return std::move(game_);
    }

  private:
    int UpTo(int n) { return std::uniform_int_distribution<int>(1, n)(random_); }
    int Below(int n) { return UpTo(n) - 1; }

    /// Neither end of a text is a blank: the listing of UnMarlo could not tell.
    Game::Text RandomText() {
        Game::Text text{"A", "A", "A"};
        for (int pieces = Below(8); pieces > 0; --pieces) {
            const Game::Text& piece = kPieces[Below(static_cast<int>(std::size(kPieces)))];
            text.markup += piece.markup;
            text.unMarlo += piece.unMarlo;
            text.unVel += piece.unVel;
        }
        text.markup += "z";
        text.unMarlo += "z";
        text.unVel += "z";
        return text;
    }

    void MakeWords() {
        std::set<std::string> used;
        const auto add = [&](int number, int type) {
            std::string word;
            for (int letters = 1 + UpTo(game_.isMarlo ? 3 : 4); letters > 0; --letters)
                word += static_cast<char>('B' + Below(24));
            word.back() = 'Q';  // no word that an import adds of its own accord
            if (used.insert(word).second) game_.words.push_back({word, number, type});
        };
        for (int i = 0; i < 6; ++i)
            add(2 + i, 2);
        for (int i = 0; i < 12; ++i)
            add(30 + i, game_.isMarlo ? 2 : i % 5);
    }

    Game::Word WordOf(int type) {
        std::vector<Game::Word> fitting;
        for (const Game::Word& word : game_.words) {
            if (word.type == type) fitting.push_back(word);
        }
        if (fitting.empty() || Below(4) == 0) return {"_", 255, 7};
        return fitting[static_cast<std::size_t>(Below(static_cast<int>(fitting.size())))];
    }

    std::vector<Game::Exit> RandomExits(int locations) {
        std::vector<Game::Exit> exits;
        for (int i = Below(4); i > 0; --i) {
            const Game::Word& word = game_.words[static_cast<std::size_t>(Below(3))];
            exits.push_back({word, Below(locations)});
        }
        return exits;
    }

    Game::Object RandomObject(int locations) {
        Game::Object object;
        object.text = RandomText();
        object.noun = WordOf(2);
        object.adjective = game_.isMarlo ? Game::Word{"_", 255, 7} : WordOf(3);
        object.place = Below(2) == 0 ? 251 + UpTo(3) : Below(locations);
        object.weight = game_.isMarlo ? 1 : Below(64);
        object.attributes = game_.isMarlo ? 0 : Below(4);
        return object;
    }

    Game::CondAct RandomCondAct() {
        for (;;) {
            const Parameters& row = kCondActs[Below(static_cast<int>(std::size(kCondActs)))];
            if (game_.isMarlo && !row.marlo) continue;
            Game::CondAct condAct{row.name, row.name};
            for (const char* kind = row.kinds; *kind != '\0'; ++kind) {
                if (*kind >= '1' && *kind <= '4') {
                    const Game::Word word = WordOf(*kind - '0');
                    condAct.stored += " " + word.word;
                    condAct.listed += " " + std::to_string(word.number);
                    continue;
                }
                const std::string number =
                    std::to_string(*kind == 'v' ? Below(100) : Below(3) + (*kind == 'f' ? 11 : 0));
                condAct.stored += " " + number;
                condAct.listed += " " + number;
            }
            return condAct;
        }
    }

    Game::Entry RandomEntry() {
        Game::Entry entry;
        entry.w1 = WordOf(game_.isMarlo ? 2 : 0);
        entry.w2 = WordOf(2);
        for (int i = UpTo(4); i > 0; --i)
            entry.condActs.push_back(RandomCondAct());
        return entry;
    }

    static std::string Padded(int number) {
        const std::string digits = std::to_string(number);
        return std::string(3 - digits.size(), '0') + digits;
    }
    static std::string Signed(int number) { return (number < 0 ? "-" : " ") + Padded(std::abs(number)); }

    Game::Command RandomCommand() {
        const int x = Below(256);
        const int y = Below(176);
        const int dx = Below(200) - 100;
        const int dy = Below(160) - 80;
        const bool over = Below(2) == 0;
        const bool inverse = Below(2) == 0;
        const std::string flags = std::string(over ? "o" : " ") + (inverse ? "i" : " ");
        const std::string io = std::to_string((over ? 10 : 0) + (inverse ? 1 : 0));
        const std::string xy = std::to_string(x) + " " + std::to_string(y);
        const std::string dxy = std::to_string(dx) + " " + std::to_string(dy);
        switch (Below(game_.isMarlo ? 7 : 8)) {
            case 0:
                return {"ABSMOVE " + xy, "AMOVE " + xy, "ABS MOVE     " + Padded(x) + "  " + Padded(y)};
            case 1:
                return {"RELMOVE " + dxy, "MOVE " + dxy, "REL MOVE    " + Signed(dx) + " " + Signed(dy)};
            case 2:
                return {"LINE " + io + " " + dxy, "LINE " + flags + " " + dxy,
                        "LINE     " + flags + " " + Signed(dx) + " " + Signed(dy)};
            case 3:
                return {"PLOT " + io + " " + xy, "PLOT " + flags + " " + xy,
                        "PLOT     " + flags + " " + Signed(x) + " " + Signed(y)};
            case 4:
                return {"INK 3", "INK 3", "INK          003"};
            case 5:
                return {"GOSUB sc=2 1", "GOSUB sc=2 1", "GOSUB    sc=2  001"};
            case 6:
                if (game_.isMarlo)
                    return {"QSHADE " + io + " " + dxy + " 129", "SHADE q" + flags + " " + dxy + " 129",
                            "QSHADE   " + flags + " " + Signed(dx) + " " + Signed(dy) + "  129"};
                return {"SHADE " + io + " " + dxy + " 35", "SHADE " + flags + " " + dxy + " 35",
                        "SHADE    " + flags + " " + Signed(dx) + " " + Signed(dy) + "  035"};
            default:
                return {"TEXT " + io + " 0 65 3 4", "", "TEXT     " + flags + "  000  065  003  004"};
        }
    }

    void MakePictures() {
        if (Below(4) == 0) return;
        for (std::size_t i = 0; i < game_.locations.size(); ++i) {
            Game::Picture picture{Below(2) == 0, Below(8), Below(8), {}};
            for (int count = Below(6); count > 0; --count)
                picture.commands.push_back(RandomCommand());
            game_.pictures.push_back(picture);
        }
    }

    Game::Glyph RandomGlyph() {
        Game::Glyph glyph;
        for (int row = 0; row < 8; ++row)
            glyph.push_back(Below(256));
        return glyph;
    }

    void MakeCharacters() {
        const auto fill = [&](std::vector<Game::Glyph>& glyphs, int count) {
            for (int i = 0; i < count; ++i)
                glyphs.push_back(RandomGlyph());
        };
        fill(game_.userGraphics, game_.isMarlo ? 21 : 19);
        if (!game_.isMarlo) fill(game_.shades, 16);
        for (int sets = game_.isMarlo ? 1 : UpTo(2); sets > 0; --sets) {
            game_.fonts.emplace_back();
            fill(game_.fonts.back(), 96);
        }
    }

    Game game_;
    std::mt19937 random_;
};

constexpr const char* kTypeNames[] = {"Verb",        "Adverb",      "Noun",    "Adjective",
                                      "Preposition", "Conjugation", "Pronoun", "RESERVED"};
constexpr const char* kAttributes[] = {"", "C", "WR", "CWR"};

std::string N(std::int64_t number) {
    return std::to_string(number);
}

std::string PlaceText(int place) {
    if (place == 252) return "Not created.";
    if (place == 253) return "Worn.";
    if (place == 254) return "Carried.";
    return "In Room " + N(place) + ".";
}

std::string WordLine(const Game::Word& word) {
    return "word " + word.word + " " + N(word.number) + " " + kTypeNames[word.type];
}

std::string Values(const Game::Glyph& glyph) {
    std::string values;
    for (const int row : glyph)
        values += (values.empty() ? "" : " ") + N(row);
    return values;
}

}  // namespace

ListedGame RandomListedGame(bool isMarlo, std::uint32_t seed) {
    return Maker(isMarlo, seed).Make();
}

std::vector<std::string> ExpectedRecords(const ListedGame& game) {
    std::vector<std::string> lines;
    lines.push_back("carry " + N(game.maxObjects));
    for (const auto& word : game.words)
        lines.push_back(WordLine(word));
    for (std::size_t i = 0; i < game.messages.size(); ++i)
        lines.push_back("message " + N(static_cast<int>(i)) + " " + game.messages[i].markup);
    for (std::size_t i = 0; i < game.systemMessages.size(); ++i)
        lines.push_back("system message " + N(static_cast<int>(i)) + " " + game.systemMessages[i].markup);
    for (std::size_t i = 0; i < game.locations.size(); ++i) {
        std::string exits;
        std::string numeric;
        for (const auto& exit : game.locations[i].exits) {
            exits += (exits.empty() ? "" : " ") + exit.word.word + " " + N(exit.destination);
            numeric += (numeric.empty() ? "" : " ") + N(exit.word.number) + " " + N(exit.destination);
        }
        lines.push_back("location " + N(static_cast<int>(i)) + " " + game.locations[i].text.markup + "|" +
                        exits + "|" + numeric + "|" +
                        N(static_cast<int>(2 * game.locations[i].exits.size())));
    }
    for (std::size_t i = 0; i < game.objects.size(); ++i) {
        const auto& object = game.objects[i];
        lines.push_back("object " + N(static_cast<int>(i)) + " " + object.text.markup + "|" +
                        object.noun.word + " " + N(object.noun.number) + "|" + object.adjective.word + " " +
                        N(object.adjective.number) + "|" + N(object.place) + " " + PlaceText(object.place) +
                        "|" + N(object.weight) + "|" + N(object.attributes) +
                        kAttributes[object.attributes]);
    }
    for (std::size_t table = 0; table < game.tables.size(); ++table) {
        for (const auto& entry : game.tables[table]) {
            std::string line;
            for (const auto& condAct : entry.condActs)
                line += (line.empty() ? "" : " ") + condAct.stored;
            lines.push_back("entry " + N(static_cast<int>(table)) + " " + entry.w1.word + " " +
                            N(entry.w1.number) + " " + entry.w2.word + " " + N(entry.w2.number) + " " +
                            line);
        }
    }
    for (std::size_t i = 0; i < game.pictures.size(); ++i) {
        const auto& picture = game.pictures[i];
        std::string drawing;
        for (const auto& command : picture.commands)
            drawing += command.stored + " ";
        lines.push_back("picture " + N(static_cast<int>(i)) +
                        (picture.isSubroutine ? " Subroutine " : " Picture ") + N(picture.ink) + " " +
                        N(picture.paper) + " " + drawing + "END");
    }
    for (std::size_t i = 0; i < game.shades.size(); ++i)
        lines.push_back("character 0 " + N(static_cast<int>(i)) + " " + Values(game.shades[i]));
    for (std::size_t i = 0; i < game.userGraphics.size(); ++i)
        lines.push_back("character 0 " + N(static_cast<int>(144 + i)) + " " + Values(game.userGraphics[i]));
    for (std::size_t set = 0; set < game.fonts.size(); ++set) {
        for (std::size_t i = 0; i < game.fonts[set].size(); ++i)
            lines.push_back("character " + N(static_cast<int>(set)) + " " + N(static_cast<int>(32 + i)) +
                            " " + Values(game.fonts[set][i]));
    }
    return lines;
}

std::vector<std::string> RecordsOf(store::Adventure& adventure, const ListedGame& game) {
    std::vector<std::string> lines;
    const auto text = [](Cursor& c, const char* field) { return std::string(c.Text(field)); };
    const auto number = [](Cursor& c, const char* field) { return N(c.Number(field)); };
    Cursor& settings = adventure.OpenTable(TableNum::Adventure, "def");
    lines.push_back("carry " + number(settings, "maxobj"));
    Cursor& words = adventure.OpenTable(TableNum::Vocabulary, "def", std::nullopt, "vocindex");
    for (std::size_t i = 0; i < game.words.size() && !words.Eof(); ++i, words.MoveNext())
        lines.push_back("word " + text(words, "word") + " " + number(words, "vocnum") + " " +
                        text(words, "voctype"));
    Cursor& messages = adventure.OpenTable(TableNum::Messages, "def", std::nullopt, "msgnum");
    for (; !messages.Eof(); messages.MoveNext())
        lines.push_back("message " + number(messages, "msgnum") + " " + text(messages, "msgmsg"));
    Cursor& system = adventure.OpenTable(TableNum::SystemMessages, "def", std::nullopt, "smsgnum");
    for (std::size_t i = 0; i < game.systemMessages.size() && !system.Eof(); ++i, system.MoveNext())
        lines.push_back("system message " + number(system, "smsgnum") + " " + text(system, "smsgmsg"));
    Cursor& locations = adventure.OpenTable(TableNum::Locations, "def", std::nullopt, "locnum");
    for (; !locations.Eof(); locations.MoveNext()) {
        lines.push_back("location " + number(locations, "locnum") + " " + text(locations, "locdesc") + "|" +
                        text(locations, "exits") + "|" + text(locations, "numericexits") + "|" +
                        number(locations, "numexits"));
    }
    Cursor& objects = adventure.OpenTable(TableNum::Objects, "def", std::nullopt, "objnum");
    for (; !objects.Eof(); objects.MoveNext()) {
        lines.push_back("object " + number(objects, "objnum") + " " + text(objects, "objdesc") + "|" +
                        text(objects, "objnoun") + " " + number(objects, "objnumnoun") + "|" +
                        text(objects, "objadject") + " " + number(objects, "objnumadject") + "|" +
                        number(objects, "objloc") + " " + text(objects, "objlocdesc") + "|" +
                        number(objects, "objweight") + "|" + number(objects, "objattrn") +
                        text(objects, "objattr"));
    }
    // The entries that control the script and the pictures come behind those of the game.
    Cursor& entries = adventure.OpenTable(TableNum::ProcessTables, "def", std::nullopt, "canum");
    std::size_t count = 0;
    for (const auto& table : game.tables)
        count += table.size();
    for (std::size_t i = 0; i < count && !entries.Eof(); ++i, entries.MoveNext()) {
        lines.push_back("entry " + number(entries, "estype") + " " + text(entries, "w1") + " " +
                        number(entries, "w1num") + " " + text(entries, "w2") + " " +
                        number(entries, "w2num") + " " + text(entries, "condacts"));
    }
    Cursor& pictures = adventure.OpenTable(TableNum::Pictures, "def", std::nullopt, "locnum");
    for (; !pictures.Eof(); pictures.MoveNext()) {
        lines.push_back("picture " + number(pictures, "locnum") + " " + text(pictures, "loctype") + " " +
                        number(pictures, "locink") + " " + number(pictures, "locpaper") + " " +
                        text(pictures, "drawstring"));
    }
    const auto add = [&](const std::string& where) {
        Cursor& characters = adventure.OpenTable(TableNum::Characters, "def", where, "charkey");
        for (; !characters.Eof(); characters.MoveNext())
            lines.push_back("character " + number(characters, "charsetnum") + " " +
                            number(characters, "charnum") + " " + text(characters, "charvals"));
    };
    if (!game.shades.empty()) add("charsetnum=0 and charnum<16");
    add("charsetnum=0 and charnum>143 and charnum<" + N(static_cast<int>(144 + game.userGraphics.size())));
    for (std::size_t set = 0; set < game.fonts.size(); ++set)
        add("charsetnum=" + N(static_cast<int>(set)) + " and charnum>31 and charnum<128");
    return lines;
}

}  // namespace fabula::test
