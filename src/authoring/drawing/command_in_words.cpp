#include "authoring/drawing/command_in_words.h"

#include <optional>
#include <string_view>
#include <vector>

#include "pictures/command_catalogue.h"
#include "pictures/drawing.h"
#include "pictures/drawstring.h"
#include "text/colours.h"

namespace fabula::authoring {
namespace {

using Numbers = std::vector<int>;

std::string Text(int number) {
    return std::to_string(number);
}

/// "10 right, 20 down"
std::string Way(int dx, int dy) {
    std::string way;
    if (dx != 0) way = Text(std::abs(dx)) + (dx > 0 ? " right" : " left");
    if (dy == 0) return way;
    if (!way.empty()) way += ", ";
    return way + Text(std::abs(dy)) + (dy > 0 ? " up" : " down");
}

std::string Going(std::string_view what, int dx, int dy) {
    const std::string way = Way(dx, dy);
    return std::string(what) + (way.empty() ? " of one point" : " " + way);
}

std::string From(int dx, int dy) {
    const std::string way = Way(dx, dy);
    return way.empty() ? " from the cursor" : " from " + way;
}

/// What the parameter for over and inverse adds.
std::string Mode(int digits) {
    std::string mode;
    if (digits / 10 != 0) mode += ", over";
    if (digits % 10 != 0) mode += ", inverse";
    return mode;
}

std::string Colour(std::string_view what, int number) {
    const std::string name =
        number == pictures::kTransparent ? "transparent" : std::string(text::ColourName(number));
    return std::string(what) + " " + Text(number) + (name.empty() ? "" : ", " + name);
}

std::string Switch(std::string_view what, int on) {
    return std::string(what) + (on != 0 ? " on" : " off");
}

std::string Shades(int pattern) {
    const int first = pattern / 16;
    const int second = pattern % 16;
    return first == second ? "Shade " + Text(first) : "Shades " + Text(first) + " and " + Text(second);
}

std::string Cells(int count) {
    return Text(count) + (count == 1 ? " cell" : " cells");
}

struct Sentence {
    int number;
    std::size_t parameters;
    std::string (*say)(const Numbers& n);
};

constexpr Sentence kSentences[] = {
    {pictures::kAbsMove, 2, [](const Numbers& n) { return "Move to " + Text(n[0]) + ", " + Text(n[1]); }},
    {pictures::kPlot, 3,
     [](const Numbers& n) { return "Point at " + Text(n[1]) + ", " + Text(n[2]) + Mode(n[0]); }},
    {pictures::kRelMove, 2,
     [](const Numbers& n) {
         return n[0] == 0 && n[1] == 0 ? std::string("Stay here") : "Move " + Way(n[0], n[1]);
     }},
    {pictures::kLine, 3, [](const Numbers& n) { return Going("Line", n[1], n[2]) + Mode(n[0]); }},
    {pictures::kFill, 2, [](const Numbers& n) { return "Fill" + From(n[0], n[1]); }},
    {pictures::kShade, 4, [](const Numbers& n) { return Shades(n[3]) + From(n[1], n[2]) + Mode(n[0]); }},
    {pictures::kText, 5,
     [](const Numbers& n) {
         return "Character " + Text(n[2]) + " of set " + Text(n[1]) + " in column " + Text(n[3]) +
                ", row " + Text(n[4]) + Mode(n[0]);
     }},
    {pictures::kBlock, 4,
     [](const Numbers& n) {
         return "Block, " + Cells(n[1] + 1) + " wide and " + Text(n[0] + 1) + " high, at column " +
                Text(n[2]) + ", row " + Text(n[3]);
     }},
    {pictures::kInk, 1, [](const Numbers& n) { return Colour("Ink", n[0]); }},
    {pictures::kPaper, 1, [](const Numbers& n) { return Colour("Paper", n[0]); }},
    {pictures::kBright, 1, [](const Numbers& n) { return Switch("Bright", n[0]); }},
    {pictures::kFlash, 1, [](const Numbers& n) { return Switch("Flash", n[0]); }},
    {pictures::kGoSub, 2,
     [](const Numbers& n) {
         return "Draw picture " + Text(n[1]) + (n[0] > 0 ? ", " + Text(n[0]) + " eighths of its size" : "");
     }},
    {pictures::kQShade, 4,
     [](const Numbers& n) {
         return "Shade " + Text(n[3]) + " by columns" + From(n[1], n[2]) + Mode(n[0]);
     }},
    {pictures::kBShade, 4,
     [](const Numbers& n) {
         return "Shade " + Text(n[3]) + " by columns" + From(n[1], n[2]) + Mode(n[0]);
     }},
    {pictures::kRPlot, 3, [](const Numbers& n) { return Going("Point", n[1], n[2]) + Mode(n[0]); }},
    {pictures::kQFill, 2, [](const Numbers& n) { return "Fill every corner" + From(n[0], n[1]); }},
    {pictures::kEnd, 0, [](const Numbers&) { return std::string("End"); }},
};

std::optional<int> NumberOf(std::string_view word) {
    const std::size_t equals = word.find('=');
    return pictures::ParameterValue(equals == std::string_view::npos ? word : word.substr(equals + 1));
}

}  // namespace

std::string CommandInWords(int number, std::span<const std::string> parameters) {
    Numbers numbers;
    for (const std::string& word : parameters) {
        const std::optional<int> value = NumberOf(word);
        if (!value) return "";
        numbers.push_back(*value);
    }
    for (const Sentence& sentence : kSentences) {
        if (sentence.number == number && sentence.parameters == numbers.size())
            return sentence.say(numbers);
    }
    return "";
}

}  // namespace fabula::authoring
