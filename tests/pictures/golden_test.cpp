#include <algorithm>
#include <filesystem>
#include <fstream>
#include <regex>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "pictures/drawing.h"
#include "support/places.h"
#include "test_book.h"

// Draws every case of tests/golden/pictures/ and compares both planes whole. The form of a case is told in
// the README.md there.

namespace fabula::pictures {
namespace {

std::filesystem::path GoldenFolder() {
    return test::SourceFolder() / "tests/golden/pictures";
}

struct ExpectedWindow {
    Window window;
    std::string colourRows;
    std::string pixelRows;
};

struct GoldenCase {
    PictureBook book = TestBook();
    Picture picture;
    Point cursor;
    char outside = '.';
    std::vector<ExpectedWindow> windows;
};

/// The pixel plane that has a pixel drawn wherever the colour plane shows another colour than the
/// background.
std::string DrawnWhereColoured(std::string rows) {
    std::replace_if(
        rows.begin(), rows.end(), [](char c) { return c != '.' && c != '\n'; }, '#');
    return rows;
}

class CaseReader {
  public:
    explicit CaseReader(const std::filesystem::path& file) : input_(file) {
        if (!input_) throw std::runtime_error("can't read " + file.string());
    }

    GoldenCase Read() {
        std::string line;
        while (std::getline(input_, line)) {
            if (line.empty() || line.front() == '#') continue;
            ReadKey(line);
        }
        if (result_.windows.empty()) throw std::runtime_error("the case has no window");
        return std::move(result_);
    }

  private:
    void ReadKey(const std::string& line) {
        static const std::regex kPicture(R"(picture (\d+)(?:, ink (-?\d+))?: (.*))");
        static const std::regex kWindow(R"(window: x (\d+) to (\d+), y (\d+) down to (\d+))");
        static const std::regex kCursor(R"(cursor: (-?\d+) (-?\d+))");
        std::smatch m;
        if (std::regex_match(line, m, kPicture)) {
            AddPicture(result_.book, std::stoi(m[1]), std::string(m[3]), PictureKind::Subroutine,
                       m[2].matched ? std::stoi(m[2]) : kColourOfTheAdventure);
        } else if (std::regex_match(line, m, kWindow)) {
            result_.windows.push_back(
                {{std::stoi(m[1]), std::stoi(m[2]), std::stoi(m[3]), std::stoi(m[4])}, "", ""});
        } else if (std::regex_match(line, m, kCursor)) {
            result_.cursor = {std::stoi(m[1]), std::stoi(m[2])};
        } else if (line.starts_with("paper: ")) {
            result_.picture.paper = std::stoi(line.substr(7));
        } else if (line.starts_with("ink: ")) {
            result_.picture.ink = std::stoi(line.substr(5));
        } else if (line.starts_with("draw: ")) {
            result_.picture.drawstring = line.substr(6);
        } else if (line.starts_with("outside: ")) {
            result_.outside = line.at(9);
        } else if (line == "colour:") {
            result_.windows.back().colourRows = ReadRows();
        } else if (line == "pixel:") {
            result_.windows.back().pixelRows = ReadRows();
        } else if (line == "pixel: as colour") {
            result_.windows.back().pixelRows = DrawnWhereColoured(result_.windows.back().colourRows);
        } else {
            throw std::runtime_error("not understood: " + line);
        }
    }

    std::string ReadRows() {
        const Window& window = result_.windows.back().window;
        const auto width = static_cast<std::size_t>(window.right - window.left + 1);
        std::string rows;
        for (int y = window.top; y >= window.bottom; --y) {
            std::string row;
            if (!std::getline(input_, row)) throw std::runtime_error("a row is missing");
            if (row.size() != width) throw std::runtime_error("not as wide as its window: " + row);
            rows += row + '\n';
        }
        return rows;
    }

    std::ifstream input_;
    GoldenCase result_;
};

/// A whole plane as rows of text, with the windows' own rows in it and `outside` elsewhere.
std::string WholePlane(const GoldenCase& golden, char outside, std::string ExpectedWindow::*rows) {
    const std::size_t stride = kCanvasWidth + 1;
    std::string plane;
    for (int line = 0; line < kCanvasHeight; ++line) {
        plane += std::string(kCanvasWidth, outside) + '\n';
    }
    for (const ExpectedWindow& expected : golden.windows) {
        const Window& window = expected.window;
        std::istringstream input(expected.*rows);
        std::string row;
        for (int y = window.top; y >= window.bottom && std::getline(input, row); --y) {
            plane.replace(
                static_cast<std::size_t>(LineOfY(y)) * stride + static_cast<std::size_t>(window.left),
                row.size(), row);
        }
    }
    return plane;
}

std::vector<std::string> CaseNames() {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(GoldenFolder())) {
        if (entry.path().extension() == ".txt") names.push_back(entry.path().stem().string());
    }
    std::sort(names.begin(), names.end());
    return names;
}

class GoldenPicture : public testing::TestWithParam<std::string> {};

TEST_P(GoldenPicture, IsDrawnAsExpected) {
    const GoldenCase golden = CaseReader(GoldenFolder() / (GetParam() + ".txt")).Read();
    Drawing drawing(golden.book);
    drawing.CommDraw(golden.picture, golden.picture.drawstring);

    for (const ExpectedWindow& expected : golden.windows) {
        EXPECT_EQ(ColourRows(drawing.Planes(), expected.window), expected.colourRows)
            << "on the colour plane";
        EXPECT_EQ(PixelRows(drawing.Planes(), expected.window), expected.pixelRows) << "on the pixel plane";
    }
    const char outsideDrawn = golden.outside == '.' ? '.' : '#';
    EXPECT_TRUE(ColourRows(drawing.Planes(), {}) ==
                WholePlane(golden, golden.outside, &ExpectedWindow::colourRows))
        << "the colour plane outside the windows";
    EXPECT_TRUE(PixelRows(drawing.Planes(), {}) ==
                WholePlane(golden, outsideDrawn, &ExpectedWindow::pixelRows))
        << "the pixel plane outside the windows";
    EXPECT_EQ(drawing.State().cursor, golden.cursor);
}

INSTANTIATE_TEST_SUITE_P(Pictures, GoldenPicture, testing::ValuesIn(CaseNames()),
                         [](const testing::TestParamInfo<std::string>& name) { return name.param; });

TEST(GoldenPictures, AreFound) {
    EXPECT_GE(CaseNames().size(), 40U);
}

}  // namespace
}  // namespace fabula::pictures
