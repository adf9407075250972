#include "terminal/tty.h"

#include <cstdlib>

#include <curses.h>
#include <sys/ioctl.h>
#include <unistd.h>
// Behind curses.h, which it needs.
#include <term.h>

namespace fabula::terminal {

bool IsInteractive() {
    return isatty(STDIN_FILENO) && isatty(STDOUT_FILENO);
}

int TerminalWidth() {
    winsize size{};
    if (ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) != 0) return 0;
    return size.ws_col;
}

bool HasColours() {
    constexpr int kFewestColours = 8;
    const char* unwanted = std::getenv("NO_COLOR");
    if (unwanted && *unwanted != '\0') return false;
    int status = 0;
    if (!isatty(STDOUT_FILENO) || setupterm(nullptr, STDOUT_FILENO, &status) != 0) return false;
    return tigetnum("colors") >= kFewestColours;
}

}  // namespace fabula::terminal
