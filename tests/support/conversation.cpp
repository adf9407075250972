#include "support/conversation.h"

#include <stdexcept>
#include <utility>

#include <fcntl.h>
#include <poll.h>
#include <pty.h>
#include <signal.h>
#include <stdlib.h>
#include <sys/wait.h>
#include <termios.h>
#include <unistd.h>

namespace fabula::test {
namespace {

constexpr int kPatience = 20'000;  ///< in ms
constexpr unsigned short kColumns = 40;

/// In the child: becomes the program.
[[noreturn]] void Become(const std::filesystem::path& program, const std::vector<std::string>& arguments) {
    std::vector<char*> words{const_cast<char*>(program.c_str())};
    for (const std::string& argument : arguments)
        words.push_back(const_cast<char*>(argument.c_str()));
    words.push_back(nullptr);
    execv(program.c_str(), words.data());
    _exit(127);
}

}  // namespace

Conversation::Conversation(Line line, const std::filesystem::path& program,
                           const std::vector<std::string>& arguments) {
    if (line == Line::Pipe) {
        StartWithPipes(program, arguments);
    } else {
        StartInTerminal(program, arguments);
    }
    if (child_ < 0) throw std::runtime_error("could not start a program for a test");
}

void Conversation::StartWithPipes(const std::filesystem::path& program,
                                  const std::vector<std::string>& arguments) {
    int toProgram[2];
    int fromProgram[2];
    if (pipe2(toProgram, O_CLOEXEC) != 0 || pipe2(fromProgram, O_CLOEXEC) != 0)
        throw std::runtime_error("could not make pipes for a test");
    child_ = fork();
    if (child_ == 0) {
        if (dup2(toProgram[0], STDIN_FILENO) < 0 || dup2(fromProgram[1], STDOUT_FILENO) < 0) _exit(127);
        Become(program, arguments);
    }
    close(toProgram[0]);
    close(fromProgram[1]);
    input_ = toProgram[1];
    output_ = fromProgram[0];
}

void Conversation::StartInTerminal(const std::filesystem::path& program,
                                   const std::vector<std::string>& arguments) {
    const winsize size{24, kColumns, 0, 0};
    child_ = forkpty(&output_, nullptr, nullptr, &size);
    if (child_ == 0) {
        setenv("TERM", "xterm-256color", 1);
        setenv("HOME", "/nonexistent", 1);
        unsetenv("NO_COLOR");
        Become(program, arguments);
    }
    input_ = output_;
}

Conversation::~Conversation() {
    CloseInput();
    close(output_);
    if (child_ > 0) kill(child_, SIGKILL);
    Status();
}

void Conversation::CloseInput() {
    if (input_ >= 0 && input_ != output_) close(input_);
    input_ = -1;
}

/// A terminal shows what is typed before the program has come to edit the line, and then again.
void Conversation::AwaitEditor() const {
    termios state{};
    for (int waited = 0; waited < kPatience; ++waited) {
        if (tcgetattr(input_, &state) == 0 && (state.c_lflag & ECHO) == 0) return;
        usleep(1000);
    }
    throw std::runtime_error("a program does not edit its input");
}

void Conversation::Send(std::string_view text) {
    if (input_ == output_) AwaitEditor();
    if (write(input_, text.data(), text.size()) != static_cast<ssize_t>(text.size()))
        throw std::runtime_error("a program does not listen");
}

/// False at the end of what the program says.
bool Conversation::ReadMore() {
    pollfd waiting{output_, POLLIN, 0};
    if (poll(&waiting, 1, kPatience) <= 0)
        throw std::runtime_error("a program fell silent behind: " + unread_);
    char piece[4096];
    const ssize_t count = read(output_, piece, sizeof piece);
    if (count <= 0) return false;  // of a terminal whose program has ended: EIO
    unread_.append(piece, static_cast<std::size_t>(count));
    return true;
}

std::string Conversation::ReadUntil(std::string_view mark) {
    for (;;) {
        const std::size_t place = unread_.find(mark);
        if (place != std::string::npos) {
            std::string said = unread_.substr(0, place + mark.size());
            unread_.erase(0, said.size());
            return said;
        }
        if (!ReadMore()) throw std::runtime_error("a program ended behind: " + unread_);
    }
}

std::string Conversation::ReadToEnd() {
    CloseInput();
    while (ReadMore()) {
    }
    return std::exchange(unread_, {});
}

int Conversation::Status() {
    if (child_ < 0) return -1;
    int status = 0;
    waitpid(child_, &status, 0);
    child_ = -1;
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

}  // namespace fabula::test
