#include "support/decimal_comma.h"

#include <clocale>
#include <cstdint>
#include <fstream>
#include <stdexcept>

#include <stdlib.h>

namespace fabula::test {
namespace {

/// The numbers of a locale as the C library keeps them in a file. A system need have no such locale
/// installed.
struct NumbersOfALocale {
    std::uint32_t mark = 0x20031114;
    std::uint32_t items = 6;
    std::uint32_t begins[6] = {32, 34, 35, 36, 40, 44};
    char point[2] = ",";
    char separator[1] = "";
    char groups[1] = "";
    std::uint32_t widePoint = U',';
    std::uint32_t wideSeparator = 0;
    char encoding[6] = "UTF-8";
};

}  // namespace

DecimalComma::DecimalComma() : before_(std::setlocale(LC_NUMERIC, nullptr)) {
    std::filesystem::create_directory(folder_ / "comma");
    const NumbersOfALocale numbers;
    std::ofstream(folder_ / "comma" / "LC_NUMERIC", std::ios::binary)
        .write(reinterpret_cast<const char*>(&numbers), sizeof numbers);
    setenv("LOCPATH", folder_.Path().c_str(), 1);
    const char* now = std::setlocale(LC_NUMERIC, "comma");
    unsetenv("LOCPATH");
    if (now == nullptr || std::string(std::localeconv()->decimal_point) != ",")
        throw std::runtime_error("could not make a locale with a decimal comma");
}

DecimalComma::~DecimalComma() {
    std::setlocale(LC_NUMERIC, before_.c_str());
}

}  // namespace fabula::test
