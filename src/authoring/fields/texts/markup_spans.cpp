#include "authoring/fields/texts/markup_spans.h"

#include <algorithm>

#include "text/line_ends.h"

namespace fabula::authoring {
namespace {

struct Piece {
    std::size_t begin = 0;
    std::size_t size = 0;
};

/// The size of the blank or line end at `at`; 0 when there is none.
std::size_t SeparatorAt(std::string_view text, std::size_t at) {
    const std::string_view rest = text.substr(at);
    if (rest.starts_with("\r\n")) return 2;
    if (rest.starts_with(' ') || rest.starts_with('\r') || rest.starts_with('\n')) return 1;
    return rest.starts_with(text::kLineEndMarker) ? text::kLineEndMarker.size() : 0;
}

std::vector<Piece> MarkupWords(std::string_view text) {
    std::vector<Piece> words;
    std::size_t begin = 0;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t separator = SeparatorAt(text, at);
        at += std::max<std::size_t>(separator, 1);
        if (separator == 0) continue;
        words.push_back({begin, at - separator - begin});
        begin = at;
    }
    words.push_back({begin, text.size() - begin});
    return words;
}

/// The tags, entities and lone characters of markup of a word, in its order. What is not closed reaches to
/// the end of the word.
std::vector<Piece> PiecesOf(std::string_view word) {
    std::vector<Piece> pieces;
    std::size_t at = 0;
    while ((at = word.find_first_of("<>&", at)) != std::string_view::npos) {
        std::size_t end = at;
        if (word[at] == '<') end = word.find('>', at);
        if (word[at] == '&') end = word.find_first_of(";<", at);
        if (end != std::string_view::npos && word[at] == '&' && word[end] == '<') --end;
        const std::size_t size = end == std::string_view::npos ? word.size() - at : end - at + 1;
        pieces.push_back({at, size});
        at += size;
    }
    return pieces;
}

/// Where in a word the fault lies: the first piece that is refused for the same reason by itself.
Piece PlaceOfFault(std::string_view word, const text::Verdict& verdict, bool tagsAllowed,
                   const text::TagCatalogue& tags) {
    for (const Piece& piece : PiecesOf(word)) {
        const std::string_view alone = word.substr(piece.begin, piece.size);
        if (text::ValidateWord(alone, verdict.wordNumber, tagsAllowed, tags) == verdict) return piece;
    }
    return {0, word.size()};
}

void AddMarkup(std::string_view piece, std::size_t begin, std::vector<MarkupSpan>& spans) {
    if (piece.size() < 2) return;
    if (piece.front() == '&' && piece.back() == ';')
        spans.push_back({MarkupKind::Entity, begin, piece.size()});
    if (piece.front() != '<' || piece.back() != '>') return;
    const std::size_t equals = piece.find('=');
    if (equals == std::string_view::npos) {
        spans.push_back({MarkupKind::Tag, begin, piece.size()});
        return;
    }
    spans.push_back({MarkupKind::Tag, begin, equals + 1});
    const std::size_t value = piece.size() - equals - 2;
    if (value > 0) spans.push_back({MarkupKind::Value, begin + equals + 1, value});
    spans.push_back({MarkupKind::Tag, begin + piece.size() - 1, 1});
}

}  // namespace

std::vector<MarkupSpan> MarkupSpans(std::string_view text, bool tagsAllowed,
                                    const text::TagCatalogue& tags) {
    std::vector<MarkupSpan> spans;
    std::vector<MarkupSpan> faults;
    int wordNumber = 0;
    for (const Piece& place : MarkupWords(text)) {
        const std::string_view word = text.substr(place.begin, place.size);
        for (const Piece& piece : PiecesOf(word))
            AddMarkup(word.substr(piece.begin, piece.size), place.begin + piece.begin, spans);
        const text::Verdict verdict = text::ValidateWord(word, ++wordNumber, tagsAllowed, tags);
        if (verdict.IsValid()) continue;
        const Piece fault = PlaceOfFault(word, verdict, tagsAllowed, tags);
        faults.push_back({MarkupKind::Fault, place.begin + fault.begin, fault.size});
    }
    spans.insert(spans.end(), faults.begin(), faults.end());
    return spans;
}

std::optional<DescriptionFault> FirstFault(std::string_view text, bool tagsAllowed,
                                           const text::TagCatalogue& tags) {
    int wordNumber = 0;
    for (const Piece& place : MarkupWords(text)) {
        const std::string_view word = text.substr(place.begin, place.size);
        text::Verdict verdict = text::ValidateWord(word, ++wordNumber, tagsAllowed, tags);
        if (verdict.IsValid()) continue;
        const Piece fault = PlaceOfFault(word, verdict, tagsAllowed, tags);
        return DescriptionFault{std::move(verdict), place.begin + fault.begin, fault.size};
    }
    return std::nullopt;
}

}  // namespace fabula::authoring
