#include "interchange/pc/pc_source_writer.h"

#include <algorithm>
#include <exception>
#include <set>
#include <string>
#include <string_view>
#include <utility>

#include "condacts/language/load.h"
#include "condacts/language/parser.h"
#include "condacts/limits.h"
#include "condacts/process_filters.h"
#include "interchange/pc/ace_tags.h"
#include "interchange/pc/pc_lines.h"
#include "interchange/pc/pc_source_job.h"
#include "interchange/pc/pc_texts.h"
#include "interchange/shared/export_fields.h"
#include "interchange/shared/source_extras.h"
#include "interchange/shared/target_file.h"
#include "store/comments.h"
#include "store/schema/record_fields.h"
#include "store/tags.h"
#include "text/encoding/utf8.h"
#include "text/encoding/windows1252.h"
#include "text/fields.h"
#include "text/format.h"
#include "text/line_ends.h"
#include "text/str_edit.h"

namespace fabula::interchange {
namespace {

using store::Cursor;
using store::TableNum;

constexpr const char* kSeparator = " - - - - - - - - - -";
constexpr const char* kNullWord = "_ ";
/// Widths of the columns of words, which grow with longer words so that a blank stands behind each.
constexpr std::size_t kVocabularyColumn = 8;
constexpr std::size_t kEntryColumn = 8;
constexpr std::size_t kExitColumn = 5;
constexpr std::size_t kNounColumn = 6;

/// A character that the file can't hold; the reason is in the status.
class CannotWrite : public std::exception {};

/// The writing of one source.
class SourceWriter {
  public:
    SourceWriter(ExportContext& context, const PcDialect& dialect)
        : context_(context),
          dialect_(dialect),
          file_(context.target),
          catalogue_(condacts::LoadCatalogue(context.adventure)),
          tags_(context.adventure),
          texts_(dialect, store::LoadTagCatalogue(context.adventure), dialect.hasTags ? &tags_ : nullptr),
          words_(condacts::LoadWords(context.adventure)),
          nounVerbs_(NounsThatEntriesTakeForVerbs()) {}

    void WriteAll() {
        WriteHead();
        WriteVocabulary();
        for (std::size_t i = 0; i < std::size(kPcTextTables); ++i)
            WriteTexts(kPcTextTables[i], kTextKeywords[i]);
        WriteConnections();
        WriteObjects();
        WriteProcesses();
        WriteDocumentation();
        WriteExtras(context_.adventure, dialect_.letters, context_.status,
                    [this](const std::string& record, const std::string& line) {
                        record_ = record;
                        TextLine(dialect_.comment + line);
                    });
        file_.Finish();
    }

  private:
    static constexpr const char* kTextKeywords[] = {"STX", "MTX", "OTX", "LTX"};

    void Line(std::string_view line) {
        const auto bad = file_.WriteLine(TrimRight(line));
        if (!bad) return;
        context_.status.AddToStatusCR("ERROR: " + record_ + ": the character " + *bad +
                                      " can't be written in this file.");
        throw CannotWrite();
    }

    void TextLine(std::string_view line) {
        const auto bad = file_.WriteLine(line);
        if (!bad) return;
        context_.status.AddToStatusCR("ERROR: " + record_ + ": the character " + *bad +
                                      " can't be written in this file.");
        throw CannotWrite();
    }

    void Comment(const std::string& text) { Line(dialect_.comment + std::string(" ") + text); }

    void Keyword(const char* keyword) {
        Line(dialect_.comment + std::string(kSeparator));
        Line(text::FormatText("/!%a", {std::string(keyword)}));
    }

    void Loss(const std::string& what) { context_.status.AddLoss(record_ + ": " + what); }

    void WriteHead() {
        record_ = "Adventure, name";
        const std::string name = dialect_.hasTags ? "ACE" : "PC VEL";
        Comment("Exported in " + name + " format by Fabula Export Version " +
                ExportVersion(context_.adventure));
        // The folder is nobody's business, and may have a name that can't be written.
        const std::string file = context_.adventure.CurrentFile().filename().string();
        const bool canBeWritten = !text::ToWindows1252(file).unwritable;
        Comment("This is an export of Fabula DataBase " + (canBeWritten ? file : ""));
        store::PreparedQuery settings = context_.adventure.Prepare(TableNum::Adventure, "advname", "");
        settings.First({});
        std::string title(settings.Text(0));
        settings.Reset();
        for (const std::string_view lineEnd :
             {std::string_view("\r"), std::string_view("\n"), text::kLineEndMarker}) {
            title = text::ReplaceAll(title, lineEnd, " ");
        }
        Comment(std::string(kAdventureNameMark) + title);
        Line(dialect_.comment + std::string(kSeparator));
        Line("/CTL");
        Comment("Null word character is an underline");
        TextLine(kNullWord);
    }

