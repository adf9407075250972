#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "authoring/controls.h"
#include "authoring/record_screen.h"
#include "condacts/words.h"

namespace fabula::authoring {

/// One exit of the line `txtExits` as a row.
struct ExitRow {
    std::string word;
    std::string location;  ///< a number, or what stands in its place; "" where the line ends with a word
    std::string name;      ///< of the location; "" when there is none. Not read back.

    friend bool operator==(const ExitRow&, const ExitRow&) = default;
};

/// A location with an exit that leads here.
struct Neighbour {
    int location = 0;
    std::string name;
    std::string word;

    friend bool operator==(const Neighbour&, const Neighbour&) = default;
};

/// The screen of a location.
class frmVelLocation : public RecordScreen {
  public:
    frmVelLocation(Session& session, ScreenKey key);

    std::string txtDEscription;  ///< with "\n" for line ends
    std::string txtShortDesc;
    std::string txtExits;    ///< "NORTH 5 SOUTH 7"
    ComboBox cboExit;        ///< the movement words
    ComboBox cboLoc;         ///< the locations; `text` is a number
    std::string txtPicture;  ///< the picture's path, as stored; "" for none

    bool LeaveTxtDEscription();
    bool LeaveTxtShortDesc();
    bool LeaveTxtExits();
    bool LeaveCboLoc();

    /// Adds the exit of `cboExit` and `cboLoc` to the line, and empties both.
    bool cmdAdd();
    void cmdGetPic();
    void cmdClearPic() { txtPicture.clear(); }

    /// The exits as rows, faulty ones too. Rows are put back into the line as they stand; one without a
    /// word or a location is left out.
    std::vector<ExitRow> Exits() const;
    void SetExits(const std::vector<ExitRow>& rows);

    /// The locations from which an exit leads here, by number.
    const std::vector<Neighbour>& LeadsHere() const { return leadsHere_; }

    /// True when the screen can close: what was changed is stored, an exit that was not added yet too.
    bool cmdUpdate();

    static constexpr std::string_view kPictureTitle = "Load Room Picture";
    static constexpr std::size_t kLongestShortDesc = 255;

  private:
    struct Exit {
        const condacts::Word* word;  ///< the first of its number
        int location;
    };

    void ReadRecord();
    void ReadNeighbours();
    bool HasPendingExit() const;
    bool Exists(int location) const;
    bool CheckLocation(std::string_view control, std::string_view number, std::string_view word);
    bool CheckExit(std::string_view control, std::string_view word, std::string_view location);
    std::vector<Exit> ParsedExits() const;
    std::vector<std::string> Typed() const;
    void StoreExits(store::Cursor& record) const;
    void StorePicture(store::Cursor& record) const;

    condacts::WordIndex words_;
    std::vector<Neighbour> leadsHere_;
    std::vector<std::string> opened_;  ///< what `Typed` gave at first
};

}  // namespace fabula::authoring
