#include "terminal/attributes.h"

#include "text/colours.h"

namespace fabula::terminal {
namespace {

/// The colours 0 to 7 in the numbers of ANSI, in which red and blue change places.
constexpr int kAnsiColours[8] = {0, 4, 1, 5, 2, 6, 3, 7};

constexpr int kInkCode = 30;
constexpr int kPaperCode = 40;
constexpr int kBrightCode = 60;  ///< added for the colours 8 to 15

bool MayBeABackground(int colour) {
    return (colour & 7) == 0 || (colour & 7) == 7;
}

std::int8_t Known(int colour) {
    return colour >= 0 && colour <= text::kHighestColour ? static_cast<std::int8_t>(colour)
                                                         : Attributes::kOwn;
}

void AppendColour(int colour, int code, std::string& text) {
    if (colour == Attributes::kOwn) return;
    text += ';';
    text += std::to_string(code + kAnsiColours[colour & 7] +
                           (colour >= text::kFirstBrightColour ? kBrightCode : 0));
}

}  // namespace

Attributes AttributesOf(const engine::TextStyle& style, const engine::TextStyle& atStart) {
    Attributes result;
    if (style.ink != atStart.ink) result.ink = Known(style.ink);
    if (style.paper != atStart.paper) result.paper = Known(style.paper);
    if (result.ink != Attributes::kOwn && MayBeABackground(result.ink)) result.paper = Known(style.paper);
    if (result.paper != Attributes::kOwn) result.ink = Known(style.ink);
    result.bold = style.bright;
    result.blinking = style.flash;
    result.inverse = style.inverse;
    return result;
}

void AppendAnsi(const Attributes& attributes, std::string& text) {
    text += "\x1B[0";
    if (attributes.bold) text += ";1";
    if (attributes.blinking) text += ";5";
    if (attributes.inverse) text += ";7";
    AppendColour(attributes.ink, kInkCode, text);
    AppendColour(attributes.paper, kPaperCode, text);
    text += 'm';
}

}  // namespace fabula::terminal
