#include "pictures/drawstring_check.h"

#include <algorithm>
#include <array>
#include <span>

#include "pictures/drawing.h"
#include "pictures/drawstring.h"
#include "text/encoding/utf8.h"
#include "text/str_edit.h"

namespace fabula::pictures {
namespace {

constexpr int kNoLowerBound = -kLargestNumber;

/// A parameter code whose values are a plain range, and what is said, behind the value, of others.
struct RangeRule {
    std::string_view code;
    int lowest;
    int highest;
    std::string_view message;
    bool namesCommand;  ///< the command's word follows the message
};
constexpr std::string_view kRelativeX = " is an invalid relative X number for command ";
constexpr std::string_view kRelativeY = " is an invalid relative Y number for command ";
constexpr std::array kRangeRules = {
    RangeRule{"CX", 0, 31, " is an invalid Column number for command ", true},
    RangeRule{"HE", 0, 21, " is an invalid height for command ", true},
    // Two shades of 0 to 15 would reach 255. The limit is the language's own.
    RangeRule{"PA", 0, 225, " is an invalid pattern for command ", true},
    RangeRule{"QS", 1, 255, " is an invalid Marlo Shade (1-255)", false},
    RangeRule{"R1", -1, 1, " is an invalid value for RPLOT", false},
    RangeRule{"RO", 0, 21, " is an invalid row number for command ", true},
    RangeRule{"RX", -255, 255, kRelativeX, true},
    RangeRule{"RY", -175, 175, kRelativeY, true},
    RangeRule{"SH", 0, 15, " is an invalid shade (0-15)", false},
    RangeRule{"WI", 0, 31, " is an invalid width for command ", true},
    RangeRule{"XP", kNoLowerBound, 255, kRelativeX, true},
    RangeRule{"YP", kNoLowerBound, 175, kRelativeY, true},
};
constexpr std::array kOverAndInverse = {0, 1, 10, 11};

/// The words that may be typed while RPLOT is on.
constexpr std::array kDuringRPlot = {kBright, kFlash, kInk, kInverse, kOver, kPaper, kRPlot};

enum class CheckOf { WholeDrawstring, TypedCommand };

/// One parameter under check, and all that its check looks at.
struct Parameter {
    const PictureBook& book;
    CheckOf check;
    PictureKind kind;             ///< of the picture that is edited
    std::string_view command;     ///< the command's word, as written
    std::string_view lastAction;  ///< see ValidateDrawString
    std::string_view code;
    std::string_view text;      ///< the value, as written
    int value;                  ///< the same as a number
    std::string_view previous;  ///< the parameter before it, as written
    int previousValue;

