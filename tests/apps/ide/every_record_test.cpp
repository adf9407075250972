#include <QApplication>
#include <QTableView>
#include <ostream>

#include <gtest/gtest.h>

#include "ide/driven_window.h"
#include "qt/strings.h"

namespace fabula::test {
namespace {

using store::AdventureKind;
using store::TableNum;

struct NamedKind {
    AdventureKind kind;
    const char* name;

    friend void PrintTo(const NamedKind& of, std::ostream* out) { *out << of.name; }
};

constexpr NamedKind kKinds[] = {
    {AdventureKind::Fabula, "Fabula"},
    {AdventureKind::Vel, "Vel"},
    {AdventureKind::Marlo, "Marlo"},
};

/// What an author does to a record, and what can be seen of it in a column and in the file.
struct Edit {
    const char* name;
    const char* node;    ///< of the tree
    std::string row;     ///< what its first cell shows; "*" for the verb of any kind's entries
    const char* column;  ///< in which the change is seen
    std::string before;
    std::string after;
    std::vector<Step> steps;
    const char* change;  ///< the name of the step of Undo
    TableNum table;
    const char* field;
    const char* where;
    std::string storedBefore;
    std::string storedAfter;
    bool inMarlo = true;
};

const std::vector<Edit>& Edits() {
    static const std::vector<Edit> kEdits = {
        {"AdventureSettings",
         "Adventure Settings",
         "The Lighthouse",
         "Author",
         "",
         "Ann",
         {{"author", "Ann"}},
         "edit the settings",
         TableNum::Adventure,
         "author",
         "",
         "",
         "Ann"},
        {"LocationsShortDescription",
         "Locations",
         "0",
         "Short",
         "The hall",
         "The great hall",
         {{"shortDescription", "The great hall"}},
         "edit location 0",
         TableNum::Locations,
         "locshortdesc",
         "locnum=0",
         "The hall",
         "The great hall"},
        {"LocationsDescription",
         "Locations",
         "0",
         "Description",
         "You are in the hall of the lighthouse.",
         "You are in a bare hall.",
         {{"description", "You are in a bare hall."}},
         "edit location 0",
         TableNum::Locations,
         "locdesc",
         "locnum=0",
         "You are in the hall of the lighthouse.",
         "You are in a bare hall."},
        {"LocationsExits",
         "Locations",
         "0",
         "Exits",
         "",
         "NORTH 1",
         {{"exitWord", "NORTH"}, {"exitPlace", "1"}, {"add"}},
         "edit location 0",
         TableNum::Locations,
         "numericexits",
         "locnum=0",
         "",
         "1 1"},
        {"ObjectsDescription",
         "Objects",
         "0",
         "Description",
         "a lamp",
         "a brass lamp",
         {{"description", "a brass lamp"}},
         "edit object 0",
         TableNum::Objects,
         "objdesc",
         "objnum=0",
         "a lamp",
         "a brass lamp"},
        {"ObjectsPlace",
         "Objects",
         "0",
         "At",
         "1",
         "254",
         {{"initialPlace2"}},
         "edit object 0",
         TableNum::Objects,
         "objloc",
         "objnum=0",
         "1",
         "254"},
        {"Message",
         "Messages",
         "1",
         "Text",
         "It is dark.",
         "It is too dark.",
         {{"text", "It is too dark."}},
         "edit message 1",
         TableNum::Messages,
         "msgmsg",
         "msgnum=1",
         "It is dark.",
         "It is too dark."},
        {"SystemMessage",
         "System Messages",
         "7",
         "Text",
         "What now?",
         "And now?",
         {{"text", "And now?"}},
         "edit system message 7",
         TableNum::SystemMessages,
         "smsgmsg",
         "smsgnum=7",
         "What now?",
         "And now?"},
        {"ProcessDescription",
         "Process Descriptions",
         "3",
         "Text",
         "What the keeper does",
         "The keeper",
         {{"text", "The keeper"}},
         "edit description of process table 3",
         TableNum::ProcDesc,
         "pmsgmsg",
         "pmsgnum=3",
         "What the keeper does",
         "The keeper",
         false},
        {"EntryOfResponse",
         "Response (P0)",
         "*",
         "CondActs",
         "DESC",
         "DONE",
         {{"line", "DONE"}},
         "edit process entry 0",
         TableNum::ProcessTables,
         "condacts",
         "canum=0",
         "DESC",
         "DONE"},
        {"EntryOfProcess1",
         "Process 1",
         "*",
         "CondActs",
         "DESC",
         "DONE",
         {{"line", "DONE"}},
         "edit process entry 1",
         TableNum::ProcessTables,
         "condacts",
         "canum=1",
         "DESC",
         "DONE"},
        {"EntryOfProcess2",
         "Process 2",
         "*",
         "CondActs",
         "DESC",
         "DONE",
         {{"line", "DONE"}},
         "edit process entry 2",
         TableNum::ProcessTables,
         "condacts",
         "canum=2",
         "DESC",
         "DONE",
         false},
        {"EntryOfAnotherProcess",
         "Other Processes",
         "3",
         "CondActs",
         "DESC",
         "DONE",
         {{"line", "DONE"}},
         "edit process entry 3",
         TableNum::ProcessTables,
         "condacts",
         "canum=3",
         "DESC",
         "DONE",
         false},
        {"FlagsUseAndDescription",
         "Flags",
         "60",
         "Description",
         "",
         "The door is open.",
         {{"use", "Switch"}, {"description", "The door is open."}},
         "edit flag 60",
         TableNum::Flags,
         "flguse",
         "flgnum=60",
         "Unknown",
         "Switch"},
    };
    return kEdits;
}

struct Case {
    NamedKind kind;
    Edit edit;

