#include "packages/ifiction.h"

#include "platform/error.h"
#include "text/encoding/safe_text.h"
#include "text/encoding/utf8.h"
#include "text/fields.h"
#include "text/markup.h"
#include "text/str_edit.h"

namespace fabula::packages {
namespace {

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

/// `name` is one word of the format; `indent` the blanks before it.
std::string Element(std::size_t indent, std::string_view name, std::string_view content) {
    std::string element(indent, ' ');
    element.append("<").append(name).append(">").append(content);
    return element.append("</").append(name).append(">\n");
}

/// Lines are parted by <br/>.
std::string DescriptionElement(const std::string& description) {
    std::string content;
    for (const std::string_view line : text::Split(description, "\n")) {
        const std::string shown = OneLine(line);
        if (shown.empty()) continue;
        if (!content.empty()) content += "<br/>";
        content += text::EscapeMarkup(shown);
    }
    return content.empty() ? std::string() : Element(12, "description", content);
}

std::string CoverElement(const Cover& cover) {
    std::string element = "        <cover>\n";
    element += Element(12, "format", cover.format);
    element += Element(12, "height", std::to_string(cover.height));
    element += Element(12, "width", std::to_string(cover.width));
    return element.append("        </cover>\n");
}

}  // namespace

std::string IFictionRecord(const GameFacts& facts, const Cover* cover) {
    if (facts.ifid.empty()) {
        throw Error("The adventure has no IFID. Files of older versions get one when they are upgraded.");
    }
    const std::string title = OneLine(facts.Title());
    const std::string author = OneLine(facts.author);
    std::string record =
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
        "<ifindex version=\"1.0\" xmlns=\"http://babel.ifarchive.org/protocol/iFiction/\">\n"
        "    <story>\n"
        "        <identification>\n";
    record += Element(12, "ifid", text::EscapeMarkup(facts.ifid));
    record += Element(12, "format", "fabula");
    record += "        </identification>\n        <bibliographic>\n";
    record += Element(12, "title", title.empty() ? "Untitled" : text::EscapeMarkup(title));
    record += Element(12, "author", author.empty() ? "Anonymous" : text::EscapeMarkup(author));
    record += DescriptionElement(facts.description);
    record += "        </bibliographic>\n";
    if (cover != nullptr) record += CoverElement(*cover);
    return record.append("    </story>\n</ifindex>\n");
}

}  // namespace fabula::packages
