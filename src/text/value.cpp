#include "text/value.h"

#include <charconv>

namespace fabula::text {
namespace {

struct TextOf {
    std::string operator()(std::monostate) const { return {}; }
    std::string operator()(std::int64_t number) const { return std::to_string(number); }
    std::string operator()(double number) const {
        char digits[32];
        const auto end = std::to_chars(digits, digits + sizeof digits, number).ptr;
        return {digits, end};
    }
    std::string operator()(const std::string& text) const { return text; }
    std::string operator()(const Blob&) const { return {}; }
};

}  // namespace

std::string ToText(const Value& value) {
    return std::visit(TextOf{}, value);
}

}  // namespace fabula::text
