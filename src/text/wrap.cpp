#include "text/wrap.h"

#include <stdexcept>

#include "text/encoding/utf8.h"
#include "text/line_ends.h"
#include "text/str_edit.h"

namespace fabula::text {
namespace {

/// Finds the next place of one character. The search goes on from where the last one ended, so that asking
/// at every word of a long text stays one pass over it.
class NextPlace {
  public:
    NextPlace(std::u32string_view points, char32_t sought)
        : points_(points), sought_(sought), place_(points.find(sought)) {}

    std::size_t From(std::size_t at) {
        if (place_ < at) place_ = points_.find(sought_, at);
        return place_;
    }

  private:
    std::u32string_view points_;
    char32_t sought_;
    std::size_t place_;
};

/// The lines so far and the pending one. Lengths are in code points.
class Lines {
  public:
    Lines(std::size_t size, std::size_t hang) : indent_(hang, U' ') { lines_.reserve(size); }

    std::size_t PendingLength() const { return pending_.size(); }
    bool HasPendingWords() const { return hasWords_; }

    void AddWord(std::u32string_view word) {
        pending_ += word;
        hasWords_ = true;
    }

    /// Ends the pending line with `tail` at its end; the next one begins empty.
    void End(std::u32string_view tail) {
        lines_ += Encode(pending_);
        lines_ += Encode(tail);
        lines_ += kLineEnd;
        pending_.clear();
        hasWords_ = false;
    }

    /// The same, but the next line begins with the indent.
    void Break(std::u32string_view tail) {
        End(tail);
        pending_ = indent_;
    }

    std::string Take() { return std::move(lines_); }

  private:
    std::u32string indent_;
    std::u32string pending_;
    bool hasWords_ = false;
    std::string lines_;
};

}  // namespace

std::string WrapText(std::string_view text, int width, int hang) {
    if (hang < 0 || hang >= width)
        throw std::invalid_argument("WrapText: the indent does not fit the width");
    const std::u32string points = Decode(TrimBlanks(text));
    const std::u32string_view all = points;
    const std::size_t limit = static_cast<std::size_t>(width) + 1;

    Lines lines(text.size() + text.size() / static_cast<std::size_t>(width) * kLineEnd.size(),
                static_cast<std::size_t>(hang));
    NextPlace blanks(all, U' ');
    NextPlace returns(all, U'\r');
    std::size_t at = 0;
    for (;;) {
        const std::size_t carriageReturn = returns.From(at);
        const bool hasReturn = carriageReturn != std::u32string_view::npos;
        if (hasReturn && carriageReturn - at + 1 + lines.PendingLength() <= limit) {
            lines.End(all.substr(at, carriageReturn - at));
            at = carriageReturn + 1;
            if (all.substr(at, 1) == U"\n") ++at;
            continue;
        }
        const std::size_t blank = blanks.From(at);
        if (blank == std::u32string_view::npos) break;

        const std::size_t wordLength = blank - at + 1;
        if (wordLength + lines.PendingLength() <= limit) {
            lines.AddWord(all.substr(at, wordLength));
            at = blank + 1;
        } else if (wordLength <= limit && lines.HasPendingWords()) {
            lines.Break({});
        } else {
            const std::size_t room = limit - lines.PendingLength();
            lines.Break(all.substr(at, room));
            at += room;
        }
    }
    const std::u32string_view rest = all.substr(at);
    if (lines.HasPendingWords() && lines.PendingLength() + rest.size() > limit) lines.Break({});
    lines.End(rest);
    return lines.Take();
}

}  // namespace fabula::text