    /// A word as the source can hold it.
    std::string Word(std::string_view word) {
        if (word.find_first_of(" \t/") != std::string_view::npos ||
            word.find(dialect_.comment) != std::string::npos) {
            Loss("the word " + std::string(word) + " can't be read back.");
        }
        const std::string_view cut = text::Left(word, dialect_.letters);
        if (cut.size() < word.size()) {
            Loss("the word " + std::string(word) + " is cut to " + std::string(cut) + ".");
        }
        return std::string(cut);
    }

    static std::int64_t Width(const std::string& word, std::size_t column) {
        return static_cast<std::int64_t>(std::max(column, text::Length(word) + 1));
    }

    void WriteVocabulary() {
        Keyword("VOC");
        Cursor& words = context_.adventure.OpenTable(TableNum::Vocabulary, "def",
                                                     "voctypen<" + std::to_string(condacts::kReserved));
        for (; !words.Eof(); words.MoveNext()) {
            record_ = "Vocabulary " + std::to_string(words.Number("vocindex"));
            const std::string word = Word(words.Text("word"));
            const auto type = static_cast<int>(words.Number("voctypen"));
            const text::Value number = words.Field("vocnum");
            const bool isVerbToo =
                type == condacts::kNoun && nounVerbs_.erase({text::LowerCase(words.Text("word")),
                                                             static_cast<int>(words.Number("vocnum"))}) > 0;
            // In "marlo" the first word is the verb, and so it is in front of its noun. In other games no
            // sentence has such a verb, and behind its noun none gets it.
            const bool verbFirst = isVerbToo && context_.adventure.Kind() == store::AdventureKind::Marlo;
            if (verbFirst) WriteWord(word, number, condacts::kVerb);
            WriteWord(word, number, type);
            if (isVerbToo && !verbFirst) WriteWord(word, number, condacts::kVerb);
        }
    }

    void WriteWord(const std::string& word, const text::Value& number, int type) {
        Line(text::FormatText("%a*!%s3!   !%a", {Width(word, kVocabularyColumn), word, number,
                                                 text::LowerCase(condacts::WordTypeName(type))}));
    }

    /// The nouns, by spelling and number, that entries have for their verbs though they are no directions.
    /// The older of the older engines knows nothing else, but a reader of these sources leaves such an
    /// entry out. So these words are written as verbs, too.
    std::set<std::pair<std::string, int>> NounsThatEntriesTakeForVerbs() {
        std::set<std::pair<std::string, int>> nouns;
        store::PreparedQuery entries = context_.adventure.Prepare(TableNum::ProcessTables, "w1", "");
        for (bool more = entries.First({}); more; more = entries.Next()) {
            if (words_.Find(entries.Text(0), condacts::IsMovementWordOrReserved) != nullptr) continue;
            const condacts::Word* noun = words_.FindTyped(entries.Text(0), condacts::kNoun);
            if (noun != nullptr) nouns.emplace(text::LowerCase(noun->word), noun->number.value);
        }
        return nouns;
    }

    void WriteTexts(const PcTextTable& kind, const char* keyword) {
        Keyword(keyword);
        const std::string keyField = store::KeyField(kind.table);
        const std::string textField(store::TextField(kind.table));
        Cursor& texts = context_.adventure.OpenTable(kind.table, "def", std::nullopt, keyField);
        for (; !texts.Eof(); texts.MoveNext()) {
            context_.status.IncBar(1);
            record_ = std::string(store::FindTable(kind.table)->name) + " " +
                      std::to_string(texts.Number(keyField)) + ", " + textField;
            Line("/" + std::to_string(texts.Number(keyField)));
            ShowPCVelDesc(texts.Text(textField));
        }
    }

