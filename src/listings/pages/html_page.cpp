#include "listings/pages/html_page.h"

#include <algorithm>

#include "listings/record.h"
#include "text/encoding/utf8.h"

namespace fabula::listings {
namespace {

constexpr std::string_view kStyle = R"(
:root { color-scheme: light dark; }
body { margin: 0 auto; max-width: 90rem; padding: 0 1rem 2rem; font-family: system-ui, sans-serif; line-height: 1.4; }
nav ol { columns: 18rem; padding-left: 1.5rem; }
.listing { font-family: ui-monospace, "DejaVu Sans Mono", monospace; font-size: .9rem; overflow-x: auto; }
.line, .heading { white-space: pre; min-height: 1.4em; }
.heading { font-weight: bold; }
.line:target { outline: 2px solid; }
figure { display: inline-block; margin: 0 .5rem .5rem 0; text-align: center; }
img { image-rendering: pixelated; vertical-align: middle; }
@media (max-width: 50rem) {
  .line, .heading { white-space: normal; }
  .line { padding-left: 1em; text-indent: -1em; overflow-wrap: anywhere; }
  .rule { display: none; }
  img { max-width: 100%; height: auto; }
}
)";

std::string Escaped(std::string_view text) {
    std::string escaped;
    escaped.reserve(text.size());
    for (const char c : text) {
        switch (c) {
            case '&':
                escaped += "&amp;";
                break;
            case '<':
                escaped += "&lt;";
                break;
            case '>':
                escaped += "&gt;";
                break;
            case '"':
                escaped += "&quot;";
                break;
            default:
                escaped += c;
        }
    }
    return escaped;
}

std::string Base64(std::string_view bytes) {
    constexpr std::string_view kDigits = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::string encoded;
    for (std::size_t i = 0; i < bytes.size(); i += 3) {
        const std::size_t count = std::min<std::size_t>(3, bytes.size() - i);
        std::uint32_t group = 0;
        for (std::size_t k = 0; k < 3; ++k)
            group = group << 8 | (k < count ? static_cast<unsigned char>(bytes[i + k]) : 0U);
        for (std::size_t k = 0; k < 4; ++k)
            encoded += k <= count ? kDigits[group >> (18 - 6 * k) & 63U] : '=';
    }
    return encoded;
}

/// "locations-5"
std::string IdOf(const Place& place) {
    const store::TableEntry* const table = store::FindTable(place.table);
    return text::LowerCase(table ? table->name : "record") + "-" + std::to_string(place.number);
}

std::string ImageTag(const PlacedPicture& picture, int width, int height) {
    return "<img alt=\"" + Escaped(picture.description) + "\" width=\"" + std::to_string(width) +
           "\" height=\"" + std::to_string(height) + "\" src=\"data:image/png;base64," +
           Base64(pictures::EncodePng(*picture.image)) + "\"/>";
}

}  // namespace

HtmlPage::HtmlPage(std::string_view adventure) : adventure_(SafeText(adventure)) {}

void HtmlPage::BeginReport(std::string_view title, std::optional<Place> place) {
    EndSection();
    const std::string id = "report-" + std::to_string(++reports_);
    contents_.append("<li><a href=\"#").append(id).append("\">").append(Escaped(title));
    contents_ += "</a></li>\n";
    body_.append("<section aria-labelledby=\"").append(id).append("\"").append(IdOnce(place));
    body_.append(">\n<h2 id=\"").append(id).append("\">").append(Escaped(title));
    body_ += "</h2>\n<div class=\"listing\" tabindex=\"0\" role=\"group\" aria-labelledby=\"";
    body_.append(id).append("\">\n");
}

void HtmlPage::Put(Line line) {
    switch (line.kind) {
        case Line::Kind::Header:  // the section has its heading
            return;
        case Line::Kind::Heading:
        case Line::Kind::Rule:
            return PutHeading(line);
        case Line::Kind::Text:
            break;
    }
    if (line.continues && lineIsOpen_) {
        body_ += '\n';
    } else {
        BeginLine(line);
    }
    if (line.Height() > 1) {
        PutPictures(line);
    } else {
        PutText(line);
    }
}

