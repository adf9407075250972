#pragma once

namespace fabula::terminal {

// What the program knows of the terminal that it runs in.

/// Whether someone reads and types: standard input and output both are a terminal.
bool IsInteractive();

/// The columns of the terminal that standard output is; 0 when it is none, or does not tell.
int TerminalWidth();

/// Whether that terminal shows colours. False, too, when the user wants none (NO_COLOR).
bool HasColours();

}  // namespace fabula::terminal
