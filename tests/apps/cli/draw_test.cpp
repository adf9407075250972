#include <fstream>
#include <iterator>

#include <gtest/gtest.h>

#include "store/adventure.h"
#include "support/games/template_adventure.h"
#include "support/places.h"
#include "support/run_program.h"

namespace fabula::test {
namespace {

/// An adventure with the pictures 5 and 6 that can be drawn, and 7 that can't.
class DrawVerb : public testing::Test {
  protected:
    DrawVerb() {
        MakeAdventure(folder_ / "game.fbd");
        const auto adventure = store::Adventure::Open(folder_ / "game.fbd");
        store::Cursor& cursor = adventure->OpenTable(store::TableNum::Pictures, "def");
        const auto add = [&cursor](int number, const std::string& drawstring) {
            cursor.AddNew();
            cursor.SetField("locnum", number);
            cursor.SetField("loctype", std::string("Picture"));
            cursor.SetField("locpaper", 7);
            cursor.SetField("locink", 2);
            cursor.SetField("drawstring", drawstring);
            cursor.Update();
        };
        add(5, "FILL 0 0 INK 1 PLOT 0 0 0 END");
        add(6, "END");
        add(7, "GOSUB sc=0 7 END");
    }

    ProgramResult Run(std::vector<std::string> arguments) {
        arguments.insert(arguments.begin(), "draw");
        return RunProgram(Program(), arguments);
    }
    std::string Path(const char* name) const { return (folder_ / name).string(); }
    std::string File() const { return Path("game.fbd"); }

    static std::string BytesOf(const std::string& file) {
        std::ifstream stream(file, std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), {}};
    }

    TempFolder folder_;
};

TEST_F(DrawVerb, WritesAPictureAsABitmap) {
    const ProgramResult result = Run({File(), "5", Path("five.bmp")});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.output + result.errors, "");
    const std::string bytes = BytesOf(Path("five.bmp"));
    ASSERT_EQ(bytes.size(), 54U + 256U * 176U * 3U);
    EXPECT_EQ(bytes.substr(54, 6), std::string("\xE6\0\0\0\0\xE6", 6))
        << "blue at the bottom left, then red";
}

TEST_F(DrawVerb, WritesItAsPngAndLarger) {
    EXPECT_EQ(Run({File(), "5", Path("five.png"), "--scale", "2"}).status, 0);
    const std::string bytes = BytesOf(Path("five.png"));
    EXPECT_EQ(bytes.substr(1, 3), "PNG");
    EXPECT_EQ(bytes.substr(16, 8), std::string("\0\0\2\0\0\0\1\x60", 8)) << "512 by 352";
}

TEST_F(DrawVerb, DrawsUpToAWord) {
    EXPECT_EQ(Run({File(), "5", Path("five.bmp"), "--upto", "2"}).status, 0);
    EXPECT_EQ(BytesOf(Path("five.bmp")).substr(54, 3), std::string("\0\0\xE6", 3));
}

TEST_F(DrawVerb, ShowsThePixelPlane) {
    EXPECT_EQ(Run({File(), "6", Path("six.bmp"), "--plane", "pixel"}).status, 0);
    EXPECT_EQ(BytesOf(Path("six.bmp")).substr(54, 3), std::string("\xE6\0\0", 3));
}

TEST_F(DrawVerb, FailsForAPictureThatIsNotThere) {
    const ProgramResult result = Run({File(), "99", Path("x.png")});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors, "fabula: There is no picture 99.\n");
    EXPECT_FALSE(std::filesystem::exists(Path("x.png")));
}

TEST_F(DrawVerb, RefusesWhatMakesNoSense) {
    EXPECT_EQ(Run({}).status, 2);
    EXPECT_EQ(Run({File(), "5"}).status, 2);
    EXPECT_EQ(Run({File(), "5", Path("x.png"), "--scale", "0"}).status, 2);
    EXPECT_EQ(Run({File(), "5", Path("x.png"), "--plane", "green"}).status, 2);
    EXPECT_EQ(Run({"--check", "END"}).status, 2);
    EXPECT_EQ(Run({File(), "5", Path("x.png"), "--all", Path("all")}).status, 2);
    EXPECT_EQ(Run({File(), "5", Path("x.gif")}).status, 1);
}

TEST_F(DrawVerb, DrawsAllWithAnIndexAndTellsWhatItCouldNotDraw) {
    const ProgramResult result = Run({File(), "--all", Path("all/of/them")});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors,
              "fabula: Picture 7 can't be drawn: its GOSUBs are nested over 64 deep, in picture 7.\n");
    EXPECT_TRUE(std::filesystem::exists(Path("all/of/them/Picture005.png")));
    EXPECT_TRUE(std::filesystem::exists(Path("all/of/them/Picture006.png")));
    EXPECT_TRUE(std::filesystem::exists(Path("all/of/them/index.png")));
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(Path("all/of/them")), {}), 3);
}

