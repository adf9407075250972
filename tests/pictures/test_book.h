#pragma once

#include <string>
#include <string_view>

#include "pictures/canvas.h"
#include "pictures/drawing.h"
#include "pictures/picture_book.h"

namespace fabula::pictures {

/// The commands of the language and of both editors, the characters that tests/golden/pictures/README.md
/// shows, no pictures, locations 0 to 3, paper 7 and ink 0.
PictureBook TestBook();

/// Puts a picture into the book.
void AddPicture(PictureBook& book, int number, std::string_view drawstring,
                PictureKind kind = PictureKind::Room, int ink = kColourOfTheAdventure);

/// Draws on a fresh canvas in the book's own colours.
Canvas Draw(const PictureBook& book, std::string_view drawstring);

/// The same, with all that is left afterwards.
Drawing DrawAndKeep(const PictureBook& book, std::string_view drawstring);

/// A rectangle of a plane in the coordinates of the language, both ends included.
struct Window {
    int left = 0;
    int right = kCanvasWidth - 1;
    int top = kCanvasHeight - 1;
    int bottom = 0;
};

/// The colour plane as rows of text from the top: "." the background, otherwise the palette number in
/// hexadecimal,
/// "?" for a colour of no palette. The pixel plane: "#" drawn, "." not.
std::string ColourRows(const Canvas& canvas, const Window& window);
std::string PixelRows(const Canvas& canvas, const Window& window);

/// How many pixels of the colour plane aren't the background, and of the pixel plane.
int CountColoured(const Canvas& canvas);
int CountDrawn(const Canvas& canvas);

/// Whether two planes show the same.
bool SamePixels(const Plane& a, const Plane& b);

/// The palette number of a pixel of the colour plane, and whether it counts as drawn, in the language's
/// coordinates.
int ColourAt(const Canvas& canvas, int x, int y);
bool DrawnAt(const Canvas& canvas, int x, int y);

}  // namespace fabula::pictures