    friend void PrintTo(const Case& of, std::ostream* out) { *out << of.kind.name << of.edit.name; }
};

std::vector<Case> Cases() {
    std::vector<Case> cases;
    for (const NamedKind& kind : kKinds) {
        for (const Edit& edit : Edits()) {
            if (kind.kind == AdventureKind::Marlo && !edit.inMarlo) continue;
            cases.push_back({kind, edit});
            if (edit.row == "*") cases.back().edit.row = AnyVerb(kind.kind);
        }
    }
    return cases;
}

class EveryRecord : public testing::TestWithParam<Case> {
  protected:
    std::string Seen() { return window_.CellOf(edit_.row, edit_.column); }
    std::string Stored() { return window_.Stored(edit_.table, edit_.field, edit_.where); }

    const Edit& edit_ = GetParam().edit;
    DrivenWindow window_{GetParam().kind.kind};
};

TEST_P(EveryRecord, IsEditedTakenBackAndMadeAgainByKeysAndClicks) {
    window_.GoToTable(edit_.node);
    window_.GoToRow(edit_.row);
    EXPECT_EQ(Seen(), edit_.before);
    EXPECT_EQ(Stored(), edit_.storedBefore);

    const std::size_t boxes = window_.dialogs.Boxes().size();
    ASSERT_TRUE(window_.InDialog(Qt::Key_Return, Qt::NoModifier, edit_.steps));
    EXPECT_EQ(window_.dialogs.Boxes().size(), boxes) << window_.dialogs.Boxes().back().text;
    EXPECT_EQ(Seen(), edit_.after);
    EXPECT_EQ(Stored(), edit_.storedAfter);
    EXPECT_EQ(QApplication::focusWidget(), &window_.Part<QTableView>("Grid"));
    EXPECT_EQ(qt::FromQt(window_.Action("Undo").text()), std::string("&Undo ") + edit_.change);

    window_.Press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Seen(), edit_.before);
    EXPECT_EQ(Stored(), edit_.storedBefore);
    EXPECT_EQ(qt::FromQt(window_.Action("Redo").text()), std::string("&Redo ") + edit_.change);

    window_.Press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(Seen(), edit_.after);
    EXPECT_EQ(Stored(), edit_.storedAfter);
}

class EveryKind : public testing::TestWithParam<NamedKind> {
  protected:
    std::string UndoText() { return qt::FromQt(window_.Action("Undo").text()); }

