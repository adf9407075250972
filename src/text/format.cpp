#include "text/format.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <limits>
#include <optional>

#include "text/encoding/utf8.h"
#include "text/line_ends.h"
#include "text/moment.h"
#include "text/numbers.h"
#include "text/str_edit.h"

namespace fabula::text {
namespace {

constexpr std::int64_t kLargestWidth = std::numeric_limits<std::int16_t>::max();

[[noreturn]] void FailNoNumber() {
    throw std::invalid_argument("FormatText: a number was expected");
}

struct NumberOf {
    std::int64_t operator()(std::int64_t number) const { return number; }
    std::int64_t operator()(double number) const {
        constexpr double kBeyond = 9.2e18;
        if (std::isnan(number)) FailNoNumber();
        if (std::abs(number) > kBeyond) return number < 0 ? INT64_MIN : INT64_MAX;
        return static_cast<std::int64_t>(std::nearbyint(number));
    }
    std::int64_t operator()(const std::string& text) const {
        const std::optional<std::int64_t> number = WholeNumber(TrimBlanks(text));
        if (!number) FailNoNumber();
        return *number;
    }
    std::int64_t operator()(std::monostate) const { FailNoNumber(); }
    std::int64_t operator()(const Blob&) const { FailNoNumber(); }
};

std::string TimeText(const platform::DateTime& moment) {
    char text[48];
    std::snprintf(text, sizeof text, "%02d:%02d:%02d", moment.hour, moment.minute, moment.second);
    return text;
}

std::string DateText(const platform::DateTime& moment) {
    static constexpr const char* kMonths[] = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                              "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
    char text[48];
    std::snprintf(text, sizeof text, "%02d-%s-%04d ", moment.day, kMonths[moment.month - 1], moment.year);
    return text + TimeText(moment);
}

using MomentText = std::string (*)(const platform::DateTime& moment);

/// One walk over a format. Every member function adds to the result.
class Formatter {
  public:
    Formatter(std::span<const Value> values, const platform::Clock* clock)
        : values_(values), clock_(clock) {}

    std::string Run(std::string_view format) {
        result_.reserve(2 * format.size() + 64);
        std::size_t begin = 0;
        while (begin <= format.size()) {
            const std::size_t end = std::min(format.find('!', begin), format.size());
            AddToken(format.substr(begin, end - begin));
            begin = end + 1;
        }
        return std::move(result_);
    }

  private:
    enum class Side { kLeft, kRight };

    void AddToken(std::string_view token) {
        if (token.empty()) return;
        if (token[0] != '%') {
            result_ += token;
        } else if (token.size() > 1) {
            AddDirective(token[1], token.substr(2));
        }
    }

    void AddDirective(char letter, std::string_view rest) {
        switch (letter | 0x20) {
            case 'a':
                return AddText(Side::kLeft, rest);
            case 'r':
                return AddText(Side::kRight, rest);
            case 's':
                return AddShort(rest, ' ');
            case 'z':
                return AddShort(rest, '0');
            case 'n':
                return AddLong(rest);
            case 'd':
                return AddMoment(rest, DateText);
            case 'i':
                return AddMoment(rest, TimeText);
            case 'c':
                return AddRepeated(rest);
            case 't':
                return AddTabulation(rest);
            case 'e':
                result_ += '!';
                return;
            case 'f':
                result_ += '\f';
                return;
            case 'l':
                result_ += kLineEnd;
                return;
            case 'p':
                result_ += '%';
                return;
            case 'q':
                result_ += '"';
                return;
            default:
                return;
        }
    }

    const Value& NextValue() {
        if (next_ == values_.size())
            throw std::invalid_argument("FormatText: the format takes more values than given");
        return values_[next_++];
    }

    std::int64_t NextNumber() { return std::visit(NumberOf{}, NextValue()); }

    /// The width that a directive's rest asks for; 0 is none.
    std::size_t Width(std::string_view rest) {
        if (rest.empty()) return 0;
        const std::int64_t width = rest == "*" ? NextNumber() : WholeNumber(TrimBlanks(rest)).value_or(0);
        return width > 0 && width <= kLargestWidth ? static_cast<std::size_t>(width) : 0;
    }

