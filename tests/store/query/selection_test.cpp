#include "store/query/selection.h"

#include <gtest/gtest.h>

namespace fabula::store {
namespace {

const TableSchema kMessages{"Messages",
                            {{"msgnum", FieldType::SmallInt, 0}, {"msgmsg", FieldType::LongVarWChar, 0}}};

std::string SelectionError(const SelectionText& text) {
    try {
        BuildSelection(kMessages, text);
    } catch (const FilterError& error) {
        return error.what();
    }
    return "no error";
}

TEST(Selection, AllFieldsNeverShowTheStoresOwnKey) {
    const Selection selection = BuildSelection(kMessages, {"*", "", ""});
    EXPECT_EQ(selection.columns, (std::vector<std::size_t>{0, 1}));
}

TEST(Selection, DefAndDefaultMeanAllFields) {
    EXPECT_EQ(BuildSelection(kMessages, {"def", "", ""}).columns.size(), 2u);
    EXPECT_EQ(BuildSelection(kMessages, {"DEFAULT", "", ""}).columns.size(), 2u);
}

TEST(Selection, OrdersTextWithoutRegardToCaseAndEndsWithTheOrderOfCreation) {
    EXPECT_EQ(BuildSelection(kMessages, {"msgnum", "", "msgmsg desc, MSGNUM"}).sql,
              "SELECT storekey,msgnum FROM Messages ORDER BY msgmsg COLLATE fabula_nocase DESC, msgnum, "
              "storekey");
}

TEST(Selection, BadListsAndOrdersTellThePlace) {
    EXPECT_EQ(SelectionError({"msgnum, text", "", ""}), "at 9: expected a field of Messages");
    EXPECT_EQ(SelectionError({"msgnum msgmsg", "", ""}), "at 8: expected ',' or the end");
    EXPECT_EQ(SelectionError({"*", "", "msgnum; drop table Messages"}),
              "at 7: expected a name, a number, a quoted text or a sign");
    EXPECT_EQ(SelectionError({"*", "", "msgnum down"}), "at 8: expected ',', 'desc' or the end");
}

TEST(FreeStatement, NamesFieldsAndTable) {
    const FreeStatement parts = SplitFreeStatement("* from vocabulary");
    EXPECT_EQ(parts.fields, "* ");
    EXPECT_EQ(parts.table, "vocabulary");
    EXPECT_EQ(parts.where, "");
    EXPECT_EQ(parts.order, "");
}

TEST(FreeStatement, MayHaveAFilterAndAnOrderOfItsOwn) {
    const FreeStatement parts =
        SplitFreeStatement("word from Vocabulary where word<>'order by' order by vocnum desc");
    EXPECT_EQ(parts.where, "word<>'order by' ");
    EXPECT_EQ(parts.order, "vocnum desc");
}

TEST(FreeStatement, WithoutATableIsAnError) {
    EXPECT_THROW(SplitFreeStatement("*"), FilterError);
    EXPECT_THROW(SplitFreeStatement("* from"), FilterError);
    EXPECT_THROW(SplitFreeStatement("* from messages limit 5"), FilterError);
}

}  // namespace
}  // namespace fabula::store
