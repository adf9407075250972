#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "engine/numbers.h"

namespace fabula::engine {

class Engine;
class Game;

/// The diagnostics window without its widgets: it looks at one flag or object of the running game and
/// changes it.
///
///     F38, O3   view a flag, an object        S, C   set the flag in view to 255, to 0
///     38        view the number of the kind   =5     give the flag a value, the object a location
///               in view                       H      the help file
class Diagnostics {
  public:
    static constexpr std::string_view kCaption = "Diagnostics";

    explicit Diagnostics(Engine& engine) : engine_(engine) {}

    /// What came of a request.
    struct Answer {
        std::string refusal;  ///< why nothing was changed; "" when it was carried out
        bool help = false;    ///< the window is to open its help file
    };

    /// `DoIt`: carries out a request, its letter in any case.
    Answer DoIt(std::string_view request);

    /// `DisplayVariable`: "F38 = 5" or "O3 Location = 254"; "" while no game runs. At first flag 0 is in
    /// view.
    std::string DisplayVariable() const;

  private:
    /// What is in view.
    using Variable = std::variant<FlagNumber, ObjectNumber>;

    const ObjectNumber* ObjectInView() const { return std::get_if<ObjectNumber>(&inView_); }
    std::string View(std::string_view number, bool object, const std::string& refusal);
    std::string SetTo(std::string_view name, int value);
    std::string Assign(std::string_view number);
    bool IsProtected(FlagNumber inView) const;
    std::string AssignFlag(FlagNumber inView, int value);
    bool Exists(const Variable& variable) const;
    Game& Running() const;

    Engine& engine_;
    Variable inView_ = FlagNumber(0);
};

}  // namespace fabula::engine
