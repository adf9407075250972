#include "player/panes/text_pane.h"

#include <QApplication>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextDocument>
#include <algorithm>

#include "player/panes/flash_time.h"
#include "qt/colours.h"
#include "qt/strings.h"
#include "text/markup.h"

namespace fabula::player {

namespace {

constexpr int kStyleProperty = QTextFormat::UserProperty + 1;
constexpr std::chrono::milliseconds kSoon{1};
constexpr std::size_t kMostFlashing = 200;

/// Lines stand a little apart, for long texts.
QTextBlockFormat LineFormat() {
    constexpr double kPercent = 118;
    QTextBlockFormat format;
    format.setLineHeight(kPercent, QTextBlockFormat::ProportionalHeight);
    return format;
}

}  // namespace

TextPane::TextPane(platform::Timers& timers, PaneHandlers handlers, QWidget* parent)
    : QTextEdit(parent),
      handlers_(std::move(handlers)),
      flash_(timers, [this] { ToggleFlash(); }),
      more_(timers, [this] { ShowMore(); }) {
    setUndoRedoEnabled(false);
    setAcceptDrops(false);
    setAcceptRichText(false);
    setTabChangesFocus(true);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setCursorWidth(2);
    setAccessibleName(tr("Game text"));
    setAccessibleDescription(tr("The text of the game. Type a command at its end and press Enter."));
    StartGame({});
}

void TextPane::StartGame(const TextLook& look) {
    Settle();
    look_ = look;
    latest_ = {look.style, look.family};
    styles_.clear();
    flashing_.clear();
    queue_.clear();
    waiting_ = 0;
    room_ = kWrittenAtOnce;
    inputBehindQueue_.reset();
    clear();
    QTextCursor(document()).setBlockFormat(LineFormat());
    turnStart_ = pageStart_ = inputStart_ = Mark();
    inputShown_ = false;
    ApplyColours();
    SetZoom(zoom_);
}

void TextPane::ApplyColours() {
    colours_ = TextColours(look_.style.paper, look_.style.ink, look_.page);
    QPalette shown = palette();
    shown.setColor(QPalette::Base, qt::ToQt(colours_.Base()));
    shown.setColor(QPalette::Text, qt::ToQt(colours_.Text()));
    setPalette(shown);
}

void TextPane::SetChoice(const TextChoice& choice) {
    if (choice == choice_) return;
    choice_ = choice;
    SetZoom(zoom_);
    Trim();
}

void TextPane::SetPage(Page page) {
    Settle();
    look_.page = page;
    ApplyColours();
    Restyle();
}

void TextPane::SetZoom(int percent) {
    Settle();
    const Reading place = Place();
    zoom_ = percent;
    QFont shown = BaseFamily().isEmpty() ? QApplication::font() : QFont(BaseFamily());
    shown.setPointSizeF(PointsOf(look_.style.fontSize));
    setFont(shown);
    Restyle();
    FitMargins();
    Return(place);
}

void TextPane::SetFlashing(bool allowed) {
    flashAllowed_ = allowed;
    flashOn_ = false;
    setExtraSelections({});
    if (allowed && !flashing_.empty()) flash_.Start(kFlashTime);
    if (!allowed) flash_.Stop();
}

QString TextPane::BaseFamily() const {
    return choice_.family.isEmpty() ? look_.family : choice_.family;
}

double TextPane::PointsOf(int fontSize) const {
    const double ordinary = text::ShownPoints(look_.style.fontSize);
    const double own = fontSize > 0 ? text::ShownPoints(fontSize) : ordinary;
    const double wanted = choice_.points > 0 ? own * choice_.points / ordinary : own;
    return std::min<double>(wanted, text::kMostPoints) * zoom_ / 100.0;
}

QTextCursor TextPane::End() const {
    QTextCursor end(document());
    end.movePosition(QTextCursor::End);
    return end;
}

QTextCursor TextPane::Mark() const {
    QTextCursor mark = End();
    mark.setKeepPositionOnInsert(true);
    return mark;
}

void TextPane::OpenEdit() {
    if (!edit_.isNull()) return;
    edit_ = End();
    edit_.beginEditBlock();
    if (!more_.IsRunning()) more_.Start(kSoon);
}

/// What was written so far becomes one change of the document, and can be laid out.
void TextPane::Settle() {
    if (edit_.isNull()) return;
    QTextCursor made = edit_;
    edit_ = {};
    made.endEditBlock();
}

void TextPane::Take(Step step) {
    if (!queue_.empty() || room_ <= 0) {
        waiting_ += static_cast<int>(step.text.size()) + 1;
        queue_.push_back(std::move(step));
        if (!more_.IsRunning()) more_.Start(kSoon);
        return DropWhatIsNotKept();
    }
    Carry(step);
}

void TextPane::Carry(const Step& step) {
    OpenEdit();
    room_ -= static_cast<int>(step.text.size()) + 1;
    switch (step.kind) {
        case Step::Kind::Run:
            return InsertRun(step.text, step.style);
        case Step::Kind::LineEnd:
            return End().insertBlock(LineFormat(), QTextCharFormat());
        case Step::Kind::Page:
            return BeginPage(step.style.style);
        case Step::Kind::TurnBegins:
            turnStart_ = Mark();
            turnStart_.setPosition(turnStart_.block().position());
            return;
    }
}

/// Text that would be taken away again as soon as it is shown is not shown at all. Colours and marks are.
void TextPane::DropWhatIsNotKept() {
    while (queue_.size() > 1 && IsTooMuch(static_cast<int>(queue_.size()), waiting_)) {
        const Step first = std::move(queue_.front());
        queue_.pop_front();
        waiting_ -= static_cast<int>(first.text.size()) + 1;
        if (first.kind == Step::Kind::Page || first.kind == Step::Kind::TurnBegins) Carry(first);
    }
}

/// The next piece of what waits.
void TextPane::ShowMore() {
    Settle();
    if (queue_.empty()) {
        room_ = kWrittenAtOnce;
        return;
    }
    const Reading place = Place();
    room_ = kWrittenAtOnce;
    while (!queue_.empty() && room_ > 0) {
        const Step step = std::move(queue_.front());
        queue_.pop_front();
        waiting_ -= static_cast<int>(step.text.size()) + 1;
        Carry(step);
    }
    Settle();
    Trim();
    Return(place);
    if (queue_.empty() && inputBehindQueue_) PlaceInput(*std::exchange(inputBehindQueue_, std::nullopt));
    if (!more_.IsRunning()) more_.Start(kSoon);
}

bool TextPane::IsTooMuch(int blocks, int characters) const {
    return blocks > choice_.lines || characters / kCharactersOfALine > choice_.lines;
}

/// Takes the oldest lines away, many at once.
void TextPane::Trim() {
    Settle();
    const int slack = std::max(1, choice_.lines / 10);
    if (!IsTooMuch(document()->blockCount() - slack,
                   document()->characterCount() - slack * kCharactersOfALine))
        return;
    int blocks = document()->blockCount();
    QTextBlock first = document()->begin();
    while (first.next().isValid() && IsTooMuch(blocks, document()->characterCount() - first.position())) {
        first = first.next();
        --blocks;
    }
    QTextCursor gone(document());
    gone.setPosition(first.position(), QTextCursor::KeepAnchor);
    gone.removeSelectedText();
    std::erase_if(flashing_, [](const QTextCursor& run) { return !run.hasSelection(); });
}

QTextCharFormat TextPane::FormatOf(const RunStyle& run) const {
    QTextCharFormat format;
    const engine::TextStyle& style = run.style;
    if (choice_.family.isEmpty() && run.family != look_.family && !run.family.isEmpty())
        format.setFontFamilies({run.family});
    if (style.fontSize != look_.style.fontSize && style.fontSize > 0)
        format.setFontPointSize(PointsOf(style.fontSize));
    if (style.bright) format.setFontWeight(QFont::Bold);
    const TextColours::Run colours = colours_.Of(style);
    if (colours.ink != colours_.Text()) format.setForeground(qt::ToQt(colours.ink));
    if (colours.paper) format.setBackground(qt::ToQt(*colours.paper));
    return format;
}

QTextCharFormat TextPane::Format(const RunStyle& run) {
    if (run == RunStyle{look_.style, look_.family}) return {};
    QTextCharFormat format = FormatOf(run);
    const auto known = std::find(styles_.begin(), styles_.end(), run);
    format.setProperty(kStyleProperty, static_cast<int>(known - styles_.begin()));
    if (known == styles_.end()) styles_.push_back(run);
    return format;
}

void TextPane::Restyle() {
    if (styles_.empty()) return;
    std::vector<std::pair<QTextCursor, QTextCharFormat>> changes;
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        for (auto part = block.begin(); !part.atEnd(); ++part) {
            const QTextFragment fragment = part.fragment();
            const QVariant index = fragment.charFormat().property(kStyleProperty);
            if (!index.isValid()) continue;
            QTextCursor run(document());
            run.setPosition(fragment.position());
            run.setPosition(fragment.position() + fragment.length(), QTextCursor::KeepAnchor);
            QTextCharFormat format = FormatOf(styles_[static_cast<std::size_t>(index.toInt())]);
            format.setProperty(kStyleProperty, index);
            changes.emplace_back(run, format);
        }
    }
    for (auto& [run, format] : changes)
        run.setCharFormat(format);
}