    void AddAligned(Side side, std::string_view text, std::size_t width) {
        if (width == 0) {
            result_ += text;
            return;
        }
        const std::size_t length = Length(text);
        if (length > width) {
            result_ += side == Side::kLeft ? Left(text, width) : Right(text, width);
            return;
        }
        if (side == Side::kRight) result_.append(width - length, ' ');
        result_ += text;
        if (side == Side::kLeft) result_.append(width - length, ' ');
    }

    void AddText(Side side, std::string_view rest) {
        const std::size_t width = Width(rest);
        const Value& value = NextValue();
        if (const auto* text = std::get_if<std::string>(&value)) return AddAligned(side, *text, width);
        AddAligned(side, ToText(value), width);
    }

    /// %s and %z.
    void AddShort(std::string_view rest, char filler) {
        const std::size_t width = Width(rest);
        const std::int64_t number = NextNumber();
        if (number < INT16_MIN || number > INT16_MAX) return AddOverflow(number, width);
        char digits[8];
        const char* const end = std::to_chars(digits, digits + sizeof digits, number).ptr;
        const auto length = static_cast<std::size_t>(end - digits);
        if (width > 0 && length > width) return AddOverflow(number, width);
        if (length < width) result_.append(width - length, filler);
        result_.append(digits, length);
    }

    void AddLong(std::string_view rest) {
        const std::size_t width = Width(rest);
        const std::int64_t number = NextNumber();
        if (number < INT32_MIN || number > INT32_MAX) return AddOverflow(number, width);
        char digits[12];
        const char* const end = std::to_chars(digits, digits + sizeof digits, number).ptr;
        result_.append(digits, static_cast<std::size_t>(end - digits));
    }

    void AddOverflow(std::int64_t number, std::size_t width) {
        if (width == 0)
            throw FormatRangeError("The number " + std::to_string(number) +
                                   " is beyond what a listing can show.");
        result_.append(width, '*');
    }

    void AddMoment(std::string_view rest, MomentText textOf) {
        const bool isGiven = !rest.empty() && rest.back() == '%';
        if (isGiven) rest.remove_suffix(1);
        const std::size_t width = Width(rest);
        if (!isGiven) {
            if (clock_ == nullptr)
                throw std::invalid_argument("FormatText: the present moment needs a clock");
            return AddAligned(Side::kLeft, textOf(clock_->Now()), width);
        }
        const std::string given = ToText(NextValue());
        const std::optional<platform::DateTime> moment = ReadMoment(given);
        AddAligned(Side::kLeft, moment ? textOf(*moment) : given, width);
    }

    void AddRepeated(std::string_view rest) {
        const std::string_view character = Right(rest, 1);
        const std::size_t count = Width(rest.substr(0, rest.size() - character.size()));
        for (std::size_t i = 0; i < count; ++i)
            result_ += character;
    }

    void AddTabulation(std::string_view rest) {
        const std::size_t column = std::max<std::size_t>(Width(rest), 1);
        const std::size_t length = ResultLength();
        if (length < column) {
            result_.append(column - 1 - length, ' ');
            return;
        }
        result_ += kLineEnd;
        result_.append(column - 1, ' ');
    }

    /// The code points of the result. Counts only what came since the last call.
    std::size_t ResultLength() {
        countedLength_ += Length(std::string_view(result_).substr(countedBytes_));
        countedBytes_ = result_.size();
        return countedLength_;
    }

    std::span<const Value> values_;
    const platform::Clock* clock_;
    std::size_t next_ = 0;
    std::string result_;
    std::size_t countedBytes_ = 0;
    std::size_t countedLength_ = 0;
};

}  // namespace

std::string FormatText(std::string_view format, std::span<const Value> values,
                       const platform::Clock* clock) {
    return Formatter(values, clock).Run(format);
}

std::string FormatText(std::string_view format, std::initializer_list<Value> values,
                       const platform::Clock* clock) {
    return FormatText(format, std::span<const Value>(values.begin(), values.size()), clock);
}

}  // namespace fabula::text
