#include "player/panes/text_colours.h"

#include <algorithm>
#include <cmath>

namespace fabula::player {

namespace {

constexpr text::Rgb kLightBase{252, 252, 250};
constexpr text::Rgb kLightText{29, 31, 33};
constexpr text::Rgb kDarkBase{30, 31, 34};
constexpr text::Rgb kDarkText{222, 224, 227};
constexpr text::Rgb kBlack{0, 0, 0};
constexpr text::Rgb kWhite{255, 255, 255};

double Linear(std::uint8_t channel) {
    const double value = channel / 255.0;
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

double Luminance(text::Rgb colour) {
    return 0.2126 * Linear(colour.red) + 0.7152 * Linear(colour.green) + 0.0722 * Linear(colour.blue);
}

text::Rgb Mix(text::Rgb from, text::Rgb to, double share) {
    const auto channel = [share](std::uint8_t a, std::uint8_t b) {
        return static_cast<std::uint8_t>(std::lround(a + (b - a) * share));
    };
    return {channel(from.red, to.red), channel(from.green, to.green), channel(from.blue, to.blue)};
}

text::Rgb Readable(text::Rgb ink, text::Rgb paper) {
    const text::Rgb end = Contrast(kBlack, paper) > Contrast(kWhite, paper) ? kBlack : kWhite;
    for (int tenths = 0; tenths < 10; ++tenths) {
        const text::Rgb mixed = Mix(ink, end, tenths / 10.0);
        if (Contrast(mixed, paper) >= kReadable) return mixed;
    }
    return end;
}

}  // namespace

double Contrast(text::Rgb a, text::Rgb b) {
    const auto [dark, light] = std::minmax({Luminance(a), Luminance(b)});
    return (light + 0.05) / (dark + 0.05);
}

text::Rgb TextColours::Base() const {
    switch (page_) {
        case Page::Light:
            return kLightBase;
        case Page::Dark:
            return kDarkBase;
        case Page::OfTheGame:
            break;
    }
    return text::ColourRGB(paper_);
}

text::Rgb TextColours::Text() const {
    switch (page_) {
        case Page::Light:
            return kLightText;
        case Page::Dark:
            return kDarkText;
        case Page::OfTheGame:
            break;
    }
    return text::ColourRGB(ink_);
}

TextColours::Run TextColours::Of(const engine::TextStyle& style) const {
    text::Rgb ink = style.ink == ink_ ? Text() : text::ColourRGB(style.ink);
    text::Rgb paper = style.paper == paper_ ? Base() : text::ColourRGB(style.paper);
    if (style.inverse) std::swap(ink, paper);
    if (page_ != Page::OfTheGame) ink = Readable(ink, paper);
    if (paper == Base()) return {ink, std::nullopt};
    return {ink, paper};
}

}  // namespace fabula::player