void TextPane::Write(const QString& run, const engine::TextStyle& style, const QString& family) {
    inputShown_ = false;
    latest_ = {style, family};
    for (qsizetype at = 0; at < run.size();) {
        qsizetype length = std::min<qsizetype>(run.size() - at, kLongestLine);
        if (at + length < run.size()) {
            const qsizetype blank = QStringView(run).mid(at, length).lastIndexOf(' ');
            if (blank >= 0) length = blank + 1;
        }
        Take({Step::Kind::Run, run.mid(at, length), latest_});
        at += length;
    }
}

void TextPane::InsertRun(const QString& text, const RunStyle& style) {
    QTextCursor end = End();
    if (end.block().length() + text.size() > kLongestLine + 1)
        end.insertBlock(LineFormat(), QTextCharFormat());
    QTextCursor run = Mark();
    end.insertText(text, Format(style));
    if (!style.style.flash) return;
    run.setPosition(end.position(), QTextCursor::KeepAnchor);
    flashing_.push_back(run);
    if (flashing_.size() > kMostFlashing) flashing_.erase(flashing_.begin());
    if (flashAllowed_ && !flash_.IsRunning()) flash_.Start(kFlashTime);
}

void TextPane::EndLine() {
    inputShown_ = false;
    Take({Step::Kind::LineEnd});
}

