#include "authoring/drawing/character_editor.h"

#include <fstream>
#include <functional>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "authoring/desk.h"
#include "authoring/drawing/character_set_files.h"
#include "authoring/drawing/character_set_screen.h"
#include "platform/error.h"

namespace fabula::test {
namespace {

using authoring::CharacterEdit;
using authoring::CharacterSetFiles;
using store::TableNum;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr int kShadeOne = 1;
constexpr int kGraphic = 144;

class CharacterEditorTest : public testing::Test {
  protected:
    std::string Stored(int charkey) {
        return desk_.Rows(TableNum::Characters, "charvals", "charkey=" + std::to_string(charkey)).at(0);
    }

    Desk desk_;
    authoring::CharacterEditor editor_{desk_.context, {.key = kGraphic}};
};

TEST_F(CharacterEditorTest, OpensOnTheCharacterOfItsKey) {
    EXPECT_EQ(editor_.StatusLine(), " Set 0 Character 144");
    EXPECT_EQ(editor_.kHint, "Mouse Left Click: Toggle\nR to redraw, C to Clear");
    EXPECT_EQ(editor_.CharVals(), Stored(kGraphic));
}

TEST_F(CharacterEditorTest, AClickTogglesASquareAndTheSamplesWait) {
    const std::string before = editor_.CharVals();
    const bool set = editor_.Square(9);
    editor_.Click(9);
    EXPECT_EQ(editor_.Square(9), !set);
    EXPECT_TRUE(editor_.Changed());
    EXPECT_EQ(editor_.CharVals(), before);
    editor_.ReDraw();
    EXPECT_NE(editor_.CharVals(), before);
    editor_.Click(9);
    EXPECT_EQ(editor_.Square(9), set);
}

TEST_F(CharacterEditorTest, CClearsAllSquaresAndRDrawsAnew) {
    editor_.commandLine = " c ";
    EXPECT_TRUE(editor_.RunCommandLine());
    EXPECT_EQ(editor_.CharVals(), "0 0 0 0 0 0 0 0");
    editor_.Click(0);
    editor_.Click(15);
    editor_.commandLine = "R";
    EXPECT_TRUE(editor_.RunCommandLine());
    EXPECT_EQ(editor_.CharVals(), "128 1 0 0 0 0 0 0");
    EXPECT_EQ(editor_.commandLine, "");
}

TEST_F(CharacterEditorTest, AnUnknownCommandIsToldWithItsWord) {
    editor_.commandLine = "LINE";
    EXPECT_FALSE(editor_.RunCommandLine());
    EXPECT_THAT(desk_.Boxes(), ElementsAre("Invalid command LINE"));
}

TEST_F(CharacterEditorTest, AllSquaresOnGiveEightTimes255) {
    editor_.ClearChr();
    for (int square = 0; square < 64; ++square)
        editor_.Click(square);
    EXPECT_TRUE(editor_.Update());
    EXPECT_EQ(Stored(kGraphic), "255 255 255 255 255 255 255 255");
}

TEST_F(CharacterEditorTest, UpdateWithoutAClickStoresNothing) {
    const Snapshot before = desk_.Everything();
    editor_.ReDraw();
    EXPECT_TRUE(editor_.Update());
    EXPECT_EQ(desk_.Everything(), before);
    EXPECT_FALSE(desk_.document.UndoName());
}

TEST_F(CharacterEditorTest, UpdateStoresWhatWasClearedWithoutAClick) {
    editor_.ClearChr();
    editor_.Update();
    EXPECT_EQ(Stored(kGraphic), "0 0 0 0 0 0 0 0");
    EXPECT_EQ(desk_.document.UndoName(), "edit character 144");
}

TEST_F(CharacterEditorTest, ClickingAndLeavingByExitLeavesTheRecordAsItWas) {
    const Snapshot before = desk_.Everything();
    {
        authoring::CharacterEditor other(desk_.context, {.key = kShadeOne});
        other.Click(5);
    }
    EXPECT_EQ(desk_.Everything(), before);
}

TEST_F(CharacterEditorTest, TheKeysMoveOverTheEdgesAndToggle) {
    editor_.ClearChr();
    editor_.MoveCurrent(-1, 0);
    editor_.MoveCurrent(0, -1);
    EXPECT_EQ(editor_.Current(), 63);
    editor_.ToggleCurrent();
    editor_.ReDraw();
    EXPECT_EQ(editor_.CharVals(), "0 0 0 0 0 0 0 1");
}

TEST_F(CharacterEditorTest, EditsChangeTheWholeCharacterAndTheSamples) {
    editor_.ClearChr();
    editor_.Click(0);
    editor_.Do(CharacterEdit::ShiftRight);
    EXPECT_EQ(editor_.CharVals(), "64 0 0 0 0 0 0 0");
    editor_.Do(CharacterEdit::Rotate);
    EXPECT_EQ(editor_.CharVals(), "0 1 0 0 0 0 0 0");
    editor_.Do(CharacterEdit::MirrorSideways);
    EXPECT_EQ(editor_.CharVals(), "0 128 0 0 0 0 0 0");
    editor_.Do(CharacterEdit::MirrorUpsideDown);
    EXPECT_EQ(editor_.CharVals(), "0 0 0 0 0 0 128 0");
    editor_.Do(CharacterEdit::ShiftLeft);
    editor_.Do(CharacterEdit::ShiftDown);
    EXPECT_EQ(editor_.CharVals(), "0 0 0 0 0 0 0 1");
    editor_.Do(CharacterEdit::ShiftUp);
    editor_.Do(CharacterEdit::Invert);
    EXPECT_EQ(editor_.CharVals(), "255 255 255 255 255 255 254 255");
}

TEST_F(CharacterEditorTest, ACharacterIsCopiedAndPastedAsText) {
    editor_.ClearChr();
    EXPECT_TRUE(editor_.Paste(" 1 2 3 4 5 6 7 8\n"));
    EXPECT_EQ(editor_.Copy(), "1 2 3 4 5 6 7 8");
    for (const char* none : {"1 2 3", "1 2 3 4 5 6 7 256", "a b c d e f g h", ""})
        EXPECT_FALSE(editor_.Paste(none));
    EXPECT_EQ(desk_.Boxes().back(), "There is no character to paste.");
    EXPECT_EQ(editor_.Copy(), "1 2 3 4 5 6 7 8");
}

TEST_F(CharacterEditorTest, UndoAndRedoGoOperationByOperation) {
    const std::string before = editor_.Copy();
    editor_.ClearChr();
    editor_.Click(7);
    editor_.Undo();
    EXPECT_EQ(editor_.Copy(), "0 0 0 0 0 0 0 0");
    editor_.Undo();
    EXPECT_EQ(editor_.Copy(), before);
    EXPECT_FALSE(editor_.CanUndo());
    editor_.Redo();
    editor_.Redo();
    EXPECT_EQ(editor_.Copy(), "1 0 0 0 0 0 0 0");
    EXPECT_FALSE(editor_.CanRedo());
}

TEST_F(CharacterEditorTest, TheSampleShowsALineInTheSetWithThisCharacterAsItIsDrawn) {
    editor_.ClearChr();
    const auto glyphs = editor_.Sample(std::string("A\x90\x03", 3));
    ASSERT_EQ(glyphs.size(), 3U);
    EXPECT_EQ(pictures::FormatCharVals(glyphs[0]), Stored(65));
    EXPECT_EQ(glyphs[1], pictures::Glyph{});
    EXPECT_EQ(pictures::FormatCharVals(glyphs[2]), Stored(3));
}

class CharacterSetScreenTest : public testing::Test {
  protected:
    /// Adds set 1 with the letters A and B.
    CharacterSetScreenTest() {
        for (const std::int64_t number : {65, 66}) {
            desk_.Add(TableNum::Characters, {{"charkey", 1000 + number},
                                             {"CharSet", std::string("SET 0001")},
                                             {"charsetnum", std::int64_t{1}},
                                             {"charsetname", std::string("Runes")},
                                             {"charnum", number},
                                             {"charvals", std::string("1 1 1 1 1 1 1 1")}});
        }
    }
    std::string Stored(int charkey) {
        return desk_.Rows(TableNum::Characters, "charvals", "charkey=" + std::to_string(charkey)).at(0);
    }
    std::filesystem::path Write(const char* name, const std::string& text) {
        const auto file = desk_.Adventure().GameDir() / name;
        std::ofstream(file, std::ios::binary) << text;
        return file;
    }

