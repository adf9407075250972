#pragma once

#include <QWidget>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "engine/game_window.h"
#include "platform/timers.h"
#include "player/panes/history.h"
#include "player/panes/pane_keys.h"
#include "player/panes/text_colours.h"
#include "player/panes/text_pane.h"

class QSplitter;
class QStackedWidget;

namespace fabula::engine {
class Transcript;
}

namespace fabula::player {

class CharacterPane;
class GamePictures;
class PicturePane;
class PlayedGame;

/// What a game tells the window around its screen.
struct ScreenEvents {
    std::function<void(const engine::GameLook& look)> started;
    std::function<void()> ended;
    std::function<void(engine::StatusField field, const std::string& text)> status;
    std::function<void(bool enabled)> nextEnabled;
    std::function<void()> stepped;  ///< the game waits for the player, a time or nothing any more
    std::function<void(const std::string& sentence)> notice;  ///< something that went wrong
};

/// How the player wants games to be shown.
struct ScreenLook {
    int zoom = 100;         ///< of the text pane, in percent
    int characterZoom = 0;  ///< of the character pane, in steps
    Page page = Page::OfTheGame;
    bool flashing = true;
    bool plainText = false;  ///< games with character sets go to the text pane too
    TextChoice text{};       ///< fonts and lines of the text pane; the lines that both panes keep
};

/// The panes of a game: picture, text and characters. It draws what the engine tells, and brings the
/// player's keys and the passing of time to it.
class GameScreen final : public QWidget, public engine::WholeWindow {
  public:
    GameScreen(platform::Timers& timers, ScreenEvents events);
    ~GameScreen() override;

    /// The game that is shown. It must be detached (nullptr) before it ends.
    void Attach(PlayedGame* game);

    void SetLook(const ScreenLook& look);

    /// What is shown from here on is a turn of its own, although no line of the player begins it.
    void BeginTurn();
    /// Gives up the turn that goes on or pauses.
    void StopTurn();

    /// Gives the keyboard to the pane that takes it.
    void FocusInput();
    /// To be called after each call of the game that may have made a turn.
    void ShowStep();

    /// The parts of the window, for the engine, with what it has to know of the panes.
    engine::WindowParts PartsWithPanes();

    TextPane& Text() { return *text_; }
    CharacterPane& Characters() { return *characters_; }
    PicturePane& Picture() { return *picture_; }
    bool ShowsCharacters() const;

    void StartGame(const engine::GameLook& look) override;
    void EndGame() override;
    void Write(std::string_view text, const engine::TextStyle& style, engine::TextRole role) override;
    void EndLine(engine::LineEnd kind) override;
    void Clear(int paper, int ink) override;
    void ShowInput(std::string_view typed, std::string_view cursor) override;
    void EndInput(std::string_view typed) override;
    void ShowPicture(const engine::Picture& picture) override;
    void HidePicture() override;
    void ShowStatus(engine::StatusField field, std::string_view text) override;
    void EnableNext(bool enabled) override;
    void StartTimeOut(std::chrono::milliseconds length) override;
    void StopTimeOut() override;
    void StartWait(std::chrono::milliseconds length) override;

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    void Type(const std::string& text);
    void Press(PaneKey key);
    void Send(char32_t key);
    bool IsUnseen() const;
    void ReplaceLine(const std::string& line);
    void TimeOutTick();
    void WaitTick();
    void GoOn();
    void StopAlarms();
    void ChoosePane();
    void ColourPicture();
    void FitPicture();
    int LeastTextHeight() const;
    void WriteUnwrapped(const std::string& shown, const engine::TextStyle& style, engine::TextRole role);
    std::string Shown(std::string_view run) const;
    engine::Transcript* Transcript() const;

    ScreenEvents events_;
    PlayedGame* played_ = nullptr;
    std::unique_ptr<GamePictures> pictures_;
    History history_;
    engine::GameLook game_;
    ScreenLook look_;
    std::string typed_;  ///< what stands in the input
    bool turnMade_ = false;
    bool begun_ = false;       ///< the panes show the game that is attached
    bool lineUnseen_ = false;  ///< nothing of it was shown yet, since its opening is not for the player
    engine::TextStyle style_;  ///< of the latest run
    bool afterBlank_ = false;  ///< the latest run ended with a blank
    platform::Alarm timeOut_;
    platform::Alarm wait_;
    platform::Alarm more_;  ///< the turn goes on

    std::optional<double> pictureShare_;  ///< the part of the height that the player gave to pictures
    QSplitter* splitter_;
    PicturePane* picture_;
    QStackedWidget* panes_;
    TextPane* text_;
    CharacterPane* characters_;
};

}  // namespace fabula::player
