#include "listings/pages/frame.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include "listings/record.h"
#include "text/encoding/utf8.h"
#include "text/fields.h"
#include "text/format.h"
#include "text/line_ends.h"

namespace fabula::listings {
namespace {

bool IsRule(std::string_view heading) {
    return heading.find('-') != std::string_view::npos &&
           heading.find_first_not_of("- ") == std::string_view::npos;
}

int HeightOf(const std::vector<Line>& lines) {
    return std::accumulate(lines.begin(), lines.end(), 0,
                           [](int sum, const Line& line) { return sum + line.Height(); });
}

/// A title that is longer than the page begins at its edge.
std::string Centred(std::string_view title) {
    const std::size_t length = text::Length(title);
    return std::string(length < kColumns ? (kColumns - length) / 2 : 0, ' ') + std::string(title);
}

}  // namespace

int Line::Height() const {
    int height = 1;
    for (const PlacedPicture& picture : pictures)
        height = std::max(height, picture.lines + (picture.caption.empty() ? 0 : 1));
    return height;
}

Frame::Frame(Page& page, std::string_view adventure)
    : page_(page), adventure_(SafeText(adventure)), limit_(page.LinesPerPage()) {}

void Frame::Begin(std::string_view title, std::vector<std::string> headings, std::optional<Place> place) {
    title_ = SafeText(title);
    headings_ = std::move(headings);
    if (pageNumber_ > 0) page_.EndPage();
    page_.BeginReport(title_, place);
    PageHeader();
}

void Frame::PageHeader() {
    linesOnPage_ = 0;
    ++pageNumber_;
    const std::string title =
        text::FormatText("%a!%t70!Page!%S5!", {Centred(title_), std::int64_t{pageNumber_}});
    for (const std::string_view line : text::Split(title, text::kLineEnd))
        Put({.text = std::string(line), .kind = Line::Kind::Header});
    Put({.text = adventure_, .kind = Line::Kind::Header});
    Put({.text = "", .kind = Line::Kind::Header});
    for (const std::string& heading : headings_) {
        if (heading.empty()) continue;
        Put({.text = heading, .kind = IsRule(heading) ? Line::Kind::Rule : Line::Kind::Heading});
    }
    headerLines_ = linesOnPage_;
}

void Frame::Add(std::vector<Line> record) {
    const auto newPage = [this] {
        page_.EndPage();
        PageHeader();
    };
    if (!Fits(HeightOf(record)) && linesOnPage_ > headerLines_) newPage();
    for (Line& line : record) {
        if (!Fits(line.Height()) && linesOnPage_ > headerLines_) newPage();
        Put(std::move(line));
    }
}

void Frame::Put(Line line) {
    linesOnPage_ += line.Height();
    page_.Put(std::move(line));
}

}  // namespace fabula::listings
