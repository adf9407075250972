#include "cli/encoding_option.h"

#include <map>

namespace fabula::cli {

void AddEncodingOption(CLI::App& verb, interchange::Encoding& encoding) {
    using interchange::Encoding;
    const std::map<std::string, Encoding> words = {{"utf-8", Encoding::Utf8},
                                                   {"windows-1252", Encoding::Windows1252}};
    verb.add_option("--encoding", encoding,
                    "utf-8 or windows-1252, where the source itself doesn't tell rightly")
        ->transform(CLI::CheckedTransformer(words, CLI::ignore_case));
}

}  // namespace fabula::cli
