#include "captured_output.h"

#include <stdexcept>

#include <sys/mman.h>
#include <unistd.h>

namespace fabula::test {
namespace {

int OpenMemory() {
    const int descriptor = memfd_create("output", MFD_CLOEXEC);
    if (descriptor < 0) throw std::runtime_error("could not make a file for a test");
    return descriptor;
}

}  // namespace

CapturedOutput::CapturedOutput() : descriptor_(OpenMemory()), output_(descriptor_) {}

CapturedOutput::~CapturedOutput() {
    close(descriptor_);
}

std::string CapturedOutput::Text() {
    output_.Flush();
    return Flushed();
}

std::string CapturedOutput::Flushed() const {
    std::string text(static_cast<std::size_t>(lseek(descriptor_, 0, SEEK_END)), '\0');
    if (pread(descriptor_, text.data(), text.size(), 0) != static_cast<ssize_t>(text.size()))
        throw std::runtime_error("could not read the output of a test");
    return text;
}

}  // namespace fabula::test
