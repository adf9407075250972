#include "text/line_ends.h"

namespace fabula::text {

std::string NormalizeLineEnds(std::string_view text, std::string_view lineEnd) {
    std::string result;
    result.reserve(text.size());
    for (std::size_t at = 0; at < text.size(); ++at) {
        const char character = text[at];
        if (character != '\r' && character != '\n') {
            result += character;
            continue;
        }
        result += lineEnd;
        if (text.substr(at, 2) == "\r\n") ++at;
    }
    return result;
}

}  // namespace fabula::text
