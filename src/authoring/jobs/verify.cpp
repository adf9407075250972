#include "authoring/jobs/verify.h"

#include <set>
#include <string>
#include <utility>

#include "authoring/jobs/missing_references.h"
#include "condacts/language/convert.h"
#include "condacts/language/load.h"
#include "condacts/language/parser.h"
#include "condacts/language/validate.h"
#include "condacts/limits.h"
#include "interchange/listing/bit_arrays.h"
#include "pictures/characters/character_sets.h"
#include "text/encoding/utf8.h"
#include "text/str_edit.h"

namespace fabula::authoring {
namespace {

using condacts::CondAct;
using condacts::ParsedLine;
using condacts::Statement;
using interchange::JobStatus;
using interchange::SourceMap;
using store::Adventure;
using store::PreparedQuery;
using store::TableNum;

struct LimitRow {
    std::string_view step;
    std::string_view record;  ///< in the message
    TableNum table;
    const char* key;
    std::int64_t highest;
};

/// Object 255, which can't be added any more, is let pass: it is told as one beyond 255 only.
constexpr LimitRow kLimits[] = {
    {"Verifying Locations", "location", TableNum::Locations, "locnum",
     condacts::limit::kHighestRecordOfOthers},
    {"Verifying Messages", "message", TableNum::Messages, "msgnum",
     condacts::limit::kHighestRecordOfOthers},
    {"Verifying Objects", "object", TableNum::Objects, "objnum", condacts::limit::kHighestRecordOfOthers},
    {"Verifying System Messages", "System Message", TableNum::SystemMessages, "smsgnum",
     condacts::limit::kHighestRecordOfOthers},
    {"Verifying Flags", "Flags", TableNum::Flags, "flgnum", condacts::limit::kHighestSystemFlag},
};

constexpr const char* kInvalid = " is an invalid Condition/Action";
constexpr int kRowsAProgressLine = 5;

int CountRecords(Adventure& adventure, TableNum table, const char* key, std::string_view where) {
    PreparedQuery rows = adventure.Prepare(table, key, where);
    int count = 0;
    for (bool more = rows.First({}); more; more = rows.Next())
        ++count;
    return count;
}

/// One run of the check.
class Verification {
  public:
    Verification(Adventure& adventure, VerifyTarget target, JobStatus& status, const SourceMap* places)
        : adventure_(adventure),
          rules_(target == kForPlay ? nullptr : &target->rules),
          status_(status),
          places_(places),
          catalogue_(condacts::LoadCatalogue(adventure)) {}

    bool Run() {
        CheckDefaultPicture();
        if (IsOwnMarlo()) CheckMarlo();
        if (rules_ == nullptr) CheckWhatIsPlayed();
        if (adventure_.Kind() != store::AdventureKind::Fabula) CheckLimits();
        if (rules_ != nullptr) {
            CheckCondActsForExport();
            if (!rules_->commands.empty()) CheckPicturesForExport();
            if (rules_->pictureForEachLocation) CheckCountsOfPictures();
        }
        if (ok_ && status_.Faults() == 0) Step("No Errors Found");
        Step("Verify Completed");
        return ok_;
    }

  private:
    void Step(const std::string& text) { status_.AddToStatusCR(text); }
    void Fail(const std::string& text) { Fail({text, {}, ""}, text); }
    void Fail(interchange::Fault fault, const std::string& text) {
        status_.Report(std::move(fault), text);
        ok_ = false;
    }
    /// An error at a word of a record's field. `text` is what is told where its place is not known.
    void FailAt(TableNum table, std::int64_t key, const std::string& field, std::size_t word,
                interchange::Fault fault, const std::string& text) {
        const auto* place = places_ == nullptr ? nullptr : places_->Find(table, key, field, word);
        if (place != nullptr) fault.place = *place;
        const std::string line = place == nullptr ? text : fault.Line();
        Fail(std::move(fault), line);
    }

    void CheckDefaultPicture() {
        PreparedQuery settings = adventure_.Prepare(TableNum::Adventure, "graphics, defpickey", "");
        settings.First({});
        if (settings.Number(0) == 0 || !text::TrimBlanks(settings.Text(1)).empty()) return;
        const std::string missing = "No Default Picture defined. You MUST have a default picture.";
        Fail({missing, {}, ""}, missing +
                                    "\nUse the black.gif or white.bmp distributed with the IDE."
                                    "\nIf you don't want graphics, turn it off in the Adventure Settings.");
    }

    bool IsOwnMarlo() {
        PreparedQuery settings = adventure_.Prepare(TableNum::Adventure, "unmarloed, adventype", "");
        settings.First({});
        return settings.Number(0) == 0 &&
               store::AdventureKindOf(settings.Text(1)) == store::AdventureKind::Marlo;
    }

