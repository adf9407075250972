#pragma once

#include <string>
#include <string_view>

#include "condacts/limits.h"

namespace fabula::authoring {

/// The picker of one of the 16 colours, for ink or for paper.
class ColourScreen {
  public:
    enum class Purpose { Ink, Paper };

    /// `current` is the number of the colour so far, 0 to 15; any other counts as 0.
    ColourScreen(Purpose purpose, int current);

    std::string_view Caption() const;
    /// The colour that is chosen so far, in words.
    std::string CurrentLine() const;
    int Current() const { return current_; }

    /// Chooses the colour of a label, 0 to 15.
    void Click(int colour);
    /// Gives the number of the chosen colour to the calling screen. (Exit gives none.)
    int Update() const { return current_; }

    static constexpr int kColours = condacts::limit::kHighestColour + 1;
    static constexpr int kFirstBright = condacts::limit::kFirstBrightColour;
    static constexpr std::string_view kNormalColours = "Normal Colors";
    static constexpr std::string_view kBrightColours = "Bright Colors";

  private:
    Purpose purpose_;
    int current_;
};

}  // namespace fabula::authoring
