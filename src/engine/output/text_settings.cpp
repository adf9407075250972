#include "engine/output/text_settings.h"

#include "store/adventure.h"
#include "text/encoding/utf8.h"

namespace fabula::engine {

using store::PreparedQuery;
using store::TableNum;

namespace {

void ReadCodes(store::Adventure& adventure, TextSettings& settings) {
    PreparedQuery row =
        adventure.Prepare(TableNum::Codes, "codenum, FontName, FontSize, FabulaTag", "", "codenum");
    for (bool more = row.First({}); more; more = row.Next()) {
        const int code = static_cast<int>(row.Number(0));
        if (!row.Text(1).empty()) settings.fontNames.emplace(code, row.Text(1));
        settings.fontSizes.emplace(code, static_cast<int>(row.Number(2)));
        if (!row.Text(3).empty()) settings.tags.push_back({text::LowerCase(row.Text(3)), code});
    }
}

}  // namespace

TextSettings ReadTextSettings(store::Adventure& adventure) {
    TextSettings settings;
    PreparedQuery row = adventure.Prepare(
        TableNum::Adventure, "Font, FontSize, BackColor, textcolor, defprintwidth, charsets", "");
    if (row.First({})) {
        settings.font = static_cast<int>(row.Number(0));
        settings.fontSize = static_cast<int>(row.Number(1));
        settings.backColour = static_cast<int>(row.Number(2));
        settings.textColour = static_cast<int>(row.Number(3));
        settings.printWidth = static_cast<int>(row.Number(4));
        settings.characterSets = row.Number(5) != 0;
    }
    row.Reset();
    ReadCodes(adventure, settings);
    return settings;
}

}  // namespace fabula::engine
