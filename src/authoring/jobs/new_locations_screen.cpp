#include "authoring/jobs/new_locations_screen.h"

#include <utility>

#include "authoring/document/screen_context.h"

namespace fabula::authoring {

NewLocationsScreen::NewLocationsScreen(Document& document, interchange::LoadedPictures loaded,
                                       platform::Person& person)
    : document_(document), loaded_(std::move(loaded)), person_(person) {
    for (const int number : interchange::NumbersToPlace(loaded_)) {
        Line line{number, false, ""};
        for (const interchange::LoadedPicture& picture : loaded_.pictures) {
            if (picture.source == number) line = {number, true, std::to_string(picture.record)};
        }
        lines.push_back(line);
    }
}

bool NewLocationsScreen::Update() {
    interchange::NewLocations places;
    for (const Line& line : lines)
        places[line.number] = line.goesTo;
    const std::string fault = interchange::CheckNewLocations(loaded_, places, document_.Adventure());
    if (!fault.empty()) return Refuse(person_, fault);
    Change change(document_, Change::WithLatest{});
    interchange::MoveToNewLocations(loaded_, places, document_.Adventure());
    change.Commit();
    return true;
}

}  // namespace fabula::authoring
