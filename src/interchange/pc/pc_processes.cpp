#include "interchange/pc/pc_processes.h"

#include <optional>

#include "condacts/language/parser.h"
#include "condacts/language/validate.h"
#include "condacts/limits.h"
#include "interchange/shared/condact_text.h"
#include "store/comments.h"
#include "text/encoding/utf8.h"

namespace fabula::interchange {
namespace {

using condacts::CondAct;
using condacts::Converted;
using condacts::ParsedLine;
using condacts::Statement;
using condacts::Word;
using store::Cursor;
using store::TableNum;

constexpr std::string_view kBell = "BELL";
constexpr std::string_view kInPlaceOfBell = "BEEP 120 100";
constexpr std::size_t kTokensInPlaceOfBell = 3;

condacts::Catalogue WithBell(const condacts::Catalogue& catalogue) {
    std::vector<CondAct> condActs = catalogue.All();
    CondAct bell;
    bell.number = -1;
    bell.name = kBell;
    condActs.push_back(bell);
    return condacts::Catalogue(std::move(condActs));
}

std::string_view TextOf(const ParsedLine& parsed, const Statement& statement, std::string_view line) {
    const condacts::Token& last = parsed.tokens[statement.name + statement.paramsGiven];
    const std::size_t start = parsed.tokens[statement.name].position;
    return line.substr(start, last.position + last.text.size() - start);
}

void AppendCondAct(std::string& line, std::string_view more) {
    if (!line.empty() && !more.empty()) line += ' ';
    line += more;
}

/// The line with the parameters of word conditions cut to the letters that count, as the vocabulary is.
std::string WithWordsCut(const std::string& line, const PcSourceJob& job) {
    const ParsedLine parsed = condacts::ParseLine(line, job.catalogue);
    std::string result;
    for (const Statement& statement : parsed.statements) {
        AppendCondAct(result, statement.condAct->name);
        const bool takesWord = condacts::FindWordCondition(statement.condAct->name) != nullptr;
        for (std::size_t p = 0; p < statement.paramsGiven; ++p) {
            const std::string_view param = parsed.Param(statement, p);
            AppendCondAct(result, takesWord ? job.Word(param) : std::string(param));
        }
    }
    return result;
}

}  // namespace

PcProcesses::PcProcesses(PcSourceJob& job) : job_(job), withBell_(WithBell(job.catalogue)) {}

void PcProcesses::Begin(const std::vector<std::string_view>& words) {
    Flush();
    job_.lines.TakeComment();  // what stands in front of the section belongs to none of its entries
    if (!entries_) {
        entries_ = std::make_unique<KeyedTable>(job_.context.adventure, TableNum::ProcessTables);
        descriptions_ = std::make_unique<KeyedTable>(job_.context.adventure, TableNum::ProcDesc);
    }
    skipping_ = process_ >= condacts::limit::kHighestProcess;
    if (skipping_) {
        job_.Fault("ERROR: Too many process tables.");
        return;
    }
    ++process_.value;
    const auto number = words.size() > 1 ? condacts::NumberOfToken(words[1]) : std::nullopt;
    if (number != process_.value) {
        const std::string_view given = words.size() > 1 ? words[1] : std::string_view();
        job_.Fault("Changed Process # from " + std::string(given) + " to " + std::to_string(process_.value),
                   given);
    }
    job_.FaultBehind(words, 2);
    if (process_ > condacts::limit::kLastFixedProcess && !descriptions_->Has(process_.value)) {
        descriptions_->Add(process_.value).SetField("pmsgmsg", std::string(" "));
        descriptions_->Update();
    }
}

void PcProcesses::Slash(std::string_view) {
    Flush();
    job_.Fault(kBadLine);
}

void PcProcesses::Line(std::string_view line) {
    if (skipping_) return;
    if (line.front() != ' ' && line.front() != '\t') {
        Flush();
        BeginEntry(line);
    } else if (entry_) {
        AddCondActs(line);
    } else {
        job_.Fault(kBadLine);
    }
}

void PcProcesses::BeginEntry(std::string_view line) {
    entry_ = std::make_unique<Entry>();
    const auto tokens = SplitWords(line);
    entry_->place = job_.PlaceOf(tokens[0]);
    entry_->comment = job_.lines.TakeComment();
    if (tokens.size() < 2) {
        entry_->w1 = tokens[0];
        entry_->good = false;
        job_.Fault(kBadLine);
        return;
    }
    SetWords(tokens[0], tokens[1]);
    if (tokens.size() > 2)
        AddCondActs(line.substr(static_cast<std::size_t>(tokens[2].data() - line.data())));
}

void PcProcesses::SetWords(std::string_view first, std::string_view second) {
    entry_->w1 = job_.IsNullWord(first) ? std::string(condacts::kNoWord) : job_.Word(first);
    entry_->w2 = job_.IsNullWord(second) ? std::string(condacts::kNoWord) : job_.Word(second);
    entry_->words = {job_.PlaceOf(first), job_.PlaceOf(second)};
    entry_->w1Number = condacts::kNoWordNumber;
    entry_->w2Number = condacts::kNoWordNumber;
    if (entry_->w1 != condacts::kNoWord) {
        const Word* verb = job_.words.Find(entry_->w1, condacts::IsMovementWordOrReserved);
        if (verb == nullptr) Refuse("Word1 (" + entry_->w1 + ") not a verb", first);
        if (verb != nullptr) entry_->w1Number = verb->number;
    }
    if (entry_->w2 != condacts::kNoWord) {
        const Word* noun = job_.words.Find(entry_->w2, condacts::IsNounOrReserved);
        if (noun == nullptr) Refuse("Word2 (" + entry_->w2 + ") is not a Noun", second);
        if (noun != nullptr) entry_->w2Number = noun->number;
    }
}

/// The lines of an entry that is refused already are read too, so that all its faults are told at once.
void PcProcesses::AddCondActs(std::string_view line) {
    const CondActLine given = WithoutBells(line);
    const auto refuse = [&](const Converted& converted) {
        const bool known = converted.faultyToken < given.tokens.size();
        Refuse(converted.errors, known ? given.tokens[converted.faultyToken] : line);
    };
    const Converted source = ConvertCAs(given.text, job_.catalogue);
    if (!source.ok) return refuse(source);
    const std::string upper =
        text::UpperCase(condacts::LocationWordsToNumbers(source.line, job_.catalogue));
    const std::string condActs = WithWordsCut(upper, job_);
    const Converted numeric = condacts::CondActsToNumeric(condActs, job_.catalogue, job_.words);
    if (!numeric.ok) return refuse(numeric);
    const ParsedLine parsed = condacts::ParseLine(condActs, job_.catalogue);
    for (const Statement& statement : parsed.statements) {
        job_.analysis.CheckForFlags(TextOf(parsed, statement, condActs));
    }
    NotePlaces(given.tokens);
    AppendCondAct(entry_->condActs, condActs);
    AppendCondAct(entry_->numeric, numeric.line);
}

/// The columns are counted on from token to token: a line may hold very many.
void PcProcesses::NotePlaces(const std::vector<std::string_view>& tokens) {
    if (tokens.empty()) return;
    SourcePlace place = job_.PlaceOf(tokens.front());
    const char* counted = tokens.front().data();
    for (const std::string_view token : tokens) {
        place.column += static_cast<std::int64_t>(
            text::Length({counted, static_cast<std::size_t>(token.data() - counted)}));
        counted = token.data();
        entry_->tokens.push_back(place);
    }
}

PcProcesses::CondActLine PcProcesses::WithoutBells(std::string_view line) {
    const ParsedLine parsed = condacts::ParseLine(line, withBell_);
    std::set<std::size_t> bells;
    for (const Statement& statement : parsed.statements) {
        if (statement.condAct->name == kBell) bells.insert(statement.name);
    }
    hadBell_ = hadBell_ || !bells.empty();
    CondActLine result;
    for (std::size_t i = 0; i < parsed.tokens.size(); ++i) {
        const bool isBell = bells.contains(i);
        AppendCondAct(result.text, isBell ? kInPlaceOfBell : parsed.tokens[i].text);
        result.tokens.insert(result.tokens.end(), isBell ? kTokensInPlaceOfBell : 1, parsed.tokens[i].text);
    }
    return result;
}

/// The entry at hand does not come in.
void PcProcesses::Refuse(const std::string& why, std::string_view at) {
    job_.Fault(why, at, entry_->Name());
    entry_->good = false;
}

void PcProcesses::Flush() {
    if (!entry_) return;
    if (entry_->good && entry_->condActs.empty()) {
        job_.context.status.AddFault(condacts::kNoCondActs, entry_->place, entry_->Name());
    }
    if (entry_->good) {
        Store();
    } else {
        job_.Status("Record " + entry_->Name());
        job_.Status("Record Deleted");
    }
    entry_.reset();
}

void PcProcesses::Store() {
    const std::int64_t key = entries_->HighestKey() + 1;
    Cursor& record = entries_->Add(key);
    record.SetField("estype", std::int64_t{process_.value});
    record.SetField("w1", entry_->w1);
    record.SetField("w2", entry_->w2);
    record.SetField("w1num", std::int64_t{entry_->w1Number.value});
    record.SetField("w2num", std::int64_t{entry_->w2Number.value});
    record.SetField("numcas", std::int64_t{condacts::CountTokens(entry_->condActs)});
    record.SetField("condacts", entry_->condActs);
    record.SetField("numericcondacts", entry_->numeric);
    if (!entry_->comment.empty()) record.SetField(store::kCommentField, entry_->comment);
    entries_->Update();
    job_.Note(TableNum::ProcessTables, key, "", 0, entry_->place);
    job_.Note(TableNum::ProcessTables, key, "w1", 0, entry_->words[0]);
    job_.Note(TableNum::ProcessTables, key, "w2", 0, entry_->words[1]);
    for (std::size_t i = 0; i < entry_->tokens.size(); ++i)
        job_.Note(TableNum::ProcessTables, key, "condacts", i, entry_->tokens[i]);
}

void PcProcesses::Finish() {
    Flush();
    job_.Status("Loaded " + std::string(job_.dialect.kind) + " Source Process Tables.");
    if (hadBell_) job_.Status("All BELL Actions have been converted to BEEP 120 100");
}

}  // namespace fabula::interchange
