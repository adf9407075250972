#pragma once

namespace fabula::ide {

/// Pixels between the edge of a dialog and what it holds.
inline constexpr int kDialogMargin = 16;

}  // namespace fabula::ide
