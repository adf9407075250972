#include "interchange/unvel/unvel_writer.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <set>

#include "condacts/language/load.h"
#include "condacts/language/parser.h"
#include "condacts/limits.h"
#include "condacts/places.h"
#include "condacts/process_filters.h"
#include "interchange/shared/export_fields.h"
#include "interchange/shared/source_extras.h"
#include "interchange/shared/source_file.h"
#include "interchange/unvel/unvel_file.h"
#include "interchange/unvel/unvel_general_data.h"
#include "interchange/unvel/unvel_head.h"
#include "interchange/unvel/unvel_notes.h"
#include "store/schema/record_fields.h"
#include "text/encoding/utf8.h"
#include "text/format.h"
#include "text/line_ends.h"
#include "text/str_edit.h"

namespace fabula::interchange {
namespace {

using store::Cursor;
using store::TableNum;

constexpr std::size_t kLetters = condacts::SignificantLetters(store::AdventureKind::Vel);
constexpr const char* kConnectionLine = "Location!%s4!:  !%a5!%s3";
/// Exits behind the first of a location stand below it; the oldest form puts them a column further right.
constexpr const char* kNextConnection = "%t16!%a5!%s3";
constexpr const char* kNextConnectionOldest = "%t17!%a5!%s3";

bool IsVersion(std::string_view version) {
    return std::find(std::begin(kUnVelVersions), std::end(kUnVelVersions), version) !=
           std::end(kUnVelVersions);
}

/// The names in use that neither of the older engines has.
std::set<std::string> ForbiddenNames(store::Adventure& adventure, const condacts::Catalogue& catalogue) {
    std::set<std::string> names;
    store::PreparedQuery entries = adventure.Prepare(TableNum::ProcessTables, "condacts", "");
    for (bool more = entries.First({}); more; more = entries.Next()) {
        for (const condacts::Statement& statement :
             condacts::ParseLine(entries.Text(0), catalogue).statements) {
            const condacts::CondAct& condAct = *statement.condAct;
            if (condAct.fabula && !condAct.marlo && !condAct.vel) names.insert(condAct.name);
        }
    }
    return names;
}

/// The writing of one extract.
class ExtractWriter {
  public:
    ExtractWriter(ExportContext& context, std::string_view version)
        : context_(context),
          version_(version),
          isOldest_(version == kOldestUnVelVersion),
          file_(context),
          catalogue_(condacts::LoadCatalogue(context.adventure)),
          words_(condacts::LoadWords(context.adventure)) {}

    void WriteAll() {
        WriteHead();
        WriteGeneralData();
        WriteVocabulary();
        WriteTexts("MESSAGES", TableNum::Messages, "Message");
        WriteTexts("SYSTEM MESSAGES", TableNum::SystemMessages, "System Message");
        WriteTexts("LOCATIONS", TableNum::Locations, "Location");
        WriteConnections();
        WriteTexts("OBJECT NAMES", TableNum::Objects, "Object");
        WriteObjectWords();
        WriteObjectPlaces();
        WriteObjectWeights();
        WriteProcesses();
        WriteUnVelPictures(context_, file_);
        WriteUnVelCharacters(context_, file_);
        WriteNotes("FLAG DESCRIPTIONS", "on the Flags", TableNum::Flags, "flgnum", "flgdesc",
                   "flgmod>0 and flgdesc<>''", "; Flag  !%s4");
        WriteNotes("PROCESS TABLE DESCRIPTIONS", "on the Processes", TableNum::ProcDesc, "pmsgnum",
                   "pmsgmsg", condacts::BehindFixedProcesses("pmsgnum"), "; Process!%s4");
        WriteCommentSection();
        file_.Finish();
    }

  private:
    Cursor& Open(TableNum table, std::string_view order,
                 std::optional<std::string_view> where = std::nullopt) {
        return context_.adventure.OpenTable(table, "def", where, order);
    }

    void Record(TableNum table, std::int64_t key) {
        context_.status.IncBar(1);
        file_.Record(std::string(store::FindTable(table)->name) + " " + std::to_string(key));
    }

    void WriteHead() {
        store::PreparedQuery settings = context_.adventure.Prepare(TableNum::Adventure, "advname", "");
        settings.First({});
        std::string name(settings.Text(0));
        settings.Reset();
        file_.Record("Adventure, name");
        for (const std::string_view end :
             {std::string_view("\r"), std::string_view("\n"), text::kLineEndMarker})
            name = text::ReplaceAll(name, end, " ");
        const bool isMarlo = context_.adventure.Kind() == store::AdventureKind::Marlo;
        file_.Line(std::string(isMarlo ? kMarloDatabase : kVelDatabase) + ": " + name);
        file_.Line(std::string(kOwnExtract) + ExportVersion(context_.adventure));
        file_.Line(version_);
        file_.Line("");
    }

