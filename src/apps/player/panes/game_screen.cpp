#include "player/panes/game_screen.h"

#include <QSplitter>
#include <QStackedWidget>
#include <QVBoxLayout>
#include <algorithm>
#include <cmath>
#include <utility>

#include "engine/engine.h"
#include "pictures/book_loader.h"
#include "player/panes/character_pane.h"
#include "player/panes/picture_pane.h"
#include "player/panes/text_pane.h"
#include "player/play/game_pictures.h"
#include "player/play/played_game.h"
#include "qt/colours.h"
#include "qt/strings.h"
#include "text/encoding/safe_text.h"
#include "text/encoding/utf8.h"

namespace fabula::player {

namespace {

using engine::Engine;
using engine::Waiting;

/// How soon a tick comes again that found the engine at work.
constexpr std::chrono::milliseconds kBusyDelay{50};
/// Time for what came in the meantime, between two slices of a turn.
constexpr std::chrono::milliseconds kNextSlice{1};
/// The last character of a character set that a key can type.
constexpr char32_t kLastTyped = 126;
/// What a picture leaves to the text; where it can't, it gives way.
constexpr int kLeastLines = 5;
constexpr int kLeastRows = 10;
/// Whatever the size of the window: the text pane wraps for itself, and the character pane has its pixels.
constexpr engine::PaneMeasures kPanes{.characterWidth = CharacterScreen::kWidth,
                                      .characterAdvance = CharacterScreen::kCharacterSize};

}  // namespace

GameScreen::GameScreen(platform::Timers& timers, ScreenEvents events)
    : events_(std::move(events)),
      timeOut_(timers, [this] { TimeOutTick(); }),
      wait_(timers, [this] { WaitTick(); }),
      more_(timers, [this] { GoOn(); }),
      splitter_(new QSplitter(Qt::Vertical)),
      picture_(new PicturePane),
      panes_(new QStackedWidget) {
    const PaneHandlers handlers{[this](const std::string& text) { Type(text); },
                                [this](PaneKey key) { Press(key); }};
    text_ = new TextPane(timers, handlers);
    characters_ = new CharacterPane(timers, handlers);
    panes_->addWidget(text_);
    panes_->addWidget(characters_);
    splitter_->addWidget(picture_);
    splitter_->addWidget(panes_);
    splitter_->setChildrenCollapsible(false);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(splitter_);
    QObject::connect(splitter_, &QSplitter::splitterMoved, this, [this] {
        const int room = splitter_->height() - splitter_->handleWidth();
        pictureShare_ = static_cast<double>(splitter_->sizes().front()) / room;
    });
    picture_->hide();
}

GameScreen::~GameScreen() = default;

engine::WindowParts GameScreen::PartsWithPanes() {
    engine::WindowParts parts = Parts();
    parts.measures = &kPanes;
    return parts;
}

void GameScreen::StopAlarms() {
    timeOut_.Stop();
    wait_.Stop();
    more_.Stop();
}

void GameScreen::Attach(PlayedGame* game) {
    StopAlarms();
    history_ = {};
    typed_.clear();
    begun_ = lineUnseen_ = false;
    played_ = game;
    pictures_.reset();
    if (played_ == nullptr) return;
    pictures_ = std::make_unique<GamePictures>(played_->Adventure(), events_.notice);
}

void GameScreen::SetLook(const ScreenLook& look) {
    look_ = look;
    text_->SetPage(look.page);
    text_->SetZoom(look.zoom);
    text_->SetFlashing(look.flashing);
    text_->SetChoice(look.text);
    characters_->Screen().Keep(static_cast<std::size_t>(look.text.lines));
    characters_->SetZoomSteps(look.characterZoom);
    characters_->SetFlashing(look.flashing);
    ChoosePane();
}

bool GameScreen::ShowsCharacters() const {
    return game_.characterSets && !look_.plainText;
}

void GameScreen::ChoosePane() {
    const bool focused = panes_->currentWidget()->hasFocus();
    if (ShowsCharacters()) {
        panes_->setCurrentWidget(characters_);
    } else {
        panes_->setCurrentWidget(text_);
    }
    ColourPicture();
    FitPicture();
    if (focused) FocusInput();
}

void GameScreen::ColourPicture() {
    QPalette surroundings = text_->palette();
    if (ShowsCharacters())
        surroundings.setColor(QPalette::Base, qt::ToQt(text::ColourRGB(game_.style.paper)));
    picture_->setPalette(surroundings);
}

void GameScreen::FocusInput() {
    panes_->currentWidget()->setFocus();
}

/// What the game shows now is not for the player.
bool GameScreen::IsUnseen() const {
    return played_ != nullptr && played_->PlaysUnseen();
}

void GameScreen::StartGame(const engine::GameLook& look) {
    StopAlarms();
    game_ = look;
    HidePicture();
    if (IsUnseen() && begun_) return events_.started(look);
    begun_ = true;
    lineUnseen_ = IsUnseen();
    TextLook textLook{.style = look.style, .columns = look.printWidth, .page = look_.page};
    if (!look.characterSets) textLook.family = qt::ToQt(played_->FontName(look.style.font));
    text_->StartGame(textLook);
    pictures::CharacterSets sets;
    if (look.characterSets) sets = pictures::LoadCharacterSets(played_->Adventure());
    characters_->StartGame(CharacterScreen(std::move(sets)));
    characters_->Screen().Clear(look.style.paper, look.style.ink);
    characters_->Screen().Keep(static_cast<std::size_t>(look_.text.lines));
    ChoosePane();
    events_.started(look);
}

void GameScreen::EndGame() {
    StopAlarms();
    turnMade_ = true;
    events_.ended();
}

std::string GameScreen::Shown(std::string_view run) const {
    std::string shown;
    if (game_.characterSets) {
        text::AppendCharacters(run, shown);
    } else {
        text::AppendSafe(run, shown);
    }
    return shown;
}

void GameScreen::Write(std::string_view run, const engine::TextStyle& style, engine::TextRole role) {
    if (IsUnseen()) return;
    lineUnseen_ = false;
    WriteUnwrapped(Shown(run), style, role);
    if (game_.characterSets) characters_->Screen().Write(run, style);
    afterBlank_ = run.ends_with(' ');
    style_ = style;
}

void GameScreen::WriteUnwrapped(const std::string& shown, const engine::TextStyle& style,
                                engine::TextRole role) {
    if (auto* lines = Transcript(); lines != nullptr && role == engine::TextRole::Game) lines->Write(shown);
    const QString family = game_.characterSets ? QString() : qt::ToQt(played_->FontName(style.font));
    text_->Write(qt::ToQt(shown), style, family);
}

/// Where what is shown is written too; nullptr where it is not.
engine::Transcript* GameScreen::Transcript() const {
    return played_ == nullptr ? nullptr : played_->Transcript().Lines();
}

void GameScreen::EndLine(engine::LineEnd kind) {
    // The first line of what is shown does not end one that was not.
    if (IsUnseen() || std::exchange(lineUnseen_, false)) return;
    // A blank that finds its row full is the break itself, and is not written.
    const bool blankBreak = game_.characterSets && characters_->Screen().RowIsFull() && !afterBlank_;
    if (game_.characterSets) characters_->Screen().EndLine();
    if (kind == engine::LineEnd::Wrapped) {
        if (blankBreak) WriteUnwrapped(" ", style_, engine::TextRole::Game);
        return;
    }
    if (auto* lines = Transcript()) lines->EndLine();
    text_->EndLine();
}

void GameScreen::Clear(int paper, int ink) {
    // A page on which nothing is shown yet has the colours that an opening gives it.
    if (IsUnseen() && !lineUnseen_) return;
    if (auto* lines = Transcript()) lines->NewPage();
    text_->ClearPage(paper, ink);
    if (game_.characterSets) characters_->Screen().Clear(paper, ink);
}

void GameScreen::ShowInput(std::string_view typed, std::string_view cursor) {
    if (IsUnseen()) return;
    typed_ = typed;
    text_->ShowInput(qt::ToQt(Shown(typed)), qt::ToQt(Shown(cursor)));
    if (game_.characterSets) characters_->Screen().ShowInput(typed, cursor);
}

void GameScreen::EndInput(std::string_view typed) {
    typed_.clear();
    history_.Add(typed);
    if (auto* lines = Transcript()) lines->Typed(Shown(typed));
    text_->EndInput(qt::ToQt(Shown(typed)));
    if (game_.characterSets) characters_->Screen().EndInput(typed);
    turnMade_ = true;
}

void GameScreen::ShowPicture(const engine::Picture& picture) {
    if (IsUnseen()) return;
    const QImage image = pictures_->Load(picture);
    picture_->Show(image);
    FitPicture();
}

void GameScreen::HidePicture() {
    picture_->Show({});
    FitPicture();
}

int GameScreen::LeastTextHeight() const {
    if (!ShowsCharacters()) return kLeastLines * QFontMetrics(text_->font()).lineSpacing();
    const int rows = kLeastRows * CharacterScreen::kCharacterSize;
    const bool roomForTwo = splitter_->width() >= CharacterPane::kLeastFactor * CharacterScreen::kWidth &&
                            splitter_->height() >= 2 * CharacterPane::kLeastFactor * rows;
    return roomForTwo ? CharacterPane::kLeastFactor * rows : rows;
}

void GameScreen::FitPicture() {
    const int room = splitter_->height() - splitter_->handleWidth();
    const int most = room - LeastTextHeight();
    const int least = picture_->minimumHeight();
    const bool shown = !picture_->Shown().isNull() && most >= least;
    picture_->setVisible(shown);
    if (!shown) return;
    const int wanted = pictureShare_ ? static_cast<int>(std::lround(room * *pictureShare_))
                                     : picture_->HeightIn({splitter_->width(), room});
    const int tall = std::clamp(wanted, least, most);
    splitter_->setSizes({tall, room - tall});
}

void GameScreen::resizeEvent(QResizeEvent*) {
    FitPicture();
}

void GameScreen::ShowStatus(engine::StatusField field, std::string_view text) {
    events_.status(field, std::string(text));
}

void GameScreen::EnableNext(bool enabled) {
    events_.nextEnabled(enabled);
}

void GameScreen::StartTimeOut(std::chrono::milliseconds length) {
    timeOut_.Start(length);
}

void GameScreen::StopTimeOut() {
    timeOut_.Stop();
}

void GameScreen::StartWait(std::chrono::milliseconds length) {
    wait_.Start(length);
}

void GameScreen::TimeOutTick() {
    if (played_ == nullptr) return;
    if (!played_->TimeOutTick()) return timeOut_.Start(kBusyDelay);
    turnMade_ = true;
    ShowStep();
}

void GameScreen::WaitTick() {
    if (played_ == nullptr) return;
    if (!played_->WaitTick()) return wait_.Start(kBusyDelay);
    ShowStep();
}

void GameScreen::GoOn() {
    if (played_ == nullptr) return;
    if (!played_->GoOn()) return more_.Start(kBusyDelay);
    ShowStep();
}

void GameScreen::BeginTurn() {
    text_->BeginTurn();
    turnMade_ = true;
}

void GameScreen::StopTurn() {
    if (played_ == nullptr || !played_->StopTurn()) return;
    wait_.Stop();
    more_.Stop();
    turnMade_ = true;
    ShowStep();
}

void GameScreen::Send(char32_t key) {
    played_->Key(key);
}

void GameScreen::Type(const std::string& typed) {
    if (played_ == nullptr) return;
    std::u32string keys = text::Decode(typed);
    std::erase_if(keys, [this](char32_t point) {
        return point >= text::kBadByte || (game_.characterSets && point > kLastTyped);
    });
    played_->Keys(keys);
    ShowStep();
}

void GameScreen::Press(PaneKey key) {
    if (played_ == nullptr) return;
    if (key == PaneKey::EraseLine && played_->WaitingFor() == Waiting::Turn) return StopTurn();
    if (!played_->TakesLine()) {
        Send(Engine::kEnter);
        return ShowStep();
    }
    switch (key) {
        case PaneKey::Enter:
            Send(Engine::kEnter);
            break;
        case PaneKey::Backspace:
            Send(Engine::kBackspace);
            break;
        case PaneKey::EraseLine:
            ReplaceLine("");
            break;
        case PaneKey::Older:
            if (const auto line = history_.Older(typed_)) ReplaceLine(*line);
            break;
        case PaneKey::Newer:
            if (const auto line = history_.Newer()) ReplaceLine(*line);
            break;
        default:
            break;
    }
    ShowStep();
}

void GameScreen::ReplaceLine(const std::string& line) {
    const std::u32string erased(text::Length(typed_), Engine::kBackspace);
    played_->Keys(erased + text::Decode(line));
}

void GameScreen::ShowStep() {
    if (game_.characterSets) characters_->ShowChanges();
    if (std::exchange(turnMade_, false)) text_->ShowTurn();
    events_.stepped();
    if (played_ == nullptr) return;
    if (const auto failure = played_->Transcript().Flush()) events_.notice(*failure);
    if (played_->WaitingFor() == Waiting::Turn) more_.Start(kNextSlice);
    if (const std::string failure = played_->TakeFailure(); !failure.empty()) events_.notice(failure);
}

}  // namespace fabula::player
