#include "authoring/settings/settings_followup.h"

#include <filesystem>
#include <fstream>
#include <functional>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "authoring/desk.h"
#include "authoring/settings/settings_screen.h"
#include "support/raw_database.h"

namespace fabula::authoring {
namespace {

using store::TableNum;
using test::Desk;
using testing::ElementsAre;
using testing::IsEmpty;

/// Locations 0 to 2, the files "a.gif" and "b.gif" with those letters in them, and pictures beside the
/// game: location 1 has a.gif, the about picture is b.gif.
class SettingsFollowUp : public testing::Test {
  protected:
    SettingsFollowUp() {
        desk_.Clear(TableNum::Locations);
        for (const int number : {0, 1, 2})
            AddLocation(number);
        MakeFile("a.gif", "a");
        MakeFile("b.gif", "b");
        SetPicture(1, "a.gif");
        store::Cursor& record = desk_.Adventure().OpenTable(TableNum::Adventure, "def");
        record.SetField("advpicloc", std::string("b.gif"));
        record.Update();
    }

    void AddLocation(int number) {
        desk_.Add(
            TableNum::Locations,
            {{"locnum", std::int64_t{number}}, {"picloc", std::string()}, {"oldpicloc", std::string(" ")}});
    }
    void MakeFile(const std::string& name, std::string_view bytes) {
        std::ofstream(desk_.Adventure().GameDir() / name) << bytes;
    }
    void SetPicture(int location, const std::string& path) {
        store::Cursor& record =
            desk_.Adventure().OpenTable(TableNum::Locations, "def", "locnum=" + std::to_string(location));
        record.SetField("picloc", path);
        record.Update();
    }

    /// Edits the settings through their screen, and does what follows.
    bool Edit(const std::function<void(SettingsScreen&)>& work) {
        const SettingsBefore before = ReadSettingsBefore(desk_.document);
        SettingsScreen screen(desk_.context);
        work(screen);
        EXPECT_TRUE(screen.Update());
        return FollowSettings(desk_.context, before);
    }
    bool Keep(bool kept) {
        return Edit([kept](SettingsScreen& screen) { screen.graphicsInDb = kept; });
    }

    std::string Bytes(TableNum table, const char* field, const std::string& where) {
        const store::Cursor& record = desk_.Adventure().OpenTable(table, field, where);
        const text::Value value = record.Field(field);
        const auto* bytes = std::get_if<text::Blob>(&value);
        if (bytes == nullptr) return "none";
        return {reinterpret_cast<const char*>(bytes->data()), bytes->size()};
    }
    std::string PictureOf(int location) {
        return Bytes(TableNum::Locations, "picgraphic", "locnum=" + std::to_string(location));
    }
    std::string OldPath(int location) {
        return desk_.Rows(TableNum::Locations, "oldpicloc", "locnum=" + std::to_string(location)).at(0);
    }

