#include "authoring/files/start_up.h"

#include <fstream>

#include <gtest/gtest.h>

#include "support/doubles/scripted_dialogs.h"
#include "support/temp_folder.h"

namespace fabula::authoring {
namespace {

using std::filesystem::path;

class StartUpTest : public testing::Test {
  protected:
    path Make(const path& name) const {
        const path file = folder_.Path() / name;
        std::filesystem::create_directories(file.parent_path());
        std::ofstream(file) << "x";
        return file;
    }
    std::vector<path> Folders() const { return {folder_ / "one", folder_ / "two"}; }

    test::TempFolder folder_;
    platform::MemorySettings settings_;
    platform::ScriptedDialogs dialogs_;
};

TEST_F(StartUpTest, FilesAreFoundInTheFirstFolderThatHasThemAndRemembered) {
    const path data = Make("two/Fabula.ini");
    const path help = Make("one/help/contents.html");
    Make("two/help/contents.html");
    const auto files = FindProgramFiles(settings_, Folders(), dialogs_);
    ASSERT_TRUE(files);
    EXPECT_EQ(files->defaultData, data);
    EXPECT_EQ(files->help, help);
    EXPECT_EQ(settings_.Get("Startup", "DefaultName"), data.string());
    EXPECT_EQ(settings_.Get("Startup", "HelpName"), help.string());
    EXPECT_TRUE(dialogs_.Boxes().empty());
}

TEST_F(StartUpTest, RememberedFilesAreTakenBeforeTheFolders) {
    Make("one/Fabula.ini");
    Make("one/help/contents.html");
    settings_.Set("Startup", "DefaultName", Make("mine/Fabula.ini").string());
    settings_.Set("Startup", "HelpName", Make("mine/page.html").string());
    const auto files = FindProgramFiles(settings_, Folders(), dialogs_);
    ASSERT_TRUE(files);
    EXPECT_EQ(files->defaultData, folder_.Path() / "mine/Fabula.ini");
    EXPECT_EQ(files->help, folder_.Path() / "mine/page.html");
}

TEST_F(StartUpTest, RememberedFilesThatAreGoneAreLookedForAgain) {
    const path data = Make("one/Fabula.ini");
    Make("one/help/contents.html");
    settings_.Set("Startup", "DefaultName", "/nowhere/Fabula.ini");
    EXPECT_EQ(FindProgramFiles(settings_, Folders(), dialogs_)->defaultData, data);
    EXPECT_EQ(settings_.Get("Startup", "DefaultName"), data.string());
}

TEST_F(StartUpTest, WithoutDefaultDataTheProgramEnds) {
    Make("one/help/contents.html");
    EXPECT_FALSE(FindProgramFiles(settings_, Folders(), dialogs_));
    ASSERT_EQ(dialogs_.Boxes().size(), 1U);
    EXPECT_EQ(dialogs_.Boxes()[0].text, "Cannot find the Fabula.ini. Aborting");
    EXPECT_EQ(settings_.Get("Startup", "DefaultName"), "");
}

TEST_F(StartUpTest, WithoutHelpTheProgramEnds) {
    Make("one/Fabula.ini");
    EXPECT_FALSE(FindProgramFiles(settings_, Folders(), dialogs_));
    ASSERT_EQ(dialogs_.Boxes().size(), 1U);
    EXPECT_EQ(dialogs_.Boxes()[0].text, "Cannot find the Fabula Help File. Aborting");
}

TEST_F(StartUpTest, LastFileIsTheOneOfTheSettings) {
    const path game = Make("game.fbd");
    settings_.Set("Startup", "File", game.string());
    EXPECT_EQ(LastFile(settings_), game);
}

TEST_F(StartUpTest, LastFileThatIsGoneIsNoneWithoutAMessage) {
    settings_.Set("Startup", "File", (folder_ / "gone.fbd").string());
    EXPECT_EQ(LastFile(settings_), path());
    EXPECT_TRUE(dialogs_.Boxes().empty());
}

TEST_F(StartUpTest, WithoutALastFileThereIsNone) {
    EXPECT_EQ(LastFile(settings_), path());
}

}  // namespace
}  // namespace fabula::authoring