void TextPane::ClearPage(int paper, int ink) {
    inputShown_ = false;
    Take({Step::Kind::Page, {}, {.style = {.paper = paper, .ink = ink}, .family = {}}});
}

void TextPane::BeginPage(const engine::TextStyle& style) {
    look_.style.paper = style.paper;
    look_.style.ink = style.ink;
    ApplyColours();
    flashing_.clear();
    if (!document()->isEmpty()) {
        QTextCursor end = End();
        if (!end.atBlockStart()) end.insertBlock(LineFormat(), QTextCharFormat());
        end.insertBlock(LineFormat(), QTextCharFormat());
    }
    pageStart_ = turnStart_ = Mark();
}

void TextPane::ShowInput(const QString& typed, const QString& cursor) {
    if (!queue_.empty()) {
        inputBehindQueue_ = {typed, cursor};
        return;
    }
    PlaceInput({typed, cursor});
}

/// What is typed has the font of the text before it.
TextPane::RunStyle TextPane::TypedStyle() const {
    RunStyle typed{look_.style, latest_.family};
    typed.style.font = latest_.style.font;
    typed.style.fontSize = latest_.style.fontSize;
    return typed;
}

void TextPane::PlaceInput(const Input& line) {
    const auto& [typed, cursor] = line;
    OpenEdit();
    if (!inputShown_) inputStart_ = Mark();
    inputShown_ = true;
    QTextCursor end = End();
    // Only what differs is replaced, so that a screen reader hears the one key and not the whole line.
    shownCursor_ = cursor;
    const QString shown = typed + cursor;
    QTextCursor input(document());
    input.setPosition(inputStart_.position());
    input.setPosition(end.position(), QTextCursor::KeepAnchor);
    const QString before = input.selectedText();
    const auto same = std::mismatch(before.begin(), before.end(), shown.begin(), shown.end()).first;
    const int kept = static_cast<int>(same - before.begin());
    input.setPosition(inputStart_.position() + kept);
    input.setPosition(end.position(), QTextCursor::KeepAnchor);
    if (input.hasSelection() || kept < shown.size())
        input.insertText(shown.mid(kept), Format(TypedStyle()));
    Settle();
    QTextCursor caret(document());
    caret.setPosition(inputStart_.position() + static_cast<int>(typed.size()));
    const int scrolled = verticalScrollBar()->value();
    setTextCursor(caret);
    KeepPage();
    if (scrolled > verticalScrollBar()->value()) verticalScrollBar()->setValue(scrolled);
}

void TextPane::EndInput(const QString& typed) {
    if (queue_.empty()) {
        PlaceInput({typed, {}});
        room_ = kWrittenAtOnce;
        Trim();
    } else {
        inputBehindQueue_.reset();
        if (!typed.isEmpty()) Take({Step::Kind::Run, typed, TypedStyle()});
    }
    if (!typed.isEmpty()) BeginTurn();
    EndLine();
}

void TextPane::BeginTurn() {
    Take({Step::Kind::TurnBegins});
}

void TextPane::ToggleFlash() {
    flashOn_ = !flashOn_;
    QList<ExtraSelection> selections;
    for (const QTextCursor& run : flashing_) {
        ExtraSelection selection;
        selection.cursor = run;
        selection.format.setForeground(palette().color(QPalette::Base));
        selection.format.setBackground(palette().color(QPalette::Text));
        if (flashOn_) selections.append(selection);
    }
    setExtraSelections(selections);
    if (!flashing_.empty()) flash_.Start(kFlashTime);
}

}  // namespace fabula::player
