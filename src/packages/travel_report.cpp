#include "packages/travel_report.h"

#include <map>
#include <optional>
#include <set>

#include "authoring/document/screen_context.h"
#include "condacts/language/load.h"
#include "condacts/language/recompile.h"
#include "condacts/limits.h"
#include "condacts/word_record.h"
#include "packages/travel_table.h"
#include "platform/error.h"
#include "store/file/file_copy.h"
#include "text/encoding/utf8.h"
#include "text/fields.h"
#include "text/line_ends.h"
#include "text/str_edit.h"

namespace fabula::packages {
namespace {

using store::TableNum;

constexpr std::string_view kTitle = "Adventure Travel Table converted to Actions & Travel Verbs";
using condacts::limit::kHighestWord;
using condacts::limit::kLowestWord;
constexpr int kFirstObjectWord = 1000;

/// The verbs of the travel rows in the adventure's vocabulary.
class Verbs {
  public:
    Verbs(store::Adventure& adventure, const std::map<int, std::string>& words)
        : adventure_(adventure), words_(words) {
        store::PreparedQuery rows =
            adventure.Prepare(TableNum::Vocabulary, "word, vocnum, voctypen, vocindex", "");
        for (bool more = rows.First({}); more; more = rows.Next()) {
            const std::int64_t type = rows.Number(2);
            if (type == condacts::kVerb || type == condacts::kNoun)
                known_.insert(text::UpperCase(rows.Text(0)));
            if (type == condacts::kVerb) taken_.insert(rows.Number(1));
            nextIndex_ = authoring::NumberAfter(std::max<std::int64_t>(rows.Number(3), nextIndex_ - 1));
        }
    }

    /// The word of a verb's number, with a note when it was added now; the number where there is no word.
    std::string Of(int verb) {
        const auto word = words_.find(verb);
        if (word == words_.end()) return std::to_string(verb);
        const std::string spelling = text::UpperCase(word->second);
        if (!known_.insert(spelling).second) return spelling;
        Add(spelling);
        return spelling + " (added to database: " + spelling + ")";
    }

    int Added() const { return added_; }

  private:
    void Add(const std::string& spelling) {
        std::int64_t number = kLowestWord;
        while (taken_.contains(number))
            ++number;
        if (number > kHighestWord)
            throw Error("Could not add the word " + spelling +
                        ": the vocabulary has no number left for a verb.");
        taken_.insert(number);
        store::Cursor& record = adventure_.OpenTable(TableNum::Free22, "* from vocabulary", "vocindex<0");
        record.AddNew();
        record.SetField("vocindex", std::int64_t{nextIndex_++});
        condacts::SetWord(record,
                          {spelling, condacts::WordNumber(static_cast<int>(number)), condacts::kVerb});
        record.Update();
        ++added_;
    }

    store::Adventure& adventure_;
    const std::map<int, std::string>& words_;
    std::set<std::string> known_;
    std::set<std::int64_t> taken_;
    int nextIndex_ = 0;
    int added_ = 0;
};

/// The rows of a room follow each other in the report, wherever they stand in the file.
std::map<int, std::vector<const TravelRow*>> ByRoom(const TravelTable& table) {
    std::map<int, std::vector<const TravelRow*>> rooms;
    for (const TravelRow& row : table.rows)
        rooms[row.room].push_back(&row);
    return rooms;
}

void AddLine(std::string& report, const std::string& line) {
    report.append(line).append(text::kLineEnd);
}

std::string LineOf(const TravelRow& row, Verbs& verbs) {
    std::string line = ConditionText(row.condition) + DestinationText(row.destination);
    line += " for travel verb(s)";
    for (const int verb : row.verbs)
        line += " " + verbs.Of(verb);
    return line;
}

std::string ReportOf(const TravelTable& table, Verbs& verbs) {
    std::string report;
    AddLine(report, std::string(kTitle));
    for (const auto& [room, rows] : ByRoom(table)) {
        AddLine(report, "Room: " + std::to_string(room));
        for (const TravelRow* row : rows)
            AddLine(report, LineOf(*row, verbs));
    }
    AddLine(report, "Object Nouns");
    for (const TravelObject& object : table.objects) {
        const auto word = table.words.find(kFirstObjectWord + object.number);
        AddLine(report, " Object Word: " + (word != table.words.end() ? word->second : object.name));
        for (const std::string& message : object.messages)
            AddLine(report, "  " + message);
    }
    return report;
}

/// The numbers of a line of exits; nullopt when one of its words is none that leads anywhere.
std::optional<std::string> NumericExits(std::string_view exits, const condacts::WordIndex& words) {
    std::string numeric;
    const auto tokens = text::Split(exits, " ");
    for (std::size_t i = 0; i < tokens.size(); ++i) {
        std::string token(tokens[i]);
        if (i % 2 == 0) {
            const condacts::Word* word = words.Find(tokens[i], condacts::IsMovementWord);
            if (word == nullptr) return std::nullopt;
            token = std::to_string(word->number.value);
        }
        if (!numeric.empty()) numeric += ' ';
        numeric += token;
    }
    return numeric;
}

void StraightenExits(store::Adventure& adventure) {
    const condacts::WordIndex words = condacts::LoadWords(adventure);
    store::Cursor& locations = adventure.OpenTable(
        TableNum::Free22, "locnum, exits, numexits, numericexits from locations where numexits>0");
    for (; !locations.Eof(); locations.MoveNext()) {
        const std::string exits = text::StrEdit(locations.Text("exits"), "compress,trim");
        const auto tokens = exits.empty() ? std::size_t{0} : text::Split(exits, " ").size();
        const auto numeric = exits.empty() ? std::optional(std::string()) : NumericExits(exits, words);
        const std::string numbers = numeric.value_or(std::string(locations.Text("numericexits")));
        const bool same = exits == locations.Text("exits") && numbers == locations.Text("numericexits") &&
                          static_cast<std::int64_t>(tokens) == locations.Number("numexits");
        if (same) continue;
        locations.SetField("exits", exits);
        locations.SetField("numexits", static_cast<std::int64_t>(tokens));
        locations.SetField("numericexits", numbers);
        locations.Update();
    }
}

}  // namespace

TravelResult Analyze_advent(authoring::Document& document, const std::filesystem::path& data,
                            const std::filesystem::path& report, interchange::JobStatus& status) {
    TravelResult result;
    TravelTable table;
    try {
        table = ReadTravelTable(data, status);
    } catch (const interchange::TooManyFaults&) {
        status.AddToStatusCR("The file has too many faults; the rest was not read.");
    }
    if (status.Faults() > 0) return result;
    authoring::Change change(document, "convert travel table");
    Verbs verbs(document.Adventure(), table.words);
    const std::string text = ReportOf(table, verbs);
    StraightenExits(document.Adventure());
    if (verbs.Added() > 0) condacts::RecompileEntries(document.Adventure());
    store::WriteFile(report, text);
    change.Commit();
    result.done = true;
    result.rooms = static_cast<int>(ByRoom(table).size());
    result.rows = static_cast<int>(table.rows.size());
    result.objects = static_cast<int>(table.objects.size());
    result.wordsAdded = verbs.Added();
    return result;
}

}  // namespace fabula::packages
