#include "cli/encoding_option.h"

#include <string>

namespace fabula::cli {

void AddEncodingOption(CLI::App& verb, interchange::Encoding& encoding) {
    using interchange::Encoding;
    const auto choose = [&encoding](const std::string& word) {
        encoding = word == "utf-8" ? Encoding::Utf8 : Encoding::Windows1252;
    };
    verb.add_option_function<std::string>(
            "--encoding", choose, "utf-8 or windows-1252, where the source itself doesn't tell rightly")
        ->transform(CLI::IsMember({"utf-8", "windows-1252"}, CLI::ignore_case));
}

}  // namespace fabula::cli
