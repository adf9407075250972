#pragma once

#include <QScreen>
#include <QWidget>

namespace fabula::qt {

/// The size in which a window opens: the wanted one, as far as its screen has room.
inline QSize FittingSize(const QWidget& window, const QSize& wanted) {
    return wanted.boundedTo(window.screen()->availableSize() * 9 / 10);
}

}  // namespace fabula::qt
