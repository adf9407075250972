#include "listings/pages/text_page.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "listings/pages/dot_picture.h"
#include "text/encoding/utf8.h"

namespace fabula::listings {
namespace {

/// Writes `what` over a line from a column on.
void Overwrite(std::u32string& line, std::size_t column, const std::u32string& what) {
    if (line.size() < column + what.size()) line.resize(column + what.size(), U' ');
    std::copy(what.begin(), what.end(), line.begin() + static_cast<std::ptrdiff_t>(column));
}

}  // namespace

void TextPage::Put(Line line) {
    if (line.pictures.empty() || line.Height() == 1) {
        text_ += line.text;
        text_ += '\n';
        return;
    }
    PutPictures(line);
}

void TextPage::PutPictures(const Line& line) {
    std::vector<std::u32string> rows(static_cast<std::size_t>(line.Height()));
    rows.front() = text::Decode(line.text);
    for (const PlacedPicture& picture : line.pictures) {
        std::size_t row = 0;
        for (const std::u32string& signs : DotPicture(*picture.image, picture.columns, picture.lines))
            Overwrite(rows[row++], picture.column, signs);
        if (!picture.caption.empty()) Overwrite(rows[row], picture.column, text::Decode(picture.caption));
    }
    for (const std::u32string& row : rows) {
        text_ += text::Encode(row);
        text_ += '\n';
    }
}

}  // namespace fabula::listings
