#include "test_book.h"

#include <array>
#include <cstring>

#include "pictures/drawstring.h"

namespace fabula::pictures {
namespace {

struct CommandRow {
    int number;
    const char* name;
    const char* typedCodes;
    const char* drawnCodes;
};
constexpr std::array kCommandRows = {
    CommandRow{301, "ABSMOVE", "", "XP YP"},
    CommandRow{302, "PLOT", "", "IO XP YP"},
    CommandRow{303, "RELMOVE", "", "RX RY"},
    CommandRow{304, "LINE", "", "IO RX RY"},
    CommandRow{305, "FILL", "", "RX RY"},
    CommandRow{306, "SHADE", "SH SH", "IO RX RY PA"},
    CommandRow{307, "TEXT", "SE CH", "IO SE CH CX RO"},
    CommandRow{308, "BLOCK", "", "HE WI CX RO"},
    CommandRow{309, "INK", "CO", "CO"},
    CommandRow{310, "PAPER", "CO", "CO"},
    CommandRow{311, "BRIGHT", "BO", "BO"},
    CommandRow{312, "INVERSE", "BO", ""},
    CommandRow{313, "FLASH", "BO", "BO"},
    CommandRow{314, "OVER", "BO", ""},
    CommandRow{315, "GOSUB", "SC LO", "SC LO"},
    CommandRow{316, "START", "", ""},
    CommandRow{325, "END", "", ""},
    CommandRow{327, "QSHADE", "QS", "IO RX RY QS"},
    CommandRow{328, "RPLOT", "", "IO R1 R1"},
    CommandRow{329, "QFILL", "", "RX RY"},
    CommandRow{330, "BSHADE", "QS", "IO RX RY QS"},
    CommandRow{401, "R", "", ""},
};

struct CharacterRow {
    int set;
    int number;
    const char* charVals;
};
constexpr std::array kCharacterRows = {
    CharacterRow{0, 0, "0 0 0 0 0 0 0 0"},
    CharacterRow{0, 1, "170 85 170 85 170 85 170 85"},
    CharacterRow{0, 2, "255 0 255 0 255 0 255 0"},
    CharacterRow{0, 3, "136 136 136 136 136 136 136 136"},
    CharacterRow{0, 4, "128 64 32 16 8 4 2 1"},
    CharacterRow{0, 14, "0 0 0 0 0 0 0 0"},
    CharacterRow{0, 15, "255 255 255 255 255 255 255 255"},
    CharacterRow{0, 32, "0 0 0 0 0 0 0 0"},
    CharacterRow{0, 65, "0 24 36 66 126 66 66 0"},
    CharacterRow{0, 143, "255 255 255 255 255 255 255 255"},
    CharacterRow{0, 144, "128 64 32 16 8 4 2 1"},
    CharacterRow{0, 164, "240 240 240 240 0 0 0 0"},
    CharacterRow{1, 33, "1 1 1 1 1 1 1 1"},
    CharacterRow{1, 65, "255 129 129 129 129 129 129 255"},
};

Command MakeCommand(const CommandRow& row) {
    Command command;
    command.number = row.number;
    command.name = row.name;
    for (const std::string& code : SplitAtBlanks(row.typedCodes)) {
        command.typedCodes[static_cast<std::size_t>(command.typedParameters++)] = code;
    }
    for (const std::string& code : SplitAtBlanks(row.drawnCodes)) {
        command.drawnCodes[static_cast<std::size_t>(command.drawnParameters++)] = code;
    }
    return command;
}

template <typename Symbol>
std::string Rows(const Window& window, Symbol symbol) {
    std::string rows;
    for (int y = window.top; y >= window.bottom; --y) {
        for (int x = window.left; x <= window.right; ++x) {
            rows += symbol(x, LineOfY(y));
        }
        rows += '\n';
    }
    return rows;
}

int CountOf(const Plane& plane) {
    int count = 0;
    const Colour background = plane.Background();
    const Colour* pixels = plane.Pixels().data();
    for (int i = 0; i < kCanvasWidth * kCanvasHeight; ++i) {
        if (pixels[i] != background) ++count;
    }
    return count;
}

}  // namespace

PictureBook TestBook() {
    PictureBook book;
    for (const CommandRow& row : kCommandRows) {
        book.commands.Add(MakeCommand(row));
    }
    for (const CharacterRow& row : kCharacterRows) {
        book.characters.Add(
            {row.set, row.number, row.set == 0 ? "Default" : "Boxes", ParseCharVals(row.charVals)});
    }
    book.locations = {0, 1, 2, 3};
    return book;
}

void AddPicture(PictureBook& book, int number, std::string_view drawstring, PictureKind kind, int ink) {
    book.pictures[number] = {number, kind, kColourOfTheAdventure, ink, std::string(drawstring)};
}

Canvas Draw(const PictureBook& book, std::string_view drawstring) {
    return DrawAndKeep(book, drawstring).Planes();
}

Drawing DrawAndKeep(const PictureBook& book, std::string_view drawstring) {
    Drawing drawing(book);
    drawing.CommDraw(Picture{}, drawstring);
    return drawing;
}

std::string ColourRows(const Canvas& canvas, const Window& window) {
    return Rows(window, [&canvas](int x, int line) {
        const Colour colour = canvas.colour.Pixel(x, line);
        if (colour == canvas.colour.Background()) return '.';
        const int number = ColourToIndex(colour);
        if (IndexToColour(number) != colour) return '?';
        return "0123456789ABCDEF"[number];
    });
}

std::string PixelRows(const Canvas& canvas, const Window& window) {
    return Rows(window, [&canvas](int x, int line) {
        return canvas.pixel.Pixel(x, line) == canvas.pixel.Background() ? '.' : '#';
    });
}

int CountColoured(const Canvas& canvas) {
    return CountOf(canvas.colour);
}

int CountDrawn(const Canvas& canvas) {
    return CountOf(canvas.pixel);
}

bool SamePixels(const Plane& a, const Plane& b) {
    return std::memcmp(a.Pixels().data(), b.Pixels().data(), a.Pixels().size() * sizeof(Colour)) == 0;
}

int ColourAt(const Canvas& canvas, int x, int y) {
    return ColourToIndex(canvas.colour.Pixel(x, LineOfY(y)));
}

bool DrawnAt(const Canvas& canvas, int x, int y) {
    return canvas.pixel.Pixel(x, LineOfY(y)) != canvas.pixel.Background();
}

}  // namespace fabula::pictures
