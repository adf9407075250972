#include "authoring/frm_vel_cond_act.h"

#include <algorithm>
#include <cstdint>

#include "condacts/convert.h"
#include "condacts/parser.h"
#include "condacts/validate.h"
#include "text/numbers.h"
#include "text/str_edit.h"
#include "text/utf8.h"

namespace fabula::authoring {
namespace {

using condacts::CondAct;
using condacts::Word;
using store::TableNum;

/// The tables below this number are there in every game.
constexpr int kFirstNewProcess = 3;

std::string NumberText(std::int64_t number) {
    return std::to_string(number);
}

}  // namespace

frmVelCondAct::frmVelCondAct(Session& session, const ScreenRequest& request)
    : RecordScreen(session, TableNum::ProcessTables, request.key, "process entry"), help_(Adventure()) {
    lblRecKey = "Record Key: " + std::to_string(Key().key);
    ReadWords();
    for (const Completion& name : help_.Names())
        cboCA.items.push_back({help_.Catalogue().Find(name.insert)->number, name.shown});
    OpenParameters(nullptr);
    if (Key().isNew)
        Propose(request);
    else
        ReadEntry(Key().key);
    openedType_ = txtType;
}

void frmVelCondAct::ReadWords() {
    store::PreparedQuery rows = Adventure().Prepare(
        TableNum::Vocabulary, "vocindex, word, vocnum, voctypen", "voctypen=0 or voctypen=2 or voctypen=7");
    for (bool more = rows.First({}); more; more = rows.Next()) {
        const Word word{std::string(rows.Text(1)), static_cast<int>(rows.Number(2)),
                        static_cast<int>(rows.Number(3))};
        if (IsMarlo() && word.type == condacts::kReserved && word.word == "*") continue;
        words_.push_back({static_cast<int>(rows.Number(0)), word});
    }
    for (const VocabularyWord& entry : words_) {
        const auto same = std::count_if(words_.begin(), words_.end(), [&](const VocabularyWord& other) {
            return other.word.word == entry.word.word;
        });
        std::string shown = entry.word.word;
        if (same > 1) shown.append(" (").append(condacts::WordTypeName(entry.word.type)).append(")");
        cboWord1.items.push_back({entry.index, shown});
    }
    cboWord2.items = cboWord1.items;
}

/// Chooses the word of an entry: of its spelling and number, or else of its number.
void frmVelCondAct::Choose(DropList& list, std::string_view spelling, int number,
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

void frmVelCondAct::ReadEntry(int canum) {
    store::PreparedQuery entry =
        Adventure().Prepare(TableNum::ProcessTables, "estype, w1, w1num, w2, w2num, condacts", "canum=?");
    if (!entry.First({std::int64_t{canum}})) return;
    txtType = NumberText(entry.Number(0));
    Choose(cboWord1, entry.Text(1), static_cast<int>(entry.Number(2)), condacts::kVerb);
    Choose(cboWord2, entry.Text(3), static_cast<int>(entry.Number(4)), condacts::kNoun);
    txtAllCAs = entry.Text(5);
}

void frmVelCondAct::Propose(const ScreenRequest& request) {
    if (request.before) {
        ReadEntry(*request.before);
        txtAllCAs.clear();
        return;
    }
    Choose(cboWord1, condacts::kNoWord, condacts::kNoWordNumber, condacts::kReserved);
    Choose(cboWord2, condacts::kNoWord, condacts::kNoWordNumber, condacts::kReserved);
    int process = session_.currentESNum;
    if (process >= kOtherProcesses) {
        store::PreparedQuery current =
            Adventure().Prepare(TableNum::ProcessTables, "estype", "canum=? and estype>2");
        const bool inView = current.First({std::int64_t{session_.currentEntry}});
        process = inView ? static_cast<int>(current.Number(0)) : kOtherProcesses;
    }
    txtType = NumberText(process);
}

int frmVelCondAct::NextProcess() const {
    store::PreparedQuery highest =
        Adventure().Prepare(TableNum::ProcessTables, "estype", "", "estype desc");
    const int next = highest.First({}) ? NumberAfter(highest.Number(0)) : 0;
    return std::max(next, kFirstNewProcess);
}

bool frmVelCondAct::LeaveTxtType() {
    if (txtType == openedType_) return true;
    const auto number = text::WholeNumber(text::TrimBlanks(txtType));
    if (!number) return RefuseField("txtType", "Process Table # is not numeric");
    const auto process = static_cast<int>(std::clamp<std::int64_t>(*number, -1, condacts::kBeyondNumbers));
    return help_.Facts().processes.contains(process) || ConfirmsProcess(process);
}

bool frmVelCondAct::ConfirmsProcess(int process) {
    const int next = NextProcess();
    if (process != next)
        return RefuseField("txtType", "The new Process Table number must be " + std::to_string(next));
    if (IsMarlo()) {
        return RefuseField("txtType", "You cannot change the Process Table number when using the Marlo");
    }
    if (confirmedProcess_ == process) return true;
    const std::string question = "Confirm Creation of Process table " + std::to_string(process);
    if (!session_.dialogs.Confirm(question, "Confirm")) return KeepFocus("txtType");
    confirmedProcess_ = process;
    return true;
}

const CondAct* frmVelCondAct::ChosenCondAct() const {
    return help_.Catalogue().Find(text::TrimBlanks(cboCA.text), help_.Facts().dialect);
}

void frmVelCondAct::OpenParameters(const CondAct* condAct) {
    openedFor_ = condAct == nullptr ? "" : condAct->name;
    ParameterField* fields[] = {&cboParam1, &cboParam2};
    for (std::size_t place = 0; place < std::size(fields); ++place) {
        ParameterField& field = *fields[place];
        field = {.label = "Param" + std::to_string(place + 1), .enabled = false, .items = {}, .text = ""};
        if (condAct == nullptr || place >= static_cast<std::size_t>(condAct->paramCount)) continue;
        field.label = CondActHelp::ParameterName(*condAct, place);
        field.enabled = true;
        field.items = help_.Parameters(*condAct, place);
    }
}

bool frmVelCondAct::LeaveCboCA() {
    const std::string_view name = text::TrimBlanks(cboCA.text);
    if (name.empty()) {
        OpenParameters(nullptr);
        return true;
    }
    const CondAct* condAct = ChosenCondAct();
    if (condAct == nullptr) return Check("cboCA", name);
    cboCA.text = condAct->name;
    if (condAct->paramCount == 0) return cmdAdd();
    if (openedFor_ != condAct->name) OpenParameters(condAct);
    return true;
}

std::string frmVelCondAct::PutTogether() const {
    return text::UpperCase(
        text::StrEdit(cboCA.text + " " + cboParam1.text + " " + cboParam2.text, "compress,trim"));
}

bool frmVelCondAct::Check(std::string_view control, std::string_view condAct) {
    const auto fault = condacts::ValidateCondAct(condAct, help_.Catalogue(), help_.Facts());
    return !fault || RefuseField(control, fault->message);
}

bool frmVelCondAct::LeaveCboParam1() {
    if (cboParam2.enabled || text::TrimBlanks(cboParam1.text).empty()) return true;
    return Check("cboParam1", PutTogether());
}

bool frmVelCondAct::LeaveCboParam2() {
    if (text::TrimBlanks(cboParam2.text).empty()) return true;
    return Check("cboParam2", PutTogether());
}

void frmVelCondAct::Append(std::string_view condAct) {
    const std::string added = condacts::LocationWordsToNumbers(condAct, help_.Catalogue());
    txtAllCAs = std::string(text::TrimBlanks(txtAllCAs));
    if (!txtAllCAs.empty()) txtAllCAs += ' ';
    txtAllCAs += added;
}

bool frmVelCondAct::cmdAdd() {
    const std::string condAct = PutTogether();
    if (!Check("cboCA", condAct)) return false;
    Append(condAct);
    cboCA.text.clear();
    OpenParameters(nullptr);
    return true;
}

bool frmVelCondAct::LeaveTxtAllCAs() {
    txtAllCAs = text::UpperCase(txtAllCAs);
    const auto fault = condacts::ValidateCondActs(txtAllCAs, help_.Catalogue(), help_.Facts());
    return !fault || RefuseField("txtAllCAs", fault->message);
}

/// A record of the descriptions is what makes a process table exist.
void frmVelCondAct::AddDescription(int process) {
    store::Cursor& descriptions =
        Adventure().OpenTable(TableNum::Free22, "* from procdesc", "pmsgnum=" + std::to_string(process));
    if (!descriptions.Eof()) return;
    descriptions.AddNew();
    descriptions.SetField("pmsgnum", std::int64_t{process});
    descriptions.SetField("pmsgmsg", std::string(" "));
    descriptions.Update();
}

/// A synonym is stored as the first word of its number and type.
void frmVelCondAct::StoreWord(store::Cursor& record, const DropList& list, std::string_view wordField,
                              std::string_view numberField) const {
    const ListItem* chosen = list.Chosen();
    if (chosen == nullptr) return;
    const Word& word = words_[static_cast<std::size_t>(list.index)].word;
    const auto first = std::find_if(words_.begin(), words_.end(), [&](const VocabularyWord& entry) {
        return entry.word.number == word.number && entry.word.type == word.type;
    });
    record.SetField(wordField, first->word.word);
    record.SetField(numberField, std::int64_t{word.number});
}

void frmVelCondAct::Store() {
    const auto process = text::WholeNumber(text::TrimBlanks(txtType)).value_or(0);
    AddDescription(static_cast<int>(process));
    store::Cursor& record = RecordToStore();
    record.SetField("estype", process);
    StoreWord(record, cboWord1, "w1", "w1num");
    StoreWord(record, cboWord2, "w2", "w2num");
    record.SetField("condacts", txtAllCAs);
    record.SetField("numericcondacts",
                    condacts::CondActsToNumeric(txtAllCAs, help_.Catalogue(), help_.Facts().words).line);
    record.SetField("numcas", std::int64_t{condacts::CountTokens(txtAllCAs)});
    record.Update();
}

/// A name without parameters was only looked at.
bool frmVelCondAct::AddPending() {
    const bool nothing =
        text::TrimBlanks(cboParam1.text).empty() && text::TrimBlanks(cboParam2.text).empty();
    return nothing || cmdAdd();
}

bool frmVelCondAct::cmdUpdate() {
    if (!LeaveTxtType() || !LeaveCboCA() || !LeaveCboParam1() || !LeaveCboParam2() || !LeaveTxtAllCAs() ||
        !AddPending())
        return false;
    txtAllCAs = condacts::LocationWordsToNumbers(txtAllCAs, help_.Catalogue());
    if (txtAllCAs.empty())
        return RefuseField("txtAllCAs", "Cannot have a record with no Condition/Actions");
    Change change(session_.document, ChangeName());
    Store();
    change.Commit();
    if (Key().isNew) session_.nextEntry = NumberAfter(Key().key);
    const auto process = text::WholeNumber(text::TrimBlanks(txtType)).value_or(0);
    session_.currentESNum = static_cast<int>(std::min<std::int64_t>(process, kOtherProcesses));
    return true;
}

}  // namespace fabula::authoring
