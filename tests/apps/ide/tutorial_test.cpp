#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QTableView>
#include <QTest>
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ide/author.h"
#include "ide/window/trial_run.h"
#include "player/panes/game_screen.h"
#include "player/panes/text_pane.h"
#include "qt/help/help_window.h"
#include "qt/strings.h"
#include "store/adventure.h"
#include "support/active_window.h"
#include "support/places.h"

/// The game of docs/tutorial.md, made as the tutorial tells: one step here for each of its headings.
namespace fabula::test {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

// Columns of the table of locations.
constexpr int kExits = 1;
constexpr int kShortDescription = 3;
constexpr QKeyCombination kAddRecord = Qt::CTRL | Qt::Key_N;
constexpr QKeyCombination kStore = Qt::CTRL | Qt::Key_Return;

std::string ReadFile(const std::filesystem::path& file) {
    std::ifstream in(file);
    return {std::istreambuf_iterator<char>(in), {}};
}

/// The text with a blank for each end of a line.
std::string Unwrapped(std::string text) {
    std::ranges::replace(text, '\n', ' ');
    return text;
}

std::vector<std::string> Between(const std::string& text, const std::string& begin,
                                 const std::string& end) {
    std::vector<std::string> found;
    for (std::size_t at = text.find(begin); at != std::string::npos; at = text.find(begin, at)) {
        at += begin.size();
        const std::size_t stop = text.find(end, at);
        if (stop == std::string::npos) break;
        found.push_back(text.substr(at, stop - at));
        at = stop + end.size();
    }
    return found;
}

class Tutorial : public testing::Test {
  protected:
    void MakeTheAdventure() {
        author_.Expects("Create a Fabula Database", [&] {
            author_.Types(qt::PathToQt(author_.Desk().folder / "cake.fbd"));
            author_.Presses(Qt::Key_Return);
        });
        author_.Expects("Choose Type of Adventure", [&] { author_.Clicks("execute"); });
        author_.Expects("Fabula IDE", [&] { author_.Presses(Qt::Key_Return); });
        author_.Chooses("File > New");
    }

    void DescribeThePlaces() {
        author_.ClicksNode("Locations");
        author_.Expects("Location 0", [&] {
            FillPlace("The kitchen",
                      "You are in the kitchen. It is ten at night, and at tea there was cake. The hall is "
                      "north. In the east wall is the door of the pantry.");
        });
        author_.DoubleClicksRow(0);
        AddPlace("Location 1", "The hall",
                 "You are in the hall. The clock ticks as if nobody had been sent to bed. The kitchen is "
                 "south.");
        AddPlace(
            "Location 2", "The pantry",
            "You are in the pantry, among jars with your aunt's writing on them. The kitchen is west.");
    }
    void AddPlace(const char* title, const char* name, const char* text) {
        author_.Expects(title, [=, this] { FillPlace(name, text); });
        author_.Chooses("Edit > Add Location");
    }
    void FillPlace(const char* name, const char* text) {
        author_.Clicks("shortDescription");
        author_.Types(name);
        Replace("description", text);
        author_.Presses(kStore);
    }
    void Replace(const char* field, const char* text) {
        author_.Clicks(field);
        author_.Presses(Qt::CTRL | Qt::Key_A);
        author_.Types(text);
    }

    void ConnectThePlaces() {
        AddExits(0, "Location 0", "N 1 E 2");
        AddExits(1, "Location 1", "S 0");
        AddExits(2, "Location 2", "W 0");
        // The columns have grown with what they hold.
        const auto& grid = author_.Desk().Part<QTableView>("Grid");
        for (const int column : {kExits, kShortDescription})
            EXPECT_GE(grid.columnWidth(column), TextWidth(grid, column)) << column;
    }
    static int TextWidth(const QTableView& grid, int column) {
        int width = 0;
        for (int row = 0; row < grid.model()->rowCount(); ++row) {
            const QString text = grid.model()->index(row, column).data().toString();
            width = std::max(width, grid.fontMetrics().horizontalAdvance(text));
        }
        return width;
    }
    void AddExits(int row, const char* title, const char* exits) {
        author_.Expects(title, [=, this] {
            author_.Clicks("exits");
            author_.Types(exits);
            author_.Presses(kStore);
        });
        author_.DoubleClicksRow(row);
    }