    /// Writes a text in its source form.
    void ShowPCVelDesc(std::string_view text) {
        const PcTextForm::Written written =
            texts_.ToSource(text::NormalizeLineEnds(text, text::kLineEndMarker));
        if (!written.comesBack) Loss("the text will not come back as it is.");
        for (const std::string& line : written.lines)
            TextLine(line);
    }

    void WriteConnections() {
        Keyword("CON");
        Cursor& locations =
            context_.adventure.OpenTable(TableNum::Locations, "def", std::nullopt, "locnum");
        for (; !locations.Eof(); locations.MoveNext()) {
            record_ = "Locations " + std::to_string(locations.Number("locnum")) + ", exits";
            Line("/" + std::to_string(locations.Number("locnum")));
            const auto tokens = SplitWords(locations.Text("exits"));
            for (std::size_t i = 0; i + 1 < tokens.size(); i += 2) {
                const std::string word = Word(tokens[i]);
                Line(text::FormatText("%a*!   !%a5",
                                      {Width(word, kExitColumn), word, std::string(tokens[i + 1])}));
            }
        }
    }

    void WriteObjects() {
        Keyword("OBJ");
        Cursor& objects = context_.adventure.OpenTable(TableNum::Objects, "def", std::nullopt, "objnum");
        for (; !objects.Eof(); objects.MoveNext()) {
            record_ = "Objects " + std::to_string(objects.Number("objnum"));
            const std::int64_t attributes = objects.Number("objattrn");
            const std::string noun = Word(objects.Text("objnoun"));
            const std::string adjective = Word(objects.Text("objadject"));
            const auto yesOrNo = [&](std::int64_t bit) {
                return std::string((attributes & bit) != 0 ? "Y" : "N");
            };
            Line(text::FormatText(
                "/!%n! !%n! !%a! !%a! !%a! !%a*!%a*",
                {objects.Field("objnum"), objects.Field("objloc"),
                 std::to_string(objects.Number("objweight")), yesOrNo(1), yesOrNo(2),
                 Width(noun, kNounColumn), noun, Width(adjective, kExitColumn), adjective}));
        }
    }

    /// Every table up to the highest stands in the file, empty ones too: their numbers are those of their
    /// order.
    void WriteProcesses() {
        for (std::int64_t process = 0; process <= HighestProcess(); ++process) {
            Keyword(("PRO " + std::to_string(process)).c_str());
            Cursor& entries = context_.adventure.OpenTable(
                TableNum::ProcessTables, "def", "estype=" + std::to_string(process) + " and canum>=0",
                "canum");
            for (; !entries.Eof(); entries.MoveNext()) {
                context_.status.IncBar(1);
                record_ = "ProcessTables " + std::to_string(entries.Number("canum"));
                for (const std::string& line : CommentLines(entries.Text(store::kCommentField)))
                    TextLine(dialect_.comment + line);
                CheckWords(entries.Text("w1"), entries.Text("w2"));
                WriteEntry(Word(entries.Text("w1")), Word(entries.Text("w2")), entries.Text("condacts"));
            }
        }
    }

    std::int64_t HighestProcess() {
        std::int64_t highest = 0;
        store::PreparedQuery entries =
            context_.adventure.Prepare(TableNum::ProcessTables, "estype", "estype>=0", "estype desc");
        if (entries.First({})) highest = entries.Number(0);
        store::PreparedQuery tables =
            context_.adventure.Prepare(TableNum::ProcDesc, "pmsgnum", "pmsgnum>=0", "pmsgnum desc");
        if (tables.First({})) highest = std::max(highest, tables.Number(0));
        return std::min<std::int64_t>(highest, condacts::limit::kHighestProcess.value);
    }

    /// A reader leaves out an entry whose words are not what their places ask for.
    void CheckWords(std::string_view w1, std::string_view w2) {
        const bool isVerb = words_.Find(w1, condacts::IsMovementWordOrReserved) != nullptr ||
                            words_.FindTyped(w1, condacts::kNoun) != nullptr;
        if (w1 != condacts::kNoWord && !isVerb)
            Loss("the word " + std::string(w1) + " is not a verb: the entry can't be read back.");
        if (w2 != condacts::kNoWord && words_.Find(w2, condacts::IsNounOrReserved) == nullptr)
            Loss("the word " + std::string(w2) + " is not a noun: the entry can't be read back.");
    }

