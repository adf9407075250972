#include <iostream>
#include <vector>

#include "cli/json.h"
#include "cli/verbs.h"
#include "condacts/words.h"
#include "platform/error.h"
#include "references/index.h"
#include "references/place_text.h"
#include "store/record_limits.h"
#include "text/encoding/safe_text.h"
#include "text/encoding/utf8.h"
#include "text/numbers.h"

namespace fabula::cli {
namespace {

using references::Kind;
using references::Target;

struct UsesOptions {
    std::string file;
    std::string kind;
    std::string what;
    bool json = false;
};

/// What is asked about, and for a word as which type.
struct Question {
    Target target;
    references::WordTypes types = references::kAnyType;
    std::string name;
};

Kind KindNamed(const std::string& name) {
    if (const auto kind = references::KindFrom(name)) return *kind;
    std::string names;
    for (const references::KindEntry& entry : references::AllKinds())
        names.append(names.empty() ? "" : ", ").append(entry.option);
    throw UsageError("there is no '" + name + "' that is used; there are " + names);
}

bool IsThere(store::Adventure& adventure, const Target& target) {
    const references::KindEntry& entry = references::EntryOf(target.kind);
    const std::string where = std::string(entry.keyField) + "=" + std::to_string(target.number);
    return adventure.Prepare(entry.table, entry.keyField, where).First({});
}

std::vector<Question> QuestionsAbout(store::Adventure& adventure, Kind kind, const std::string& what) {
    const std::string name = std::string(references::EntryOf(kind).name) + " " + what;
    if (const auto number = text::WholeNumber(what)) {
        if (*number < 0 || *number > store::kHighestKey)
            throw UsageError("'" + what + "' is no number of a record");
        return {{{kind, static_cast<int>(*number)}, references::kAnyType, name}};
    }
    if (kind != Kind::Word) throw UsageError("'" + what + "' is no number of a record");
    std::vector<Question> questions;
    store::PreparedQuery rows =
        adventure.Prepare(store::TableNum::Vocabulary, "vocnum, voctypen, word, voctype", "word=?");
    for (bool more = rows.First({std::string_view(what)}); more; more = rows.Next()) {
        std::string title(rows.Text(3));
        title.append(" ").append(rows.Text(2)).append(" (").append(std::to_string(rows.Number(0))) += ")";
        questions.push_back({{kind, static_cast<int>(rows.Number(0))},
                             references::TypeBit(static_cast<int>(rows.Number(1))),
                             title});
    }
    if (questions.empty()) throw Error("The vocabulary has no word " + what + ".");
    return questions;
}

Json JsonOfUse(const references::Use& use, references::PlaceText& places) {
    Json object = Json::object();
    object["table"] = std::string(store::FindTable(use.table)->name);
    object["record"] = use.record;
    object["field"] = std::string(use.field);
    object["token"] = use.token;
    object["access"] = std::string(references::NameOf(use.access));
    object["possible"] = use.possible;
    object["place"] = places.RecordName(use.table, use.record);
    object["text"] = places.Around(use);
    return object;
}

void PrintUse(const references::Use& use, references::PlaceText& places) {
    std::string line = "  " + places.RecordName(use.table, use.record);
    line.append(use.possible ? ": possibly " : ": ").append(references::NameOf(use.access));
    line.append(" in ").append(use.field).append(": ").append(places.Around(use));
    std::cout << text::SafeLines(line) << "\n";
}

int Uses(const UsesOptions& options) {
    const Kind kind = KindNamed(options.kind);
    const auto adventure = OpenToRead(options.file);
    const references::Index index(*adventure);
    references::PlaceText places(*adventure);
    Json list = Json::array();
    for (const Question& question : QuestionsAbout(*adventure, kind, options.what)) {
        const auto uses = index.UsesOf(question.target, question.types);
        // What is not there may still be named somewhere.
        if (uses.empty() && !IsThere(*adventure, question.target))
            throw Error("There is no " + question.name + ".");
        if (!options.json) {
            std::cout << text::SafeLines(question.name) << ": "
                      << (uses.empty()
                              ? "not used"
                              : std::to_string(uses.size()) + (uses.size() == 1 ? " use" : " uses"))
                      << "\n";
        }
        for (const references::Use& use : uses) {
            if (options.json)
                list.push_back(JsonOfUse(use, places));
            else
                PrintUse(use, places);
        }
    }
    if (options.json) PrintList(list);
    return kDone;
}

}  // namespace

void AddUsesVerb(CLI::App& verb, Chosen& chosen) {
    const auto options = std::make_shared<UsesOptions>();
    verb.footer("Places where a flag holds the number, or decides it, are shown as possible.");
    AddAdventureOption(verb, options->file)->required();
    verb.add_option("kind", options->kind,
                    "flag, object, location, message, sysmess, word, process, picture, set, character")
        ->required();
    verb.add_option("what", options->what, "Its number; a word also by its letters")->required();
    verb.add_flag("--json", options->json, "As a JSON array");
    Runs(verb, chosen, options, Uses);
}

}  // namespace fabula::cli