void HtmlPage::PutHeading(const Line& line) {
    EndLine();
    const bool rule = line.kind == Line::Kind::Rule;
    body_ += rule ? "<div class=\"heading rule\" aria-hidden=\"true\">" : "<div class=\"heading\">";
    body_.append(Escaped(line.text)).append("</div>\n");
}

void HtmlPage::BeginLine(const Line& line) {
    EndLine();
    body_.append("<div class=\"line\"").append(IdOnce(line.place)).append(">");
    lineIsOpen_ = true;
}

void HtmlPage::PutText(const Line& line) {
    std::size_t column = 0;
    std::string_view rest = line.text;
    const auto putUpTo = [&](std::size_t end) {
        const std::string_view part = text::Left(rest, end > column ? end - column : 0);
        body_ += Escaped(part);
        rest.remove_prefix(part.size());
        column = std::max(column, end);
    };
    for (const Link& link : line.links) {
        putUpTo(link.column);
        links_.push_back({body_.size(), link.to, true});
        putUpTo(link.column + link.length);
        links_.push_back({body_.size(), link.to, false});
    }
    for (const PlacedPicture& picture : line.pictures) {
        putUpTo(picture.column);
        const std::string_view covered = text::Left(rest, static_cast<std::size_t>(picture.columns));
        rest.remove_prefix(covered.size());
        column += static_cast<std::size_t>(picture.columns);
        body_ += ImageTag(picture, picture.image->width * 2, picture.image->height * 2);
    }
    body_ += Escaped(rest);
}

void HtmlPage::PutPictures(const Line& line) {
    for (const PlacedPicture& picture : line.pictures) {
        const int scale = picture.image->width < 64 ? 4 : 2;
        body_.append("<figure>");
        body_ += ImageTag(picture, picture.image->width * scale, picture.image->height * scale);
        if (!picture.caption.empty())
            body_.append("<figcaption>").append(Escaped(picture.caption)).append("</figcaption>");
        body_ += "</figure>";
    }
}

std::string HtmlPage::IdOnce(const std::optional<Place>& place) {
    if (!place || !places_.insert(*place).second) return "";
    return " id=\"" + IdOf(*place) + "\"";
}

void HtmlPage::EndLine() {
    if (lineIsOpen_) body_ += "</div>\n";
    lineIsOpen_ = false;
}

void HtmlPage::EndSection() {
    EndLine();
    if (reports_ > 0) body_ += "</div>\n</section>\n";
}

/// The body with those links that lead somewhere.
std::string HtmlPage::LinkedBody() const {
    std::string linked;
    linked.reserve(body_.size() + links_.size() * 24);
    std::size_t from = 0;
    for (const LinkEnd& link : links_) {
        linked.append(body_, from, link.at - from);
        from = link.at;
        if (!places_.contains(link.to)) continue;
        if (link.begins) {
            linked.append("<a href=\"#").append(IdOf(link.to)).append("\">");
        } else {
            linked += "</a>";
        }
    }
    linked.append(body_, from);
    return linked;
}

std::string HtmlPage::Finish() {
    EndSection();
    const std::string name = Escaped(adventure_);
    std::string file = "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\"/>\n";
    file += "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\"/>\n";
    // A listing holds texts of others; nothing in it may run or be loaded.
    file += "<meta http-equiv=\"Content-Security-Policy\" ";
    file += "content=\"default-src 'none'; img-src data:; style-src 'unsafe-inline'\"/>\n";
    file.append("<title>").append(name).append(": listing</title>\n<style>").append(kStyle);
    file.append("</style>\n</head>\n<body>\n<header>\n<h1>").append(name).append("</h1>\n");
    file.append("<nav aria-label=\"Contents\">\n<ol>\n").append(contents_);
    file += "</ol>\n</nav>\n</header>\n<main>\n";
    file.append(LinkedBody()).append("</main>\n</body>\n</html>\n");
    return file;
}

}  // namespace fabula::listings
