#pragma once

#include <map>
#include <string>
#include <vector>

namespace fabula::store {
class Adventure;
}

namespace fabula::engine {

/// A tag of the markup by its name, and what it does (printer.h).
struct Tag {
    std::string name;
    int code = 0;
};

/// What an adventure's settings and codes say of how its texts look. The numbers are as they are stored.
struct TextSettings {
    bool characterSets = false;
    int font = 0;
    int fontSize = 0;  ///< a code; `fontSizes` has its points
    int backColour = 0;
    int textColour = 0;
    int printWidth = 0;  ///< in columns

    std::vector<Tag> tags;
    std::map<int, std::string> fontNames;  ///< by code
    std::map<int, int> fontSizes;          ///< by code: points
};

/// Of the settings record and `Codes`; an adventure without a settings record has the values above. Throws
/// fabula::Error when the file can't be read.
TextSettings ReadTextSettings(store::Adventure& adventure);

}  // namespace fabula::engine
