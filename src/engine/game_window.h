#pragma once

#include <chrono>
#include <string>
#include <string_view>

#include "engine/numbers.h"
#include "store/adventure_kind.h"

namespace fabula::engine {

/// How a run of text looks. Colours are numbers 0 to 15: 0 black, 1 blue, 2 red, 3 magenta, 4 green, 5
/// cyan, 6 yellow, 7 white, 8 to 15 the same bright.
struct TextStyle {
    int font = 0;      ///< in the character pane a character set, else a font (Engine::FontName)
    int fontSize = 0;  ///< in points
    int paper = 0;
    int ink = 7;
    bool bright = false;  ///< shown as bold; the colour is already raised
    bool flash = false;
    bool inverse = false;  ///< ink and paper change places
    bool over = false;     ///< drawn over what is there; for the character pane only

    friend bool operator==(const TextStyle&, const TextStyle&) = default;
};

/// What a run of text is, so that a window with a prompt of its own can leave the game's away.
enum class TextRole {
    Game,    ///< the game speaks
    Prompt,  ///< system message 33 (">") in front of the input
};

/// Why a line ends.
enum class LineEnd {
    Hard,     ///< the text ends its line here
    Wrapped,  ///< the print width was reached; a window that wraps for itself, or a transcript, leaves it
              ///< away
};

/// What the window must know of a game before the first text.
struct GameLook {
    std::string title;  ///< "NAME (Version 1.0) by AUTHOR"
    store::AdventureKind type = store::AdventureKind::Fabula;
    bool characterSets =
        false;              ///< true: the character pane with the game's own sets; false: the text pane
    bool graphics = false;  ///< the game shows pictures
    int printWidth = 0;     ///< `defprintwidth`, in columns; 0 when the game sets none
    TextStyle style;        ///< font, size, paper and ink at the start
};

/// A picture to show: an image in a file of the game's folder, or kept in the adventure file.
struct Picture {
    std::string path;  ///< as stored: relative to the game's folder. Not checked: it is the author's text
    PlaceNumber location;  ///< the record of `locations` that holds it (`picgraphic`), or kOfTheGame
    /// The default picture of the game.
    static constexpr PlaceNumber kOfTheGame{-1};

    friend bool operator==(const Picture&, const Picture&) = default;
};

/// The fields of the status line.
enum class StatusField {
    Script,    ///< `Status1`: "Script Off" and the like
    Sound,     ///< `Status2`: "Sound ON", "Sound OFF"
    Command,   ///< `command`: the words of the sentence, while tracing
    Location,  ///< `location`: "Location: 5", while tracing
};

/// A question for the name of a file: SAVE, LOAD and SCRIPT.
struct FileRequest {
    std::string_view title;      ///< "Save as a Fabula Save File"
    std::string_view kind;       ///< of file: "Fabula Save File"
    std::string_view extension;  ///< ".sav"; appended by the engine to a name without one
    bool forWriting = false;     ///< whoever asks the player lets him agree before a file is overwritten
};

// The window of a game as the engine sees it, in narrow parts. The engine calls them while it runs and then
// returns; it never waits in here, and none gives it an answer: what the player says comes to the engine by
// the members of Engine, whenever it comes, and how wide the panes are stands in PaneMeasures beforehand.

/// A print width at which no line breaks.
inline constexpr int kNoWidthLimit = 1'000'000;

/// The blank at which no line may break (PaneMeasures::breaksLines).
inline constexpr std::string_view kNoBreakSpace = "\u00A0";

/// How wide the panes of a window are. The host keeps them true; the engine looks at them before each text.
struct PaneMeasures {
    int textWidth = kNoWidthLimit;  ///< of the text pane, in columns; at most kNoWidthLimit
    /// The window breaks the lines by itself. Blanks that do not break then come as kNoBreakSpace.
    bool breaksLines = false;
    int characterWidth = kNoWidthLimit;  ///< of the character pane, in pixels; at most kNoWidthLimit
    /// The width of one character of the character pane and the gap behind it, in pixels.
    int characterAdvance = 1;
};

/// Where texts go: all that a printer needs. Texts are UTF-8 without markup.
///
/// Of the character pane a run holds characters by their codes as code points: 32 to 127 the font, 128 to
/// 143 block graphics, 144 to 164 user-defined graphics. Of the text pane it holds ordinary text.
class GameWindow {
  public:
    virtual ~GameWindow() = default;

    /// Appends text at the end of the pane (at the cursor of the character pane). A run holds no line ends.
    virtual void Write(std::string_view text, const TextStyle& style, TextRole role) = 0;
    virtual void EndLine(LineEnd kind) = 0;
    virtual void Clear(int paper, int ink) = 0;
};

/// The start and the end of games.
class GameEvents {
  public:
    virtual ~GameEvents() = default;
    /// A game is about to start, or to start again: the input is closed and the pane of `look` shown.
    virtual void StartGame(const GameLook& look) = 0;
    /// The game has ended. A player's window offers to load another and closes the input; that of a test
    /// run goes back to the authoring tool.
    virtual void EndGame() = 0;
};

/// The line in which the player types.
class InputLine {
  public:
    virtual ~InputLine() = default;
    /// Shows what has been typed so far, and the cursor behind it, in place of what the last call showed.
    /// Called when the input opens (with nothing typed) and after each key.
    virtual void ShowInput(std::string_view typed, std::string_view cursor) = 0;
    /// The line has been entered: it stays on the screen without a cursor, and its line ends. Also called
    /// for a line that came whole, by script or through Engine::EnterLine, which no ShowInput showed.
    virtual void EndInput(std::string_view typed) = 0;
};

/// Where pictures are shown.
class PictureScreen {
  public:
    virtual ~PictureScreen() = default;
    virtual void ShowPicture(const Picture& picture) = 0;
    virtual void HidePicture() = 0;
};

/// What is told beside the text.
class StatusLine {
  public:
    virtual ~StatusLine() = default;
    virtual void ShowStatus(StatusField field, std::string_view text) = 0;
    /// Whether the script can be stepped by "Next".
    virtual void EnableNext(bool enabled) = 0;
};

/// The passing of time.
class GameTimers {
  public:
    virtual ~GameTimers() = default;
    /// Starts the time-out afresh: unless it is stopped or started again, Engine::TimeOutTick is due after
    /// it.
    virtual void StartTimeOut(std::chrono::milliseconds length) = 0;
    virtual void StopTimeOut() = 0;
    /// The game pauses: Engine::WaitTick is due after `length`. Until then the engine takes no keys.
    virtual void StartWait(std::chrono::milliseconds length) = 0;
};

class OriginSink;

/// The parts that a host has beside the text. What it lacks (nullptr) is neither shown nor timed.
struct WindowParts {
    GameEvents* events = nullptr;
    InputLine* input = nullptr;
    PictureScreen* pictures = nullptr;
    StatusLine* status = nullptr;
    GameTimers* timers = nullptr;
    OriginSink* origins = nullptr;           ///< who wants to know where texts come from (origin.h)
    const PaneMeasures* measures = nullptr;  ///< of the panes; nullptr: no line breaks
};

/// A window that is all of them.
class WholeWindow : public GameWindow,
                    public GameEvents,
                    public InputLine,
                    public PictureScreen,
                    public StatusLine,
                    public GameTimers {
  public:
    WindowParts Parts() { return {this, this, this, this, this}; }
};

}  // namespace fabula::engine
