#include "packages/game_facts.h"

#include "platform/error.h"
#include "store/ifid.h"
#include "text/encoding/utf8.h"
#include "text/line_ends.h"
#include "text/str_edit.h"

namespace fabula::packages {
namespace {

using store::TableNum;

constexpr std::size_t kLongestName = 100;
constexpr std::string_view kNoFileCharacters = "/\\:*?\"<>|";

std::string TextOf(const store::Cursor& settings, const store::TableSchema& schema,
                   std::string_view field) {
    if (!schema.Find(field)) return "";
    const std::string lines =
        text::ReplaceAll(text::NormalizeLineEnds(settings.Text(field), "\n"), text::kLineEndMarker, "\n");
    return std::string(text::TrimBlanks(lines));
}

}  // namespace

GameFacts ReadFacts(store::Adventure& adventure) {
    GameFacts facts;
    facts.ifid = store::IfidOf(adventure);
    const store::TableSchema& schema = adventure.Schema(TableNum::Adventure);
    const store::Cursor& settings = adventure.OpenTable(TableNum::Adventure, "def");
    if (settings.Eof()) throw Error("Could not read the settings: they are not there.");
    facts.name = TextOf(settings, schema, "advname");
    facts.saveName = TextOf(settings, schema, "savename");
    facts.author = TextOf(settings, schema, "author");
    facts.version = TextOf(settings, schema, "version");
    facts.description = TextOf(settings, schema, "advdesc");
    facts.contact = TextOf(settings, schema, "advcontactinfo");
    facts.defaultPicture = TextOf(settings, schema, "defpicloc");
    facts.aboutPicture = TextOf(settings, schema, "advpicloc");
    facts.picturesInside = settings.Truth("graphicsindb");
    return facts;
}

std::string AsFileName(const std::string& title) {
    std::string name(text::Left(title, kLongestName));
    const bool readable = text::IsValidUtf8(name);
    for (char& c : name) {
        const auto byte = static_cast<unsigned char>(c);
        const bool control = byte < ' ' || c == '\x7F' || (byte > 0x7F && !readable);
        if (control || kNoFileCharacters.find(c) != std::string_view::npos) c = '_';
    }
    const std::size_t start = name.find_first_not_of(". ");
    name = start == std::string::npos ? "" : name.substr(start);
    return name.empty() ? "Game" : name;
}

}  // namespace fabula::packages