    void TeachTheWords() {
        author_.ClicksNode("Vocabulary");
        AddWord("DOOR", "type2");
        AddWord("OPEN", "type0");
        AddWord("UNLOCK", "type0", "33");
        AddWord("EAT", "type0");
    }
    /// `number` of a word that means the same as another one.
    void AddWord(const char* word, const char* type, const char* number = nullptr) {
        author_.Expects("Vocabulary Editor", [=, this] {
            author_.Clicks("word");
            author_.Types(word);
            author_.Clicks(type);
            if (number) Replace("number", number);
            author_.Presses(kStore);
        });
        author_.Presses(kAddRecord);
    }

    void PlaceTheThings() {
        author_.ClicksNode("Objects");
        AddThing("Object 0", "a small brass key", "KEY", "1");
        AddThing("Object 1", "the last slice of cake", "CAKE", "2");
    }
    /// `noun` is proposed, and made with the thing.
    void AddThing(const char* title, const char* text, const char* noun, const char* room) {
        author_.Expects(title, [=, this] {
            author_.Clicks("description");
            author_.Types(text);
            author_.Clicks("initialPlace3");
            Replace("room", room);
            EXPECT_EQ(author_.Front().findChild<QComboBox*>("noun")->currentText(), noun);
            EXPECT_TRUE(author_.Front().findChild<QCheckBox*>("makeNoun")->isChecked());
            author_.Presses(kStore);
        });
        author_.Presses(kAddRecord);
    }

    void TakeAMistakeBack() {
        author_.Expects("Confirm", [&] { author_.ClicksButton("Yes"); });
        author_.Expects("Delete Word", [&] { author_.ClicksButton("OK"); });
        author_.Expects("Delete Word", [&] { author_.ClicksButton("OK"); });
        author_.ClicksTool("Delete");
        EXPECT_THAT(Stored("word from vocabulary where word='EAT'"), IsEmpty());
        author_.Chooses("Edit > Undo delete word EAT");
        EXPECT_THAT(Stored("word from vocabulary where word='EAT'"), ElementsAre("EAT"));
    }

    void NoteWhatAFlagIsFor() {
        author_.ClicksNode("Flags");
        author_.Presses(Qt::CTRL | Qt::Key_K);
        author_.Types("60");
        author_.Presses(Qt::Key_Return);
        author_.Expects("Flag 60", [&] {
            Pick("use", "Switch");
            author_.Clicks("description");
            author_.Types("The pantry is open.");
            author_.Presses(kStore);
        });
        author_.Presses(Qt::Key_Return);
    }

    void GiveTheRules() {
        author_.ClicksNode("Response (P0)");
        author_.Expects("Process Table Editor", [&] {
            Pick("verb", "EAST");
            author_.Clicks("line");
            author_.Types("at 0 zero 60");
            EXPECT_EQ(Told("meaning"), "ZERO 60: The pantry is open.");
            LookUp("zero.htm");
            author_.Types(" mess");
            author_.Presses(Qt::Key_Tab);
            author_.Types("\"The pantry is locked. It has been locked since the business with the jam.");
            author_.Presses(Qt::Key_Tab);
            author_.Types("done");
            author_.Presses(kStore);
        });
        author_.Presses(kAddRecord);
        AddRule("OPEN", "DOOR", {"at 0 notzero @pantry", "message \"It is open.", "done"});
        AddRule("OPEN", "DOOR",
                {"at 0 notcarr @key", "message \"You have nothing to open it with.", "done"});
        AddRule("OPEN", "DOOR",
                {"at 0 set @pantry", "message \"The key turns without a sound. You have done this before.",
                 "done"});
        AddRule(
            "EAT", "CAKE",
            {"present @cake",
             "plus 30 100 message \"You eat the cake in the dark, standing up. It is the best cake in the "
             "world.",
             "score turns end"});
    }
    void LookUp(const char* page) {
        author_.Desk().help.Write(page, "<title>A page</title>");
        author_.Presses(Qt::Key_F1);
        ASSERT_NE(author_.Desk().Window().Help().Window(), nullptr);
        EXPECT_EQ(qt::FromQt(author_.Desk().Window().Help().Window()->Page()), page);
    }
    /// Between the parts of the line Tab takes what is offered.
    void AddRule(const char* verb, const char* noun, const std::vector<const char*>& line) {
        author_.Expects("Process Table Editor", [=, this] {
            Pick("verb", verb);
            Pick("noun", noun);
            author_.Clicks("line");
            for (const char* part : line) {
                if (part != line.front()) author_.Presses(Qt::Key_Tab);
                author_.Types(part);
            }
            author_.Presses(kStore);
        });
        author_.Presses(kAddRecord);
    }
    void Pick(const char* list, const char* item) {
        author_.Clicks(list);
        author_.Types(item);
        author_.Presses(Qt::Key_Return);
    }
    /// The row that the grid stands on.
    QString RowInView() {
        const QModelIndex current = author_.Desk().Part<QTableView>("Grid").currentIndex();
        return author_.Desk().Part<QTreeWidget>("Tree").currentItem()->text(0) +
               QString(" %1").arg(current.row());
    }
    std::string Told(const char* label) {
        return qt::FromQt(author_.Front().findChild<QLabel*>(label)->text());
    }

