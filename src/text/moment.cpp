#include "text/moment.h"

#include <cstdio>

#include "text/numbers.h"

namespace fabula::text {

std::string StoredMoment(const platform::DateTime& moment) {
    char text[80];
    std::snprintf(text, sizeof text, "%04d-%02d-%02d %02d:%02d:%02d", moment.year, moment.month, moment.day,
                  moment.hour, moment.minute, moment.second);
    return text;
}

bool IsMoment(std::string_view text) {
    constexpr std::string_view kForm = "0000-00-00 00:00:00";
    if (text.size() != kForm.size()) return false;
    for (std::size_t i = 0; i < kForm.size(); ++i) {
        const bool isDigit = text[i] >= '0' && text[i] <= '9';
        if (kForm[i] == '0' ? !isDigit : text[i] != kForm[i]) return false;
    }
    return true;
}

std::optional<platform::DateTime> ReadMoment(std::string_view text) {
    if (!IsMoment(text)) return std::nullopt;
    const auto number = [text](std::size_t begin, std::size_t size) {
        return SmallNumber(text.substr(begin, size)).value_or(0);
    };
    const platform::DateTime moment{number(0, 4),  number(5, 2),  number(8, 2),
                                    number(11, 2), number(14, 2), number(17, 2)};
    if (moment.month < 1 || moment.month > 12) return std::nullopt;
    return moment;
}

}  // namespace fabula::text
