#pragma once

#include <QColor>

#include "text/colours.h"

namespace fabula::qt {

inline QColor ToQt(text::Rgb colour) {
    return {colour.red, colour.green, colour.blue};
}

}  // namespace fabula::qt