    void GiveItAName() {
        author_.Expects("Adventure Settings Editor", [&] {
            Replace("name", "The Last Slice");
            author_.Presses(kStore);
        });
        author_.Chooses("Game > Adventure Settings");
    }

    void CheckIt() {
        author_.Expects("Verify Adventure", [&] {
            EXPECT_TRUE(QTest::qWaitFor([&] { return Told("progress") == "The adventure has passed."; },
                                        test::kLongestWait));
            const auto& lines = *author_.Front().findChild<QListWidget*>("status");
            EXPECT_EQ(lines.item(1)->text(), "No Errors Found");
            author_.Clicks("ok");
        });
        author_.Chooses("Game > Verify");
    }

    void PlayIt() {
        author_.Chooses("Game > Run & Test");
        EXPECT_FALSE(author_.Desk().Window().isVisible());
        author_.Desk().timers.Advance(std::chrono::seconds(10));
        EXPECT_THAT(qt::FromQt(author_.Front().windowTitle()), StartsWith("The Last Slice"));
        EXPECT_THAT(Say("e"), HasSubstr("It has been locked since the business with the jam."));
        EXPECT_THAT(Say("open door"), HasSubstr("You have nothing to open it with."));
        EXPECT_THAT(Say("n"), HasSubstr("a small brass key"));
        Say("take key");
        EXPECT_THAT(Say("s"), HasSubstr("The kitchen"));
        EXPECT_THAT(Say("unlock the door with the key"), HasSubstr("The key turns without a sound."));
        EXPECT_THAT(Say("open door"), HasSubstr("It is open."));
        EXPECT_THAT(Say("e"), HasSubstr("the last slice of cake"));
        EXPECT_THAT(Say("eat cake"), HasSubstr("It is the best cake in the world."));
        Say("n");
        author_.Desk().timers.Advance(std::chrono::milliseconds(0));
        QApplication::processEvents();
    }
    /// What the game answers to a sentence.
    std::string Say(const char* sentence) {
        const auto& pane = author_.Desk().Window().Test()->Window().Screen().Text();
        const auto before = pane.toPlainText().size();
        author_.Types(sentence);
        author_.Presses(Qt::Key_Return);
        if (!author_.Desk().Window().Test()) return "";
        return qt::FromQt(pane.toPlainText().mid(before));
    }

    /// The file's records that `select` tells, "word, vocnum from vocabulary where vocnum>30": the fields
    /// of each between bars.
    std::vector<std::string> Stored(std::string_view select) {
        const auto adventure = store::Adventure::Open(File(), store::OpenMode::ReadOnly);
        std::vector<std::string> rows;
        for (store::Cursor& record = adventure->OpenTable(store::TableNum::Free25, select); !record.Eof();
             record.MoveNext()) {
            std::string row;
            for (std::size_t field = 0; field < record.Fields().size(); ++field)
                row += (field == 0 ? "" : "|") + text::ToText(record.Field(field));
            rows.push_back(row);
        }
        return rows;
    }
    std::filesystem::path File() { return author_.Desk().folder / "cake.fbd"; }

