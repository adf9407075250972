#include <iostream>
#include <vector>

#include "cli/file_kind_option.h"
#include "cli/json.h"
#include "cli/source_adventure.h"
#include "cli/source_switches.h"
#include "cli/verbs.h"
#include "platform/error.h"
#include "references/lint/lint.h"
#include "references/place_text.h"
#include "store/extensions.h"
#include "terminal/scratch_folder.h"
#include "text/encoding/safe_text.h"
#include "text/encoding/utf8.h"

namespace fabula::cli {
namespace {

using references::Finding;

struct LintOptions {
    std::string file;
    std::string kind;
    std::vector<std::string> off;
    std::vector<std::string> on;
    bool keep = false;
    bool json = false;
    bool rules = false;
};

/// The findings of a file, and where its records stand when it is a source.
struct Result {
    std::vector<Finding> findings;
    interchange::SourceMap places;
    bool isSource = false;
};

bool IsAdventure(const std::string& file) {
    return text::EqualsNoCase(std::filesystem::path(file).extension().string(),
                              store::extension::kAdventure);
}

references::LintSwitches SwitchesOf(const std::vector<std::string>& lines) {
    references::LintSwitches switches;
    for (const std::string& line : lines) {
        if (!switches.Add(line)) throw UsageError("there is no finding '" + line + "'; --rules shows them");
    }
    return switches;
}

/// Writes the switches of the command into the adventure.
void Keep(const LintOptions& options) {
    const references::LintSwitches off = SwitchesOf(options.off);
    const references::LintSwitches on = SwitchesOf(options.on);
    const auto adventure = OpenToChange(options.file);
    store::Transaction transaction(*adventure);
    references::SwitchOff(*adventure, off);
    references::SwitchOn(*adventure, on);
    transaction.Commit();
}

std::vector<Finding> LintAdventure(const LintOptions& options) {
    if (options.keep) Keep(options);
    const auto adventure = OpenToRead(options.file);
    references::LintSwitches switches = references::StoredSwitches(*adventure);
    switches.rules.merge(SwitchesOf(options.off).rules);
    switches.records.merge(SwitchesOf(options.off).records);
    switches.Remove(SwitchesOf(options.on));
    return references::Lint(*adventure, switches);
}

Result LintFile(const LintOptions& options) {
    Result result;
    if (IsAdventure(options.file) && options.kind.empty()) {
        result.findings = LintAdventure(options);
        return result;
    }
    if (options.keep)
        throw UsageError("only an adventure keeps switches; a source has them in its comments");
    references::LintSwitches switches = SwitchesOf(options.off);
    const terminal::ScratchFolder folder;
    const std::filesystem::path file = folder.Path() / "lint.fbd";
    std::ostream quiet(nullptr);
    Console console(quiet);
    const interchange::FileKind& kind = KindOfSource(options.file, options.kind);
    interchange::JobResult imported = interchange::ImportIt(kind, options.file, file, console.JobHost());
    for (const interchange::Fault& fault : imported.allFaults)
        std::cerr << text::SafeLines(fault.Line()) << "\n";
    if (!imported.done) throw Error("Could not read " + options.file + ".");
    AddSwitchesOfSource(kind, options.file, switches);
    switches.Remove(SwitchesOf(options.on));
    const auto adventure = OpenToRead(file.string());
    result.findings = references::Lint(*adventure, switches);
    result.places = std::move(imported.places);
    result.isSource = true;
    return result;
}

const interchange::SourcePlace* PlaceOf(const Result& result, const Finding& finding) {
    return result.places.Find(finding.table, finding.record, finding.field, finding.token);
}

Json JsonOfFinding(const Result& result, const Finding& finding) {
    Json object = Json::object();
    if (const auto* place = PlaceOf(result, finding)) {
        object["file"] = place->file.string();
        object["line"] = place->line;
        object["column"] = place->column;
    }
    object["code"] = std::string(finding.code);
    object["table"] = std::string(store::FindTable(finding.table)->name);
    object["record"] = finding.record;
    object["field"] = std::string(finding.field);
    object["token"] = finding.token;
    object["message"] = finding.message;
    return object;
}

void PrintFinding(const LintOptions& options, const Result& result, const Finding& finding) {
    std::string line;
    if (const auto* place = PlaceOf(result, finding)) {
        line = place->file.string();
        line.append(":").append(std::to_string(place->line));
        line.append(":").append(std::to_string(place->column)).append(": warning: ");
    } else if (result.isSource) {
        line = options.file + ":1:1: warning: ";
    }
    line.append(finding.message).append(" [").append(finding.code).append("]");
    std::cout << text::SafeLines(line) << "\n";
}

int ShowRules() {
    for (const references::LintRule& rule : references::AllLintRules())
        std::cout << text::PadRight(rule.code, 22) << " " << rule.meaning << "\n";
    return kDone;
}

int Lint(const LintOptions& options) {
    if (options.rules) return ShowRules();
    if (options.file.empty()) throw UsageError("which file is to be looked through?");
    const Result result = LintFile(options);
    if (options.json) {
        Json list = Json::array();
        for (const Finding& finding : result.findings)
            list.push_back(JsonOfFinding(result, finding));
        PrintList(list);
    } else {
        for (const Finding& finding : result.findings)
            PrintFinding(options, result, finding);
    }
    return result.findings.empty() ? kDone : kFailed;
}

}  // namespace

void AddLintVerb(CLI::App& verb, Chosen& chosen) {
    const auto options = std::make_shared<LintOptions>();
    verb.footer(
        "A finding is told with its code. A source switches findings off by a comment with the words\n"
        "'lint off CODE', which may be followed by numbers of records and a reason. An adventure keeps "
        "what\n"
        "--off says with --keep, until --on takes it back. The status is 1 when anything was found.");
    verb.add_option("file", options->file, "The adventure, FILE.fbd, or a source");
    verb.add_option("--kind", options->kind,
                    "What the source is, where its name doesn't tell: " + ReadableKinds());
    verb.add_option("--off", options->off,
                    "A code that is not to be told; with numbers behind it for these records: \"gap 4 7\"");
    verb.add_option("--on", options->on, "A code that is told although the file switches it off");
    verb.add_flag("--keep", options->keep, "Write what --off and --on say into the adventure");
    verb.add_flag("--rules", options->rules, "Show all codes and what they mean");
    verb.add_flag("--json", options->json, "As a JSON array");
    Runs(verb, chosen, options, Lint);
}

}  // namespace fabula::cli
