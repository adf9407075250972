#include "engine/actions/describe.h"

#include "engine/actions/auto_flags.h"
#include "engine/actions/print_actions.h"
#include "engine/game.h"
#include "text/str_edit.h"

namespace fabula::engine {

namespace {

constexpr int kLongTextBit = 7;
constexpr int kNoPictureBit = 6;
constexpr int kAlwaysPictureBit = 5;

bool PictureIsHeldBack(const Game& game, PlaceNumber location) {
    const int mode = game.Flag(game.IsMarlo() ? flag::kMarloGraphicsMode : flag::kGraphicsMode);
    if (BitSet(mode, kNoPictureBit)) return true;
    if (BitSet(mode, kAlwaysPictureBit) || BitSet(mode, kLongTextBit)) return false;
    return game.state.Visited(location) != 0;
}

}  // namespace

void Describe(Game& game) {
    const PlaceNumber location = game.Location();
    if (game.trace.On()) {
        game.parts.status.ShowStatus(StatusField::Location, "Location: " + std::to_string(location.value));
    }
    if (game.Flag(flag::kDescribe) == 0) return;
    if (!game.data.LocationExists(location)) FailMissing("location", location.value);
    DoAutoFlags(game, true);
    if (game.Flag(flag::kClearMode) != 0) game.printer.Clear();
    if (game.Flag(flag::kDark) != 0 && !game.LightIsPresent()) {
        game.printer.PrintText(game.texts.SystemMessage(message::kDark), true, true, TextRole::Game,
                               TextRecord::Of(message::kDark));
        ShowRoomPicture(game, game.data.LastLocation());
        return;
    }
    ShowRoomPicture(game, location);
    DescribeLocation(game, location);
    game.state.SetVisited(location, 1);
    if (game.IsMarlo()) ListObj(game);
}

void DescribeLocation(Game& game, PlaceNumber location) {
    const bool wantsLong = game.state.Visited(location) == 0 ||
                           game.state.FlagBitSet(flag::kGraphicsMode, kLongTextBit) ||
                           game.Flag(flag::kLongText) != 0;
    TextRecord record{TextRecord::Kind::ShortLocation, location.value};
    std::string_view text;
    if (!wantsLong) text = game.texts.ShortLocation(location);
    if (text::TrimBlanks(text).empty()) {
        text = game.texts.Location(location);
        record = TextRecord::Of(location);
    }
    game.printer.PrintText(text, true, true, TextRole::Game, record);
}

void ShowRoomPicture(Game& game, PlaceNumber location) {
    if (!game.data.graphics) return;
    if (PictureIsHeldBack(game, location)) return game.parts.pictures.HidePicture();
    ShowPictureOf(game, location);
}

void ShowPictureOf(Game& game, PlaceNumber location) {
    if (!game.data.graphics) return;
    const std::string& own = game.data.pictures.at(static_cast<std::size_t>(location.value));
    const bool isLast = location == game.data.LastLocation();
    if (!own.empty() && !(isLast && own == game.data.defaultPicture)) {
        game.parts.pictures.ShowPicture({own, location});
    } else if (!game.data.defaultPicture.empty()) {
        game.parts.pictures.ShowPicture({game.data.defaultPicture, Picture::kOfTheGame});
    } else {
        game.parts.pictures.HidePicture();
    }
}

}  // namespace fabula::engine
