#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "authoring/screens/record_screen.h"
#include "pictures/cell_image.h"
#include "pictures/cells.h"
#include "pictures/picture_book.h"
#include "pictures/stepped_drawing.h"

namespace fabula::authoring {

/// The keys that move the key cursor and step through the picture.
enum class DrawingKey { Right, Left, Up, Down, Home, End, Insert, Delete, PageUp, PageDown };

/// The guide line from the drawing cursor to the key cursor, in the planes' coordinates.
struct RubberLine {
    pictures::PlanePoint start;
    pictures::PlanePoint end;

    friend bool operator==(const RubberLine&, const RubberLine&) = default;
};

/// What is wrong with a drawstring: the message of the check, and the indices of the word at fault and of
/// the word of its command; where END is missing, the number of words.
struct DrawstringFault {
    std::string message;
    std::size_t word = 0;
    std::size_t command = 0;
};

/// Edits one picture: draws each command that is typed and puts it into the drawstring at the position,
/// steps through the commands forwards and backwards, and takes a drawstring that was typed as a whole.
///
/// The planes always hold what the commands in front of the position draw, and nothing else: the guide line
/// and the grid are told beside them. Coordinates are those of the drawing language unless said otherwise.
/// What is refused is told, and changes nothing.
class PictureEditor final : public RecordScreen {
  public:
    PictureEditor(ScreenContext& context, ScreenKey key);

    // --- The controls ---

    std::string commandLine;
    std::string drawstring;  ///< all of it, as shown and perhaps edited
    bool saveAsRoomPicture = false;
    std::string roomNumber;
    std::string fileName;  ///< of the bitmap, relative to the game's folder; "" for none

    /// The picture's number and what it is: "12: Location The hall".
    const std::string& LocationLine() const { return locationLine_; }
    /// Attributes, cursor, defaults and the next command, in lines.
    std::string Status() const;

    /// Called before the whole picture is drawn for saving, with what to say meanwhile.
    std::function<void(std::string_view text)> saying = [](std::string_view) {};

    // --- The command line ---

    bool LeaveCommandLine();
    /// Does what is typed there and empties it. False when it was refused.
    bool RunCommandLine();
    /// The same for a command that was put together otherwise, by a button.
    bool Run(std::string_view line);

    // --- The cursor ---

    /// A key on the command line or the canvas; with `shift` by eight pixels instead of one.
    void PressKey(DrawingKey key, bool shift);
    /// A click: the key cursor goes there. Not while RPLOT is on, when it moves by steps only.
    void PointAt(pictures::Point point);
    /// The pointer is dragged there: the same, but while RPLOT is on the cursor goes there step by step.
    void DragTo(pictures::Point point);
    pictures::Point KeyCursor() const { return cursor_; }
    std::optional<RubberLine> Guide() const;

    // --- The drawstring ---

    const std::vector<std::string>& Words() const { return words_; }
    /// The index of the word before which the next command is put.
    std::size_t Position() const { return position_; }
    /// The indices of the words with which commands begin, that of the last word not among them.
    const std::vector<std::size_t>& Commands() const { return starts_; }
    /// The command at an index of Commands, and what it does: "LINE 0 10 -20", "Line 10 right, 20 down".
    std::string CommandText(std::size_t command) const;
    std::string CommandInWords(std::size_t command) const;
    const std::optional<DrawstringFault>& Fault() const { return fault_; }

    /// Takes what was typed as drawstring, when it passes the check. The position stays when a command
    /// still begins there, and otherwise goes to the last one before.
    bool LeaveDrawstring();
    /// Puts another command, typed with all its numbers, in the place of one. A position behind it stays
    /// behind the same commands.
    bool ChangeCommand(std::size_t command, std::string_view text);
    /// Goes behind so many commands.
    bool GoBehind(std::size_t commands);
    /// How many commands lie in front of the position.
    std::size_t CommandsDrawn() const;
    /// The pixels that the command in front of the position has changed, in rows from the top; empty at the
    /// start.
    std::vector<bool> PixelsOfLastCommand() const;

    bool CanUndo() const { return !done_.empty(); }
    bool CanRedo() const { return !undone_.empty(); }
    void Undo();
    void Redo();

    // --- The planes ---