    void CheckMarlo() {
        const std::string heaviest = std::to_string(condacts::limit::kHeaviestObject);
        const std::string lastType = std::to_string(condacts::kReserved);
        Step("Verifying Object table for weights > " + heaviest);
        PreparedQuery heavy = adventure_.Prepare(TableNum::Objects, "objnum", "objweight>" + heaviest);
        for (bool more = heavy.First({}); more; more = heavy.Next()) {
            Fail("Object # " + std::to_string(heavy.Number(0)) + " has a weight > " + heaviest + ".");
        }
        Step("Verifying Vocabulary for Vocabulary Type > " + lastType);
        bool wordsFit = true;
        PreparedQuery words = adventure_.Prepare(TableNum::Vocabulary, "word", "voctypen>" + lastType);
        for (bool more = words.First({}); more; more = words.Next()) {
            Fail("Word " + std::string(words.Text(0)) + " has an invalid Word Type.");
            wordsFit = false;
        }
        if (wordsFit) {
            CheckEntryWords();
        } else {
            Step("Because of the Vocabulary errors, Process Tables were not checked.");
            Step("There may be more errors in the Process Tables.");
        }
    }

    void CheckEntryWords() {
        Step("Verifying Status/Response Tables");
        const condacts::WordIndex words = condacts::LoadWords(adventure_);
        const auto fits = [&](std::string_view word) {
            return word == "_" || word == "*" || words.Find(word, [](const condacts::Word& found) {
                return found.type == condacts::kVerb || found.type == condacts::kNoun;
            }) != nullptr;
        };
        PreparedQuery rows = Entries();
        for (bool more = rows.First({}); more; more = rows.Next()) {
            if (fits(rows.Text(2)) && fits(rows.Text(3))) continue;
            const std::string message =
                "The following Process Entry has an invalid word in Verb or Noun. The word shown is a NOT "
                "a Verb or Noun, which is not allowed.";
            FailAt(TableNum::ProcessTables, rows.Number(1), "", 0, {message, {}, NameOf(rows)},
                   message + "\n" + NameOf(rows));
        }
    }

    void CheckWhatIsPlayed() {
        Step("Verifying Process/Response Tables ");
        const condacts::Facts facts = condacts::LoadFacts(adventure_);
        PreparedQuery rows = Entries();
        int count = 0;
        for (bool more = rows.First({}); more; more = rows.Next()) {
            if (++count % kRowsAProgressLine == 0)
                status_.AddProgressLine("    Process " + std::to_string(count));
            status_.IncBar(1);
            CheckEntry(rows, facts);
        }
        for (const MissingReference& missing : FindMissingReferences(adventure_, facts)) {
            const std::string record = RecordName(missing.table, missing.key);
            FailAt(missing.table, missing.key, missing.field, missing.place, {missing.message, {}, record},
                   record + ": " + missing.message);
        }
    }

    void CheckEntry(const PreparedQuery& entry, const condacts::Facts& facts) {
        const std::string line(entry.Text(4));
        const auto faults = condacts::AllFaults(line, catalogue_, facts);
        for (const condacts::Fault& fault : faults) {
            const std::string part = FaultyPart(line, fault.token) + kInvalid;
            const bool saysMore = !fault.message.ends_with(kInvalid);
            FailAt(TableNum::ProcessTables, entry.Number(1), "condacts", fault.token,
                   {saysMore ? part + ": " + fault.message : part, {}, NameOf(entry)},
                   NameOf(entry) + "\n" + part + (saysMore ? "\n    " + fault.message : ""));
        }
        if (!faults.empty() || Compiled(line, facts.words) == entry.Text(5)) return;
        const std::string message = "The numbers of the entry are not those of its text.";
        FailAt(TableNum::ProcessTables, entry.Number(1), "", 0, {message, {}, NameOf(entry)},
               NameOf(entry) + "\n    " + message);
    }

    std::string Compiled(std::string_view line, const condacts::WordIndex& words) const {
        return condacts::CondActsToNumeric(condacts::LocationWordsToNumbers(line, catalogue_), catalogue_,
                                           words)
            .line;
    }

    std::string RecordName(TableNum table, std::int64_t key) {
        if (table == TableNum::Adventure) return "Start location";
        if (table == TableNum::Locations) return "Location " + std::to_string(key);
        if (table == TableNum::Objects) return "Object " + std::to_string(key);
        if (table == TableNum::Pictures) return "Picture " + std::to_string(key);
        PreparedQuery entry =
            adventure_.Prepare(TableNum::ProcessTables, "estype, canum, w1, w2, condacts", "canum=?");
        return entry.First({key}) ? NameOf(entry) : "";
    }

