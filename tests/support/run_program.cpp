#include "support/run_program.h"

#include <fstream>
#include <iterator>
#include <stdexcept>

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include "support/temp_folder.h"

namespace fabula::test {
namespace {

std::string ReadAll(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

/// In the child: connects one of the three standard streams to a file.
void Connect(int stream, const std::filesystem::path& file, int flags) {
    const int handle = open(file.c_str(), flags, 0600);
    if (handle < 0 || dup2(handle, stream) < 0) _exit(127);
    close(handle);
}

}  // namespace

ProgramResult RunProgram(const std::filesystem::path& program, const std::vector<std::string>& arguments,
                         const std::string& input) {
    const TempFolder folder;
    std::ofstream(folder / "in", std::ios::binary) << input;
    std::vector<char*> words{const_cast<char*>(program.c_str())};
    for (const std::string& argument : arguments)
        words.push_back(const_cast<char*>(argument.c_str()));
    words.push_back(nullptr);
    const pid_t child = fork();
    if (child < 0) throw std::runtime_error("could not start a program for a test");
    if (child == 0) {
        Connect(STDIN_FILENO, folder / "in", O_RDONLY);
        Connect(STDOUT_FILENO, folder / "out", O_WRONLY | O_CREAT | O_TRUNC);
        Connect(STDERR_FILENO, folder / "err", O_WRONLY | O_CREAT | O_TRUNC);
        execv(program.c_str(), words.data());
        _exit(127);
    }
    int status = 0;
    waitpid(child, &status, 0);
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, ReadAll(folder / "out"), ReadAll(folder / "err")};
}

}  // namespace fabula::test
