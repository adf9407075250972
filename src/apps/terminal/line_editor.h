#pragma once

#include "terminal/line_source.h"

struct editline;
struct history;

namespace fabula::terminal {

/// Lines typed in the terminal that standard input and output are, with editing, a history of the game
/// and the key bindings that ~/.editrc asks for.
class LineEditor final : public LineSource {
  public:
    LineEditor();
    LineEditor(const LineEditor&) = delete;
    LineEditor& operator=(const LineEditor&) = delete;
    ~LineEditor() override;

    TypedLine Read(const Question& question) override;

  private:
    static int GetCharacter(editline* editor, wchar_t* character);
    static char* Prompt(editline* editor);
    int ReadCharacter(wchar_t& character);
    bool AwaitByte(char& byte);

    ::history* history_;
    editline* editor_;
    std::string prompt_;
    std::optional<std::chrono::milliseconds> timeOut_;
    bool timedOut_ = false;
};

}  // namespace fabula::terminal
