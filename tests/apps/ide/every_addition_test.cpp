#include <ostream>
#include <tuple>

#include <gtest/gtest.h>

#include "ide/driven_window.h"
#include "qt/strings.h"

namespace fabula::test {
namespace {

using store::AdventureKind;

/// A record that an author adds to a table, and deletes again.
struct Addition {
    const char* name;
    const char* node;  ///< of the tree
    const char* row;   ///< what its first cell shows
    std::vector<Step> steps;
    const char* record;  ///< in the name of the steps of Undo

    friend void PrintTo(const Addition& of, std::ostream* out) { *out << of.name; }
};

const std::vector<Addition>& Additions() {
    static const std::vector<Addition> kAdditions = {
        {"Location", "Locations", "3", {{"description", "You are in the attic."}}, "location 3"},
        {"Object", "Objects", "1", {{"description", "a lamp"}, {"initialPlace2"}}, "object 1"},
        {"Message", "Messages", "2", {{"text", "It is cold."}}, "message 2"},
        {"SystemMessage", "System Messages", "54", {{"text", "Go on."}}, "system message 54"},
        {"EntryOfResponse", "Response (P0)", "_", {{"line", "DONE"}}, "process entry 4"},
    };
    return kAdditions;
}

class EveryAddition : public testing::TestWithParam<std::tuple<AdventureKind, Addition>> {
  protected:
    EveryAddition() {
        window_.GoToTable(added_.node);
        records_ = window_.RowCount();
    }
    void Add() { ASSERT_TRUE(window_.InDialog(Qt::Key_N, Qt::ControlModifier, added_.steps)); }
    std::string UndoText() { return qt::FromQt(window_.Action("Undo").text()); }
    void Undo() { window_.Press(Qt::Key_Z, Qt::ControlModifier); }
    void Redo() { window_.Press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier); }

    const Addition& added_ = std::get<1>(GetParam());
    DrivenWindow window_{std::get<0>(GetParam())};
    int records_ = 0;
};

TEST_P(EveryAddition, IsTakenBackAndMadeAgain) {
    Add();
    EXPECT_EQ(window_.RowCount(), records_ + 1);
    EXPECT_EQ(UndoText(), std::string("&Undo add ") + added_.record);
    Undo();
    EXPECT_EQ(window_.RowCount(), records_);
    Redo();
    EXPECT_EQ(window_.RowCount(), records_ + 1);
}

TEST_P(EveryAddition, IsDeletedByItsKeyAndComesBackByUndo) {
    Add();
    window_.GoToRow(added_.row);
    window_.dialogs.AnswerNext(true);
    window_.Press(Qt::Key_Delete);
    EXPECT_EQ(window_.RowCount(), records_);
    EXPECT_EQ(UndoText().substr(0, 13), "&Undo delete ");
    Undo();
    EXPECT_EQ(window_.RowCount(), records_ + 1);
}

TEST_P(EveryAddition, IsKeptWhenItsDeletionIsNotConfirmed) {
    Add();
    window_.GoToRow(added_.row);
    window_.dialogs.AnswerNext(false);
    window_.Press(Qt::Key_Delete);
    EXPECT_EQ(window_.RowCount(), records_ + 1);
}

/// "VELMessage"
std::string NameOfCase(const testing::TestParamInfo<EveryAddition::ParamType>& given) {
    return std::string(store::NameOf(std::get<0>(given.param))) + std::get<1>(given.param).name;
}

INSTANTIATE_TEST_SUITE_P(Records, EveryAddition,
                         testing::Combine(testing::Values(AdventureKind::Fabula, AdventureKind::Vel,
                                                          AdventureKind::Marlo),
                                          testing::ValuesIn(Additions())),
                         NameOfCase);

}  // namespace
}  // namespace fabula::test