    std::string Say(std::string_view message, std::string_view tail = "") const {
        return std::string(text).append(message).append(tail);
    }
    std::string_view NameInMessages() const {
        return check == CheckOf::TypedCommand ? command : lastAction;
    }
};

std::string CheckCharacter(const Parameter& p) {
    const CharacterSets& sets = p.book.characters;
    const bool typed = p.check == CheckOf::TypedCommand;
    if (sets.FindFirst(p.value) == nullptr) {
        return typed ? p.Say(" is an invalid character number")
                     : p.Say(" is an invalid character number for command ", p.command);
    }
    if (sets.Find(p.previousValue, p.value) == nullptr) {
        return p.Say(" is an invalid character number for set ", p.previous);
    }
    if (p.value < kFirstCharacter || p.value > kLastCharacter) {
        const std::string message = "Characters must be between " + std::to_string(kFirstCharacter) +
                                    " and " + std::to_string(kLastCharacter) + " inclusive";
        return typed ? message : message + " for command " + std::string(p.command);
    }
    return "";
}

std::string CheckPictureNumber(const Parameter& p) {
    const bool isLocation = p.check == CheckOf::TypedCommand && p.book.locations.contains(p.value);
    return isLocation || p.book.FindPicture(p.value) != nullptr ? "" : p.Say(" is an invalid location");
}

std::string CheckScale(const Parameter& p) {
    if (p.value < 0 || p.value > 7) return p.Say(" is an invalid scale (0-7)");
    if (p.value > 0 && p.kind == PictureKind::Subroutine)
        return "Cannot specifiy a scale>0 in a subroutine";
    return "";
}

/// The message that refuses the parameter, or an empty text. A code that is not known here refuses nothing.
std::string CheckParameter(const Parameter& p) {
    if (p.code == "CH") return CheckCharacter(p);
    if (p.code == "LO") return CheckPictureNumber(p);
    if (p.code == "SC") return CheckScale(p);
    if (p.code == "SE") {
        return p.book.characters.HasSet(p.value) ? "" : p.Say(" is an invalid number for Character Set");
    }
    if (p.code == "BO") {
        return p.value == 0 || p.value == 1
                   ? ""
                   : std::string(p.NameInMessages()) + " must have a value of 0 or 1";
    }
    if (p.code == "CO") {
        return p.value >= 0 && p.value <= kTransparent
                   ? ""
                   : p.Say(" is an invalid color for ", p.NameInMessages());
    }
    if (p.code == "IO") {
        const bool known = std::ranges::find(kOverAndInverse, p.value) != kOverAndInverse.end();
        return known ? "" : p.Say(" is an invalid Inverse/Over value for command ", p.command);
    }
    for (const RangeRule& rule : kRangeRules) {
        if (p.code != rule.code || (p.value >= rule.lowest && p.value <= rule.highest)) continue;
        return p.Say(rule.message, rule.namesCommand ? p.command : "");
    }
    return "";
}

std::string NonNumeric(std::string_view command) {
    return "Non-numeric parameter for " + std::string(command) + " command";
}

/// The first parameter of a command that is refused, by its place among them, and the message.
struct ParameterFault {
    std::string message;  ///< empty when all have passed
    std::size_t place = 0;
};

/// Checks the parameters of one command. `parameter` brings what is the same for all of them.
ParameterFault CheckParameters(Parameter parameter, const Command& command,
                               std::span<const std::string> words, std::span<const std::string> codes) {
    for (std::size_t i = 0; i < words.size(); ++i) {
        std::string_view text = words[i];
        const bool isScaleWord =
            parameter.check == CheckOf::WholeDrawstring && command.number == kGoSub && i == 0;
        if (isScaleWord) {
            if (!text::EqualsNoCase(text.substr(0, 3), "SC=")) {
                return {"First parameter for GOSUB must start with SC=", i};
            }
            text.remove_prefix(3);
        }
        const std::optional<int> value = ParameterValue(text);
        if (!value) return {NonNumeric(parameter.command), i};
        parameter.previous = parameter.text;
        parameter.previousValue = parameter.value;
        parameter.text = text;
        parameter.value = *value;
        parameter.code = codes[i];
        std::string fault = CheckParameter(parameter);
        if (!fault.empty()) return {std::move(fault), i};
    }
    return {};
}

Parameter ParametersOf(const PictureBook& book, CheckOf check, PictureKind kind, std::string_view command,
                       std::string_view lastAction) {
    return {book, check, kind, command, lastAction, "", "", 0, "", 0};
}

}  // namespace

DrawstringCheck ValidateDrawString(const PictureBook& book, std::string_view drawstring, PictureKind kind,
                                   std::string_view lastAction) {
    DrawstringCheck result{DrawstringWords(drawstring), ""};
    const std::vector<std::string>& words = result.words;
    if (words.empty()) {
        result.fault = "Invalid DrawString. Must have an END";
    } else if (words.back() != "END") {
        result.fault = "DrawString not terminated with END";
        result.faultAt = words.size();
        result.faultyCommand = words.size();
    }
    std::size_t i = 0;
    while (result.Passed() && i < words.size()) {
        const std::string& word = words[i];
        const Command* command = book.commands.Find(word);
        if (command == nullptr) {
            result.fault = "Invalid command: " + word;
            result.faultAt = i;
            result.faultyCommand = i;
            break;
        }
        // A command that lacks parameters takes END for one, which is no number.
        const auto count = static_cast<std::size_t>(command->drawnParameters);
        const auto parameters =
            std::span(words).subspan(i + 1).first(std::min(count, words.size() - i - 1));
        ParameterFault fault =
            CheckParameters(ParametersOf(book, CheckOf::WholeDrawstring, kind, word, lastAction), *command,
                            parameters, command->drawnCodes);
        result.fault = std::move(fault.message);
        result.faultAt = i + 1 + fault.place;
        result.faultyCommand = i;
        i += count + 1;
    }
    if (!result.Passed()) result.words.clear();
    return result;
}

TypedCommandCheck ValidateCommandLine(const PictureBook& book, std::string_view line, PictureKind kind,
                                      bool rplotOn) {
    std::vector<std::string> words = SplitAtBlanks(text::CompressText(text::TrimBlanks(line)));
    if (words.empty()) return {};
    const std::string word = words.front();
    words.erase(words.begin());

    const Command* command = book.commands.FindPictureCommand(word);
    if (command == nullptr) return {nullptr, {}, word + " is an invalid command"};
    const bool allowed = !rplotOn || std::ranges::find(kDuringRPlot, command->number) != kDuringRPlot.end();
    if (!allowed) return {nullptr, {}, "RPLOT is on. " + word + " is not allowed during RPLOT"};
    const auto wanted = static_cast<std::size_t>(command->typedParameters);
    if (words.size() != wanted) {
        const std::string amount = words.size() > wanted ? "many" : "few";
        return {nullptr,
                {},
                "Command has too " + amount + " parameters. It should have " + std::to_string(wanted)};
    }
    std::string fault = CheckParameters(ParametersOf(book, CheckOf::TypedCommand, kind, word, ""), *command,
                                        words, command->typedCodes)
                            .message;
    if (fault.empty() && command->number == kEnd) fault = "END is not allowed as a command";
    if (!fault.empty()) return {nullptr, {}, std::move(fault)};

    TypedCommandCheck result{command, {}, ""};
    for (const std::string& parameter : words) {
        result.parameters.push_back(*ParameterValue(parameter));
    }
    return result;
}

}  // namespace fabula::pictures
