#pragma once

#include <QFont>
#include <QPainter>
#include <QRectF>
#include <cstddef>

#include "listings/pages/paper.h"

namespace fabula::ide {

/// The font of listings: "Courier New" or, where the system lacks it, the fixed-width font that it has.
QFont ListingFont();

/// Paints a sheet as large as it fits into `area`, from its upper left corner. `columns` are those of the
/// whole listing, so that all sheets have letters of one size. Every part of a line stands in its column,
/// whatever the font makes of single letters.
void PaintSheet(QPainter& painter, const listings::Sheet& sheet, std::size_t columns, const QRectF& area);

}  // namespace fabula::ide