    const pictures::Canvas& Planes() const { return steps_.Planes(); }
    const pictures::DrawingState& State() const { return steps_.State(); }
    bool Inverse() const { return inverse_; }
    bool Over() const { return over_; }
    bool RPlotOn() const { return rplotOn_; }
    bool GridOn() const { return gridOn_; }
    /// Cells in two colours by turns, to be laid over the picture.
    const pictures::Plane& Grid() const { return grid_; }
    const pictures::PictureBook& Book() const { return book_; }
    /// The picture's default colours, kColourOfTheAdventure included, and its kind.
    const pictures::Picture& Defaults() const { return picture_; }

    // --- Saving ---

    /// Asks for the bitmap's file.
    bool Browse();
    bool LeaveRoomNumber();

    /// Takes an image for the picture: as a drawstring that draws it, or as the bitmap that Update saves.
    void TakeImage(const pictures::CellImage& image, bool asDrawstring);
    /// The image that Update saves in place of what is drawn; nullopt for none.
    const std::optional<pictures::CellImage>& TakenImage() const { return image_; }

  protected:
    /// The text, its colours, or what is to be saved of it.
    bool FieldsChanged() const override;
    /// Checks everything, stores the drawstring, and saves the bitmap when it has a name.
    bool UpdateFields() override;

  private:
    /// All that an operation may change besides the words.
    struct Settings {
        std::size_t position = 0;
        pictures::Point cursor;
        bool inverse = false;
        bool over = false;
        int ink = 0;  ///< the picture's default colours
        int paper = 0;

        friend bool operator==(const Settings&, const Settings&) = default;
    };
    /// An operation that can be taken back: words that were exchanged for others.
    struct Edit {
        std::size_t at = 0;
        std::vector<std::string> removed;
        std::vector<std::string> added;
        Settings before;
        Settings after;
    };
    enum class KeyCursorGoes { Nowhere, WithTheDrawing };
    struct Routine;

    void Load();
    std::string LineOfLocation();
    std::string DefaultText(int number) const;
    std::vector<std::string> Typed() const;

    void WordsChanged(bool checked);
    void FindFault();
    std::size_t EndPosition() const;
    std::size_t Behind(std::size_t start) const;
    std::vector<std::string> CommandAt(std::size_t start) const;

    Settings Now() const;
    void GoBackTo(const Settings& settings);
    void Exchange(std::size_t at, std::size_t count, const std::vector<std::string>& added, bool checked);
    bool Do(Edit edit, std::size_t position, KeyCursorGoes goes, bool checked);
    bool DoAttribute(bool& attribute, bool value);
    bool AddToDrawstring(std::vector<std::string> words, KeyCursorGoes goes = KeyCursorGoes::Nowhere);
    bool DrawUpTo(std::size_t position);
    void FollowDrawing();
    bool Draw(std::size_t position);

    std::string Digits() const;
    std::vector<std::string> Distance() const;

    bool CommAbsMove();
    bool CommPlot();
    bool CommRelMove();
    bool CommLine();
    bool CommFill(std::string_view word);
    bool CommShade(int first, int second);
    bool CommQShade(std::string_view word, int shade);
    bool CommText(int set, int character);
    bool CommBlock();
    bool CommAttribute(std::string_view word, int number);
    bool CommGoSub(int scale, int picture);
    bool CommStart();
    bool CommNext();
    bool CommPrev();
    bool CommDelete();
    bool CommDelNext();
    bool CommGrid();
    bool CommClear();
    bool CommDefault(int pictures::Picture::*colour, std::string_view name, int number);
    bool CommRedraw();
    bool CommRPlot();
    bool RPlotPlot(int dx, int dy);

    bool PictureIsGood();
    void DoUpdate(bool saveBitmap);
    void StorePicture();
    void StoreRoom();
    void SaveBitmap();
    std::filesystem::path BitmapFile() const;

    pictures::PictureBook book_;
    pictures::Picture picture_;
    std::string kind_;  ///< `loctype`
    std::string locationLine_;
    std::vector<std::string> opened_;  ///< what Typed gave when the editor opened
    pictures::SteppedDrawing steps_{book_};
    pictures::Plane grid_;
    std::vector<std::string> words_;
    std::vector<std::size_t> starts_;
    std::optional<DrawstringFault> fault_;
    std::size_t position_ = 0;
    pictures::Point cursor_;
    bool inverse_ = false;
    bool over_ = false;
    bool rplotOn_ = false;
    bool gridOn_ = false;
    std::vector<Edit> done_;
    std::vector<Edit> undone_;
    std::optional<pictures::CellImage> image_;
};

}  // namespace fabula::authoring
