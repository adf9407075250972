#include "authoring/screens/process_entry_screen.h"

#include <algorithm>
#include <cstdint>

#include "condacts/language/convert.h"
#include "condacts/language/parser.h"
#include "condacts/language/validate.h"
#include "condacts/limits.h"
#include "condacts/process_filters.h"
#include "condacts/word_filters.h"
#include "text/encoding/utf8.h"
#include "text/numbers.h"
#include "text/str_edit.h"

namespace fabula::authoring {
namespace {

using condacts::CondAct;
using condacts::ProcessNumber;
using condacts::Word;
using condacts::WordNumber;
using store::TableNum;

std::string NumberText(std::int64_t number) {
    return std::to_string(number);
}

}  // namespace

ProcessEntryScreen::ProcessEntryScreen(ScreenContext& context, const ScreenRequest& request)
    : RecordScreen(context, TableNum::ProcessTables, request.key, "process entry"), help_(Adventure()) {
    ReadWords();
    for (const Completion& name : help_.Names())
        condAct.items.push_back({help_.Catalogue().Find(name.insert)->number, name.shown});
    OpenParameters(nullptr);
    help_.OfferNewMessage(NextMessage());
    if (Key().isNew) {
        Propose(request);
        NoteOpened();
    } else {
        ReadRecord();
    }
}

void ProcessEntryScreen::GoTo(int key) {
    SetKey(key);
    ReadRecord();
}

void ProcessEntryScreen::ReadRecord() {
    ReadEntry(Key().key);
    NoteOpened();
}

void ProcessEntryScreen::NoteOpened() {
    recordKey = "Record Key: " + std::to_string(Key().key);
    openedType_ = process;
    opened_ = Typed();
}

void ProcessEntryScreen::ReadWords() {
    store::PreparedQuery rows = Adventure().Prepare(
        TableNum::Vocabulary, "vocindex, word, vocnum, voctypen", condacts::OfEntryVerbs());
    for (bool more = rows.First({}); more; more = rows.Next()) {
        const Word word{std::string(rows.Text(1)), WordNumber(static_cast<int>(rows.Number(2))),
                        static_cast<condacts::WordType>(rows.Number(3))};
        if (IsMarlo() && word.type == condacts::kReserved && word.word == "*") continue;
        words_.push_back({static_cast<int>(rows.Number(0)), word});
    }
    for (const VocabularyWord& entry : words_) {
        const auto same = std::count_if(words_.begin(), words_.end(), [&](const VocabularyWord& other) {
            return other.word.word == entry.word.word;
        });
        std::string shown = entry.word.word;
        if (same > 1) shown.append(" (").append(condacts::WordTypeName(entry.word.type)).append(")");
        verb.items.push_back({entry.index, shown});
    }
    noun.items = verb.items;
}

/// Chooses the word of an entry: of its spelling and number, or else of its number.
void ProcessEntryScreen::Choose(DropList& list, std::string_view spelling, WordNumber number,
                                condacts::WordType preferred) const {
    int best = 0;
    list.index = -1;
    for (std::size_t i = 0; i < words_.size(); ++i) {
        const Word& word = words_[i].word;
        if (word.number != number) continue;
        const int fit = (word.word == spelling ? 2 : 0) + (word.type == preferred ? 1 : 0) + 1;
        if (fit <= best) continue;
        best = fit;
        list.index = static_cast<int>(i);
    }
}

void ProcessEntryScreen::ReadEntry(int canum) {
    store::PreparedQuery entry =
        Adventure().Prepare(TableNum::ProcessTables, "estype, w1, w1num, w2, w2num, condacts", "canum=?");
    if (!entry.First({std::int64_t{canum}})) return;
    process = NumberText(entry.Number(0));
    Choose(verb, entry.Text(1), WordNumber(static_cast<int>(entry.Number(2))), condacts::kVerb);
    Choose(noun, entry.Text(3), WordNumber(static_cast<int>(entry.Number(4))), condacts::kNoun);
    line = entry.Text(5);
}

void ProcessEntryScreen::Propose(const ScreenRequest& request) {
    if (request.before) {
        ReadEntry(*request.before);
        line.clear();
        return;
    }
    Choose(verb, condacts::kNoWord, condacts::kNoWordNumber, condacts::kReserved);
    Choose(noun, condacts::kNoWord, condacts::kNoWordNumber, condacts::kReserved);
    int table = context_.currentESNum;
    if (table >= kOtherProcesses) {
        store::PreparedQuery current = Adventure().Prepare(
            TableNum::ProcessTables, "estype", "canum=? and " + condacts::BehindFixedProcesses("estype"));
        const bool inView = current.First({std::int64_t{context_.currentEntry}});
        table = inView ? static_cast<int>(current.Number(0)) : kOtherProcesses;
    }
    process = NumberText(table);
}

ProcessNumber ProcessEntryScreen::NextProcess() const {
    store::PreparedQuery highest =
        Adventure().Prepare(TableNum::ProcessTables, "estype", "", "estype desc");
    const int next = highest.First({}) ? NumberAfter(highest.Number(0)) : 0;
    return ProcessNumber(std::max(next, condacts::limit::kLastFixedProcess.value + 1));
}

bool ProcessEntryScreen::LeaveProcess() {
    if (process == openedType_) return true;
    const auto number = text::WholeNumber(text::TrimBlanks(process));
    if (!number) return RefuseField("process", "Process Table # is not numeric");
    const ProcessNumber table(
        static_cast<int>(std::clamp<std::int64_t>(*number, -1, condacts::kBeyondNumbers)));
    return help_.Facts().processes.contains(table) || ConfirmsProcess(table);
}

bool ProcessEntryScreen::ConfirmsProcess(ProcessNumber table) {
    const ProcessNumber next = NextProcess();
    if (table != next)
        return RefuseField("process", "The new Process Table number must be " + std::to_string(next.value));
    if (IsMarlo()) {
        return RefuseField("process", "You cannot change the Process Table number when using the Marlo");
    }
    if (confirmedProcess_ == table) return true;
    const std::string question = "Confirm Creation of Process table " + std::to_string(table.value);
    if (!context_.dialogs.Confirm(question, "Confirm")) return KeepFocus("process");
    confirmedProcess_ = table;
    return true;
}

const CondAct* ProcessEntryScreen::ChosenCondAct() const {
    return help_.Catalogue().Find(text::TrimBlanks(condAct.text), help_.Facts().dialect);
}

void ProcessEntryScreen::OpenParameters(const CondAct* chosen) {
    openedFor_ = chosen == nullptr ? "" : chosen->name;
    ParameterField* fields[] = {&parameter1, &parameter2};
    for (std::size_t place = 0; place < std::size(fields); ++place) {
        ParameterField& field = *fields[place];
        field = {.label = "Param" + std::to_string(place + 1), .enabled = false, .items = {}, .text = ""};
        if (chosen == nullptr || place >= static_cast<std::size_t>(chosen->paramCount)) continue;
        field.label = CondActHelp::ParameterName(*chosen, place);
        field.enabled = true;
        field.items = help_.Parameters(*chosen, place);
    }
}

bool ProcessEntryScreen::LeaveCondAct() {
    const std::string_view name = text::TrimBlanks(condAct.text);
    if (name.empty()) {
        OpenParameters(nullptr);
        return true;
    }
    const CondAct* chosen = ChosenCondAct();
    if (chosen == nullptr) return Check("condAct", name);
    condAct.text = chosen->name;
    if (chosen->paramCount == 0) return Add();
    if (openedFor_ != chosen->name) OpenParameters(chosen);
    return true;
}

std::string ProcessEntryScreen::PutTogether() const {
    return text::UpperCase(
        text::StrEdit(condAct.text + " " + parameter1.text + " " + parameter2.text, "compress,trim"));
}

bool ProcessEntryScreen::Check(std::string_view control, std::string_view typed) {
    const auto fault = condacts::ValidateCondAct(typed, help_.Catalogue(), help_.Facts());
    return !fault || RefuseField(control, fault->message);
}

bool ProcessEntryScreen::LeaveParameter1() {
    if (parameter2.enabled || text::TrimBlanks(parameter1.text).empty()) return true;
    return Check("parameter1", PutTogether());
}

bool ProcessEntryScreen::LeaveParameter2() {
    if (text::TrimBlanks(parameter2.text).empty()) return true;
    return Check("parameter2", PutTogether());
}

void ProcessEntryScreen::Append(std::string_view added) {
    const std::string numbers = condacts::LocationWordsToNumbers(added, help_.Catalogue());
    line = std::string(text::TrimBlanks(line));
    if (!line.empty()) line += ' ';
    line += numbers;
}

bool ProcessEntryScreen::Add() {
    const std::string added = PutTogether();
    if (!Check("condAct", added)) return false;
    Append(added);
    condAct.text.clear();
    OpenParameters(nullptr);
    return true;
}

bool ProcessEntryScreen::LeaveLine() {
    if (!TakeNames()) return false;
    line = text::UpperCase(line);
    const auto fault = condacts::ValidateCondActs(line, help_.Catalogue(), help_.Facts());
    return !fault || RefuseField("line", fault->message);
}

/// A record of the descriptions is what makes a process table exist.
void ProcessEntryScreen::AddDescription(ProcessNumber table) {
    store::Cursor& descriptions = Adventure().OpenTable(TableNum::Free22, "* from procdesc",
                                                        "pmsgnum=" + std::to_string(table.value));
    if (!descriptions.Eof()) return;
    descriptions.AddNew();
    descriptions.SetField("pmsgnum", std::int64_t{table.value});
    descriptions.SetField("pmsgmsg", std::string(" "));
    descriptions.Update();
}

/// A synonym is stored as the first word of its number and type.
void ProcessEntryScreen::StoreWord(store::Cursor& record, const DropList& list, std::string_view wordField,
                                   std::string_view numberField) const {
    const ListItem* chosen = list.Chosen();
    if (chosen == nullptr) return;
    const Word& word = words_[static_cast<std::size_t>(list.index)].word;
    const auto first = std::find_if(words_.begin(), words_.end(), [&](const VocabularyWord& entry) {
        return entry.word.number == word.number && entry.word.type == word.type;
    });
    record.SetField(wordField, first->word.word);
    record.SetField(numberField, std::int64_t{word.number.value});
}

void ProcessEntryScreen::Store(Change& change) {
    const auto table = text::WholeNumber(text::TrimBlanks(process)).value_or(0);
    AddDescription(ProcessNumber(static_cast<int>(table)));
    StoreNewMessages();
    store::Cursor& record = RecordToStore(change);
    record.SetField("estype", table);
    StoreWord(record, verb, "w1", "w1num");
    StoreWord(record, noun, "w2", "w2num");
    record.SetField("condacts", line);
    record.SetField("numericcondacts",
                    condacts::CondActsToNumeric(line, help_.Catalogue(), help_.Facts().words).line);
    record.SetField("numcas", std::int64_t{condacts::CountTokens(line)});
    record.Update();
}

/// A name without parameters was only looked at.
bool ProcessEntryScreen::AddPending() {
    const bool nothing =
        text::TrimBlanks(parameter1.text).empty() && text::TrimBlanks(parameter2.text).empty();
    return nothing || Add();
}

std::vector<std::string> ProcessEntryScreen::Typed() const {
    const auto chosen = [](const DropList& list) {
        return list.Chosen() != nullptr ? std::to_string(list.Chosen()->number) : std::string();
    };
    return {process,
            chosen(verb),
            chosen(noun),
            line,
            std::string(text::TrimBlanks(parameter1.text)),
            std::string(text::TrimBlanks(parameter2.text))};
}

bool ProcessEntryScreen::UpdateFields() {
    if (!LeaveProcess() || !LeaveCondAct() || !LeaveParameter1() || !LeaveParameter2() || !LeaveLine() ||
        !AddPending())
        return false;
    line = condacts::LocationWordsToNumbers(line, help_.Catalogue());
    if (line.empty()) return RefuseField("line", condacts::kNoCondActs);
    Change change(context_.document, ChangeName());
    Store(change);
    change.Commit();
    if (Key().isNew) context_.nextEntry = NumberAfter(Key().key);
    const auto table = text::WholeNumber(text::TrimBlanks(process)).value_or(0);
    context_.currentESNum = static_cast<int>(std::min<std::int64_t>(table, kOtherProcesses));
    return true;
}

}  // namespace fabula::authoring