    Desk desk_;
};

TEST_F(CharacterSetScreenTest, OpensWithTheSetAndTheCharacterOfTheMainWindow) {
    desk_.context.currentTable = TableNum::Characters;
    desk_.context.currentEntry = 1066;
    authoring::CharacterSetScreen screen(desk_.context);
    EXPECT_EQ(screen.Set(), 1);
    EXPECT_EQ(screen.NameOf(1), "1 - Runes");
    EXPECT_THAT(screen.Sets(), ElementsAre(0, 1));
    ASSERT_EQ(screen.Characters().size(), 2U);
    EXPECT_EQ(screen.Chosen(), 1U);
}

TEST_F(CharacterSetScreenTest, ShowsSet0FromAnyOtherTable) {
    desk_.context.currentTable = TableNum::Messages;
    desk_.context.currentEntry = 1066;
    EXPECT_EQ(authoring::CharacterSetScreen(desk_.context).Set(), 0);
}

TEST_F(CharacterSetScreenTest, OpensTheEditorOfTheChosenCharacter) {
    authoring::CharacterSetScreen screen(desk_.context);
    screen.Choose(1);
    const auto request = screen.Open();
    ASSERT_TRUE(request);
    EXPECT_EQ(request->screen, authoring::Screen::Character);
    EXPECT_EQ(request->key.key, 1);
    screen.Choose(21);
    EXPECT_FALSE(screen.Open());
    EXPECT_THAT(desk_.Boxes(), ElementsAre("Character 37 cannot be edited"));
    screen.Show(1);
    EXPECT_EQ(screen.Open()->key.key, 1065);
}

TEST_F(CharacterSetScreenTest, TakesAFontAsOneChange) {
    authoring::CharacterSetScreen screen(desk_.context);
    screen.Show(1);
    desk_.dialogs.AnswerFile(
        Write("tiny.bdf",
              "STARTFONT 2.1\nFONTBOUNDINGBOX 8 8 0 0\nSTARTCHAR A\nENCODING 65\n"
              "BBX 8 8 0 0\nBITMAP\n01\n02\n03\n04\n05\n06\n07\n08\nENDCHAR\nENDFONT\n"));
    EXPECT_TRUE(screen.TakeFont());
    EXPECT_EQ(Stored(1065), "1 2 3 4 5 6 7 8");
    EXPECT_EQ(Stored(1066), "1 1 1 1 1 1 1 1");
    EXPECT_EQ(desk_.document.UndoName(), "take a font for character set 1");
}

TEST_F(CharacterSetScreenTest, ASetWithoutCharactersForAFontIsToldAndKept) {
    authoring::CharacterSetScreen screen(desk_.context);
    desk_.dialogs.AnswerFile(Write("tiny.bdf",
                                   "STARTFONT 2.1\nFONTBOUNDINGBOX 8 8 0 0\nSTARTCHAR A\nENCODING 65\n"
                                   "BBX 8 1 0 0\nBITMAP\n01\nENDCHAR\nENDFONT\n"));
    const Snapshot before = desk_.Everything();
    EXPECT_FALSE(screen.TakeFont());
    EXPECT_EQ(desk_.Everything(), before);
    EXPECT_THAT(desk_.Boxes(), ElementsAre("The font has no character that this set could take."));
}

TEST_F(CharacterSetScreenTest, AFontOfAnotherSizeIsAnErrorAndChangesNothing) {
    authoring::CharacterSetScreen screen(desk_.context);
    screen.Show(1);
    desk_.dialogs.AnswerFile(Write("big.bdf", "STARTFONT 2.1\nFONTBOUNDINGBOX 6 12 0 0\n"));
    EXPECT_THROW(screen.TakeFont(), Error);
    EXPECT_FALSE(desk_.document.UndoName());
}

TEST_F(CharacterSetScreenTest, SetsAreSavedAndLoadedIntoAnother) {
    CharacterSetFiles save(desk_.context, CharacterSetFiles::Purpose::Save);
    ASSERT_TRUE(save.Begin());
    EXPECT_EQ(save.Title(), "Save Character Set(s)");
    EXPECT_EQ(save.Label(), "Select Set(s)");
    EXPECT_EQ(save.Button(), "Save");
    EXPECT_THAT(save.Lines(), ElementsAre("0 - Default", "1 - Runes"));
    EXPECT_FALSE(save.Run());
    EXPECT_EQ(desk_.Boxes().back(), "No Set is selected");
    save.selected = {1};
    const auto file = desk_.Adventure().GameDir() / "runes.chr";
    desk_.dialogs.AnswerFile(file);
    EXPECT_TRUE(save.Run());

    store::Cursor& record = desk_.Adventure().OpenTable(TableNum::Characters, "def", "charkey=1065");
    record.SetField("charvals", std::string("9 9 9 9 9 9 9 9"));
    record.Update();
    CharacterSetFiles load(desk_.context, CharacterSetFiles::Purpose::Load, 1);
    desk_.dialogs.AnswerFile(file);
    ASSERT_TRUE(load.Begin());
    EXPECT_EQ(load.Title(), "Load Character Set 1");
    EXPECT_EQ(load.Label(), "Select Set");
    EXPECT_EQ(load.Button(), "Load");
    EXPECT_THAT(load.Lines(), ElementsAre("SET0001 - Runes"));
    load.selected = {0};
    EXPECT_TRUE(load.Run());
    EXPECT_EQ(desk_.Boxes().back(), "Runes Loaded into Character Set 1");
    EXPECT_EQ(Stored(1065), "1 1 1 1 1 1 1 1");
    EXPECT_EQ(desk_.document.UndoName(), "load character set 1");
}

TEST_F(CharacterSetScreenTest, ALoadOfAFileThatIsNoneDoesNotBegin) {
    CharacterSetFiles load(desk_.context, CharacterSetFiles::Purpose::Load, 1);
    const auto file = Write("none.chr", "hello\n");
    desk_.dialogs.AnswerFile(file);
    EXPECT_FALSE(load.Begin());
    EXPECT_THAT(desk_.Boxes(), ElementsAre(file.string() + " is not a Character Set File"));
}

/// The adventure of a desk, open a second time, to read only.
class ReadOnlyCharacters : public CharacterSetScreenTest {
  protected:
    static std::string RefusalOf(const std::function<void()>& act) {
        try {
            act();
        } catch (const Error& refused) {
            return refused.what();
        }
        return "it was done";
    }