    void WriteEntry(std::string w1, std::string w2, std::string_view condActs) {
        const std::int64_t width1 = Width(w1, kEntryColumn);
        const std::int64_t width2 = Width(w2, kEntryColumn);
        const condacts::ParsedLine parsed = condacts::ParseLine(condActs, catalogue_);
        const auto write = [&](std::string_view name, std::string_view p1, std::string_view p2) {
            Line(text::FormatText("%a*!%a*!%a10!%a*!%a", {width1, w1, width2, w2, std::string(name),
                                                          Width(std::string(p1), kEntryColumn),
                                                          std::string(p1), std::string(p2)}));
            w1.clear();
            w2.clear();
        };
        for (const condacts::Statement& statement : parsed.statements) {
            const auto param = [&](std::size_t i) {
                return i < statement.paramsGiven ? parsed.Param(statement, i) : std::string_view();
            };
            write(parsed.tokens[statement.name].text, param(0), param(1));
        }
        if (parsed.tokens.empty()) write("", "", "");
        if (parsed.unknownName) {
            Loss("what stands behind " + std::string(parsed.tokens[*parsed.unknownName].text) +
                 " is no condition or action.");
            write("", condActs.substr(parsed.tokens[*parsed.unknownName].position), "");
        }
    }

    void WriteDocumentation() {
        Line(dialect_.comment + std::string(kSeparator));
        Comment("/FLG This is added to give documentation on the flags.");
        Document(TableNum::Flags, "flgnum", "flgdesc", "flgmod>0 and flgdesc<>''");
        Comment("/PRD This is added to give documentation on the Processes > 2.");
        Document(TableNum::ProcDesc, "pmsgnum", "pmsgmsg",
                 condacts::BehindFixedProcesses("pmsgnum") + " and pmsgmsg <> ''");
    }

    void Document(TableNum table, std::string_view keyField, std::string_view textField,
                  std::string_view where) {
        Cursor& records = context_.adventure.OpenTable(table, "def", where, keyField);
        for (; !records.Eof(); records.MoveNext()) {
            record_ =
                std::string(store::FindTable(table)->name) + " " + std::to_string(records.Number(keyField));
            Line(dialect_.comment + text::FormatText(" /!%a", {std::to_string(records.Number(keyField))}));
            for (const std::string_view line : text::Split(records.Text(textField), text::kLineEndMarker)) {
                Comment(text::NormalizeLineEnds(line, " "));
            }
        }
    }

    ExportContext& context_;
    const PcDialect& dialect_;
    TargetFile file_;
    condacts::Catalogue catalogue_;
    AceTags tags_;
    PcTextForm texts_;
    condacts::WordIndex words_;
    std::set<std::pair<std::string, int>> nounVerbs_;  ///< still to be written
    std::string record_;                               ///< what is being written, for reports
};

bool Export(ExportContext& context, const PcDialect& dialect, const char* completed) {
    try {
        SourceWriter(context, dialect).WriteAll();
    } catch (const CannotWrite&) {
        return false;
    }
    context.person.Tell(completed, "Fabula");
    return true;
}

/// Names the conditions and actions in use that only this system has.
bool RefuseOwnCondActs(ExportContext& context) {
    const condacts::Catalogue catalogue = condacts::LoadCatalogue(context.adventure);
    std::set<std::string> own;
    store::PreparedQuery entries = context.adventure.Prepare(TableNum::ProcessTables, "condacts", "");
    for (bool more = entries.First({}); more; more = entries.Next()) {
        for (const condacts::Statement& statement :
             condacts::ParseLine(entries.Text(0), catalogue).statements) {
            const condacts::CondAct& condAct = *statement.condAct;
            if (condAct.fabula && !condAct.vel) own.insert(condAct.name);
        }
    }
    for (const std::string& name : own) {
        context.status.AddToStatusCR("Use of " + name +
                                     " Condition/Action. This is not a valid PCVel Condition/Action.");
    }
    return !own.empty();
}

}  // namespace

bool ExportPCVel(ExportContext& context) {
    return !RefuseOwnCondActs(context) && Export(context, kPcSource, "PC VEL Export completed");
}

bool ExportAce(ExportContext& context) {
    return Export(context, kAceSource, "ACE Export completed");
}

}  // namespace fabula::interchange
