#include "random_adventure.h"

#include <map>
#include <random>
#include <set>

#include "condacts/language/convert.h"
#include "condacts/language/load.h"
#include "condacts/language/parser.h"
#include "text/value.h"

namespace fabula::interchange {
namespace {

using condacts::ParamKind;
using store::Adventure;
using store::Cursor;
using store::TableNum;

/// Pieces of texts. None of them begins with "/" or joins with another to a tag.
constexpr const char* kTextPieces[] = {
    "A",         "damp",  "cellar", ".",  ",",     " ",     " ",     " ",       "\u008C",
    "é",         "Œ",     "!",      "5",  "&amp;", "&lt; ", " &gt;", "<ink=3>", "<ink>",
    "</bright>", "<tab>", "'",      "\"", "(",     ")",     "%",     "_",       "\u008C\u008C",
};

class Filler {
  public:
    Filler(Adventure& adventure, std::uint32_t seed, int letters)
        : adventure_(adventure), random_(seed), letters_(letters) {}

    void Fill() {
        store::Transaction transaction(adventure_);
        AddWords();
        words_ = condacts::LoadWords(adventure_).All();
        locations_ = UpTo(12);
        objects_ = UpTo(8);
        messages_ = UpTo(20);
        AddLocations();
        AddObjects();
        AddNumberedTexts(TableNum::Messages, "msgnum", "msgmsg", messages_);
        ChangeSystemMessages();
        AddEntries();
        ChangeFlags();
        AddPictures();
        AddComments();
        ChangeSettings();
        transaction.Commit();
    }

  private:
    int UpTo(int n) { return std::uniform_int_distribution<int>(1, n)(random_); }
    int Below(int n) { return UpTo(n) - 1; }

    std::string RandomText() {
        std::string text;
        for (int pieces = Below(12); pieces > 0; --pieces)
            text += kTextPieces[Below(std::size(kTextPieces))];
        return text;
    }

    std::string RandomLine() {
        std::string line;
        for (int letters = Below(20); letters > 0; --letters)
            line += static_cast<char>('A' + Below(26));
        return line;
    }

    void AddWords() {
        Cursor& words = adventure_.OpenTable(TableNum::Vocabulary, "def", std::nullopt, "vocindex desc");
        std::int64_t index = words.Number("vocindex");
        std::set<std::string> used = {"TURN", "SCRIP", "LOAD", "ON", "OFF"};
        for (words.MoveFirst(); !words.Eof(); words.MoveNext())
            used.insert(std::string(words.Text("word")));
        for (int count = 0; count < 60; ++count) {
            std::string word;
            for (int letters = UpTo(letters_); letters > 0; --letters)
                word += static_cast<char>('A' + Below(26));
            if (!used.insert(word).second) continue;
            const int type = count < 12 ? count / 2 : Below(7);
            words.AddNew();
            words.SetField("vocindex", ++index);
            words.SetField("word", word);
            // Each type has words of its own numbers, so that the first word of a number is the word
            // itself.
            words.SetField("vocnum", std::int64_t{count < 12 ? 2 + count : 20 + count});
            words.SetField("voctypen", std::int64_t{type});
            words.SetField("voctype", std::string(condacts::WordTypeName(type)));
            words.Update();
        }
    }

    /// A word that passes `test`; the word for none when there is no such.
    condacts::Word RandomWord(bool (*test)(const condacts::Word&)) {
        std::vector<condacts::Word> fitting;
        for (const condacts::Word& word : words_) {
            if (test(word) && word.number.value != 1) fitting.push_back(word);
        }
        return fitting.empty() ? condacts::Word{"_", condacts::kNoWordNumber, condacts::kReserved}
                               : fitting[Below(static_cast<int>(fitting.size()))];
    }

