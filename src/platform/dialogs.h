#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "platform/person.h"

namespace fabula::platform {

/// A question for the name of a file.
struct FileQuestion {
    std::string title;
    std::string filter;     ///< "Fabula Save File|*.sav"; more pairs may follow behind further bars
    std::string extension;  ///< "sav"; added to a name without one
    bool forWriting = false;
    std::filesystem::path start;  ///< the folder that is shown, or the file that is proposed in it
    bool asksToOverwrite = true;  ///< false when the caller asks in its own words
};

/// A question for one line of text.
struct TextQuestion {
    std::string prompt;
    std::string title;
    std::string proposal;
};

/// What is to become of changes on a screen that is about to close.
enum class Leaving { KeepEditing, Discard, Store };

/// What a program with windows tells and asks in boxes of their own.
class Dialogs : public Person {
  public:
    /// The file that was named, or nullopt. Before a file is overwritten the person is asked,
    /// unless the question leaves that to the caller.
    virtual std::optional<std::filesystem::path> ChooseFile(const FileQuestion& question) = 0;

    /// Asks `text` with OK and Cancel; true for OK.
    virtual bool Proceed(std::string_view text, std::string_view title) = 0;

    /// Asks what is to become of changes that are not stored yet. KeepEditing when the box is closed.
    virtual Leaving AskLeaving(std::string_view text, std::string_view title) = 0;

    /// The line that was typed, which may be empty; nullopt for Cancel.
    virtual std::optional<std::string> AskText(const TextQuestion& question) = 0;

    /// Shows a longer text in a window in which it can be read, copied and searched.
    virtual void Report(std::string_view text, std::string_view title) = 0;
    /// The same with OK and Cancel; true for OK.
    virtual bool ProceedFromReport(std::string_view text, std::string_view title) = 0;
};

}  // namespace fabula::platform
