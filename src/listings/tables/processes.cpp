#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "condacts/numbers.h"
#include "condacts/word_filters.h"
#include "condacts/words.h"
#include "listings/record.h"
#include "listings/reports.h"
#include "listings/tables/condition_texts.h"
#include "platform/error.h"

namespace fabula::listings {
namespace {

using store::TableNum;

/// Columns of the parameters, counted from 0.
constexpr std::size_t kFirstParameter = 70;
constexpr std::size_t kSecondParameter = 77;
constexpr TextArea kMeaning{93, 40};

constexpr std::string_view kColumnHeads = "Verb!%c27 !Noun!%c27 !Condition/Action";
constexpr std::string_view kRule = "%c30-! !%c30-! !%c25-";

/// Verb and noun, then the name of a condition or action and its parameters, by their number.
constexpr std::string_view kCondActFormats[] = {"%a30! !%a30! !%a", "%a30! !%a30! !%a7! !%a",
                                                "%a30! !%a30! !%a7! !%a7 !%a"};
constexpr std::string_view kFault = "%a30! !%a30! !%a";

/// What stands before a condition or action: the words of the entry in its first line.
struct EntryWords {
    std::string verb;
    std::string noun;
};

void AddCondAct(Record& record, const EntryWords& words, const ShownCondAct& condAct) {
    if (condAct.fault) {
        record.Row(kFault, {words.verb, words.noun, condAct.name});
        return;
    }
    const std::size_t count = condAct.parameters.size();
    std::vector<text::Value> values{words.verb, words.noun, condAct.name};
    for (const ShownParameter& parameter : condAct.parameters)
        values.emplace_back(parameter.text);
    record.Row(kCondActFormats[count], std::move(values));
    for (std::size_t i = 0; i < count; ++i) {
        const ShownParameter& parameter = condAct.parameters[i];
        const std::size_t column = i == 0 ? kFirstParameter : kSecondParameter;
        if (parameter.names) record.LinkTo(*parameter.names, column, parameter.text.size());
    }
    for (const ShownParameter& parameter : condAct.parameters)
        record.Aside(parameter.tells, kMeaning);
}

void AddEntry(const Listing& listing, const ConditionTexts& texts, const store::PreparedQuery& row,
              bool verbose) {
    Record record;
    if (verbose) AddComment(record, row.Text(3));
    EntryWords words{std::string(row.Text(0)), std::string(row.Text(1))};
    const std::vector<ShownCondAct> shown = texts.Shown(row.Text(2));
    if (shown.empty()) record.Row(kFault, {words.verb, words.noun, std::string()});
    for (const ShownCondAct& condAct : shown) {
        AddCondAct(record, words, condAct);
        words = {};
    }
    listing.frame.Add(record.Take());
}

constexpr std::size_t kColumnHeadings = 2;  ///< the heads and the rule

/// The description of a process table, in lines of the page.
std::vector<std::string> DescriptionOf(store::Adventure& adventure, condacts::ProcessNumber process) {
    store::PreparedQuery row =
        adventure.Prepare(TableNum::ProcDesc, "pmsgmsg", "pmsgnum=" + std::to_string(process.value));
    if (!row.First({})) return {};
    return WrappedText(row.Text(0), static_cast<int>(kColumns));
}

std::vector<std::string> HeadingsOf(store::Adventure& adventure, condacts::ProcessNumber process,
                                    bool verbose) {
    std::vector<std::string> headings = DescriptionOf(adventure, process);
    headings.push_back(Heading(std::string(kColumnHeads) + (verbose ? "!%t93!Description" : "")));
    headings.push_back(Heading(std::string(kRule) + (verbose ? "!%t93!%c40-" : "")));
    return headings;
}

/// The numbers of the process tables that have entries, or such as a further part of a filter asks for.
std::vector<condacts::ProcessNumber> TablesWithEntries(store::Adventure& adventure,
                                                       const std::string& words) {
    store::PreparedQuery rows =
        adventure.Prepare(TableNum::ProcessTables, "estype", "estype>=0" + words, "estype");
    std::vector<condacts::ProcessNumber> numbers;
    for (bool more = rows.First({}); more; more = rows.Next()) {
        const condacts::ProcessNumber number(static_cast<int>(rows.Number(0)));
        if (numbers.empty() || numbers.back() != number) numbers.push_back(number);
    }
    return numbers;
}

std::vector<condacts::ProcessNumber> AskedTables(const Listing& listing, const ReportRequest& request,
                                                 const std::string& words = "") {
    if (!request.numbers) return TablesWithEntries(listing.adventure, words);
    return {request.numbers->begin(), request.numbers->end()};
}

void WriteEntries(const Listing& listing, const ConditionTexts& texts, const std::string& where,
                  bool verbose) {
    store::PreparedQuery rows =
        listing.adventure.Prepare(TableNum::ProcessTables, "w1, w2, condacts, comment", where);
    for (bool more = rows.First({}); more; more = rows.Next())
        AddEntry(listing, texts, rows, verbose);
}

/// The number of a word of the vocabulary that the special listing looks for. Throws fabula::Error when
/// there is none.
condacts::WordNumber WordNumber(store::Adventure& adventure, const std::string& word,
                                const std::string& types) {
    store::PreparedQuery row =
        adventure.Prepare(TableNum::Vocabulary, "vocnum", "word=? and " + types, "voctypen, vocnum, word");
    if (!row.First({std::string_view(word)}))
        throw Error("The vocabulary has no such word for this listing: " + word + ".");
    return condacts::WordNumber(static_cast<int>(row.Number(0)));
}

/// A noun that stands for any noun asks for the entries of both such words.
std::string FilterOfWords(store::Adventure& adventure, const ReportRequest& request) {
    const condacts::WordNumber verb = WordNumber(adventure, request.verb, condacts::OfEntryVerbs());
    const condacts::WordNumber noun =
        WordNumber(adventure, request.noun, condacts::OfWordTypes({condacts::kNoun, condacts::kReserved}));
    const auto is = [](condacts::WordNumber word) { return "w2num=" + std::to_string(word.value); };
    const bool any = noun == condacts::kAnyWordNumber || noun == condacts::kNoWordNumber;
    const std::string nouns =
        any ? "(" + is(condacts::kAnyWordNumber) + " or " + is(condacts::kNoWordNumber) + ")" : is(noun);
    return " and w1num=" + std::to_string(verb.value) + " and " + nouns;
}

}  // namespace

void WriteProcessTables(const Listing& listing, const ReportRequest& request) {
    const bool verbose = request.detail == Detail::Verbose;
    const ConditionTexts texts(listing.adventure, verbose);
    for (const condacts::ProcessNumber process : AskedTables(listing, request)) {
        const std::string number = std::to_string(process.value);
        listing.frame.Begin("Process Table " + number + " Listing",
                            HeadingsOf(listing.adventure, process, verbose),
                            Place{TableNum::ProcessTables, process.value});
        WriteEntries(listing, texts, "estype=" + number, verbose);
    }
}

void WriteVerbAndNoun(const Listing& listing, const ReportRequest& request) {
    const std::string words = FilterOfWords(listing.adventure, request);
    const bool verbose = request.detail == Detail::Verbose;
    const ConditionTexts texts(listing.adventure, verbose);
    for (const condacts::ProcessNumber process : AskedTables(listing, request, words)) {
        std::vector<std::string> headings = HeadingsOf(listing.adventure, process, verbose);
        // The title does not tell which table is listed, nor does a description that says nothing.
        if (IsEmpty(headings.front())) headings.erase(headings.begin());
        if (headings.size() == kColumnHeadings)
            headings.insert(headings.begin(), "Process Table " + std::to_string(process.value));
        listing.frame.Begin("Listing of Specific Verb/Noun", std::move(headings));
        WriteEntries(listing, texts, "estype=" + std::to_string(process.value) + words, verbose);
    }
}

}  // namespace fabula::listings
