// A program that stands for a decompiler in tests. What it does is told by its name, which its callers give
// it by a link:
// "...succeeds", "...fails", "...complains" (it writes and fails), "...endless", "...silent" and
// "...crashes".

#include <cstdlib>
#include <iostream>
#include <string>

#include <unistd.h>

namespace {

/// What it was called with, an argument a line, and whether there was anything to read.
void WriteArguments(int count, char** arguments) {
    for (int i = 1; i < count; ++i)
        std::cout << arguments[i] << "\n";
    std::string input;
    std::getline(std::cin, input);
    std::cout << "[" << input << "]\n";
}

}  // namespace

int main(int count, char** arguments) {
    const std::string name = arguments[0];
    const auto is = [&name](const char* end) { return name.ends_with(end); };
    if (is("succeeds") || is("complains")) WriteArguments(count, arguments);
    if (is("fails") || is("complains")) {
        std::cerr << "Not a snapshot: \xFF\x1B[31m\n";
        return 3;
    }
    if (is("endless")) {
        std::cout << "begun" << std::endl;
        for (;;)
            pause();
    }
    if (is("crashes")) std::abort();
    return EXIT_SUCCESS;
}
