#include "interchange/starter.h"

#include <fstream>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "condacts/convert.h"
#include "condacts/load.h"
#include "condacts/parser.h"
#include "interchange/keyed_table.h"
#include "platform/error.h"
#include "text/fields.h"
#include "text/line_ends.h"
#include "text/numbers.h"

namespace fabula::interchange {
namespace {

using store::Adventure;
using store::Cursor;
using store::TableNum;

struct Line {
    int number = 0;
    std::string text;
};
using Sections = std::map<std::string, std::vector<Line>>;

/// The sections of one starter file.
class StarterFile {
  public:
    explicit StarterFile(const std::filesystem::path& file) : file_(file) {
        std::ifstream stream(file, std::ios::binary);
        if (!stream) throw Error("Could not read the starter " + file.string() + ".");
        std::vector<Line>* section = nullptr;
        int number = 0;
        for (std::string text; std::getline(stream, text);) {
            ++number;
            if (text.ends_with('\r')) text.pop_back();
            if (text == "::END") {
                section = nullptr;
            } else if (text.starts_with("::")) {
                section = &sections_[text.substr(2)];
            } else if (section != nullptr) {
                section->push_back({number, text});
            }
        }
        if (section != nullptr)
            throw Error("The starter " + file.string() + " has a section without an end.");
    }

    const std::vector<Line>& Section(const std::string& name) { return sections_[name]; }

    std::vector<std::string_view> Columns(const Line& line, std::size_t count) const {
        std::vector<std::string_view> columns = text::Split(line.text, "|");
        if (columns.size() != count) Malformed(line);
        return columns;
    }

    std::int64_t Number(const Line& line, std::string_view text) const {
        const auto number = text::WholeNumber(text);
        if (!number) Malformed(line);
        return *number;
    }

    [[noreturn]] void Malformed(const Line& line) const {
        throw Error("The starter " + file_.string() + " is wrong at line " + std::to_string(line.number) +
                    ".");
    }

  private:
    std::filesystem::path file_;
    Sections sections_;
};

void AddWords(Adventure& adventure, StarterFile& starter) {
    KeyedTable words(adventure, TableNum::Vocabulary, "vocindex");
    for (const Line& line : starter.Section("VOCABULARY")) {
        const auto columns = starter.Columns(line, 4);
        Cursor& record = words.Add(words.HighestKey() + 1);
        record.SetField("vocnum", starter.Number(line, columns[0]));
        record.SetField("word", std::string(columns[1]));
        record.SetField("voctypen", starter.Number(line, columns[2]));
        record.SetField("voctype", std::string(columns[3]));
        words.Update();
    }
}

void AddMessages(Adventure& adventure, StarterFile& starter) {
    KeyedTable messages(adventure, TableNum::Messages, "msgnum");
    std::map<std::int64_t, std::string> texts;
    std::string* text = nullptr;
    bool first = true;
    for (const Line& line : starter.Section("MESSAGES")) {
        if (line.text.starts_with('/')) {
            text = &texts[starter.Number(line, std::string_view(line.text).substr(1))];
            first = true;
            continue;
        }
        if (text == nullptr) starter.Malformed(line);
        if (!first) *text += text::kLineEndMarker;
        *text += line.text;
        first = false;
    }
    for (const auto& [number, message] : texts) {
        messages.GoToOrAdd(number).SetField("msgmsg", message);
        messages.Update();
    }
}

void AddEntries(Adventure& adventure, StarterFile& starter) {
    const condacts::Catalogue catalogue = condacts::LoadCatalogue(adventure);
    const condacts::WordIndex words = condacts::LoadWords(adventure);
    KeyedTable entries(adventure, TableNum::ProcessTables, "canum");
    for (const Line& line : starter.Section("PROCESSTABLES")) {
        const auto columns = starter.Columns(line, 7);
        const std::string condActs(columns[6]);
        const condacts::Converted numeric = condacts::CondActsToNumeric(condActs, catalogue, words);
        if (!numeric.ok || condacts::CountTokens(condActs) != starter.Number(line, columns[5])) {
            starter.Malformed(line);
        }
        Cursor& record = entries.Add(entries.HighestKey() + 1);
        record.SetField("estype", starter.Number(line, columns[0]));
        record.SetField("w1", std::string(columns[1]));
        record.SetField("w2", std::string(columns[2]));
        record.SetField("w1num", starter.Number(line, columns[3]));
        record.SetField("w2num", starter.Number(line, columns[4]));
        record.SetField("numcas", starter.Number(line, columns[5]));
        record.SetField("condacts", condActs);
        record.SetField("numericcondacts", numeric.line);
        entries.Update();
    }
}

}  // namespace

void AddStarter(Adventure& adventure, const std::filesystem::path& file) {
    StarterFile starter(file);
    store::Transaction transaction(adventure);
    AddMessages(adventure, starter);
    AddWords(adventure, starter);
    AddEntries(adventure, starter);
    transaction.Commit();
}

}  // namespace fabula::interchange
