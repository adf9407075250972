#pragma once

#include <random>
#include <string>

#include "pictures/command_catalogue.h"

namespace fabula::pictures {

/// Makes drawstrings at random that pass the check in a TestBook with the pictures 5, 6 and 7.
class DrawstringMaker {
  public:
    explicit DrawstringMaker(unsigned seed) : random_(seed) {}

    /// A drawstring of so many commands, with values up to the ends of what the check lets pass.
    std::string Make(const CommandCatalogue& commands, int length) {
        std::string text;
        for (int i = 0; i < length; ++i) {
            const auto& all = commands.All();
            const Command& command =
                all[static_cast<std::size_t>(Between(0, static_cast<int>(all.size()) - 1))];
            text += command.name + ' ';
            for (int p = 0; p < command.drawnParameters; ++p) {
                text += Value(command.drawnCodes[static_cast<std::size_t>(p)]) + ' ';
            }
        }
        return text + "END";
    }

    int Between(int lowest, int highest) {
        return std::uniform_int_distribution<int>(lowest, highest)(random_);
    }

  private:
    std::string Value(const std::string& code) {
        if (code == "XP") return std::to_string(Between(0, 9) == 0 ? Between(-40000, -1) : Between(0, 255));
        if (code == "YP") return std::to_string(Between(0, 9) == 0 ? Between(-40000, -1) : Between(0, 175));
        if (code == "RX") return std::to_string(Between(0, 3) == 0 ? Between(-255, 255) : Between(-20, 20));
        if (code == "RY") return std::to_string(Between(0, 3) == 0 ? Between(-175, 175) : Between(-20, 20));
        if (code == "IO") return std::to_string(10 * Between(0, 1) + Between(0, 1));
        if (code == "SE") return "0";
        if (code == "CH") return Between(0, 1) == 0 ? "65" : "144";
        if (code == "CX" || code == "WI") return std::to_string(Between(0, 31));
        if (code == "RO" || code == "HE") return std::to_string(Between(0, 21));
        if (code == "CO") return std::to_string(Between(0, 8));
        if (code == "BO") return std::to_string(Between(0, 1));
        if (code == "R1") return std::to_string(Between(-1, 1));
        if (code == "QS") return std::to_string(Between(1, 255));
        if (code == "PA") return std::to_string(16 * Between(0, 4) + Between(0, 4));
        if (code == "SC") return "sc=" + std::to_string(Between(0, 7));
        return std::to_string(Between(5, 7));  // LO
    }

    std::mt19937 random_;
};

}  // namespace fabula::pictures
