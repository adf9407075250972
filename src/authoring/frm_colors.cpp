#include "authoring/frm_colors.h"

#include <stdexcept>

#include "text/colours.h"

namespace fabula::authoring {
namespace {

bool IsColor(int number) {
    return number >= 0 && number < frmColors::kColors;
}

}  // namespace

frmColors::frmColors(Purpose purpose, int current)
    : purpose_(purpose), current_(IsColor(current) ? current : 0) {}

std::string_view frmColors::Caption() const {
    return purpose_ == Purpose::Ink ? "Set Color for Ink" : "Set Color for Paper";
}

std::string frmColors::CurrentLine() const {
    return "Current Color is " + std::string(text::ColorName(current_)) + "\nClick the Color to Change";
}

void frmColors::Click(int color) {
    if (!IsColor(color)) throw std::invalid_argument("there is no such colour");
    current_ = color;
}

}  // namespace fabula::authoring
