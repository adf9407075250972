#include "terminal/line_editor.h"

#include <cerrno>
#include <clocale>
#include <cstdio>

#include <histedit.h>
#include <poll.h>
#include <unistd.h>

#include "platform/error.h"
#include "text/encoding/utf8.h"

namespace fabula::terminal {
namespace {

constexpr int kHistoryLength = 500;

}  // namespace

LineEditor::LineEditor() {
    // The editor takes the widths of characters, and whether they can be shown, from the locale.
    if (!std::setlocale(LC_CTYPE, "C.UTF-8")) std::setlocale(LC_CTYPE, "");
    history_ = history_init();
    editor_ = el_init("fabula", stdin, stdout, stderr);
    if (!history_ || !editor_) throw Error("Could not prepare the terminal.");
    HistEvent event;
    history(history_, &event, H_SETSIZE, kHistoryLength);
    history(history_, &event, H_SETUNIQUE, 1);
    el_set(editor_, EL_CLIENTDATA, this);
    el_set(editor_, EL_PROMPT_ESC, &LineEditor::Prompt, kPromptMark);
    el_set(editor_, EL_GETCFN, &LineEditor::GetCharacter);
    el_set(editor_, EL_HIST, history, history_);
    el_set(editor_, EL_EDITOR, "emacs");
    el_set(editor_, EL_SIGNAL, 1);
    el_source(editor_, nullptr);
}

LineEditor::~LineEditor() {
    el_end(editor_);
    history_end(history_);
}

TypedLine LineEditor::Read(const Question& question) {
    prompt_ = question.prompt;
    timeOut_ = question.timeOut;
    timedOut_ = false;
    int count = 0;
    const char* typed = el_gets(editor_, &count);
    if (!typed || count == 0) {
        std::fputc('\n', stdout);
        std::fflush(stdout);
        return {timedOut_ ? TypedLine::Kind::TimeOut : TypedLine::Kind::End};
    }
    std::string line(typed, static_cast<std::size_t>(count));
    if (line.ends_with('\n')) line.pop_back();
    if (question.remember && !line.empty()) {
        HistEvent event;
        history(history_, &event, H_ENTER, line.c_str());
    }
    return {TypedLine::Kind::Line, line.substr(0, kLongestTypedLine), true};
}

char* LineEditor::Prompt(EditLine* editor) {
    LineEditor* self = nullptr;
    el_get(editor, EL_CLIENTDATA, &self);
    return self->prompt_.data();
}

int LineEditor::GetCharacter(EditLine* editor, wchar_t* character) {
    LineEditor* self = nullptr;
    el_get(editor, EL_CLIENTDATA, &self);
    return self->ReadCharacter(*character);
}

/// 1 for a character, 0 at the end of the input, -1 when the time is over.
int LineEditor::ReadCharacter(wchar_t& character) {
    std::string bytes(1, '\0');
    if (!AwaitByte(bytes[0])) return timedOut_ ? -1 : 0;
    while (bytes.size() < text::SequenceLength(bytes[0])) {
        char next = 0;
        if (!AwaitByte(next)) return timedOut_ ? -1 : 0;
        bytes += next;
    }
    const char32_t point = text::DecodeAt(bytes, 0).value;
    character = static_cast<wchar_t>(point < text::kBadByte ? point : U'\uFFFD');
    return 1;
}

/// False at the end of the input, or when the time is over.
bool LineEditor::AwaitByte(char& byte) {
    for (;;) {
        pollfd waiting{STDIN_FILENO, POLLIN, 0};
        const int ready = poll(&waiting, 1, timeOut_ ? static_cast<int>(timeOut_->count()) : -1);
        if (ready == 0) {
            timedOut_ = true;
            return false;
        }
        if (ready < 0 && errno == EINTR) continue;
        const ssize_t count = read(STDIN_FILENO, &byte, 1);
        if (count < 0 && errno == EINTR) continue;
        return count == 1;
    }
}

}  // namespace fabula::terminal
