#pragma once

#include <QApplication>
#include <functional>
#include <optional>
#include <string>

#include "platform/dialogs.h"

namespace fabula::qt {

/// Where an exception of a program with windows ends that nobody else took: it becomes one sentence, and
/// the program goes on. A fault within that box, or the fourth in a row without an event that went well
/// between them, ends the program instead.
class LastBorder {
  public:
    /// Saves what could be lost, and gives a sentence that tells where; "" when there was nothing. What it
    /// throws is told too.
    using Keep = std::function<std::string()>;
    /// Ends the program, with its exit status.
    using End = std::function<void(int status)>;

    LastBorder(platform::Dialogs& dialogs, End end) : dialogs_(dialogs), end_(std::move(end)) {}

    void SetKeep(Keep keep) { keep_ = std::move(keep); }

    /// Does `work`, in the words of `doing` ("a key was pressed in \"Locations\""), which is asked only
    /// when the work fails. What the work gives, or nullopt when it failed.
    std::optional<bool> Run(const std::function<bool()>& work, const std::function<std::string()>& doing);

    static constexpr int kMostInARow = 3;

  private:
    void Tell(const std::string& what, const std::function<std::string()>& doing);
    void EndUntold(const std::string& what, const std::string& why);
    std::string Kept();

    platform::Dialogs& dialogs_;
    End end_;
    Keep keep_ = [] { return std::string(); };
    int inARow_ = 0;
    bool telling_ = false;
};

/// The application of a program with windows: all that reaches a window goes through the border.
class Program final : public QApplication {
  public:
    /// As of QApplication; `argc` and `argv` outlive it.
    Program(int& argc, char** argv);

    /// Runs until the program ends; events pass the border meanwhile. The exit status.
    int Run(LastBorder& border);
    bool notify(QObject* receiver, QEvent* event) override;

  private:
    LastBorder* border_ = nullptr;
};

/// Runs the body of a program's `main`: what it throws before there is a border becomes one sentence on the
/// standard error and the exit status 1. A fabula::Error tells what was being done; of all else it is told
/// that the program began.
int RunProgram(const char* name, const std::function<int()>& body);

}  // namespace fabula::qt