    Desk desk_;
};

TEST_F(SettingsFollowUp, CopiesAllPicturesWhenTheyAreToBeKept) {
    EXPECT_TRUE(Edit([](SettingsScreen& screen) {
        screen.graphicsInDb = true;
        screen.defaultPicture = "a.gif";
    }));
    EXPECT_EQ(PictureOf(0), "none");
    EXPECT_EQ(PictureOf(1), "a");
    EXPECT_EQ(OldPath(1), "a.gif");
    EXPECT_EQ(Bytes(TableNum::Adventure, "defpicgraphic", ""), "a");
    EXPECT_EQ(Bytes(TableNum::Adventure, "advpicgraphic", ""), "b");
    EXPECT_THAT(desk_.Rows(TableNum::Adventure, "olddefpicloc, oldadvpicloc"), ElementsAre("a.gif|b.gif"));
    EXPECT_THAT(desk_.Boxes(), IsEmpty());
    EXPECT_THAT(desk_.dialogs.Reports(), IsEmpty());
}

TEST_F(SettingsFollowUp, IsOneStepOfUndoWithTheUpdate) {
    const test::Snapshot before = desk_.Everything();
    Keep(true);
    const test::Snapshot after = desk_.Everything();
    EXPECT_EQ(desk_.document.UndoName(), "edit the settings");
    desk_.document.Undo();
    EXPECT_EQ(desk_.Everything(), before);
    EXPECT_EQ(desk_.document.UndoName(), std::nullopt);
    desk_.document.Redo();
    EXPECT_EQ(desk_.Everything(), after);
}

TEST_F(SettingsFollowUp, CopiesNothingWhileGraphicsAreBeside) {
    Edit([](SettingsScreen& screen) {
        screen.graphics = true;
        screen.defaultPicture = "a.gif";
    });
    EXPECT_EQ(PictureOf(1), "none");
    EXPECT_EQ(Bytes(TableNum::Adventure, "defpicgraphic", ""), "");
}

TEST_F(SettingsFollowUp, PictureThatWasCopiedIsNotCopiedAgain) {
    Keep(true);
    MakeFile("a.gif", "changed");
    Edit([](SettingsScreen& screen) { screen.graphics = true; });
    EXPECT_EQ(PictureOf(1), "a");
}

TEST_F(SettingsFollowUp, PicturesOfTheSettingsAreCopiedAtEachUpdate) {
    Keep(true);
    SetPicture(2, "b.gif");
    Edit([](SettingsScreen& screen) { screen.aboutPicture = "a.gif"; });
    EXPECT_EQ(Bytes(TableNum::Adventure, "advpicgraphic", ""), "a");
    EXPECT_EQ(PictureOf(2), "none");
}

TEST_F(SettingsFollowUp, PicturesOfLocationsAreReviewedWhenGraphicsAreSwitched) {
    Keep(true);
    SetPicture(2, "b.gif");
    Edit([](SettingsScreen& screen) { screen.graphics = true; });
    EXPECT_EQ(PictureOf(2), "b");
}

TEST_F(SettingsFollowUp, CopiesStayWhenTheyAreNoLongerUsed) {
    Keep(true);
    Keep(false);
    EXPECT_EQ(PictureOf(1), "a");
    EXPECT_EQ(OldPath(1), " ");
    EXPECT_THAT(desk_.Rows(TableNum::Adventure, "olddefpicloc, oldadvpicloc"), ElementsAre(" | "));
}

TEST_F(SettingsFollowUp, SwitchingOffAndOnCopiesTheFilesAsTheyAreNow) {
    Keep(true);
    MakeFile("a.gif", "changed");
    Keep(false);
    Keep(true);
    EXPECT_EQ(PictureOf(1), "changed");
}

TEST_F(SettingsFollowUp, ReportsAMissingPictureAndCopiesTheOthers) {
    SetPicture(0, "gone.gif");
    EXPECT_TRUE(Keep(true));
    ASSERT_EQ(desk_.dialogs.Reports().size(), 1u);
    EXPECT_EQ(desk_.dialogs.Reports()[0].title, "Adventure Settings");
    EXPECT_EQ(desk_.dialogs.Reports()[0].text,
              "These pictures could not be copied into the adventure:\n\n"
              "Location 0: Could not read the picture gone.gif: it is missing.");
    EXPECT_EQ(PictureOf(0), "none");
    EXPECT_EQ(OldPath(0), " ");
    EXPECT_EQ(PictureOf(1), "a");
}

TEST_F(SettingsFollowUp, ReadsNoFileOutsideTheGame) {
    SetPicture(0, "../../etc/passwd");
    SetPicture(1, "/etc/passwd");
    SetPicture(2, "C:\\secret.bmp");
    Keep(true);
    for (const int location : {0, 1, 2})
        EXPECT_EQ(PictureOf(location), "none");
    ASSERT_EQ(desk_.dialogs.Reports().size(), 1u);
    EXPECT_THAT(
        desk_.dialogs.Reports()[0].text,
        testing::HasSubstr(
            "Location 0: Could not read the picture ../../etc/passwd: it lies outside the game's folder."));
}

TEST_F(SettingsFollowUp, ReportsAPictureThatIsTooLarge) {
    const std::filesystem::path file = desk_.Adventure().GameDir() / "a.gif";
    std::filesystem::resize_file(file, static_cast<std::uintmax_t>(store::kLargestBinary) + 1);
    Keep(true);
    EXPECT_EQ(PictureOf(1), "none");
    ASSERT_EQ(desk_.dialogs.Reports().size(), 1u);
    EXPECT_EQ(desk_.dialogs.Reports()[0].text,
              "These pictures could not be copied into the adventure:\n\n"
              "Location 1: Could not read the file " +
                  file.string() + ": it is too large.");
}

TEST_F(SettingsFollowUp, PictureThatFailedIsTriedAgain) {
    SetPicture(0, "gone.gif");
    Keep(true);
    MakeFile("gone.gif", "back");
    Edit([](SettingsScreen& screen) { screen.graphics = true; });
    EXPECT_EQ(PictureOf(0), "back");
}

TEST_F(SettingsFollowUp, ExitOfTheScreenDoesNothing) {
    Keep(true);
    SetPicture(2, "b.gif");
    const SettingsBefore before = ReadSettingsBefore(desk_.document);
    const test::Snapshot all = desk_.Everything();
    EXPECT_TRUE(FollowSettings(desk_.context, before));
    EXPECT_EQ(desk_.Everything(), all);
}

TEST_F(SettingsFollowUp, EndsTheProgramWhenCharacterSetsWereSwitched) {
    EXPECT_FALSE(Edit([](SettingsScreen& screen) { screen.ClickCharSets(true); }));
    ASSERT_EQ(desk_.dialogs.Boxes().size(), 1u);
    EXPECT_EQ(desk_.dialogs.Boxes()[0].text, "Changing Character Sets requires exiting program");
    EXPECT_EQ(desk_.dialogs.Boxes()[0].title, "Adventure Settings");
}

TEST_F(SettingsFollowUp, TellsWhenTheFileFailsAndKeepsTheSettings) {
    const SettingsBefore before = ReadSettingsBefore(desk_.document);
    SettingsScreen screen(desk_.context);
    screen.graphicsInDb = true;
    screen.ClickCharSets(true);
    ASSERT_TRUE(screen.Update());
    test::RawDatabase(desk_.document.File()).Run("alter table locations rename to gone");
    EXPECT_FALSE(FollowSettings(desk_.context, before));
    ASSERT_EQ(desk_.dialogs.Boxes().size(), 2u);
    EXPECT_EQ(desk_.dialogs.Boxes()[0].title, "Error");
    EXPECT_EQ(desk_.dialogs.Boxes()[1].text, "Changing Character Sets requires exiting program");
    EXPECT_THAT(desk_.Rows(TableNum::Adventure, "graphicsindb, charsets, oldadvpicloc"),
                ElementsAre("1|1| "));
}

TEST_F(SettingsFollowUp, GoesOnAfterAnyOtherChange) {
    EXPECT_TRUE(Edit([](SettingsScreen& screen) { screen.author = "Ann"; }));
    EXPECT_THAT(desk_.Boxes(), IsEmpty());
}

}  // namespace
}  // namespace fabula::authoring
