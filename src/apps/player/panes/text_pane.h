#pragma once

#include <QTextEdit>
#include <string_view>
#include <utility>
#include <vector>

#include "engine/game_window.h"
#include "platform/timers.h"
#include "player/panes/pane_keys.h"
#include "player/panes/text_colours.h"

namespace fabula::player {

/// How the text pane shows a game before any tag changes it.
struct TextLook {
    engine::TextStyle style{.paper = 15, .ink = 0};
    QString family{};  ///< of the game's font; "" for the program's own
    int columns = 0;   ///< the width of a line at most, in characters; 0 for the whole pane
    Page page = Page::OfTheGame;
};

/// The text of the whole game, with the line being typed at its end. The widget never edits by itself: what
/// is typed goes to the handlers, and the game says what is shown. The caret may be moved through the text
/// for reading; typing brings it back.
class TextPane final : public QTextEdit {
  public:
    TextPane(platform::Timers& timers, PaneHandlers handlers, QWidget* parent = nullptr);

    /// Empties the pane for a game.
    void StartGame(const TextLook& look);
    void SetPage(Page page);
    /// In percent of the game's own sizes.
    void SetZoom(int percent);
    void SetFlashing(bool allowed);

    /// A run without line ends. `family` is the run's font, "" for the program's own.
    void Write(const QString& run, const engine::TextStyle& style, const QString& family);
    void EndLine();
    /// A fresh page. What was written before stays above it.
    void ClearPage(int paper, int ink);
    void ShowInput(const QString& typed, const QString& cursor);
    void EndInput(const QString& typed);

    /// The turn that has just been written is to be seen from its beginning: as much of it as the pane
    /// holds, with the end in sight when all of it fits.
    void ShowTurn();

    /// Where the latest turn began, in the text.
    int TurnStart() const { return turnStart_; }

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    struct RunStyle {
        engine::TextStyle style;
        QString family;

        friend bool operator==(const RunStyle&, const RunStyle&) = default;
    };

    /// What the player looks at: the latest turn, or a place further up.
    struct Reading {
        bool latest = true;
        int position = 0;  ///< of the text at the upper edge
    };

    QTextCursor End() const;
    QTextCharFormat FormatOf(const RunStyle& run) const;
    QTextCharFormat Format(const RunStyle& run);
    void Restyle();
    void ApplyColours();
    void FitMargins();
    int TurnScroll() const;
    Reading Place() const;
    void Return(const Reading& place);
    void KeepPage();
    void Paste();
    void Copy();
    void ToggleFlash();
    void BackToInput();
    int BlockTop(int position) const;

    PaneHandlers handlers_;
    platform::Alarm flash_;
    TextLook look_;
    TextColours colours_;
    int zoom_ = 100;
    std::vector<RunStyle> styles_;  ///< those that differ from the look; a run's format holds its index
    int turnStart_ = 0;
    int pageStart_ = 0;  ///< where ClearPage was called last
    int inputStart_ = 0;
    bool inputShown_ = false;
    QString shownCursor_;
    bool flashAllowed_ = true;
    bool flashOn_ = false;
    std::vector<std::pair<int, int>> flashing_;  ///< begins and ends of the runs that flash
};

}  // namespace fabula::player
