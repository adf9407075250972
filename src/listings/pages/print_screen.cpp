#include "listings/pages/print_screen.h"

#include <algorithm>
#include <array>

#include "authoring/document/screen_context.h"
#include "condacts/word_filters.h"
#include "listings/range_text.h"

namespace fabula::listings {
namespace {

using store::TableNum;

std::vector<authoring::ListItem> WordItems(store::Adventure& adventure, const std::string& types) {
    store::PreparedQuery rows =
        adventure.Prepare(TableNum::Vocabulary, "vocnum, word", types, "word, voctypen");
    std::vector<authoring::ListItem> words;
    for (bool more = rows.First({}); more; more = rows.Next())
        words.push_back({static_cast<int>(rows.Number(0)), std::string(rows.Text(1))});
    return words;
}

}  // namespace

PrintScreen::PrintScreen(store::Adventure& adventure, TableNum table, int process, Purpose purpose,
                         platform::Dialogs& dialogs)
    : adventure_(adventure), table_(table), process_(process), purpose_(purpose), dialogs_(dialogs) {
    const auto reports = AllReports();
    for (std::size_t i = 0; i < reports.size(); ++i) {
        if (reports[i].table == table && !reports[i].caption.empty())
            form.items.push_back({static_cast<int>(i), std::string(reports[i].caption)});
    }
    form.index = form.items.empty() ? -1 : 0;
    if (!HasSpecial()) return;
    for (const int type : condacts::kEntryVerbTypes)
        wordType.items.push_back({type, std::string(condacts::WordTypeName(type))});
    noun.items = WordItems(adventure, condacts::OfWordTypes({condacts::kNoun, condacts::kReserved}));
}

std::string PrintScreen::Title() const {
    return (purpose_ == Purpose::Preview ? "Print Preview Setup for " : "Print for ") +
           PrintTitle(table_, process_);
}

const Report& PrintScreen::ChosenReport() const {
    if (complete) return *FindReport("adventure");
    if (special) return *FindReport("verb-noun");
    const authoring::ListItem* const chosen = form.Chosen();
    return chosen ? AllReports()[static_cast<std::size_t>(chosen->number)] : *FindReport("locations");
}

bool PrintScreen::HasDetail() const {
    return table_ == TableNum::Locations || table_ == TableNum::Objects ||
           table_ == TableNum::ProcessTables;
}

bool PrintScreen::HasRange() const {
    switch (table_) {
        case TableNum::ProcessTables:
            return process_ == authoring::kOtherProcesses;
        case TableNum::Flags:
            return ChosenReport().range == RangeOf::Flags;
        case TableNum::Pictures:
            return true;
        default:
            return false;
    }
}

std::string_view PrintScreen::RangeLabel() const {
    switch (table_) {
        case TableNum::ProcessTables:
            return tablesLabel_;
        case TableNum::Flags:
            return "How many lines for tables:";
        default:
            return "Which Records:";
    }
}

void PrintScreen::ClickSpecial(bool on) {
    special = on;
    tablesLabel_ = on ? "What Table:" : "What Tables:";
}

void PrintScreen::ChooseWordType(int index) {
    wordType.index = index;
    const authoring::ListItem* const type = wordType.Chosen();
    verb.items = type ? WordItems(adventure_, condacts::OfWordTypes({condacts::WordType{type->number}}))
                      : std::vector<authoring::ListItem>();
    verb.index = -1;
}

std::string PrintScreen::FaultOfSpecial() const {
    if (!special) return "";
    if (!wordType.Chosen()) return "No Type selected";
    if (!verb.Chosen()) return "No Verb selected";
    if (!noun.Chosen()) return "No Noun selected";
    return "";
}

std::string PrintScreen::FaultOfPreview() const {
    if (purpose_ != Purpose::Preview) return "";
    if (complete) return completeForm == CompleteForm::Brief ? "Cannot do a Brief Complete Listing" : "";
    if (table_ == TableNum::Templates) return "Cannot do a Keypad Template Print Preview";
    if (table_ == TableNum::Characters) return "Cannot do a Print Preview of this table";
    return "";
}

std::optional<PrintJob> PrintScreen::Check() {
    for (const std::string& fault : {complete ? std::string() : FaultOfSpecial(), FaultOfPreview()}) {
        if (fault.empty()) continue;
        authoring::Refuse(dialogs_, fault);
        return std::nullopt;
    }
    if (!complete) return CheckTable();
    constexpr std::array<Detail, 3> kDetails = {Detail::Brief, Detail::Verbose, Detail::Plain};
    const Detail detail = kDetails.at(static_cast<std::size_t>(completeForm));
    return PrintJob{&ChosenReport(), {.detail = detail}, PrintTitle(table_, process_)};
}

std::optional<PrintJob> PrintScreen::CheckTable() {
    PrintJob job{&ChosenReport(), {}, PrintTitle(table_, process_)};
    if (HasDetail() && verbose) {
        job.request.detail = Detail::Verbose;
        job.request.complete = table_ == TableNum::Locations;
    }
    if (special) {
        job.request.verb = verb.Chosen()->text;
        job.request.noun = noun.Chosen()->text;
    }
    if (HasKeypad()) job.request.names = {templateName};
    if (table_ == TableNum::ProcessTables && !HasRange()) job.request.numbers = std::vector{process_};
    if (!HasRange()) return job;
    const RangeCheck check = ValidateRange(range, table_, adventure_, special);
    if (!check.Passed()) {
        authoring::Refuse(dialogs_, check.fault);
        return std::nullopt;
    }
    if (table_ != TableNum::Flags) {
        job.request.numbers = check.numbers;
    } else if (!check.numbers.empty()) {
        job.request.extraEntries = check.numbers.front();
    }
    return job;
}

std::optional<std::string> TemplateOfSize(std::size_t size, platform::Person& person) {
    const KeypadSize& chosen = kKeypadSizes[std::min(size, std::size(kKeypadSizes) - 1)];
    if (!chosen.templateName.empty()) return std::string(chosen.templateName);
    person.Tell("That size is not made up.\nWrite to the support address of Fabula and tell your size.",
                "Error");
    return std::nullopt;
}

}  // namespace fabula::listings
