#include "store/ifid.h"

#include <array>
#include <cstdint>
#include <cstdio>
#include <random>

#include "store/adventure.h"

namespace fabula::store {
namespace {

constexpr std::string_view kPrefix = "UUID://";
constexpr std::string_view kSuffix = "//";
constexpr std::string_view kForm = "XXXXXXXX-XXXX-XXXX-XXXX-XXXXXXXXXXXX";

}  // namespace

std::string NewIfid() {
    std::random_device device;
    std::array<std::uint32_t, 4> words{};
    for (std::uint32_t& word : words)
        word = device();
    // Version 4, variant 1: what a UUID of random bits says of itself.
    words[1] = (words[1] & 0xFFFF0FFFU) | 0x4000U;
    words[2] = (words[2] & 0x3FFFFFFFU) | 0x80000000U;
    char text[kForm.size() + 1];
    std::snprintf(text, sizeof text, "%08X-%04X-%04X-%04X-%04X%08X", words[0], words[1] >> 16,
                  words[1] & 0xFFFFU, words[2] >> 16, words[2] & 0xFFFFU, words[3]);
    return text;
}

bool IsIfid(std::string_view text) {
    if (text.size() != kForm.size()) return false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool digit = (text[i] >= '0' && text[i] <= '9') || (text[i] >= 'A' && text[i] <= 'F');
        if (kForm[i] == 'X' ? !digit : text[i] != kForm[i]) return false;
    }
    return true;
}

std::string MarkedIfid(std::string_view ifid) {
    std::string marked(kPrefix);
    return marked.append(ifid).append(kSuffix);
}

std::string IfidOf(Adventure& adventure) {
    if (!adventure.Schema(TableNum::System).Find("ifid")) return "";
    PreparedQuery system = adventure.Prepare(TableNum::System, "ifid", "");
    if (!system.First({})) return "";
    std::string_view text = system.Text(0);
    if (!text.starts_with(kPrefix) || !text.ends_with(kSuffix)) return "";
    text.remove_prefix(kPrefix.size());
    text.remove_suffix(kSuffix.size());
    return IsIfid(text) ? std::string(text) : "";
}

}  // namespace fabula::store
