#include "ide/editors/markup_highlighter.h"

#include <QTextCharFormat>
#include <algorithm>
#include <initializer_list>

#include "authoring/fields/texts/markup_spans.h"
#include "player/panes/text_colours.h"
#include "qt/strings.h"

namespace fabula::ide {
namespace {

using authoring::MarkupKind;
using authoring::MarkupSpan;

/// Longer lines are no author's, and would make him wait.
constexpr qsizetype kLongestLine = 20'000;

text::Rgb RgbOf(const QColor& colour) {
    return {static_cast<std::uint8_t>(colour.red()), static_cast<std::uint8_t>(colour.green()),
            static_cast<std::uint8_t>(colour.blue())};
}

/// The colour that stands out best from `paper`, or `ink` where none can be read.
QColor Readable(std::initializer_list<QColor> colours, const QColor& paper, const QColor& ink) {
    const auto contrast = [&](const QColor& colour) {
        return player::Contrast(RgbOf(colour), RgbOf(paper));
    };
    const QColor best = *std::max_element(
        colours.begin(), colours.end(),
        [&](const QColor& left, const QColor& right) { return contrast(left) < contrast(right); });
    return contrast(best) >= player::kReadable ? best : ink;
}

/// Places of a UTF-8 text in UTF-16, asked for in rising order but for the turn to the faults.
class Utf16Places {
  public:
    explicit Utf16Places(std::string_view text) : text_(text) {}

    int Of(std::size_t byte) {
        if (byte < byte_) byte_ = 0, place_ = 0;
        place_ += static_cast<int>(qt::ToQt(text_.substr(byte_, byte - byte_)).size());
        byte_ = byte;
        return place_;
    }

  private:
    std::string_view text_;
    std::size_t byte_ = 0;
    int place_ = 0;
};

}  // namespace

MarkupHighlighter::MarkupHighlighter(QTextDocument* document, const text::TagCatalogue& tags,
                                     bool tagsAllowed)
    : QSyntaxHighlighter(document), tags_(tags), tagsAllowed_(tagsAllowed) {}

void MarkupHighlighter::SetColours(const QColor& paper, const QColor& ink) {
    mark_ = Readable({QColor(0x1a, 0x56, 0xb0), QColor(0x7a, 0xb8, 0xff)}, paper, ink);
    fault_ = Readable({QColor(0xb0, 0x1c, 0x1c), QColor(0xff, 0x9a, 0x8a)}, paper, ink);
    rehighlight();
}

void MarkupHighlighter::highlightBlock(const QString& line) {
    if (line.size() > kLongestLine) return;
    const std::string text = qt::FromQt(line);
    Utf16Places places(text);
    for (const MarkupSpan& span : authoring::MarkupSpans(text, tagsAllowed_, tags_)) {
        const int begin = places.Of(span.begin);
        const int end = places.Of(span.begin + span.size);
        for (int at = begin; at < end; ++at) {
            QTextCharFormat shown = format(at);
            switch (span.kind) {
                case MarkupKind::Value:
                    shown.setFontItalic(true);
                    [[fallthrough]];
                case MarkupKind::Tag:
                    shown.setFontWeight(QFont::Bold);
                    shown.setForeground(mark_);
                    break;
                case MarkupKind::Entity:
                    shown.setFontItalic(true);
                    shown.setForeground(mark_);
                    break;
                case MarkupKind::Fault:
                    shown.setForeground(fault_);
                    shown.setUnderlineStyle(QTextCharFormat::WaveUnderline);
                    shown.setUnderlineColor(fault_);
                    break;
            }
            setFormat(at, 1, shown);
        }
    }
}

}  // namespace fabula::ide
