#include "interchange/unvel/unvel_file.h"

#include "interchange/unvel/unvel_section.h"
#include "interchange/unvel/unvel_text.h"
#include "text/encoding/utf8.h"
#include "text/encoding/windows1252.h"
#include "text/str_edit.h"

namespace fabula::interchange {
namespace {

/// The text with "?" for each character that one byte can't hold.
std::string Writable(std::string_view line) {
    std::string result;
    for (std::size_t i = 0; i < line.size();) {
        const text::CodePoint point = text::DecodeAt(line, i);
        const std::string_view character = line.substr(i, point.size);
        result += text::ToWindows1252(character).unwritable ? "?" : character;
        i += point.size;
    }
    return result;
}

}  // namespace

void UnVelFile::Line(std::string_view line) {
    const auto unwritable = file_.WriteLine(line);
    if (!unwritable) return;
    Loss("the character " + *unwritable + " can't be written.");
    file_.WriteLine(Writable(line));
}

void UnVelFile::UnVelHdr(std::string_view title, bool blankFirst, bool comment) {
    const std::string prefix(comment ? kCommentMark : "");
    if (blankFirst) Line("");
    Line(prefix + std::string(title));
    Line(prefix + std::string(title.size(), '-'));
}

void UnVelFile::WriteUnVelDesc(const std::string& head, std::string_view text, std::string_view label,
                               bool comment) {
    Line(head);
    WrittenUnVelText written = ToUnVelText(text);
    const bool isHead = !comment && NumberAlone(written.line, label).has_value();
    if (!written.comesBack || isHead) Loss("the text will not come back as it is.");
    Line(std::string(comment ? kCommentMark : "") + written.line);
}

std::string UnVelFile::Word(std::string_view word, std::size_t letters) {
    const std::string_view cut = text::Left(word, letters);
    if (cut.size() < word.size())
        Loss("the word " + std::string(word) + " is cut to " + std::string(cut) + ".");
    if (cut.empty() || cut.find(' ') != std::string_view::npos)
        Loss("the word " + std::string(word) + " can't be read back.");
    return std::string(cut);
}

}  // namespace fabula::interchange
