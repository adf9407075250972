#pragma once

#include <string>
#include <string_view>

namespace fabula::qt {

/// How the windows are coloured: as the desktop says (light, when it says nothing), or the person's own
/// choice.
enum class Theme { System, Light, Dark };

/// "system", "light" or "dark", as settings hold it; any other word counts as System.
std::string_view NameOf(Theme theme);
Theme ThemeFrom(std::string_view name);

/// Gives every window of the program the theme's colours, and the program's look (qt/look/look.h).
void ApplyTheme(Theme theme);

/// Whether the windows are dark at the moment.
bool WindowsAreDark();

}  // namespace fabula::qt
