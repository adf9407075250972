#include "cli/host/standard_output.h"

#include <iostream>
#include <string_view>

#include <unistd.h>

namespace fabula::cli {

StandardOutput::StandardOutput()
    : output_(STDOUT_FILENO), isTerminal_(isatty(STDOUT_FILENO) != 0), before_(std::cout.rdbuf(this)) {}

StandardOutput::~StandardOutput() {
    output_.Flush();
    std::cout.rdbuf(before_);
}

void StandardOutput::Finish() {
    output_.Flush();
    output_.Check();
}

StandardOutput::int_type StandardOutput::overflow(int_type byte) {
    if (traits_type::eq_int_type(byte, traits_type::eof())) return traits_type::not_eof(byte);
    const char one = traits_type::to_char_type(byte);
    return xsputn(&one, 1) == 1 ? byte : traits_type::eof();
}

std::streamsize StandardOutput::xsputn(const char* bytes, std::streamsize count) {
    const std::string_view text(bytes, static_cast<std::size_t>(count));
    output_.Write(text);
    if (isTerminal_ && text.find('\n') != std::string_view::npos) output_.Flush();
    return output_.Failed() ? 0 : count;
}

int StandardOutput::sync() {
    output_.Flush();
    return output_.Failed() ? -1 : 0;
}

}  // namespace fabula::cli
