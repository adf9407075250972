#include "authoring/settings/colour_screen.h"

#include <stdexcept>

#include "text/colours.h"

namespace fabula::authoring {

ColourScreen::ColourScreen(Purpose purpose, int current)
    : purpose_(purpose), current_(text::IsColour(current) ? current : 0) {}

std::string_view ColourScreen::Caption() const {
    return purpose_ == Purpose::Ink ? "Set Color for Ink" : "Set Color for Paper";
}

std::string ColourScreen::CurrentLine() const {
    return "Current Color is " + std::string(text::ColourName(current_)) + "\nClick the Color to Change";
}

void ColourScreen::Click(int colour) {
    if (!text::IsColour(colour)) throw std::invalid_argument("there is no such colour");
    current_ = colour;
}

}  // namespace fabula::authoring
