#include "interchange/shared/keyed_table.h"

#include <gtest/gtest.h>

#include "support/games/template_adventure.h"

namespace fabula::interchange {
namespace {

using store::TableNum;

class KeyedMessages : public testing::Test {
  protected:
    KeyedMessages() {
        adventure_->DeleteFrom(TableNum::Messages);
        store::Cursor& messages = adventure_->OpenTable(TableNum::Messages, "def");
        for (const char* text : {"first", "second"}) {
            messages.AddNew();
            messages.SetField("msgnum", 5);
            messages.SetField("msgmsg", text);
            messages.Update();
        }
    }

    test::OpenedAdventure adventure_;
};

TEST_F(KeyedMessages, OfRecordsWithOneNumberTheFirstCounts) {
    KeyedTable messages(*adventure_, TableNum::Messages);
    EXPECT_EQ(messages.GoTo(5).Text("msgmsg"), "first");
}

TEST_F(KeyedMessages, ARecordThatIsAddedIsFoundByItsNumber) {
    KeyedTable messages(*adventure_, TableNum::Messages);
    messages.GoToOrAdd(9).SetField("msgmsg", "ninth");
    messages.Update();
    EXPECT_EQ(messages.HighestKey(), 9);
    EXPECT_EQ(messages.GoTo(9).Text("msgmsg"), "ninth");
}

}  // namespace
}  // namespace fabula::interchange
