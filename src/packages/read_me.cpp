#include "packages/read_me.h"

#include <algorithm>

#include "text/line_ends.h"

namespace fabula::packages {
namespace {

/// Adds a text of any number of lines; nothing for an empty one.
void Add(std::string& readMe, const std::string& text) {
    if (text.empty()) return;
    readMe += text::NormalizeLineEnds(text, text::kLineEnd);
    readMe += text::kLineEnd;
}

}  // namespace

std::string ReadMeText(const GameFacts& facts, const ReadMeParts& parts) {
    std::string readMe;
    Add(readMe, "This is the Zip file for the Fabula game \"" + facts.name + "\" Version " + parts.version +
                    ". Written by " + facts.author);
    Add(readMe, facts.description);
    if (!facts.contact.empty()) {
        Add(readMe, "Contact information on " + facts.name + " follows:");
        Add(readMe, facts.contact);
    }
    Add(readMe, "The game requires that you have the Fabula Engine installed.");
    Add(readMe, "For the latest version of the Engine, see the " + parts.productPage);
    const bool folders = std::any_of(parts.names.begin(), parts.names.end(), [](const std::string& name) {
        return name.find('/') != std::string::npos;
    });
    if (folders) {
        Add(readMe, "This game needs files in a subdirectory of where the game");
        Add(readMe, "is located. When you UnZip this file, have your ");
        Add(readMe, "UnZip program");
        Add(readMe, "recreate the subdirectories.");
    }
    Add(readMe, parts.more);
    Add(readMe, "A list of the files in this ZipFile follows:");
    for (const std::string& name : parts.names)
        Add(readMe, name);
    return readMe;
}

}  // namespace fabula::packages
