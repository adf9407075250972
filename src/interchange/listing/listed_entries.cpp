#include "interchange/listing/listed_entries.h"

#include "condacts/language/convert.h"
#include "condacts/language/parser.h"
#include "interchange/shared/condact_text.h"

namespace fabula::interchange {
namespace {

using condacts::ParsedLine;
using condacts::Statement;
using store::Cursor;

bool TakesWord(const Statement& statement) {
    return condacts::FindWordCondition(statement.condAct->name) != nullptr;
}

/// What is wrong with the line; "" when nothing is.
std::string FaultOf(const ParsedLine& parsed) {
    if (parsed.unknownName) return condacts::InvalidCondActMessage(parsed.tokens[*parsed.unknownName].text);
    for (const Statement& statement : parsed.statements) {
        const std::string& name = statement.condAct->name;
        if (statement.paramsGiven < static_cast<std::size_t>(statement.condAct->paramCount))
            return "ERROR: " + name + " has too few parameters.";
        for (std::size_t p = 0; p < statement.paramsGiven && !TakesWord(statement); ++p) {
            if (!ListedNumber(parsed.Param(statement, p), condacts::kBeyondNumbers - 1))
                return "ERROR: A parameter of " + name + " is no number.";
        }
    }
    return "";
}

}  // namespace

void ListedEntry::AddCondActs(std::string_view line) {
    if (!condActs.empty()) condActs += ' ';
    condActs += line;
}

void ListedEntries::Flush(ListedEntry& entry, const condacts::Catalogue& catalogue,
                          const condacts::WordIndex& words) {
    if (!entry.IsEmpty()) Add(entry, catalogue, words);
    const condacts::ProcessNumber table = entry.table;
    entry = ListedEntry{};
    entry.table = table;
}

void ListedEntries::Add(const ListedEntry& entry, const condacts::Catalogue& catalogue,
                        const condacts::WordIndex& words) {
    Cursor& record = table_.Add(table_.HighestKey() + 1);
    record.SetField("estype", std::int64_t{entry.table.value});
    record.SetField("w1", entry.w1);
    record.SetField("w2", entry.w2);
    record.SetField("w1num", std::int64_t{entry.w1Number.value});
    record.SetField("w2num", std::int64_t{entry.w2Number.value});
    record.SetField("condacts", entry.condActs);
    record.SetField("numericcondacts", condacts::CondActsToNumeric(entry.condActs, catalogue, words).line);
    record.SetField("numcas", std::int64_t{condacts::CountTokens(entry.condActs)});
    table_.Update();
}

std::optional<std::string> TakeCondActs(ListingJob& job, std::string_view line,
                                        const condacts::WordIndex* words) {
    const ParsedLine parsed = condacts::ParseLine(line, job.catalogue);
    const std::string fault = FaultOf(parsed);
    if (!fault.empty()) {
        job.Fault(fault);
        return std::nullopt;
    }
    condacts::Converted converted;
    for (const condacts::Token& token : parsed.tokens) {
        if (!converted.line.empty()) converted.line += ' ';
        converted.line += token.text;
    }
    if (words != nullptr) {
        converted = ConvertUnVelCAs(converted.line, job.catalogue, *words);
        if (converted.ok) {
            const condacts::Converted compiled =
                condacts::CondActsToNumeric(converted.line, job.catalogue, *words);
            converted.ok = compiled.ok;
            converted.errors = compiled.errors;
        }
    }
    if (!converted.ok) {
        job.Fault(converted.errors);
        return std::nullopt;
    }
    for (const Statement& statement : parsed.statements) {
        std::string one(parsed.tokens[statement.name].text);
        for (std::size_t p = 0; p < statement.paramsGiven; ++p)
            one += " " + std::string(parsed.Param(statement, p));
        job.analysis.CheckForFlags(one);
    }
    return converted.line;
}

}  // namespace fabula::interchange
