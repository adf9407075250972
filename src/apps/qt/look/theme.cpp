#include "qt/look/theme.h"

#include <QApplication>
#include <QPalette>
#include <QStyle>

#include "qt/look/look.h"

namespace fabula::qt {

namespace {

/// A role of the windows in both themes, 0xRRGGBB.
struct RoleColours {
    QPalette::ColorGroup group;
    QPalette::ColorRole role;
    QRgb light;
    QRgb dark;
};

/// Further roles, such as the edges of buttons, follow from this one.
constexpr RoleColours kWindows{QPalette::All, QPalette::Window, 0xf3f3f1, 0x2b2d30};

constexpr RoleColours kRoles[] = {
    {QPalette::All, QPalette::WindowText, 0x1d1f21, 0xe2e3e5},
    {QPalette::All, QPalette::Base, 0xffffff, 0x1e1f22},
    {QPalette::All, QPalette::AlternateBase, 0xf7f7f5, 0x25272a},
    {QPalette::All, QPalette::Text, 0x1d1f21, 0xe2e3e5},
    {QPalette::All, QPalette::Button, 0xeaeae7, 0x3a3d41},
    {QPalette::All, QPalette::ButtonText, 0x1d1f21, 0xe2e3e5},
    {QPalette::All, QPalette::ToolTipBase, 0xffffff, 0x3a3d41},
    {QPalette::All, QPalette::ToolTipText, 0x1d1f21, 0xe2e3e5},
    {QPalette::All, QPalette::Highlight, 0x1f5fbf, 0x3475d1},
    {QPalette::All, QPalette::HighlightedText, 0xffffff, 0xffffff},
    {QPalette::Inactive, QPalette::Highlight, 0xd3ddea, 0x3a4759},
    {QPalette::Inactive, QPalette::HighlightedText, 0x1d1f21, 0xe2e3e5},
    {QPalette::All, QPalette::Link, 0x1f5fbf, 0x7ab0f5},
    {QPalette::All, QPalette::PlaceholderText, 0x66696c, 0x9a9da2},
    {QPalette::Disabled, QPalette::WindowText, 0x96989b, 0x7d8085},
    {QPalette::Disabled, QPalette::Text, 0x96989b, 0x7d8085},
    {QPalette::Disabled, QPalette::ButtonText, 0x96989b, 0x7d8085},
};

QPalette PaletteOf(QRgb RoleColours::*theme) {
    QPalette palette(QColor(kWindows.*theme));
    for (const RoleColours& colours : kRoles)
        palette.setColor(colours.group, colours.role, QColor(colours.*theme));
    return palette;
}

/// Whether the desktop tells its own colours. Without them Qt takes those of its style, which are no one's
/// choice.
bool DesktopHasColours() {
    return QApplication::palette() != QApplication::style()->standardPalette();
}

}  // namespace

std::string_view NameOf(Theme theme) {
    switch (theme) {
        case Theme::Light:
            return "light";
        case Theme::Dark:
            return "dark";
        case Theme::System:
            break;
    }
    return "system";
}

Theme ThemeFrom(std::string_view name) {
    if (name == "light") return Theme::Light;
    if (name == "dark") return Theme::Dark;
    return Theme::System;
}

void ApplyTheme(Theme theme) {
    UseLook();
    switch (theme) {
        case Theme::Light:
            QApplication::setPalette(PaletteOf(&RoleColours::light));
            break;
        case Theme::Dark:
            QApplication::setPalette(PaletteOf(&RoleColours::dark));
            break;
        // A palette that sets nothing gives way to the one of the desktop.
        case Theme::System:
            QApplication::setPalette(QPalette());
            if (!DesktopHasColours()) QApplication::setPalette(PaletteOf(&RoleColours::light));
            break;
    }
}

bool WindowsAreDark() {
    const QPalette palette = QApplication::palette();
    return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
}

}  // namespace fabula::qt