    void AddLocations() {
        Cursor& locations = adventure_.OpenTable(TableNum::Locations, "def");
        for (int number = 0; number < locations_; ++number) {
            if (number > 0) locations.AddNew();
            std::string exits;
            std::string numeric;
            const int count = Below(4);
            std::set<int> directions;
            for (int i = 0; i < count; ++i) {
                const condacts::Word word = RandomWord(condacts::IsMovementWord);
                if (word.type == condacts::kReserved || !directions.insert(word.number.value).second)
                    continue;
                const std::string destination = std::to_string(Below(locations_));
                exits += (exits.empty() ? "" : " ") + word.word + " " + destination;
                numeric +=
                    (numeric.empty() ? "" : " ") + std::to_string(word.number.value) + " " + destination;
            }
            locations.SetField("locnum", std::int64_t{number});
            locations.SetField("locdesc", RandomText());
            locations.SetField("locshortdesc", RandomLine());
            locations.SetField("exits", exits);
            locations.SetField("numericexits", numeric);
            locations.SetField("numexits", std::int64_t{condacts::CountTokens(exits)});
            locations.SetField("picloc", std::string(Below(2) != 0 ? "room.png" : ""));
            locations.SetField("pickey", std::string());
            locations.Update();
        }
    }

    void AddObjects() {
        Cursor& objects = adventure_.OpenTable(TableNum::Objects, "def");
        for (int number = 0; number < objects_; ++number) {
            const condacts::Word noun = RandomWord(condacts::IsNounOrReserved);
            const condacts::Word adjective = RandomWord(condacts::IsAdjectiveOrReserved);
            const int attributes = Below(4);
            constexpr const char* kAttributes[] = {"", "C", "WR", "CWR"};
            objects.AddNew();
            objects.SetField("objnum", std::int64_t{number});
            objects.SetField("objdesc", RandomText());
            objects.SetField("objnoun", noun.word);
            objects.SetField("objnumnoun", std::int64_t{noun.number.value});
            objects.SetField("objadject", adjective.word);
            objects.SetField("objnumadject", std::int64_t{adjective.number.value});
            objects.SetField("objloc", std::int64_t{Below(2) != 0 ? 251 + UpTo(3) : Below(locations_)});
            objects.SetField("objlocdesc", std::string("Somewhere."));
            objects.SetField("objweight", std::int64_t{Below(64)});
            objects.SetField("objattrn", std::int64_t{attributes});
            objects.SetField("objattr", std::string(kAttributes[attributes]));
            objects.Update();
        }
    }

    void AddNumberedTexts(TableNum table, const char* key, const char* field, int count) {
        Cursor& texts = adventure_.OpenTable(table, "def");
        for (int number = 0; number < count; ++number) {
            texts.AddNew();
            texts.SetField(key, std::int64_t{number});
            texts.SetField(field, RandomText());
            texts.Update();
        }
    }

    /// The last two are those that every imported source has.
    void ChangeSystemMessages() {
        Cursor& messages = adventure_.OpenTable(TableNum::SystemMessages, "def");
        for (; !messages.Eof(); messages.MoveNext()) {
            messages.SetField("smsgmsg", RandomText());
            messages.Update();
        }
        std::int64_t number = messages.RecordCount();
        for (const char* text : {"Script IS on.", "Script IS off."}) {
            messages.AddNew();
            messages.SetField("smsgnum", number++);
            messages.SetField("smsgmsg", std::string(text));
            messages.Update();
        }
    }

    std::string RandomParameter(const condacts::CondAct& condAct, const condacts::Parameter& param) {
        switch (param.kind) {
            case ParamKind::Location:
                if (param.maxValue == condacts::kLocationWordsAllowed && Below(2) != 0)
                    return std::to_string(251 + UpTo(4));
                return std::to_string(Below(locations_));
            case ParamKind::Object:
                return std::to_string(Below(objects_));
            case ParamKind::Message:
                return std::to_string(Below(messages_));
            case ParamKind::Process:
                return std::to_string(Below(4));
            case ParamKind::SystemMessage:
                return std::to_string(1 + UpTo(4));
            case ParamKind::Flag:
                return std::to_string(60 + Below(100));
            case ParamKind::Value:
                return std::to_string(Below(param.maxValue + 1));
            case ParamKind::Word:
                for (const condacts::Word& word : words_) {
                    const auto* condition = condacts::FindWordCondition(condAct.name);
                    if (word.type == condition->wordType && word.word.size() <= 5 && Below(3) == 0)
                        return word.word;
                }
                return "_";
            case ParamKind::None:
                break;
        }
        return "0";
    }