TEST_F(DrawVerb, DrawsAllOverNoPictureOfTheFolderWithoutForce) {
    std::ofstream(Path("Picture006.png")) << "precious";
    const std::string folder = Path(".");
    EXPECT_EQ(Run({File(), "--all", folder}).status, 1);
    EXPECT_EQ(BytesOf(Path("Picture006.png")), "precious");
    EXPECT_FALSE(std::filesystem::exists(Path("Picture005.png")));
    Run({File(), "--all", folder, "--force"});
    EXPECT_NE(BytesOf(Path("Picture006.png")), "precious");
}

TEST_F(DrawVerb, RefusesWhatBelongsToAnotherUseOfIt) {
    EXPECT_EQ(Run({File(), "5", Path("x.png"), "--dither"}).status, 2);
    EXPECT_EQ(Run({File(), "5", Path("x.png"), "--as-drawstring"}).status, 2);
    EXPECT_EQ(Run({File(), "5", Path("x.png"), "--subroutine"}).status, 2);
    EXPECT_EQ(Run({File(), "5", Path("x.png"), "--in", File()}).status, 2);
}

TEST_F(DrawVerb, ChecksADrawstring) {
    const ProgramResult good = Run({"--check", "  INK  2 GOSUB sc=3 5 END", "--in", File()});
    EXPECT_EQ(good.status, 0);
    EXPECT_EQ(good.output, "INK 2 GOSUB sc=3 5 END\n");
    const ProgramResult bad = Run({"--check", "LINE 1 5 END", "--in", File()});
    EXPECT_EQ(bad.status, 1);
    EXPECT_EQ(bad.errors, "fabula: Non-numeric parameter for LINE command\n");
    const ProgramResult empty = Run({"--check", "", "--in", File()});
    EXPECT_EQ(empty.errors, "fabula: Invalid DrawString. Must have an END\n");
}

TEST_F(DrawVerb, ChecksTheDrawstringOfASubroutine) {
    const ProgramResult result = Run({"--check", "GOSUB sc=3 5 END", "--in", File(), "--subroutine"});
    EXPECT_EQ(result.errors, "fabula: Cannot specifiy a scale>0 in a subroutine\n");
}

using CharsetVerb = DrawVerb;

TEST_F(CharsetVerb, SavesListsAndLoadsASet) {
    const auto run = [](const std::vector<std::string>& arguments) {
        return RunProgram(Program(), arguments);
    };
    EXPECT_EQ(run({"charset", "list", File()}).output, "0 - Default\n");
    EXPECT_EQ(run({"charset", "save", File(), Path("sets.chr"), "0"}).status, 0);
    EXPECT_EQ(run({"charset", "list", Path("sets.chr")}).output, "SET0000 - Default\n");
    const ProgramResult loaded = run({"charset", "load", File(), Path("sets.chr"), "0", "0"});
    EXPECT_EQ(loaded.status, 0);
    EXPECT_EQ(loaded.errors, "Default Loaded into Character Set 0\n");
}

TEST_F(CharsetVerb, FailsWithTheSystemsWords) {
    std::ofstream(Path("sets.chr")) << "no sets\n";
    const ProgramResult result = RunProgram(Program(), {"charset", "list", Path("sets.chr")});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors, Path("sets.chr") + " is not a Character Set File\n");
    EXPECT_EQ(RunProgram(Program(), {"charset", "save", File(), Path("x.chr"), "7"}).errors,
              "fabula: There is no character set 7.\n");
}

TEST_F(DrawVerb, MakesAPictureOfAnImageAndADrawingThatDrawsIt) {
    ASSERT_EQ(Run({File(), "5", Path("photo.png"), "--scale", "3"}).status, 0);
    const ProgramResult made = Run({"--from-image", Path("photo.png"), Path("made.bmp")});
    EXPECT_EQ(made.status, 0) << made.errors;
    EXPECT_EQ(BytesOf(Path("made.bmp")).size(), 54U + 256U * 176U * 3U);

    const ProgramResult drawing = Run({"--from-image", Path("photo.png"), "--as-drawstring"});
    EXPECT_EQ(drawing.status, 0);
    EXPECT_TRUE(drawing.output.starts_with("DEFPAPER 7\n")) << drawing.output.substr(0, 40);
    std::filesystem::create_directory(folder_ / "drawings");
    std::ofstream(folder_ / "drawings/9.draw") << drawing.output;
    ASSERT_EQ(Run({File(), "--add", Path("drawings")}).status, 0);
    ASSERT_EQ(Run({File(), "9", Path("drawn.bmp")}).status, 0);
    EXPECT_TRUE(BytesOf(Path("drawn.bmp")) == BytesOf(Path("made.bmp")));
}

TEST_F(DrawVerb, ReadsTheWhitePictureThatIsInstalled) {
    const std::string white = (SourceFolder() / "data/pictures/white.bmp").string();
    EXPECT_EQ(Run({"--from-image", white, Path("white.png")}).status, 0);
}

TEST_F(DrawVerb, NamesAnImageThatItCannotRead) {
    std::ofstream(folder_ / "none.png") << "no image";
    const ProgramResult result = Run({"--from-image", Path("none.png"), Path("made.bmp")});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors, "fabula: Could not read the image " + Path("none.png") +
                                 ": it is no PNG, JPEG or BMP file.\n");
    EXPECT_EQ(Run({"--from-image", Path("none.png")}).status, 2);
}

}  // namespace
}  // namespace fabula::test
