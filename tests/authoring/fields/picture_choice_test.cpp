#include "authoring/fields/picture_choice.h"

#include <filesystem>
#include <fstream>
#include <iterator>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "authoring/desk.h"
#include "platform/error.h"

namespace fabula::authoring {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kOutside =
    "The Picture must be at or below the directory of the game\nWould you like to copy it there";

class PictureButton : public testing::Test {
  protected:
    PictureButton() {
        MakeFile(Game() / "pictures" / "inside.gif", "inside");
        MakeFile(outside_ / "outside.gif", "outside");
    }

    fs::path Game() { return desk_.Adventure().GameDir(); }
    static void MakeFile(const fs::path& file, const char* bytes) {
        fs::create_directories(file.parent_path());
        std::ofstream(file) << bytes;
    }
    static std::string Bytes(const fs::path& file) {
        std::ifstream stream(file);
        return {std::istreambuf_iterator<char>(stream), {}};
    }
    std::optional<std::string> Choose(const char* current = "") {
        return ChoosePicture(desk_.context, "Load Room Picture", current);
    }

    test::Desk desk_;
    test::TempFolder outside_;
};

TEST_F(PictureButton, AsksForAPictureInTheGamesFolder) {
    desk_.dialogs.AnswerFile(std::nullopt);
    EXPECT_EQ(Choose(), std::nullopt);
    const platform::FileQuestion& question = desk_.dialogs.Questions().at(0);
    EXPECT_EQ(question.title, "Load Room Picture");
    EXPECT_EQ(question.filter, "Picture Files(jpg,gif,bmp)|*.jpg;*.gif;*.bmp|All Files|*.*");
    EXPECT_FALSE(question.forWriting);
    EXPECT_EQ(question.start, Game());
}

TEST_F(PictureButton, ProposesThePictureSoFar) {
    desk_.dialogs.AnswerFile(std::nullopt);
    Choose("pictures\\inside.gif");
    EXPECT_EQ(desk_.dialogs.Questions().at(0).start, fs::canonical(Game()) / "pictures" / "inside.gif");
}

TEST_F(PictureButton, GivesAPathFromTheGamesFolder) {
    desk_.dialogs.AnswerFile(Game() / "pictures" / "inside.gif");
    EXPECT_EQ(Choose(), "pictures/inside.gif");
    EXPECT_THAT(desk_.Boxes(), IsEmpty());
}

TEST_F(PictureButton, OffersACopyOfAPictureFromElsewhere) {
    desk_.dialogs.AnswerFile(outside_ / "outside.gif");
    desk_.dialogs.AnswerNext(false);
    EXPECT_EQ(Choose(), std::nullopt);
    EXPECT_THAT(desk_.Boxes(), ElementsAre(kOutside));
    EXPECT_EQ(desk_.dialogs.Boxes().at(0).title, "Error");
}

TEST_F(PictureButton, CopiesItUnderTheNameThatIsGiven) {
    desk_.dialogs.AnswerFile(outside_ / "outside.gif");
    desk_.dialogs.AnswerNext(true);
    desk_.dialogs.AnswerFile(Game() / "pictures" / "mine.gif");
    EXPECT_EQ(Choose(), "pictures/mine.gif");
    EXPECT_EQ(Bytes(Game() / "pictures" / "mine.gif"), "outside");
    const platform::FileQuestion& question = desk_.dialogs.Questions().at(1);
    EXPECT_EQ(question.title, "Save Name for Fabula Directory Tree");
    EXPECT_EQ(question.filter, "All Files|*.*");
    EXPECT_TRUE(question.forWriting);
    EXPECT_EQ(question.start, Game() / "outside.gif");
}

TEST_F(PictureButton, CopiesNothingWithoutAName) {
    desk_.dialogs.AnswerFile(outside_ / "outside.gif");
    desk_.dialogs.AnswerNext(true);
    desk_.dialogs.AnswerFile(std::nullopt);
    EXPECT_EQ(Choose(), std::nullopt);
    EXPECT_FALSE(fs::exists(Game() / "outside.gif"));
}

TEST_F(PictureButton, CopiesNothingToAFolderElsewhere) {
    desk_.dialogs.AnswerFile(outside_ / "outside.gif");
    desk_.dialogs.AnswerNext(true);
    desk_.dialogs.AnswerFile(outside_ / "copy.gif");
    EXPECT_EQ(Choose(), std::nullopt);
    EXPECT_THAT(desk_.Boxes(),
                ElementsAre(kOutside, "You changed the parent directory again. Command aborted."));
    EXPECT_FALSE(fs::exists(outside_ / "copy.gif"));
}

TEST_F(PictureButton, CopiesNothingThroughALinkThatLeadsOut) {
    MakeFile(outside_ / "precious.gif", "precious");
    fs::create_symlink(outside_ / "precious.gif", Game() / "link.gif");
    desk_.dialogs.AnswerFile(outside_ / "outside.gif");
    desk_.dialogs.AnswerNext(true);
    desk_.dialogs.AnswerFile(Game() / "link.gif");
    EXPECT_EQ(Choose(), std::nullopt);
    EXPECT_EQ(Bytes(outside_ / "precious.gif"), "precious");
}

TEST_F(PictureButton, TakesALinkThatLeadsOutForOutside) {
    fs::create_symlink(outside_ / "outside.gif", Game() / "link.gif");
    desk_.dialogs.AnswerFile(Game() / "link.gif");
    desk_.dialogs.AnswerNext(false);
    EXPECT_EQ(Choose(), std::nullopt);
    EXPECT_THAT(desk_.Boxes(), ElementsAre(kOutside));
}

TEST_F(PictureButton, FailsForAFileThatIsNotThere) {
    desk_.dialogs.AnswerFile(Game() / "none.gif");
    EXPECT_THROW(Choose(), Error);
}

TEST_F(PictureButton, PicturesAreReadBelowTheGamesFolderOnly) {
    EXPECT_EQ(PictureFile(desk_.context, "pictures/inside.gif"),
              fs::canonical(Game()) / "pictures" / "inside.gif");
    EXPECT_THROW(PictureFile(desk_.context, "none.gif"), Error);
    EXPECT_THROW(PictureFile(desk_.context, (outside_ / "outside.gif").string()), Error);
}

}  // namespace
}  // namespace fabula::authoring
