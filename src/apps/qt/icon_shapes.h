#pragma once

#include <QPainterPath>
#include <string_view>

namespace fabula::qt {

/// What an icon is drawn of, on a square of 24 by 24. Both parts are lines of one width; the accent is
/// drawn in the colour of links. In the language of shapes blanks part letters and numbers:
///
///     M x y              begin a line here
///     L x y              a straight line to here
///     C x y x y x y      a curve with two control points
///     Q x y x y          a curve with one
///     Z                  back to where the line began
///     O x y r            a circle
///     R x y w h r        a rectangle with rounded corners
struct IconShape {
    std::string_view name;
    std::string_view lines;
    std::string_view accent;
};

/// The shape of a name; nullptr when there is none. A tree icon's open form ("map-open") has the shape of
/// the closed one unless it has its own.
const IconShape* FindIconShape(std::string_view name);

/// The path that the words of a shape draw.
QPainterPath PathOf(std::string_view shape);

}  // namespace fabula::qt
