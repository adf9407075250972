#pragma once

namespace fabula::qt {

/// Draws the controls of the windows flat, with outlines that can be seen in light and in dark, in sizes
/// that follow the font. A desktop that has a style of its own keeps it.
void UseLook();

}  // namespace fabula::qt
