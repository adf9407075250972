#include "authoring/frm_vel_location.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <optional>

#include "authoring/location_names.h"
#include "authoring/picture_choice.h"
#include "authoring/text_field.h"
#include "condacts/load.h"
#include "text/fields.h"
#include "text/numbers.h"
#include "text/str_edit.h"

namespace fabula::authoring {
namespace {

using store::TableNum;

constexpr int kBehindDirections = 14;

std::string Edited(std::string_view exits) {
    return std::string(text::TrimBlanks(text::CollapseBlanks(exits)));
}

/// The words and locations of a line of exits, one behind the other.
std::vector<std::string_view> Tokens(std::string_view edited) {
    if (edited.empty()) return {};
    return text::Split(edited, " ");
}

std::string_view TokenAt(const std::vector<std::string_view>& tokens, std::size_t index) {
    return index < tokens.size() ? tokens[index] : std::string_view();
}

/// The number that was typed for a location, -1 for one that can't be any; nullopt when it is no number.
std::optional<int> LocationNumber(std::string_view typed) {
    const std::optional<std::int64_t> number = text::WholeNumber(typed);
    if (!number) return std::nullopt;
    const bool possible = *number >= 0 && *number <= std::numeric_limits<int>::max();
    return possible ? static_cast<int>(*number) : -1;
}

bool IsVerbOrNoun(const condacts::Word& word) {
    return word.type == condacts::kVerb || word.type == condacts::kNoun;
}

/// Directions come first, by their number: what is typed is completed by the first word that fits.
int ProbableRank(const ListItem& word) {
    return std::min(word.number, kBehindDirections);
}

void AppendTo(std::string& line, std::string_view word, std::string_view location) {
    if (!line.empty()) line += ' ';
    line.append(word).append(" ").append(location);
}

}  // namespace

frmVelLocation::frmVelLocation(Session& session, ScreenKey key)
    : RecordScreen(session, TableNum::Locations, key, "location"),
      words_(condacts::LoadWords(session.document.Adventure())) {
    for (const condacts::Word& word : words_.All()) {
        if (condacts::IsMovementWord(word)) cboExit.items.push_back({word.number, word.word});
    }
    std::stable_sort(cboExit.items.begin(), cboExit.items.end(), [](const ListItem& a, const ListItem& b) {
        return ProbableRank(a) < ProbableRank(b);
    });
    cboLoc.items = LocationNames(Adventure());
    ReadNeighbours();
    if (!key.isNew) ReadRecord();
    opened_ = Typed();
}

void frmVelLocation::ReadRecord() {
    const store::Cursor& record = OpenRecord();
    txtDEscription = ToEdited(record.Text("locdesc"));
    txtShortDesc = ToEdited(record.Text("locshortdesc"));
    txtExits = record.Text("exits");
    txtPicture = text::TrimBlanks(record.Text("picloc"));
}

void frmVelLocation::ReadNeighbours() {
    store::PreparedQuery rows =
        Adventure().Prepare(TableNum::Locations, "locnum, exits, numericexits", "numexits>0");
    const std::string here = std::to_string(Key().key);
    for (bool more = rows.First({}); more; more = rows.Next()) {
        const auto words = text::Split(rows.Text(1), " ");
        const auto numbers = text::Split(rows.Text(2), " ");
        const int location = static_cast<int>(rows.Number(0));
        for (std::size_t i = 1; i < numbers.size(); i += 2) {
            if (numbers[i] != here) continue;
            leadsHere_.push_back(
                {location, NameIn(cboLoc.items, location), std::string(TokenAt(words, i - 1))});
        }
    }
}

bool frmVelLocation::LeaveTxtDEscription() {
    return CheckText("txtDEscription", txtDEscription, true);
}

bool frmVelLocation::LeaveTxtShortDesc() {
    if (!CheckLength("txtShortDesc", txtShortDesc, kLongestShortDesc)) return false;
    return CheckText("txtShortDesc", txtShortDesc, true);
}

/// A location that is being added may lead to itself.
bool frmVelLocation::Exists(int location) const {
    if (location == Key().key) return true;
    for (const ListItem& item : cboLoc.items) {
        if (item.number == location) return true;
    }
    return false;
}

/// `word` is that of the exit; "" for the location alone.
bool frmVelLocation::CheckLocation(std::string_view control, std::string_view number,
                                   std::string_view word) {
    const std::string typed(number);
    const std::string of(word);
    const std::optional<int> location = LocationNumber(number);
    if (!location) {
        const std::string message = "TO location " + (of.empty() ? "" : "for " + of);
        return RefuseField(control, message + "must be numeric");
    }
    if (Exists(*location)) return true;
    const std::string message = "There is not a location with a number of " + typed;
    return RefuseField(control, of.empty() ? message : message + " for " + of);
}

bool frmVelLocation::CheckExit(std::string_view control, std::string_view word, std::string_view location) {
    const std::string typed(word);
    if (words_.Find(word) == nullptr) return RefuseField(control, typed + " is not a valid word");
    if (words_.Find(word, IsVerbOrNoun) == nullptr) {
        return RefuseField(control, typed + " is not a Verb or conversion Noun");
    }
    if (words_.Find(word, condacts::IsMovementWord) == nullptr) {
        return RefuseField(control, typed + " is not identified as a movement word (value<20)");
    }
    return CheckLocation(control, location, word);
}

bool frmVelLocation::LeaveTxtExits() {
    const std::string edited = Edited(txtExits);
    const auto tokens = Tokens(edited);
    for (std::size_t i = 0; i < tokens.size(); i += 2) {
        if (!CheckExit("txtExits", tokens[i], TokenAt(tokens, i + 1))) return false;
    }
    return true;
}

bool frmVelLocation::LeaveCboLoc() {
    return CheckLocation("cboLoc", text::TrimBlanks(cboLoc.text), "");
}

bool frmVelLocation::cmdAdd() {
    if (!LeaveCboLoc()) return false;
    const std::string word = Edited(cboExit.text);
    const std::string location(text::TrimBlanks(cboLoc.text));
    if (!CheckExit("cboExit", word, location)) return false;
    txtExits = Edited(txtExits);
    AppendTo(txtExits, word, location);
    cboExit.text.clear();
    cboLoc.text.clear();
    return true;
}

bool frmVelLocation::HasPendingExit() const {
    return !text::TrimBlanks(cboExit.text).empty() || !text::TrimBlanks(cboLoc.text).empty();
}

void frmVelLocation::cmdGetPic() {
    const auto chosen = ChoosePicture(session_, kPictureTitle, txtPicture);
    if (chosen) txtPicture = *chosen;
}

std::vector<ExitRow> frmVelLocation::Exits() const {
    const std::string edited = Edited(txtExits);
    const auto tokens = Tokens(edited);
    std::vector<ExitRow> rows;
    for (std::size_t i = 0; i < tokens.size(); i += 2) {
        const std::string_view location = TokenAt(tokens, i + 1);
        rows.push_back({std::string(tokens[i]), std::string(location),
                        NameIn(cboLoc.items, LocationNumber(location).value_or(-1))});
    }
    return rows;
}

void frmVelLocation::SetExits(const std::vector<ExitRow>& rows) {
    txtExits.clear();
    for (const ExitRow& row : rows) {
        if (!row.word.empty() && !row.location.empty()) AppendTo(txtExits, row.word, row.location);
    }
}

/// The exits of a line that passed its check.
std::vector<frmVelLocation::Exit> frmVelLocation::ParsedExits() const {
    const std::string edited = Edited(txtExits);
    const auto tokens = Tokens(edited);
    std::vector<Exit> exits;
    for (std::size_t i = 0; i + 1 < tokens.size(); i += 2) {
        const condacts::Word* typed = words_.Find(tokens[i], condacts::IsMovementWord);
        exits.push_back({words_.FindNumber(typed->number, condacts::IsMovementWord),
                         LocationNumber(tokens[i + 1]).value_or(-1)});
    }
    return exits;
}

void frmVelLocation::StoreExits(store::Cursor& record) const {
    const std::vector<Exit> parsed = ParsedExits();
    std::string exits;
    std::string numericExits;
    for (const Exit& exit : parsed) {
        const std::string location = std::to_string(exit.location);
        AppendTo(exits, exit.word->word, location);
        AppendTo(numericExits, std::to_string(exit.word->number), location);
    }
    record.SetField("exits", exits);
    record.SetField("numericexits", numericExits);
    record.SetField("numexits", static_cast<std::int64_t>(2 * parsed.size()));
}

void frmVelLocation::StorePicture(store::Cursor& record) const {
    if (txtPicture.empty()) {
        record.SetField("pickey", std::string());
        record.SetField("picloc", std::string());
        record.SetField("picgraphic", {});
        record.SetField("oldpicloc", std::string(" "));
        return;
    }
    record.SetField("pickey", "Room" + std::to_string(Key().key));
    record.SetField("picloc", txtPicture);
    if (Key().isNew) record.SetField("oldpicloc", std::string(" "));
    const bool kept = Adventure().OpenTable(TableNum::Adventure, "graphicsindb").Truth("graphicsindb");
    if (!kept || txtPicture == text::TrimBlanks(record.Text("oldpicloc"))) return;
    record.StoreFileInField(PictureFile(session_, txtPicture), "picgraphic", "oldpicloc");
    record.SetField("oldpicloc", txtPicture);
}

std::vector<std::string> frmVelLocation::Typed() const {
    return {txtDEscription, txtShortDesc, txtExits, txtPicture};
}

bool frmVelLocation::cmdUpdate() {
    if (Typed() == opened_ && !HasPendingExit()) return true;
    if (!LeaveTxtDEscription() || !LeaveTxtShortDesc() || !LeaveTxtExits()) return false;
    if (HasPendingExit() && !cmdAdd()) return false;
    Change change(session_.document, ChangeName());
    store::Cursor& record = RecordToStore();
    record.SetField("locdesc", ToStored(txtDEscription));
    record.SetField("locshortdesc", ToStored(txtShortDesc));
    StoreExits(record);
    StorePicture(record);
    record.Update();
    change.Commit();
    return true;
}

}  // namespace fabula::authoring
