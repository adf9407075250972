#pragma once

namespace fabula::player {

/// Lets screen readers know the text pane as what it is: a text that others write, like a terminal's, so
/// that what comes is said by itself and all of it can be read by line, word and character. Once for the
/// program; more calls change nothing.
void DescribeTextPanes();

}  // namespace fabula::player
