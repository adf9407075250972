#include "authoring/drawing/picture_editor.h"

#include <algorithm>

#include "authoring/drawing/command_in_words.h"
#include "pictures/book_loader.h"
#include "pictures/drawstring.h"
#include "pictures/drawstring_check.h"
#include "platform/error.h"
#include "text/encoding/utf8.h"
#include "text/str_edit.h"

// The picture and its drawstring: loading, status, stepping, and taking operations back.

namespace fabula::authoring {

using pictures::Picture;
using pictures::PictureKind;
using store::TableNum;
using WordList = std::vector<std::string>;

namespace {

/// From here on a default colour is none: so is the number 65535 that stands for it in older files.
constexpr int kNoColour = 65535;
constexpr std::string_view kGap = "     ";

/// Cells of two colours by turns, row by row.
pictures::Plane MakeGrid(const pictures::PictureBook& book) {
    std::string text;
    for (int row = 0; row < pictures::kCellRows; ++row) {
        for (int column = 0; column < pictures::kCellColumns; ++column) {
            text += "PAPER " + std::to_string(6 + (row + column) % 2) + " BLOCK 0 0 " +
                    std::to_string(column) + " " + std::to_string(row) + " ";
        }
    }
    pictures::Drawing drawing(book);
    drawing.CommDraw(Picture{}, text);
    return drawing.Planes().colour;
}

}  // namespace

PictureEditor::PictureEditor(ScreenContext& context, ScreenKey key)
    : RecordScreen(context, TableNum::Pictures, key, "picture"),
      book_(pictures::LoadPictureBook(context.document.Adventure())),
      grid_(MakeGrid(book_)) {
    picture_.number = key.key;
    Load();
    locationLine_ = LineOfLocation();
    words_ = pictures::DrawstringWords(picture_.drawstring);
    WordsChanged(false);
    steps_.Start(picture_);
    opened_ = Typed();
}

std::vector<std::string> PictureEditor::Typed() const {
    return {drawstring, std::to_string(picture_.ink),   std::to_string(picture_.paper), fileName,
            roomNumber, saveAsRoomPicture ? "room" : ""};
}

bool PictureEditor::FieldsChanged() const {
    return image_ || Typed() != opened_;
}

void PictureEditor::Load() {
    const std::string room = std::to_string(Key().key);
    if (Key().isNew) {
        const bool isRoom = book_.locations.contains(Key().key);
        picture_.kind = isRoom ? PictureKind::Room : PictureKind::Subroutine;
        kind_ = isRoom ? "Picture" : "Subroutine";
        picture_.paper = pictures::ColourToIndex(book_.backColour);
        picture_.ink = pictures::ColourToIndex(book_.textColour);
        roomNumber = isRoom ? room : "";
        return;
    }
    const store::Cursor& record = OpenRecord();
    kind_ = record.Text("loctype");
    if (const Picture* stored = book_.FindPicture(Key().key)) picture_ = *stored;
    fileName = record.Text("picname");
    const std::int64_t storedRoom = record.Number("roompicnum");
    const std::string where = "locnum=" + std::to_string(storedRoom);
    const store::Cursor& location = Adventure().OpenTable(TableNum::Locations, "picloc", where);
    saveAsRoomPicture = !fileName.empty() && !location.Eof() && location.Text("picloc") == fileName;
    if (saveAsRoomPicture)
        roomNumber = std::to_string(storedRoom);
    else if (book_.locations.contains(Key().key))
        roomNumber = room;
}

std::string PictureEditor::LineOfLocation() {
    const std::string number = std::to_string(Key().key) + ": ";
    const store::Cursor& location = Adventure().OpenTable(TableNum::Locations, "locshortdesc, locdesc",
                                                          "locnum=" + std::to_string(Key().key));
    if (!location.Eof()) {
        const std::string_view name = text::TrimBlanks(location.Text("locshortdesc"));
        return number + "Location " + std::string(name.empty() ? location.Text("locdesc") : name);
    }
    return picture_.kind == PictureKind::Room ? "No matching Location record." : number + "Subroutine";
}

std::string PictureEditor::DefaultText(int number) const {
    return number < 0 || number >= kNoColour ? "None" : std::to_string(number);
}

std::string PictureEditor::Status() const {
    const pictures::DrawingState& state = State();
    std::string text =
        "Current - Ink: " + std::to_string(state.ink) + "   Paper: " + std::to_string(state.paper) +
        "   Flash: " + std::to_string(state.flash) + "   Bright: " + std::to_string(state.bright) + "\n";
    text += "X: " + std::to_string(cursor_.x) + "   Y: " + std::to_string(cursor_.y) +
            "   Location: " + std::to_string(Key().key);
    text.append(kGap).append(kind_).append(kGap);
    if (over_) text += "O";
    if (inverse_) text += "I";
    if (rplotOn_) text += "RPLOT ";
    text += "\nDefault - Ink: " + DefaultText(picture_.ink);
    text.append(kGap).append("Paper: ").append(DefaultText(picture_.paper));
    return text + "\nNext Graphics command:\n" + pictures::JoinWords(CommandAt(position_));
}

// --- Words and commands ---

/// The place behind the last command: in front of END, when the drawstring ends with it.
std::size_t PictureEditor::EndPosition() const {
    return !words_.empty() && words_.back() == "END" ? words_.size() - 1 : words_.size();
}

/// The words from `start` up to the one behind its parameters. Of a command that lacks some, these are the
/// ones that it has.
std::size_t PictureEditor::Behind(std::size_t start) const {
    const pictures::Command* command = book_.commands.Find(words_[start]);
    const std::size_t most = command == nullptr ? 0 : static_cast<std::size_t>(command->drawnParameters);
    std::size_t behind = start + 1;
    const auto isParameter = [&](const std::string& word) {
        return pictures::ParameterValue(word) || text::EqualsNoCase(word.substr(0, 3), "sc=");
    };
    while (behind < words_.size() && behind <= start + most && isParameter(words_[behind]))
        ++behind;
    return behind;
}

WordList PictureEditor::CommandAt(std::size_t start) const {
    if (start >= words_.size()) return {};
    const auto first = words_.begin() + static_cast<std::ptrdiff_t>(start);
    return {first, words_.begin() + static_cast<std::ptrdiff_t>(Behind(start))};
}

std::string PictureEditor::CommandText(std::size_t command) const {
    return pictures::JoinWords(CommandAt(starts_[command]));
}

std::string PictureEditor::CommandInWords(std::size_t command) const {
    const WordList words = CommandAt(starts_[command]);
    const pictures::Command* known = book_.commands.Find(words.front());
    return known == nullptr ? "" : authoring::CommandInWords(known->number, std::span(words).subspan(1));
}

/// To be called when the words have become others. `checked` when they can't have a fault that they had not
/// before.
void PictureEditor::WordsChanged(bool checked) {
    starts_.clear();
    for (std::size_t at = 0; at < EndPosition(); at = Behind(at))
        starts_.push_back(at);
    drawstring = pictures::JoinWords(words_);
    if (!checked || fault_) FindFault();
    // A picture that draws itself draws what it is now.
    const auto stored = book_.pictures.find(picture_.number);
    if (stored != book_.pictures.end()) stored->second.drawstring = drawstring;
}

/// A missing END is told by the check before everything else, and here behind it.
void PictureEditor::FindFault() {
    fault_.reset();
    auto check = pictures::ValidateDrawString(book_, drawstring, picture_.kind);
    if (check.Passed()) return;
    fault_ = {check.fault, check.faultAt, check.faultyCommand};
    if (check.faultAt < words_.size() || words_.empty()) return;
    check = pictures::ValidateDrawString(book_, drawstring + " END", picture_.kind);
    if (!check.Passed()) fault_ = {check.fault, check.faultAt, check.faultyCommand};
}

bool PictureEditor::LeaveDrawstring() {
    if (pictures::DrawstringWords(drawstring) == words_ && !fault_) return true;
    const auto check = pictures::ValidateDrawString(book_, drawstring, picture_.kind);
    if (!check.Passed()) return RefuseField("Drawstring", check.fault);
    const std::size_t before = position_;
    if (!Do({0, words_, check.words, {}, {}}, 0, KeyCursorGoes::WithTheDrawing, false)) return false;
    const auto behind = std::ranges::upper_bound(starts_, before);
    const std::size_t last = behind == starts_.begin() ? 0 : *std::prev(behind);
    DrawUpTo(before >= EndPosition() ? EndPosition() : last);
    done_.back().after = Now();
    return true;
}

bool PictureEditor::ChangeCommand(std::size_t command, std::string_view text) {
    const auto check = pictures::ValidateDrawString(book_, std::string(text) + " END", picture_.kind);
    if (!check.Passed()) return Refuse(Dialogs(), check.fault);
    const WordList added(check.words.begin(), std::prev(check.words.end()));
    const std::size_t start = starts_[command];
    const WordList removed = CommandAt(start);
    if (added == removed) return true;
    gridOn_ = false;
    const std::size_t position = position_ <= start ? position_ : position_ - removed.size() + added.size();
    return Do({start, removed, added, {}, {}}, position, KeyCursorGoes::WithTheDrawing, true);
}

// --- Drawing ---

/// Draws up to a place and nothing else. False where it can't be drawn, which is told; the position is then
/// in front of the command that can't.
bool PictureEditor::Draw(std::size_t position) {
    try {
        steps_.GoTo(words_, position);
    } catch (const Error& error) {
        position_ = steps_.Position();
        return Refuse(Dialogs(), error.what());
    }
    position_ = position;
    return true;
}

/// Draws up to a place, as stepping does: the key cursor and the switches go with it, the grid goes away,
/// and in front of a fault it ends with its message.
bool PictureEditor::DrawUpTo(std::size_t position) {
    const bool atEnd = position == words_.size();
    const bool stopped = fault_ && (fault_->command < position || (atEnd && fault_->command == position));
    if (stopped) position = fault_->command;
    const bool drawn = Draw(position);
    FollowDrawing();
    return drawn && (!stopped || Refuse(Dialogs(), fault_->message));
}

void PictureEditor::FollowDrawing() {
    cursor_ = {std::clamp(State().cursor.x, 0, pictures::kCanvasWidth - 1),
               std::clamp(State().cursor.y, 0, pictures::kCanvasHeight - 1)};
    inverse_ = State().inverse;
    over_ = State().over;
}

bool PictureEditor::GoBehind(std::size_t commands) {
    gridOn_ = false;
    return DrawUpTo(commands < starts_.size() ? starts_[commands] : EndPosition());
}

std::size_t PictureEditor::CommandsDrawn() const {
    return static_cast<std::size_t>(std::ranges::lower_bound(starts_, position_) - starts_.begin());
}

std::vector<bool> PictureEditor::PixelsOfLastCommand() const {
    const std::size_t drawn = CommandsDrawn();
    if (drawn == 0) return {};
    const pictures::Canvas before = steps_.PlanesAt(words_, starts_[drawn - 1]);
    std::vector<bool> changed;
    for (int line = 0; line < pictures::kCanvasHeight; ++line) {
        for (int x = 0; x < pictures::kCanvasWidth; ++x) {
            changed.push_back(Planes().colour.Pixel(x, line) != before.colour.Pixel(x, line) ||
                              Planes().pixel.Pixel(x, line) != before.pixel.Pixel(x, line));
        }
    }
    return changed;
}

// --- Operations, and taking them back ---

PictureEditor::Settings PictureEditor::Now() const {
    return {position_, cursor_, inverse_, over_, picture_.ink, picture_.paper};
}

void PictureEditor::Exchange(std::size_t at, std::size_t count, const WordList& added, bool checked) {
    const auto first = words_.begin() + static_cast<std::ptrdiff_t>(at);
    const auto place = words_.erase(first, first + static_cast<std::ptrdiff_t>(count));
    words_.insert(place, added.begin(), added.end());
    steps_.Forget(at);
    WordsChanged(checked);
}

/// Exchanges words and draws up to `position`. What can't be drawn is told, and has never been.
bool PictureEditor::Do(Edit edit, std::size_t position, KeyCursorGoes goes, bool checked) {
    edit.before = Now();
    Exchange(edit.at, edit.removed.size(), edit.added, checked);
    if (!Draw(position)) {
        Exchange(edit.at, edit.added.size(), edit.removed, false);
        GoBackTo(edit.before);
        return false;
    }
    if (goes == KeyCursorGoes::WithTheDrawing) FollowDrawing();
    edit.after = Now();
    done_.push_back(std::move(edit));
    undone_.clear();
    image_.reset();
    return true;
}

void PictureEditor::GoBackTo(const Settings& settings) {
    if (picture_.ink != settings.ink || picture_.paper != settings.paper) {
        picture_.ink = settings.ink;
        picture_.paper = settings.paper;
        steps_.Start(picture_);
    }
    Draw(settings.position);
    cursor_ = settings.cursor;
    inverse_ = settings.inverse;
    over_ = settings.over;
}

void PictureEditor::Undo() {
    if (done_.empty()) return;
    Edit edit = std::move(done_.back());
    done_.pop_back();
    Exchange(edit.at, edit.added.size(), edit.removed, false);
    GoBackTo(edit.before);
    undone_.push_back(std::move(edit));
}

void PictureEditor::Redo() {
    if (undone_.empty()) return;
    Edit edit = std::move(undone_.back());
    undone_.pop_back();
    Exchange(edit.at, edit.removed.size(), edit.added, false);
    GoBackTo(edit.after);
    done_.push_back(std::move(edit));
}

}  // namespace fabula::authoring