    std::int64_t Count(TableNum table, std::string_view where = "") {
        return context_.adventure.OpenTable(table, "def", where).RecordCount();
    }

    void Item(std::string_view label, std::int64_t value) {
        file_.Line(text::FormatText("%a!%t35!%s4", {std::string(label), value}));
    }

    void TextItem(const char* label, std::string_view value) {
        file_.Line(text::FormatText("%a20!%r19", {std::string(label), std::string(value)}));
    }

    void WriteGeneralData() {
        file_.Record("Adventure");
        file_.UnVelHdr("General data", false);
        TextItem("Database version", version_);
        TextItem("Database compressed", "No");
        TextItem("Snapshot type", "None");
        Cursor& settings = context_.adventure.OpenTable(TableNum::Adventure, "def");
        Item(kInkLabel, settings.Number("textcolor"));
        Item(kPaperLabel, settings.Number("BackColor"));
        Item(kFontLabel, settings.Number("font"));
        const std::int64_t conveyable = settings.Number("maxobj");
        const bool pictures = settings.Truth("graphics");
        const bool sets = settings.Truth("charsets");
        Item("Processes", HighestProcess() + 1);
        Item("Locations", Count(TableNum::Locations));
        Item(isOldest_ ? "Ojects" : "Objects", Count(TableNum::Objects));
        Item("Messages", Count(TableNum::Messages));
        Item("System messages", Count(TableNum::SystemMessages));
        Item(kSetsLabel, sets ? Count(TableNum::Characters, "charnum=65") : 0);
        Item(kConveyableLabel, conveyable);
        Item(kPicturesLabel, pictures ? std::max<std::int64_t>(Count(TableNum::Pictures), 1) : 0);
        file_.Line(std::string(kGeneralDashes, '-'));
    }

    /// What stands in the extract for one or more words of a type, and which word that is.
    struct Listed {
        std::string word;
        std::set<std::int64_t> numbers;
    };
    using ListedWords = std::map<std::pair<std::int64_t, std::string>, Listed>;

    /// By type and letters. A word that needs no cut comes before those that become it, and else the first.
    static ListedWords WordsToList(Cursor& words) {
        ListedWords listed;
        for (; !words.Eof(); words.MoveNext()) {
            const std::string word(words.Text("word"));
            const std::string cut(text::Left(word, kLetters));
            Listed& place = listed[{words.Number("voctypen"), cut}];
            if (place.word.empty() || (word == cut && place.word != word)) place = {word, {}};
            if (place.word == word) place.numbers.insert(words.Number("vocnum"));
        }
        return listed;
    }

    void WriteVocabulary() {
        file_.UnVelHdr("Vocabulary", true);
        const ListedWords listed = WordsToList(Open(TableNum::Vocabulary, "vocnum,word", "vocnum>0"));
        Cursor& words = Open(TableNum::Vocabulary, "vocnum,word", "vocnum>0");
        for (; !words.Eof(); words.MoveNext()) {
            Record(TableNum::Vocabulary, words.Number("vocindex"));
            const std::string type(condacts::WordTypeName(static_cast<int>(words.Number("voctypen"))));
            const std::string word = file_.Word(words.Text("word"), kLetters);
            const Listed& place = listed.at({words.Number("voctypen"), word});
            if (place.word == words.Text("word")) {
                file_.Line(text::FormatText("%a!%t7!%s4!%a", {word, words.Field("vocnum"), type}));
            } else if (!place.numbers.contains(words.Number("vocnum"))) {
                file_.Loss("the word " + std::string(words.Text("word")) + " would be " + word +
                           ", which is another word. It is left out.");
            }
        }
    }

    void WriteTexts(const char* title, TableNum table, const std::string& label) {
        const std::string keyField = store::KeyField(table);
        const std::string_view textField = store::TextField(table);
        file_.UnVelHdr(title, true);
        Cursor& texts = Open(table, keyField);
        for (; !texts.Eof(); texts.MoveNext()) {
            Record(table, texts.Number(keyField));
            file_.WriteUnVelDesc(text::FormatText(label + "!%s4", {texts.Field(keyField)}),
                                 texts.Text(textField), label);
        }
    }