    /// Only what every type of adventure has, so that each kind of file takes it.
    std::string RandomCondActs(const condacts::Catalogue& catalogue) {
        std::string line;
        for (int count = Below(6); count > 0; --count) {
            const condacts::CondAct& condAct =
                catalogue.All()[Below(static_cast<int>(catalogue.All().size()))];
            if (!condAct.vel || !condAct.pcVel) continue;
            line += (line.empty() ? "" : " ") + condAct.name;
            for (std::size_t p = 0; p < static_cast<std::size_t>(condAct.paramCount); ++p) {
                line += " " + RandomParameter(condAct, condAct.params[p]);
            }
        }
        return line;
    }

    void AddEntries() {
        const condacts::Catalogue catalogue = condacts::LoadCatalogue(adventure_);
        const condacts::WordIndex index = condacts::LoadWords(adventure_);
        Cursor& tables = adventure_.OpenTable(TableNum::ProcDesc, "def");
        tables.AddNew();
        tables.SetField("pmsgnum", std::int64_t{3});
        tables.SetField("pmsgmsg", RandomLine());
        tables.Update();
        Cursor& entries = adventure_.OpenTable(TableNum::ProcessTables, "def", std::nullopt, "canum desc");
        std::int64_t key = entries.Eof() ? -1 : entries.Number("canum");
        for (int count = UpTo(30); count > 0; --count) {
            const condacts::Word verb = RandomWord(condacts::IsMovementWordOrReserved);
            const condacts::Word noun = RandomWord(condacts::IsNounOrReserved);
            std::string line = RandomCondActs(catalogue);
            if (line.empty()) line = "DONE";
            entries.AddNew();
            entries.SetField("canum", ++key);
            entries.SetField("estype", std::int64_t{Below(4)});
            entries.SetField("w1", verb.word);
            entries.SetField("w1num", std::int64_t{verb.number.value});
            entries.SetField("w2", noun.word);
            entries.SetField("w2num", std::int64_t{noun.number.value});
            entries.SetField("condacts", line);
            entries.SetField("numericcondacts", condacts::CondActsToNumeric(line, catalogue, index).line);
            entries.SetField("numcas", std::int64_t{condacts::CountTokens(line)});
            entries.Update();
        }
    }

    void ChangeFlags() {
        Cursor& flags = adventure_.OpenTable(TableNum::Flags, "def", "flgnum>=60 and flgnum<90");
        for (; !flags.Eof(); flags.MoveNext()) {
            flags.SetField("flgdesc", RandomLine());
            flags.Update();
        }
    }

    void AddPictures() {
        Cursor& pictures = adventure_.OpenTable(TableNum::Pictures, "def");
        for (int number = 0; number < locations_; ++number) {
            pictures.AddNew();
            pictures.SetField("locnum", std::int64_t{number});
            pictures.SetField("loctype", std::string("Subroutine"));
            pictures.SetField("locpaper", std::int64_t{Below(16)});
            pictures.SetField("locink", std::int64_t{Below(16)});
            pictures.SetField("drawstring", std::string("PLOT 0 10 10 END"));
            pictures.SetField("picname", std::string());
            pictures.SetField("roompicnum", std::int64_t{-1});
            pictures.Update();
        }
    }

    void ChangeSettings() {
        Cursor& settings = adventure_.OpenTable(TableNum::Adventure, "def");
        settings.SetField("advname", RandomLine());
        settings.SetField("author", RandomLine());
        settings.SetField("advdesc", RandomText());
        settings.SetField("startloc", std::int64_t{Below(locations_)});
        settings.SetField("sound", std::int64_t{Below(2)});
        settings.Update();
    }