    /// The condition or action that token number `token` belongs to.
    std::string FaultyPart(const std::string& line, std::size_t token) const {
        const ParsedLine parsed = condacts::ParseLine(line, catalogue_);
        for (const Statement& statement : parsed.statements) {
            if (token < statement.name || token > statement.name + statement.paramsGiven) continue;
            std::string part(parsed.tokens[statement.name].text);
            for (std::size_t p = 0; p < statement.paramsGiven; ++p) {
                part += " " + std::string(parsed.Param(statement, p));
            }
            return part;
        }
        return std::string(parsed.tokens.at(token).text);
    }

    void CheckLimits() {
        for (const LimitRow& limit : kLimits) {
            Step(std::string(limit.step));
            const std::string key = limit.key;
            PreparedQuery highest = adventure_.Prepare(limit.table, key, key + ">=0", key + " desc");
            if (!highest.First({}) || highest.Number(0) <= limit.highest) continue;
            Fail("Extended " + std::string(limit.record) + " " + std::to_string(highest.Number(0)) +
                 " not allowed in " + adventure_.AdventureType() + " type Adventure");
        }
    }

    void CheckCondActsForExport() {
        Step("Verifying Process/Response Tables for " + std::string(rules_->name) + " export");
        std::set<int> refused;
        PreparedQuery rows = Entries();
        for (bool more = rows.First({}); more; more = rows.Next()) {
            status_.IncBar(1);
            for (const Statement& statement : condacts::ParseLine(rows.Text(4), catalogue_).statements) {
                const CondAct& condAct = *statement.condAct;
                if (condAct.fabula && !condAct.ExistsIn(rules_->dialect)) refused.insert(condAct.number);
            }
        }
        for (const int number : refused) {
            Fail("Use of " + catalogue_.Find(number)->name + " Condition/Action. This is not a valid " +
                 std::string(rules_->name) + " Condition/Action.");
        }
    }

    void CheckPicturesForExport() {
        Step("Verifying Graphics Tables for " + std::string(rules_->name) + " export");
        const std::string own = "fabula=true and " + std::string(rules_->commands) + "=false";
        PreparedQuery commands = adventure_.Prepare(TableNum::Commands, "coname", own);
        const std::set<std::string> used = CommandsInUse();
        for (bool more = commands.First({}); more; more = commands.Next()) {
            if (!used.contains(text::UpperCase(commands.Text(0)))) continue;
            Fail("Use of " + std::string(commands.Text(0)) + " Graphics command. This is not a valid " +
                 std::string(rules_->name) + " Graphics command.");
        }
    }

    std::set<std::string> CommandsInUse() {
        std::set<std::string> used;
        PreparedQuery pictures = adventure_.Prepare(TableNum::Pictures, "drawstring", "");
        for (bool more = pictures.First({}); more; more = pictures.Next()) {
            for (const condacts::Token& token : condacts::SplitLine(pictures.Text(0))) {
                used.insert(text::UpperCase(token.text));
            }
        }
        return used;
    }

    void CheckCountsOfPictures() {
        if (CountRecords(adventure_, TableNum::Pictures, "locnum", "") !=
            CountRecords(adventure_, TableNum::Locations, "locnum", "")) {
            Fail(
                "There are not the same number of Graphics records as Location records. This is not "
                "allowed in " +
                std::string(rules_->name));
        }
        if (CountRecords(adventure_, TableNum::Characters, "charnum",
                         "charnum>" + std::to_string(pictures::kSolidCharacter)) >
            interchange::kWrittenUserGraphics) {
            const std::string most = std::to_string(interchange::kWrittenUserGraphics);
            Step("There are more than " + most + " UDGs. Only the first " + most + " will be exported.");
        }
    }

    PreparedQuery Entries() {
        return adventure_.Prepare(TableNum::ProcessTables,
                                  "estype, canum, w1, w2, condacts, numericcondacts", "");
    }

    static std::string NameOf(const PreparedQuery& entry) {
        return "Process Table " + std::to_string(entry.Number(0)) + " Entry # " +
               std::to_string(entry.Number(1)) + " (" + std::string(entry.Text(2)) + " " +
               std::string(entry.Text(3)) + " " + std::string(entry.Text(4)) + ")";
    }

    Adventure& adventure_;
    const interchange::ExportRules* rules_;  ///< nullptr for play
    JobStatus& status_;
    const SourceMap* places_;  ///< nullptr when the adventure does not come from a source
    condacts::Catalogue catalogue_;
    bool ok_ = true;
};

}  // namespace

bool VerifyAdventure(Adventure& adventure, VerifyTarget target, JobStatus& status,
                     const SourceMap* places) {
    const store::ReadTransaction reading(adventure);
    return Verification(adventure, target, status, places).Run();
}

}  // namespace fabula::authoring
