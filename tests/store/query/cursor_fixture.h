#pragma once

#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "store/query/cursor.h"
#include "support/games/template_adventure.h"

namespace fabula::store {

/// An adventure whose messages are 0 "zero", 1 "one", 2 "two", 3 "three".
class CursorTest : public testing::Test {
  protected:
    CursorTest() {
        Cursor& messages = adventure_->OpenTable(TableNum::Messages, "*");
        int number = 0;
        for (const char* text : {"zero", "one", "two", "three"}) {
            messages.AddNew();
            messages.SetField("msgnum", number++);
            messages.SetField("msgmsg", text);
            messages.Update();
        }
    }

    Cursor& Messages(std::string_view where = "") {
        return adventure_->OpenTable(TableNum::Messages, "*", where);
    }

    /// What a cursor that is opened anew gives as the text of a message.
    std::string Stored(int number) {
        PreparedQuery query = adventure_->Prepare(TableNum::Messages, "msgmsg", "msgnum=?");
        return query.First({number}) ? std::string(query.Text(0)) : "no such message";
    }

    int StoredCount() { return adventure_->OpenTable(TableNum::Free25, "* from messages").RecordCount(); }

    std::string UpdateErrorOf(Cursor& cursor) {
        try {
            cursor.Update();
        } catch (const Error& error) {
            return error.what();
        }
        return "no error";
    }

    test::OpenedAdventure adventure_;
};

}  // namespace fabula::store
