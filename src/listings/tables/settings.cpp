#include <array>
#include <string>

#include "condacts/numbers.h"
#include "listings/record.h"
#include "listings/reports.h"
#include "text/colours.h"
#include "text/format.h"

namespace fabula::listings {
namespace {

using store::PreparedQuery;
using store::TableNum;
using text::Value;

/// How a setting is told.
enum class As {
    Text,
    Author,
    Moment,
    Number,
    Location,
    Switch,
    Colour,
    Font,   ///< or a character set, where these take the place of fonts
    Voice,  ///< of MIDI, by its name
    Bytes,  ///< of a picture that is kept in the adventure
};

struct Setting {
    std::string_view field;
    std::string_view label;
    As as = As::Text;
};

/// One for each field of the settings' record.
constexpr Setting kSettings[] = {
    {"advname", "Adventure Name"},
    {"author", "Author", As::Author},
    {"savename", "Save Name"},
    {"version", "Version"},
    {"datecreated", "Date Created", As::Moment},
    {"adventype", "Type"},
    {"source", "Source"},
    {"startloc", "Starting Location", As::Location},
    {"maxobj", "Max Objects", As::Number},
    {"maxweight", "Max Weight", As::Number},
    {"defprintwidth", "Print Width", As::Number},
    {"font", "Font", As::Font},
    {"fontsize", "Font Size", As::Number},
    {"backcolor", "Back Color", As::Colour},
    {"textcolor", "Text Color", As::Colour},
    {"graphics", "Pictures", As::Switch},
    {"charsets", "Char. Sets", As::Switch},
    {"defpicloc", "Default Picture"},
    {"defpickey", "Default Picture Key"},
    {"advpicloc", "About Picture"},
    {"graphicsindb", "Pictures in Database", As::Switch},
    {"graphicsadded", "Pictures Added", As::Switch},
    {"defpicgraphic", "Default Picture Kept", As::Bytes},
    {"olddefpicloc", "Default Picture Kept From"},
    {"advpicgraphic", "About Picture Kept", As::Bytes},
    {"oldadvpicloc", "About Picture Kept From"},
    {"advdesc", "Description"},
    {"advcontactinfo", "Contact Information"},
    {"sound", "Sound", As::Switch},
    {"defsnddevname", "Sound Device Name"},
    {"defsnddev", "Sound Device", As::Number},
    {"defsndchan", "Sound Channel", As::Number},
    {"defsndvoice", "Sound Voice", As::Voice},
    {"defsndvol", "Sound Volume", As::Number},
    {"defsndbal", "Sound Balance", As::Number},
    {"defsndbass", "Sound Bass", As::Number},
    {"sortobjects", "Order of Objects"},
    {"sortvocabulary", "Order of Vocabulary"},
    {"sortcondacts", "Order of Conditions/Actions"},
    {"sortcommands", "Order of Commands"},
    {"sorttables", "Order of Tables"},
    {"unmarloed", "UnMarloed", As::Switch},
    {"advnum", "Record Number"},
};

constexpr std::string_view kSettingLine = "!%r30!: !%a";
constexpr TextArea kValueArea{33, 48};

/// The number of a colour and its name.
std::string WithName(std::int64_t number, std::string_view name) {
    std::string text = std::to_string(number);
    if (!name.empty()) text.append(" ").append(name);
    return text;
}

/// The first text of a selection; "" when it is empty.
std::string Lookup(store::Adventure& adventure, TableNum table, std::string_view field,
                   const std::string& where) {
    PreparedQuery row = adventure.Prepare(table, field, where);
    return row.First({}) ? std::string(row.Text(0)) : "";
}

std::string FontName(store::Adventure& adventure, std::int64_t number) {
    const std::string code = std::to_string(number);
    if (adventure.CharSetsOn())
        return Lookup(adventure, TableNum::Characters, "charsetname", "charsetnum=" + code);
    return Lookup(adventure, TableNum::Codes, "fontname", "fontname <> '' and codenum=" + code);
}

std::string Told(store::Adventure& adventure, const store::Cursor& settings, const Setting& setting) {
    const Value value = settings.Field(setting.field);
    const auto* const whole = std::get_if<std::int64_t>(&value);
    const std::int64_t number = whole ? *whole : 0;
    switch (setting.as) {
        case As::Author:
            return IsEmpty(text::ToText(value)) ? "None Supplied" : text::ToText(value);
        case As::Moment:
            return text::IsNull(value) ? "" : text::FormatText("%d%", {value});
        case As::Switch:
            return number != 0 ? "ON" : "OFF";
        case As::Colour:
            return WithName(number,
                            text::ColourName(condacts::FitsNumber(number) ? static_cast<int>(number) : -1));
        case As::Font:
            return WithName(number, FontName(adventure, number));
        case As::Voice:
            return WithName(number, Lookup(adventure, TableNum::Codes, "voicename",
                                           "voicename <> '' and codenum=" + std::to_string(number)));
        case As::Bytes: {
            const auto* const bytes = std::get_if<text::Blob>(&value);
            return std::to_string(bytes ? bytes->size() : 0) + " bytes";
        }
        case As::Text:
        case As::Number:
        case As::Location:
            break;
    }
    return text::ToText(value);
}

}  // namespace

void WriteSettings(const Listing& listing, const ReportRequest&) {
    listing.frame.Begin("Adventure Settings Listing", {});
    const store::Cursor& settings = listing.adventure.OpenTable(TableNum::Adventure, "def");
    if (settings.Eof()) return;
    for (const Setting& setting : kSettings) {
        if (!listing.adventure.Schema(TableNum::Adventure).Find(setting.field)) continue;
        Record record;
        const std::string told = Told(listing.adventure, settings, setting);
        record.Text(kSettingLine, {std::string(setting.label)}, told, kValueArea);
        if (setting.as == As::Location) {
            record.LinkTo({TableNum::Locations, static_cast<int>(settings.Number(setting.field))},
                          static_cast<std::size_t>(kValueArea.column) - 1, told.size());
        }
        listing.frame.Add(record.Take());
    }
}

}  // namespace fabula::listings
