#pragma once

#include <QCoreApplication>
#include <QTextCursor>
#include <QTextEdit>
#include <deque>
#include <optional>
#include <string_view>
#include <vector>

#include "engine/game_window.h"
#include "platform/timers.h"
#include "player/panes/kept_lines.h"
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

/// What the player wants otherwise than the game has it.
struct TextChoice {
    QString family{};               ///< of all text; "" for the game's own fonts
    int points = 0;                 ///< of ordinary text, other sizes in proportion; 0 for the game's own
    int columns = 0;                ///< the width of a line at most; 0 for the game's own
    int lines = kDefaultKeptLines;  ///< how much is kept to look back at

    friend bool operator==(const TextChoice&, const TextChoice&) = default;
};

/// The text of the whole game, with the line being typed at its end. The widget never edits by itself: what
/// is typed goes to the handlers, and the game says what is shown. The caret may be moved through the text
/// for reading; typing brings it back.
///
/// However much a game writes at once, the window stays awake: what goes beyond kWrittenAtOnce is shown
/// piece by piece while events are dealt with. What one turn writes beyond the lines that are kept is never
/// laid out. A line is kept as lines of at most kLongestLine characters, parted at a blank where there is
/// one. All that a step of the game writes comes into the document as one change, which is what a screen
/// reader announces.
class TextPane final : public QTextEdit {
    Q_DECLARE_TR_FUNCTIONS(Fabula)
  public:
    TextPane(platform::Timers& timers, PaneHandlers handlers, QWidget* parent = nullptr);

    /// Empties the pane for a game.
    void StartGame(const TextLook& look);
    void SetPage(Page page);
    /// In percent of the game's own sizes.
    void SetZoom(int percent);
    void SetFlashing(bool allowed);
    void SetChoice(const TextChoice& choice);

    /// In characters.
    static constexpr int kWrittenAtOnce = 8 * 1024;
    static constexpr int kLongestLine = 4000;
    /// A line that is kept stands for as many.
    static constexpr int kCharactersOfALine = 100;

    /// A run without line ends. `family` is the run's font, "" for the program's own.
    void Write(const QString& run, const engine::TextStyle& style, const QString& family);
    void EndLine();
    /// A fresh page. What was written before stays above it.
    void ClearPage(int paper, int ink);
    void ShowInput(const QString& typed, const QString& cursor);
    void EndInput(const QString& typed);
    /// The latest turn begins with the line that is being written.
    void BeginTurn();

    /// The turn that has just been written is to be seen from its beginning: as much of it as the pane
    /// holds, with the end in sight when all of it fits.
    void ShowTurn();

    /// Where the latest turn began, in the text.
    int TurnStart() const { return turnStart_.position(); }
    /// All that was written is shown.
    bool IsWhole() const { return queue_.empty(); }
    /// Looks for a text from the caret on, or before it, and shows it chosen. False where there is none.
    bool FindText(const QString& text, bool backwards);

  protected:
    bool event(QEvent* event) override;
    bool viewportEvent(QEvent* event) override;
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
        QTextCursor top{};  ///< of the text at the upper edge
    };

    /// Something to be shown, in its turn.
    struct Step {
        enum class Kind { Run, LineEnd, Page, TurnBegins };

        Kind kind;
        QString text{};
        RunStyle style{};
    };
    struct Input {
        QString typed;
        QString cursor;
    };

    void Take(Step step);
    void Carry(const Step& step);
    void InsertRun(const QString& text, const RunStyle& style);
    void BeginPage(const engine::TextStyle& style);
    void DropWhatIsNotKept();
    void ShowMore();
    void OpenEdit();
    void Settle();
    void Trim();
    bool IsTooMuch(int blocks, int characters) const;
    void PlaceInput(const Input& input);
    QTextCursor Mark() const;
    RunStyle TypedStyle() const;
    double PointsOf(int fontSize) const;
    QString BaseFamily() const;

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
    TextChoice choice_;
    RunStyle latest_;  ///< the style of the run that was written last
    std::deque<Step> queue_;
    int waiting_ = 0;  ///< characters in the queue
    int room_ = kWrittenAtOnce;
    std::optional<Input> inputBehindQueue_;
    QTextCursor edit_;  ///< of the change that is being made; null while none is
    platform::Alarm more_;
    // Marks that stay at their text, whatever is written behind or taken away before them.
    QTextCursor turnStart_;
    QTextCursor pageStart_;  ///< where ClearPage was called last
    QTextCursor inputStart_;
    bool inputShown_ = false;
    QString shownCursor_;
    bool flashAllowed_ = true;
    bool flashOn_ = false;
    std::vector<QTextCursor> flashing_;  ///< the runs that flash
};

}  // namespace fabula::player