    /// The tutorial says what was done: what was typed, what was chosen, and no other commands.
    void CompareWithTheText() {
        const std::string text = Unwrapped(ReadFile(test::SourceFolder() / "docs/tutorial.md"));
        for (const std::string& typed : author_.Typed())
            EXPECT_THAT(text, HasSubstr(typed == File().string() ? "cake.fbd" : typed));
        std::set<std::string> chosen;
        for (const std::string& each : author_.Chosen()) {
            EXPECT_THAT(text, HasSubstr("**" + each + "**"));
            chosen.insert(each);
        }
        for (const std::string& command : Between(text, "**", "**"))
            EXPECT_THAT(chosen, Contains(command)) << "is told in the tutorial only";
        for (const std::string& picture : Between(text, "](images/", ")"))
            EXPECT_TRUE(std::filesystem::exists(test::SourceFolder() / "docs/images" / picture)) << picture;
    }

    Author author_;
};

TEST_F(Tutorial, ItsStepsMakeAGameThatCanBeWon) {
    MakeTheAdventure();
    DescribeThePlaces();
    ConnectThePlaces();
    TeachTheWords();
    TakeAMistakeBack();
    PlaceTheThings();
    NoteWhatAFlagIsFor();
    GiveTheRules();
    GiveItAName();
    CheckIt();
    const QString row = RowInView();
    PlayIt();
    EXPECT_TRUE(author_.Desk().Window().isVisible());
    EXPECT_EQ(RowInView(), row);
    EXPECT_EQ(author_.StillExpected(), 0U);

    EXPECT_THAT(
        Stored("locnum, exits, locshortdesc, locdesc from locations"),
        ElementsAre(
            "0|N 1 E 2|The kitchen|You are in the kitchen. It is ten at night, and at tea there was "
            "cake. The hall is north. In the east wall is the door of the pantry.",
            "1|S 0|The hall|You are in the hall. The clock ticks as if nobody had been sent to bed. "
            "The kitchen is south.",
            "2|W 0|The pantry|You are in the pantry, among jars with your aunt's writing on them. "
            "The kitchen is west."));
    EXPECT_THAT(
        Stored("word, vocnum, voctype from vocabulary where word='KEY' or word='DOOR' or word='CAKE' "
               "or word='OPEN' or word='UNLOCK' or word='EAT'"),
        ElementsAre("DOOR|50|Noun", "OPEN|33|Verb", "UNLOCK|33|Verb", "EAT|34|Verb", "KEY|51|Noun",
                    "CAKE|52|Noun"));
    EXPECT_THAT(
        Stored("objnum, objdesc, objnoun, objlocdesc from objects"),
        ElementsAre("0|a small brass key|KEY|In Room 1.", "1|the last slice of cake|CAKE|In Room 2."));
    EXPECT_THAT(
        Stored("msgnum, msgmsg from messages where msgnum>1"),
        ElementsAre("2|The pantry is locked. It has been locked since the business with the jam.",
                    "3|It is open.", "4|You have nothing to open it with.",
                    "5|The key turns without a sound. You have done this before.",
                    "6|You eat the cake in the dark, standing up. It is the best cake in the world."));
    EXPECT_THAT(Stored("advname from adventure"), ElementsAre("The Last Slice"));
    EXPECT_THAT(Stored("flgnum, flgtype, flguse, flgdesc from flags where flgnum=60"),
                ElementsAre("60|User|Switch|The pantry is open."));
    EXPECT_THAT(
        Stored("estype, w1, w2, condacts from processtables where canum>23"),
        ElementsAre("0|E|_|AT 0 ZERO 60 MESSAGE 2 DONE", "0|OPEN|DOOR|AT 0 NOTZERO 60 MESSAGE 3 DONE",
                    "0|OPEN|DOOR|AT 0 NOTCARR 0 MESSAGE 4 DONE", "0|OPEN|DOOR|AT 0 SET 60 MESSAGE 5 DONE",
                    "0|EAT|CAKE|PRESENT 1 PLUS 30 100 MESSAGE 6 SCORE TURNS END"));
    CompareWithTheText();
}

}  // namespace
}  // namespace fabula::test
