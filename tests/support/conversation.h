#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include <sys/types.h>

namespace fabula::test {

/// How a program is talked to.
enum class Line {
    Pipe,      ///< its standard input and output are pipes
    Terminal,  ///< they are a terminal of 40 columns that knows colours
};

/// A program that runs while a test talks with it. A program that says nothing for long fails the test.
class Conversation {
  public:
    Conversation(Line line, const std::filesystem::path& program,
                 const std::vector<std::string>& arguments);
    Conversation(const Conversation&) = delete;
    Conversation& operator=(const Conversation&) = delete;
    ~Conversation();

    /// Types a text. In a terminal it waits until the program edits the line.
    void Send(std::string_view text);
    /// What the program says up to and with `mark`. Throws when it ends before.
    std::string ReadUntil(std::string_view mark);
    /// What has come behind the latest mark.
    const std::string& Unread() const { return unread_; }
    /// The rest of what it says. A pipe to it is closed before, since most programs wait for that.
    std::string ReadToEnd();
    /// The status that it ended with; -1 when a signal ended it.
    int Status();

  private:
    void StartWithPipes(const std::filesystem::path& program, const std::vector<std::string>& arguments);
    void StartInTerminal(const std::filesystem::path& program, const std::vector<std::string>& arguments);
    void CloseInput();
    void AwaitEditor() const;
    bool ReadMore();

    pid_t child_ = -1;
    int input_ = -1;   ///< to the program
    int output_ = -1;  ///< from it
    std::string unread_;
};

}  // namespace fabula::test
