#include "ide/editors/font_sample_label.h"

#include <QImage>
#include <map>

#include "pictures/characters/glyph.h"
#include "qt/colours.h"
#include "qt/strings.h"

namespace fabula::ide {
namespace {

/// In two lines, since characters of a set are wide.
constexpr const char* kSampleLines[] = {"You are in a", "dark cave. 123"};
constexpr int kSampleColumns = 14;
constexpr int kCell = pictures::kGlyphSide;
constexpr int kEnlarged = 2;  ///< characters of 8 pixels are small on the screens of today
constexpr int kSampleMargin = 12;

QColor ColourOfNumber(int number) {
    return qt::ToQt(text::ColourRGB(number));
}

std::map<int, pictures::Glyph> GlyphsOf(store::Adventure& adventure, int charSet) {
    store::PreparedQuery row =
        adventure.Prepare(store::TableNum::Characters, "charnum, charvals", "charsetnum=?");
    std::map<int, pictures::Glyph> glyphs;
    for (bool more = row.First({std::int64_t{charSet}}); more; more = row.Next())
        glyphs.emplace(static_cast<int>(row.Number(0)), pictures::ParseCharVals(row.Text(1)));
    return glyphs;
}

void DrawGlyph(QImage& image, const QPoint& place, const pictures::Glyph& glyph, QRgb ink) {
    for (int y = 0; y < kCell; ++y) {
        for (int x = 0; x < kCell; ++x) {
            if (pictures::HasBit(glyph, x, y)) image.setPixel(place.x() + x, place.y() + y, ink);
        }
    }
}

}  // namespace

FontSampleLabel::FontSampleLabel(store::Adventure& adventure, QWidget* parent)
    : QLabel(parent), adventure_(adventure) {
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    setMargin(kSampleMargin);
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    setMinimumHeight(2 * kSampleMargin + kEnlarged * kCell * static_cast<int>(std::size(kSampleLines)));
    // A large size asks for more lines, not for a wider window.
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Minimum);
}

void FontSampleLabel::ShowSample(const authoring::FontSample& sample) {
    QPalette colours = palette();
    colours.setColor(QPalette::Window, ColourOfNumber(sample.paper));
    colours.setColor(QPalette::WindowText, ColourOfNumber(sample.ink));
    setPalette(colours);
    const QString text = QString("%1 %2").arg(kSampleLines[0], kSampleLines[1]);
    if (sample.charSet) {
        setAccessibleName(text);
        setPixmap(Drawn(*sample.charSet, ColourOfNumber(sample.ink)));
        return;
    }
    QFont font(qt::ToQt(sample.fontName));
    font.setPointSize(sample.points);
    setFont(font);
    setAccessibleName("");
    setText(text);
}

QPixmap FontSampleLabel::Drawn(int charSet, const QColor& ink) const {
    const std::map<int, pictures::Glyph> glyphs = GlyphsOf(adventure_, charSet);
    QImage lines(kCell * kSampleColumns, kCell * static_cast<int>(std::size(kSampleLines)),
                 QImage::Format_ARGB32);
    lines.fill(Qt::transparent);
    int top = 0;
    for (const QByteArray line : kSampleLines) {
        for (int at = 0; at < line.size(); ++at) {
            const auto glyph = glyphs.find(line[at]);
            if (glyph != glyphs.end()) DrawGlyph(lines, {kCell * at, top}, glyph->second, ink.rgb());
        }
        top += kCell;
    }
    return QPixmap::fromImage(lines.scaled(lines.size() * kEnlarged));
}

}  // namespace fabula::ide
