#include "qt/look/theme.h"

#include <QApplication>
#include <QPalette>
#include <QStyle>

#include "qt/look/look.h"

namespace fabula::qt {

namespace {

QPalette LightPalette() {
    QPalette palette(QColor(0xf3, 0xf3, 0xf1));
    palette.setColor(QPalette::WindowText, QColor(0x1d, 0x1f, 0x21));
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::AlternateBase, QColor(0xf7, 0xf7, 0xf5));
    palette.setColor(QPalette::Text, QColor(0x1d, 0x1f, 0x21));
    palette.setColor(QPalette::Button, QColor(0xea, 0xea, 0xe7));
    palette.setColor(QPalette::ButtonText, QColor(0x1d, 0x1f, 0x21));
    palette.setColor(QPalette::ToolTipBase, Qt::white);
    palette.setColor(QPalette::ToolTipText, QColor(0x1d, 0x1f, 0x21));
    palette.setColor(QPalette::Highlight, QColor(0x1f, 0x5f, 0xbf));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Inactive, QPalette::Highlight, QColor(0xd3, 0xdd, 0xea));
    palette.setColor(QPalette::Inactive, QPalette::HighlightedText, QColor(0x1d, 0x1f, 0x21));
    palette.setColor(QPalette::Link, QColor(0x1f, 0x5f, 0xbf));
    palette.setColor(QPalette::PlaceholderText, QColor(0x66, 0x69, 0x6c));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, QColor(0x96, 0x98, 0x9b));
    return palette;
}

QPalette DarkPalette() {
    QPalette palette(QColor(0x2b, 0x2d, 0x30));
    palette.setColor(QPalette::WindowText, QColor(0xe2, 0xe3, 0xe5));
    palette.setColor(QPalette::Base, QColor(0x1e, 0x1f, 0x22));
    palette.setColor(QPalette::AlternateBase, QColor(0x25, 0x27, 0x2a));
    palette.setColor(QPalette::Text, QColor(0xe2, 0xe3, 0xe5));
    palette.setColor(QPalette::Button, QColor(0x3a, 0x3d, 0x41));
    palette.setColor(QPalette::ButtonText, QColor(0xe2, 0xe3, 0xe5));
    palette.setColor(QPalette::ToolTipBase, QColor(0x3a, 0x3d, 0x41));
    palette.setColor(QPalette::ToolTipText, QColor(0xe2, 0xe3, 0xe5));
    palette.setColor(QPalette::Highlight, QColor(0x34, 0x75, 0xd1));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Inactive, QPalette::Highlight, QColor(0x3a, 0x47, 0x59));
    palette.setColor(QPalette::Inactive, QPalette::HighlightedText, QColor(0xe2, 0xe3, 0xe5));
    palette.setColor(QPalette::Link, QColor(0x7a, 0xb0, 0xf5));
    palette.setColor(QPalette::PlaceholderText, QColor(0x9a, 0x9d, 0xa2));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, QColor(0x7d, 0x80, 0x85));
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
            QApplication::setPalette(LightPalette());
            break;
        case Theme::Dark:
            QApplication::setPalette(DarkPalette());
            break;
        // A palette that sets nothing gives way to the one of the desktop.
        case Theme::System:
            QApplication::setPalette(QPalette());
            if (!DesktopHasColours()) QApplication::setPalette(LightPalette());
            break;
    }
}

bool WindowsAreDark() {
    const QPalette palette = QApplication::palette();
    return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
}

}  // namespace fabula::qt