    void WriteConnections() {
        file_.UnVelHdr("CONNECTIONS", true);
        Cursor& locations = Open(TableNum::Locations, "locnum", "numexits>0");
        for (; !locations.Eof(); locations.MoveNext()) {
            Record(TableNum::Locations, locations.Number("locnum"));
            const auto tokens = SplitWords(locations.Text("exits"));
            for (std::size_t i = 0; i + 1 < tokens.size(); i += 2) {
                const auto destination = ListedNumber(tokens[i + 1], condacts::limit::kHighestRecord);
                if (!destination)
                    file_.Loss("an exit to " + std::string(tokens[i + 1]) + " can't be read back.");
                const std::string word = file_.Word(tokens[i], kLetters);
                const std::int64_t number = destination.value_or(0);
                if (i == 0) {
                    file_.Line(
                        text::FormatText(kConnectionLine, {locations.Field("locnum"), word, number}));
                } else {
                    file_.Line(text::FormatText(isOldest_ ? kNextConnectionOldest : kNextConnection,
                                                {word, number}));
                }
            }
        }
    }

    void WriteObjectWords() {
        file_.UnVelHdr("OBJECT WORDS", true);
        Cursor& objects = Open(TableNum::Objects, "objnum");
        for (; !objects.Eof(); objects.MoveNext()) {
            Record(TableNum::Objects, objects.Number("objnum"));
            const auto word = [&](const char* field, const char* numberField) {
                if (objects.Number(numberField) == condacts::kNoWordNumber.value)
                    return std::string(condacts::kNoWord);
                return file_.Word(objects.Text(field), kLetters);
            };
            file_.Line(text::FormatText("Object!%s4!%t15!%a! !%a",
                                        {objects.Field("objnum"), word("objnoun", "objnumnoun"),
                                         word("objadject", "objnumadject")}));
        }
    }

    static std::string Place(condacts::PlaceNumber place) {
        if (place == condacts::place::kNotCreated) return "NC";
        if (place == condacts::place::kWorn) return "W";
        if (place == condacts::place::kCarried) return "C";
        return std::to_string(place.value);
    }

    void WriteObjectPlaces() {
        file_.UnVelHdr(isOldest_ ? "INITIALY AT" : "INITIALLY AT", true);
        Cursor& objects = Open(TableNum::Objects, "objnum");
        for (; !objects.Eof(); objects.MoveNext()) {
            file_.Line(text::FormatText(
                "Object!%s4!  !%a",
                {objects.Field("objnum"),
                 Place(condacts::PlaceNumber(static_cast<int>(objects.Number("objloc"))))}));
        }
    }

    void WriteObjectWeights() {
        constexpr const char* kTypes[] = {"", "C", "W", "CW"};
        file_.UnVelHdr("OBJECT WEIGHT AND TYPE", true);
        Cursor& objects = Open(TableNum::Objects, "objnum");
        for (; !objects.Eof(); objects.MoveNext()) {
            Record(TableNum::Objects, objects.Number("objnum"));
            const std::int64_t weight = objects.Number("objweight");
            if (weight < 0 || weight > kHeaviestListed) file_.Loss("the weight can't be written.");
            const std::string type = kTypes[objects.Number("objattrn") & 3];
            file_.Line(std::string(TrimRight(text::FormatText(
                "Object !%s3!:  weights !%s2!    !%a",
                {objects.Field("objnum"), std::clamp<std::int64_t>(weight, 0, kHeaviestListed), type}))));
        }
    }

    std::int64_t HighestProcess() {
        std::int64_t highest = 0;
        for (const auto& [table, field] :
             {std::pair(TableNum::ProcessTables, "estype"), std::pair(TableNum::ProcDesc, "pmsgnum")}) {
            const std::string key = field;
            store::PreparedQuery rows = context_.adventure.Prepare(table, key, key + ">=0", key + " desc");
            if (rows.First({})) highest = std::max(highest, rows.Number(0));
        }
        return std::min<std::int64_t>(highest, condacts::limit::kHighestProcess.value);
    }

    void WriteProcesses() {
        for (std::int64_t process = 0; process <= HighestProcess(); ++process) {
            const std::string title =
                process == 0 ? "RESPONSE TABLE" : text::FormatText("PROCESS!%s4", {process});
            file_.UnVelHdr(title, true);
            Cursor& entries = Open(TableNum::ProcessTables, "canum", "estype=" + std::to_string(process));
            for (; !entries.Eof(); entries.MoveNext()) {
                Record(TableNum::ProcessTables, entries.Number("canum"));
                if (WriteEntry(entries.Text("w1"), entries.Text("w2"), entries.Text("condacts")))
                    written_.insert(entries.Number("canum"));
            }
        }
    }

    /// "-" is the word that fits any.
    std::string EntryWord(std::string_view word) {
        return word == condacts::kNoWord ? "-" : file_.Word(word, kLetters);
    }

