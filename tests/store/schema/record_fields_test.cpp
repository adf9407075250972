#include "store/schema/record_fields.h"

#include <stdexcept>

#include <gtest/gtest.h>

namespace fabula::store {
namespace {

TEST(KeyField, OfASecondCursorIsThatOfItsTable) {
    EXPECT_EQ(KeyField(TableNum::Locations), "locnum");
    EXPECT_EQ(KeyField(TableNum::LocationsWalk), "locnum");
}

TEST(KeyField, OfAFreeCursorIsAMistakeOfTheProgram) {
    EXPECT_THROW(KeyField(TableNum::Free22), std::logic_error);
}

TEST(TextField, IsWhatARecordIsThereFor) {
    EXPECT_EQ(TextField(TableNum::Messages), "msgmsg");
    EXPECT_EQ(TextField(TableNum::ProcessTables), "condacts");
    EXPECT_EQ(TextField(TableNum::Pictures), "drawstring");
}

TEST(TextField, IsEmptyForATableOfMoreThanTexts) {
    EXPECT_EQ(TextField(TableNum::Adventure), "");
    EXPECT_EQ(TextField(TableNum::Vocabulary), "");
}

TEST(KeyAndText, IsAListOfFields) {
    EXPECT_EQ(KeyAndText(TableNum::SystemMessages), "smsgnum, smsgmsg");
}

}  // namespace
}  // namespace fabula::store