    void AddComments() {
        for (const TableNum table :
             {TableNum::Locations, TableNum::Messages, TableNum::Objects, TableNum::ProcessTables,
              TableNum::SystemMessages, TableNum::Vocabulary, TableNum::Flags, TableNum::ProcDesc}) {
            const bool isWords = table == TableNum::Vocabulary;
            Cursor& records = adventure_.OpenTable(table, "def", isWords ? "voctypen<7" : "");
            for (; !records.Eof(); records.MoveNext()) {
                if (Below(4) != 0) continue;
                const std::string comment = RandomText();
                if (comment.empty()) continue;
                records.SetField("comment", comment);
                records.Update();
            }
        }
    }

    Adventure& adventure_;
    std::mt19937 random_;
    int letters_;
    std::vector<condacts::Word> words_;
    int locations_ = 1;
    int objects_ = 1;
    int messages_ = 1;
};

/// The values of one table, a line for each record.
void AddRecords(Adventure& adventure, TableNum table, const char* order,
                std::initializer_list<const char*> fields, const char* where,
                std::vector<std::string>& lines) {
    Cursor& records = adventure.OpenTable(table, "def", where, order);
    for (; !records.Eof(); records.MoveNext()) {
        std::string line(store::FindTable(table)->name);
        for (const char* field : fields)
            line += "|" + text::ToText(records.Field(field));
        lines.push_back(line);
    }
}

}  // namespace

void FillAtRandom(Adventure& adventure, std::uint32_t seed, int letters) {
    Filler(adventure, seed, letters).Fill();
}

std::vector<std::string> ExportedFields(Adventure& adventure) {
    std::vector<std::string> lines;
    std::map<int, std::string> keys;
    std::map<int, std::vector<std::string>> fields;
    Cursor& columns = adventure.OpenTable(TableNum::Tables, "def", "export>0", "tablenum, fieldname");
    for (; !columns.Eof(); columns.MoveNext()) {
        const int table = static_cast<int>(columns.Number("tablenum"));
        if (columns.Number("export") == 1) keys[table] = columns.Text("fieldname");
        fields[table].emplace_back(columns.Text("fieldname"));
    }
    for (const int table : {5, 8, 1, 4, 2, 7, 15, 6, 9, 33, 34}) {
        Cursor& records =
            adventure.OpenTable(static_cast<TableNum>(table), "def", std::nullopt, keys[table]);
        for (; !records.Eof(); records.MoveNext()) {
            for (const std::string& field : fields[table]) {
                lines.push_back(std::to_string(table) + " " + text::ToText(records.Field(keys[table])) +
                                " " + field + " " + text::ToText(records.Field(field)));
            }
        }
    }
    return lines;
}

std::vector<std::string> SourceContents(Adventure& adventure) {
    std::vector<std::string> lines;
    AddRecords(adventure, TableNum::Vocabulary, "voctypen, vocnum, word",
               {"word", "vocnum", "voctypen", "voctype", "comment"}, "voctypen<7", lines);
    AddRecords(adventure, TableNum::SystemMessages, "smsgnum", {"smsgnum", "smsgmsg", "comment"},
               "smsgnum>=0", lines);
    AddRecords(adventure, TableNum::Messages, "msgnum", {"msgnum", "msgmsg", "comment"}, "msgnum>=0",
               lines);
    AddRecords(adventure, TableNum::Locations, "locnum",
               {"locnum", "locdesc", "exits", "numericexits", "numexits", "comment"}, "locnum>=0", lines);
    AddRecords(adventure, TableNum::Objects, "objnum",
               {"objnum", "objdesc", "objnoun", "objnumnoun", "objadject", "objnumadject", "objloc",
                "objweight", "objattr", "objattrn", "comment"},
               "objnum>=0", lines);
    AddRecords(adventure, TableNum::ProcessTables, "estype, canum",
               {"estype", "w1", "w2", "w1num", "w2num", "numcas", "condacts", "numericcondacts", "comment"},
               "canum>=0", lines);
    AddRecords(adventure, TableNum::ProcDesc, "pmsgnum", {"pmsgnum", "comment"}, "pmsgnum>=0", lines);
    return lines;
}

}  // namespace fabula::interchange
