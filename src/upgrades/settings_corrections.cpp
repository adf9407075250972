#include "upgrades/settings_corrections.h"

#include "text/colours.h"
#include "text/encoding/utf8.h"

namespace fabula::upgrades {
namespace {

using store::Cursor;
using store::TableNum;

/// The number of a colour that was stored as the screen's: red in the lowest byte, then green and blue.
int NumberOfScreenColour(std::int64_t colour, int fallback) {
    const auto part = [&](int shift) { return static_cast<std::uint8_t>(colour >> shift & 0xff); };
    return text::ColourIndex({part(0), part(8), part(16)}, fallback);
}

/// A game that writes through character sets has one of those for its font.
bool IsFont(Work& work, std::int64_t font) {
    const std::string number = std::to_string(font);
    if (Finds(work, TableNum::Codes, "codenum=" + number)) return true;
    return work.adventure.CharSetsOn() && Finds(work, TableNum::Characters, "charsetnum=" + number);
}

constexpr std::string_view kLook = "font, BackColor, textcolor";

}  // namespace

bool HasOldLook(Work& work) {
    if (!work.Has(TableNum::Adventure, {"font", "BackColor", "textcolor"})) return false;
    if (!work.Has(TableNum::Codes, {"codenum"})) return false;
    const store::FieldType font = work.adventure.Schema(TableNum::Adventure)
                                      .fields[*work.adventure.Schema(TableNum::Adventure).Find("font")]
                                      .type;
    if (store::ClassOf(font) != store::FieldClass::Number) return false;
    store::PreparedQuery settings = work.adventure.Prepare(TableNum::Adventure, kLook, "");
    if (!settings.First({})) return false;
    const bool colours = text::IsColour(settings.Number(1)) && text::IsColour(settings.Number(2));
    return !colours || (!work.fontTaken && !IsFont(work, settings.Number(0)));
}

void RenewLook(Work& work, const Step&) {
    const store::Record& standard = work.defaults.Records(TableNum::Adventure).front();
    const Cursor& settings = work.adventure.OpenTable(TableNum::Adventure, kLook);
    Cursor& change = work.adventure.Table(TableNum::Adventure);
    if (!IsFont(work, settings.Number("font"))) change.SetField("font", NumberOf(standard, "font"));
    const std::int64_t paper = settings.Number("BackColor");
    const std::int64_t ink = settings.Number("textcolor");
    if (!text::IsColour(paper)) change.SetField("BackColor", NumberOfScreenColour(paper, 0));
    if (!text::IsColour(ink)) change.SetField("textcolor", NumberOfScreenColour(ink, 1));
    change.Update();
}

bool HasUnknownType(Work& work) {
    return work.Has(TableNum::Adventure, {"adventype"}) &&
           Finds(work, TableNum::Adventure, "adventype='Unknwn'");
}

void SetType(Work& work, const Step&) {
    work.adventure.ReadSettings();
    const store::AdventureSetup own(work.adventure);
    const ChosenType type = work.chosen.value_or(
        ChosenType{std::string(store::NameOf(own.Type())), own.Graphics(), own.CharSets()});
    Cursor& settings = work.adventure.OpenTable(TableNum::Adventure, "adventype, graphics, charsets");
    settings.SetField("adventype", type.type);
    settings.SetField("graphics", std::int64_t{type.graphics});
    settings.SetField("charsets", std::int64_t{type.charSets});
    settings.Update();
}

}  // namespace fabula::upgrades
