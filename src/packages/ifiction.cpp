#include "packages/ifiction.h"

#include <tinyxml2.h>

#include "platform/error.h"
#include "text/fields.h"
#include "text/safe_text.h"
#include "text/str_edit.h"
#include "text/utf8.h"

namespace fabula::packages {
namespace {

using tinyxml2::XMLPrinter;

/// A text in one line, without what XML can't hold or a terminal would obey.
std::string OneLine(std::string_view text) {
    std::string line;
    for (const char c : text) {
        const bool control = static_cast<unsigned char>(c) < ' ';
        line += control ? ' ' : c;
    }
    std::string shown;
    text::AppendSafe(line, shown);
    // U+FFFE and U+FFFF are no characters of XML.
    for (const std::string_view none : {"\xEF\xBF\xBE", "\xEF\xBF\xBF"})
        shown = text::ReplaceAll(shown, none, " ");
    return std::string(text::TrimBlanks(text::CollapseBlanks(shown)));
}

void AddElement(XMLPrinter& xml, const char* name, const std::string& text) {
    xml.OpenElement(name);
    xml.PushText(text.c_str());
    xml.CloseElement();
}

/// Lines are parted by <br/>.
void AddDescription(XMLPrinter& xml, const std::string& description) {
    if (OneLine(description).empty()) return;
    xml.OpenElement("description");
    bool first = true;
    for (const std::string_view line : text::Split(description, "\n")) {
        const std::string shown = OneLine(line);
        if (shown.empty()) continue;
        if (!first) {
            xml.OpenElement("br", true);
            xml.CloseElement(true);
        }
        xml.PushText(shown.c_str());
        first = false;
    }
    xml.CloseElement();
}

void AddCover(XMLPrinter& xml, const Cover& cover) {
    xml.OpenElement("cover");
    AddElement(xml, "format", std::string(cover.format));
    AddElement(xml, "height", std::to_string(cover.height));
    AddElement(xml, "width", std::to_string(cover.width));
    xml.CloseElement();
}

}  // namespace

std::string IFictionRecord(const GameFacts& facts, const Cover* cover) {
    if (facts.ifid.empty()) {
        throw Error("The adventure has no IFID. Files of older versions get one when they are upgraded.");
    }
    XMLPrinter xml;
    xml.PushDeclaration("xml version=\"1.0\" encoding=\"UTF-8\"");
    xml.OpenElement("ifindex");
    xml.PushAttribute("version", "1.0");
    xml.PushAttribute("xmlns", "http://babel.ifarchive.org/protocol/iFiction/");
    xml.OpenElement("story");
    xml.OpenElement("identification");
    AddElement(xml, "ifid", facts.ifid);
    AddElement(xml, "format", "fabula");
    xml.CloseElement();
    xml.OpenElement("bibliographic");
    const std::string title = OneLine(facts.Title());
    const std::string author = OneLine(facts.author);
    AddElement(xml, "title", title.empty() ? "Untitled" : title);
    AddElement(xml, "author", author.empty() ? "Anonymous" : author);
    AddDescription(xml, facts.description);
    xml.CloseElement();
    if (cover != nullptr) AddCover(xml, *cover);
    xml.CloseElement();
    xml.CloseElement();
    return xml.CStr();
}

}  // namespace fabula::packages
