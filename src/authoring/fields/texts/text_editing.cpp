#include "authoring/fields/texts/text_editing.h"

#include <algorithm>

#include "engine/output/printer.h"
#include "engine/output/script.h"
#include "store/tags.h"
#include "text/encoding/utf8.h"
#include "text/markup.h"

namespace fabula::authoring {
namespace {

/// A game's window that keeps the lines it is given and is nothing else of a window.
class PreviewWindow final : public engine::GameWindow {
  public:
    std::vector<ShownLine> TakeLines() { return std::move(lines_); }

    void Write(std::string_view text, const engine::TextStyle& style, engine::TextRole) override {
        lines_.back().push_back({std::string(text), style, {}});
    }
    void EndLine(engine::LineEnd) override { lines_.emplace_back(); }
    void Clear(int, int) override {}

  private:
    std::vector<ShownLine> lines_{1};
};

void CountLine(const ShownLine& line, TextCounts& counts) {
    bool inWord = false;
    for (const ShownRun& run : line) {
        for (const char32_t point : text::Decode(run.text)) {
            const bool blank = point <= U' ' || point == U'\u00A0';
            if (!blank && !inWord) ++counts.words;
            if (!blank) ++counts.letters;
            inWord = !blank;
        }
    }
}

}  // namespace

std::string CountsLine(const TextCounts& counts) {
    return (counts.complete ? "" : "more than ") + std::to_string(counts.words) +
           (counts.words == 1 ? " word, " : " words, ") + std::to_string(counts.letters) +
           (counts.letters == 1 ? " letter" : " letters");
}

TextEditing::TextEditing(store::Adventure& adventure)
    : tags_(store::LoadTagCatalogue(adventure)), settings_(engine::ReadTextSettings(adventure)) {
    // Texts are centred by this width.
    if (PreviewColumns() > 0) settings_.printWidth = PreviewColumns();
}

std::string TextEditing::NameOfFont(int font) const {
    if (settings_.characterSets) return {};
    const auto found = settings_.fontNames.find(font);
    return found == settings_.fontNames.end() ? std::string() : found->second;
}

int TextEditing::FontPoints() const {
    const auto found = settings_.fontSizes.find(settings_.fontSize);
    return text::ShownPoints(found == settings_.fontSizes.end() ? 0 : found->second);
}

int TextEditing::PreviewColumns() const {
    if (settings_.characterSets) return 0;
    if (settings_.printWidth <= 0) return kWidestPreview;
    return std::min(settings_.printWidth, kWidestPreview);
}

ShownText TextEditing::Print(std::string_view text, int width) const {
    const std::string_view shown = text::Left(text, kLongestPreview);
    const engine::PaneMeasures measures{.textWidth = width, .characterWidth = width};
    PreviewWindow window;
    engine::Script noScript;
    engine::Printer printer(window, measures, settings_, noScript);
    printer.PrintText(shown, true, true);
    ShownText result{window.TakeLines(), shown.size() == text.size()};
    for (ShownLine& line : result.lines) {
        for (ShownRun& run : line)
            run.fontName = NameOfFont(run.style.font);
    }
    return result;
}

ShownText TextEditing::Show(std::string_view text, int most) const {
    const int columns = std::min(PreviewColumns(), most);
    return Print(text, columns == 0 ? engine::kNoWidthLimit : columns);
}

TextCounts TextEditing::Count(std::string_view text) const {
    const ShownText shown = Print(text, engine::kNoWidthLimit);
    TextCounts counts{.complete = shown.complete};
    for (const ShownLine& line : shown.lines)
        CountLine(line, counts);
    return counts;
}

}  // namespace fabula::authoring
