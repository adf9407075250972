#pragma once

#include <array>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace fabula::pictures {

/// One word of the drawing language or of the picture and character editors, a row of the table `Commands`.
struct Command {
    int number = 0;           ///< `conum`, by which the program dispatches
    std::string name;         ///< `coname`, in capitals
    int typedParameters = 0;  ///< `cocmdparam`: how many follow it at the editor's command line
    int drawnParameters = 0;  ///< `codrwparam`: how many follow it in a drawstring
    std::array<std::string, 3> typedCodes;  ///< `cval1` to `cval3`: two-letter codes of the former
    std::array<std::string, 5> drawnCodes;  ///< `dval1` to `dval5`: of the latter
};

/// The numbers that mean something to the drawing of pictures. 300 to 400 are words of the drawing language
/// and of the picture editor, those above words of the character editor.
enum CommandNumber : int {
    kAbsMove = 301,
    kPlot = 302,
    kRelMove = 303,
    kLine = 304,
    kFill = 305,
    kShade = 306,
    kText = 307,
    kBlock = 308,
    kInk = 309,
    kPaper = 310,
    kBright = 311,
    kInverse = 312,
    kFlash = 313,
    kOver = 314,
    kGoSub = 315,
    kEnd = 325,
    kQShade = 327,
    kRPlot = 328,
    kQFill = 329,
    kBShade = 330,
};
inline constexpr bool IsPictureCommand(int number) {
    return number > 300 && number < 400;
}

/// The words, in the order of the table. Every parser of drawstrings takes the number of parameters from
/// here.
class CommandCatalogue {
  public:
    /// Numbers of parameters beyond the codes' places are cut to them.
    void Add(Command command);

    /// The first word called `name`, case ignored, or nullptr.
    const Command* Find(std::string_view name) const;
    /// The same among the words of pictures alone.
    const Command* FindPictureCommand(std::string_view name) const;

    const std::vector<Command>& All() const { return commands_; }

  private:
    std::vector<Command> commands_;
    std::unordered_map<std::string, std::size_t> byName_;         ///< by name in capitals
    std::unordered_map<std::string, std::size_t> pictureByName_;  ///< the same of the words of pictures
};

}  // namespace fabula::pictures