    /// The parameter of a word condition is written as the word's number.
    std::string Parameter(const condacts::Statement& statement, std::string_view token) {
        constexpr std::size_t kWidth = 3;
        std::string written(token);
        const condacts::WordCondition* condition = condacts::FindWordCondition(statement.condAct->name);
        if (condition != nullptr) {
            const condacts::Word* word = words_.FindTyped(token, condition->wordType);
            written = std::to_string((word == nullptr ? condacts::kNoWordNumber : word->number).value);
            const condacts::Word* back =
                word == nullptr ? nullptr : words_.FindNumberTyped(word->number, condition->wordType);
            if (token != condacts::kNoWord && (back == nullptr || back->word != token))
                file_.Loss("the word " + std::string(token) + " will come back as another of its number.");
        }
        if (written.size() > kWidth) file_.Loss("the parameter " + written + " is cut.");
        return written;
    }

    /// False for an entry of which nothing could be written.
    bool WriteEntry(std::string_view first, std::string_view second, std::string_view condActs) {
        std::string w1 = EntryWord(first);
        std::string w2 = EntryWord(second);
        const condacts::ParsedLine parsed = condacts::ParseLine(condActs, catalogue_);
        for (const condacts::Statement& statement : parsed.statements) {
            const auto param = [&](std::size_t i) {
                return i < statement.paramsGiven ? Parameter(statement, parsed.Param(statement, i))
                                                 : std::string();
            };
            const std::string name(parsed.tokens[statement.name].text);
            std::string line = text::FormatText("%a6!%a5!%t18!%a7", {w1, w2, name});
            if (statement.paramsGiven > 0)
                line = text::FormatText("%a!%t31!%r3! !%r3", {line, param(0), param(1)});
            file_.Line(TrimRight(line));
            w1.clear();
            w2.clear();
        }
        if (parsed.unknownName)
            file_.Loss("what stands behind " + std::string(parsed.tokens[*parsed.unknownName].text) +
                       " is no condition or action.");
        if (parsed.statements.empty())
            file_.Loss("an entry without conditions and actions is not written.");
        return !parsed.statements.empty();
    }

    void WriteNotes(const char* title, const char* of, TableNum table, std::string_view keyField,
                    std::string_view textField, std::string_view where, const char* format) {
        file_.UnVelHdr(title, true, true);
        file_.Line(std::string("; This section was added to give documentation ") + of);
        Cursor& records = Open(table, keyField, where);
        for (; !records.Eof(); records.MoveNext()) {
            Record(table, records.Number(keyField));
            file_.WriteUnVelDesc(text::FormatText(format, {records.Field(keyField)}),
                                 records.Text(textField), "", true);
        }
    }

    /// The author's comments, where there are any.
    void WriteCommentSection() {
        bool begun = false;
        const auto isWritten = [this](std::int64_t canum) { return written_.contains(canum); };
        const auto write = [&](const std::string& record, const std::string& line) {
            if (!begun) file_.UnVelHdr("COMMENTS", true, true);
            begun = true;
            file_.Record(record + ", comment");
            file_.Line("; " + line);
        };
        WriteComments(context_.adventure, kLetters, isWritten, write);
    }

    ExportContext& context_;
    std::string_view version_;
    bool isOldest_;
    std::set<std::int64_t> written_;  ///< entries, by `canum`
    UnVelFile file_;
    condacts::Catalogue catalogue_;
    condacts::WordIndex words_;
};

/// The form to write; nothing when the one that is asked for is unknown.
std::optional<std::string> VersionFor(ExportContext& context) {
    if (!context.version.empty()) {
        if (IsVersion(context.version)) return context.version;
        context.status.AddToStatusCR("UnVel extracts have no version " + context.version + ".");
        return std::nullopt;
    }
    store::PreparedQuery settings = context.adventure.Prepare(TableNum::Adventure, "version", "");
    if (settings.First({})) {
        const std::string version(settings.Text(0));
        if (IsVersion(version)) return version;
    }
    return std::string(kNewestUnVelVersion);
}

}  // namespace

bool ExportUnVel(ExportContext& context) {
    const auto version = VersionFor(context);
    if (!version) return false;
    const std::set<std::string> forbidden =
        ForbiddenNames(context.adventure, condacts::LoadCatalogue(context.adventure));
    for (const std::string& name : forbidden)
        context.status.AddToStatusCR("Use of " + name +
                                     " Condition/Action. This is not a valid Vel Condition/Action.");
    if (!forbidden.empty()) return false;
    ExtractWriter(context, *version).WriteAll();
    context.person.Tell("UnVel Export completed", "Fabula");
    return true;
}

}  // namespace fabula::interchange
