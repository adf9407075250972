#include <algorithm>

#include "authoring/drawing/picture_editor.h"
#include "pictures/drawstring.h"
#include "pictures/drawstring_check.h"

// The command line, the keys, and what each command does.

namespace fabula::authoring {

using WordList = std::vector<std::string>;

namespace {

/// The editor's own words, beside those that stand in drawstrings.
enum EditorCommand : int {
    kStart = 316,
    kNext = 317,
    kPrev = 318,
    kDelete = 319,
    kDelNext = 320,
    kGrid = 321,
    kClear = 322,
    kDefInk = 323,
    kDefPaper = 324,
    kRedraw = 326,
};

constexpr int kShiftStep = 8;

/// Where a key takes the key cursor, in steps.
struct KeyStep {
    DrawingKey key;
    int dx;
    int dy;
};
constexpr KeyStep kKeySteps[] = {
    {DrawingKey::Right, 1, 0},   {DrawingKey::Left, -1, 0},    {DrawingKey::Up, 0, 1},
    {DrawingKey::Down, 0, -1},   {DrawingKey::Home, 1, 1},     {DrawingKey::End, 1, -1},
    {DrawingKey::Insert, -1, 1}, {DrawingKey::Delete, -1, -1},
};

int Wrapped(int value, int size) {
    if (value < 0) return value + size;
    return value >= size ? value - size : value;
}

std::string Spelled(int number) {
    return std::to_string(number);
}

int Sign(int number) {
    return number > 0 ? 1 : number < 0 ? -1 : 0;
}

/// The word at fault may be one of SHADE's that only the check of a whole drawstring refuses.
WordList ForCheck(WordList words) {
    if (words.front() == "SHADE") words.back() = "0";
    words.push_back("END");
    return words;
}

}  // namespace

struct PictureEditor::Routine {
    int number;
    bool (*run)(PictureEditor& editor, const std::vector<int>& given);
};

bool PictureEditor::LeaveCommandLine() {
    const auto check = pictures::ValidateCommandLine(book_, commandLine, picture_.kind, rplotOn_);
    return check.Passed() || RefuseField("CommandLine", check.fault);
}

bool PictureEditor::RunCommandLine() {
    if (!Run(commandLine)) return false;
    commandLine.clear();
    return true;
}

bool PictureEditor::Run(std::string_view line) {
    using E = PictureEditor;
    using N = std::vector<int>;
    using pictures::Picture;
    static constexpr Routine kRoutines[] = {
        {pictures::kAbsMove, [](E& e, const N&) { return e.CommAbsMove(); }},
        {pictures::kPlot, [](E& e, const N&) { return e.CommPlot(); }},
        {pictures::kRelMove, [](E& e, const N&) { return e.CommRelMove(); }},
        {pictures::kLine, [](E& e, const N&) { return e.CommLine(); }},
        {pictures::kFill, [](E& e, const N&) { return e.CommFill("FILL"); }},
        {pictures::kShade, [](E& e, const N& n) { return e.CommShade(n[0], n[1]); }},
        {pictures::kText, [](E& e, const N& n) { return e.CommText(n[0], n[1]); }},
        {pictures::kBlock, [](E& e, const N&) { return e.CommBlock(); }},
        {pictures::kInk, [](E& e, const N& n) { return e.CommAttribute("INK", n[0]); }},
        {pictures::kPaper, [](E& e, const N& n) { return e.CommAttribute("PAPER", n[0]); }},
        {pictures::kBright, [](E& e, const N& n) { return e.CommAttribute("BRIGHT", n[0]); }},
        {pictures::kInverse, [](E& e, const N& n) { return e.DoAttribute(e.inverse_, n[0] != 0); }},
        {pictures::kFlash, [](E& e, const N& n) { return e.CommAttribute("FLASH", n[0]); }},
        {pictures::kOver, [](E& e, const N& n) { return e.DoAttribute(e.over_, n[0] != 0); }},
        {pictures::kGoSub, [](E& e, const N& n) { return e.CommGoSub(n[0], n[1]); }},
        {kStart, [](E& e, const N&) { return e.CommStart(); }},
        {kNext, [](E& e, const N&) { return e.CommNext(); }},
        {kPrev, [](E& e, const N&) { return e.CommPrev(); }},
        {kDelete, [](E& e, const N&) { return e.CommDelete(); }},
        {kDelNext, [](E& e, const N&) { return e.CommDelNext(); }},
        {kGrid, [](E& e, const N&) { return e.CommGrid(); }},
        {kClear, [](E& e, const N&) { return e.CommClear(); }},
        {kDefInk, [](E& e, const N& n) { return e.CommDefault(&Picture::ink, "Ink", n[0]); }},
        {kDefPaper, [](E& e, const N& n) { return e.CommDefault(&Picture::paper, "Paper", n[0]); }},
        {kRedraw, [](E& e, const N&) { return e.CommRedraw(); }},
        {pictures::kQShade, [](E& e, const N& n) { return e.CommQShade("QSHADE", n[0]); }},
        {pictures::kRPlot, [](E& e, const N&) { return e.CommRPlot(); }},
        {pictures::kQFill, [](E& e, const N&) { return e.CommFill("QFILL"); }},
        {pictures::kBShade, [](E& e, const N& n) { return e.CommQShade("BSHADE", n[0]); }},
    };
    const auto check = pictures::ValidateCommandLine(book_, line, picture_.kind, rplotOn_);
    if (!check.Passed()) return RefuseField("CommandLine", check.fault);
    if (check.command == nullptr) return true;
    const auto routine = std::ranges::find(kRoutines, check.command->number, &Routine::number);
    if (routine == std::end(kRoutines)) return true;
    // A file may give a word fewer typed parameters than its routine takes.
    constexpr std::size_t kMostTyped = 2;
    std::vector<int> given = check.parameters;
    given.resize(std::max(given.size(), kMostTyped));
    return routine->run(*this, given);
}

// --- Keys and pointer ---

void PictureEditor::PressKey(DrawingKey key, bool shift) {
    if (key == DrawingKey::PageUp) return void(CommPrev());
    if (key == DrawingKey::PageDown) return void(CommNext());
    const KeyStep& step = *std::ranges::find(kKeySteps, key, &KeyStep::key);
    if (rplotOn_) return void(RPlotPlot(step.dx, step.dy));
    const int length = shift ? kShiftStep : 1;
    cursor_ = {Wrapped(cursor_.x + length * step.dx, pictures::kCanvasWidth),
               Wrapped(cursor_.y + length * step.dy, pictures::kCanvasHeight)};
}

void PictureEditor::PointAt(pictures::Point point) {
    if (rplotOn_) return;
    cursor_ = {std::clamp(point.x, 0, pictures::kCanvasWidth - 1),
               std::clamp(point.y, 0, pictures::kCanvasHeight - 1)};
}

void PictureEditor::DragTo(pictures::Point point) {
    if (!rplotOn_) return PointAt(point);
    const pictures::Point goal{std::clamp(point.x, 0, pictures::kCanvasWidth - 1),
                               std::clamp(point.y, 0, pictures::kCanvasHeight - 1)};
    while (cursor_ != goal) {
        if (!RPlotPlot(Sign(goal.x - cursor_.x), Sign(goal.y - cursor_.y))) return;
    }
}

/// The trace goes on from the drawing cursor, so the key cursor is there while it is drawn.
bool PictureEditor::RPlotPlot(int dx, int dy) {
    return AddToDrawstring({"RPLOT", Digits(), Spelled(dx), Spelled(dy)}, KeyCursorGoes::WithTheDrawing);
}

std::optional<RubberLine> PictureEditor::Guide() const {
    const pictures::Point start = State().cursor;
    if (rplotOn_ || start == cursor_) return std::nullopt;
    return RubberLine{{start.x, pictures::LineOfY(start.y)}, {cursor_.x, pictures::LineOfY(cursor_.y)}};
}

// --- Commands that stand in the drawstring ---

/// Over and inverse as a parameter holds them.
std::string PictureEditor::Digits() const {
    return Spelled(10 * (over_ ? 1 : 0) + (inverse_ ? 1 : 0));
}

/// The way from the drawing cursor to the key cursor.
WordList PictureEditor::Distance() const {
    return {Spelled(cursor_.x - State().cursor.x), Spelled(cursor_.y - State().cursor.y)};
}

/// Puts a command in at the position and draws it. The position is behind it then.
bool PictureEditor::AddToDrawstring(WordList words, KeyCursorGoes goes) {
    const auto check =
        pictures::ValidateDrawString(book_, pictures::JoinWords(ForCheck(words)), picture_.kind);
    if (!check.Passed()) return Refuse(Dialogs(), check.fault);
    const bool checked = words.front() != "SHADE";
    const std::size_t behind = position_ + words.size();
    return Do({position_, {}, std::move(words), {}, {}}, behind, goes, checked);
}

bool PictureEditor::CommAbsMove() {
    return AddToDrawstring({"ABSMOVE", Spelled(cursor_.x), Spelled(cursor_.y)});
}

bool PictureEditor::CommPlot() {
    return AddToDrawstring({"PLOT", Digits(), Spelled(cursor_.x), Spelled(cursor_.y)});
}

bool PictureEditor::CommRelMove() {
    const WordList way = Distance();
    return AddToDrawstring({"RELMOVE", way[0], way[1]});
}

bool PictureEditor::CommLine() {
    const WordList way = Distance();
    return AddToDrawstring({"LINE", Digits(), way[0], way[1]});
}

bool PictureEditor::CommFill(std::string_view word) {
    const WordList way = Distance();
    return AddToDrawstring({std::string(word), way[0], way[1]});
}

bool PictureEditor::CommShade(int first, int second) {
    const WordList way = Distance();
    return AddToDrawstring({"SHADE", Digits(), way[0], way[1], Spelled(second * 16 + first)});
}

bool PictureEditor::CommQShade(std::string_view word, int shade) {
    const WordList way = Distance();
    return AddToDrawstring({std::string(word), Digits(), way[0], way[1], Spelled(shade)});
}

bool PictureEditor::CommText(int set, int character) {
    const int column = cursor_.x / pictures::kCellSize;
    const int row = pictures::LineOfY(cursor_.y) / pictures::kCellSize;
    return AddToDrawstring(
        {"TEXT", Digits(), Spelled(set), Spelled(character), Spelled(column), Spelled(row)});
}

/// From the cell of the drawing cursor to that of the key cursor, the row and the column of the far corner
/// left out.
bool PictureEditor::CommBlock() {
    const pictures::Point start = State().cursor;
    const int column = start.x / pictures::kCellSize;
    const int row = pictures::LineOfY(start.y) / pictures::kCellSize;
    const int otherColumn = cursor_.x / pictures::kCellSize;
    const int otherRow = pictures::LineOfY(cursor_.y) / pictures::kCellSize;
    return AddToDrawstring({"BLOCK", Spelled(std::abs(row - otherRow) - 1),
                            Spelled(std::abs(column - otherColumn) - 1),
                            Spelled(std::min(column, otherColumn)), Spelled(std::min(row, otherRow))});
}

bool PictureEditor::CommAttribute(std::string_view word, int number) {
    return AddToDrawstring({std::string(word), Spelled(number)});
}

bool PictureEditor::CommGoSub(int scale, int picture) {
    return AddToDrawstring({"GOSUB", "sc=" + Spelled(scale), Spelled(picture)});
}

// --- Commands of the editor ---

/// INVERSE and OVER stand in no drawstring: the commands that follow carry them.
bool PictureEditor::DoAttribute(bool& attribute, bool value) {
    if (attribute == value) return true;
    Edit edit{position_, {}, {}, Now(), {}};
    attribute = value;
    edit.after = Now();
    done_.push_back(std::move(edit));
    undone_.clear();
    return true;
}

bool PictureEditor::CommStart() {
    gridOn_ = false;
    if (!Draw(0)) return false;
    FollowDrawing();
    return true;
}

bool PictureEditor::CommNext() {
    const auto next = std::ranges::upper_bound(starts_, position_);
    const std::size_t behind = next == starts_.end() ? EndPosition() : *next;
    const bool noEnd = fault_ && fault_->command == words_.size() && position_ == words_.size();
    if (noEnd) return Refuse(Dialogs(), fault_->message);
    if (position_ == EndPosition()) return Refuse(Dialogs(), "You are at the END of the drawstring.");
    return DrawUpTo(behind);
}

bool PictureEditor::CommPrev() {
    if (position_ == 0) return Refuse(Dialogs(), "You are already at the START of the drawstring");
    gridOn_ = false;
    return DrawUpTo(starts_[CommandsDrawn() - 1]);
}

bool PictureEditor::CommDelete() {
    if (position_ == 0) return Refuse(Dialogs(), "You are already at the START of the drawstring");
    gridOn_ = false;
    const std::size_t start = starts_[CommandsDrawn() - 1];
    const auto first = words_.begin() + static_cast<std::ptrdiff_t>(start);
    const auto last = words_.begin() + static_cast<std::ptrdiff_t>(position_);
    return Do({start, {first, last}, {}, {}, {}}, start, KeyCursorGoes::WithTheDrawing, true);
}

/// The command had not been drawn, so nothing is drawn anew.
bool PictureEditor::CommDelNext() {
    if (position_ == EndPosition()) return Refuse(Dialogs(), "You are at the END of the drawstring");
    return Do({position_, CommandAt(position_), {}, {}, {}}, position_, KeyCursorGoes::Nowhere, true);
}

bool PictureEditor::CommGrid() {
    gridOn_ = !gridOn_;
    return true;
}

bool PictureEditor::CommClear() {
    gridOn_ = false;
    return Do({0, words_, {"END"}, {}, {}}, 0, KeyCursorGoes::WithTheDrawing, true);
}

bool PictureEditor::CommDefault(int pictures::Picture::*colour, std::string_view name, int number) {
    const bool empty = words_ == WordList{"END"} && position_ == 0;
    const std::string warning =
        "Changing The default " + std::string(name) + " at this time will cause a ReDraw";
    if (!empty && !Dialogs().Proceed(warning, "Warning")) return false;
    gridOn_ = false;
    Edit edit{position_, {}, {}, Now(), {}};
    picture_.*colour = number;
    steps_.Start(picture_);
    if (!Draw(position_)) return false;
    FollowDrawing();
    edit.after = Now();
    done_.push_back(std::move(edit));
    undone_.clear();
    return true;
}

bool PictureEditor::CommRedraw() {
    gridOn_ = false;
    return DrawUpTo(EndPosition());
}

bool PictureEditor::CommRPlot() {
    rplotOn_ = !rplotOn_;
    if (rplotOn_) {
        const bool inverse = inverse_;
        const bool over = over_;
        FollowDrawing();
        inverse_ = inverse;
        over_ = over;
    }
    return true;
}

}  // namespace fabula::authoring
