#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "authoring/fields/controls.h"
#include "authoring/fields/named_record.h"
#include "authoring/screens/record_screen.h"
#include "condacts/numbers.h"
#include "condacts/words.h"
#include "store/schema/schema.h"

namespace fabula::authoring {

/// One exit of the line `exits` as a row.
struct ExitRow {
    std::string word;
    std::string location;  ///< a number, or what stands in its place; "" where the line ends with a word
    std::string name;      ///< of the location; "" when there is none. Not read back.

    friend bool operator==(const ExitRow&, const ExitRow&) = default;
};

/// A location with an exit that leads here.
struct Neighbour {
    condacts::PlaceNumber location;
    std::string name;
    std::string word;

    friend bool operator==(const Neighbour&, const Neighbour&) = default;
};

/// The screen of a location.
class LocationScreen final : public RecordScreen {
  public:
    LocationScreen(ScreenContext& context, ScreenKey key);
    /// Goes on to another record. For a screen in which nothing was typed, while the adventure is as it was
    /// when the screen was made. Throws Error when the record is not there.
    void GoTo(int key);

    std::string description;  ///< with "\n" for line ends
    std::string shortDescription;
    std::string exits;    ///< "NORTH 5 SOUTH 7"
    ComboBox exitWord;    ///< the movement words
    ComboBox exitPlace;   ///< the locations; `text` is a number
    std::string picture;  ///< the picture's path, as stored; "" for none

    bool LeaveDescription();
    bool LeaveShortDescription();
    bool LeaveExits();
    bool LeaveExitPlace();

    /// Whether the exits that `Add` adds get their way back in the other location, where there is a word
    /// for it and no exit by that word yet. What was chosen last holds for all locations.
    bool AndBack() const { return context_.exitsGoBack; }
    void SetAndBack(bool on) { context_.exitsGoBack = on; }

    /// Adds the exit of `exitWord` and `exitPlace` to the line, and empties both. The place may be given by
    /// its name; one that does not exist is made when the screen is stored. Both may be typed as the word:
    /// "NORTH The attic".
    bool Add();
    /// What becomes of the exit that is typed, or what is wrong with it: "Makes location 4, “The attic”,
    /// with SOUTH back to here". "" until a place is typed.
    std::string WhatAddDoes() const;
    void ChoosePicture();
    void ClearPicture() { picture.clear(); }

    /// The exits as rows, faulty ones too. Rows are put back into the line as they stand; one without a
    /// word or a location is left out.
    std::vector<ExitRow> Exits() const;
    void SetExits(const std::vector<ExitRow>& rows);

    /// The locations from which an exit leads here, by number.
    const std::vector<Neighbour>& LeadsHere() const { return leadsHere_; }

    /// The record of a movement word, and of the word or the location at a place of `exits`, in bytes.
    std::optional<NamedRecord> NamedWordOf(std::string_view word) const;
    std::optional<NamedRecord> NamedInExits(std::size_t cursor) const;

    static constexpr std::string_view kPictureTitle = "Load Room Picture";
    static constexpr std::size_t kLongestShortDesc = store::kDefaultTextSize;

  protected:
    bool FieldsChanged() const override { return Typed() != opened_ || HasPendingExit(); }
    /// True when the screen can close: what was changed is stored, an exit that was not added yet too.
    bool UpdateFields() override;

  private:
    void ReadRecord();
    struct Exit {
        const condacts::Word* word;  ///< the first of its number
        condacts::PlaceNumber location;
    };
    struct TypedExit {
        std::string word;
        std::string place;
    };
    /// What is meant by a place that is typed.
    struct MeantPlace {
        condacts::PlaceNumber number{-1};  ///< of a location that need not exist
        bool isNew = false;                ///< Update makes it
        std::string fault = {};
    };

    void ReadNeighbours();
    bool HasPendingExit() const;
    TypedExit SplitTypedExit() const;
    bool IsNewPlace(condacts::PlaceNumber location) const;
    MeantPlace PlaceMeantBy(const std::string& typed) const;
    bool TakePlaceByName(const std::string& word);
    const condacts::Word* OppositeOf(std::string_view word) const;
    std::optional<condacts::PlaceNumber> ExitOf(condacts::PlaceNumber location,
                                                condacts::WordNumber word) const;
    void NoteWayBack(const std::string& word);
    std::string WhatOfWayBack(const std::string& word, condacts::PlaceNumber location) const;
    void StoreNewPlaces(std::vector<std::string>& made);
    void StoreWaysBack(std::vector<std::string>& made);
    /// The location in the screen.
    condacts::PlaceNumber Here() const { return condacts::PlaceNumber(Key().key); }
    bool Exists(condacts::PlaceNumber location) const;
    std::string FaultOfWord(std::string_view word) const;
    std::string FaultOfLocation(std::string_view number, std::string_view word) const;
    bool CheckLocation(std::string_view control, std::string_view number, std::string_view word);
    bool CheckExit(std::string_view control, std::string_view word, std::string_view location);
    std::vector<Exit> ParsedExits() const;
    std::vector<std::string> Typed() const;
    void StoreExits(store::Cursor& record) const;
    void StorePicture(store::Cursor& record) const;

    condacts::WordIndex words_;
    /// An exit that is to get its way back, by the number of the word there.
    struct WayBack {
        condacts::WordNumber word;
        condacts::PlaceNumber location;
        condacts::WordNumber wordBack;
    };

    std::vector<Neighbour> leadsHere_;
    std::vector<ListItem> newPlaces_;  ///< to be made, as far as an exit leads there
    std::vector<WayBack> waysBack_;
    std::vector<std::string> opened_;  ///< what `Typed` gave at first
};

}  // namespace fabula::authoring