    DrivenWindow window_{GetParam().kind};
};

TEST_P(EveryKind, AWordIsAddedTakenBackAndMadeAgainByKeysAndClicks) {
    window_.GoToTable("Vocabulary");
    const int words = window_.RowCount();
    const bool marlo = GetParam().kind == AdventureKind::Marlo;
    std::vector<Step> steps = {{"word", "shine"}, {"type0"}, {"number", "77"}};
    if (marlo) steps = {{"word", "glow"}, {"number", "77"}};
    const std::string word = marlo ? "GLOW" : "SHINE";
    const std::string where = "word='" + word + "'";

    ASSERT_TRUE(window_.InDialog(Qt::Key_N, Qt::ControlModifier, steps));
    EXPECT_EQ(window_.RowCount(), words + 1);
    EXPECT_EQ(window_.CellOf("77", "Word"), word);
    EXPECT_EQ(window_.Stored(TableNum::Vocabulary, "vocnum", where), "77");
    EXPECT_EQ(UndoText(), "&Undo add word " + word);

    window_.Press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(window_.RowCount(), words);
    EXPECT_EQ(window_.Stored(TableNum::Vocabulary, "vocnum", where), "no record");

    window_.Press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(window_.CellOf("77", "Word"), word);
}

TEST_P(EveryKind, AWordThatIsThereIsCorrected) {
    window_.GoToTable("Vocabulary");
    window_.GoToRow("60");
    EXPECT_TRUE(window_.InDialog(Qt::Key_Return, Qt::NoModifier, {Step{"word", "knob"}}));
    EXPECT_EQ(window_.CellOf("60", "Word"), "KNOB");
    EXPECT_EQ(UndoText(), "&Undo edit word KNOB with 1 use");
}

TEST_P(EveryKind, APictureIsAdded) {
    window_.GoToTable("Pictures");
    const int before = window_.RowCount();
    ASSERT_TRUE(window_.InDialog(Qt::Key_N, Qt::ControlModifier, {}));
    EXPECT_EQ(window_.RowCount(), before + 1);
    EXPECT_EQ(UndoText(), "&Undo add picture 0");
}

TEST_P(EveryKind, TablesOfTheSystemOpenNoEditor) {
    for (const char* node :
         {"Graphics Commands", "Keypad Templates", "Conditions and Actions", "Special Codes"}) {
        window_.GoToTable(node);
        window_.Press(Qt::Key_F6);
        window_.Press(Qt::Key_F6);
        EXPECT_GT(window_.RowCount(), 0) << node;
        EXPECT_FALSE(window_.InDialog(Qt::Key_Return, Qt::NoModifier, {})) << node;
        EXPECT_FALSE(window_.InDialog(Qt::Key_N, Qt::ControlModifier, {})) << node;
    }
    EXPECT_EQ(UndoText(), "&Undo");
}

TEST(EveryRecordOfFabula, FlagsAreAddedAndTakenBack) {
    DrivenWindow window(AdventureKind::Fabula);
    window.GoToTable("Flags");
    const int flags = window.RowCount();
    window.dialogs.AnswerNext(true);
    EXPECT_FALSE(window.InDialog(Qt::Key_N, Qt::ControlModifier, {}));
    EXPECT_GT(window.RowCount(), flags);
    EXPECT_EQ(qt::FromQt(window.Action("Undo").text()).substr(0, 16), "&Undo add flags ");
    window.Press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(window.RowCount(), flags);
}

TEST(EveryRecordOfMarlo, ACharacterSetIsAddedTakenBackAndMadeAgain) {
    DrivenWindow window(AdventureKind::Marlo);
    window.GoToTable("Character Sets");
    const int characters = window.RowCount();
    window.dialogs.AnswerText("Runes");
    EXPECT_FALSE(window.InDialog(Qt::Key_N, Qt::ControlModifier, {}));
    const int more = window.RowCount();
    EXPECT_GT(more, characters);
    EXPECT_EQ(qt::FromQt(window.Action("Undo").text()), "&Undo add character set 1");
    window.Press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(window.RowCount(), characters);
    window.Press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(window.RowCount(), more);
}

INSTANTIATE_TEST_SUITE_P(Kinds, EveryKind, testing::ValuesIn(kKinds),
                         [](const auto& given) { return std::string(given.param.name); });

INSTANTIATE_TEST_SUITE_P(Records, EveryRecord, testing::ValuesIn(Cases()), [](const auto& given) {
    return std::string(given.param.kind.name) + given.param.edit.name;
});

}  // namespace
}  // namespace fabula::test
