#include "interchange/listing/picture_listing.h"

#include "condacts/limits.h"
#include "interchange/listing/listing_lines.h"
#include "interchange/shared/source_file.h"
#include "pictures/drawstring.h"
#include "pictures/picture_book.h"
#include "text/encoding/utf8.h"
#include "text/str_edit.h"

namespace fabula::interchange {
namespace {

using pictures::Command;

constexpr std::string_view kPlaceHeading = "Location";
constexpr std::string_view kFlag = "graphics flag";
constexpr std::size_t kAddressLength = 5;

struct ListedName {
    std::string_view listed;
    std::string_view name;
};
/// Names of listings that the drawing language calls otherwise; two words count as one.
constexpr ListedName kNames[] = {
    {"ABS MOVE", "ABSMOVE"},
    {"REL MOVE", "RELMOVE"},
    {"AMOVE", "ABSMOVE"},
    {"MOVE", "RELMOVE"},
};
constexpr ListedName kQuickNames[] = {{"FILL", "QFILL"}, {"SHADE", "QSHADE"}};

/// The number behind "name=".
std::optional<int> Assigned(std::string_view line, std::string_view name) {
    const std::size_t at = line.find(std::string(name) + "=");
    if (at == std::string_view::npos) return std::nullopt;
    const auto words = SplitWords(line.substr(at + name.size() + 1));
    return words.empty() ? std::nullopt : pictures::ParameterValue(words[0]);
}

std::optional<int> Colour(std::optional<int> number) {
    if (number && (*number < pictures::kColourOfTheAdventure || *number > condacts::limit::kHighestColour))
        return std::nullopt;
    return number;
}

bool IsFlags(std::string_view word) {
    return word.find_first_not_of("oiq") == std::string_view::npos;
}

std::string Renamed(std::string_view name, std::span<const ListedName> names) {
    for (const ListedName& entry : names) {
        if (entry.listed == name) return std::string(entry.name);
    }
    return std::string(name);
}

/// Whether the word may stand in a drawstring: some words are the editor's alone.
bool IsDrawn(const Command& command) {
    return command.drawnParameters > 0 || command.number == pictures::kEnd;
}

/// A command of a listing taken to pieces.
struct Pieces {
    std::string name;
    std::string flags;
    std::vector<std::string_view> parameters;
};

Pieces TakeToPieces(std::vector<std::string_view> words) {
    Pieces pieces;
    pieces.name = text::UpperCase(words[0]);
    std::size_t next = 1;
    if (words.size() > 1 && text::EqualsNoCase(words[1], "MOVE")) {
        pieces.name += " MOVE";
        next = 2;
    }
    for (; next < words.size() && IsFlags(words[next]); ++next)
        pieces.flags += words[next];
    pieces.parameters.assign(words.begin() + static_cast<std::ptrdiff_t>(next), words.end());
    pieces.name = Renamed(pieces.name, kNames);
    if (pieces.flags.find('q') != std::string::npos) pieces.name = Renamed(pieces.name, kQuickNames);
    return pieces;
}

/// One parameter in the form of drawstrings; nothing when it is none.
std::optional<std::string> ListedParameter(std::string_view word, std::string_view code) {
    std::string_view prefix;
    if (code == "SC") {
        prefix = "sc=";
        if (!text::EqualsNoCase(word.substr(0, prefix.size()), prefix)) return std::nullopt;
        word.remove_prefix(prefix.size());
    }
    const std::optional<int> number = pictures::ParameterValue(word);
    if (!number) return std::nullopt;
    return std::string(prefix) + std::to_string(*number);
}

}  // namespace

std::optional<PictureHead> PictureHead::Read(std::string_view line) {
    const std::size_t flag = line.find(kFlag);
    const std::size_t place = line.find(kPlaceHeading);
    if (flag == std::string_view::npos || place > flag) return std::nullopt;
    PictureHead head;
    const auto before =
        SplitWords(line.substr(place + kPlaceHeading.size(), flag - place - kPlaceHeading.size()));
    if (!before.empty()) head.number = ListedNumber(before[0], condacts::limit::kHighestRecord);
    const std::size_t colon = line.find(':', flag);
    if (colon == std::string_view::npos) return head;
    line.remove_prefix(colon + 1);
    const auto words = SplitWords(line);
    head.isSubroutine = !words.empty() && words[0] == "Not";
    if (const auto number = Assigned(line, kPlaceHeading);
        number && *number >= 0 && *number <= condacts::limit::kHighestRecord)
        head.number = number;
    head.ink = Colour(Assigned(line, "Ink"));
    head.paper = Colour(Assigned(line, "Paper"));
    return head;
}

std::string NoColoursMessage(int picture) {
    return "No Ink or Paper found for graphic record " + std::to_string(picture);
}

ListedCommand TranslateCommand(std::string_view line, const pictures::CommandCatalogue& commands) {
    if (line.size() >= kAddressLength && line[kAddressLength - 1] == ':')
        line.remove_prefix(kAddressLength);
    const auto words = SplitWords(line);
    if (words.empty()) return {};
    const Pieces pieces = TakeToPieces(words);
    const Command* command = commands.FindPictureCommand(pieces.name);
    if (command == nullptr || !IsDrawn(*command))
        return {"", "Command " + std::string(text::Left(pieces.name, 30)) + " not found in Command Table"};
    ListedCommand result{command->name, "", command->number == pictures::kEnd};
    std::size_t code = 0;
    if (command->drawnCodes[0] == "IO") {
        const bool over = pieces.flags.find('o') != std::string::npos;
        const bool inverse = pieces.flags.find('i') != std::string::npos;
        result.words += " " + std::to_string((over ? 10 : 0) + (inverse ? 1 : 0));
        code = 1;
    }
    const std::size_t wanted = static_cast<std::size_t>(command->drawnParameters) - code;
    bool fits = pieces.parameters.size() == wanted;
    for (std::size_t i = 0; fits && i < wanted; ++i) {
        const auto parameter = ListedParameter(pieces.parameters[i], command->drawnCodes[code + i]);
        fits = parameter.has_value();
        if (fits) result.words += " " + *parameter;
    }
    if (!fits) return {"", "ERROR: The parameters of " + command->name + " can't be understood."};
    return result;
}

void StorePicture(KeyedTable& pictures, const ListedPicture& picture) {
    std::string drawstring = text::StrEdit(picture.drawstring, "compress,Trim");
    if (drawstring != "END" && !drawstring.ends_with(" END"))
        drawstring += drawstring.empty() ? "END" : " END";
    store::Cursor& record = pictures.GoToOrAdd(picture.number);
    record.SetField("loctype", std::string(picture.isSubroutine ? "Subroutine" : "Picture"));
    record.SetField("locpaper", std::int64_t{picture.paper});
    record.SetField("locink", std::int64_t{picture.ink});
    record.SetField("drawstring", drawstring);
    record.SetField("picname", std::string());
    record.SetField("roompicnum", std::int64_t{picture.isSubroutine ? pictures::kNoRoom : picture.number});
    pictures.Update();
}

}  // namespace fabula::interchange