    authoring::Document reader_{desk_.document.File(), store::OpenMode::ReadOnly};
    authoring::ScreenContext context_{reader_, desk_.dialogs};
};

TEST_F(ReadOnlyCharacters, AreShownAndNotStored) {
    const Snapshot before = desk_.Everything();
    authoring::CharacterEditor editor(context_, {.key = kGraphic});
    editor.Do(CharacterEdit::Invert);
    EXPECT_EQ(RefusalOf([&] { editor.Update(); }),
              "Could not write to the adventure: it can only be read.");
    EXPECT_TRUE(editor.Changed());
    EXPECT_EQ(desk_.Everything(), before);
    EXPECT_FALSE(reader_.UndoName());
}

TEST_F(ReadOnlyCharacters, TakeNoFontAndAreRefusedBeforeOneIsAskedFor) {
    const Snapshot before = desk_.Everything();
    authoring::CharacterSetScreen screen(context_);
    screen.Show(1);
    EXPECT_EQ(RefusalOf([&] { screen.TakeFont(); }),
              "Could not write to the adventure: it can only be read.");
    EXPECT_TRUE(desk_.dialogs.Questions().empty());
    EXPECT_EQ(desk_.Everything(), before);
    EXPECT_FALSE(reader_.UndoName());
}

}  // namespace
}  // namespace fabula::test
