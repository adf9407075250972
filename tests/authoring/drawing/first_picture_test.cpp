#include <fstream>
#include <iterator>
#include <regex>

#include <gtest/gtest.h>

#include "authoring/drawing/easel.h"
#include "pictures/drawstring.h"
#include "support/places.h"

// The picture of docs/drawing.md, drawn row by row as the chapter tells.

namespace fabula::test {
namespace {

std::string Chapter() {
    std::ifstream file(SourceFolder() / "docs/drawing.md");
    return {std::istreambuf_iterator<char>(file), {}};
}

/// The drawstring that the chapter shows, in one line.
std::string Shown(const std::string& chapter) {
    const std::size_t start = chapter.find("    INK 4 PLOT");
    const std::size_t end = chapter.find(" END\n", start);
    return pictures::JoinWords(pictures::DrawstringWords(chapter.substr(start, end + 4 - start)));
}

TEST(FirstPicture, DrawnAsTheChapterTellsItIsTheDrawstringThatItShows) {
    const std::string chapter = Chapter();
    const std::regex row(R"(\| (?:(\d+), (\d+) )?\| `([^`]+)` \|)");
    Easel easel;
    auto& editor = easel.Open(2, true);
    int rows = 0;
    for (std::sregex_iterator match(chapter.begin(), chapter.end(), row), end; match != end;
         ++match, ++rows) {
        if ((*match)[1].matched) editor.PointAt({std::stoi((*match)[1]), std::stoi((*match)[2])});
        EXPECT_TRUE(editor.Run((*match)[3].str())) << (*match)[0];
    }
    EXPECT_EQ(rows, 29);
    EXPECT_EQ(editor.drawstring, Shown(chapter));
    EXPECT_EQ(editor.Defaults().paper, 1);
    EXPECT_EQ(easel.Boxes(), std::vector<std::string>{});
}

TEST(FirstPicture, HasAMeadowAHouseARoofAndAMoon) {
    Easel easel;
    easel.Run("DEFPAPER 1");
    easel.Editor().drawstring = Shown(Chapter());
    ASSERT_TRUE(easel.Editor().LeaveDrawstring());
    ASSERT_TRUE(easel.Run("REDRAW"));
    const auto colour = [&](int x, int y) {
        return pictures::ColourToIndex(easel.Editor().Planes().colour.Pixel(x, pictures::LineOfY(y)));
    };
    EXPECT_EQ(colour(250, 5), 4);
    EXPECT_EQ(colour(120, 60), 6);
    EXPECT_EQ(colour(110, 124), 2);
    EXPECT_EQ(colour(216, 146), 15);
    EXPECT_EQ(colour(10, 100), 1);
    EXPECT_EQ(colour(30, 150), 15);
}

}  // namespace
}  // namespace fabula::test
