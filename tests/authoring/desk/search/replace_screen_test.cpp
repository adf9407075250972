#include "authoring/desk/search/replace_screen.h"

#include <gtest/gtest.h>

#include "authoring/desk.h"

namespace fabula::authoring {
namespace {

using store::TableNum;

class ReplaceScreenTest : public testing::Test {
  protected:
    ReplaceScreenTest() {
        desk_.Add(TableNum::Messages,
                  {{"msgnum", std::int64_t{900}}, {"msgmsg", std::string("the old lamp")}});
        desk_.Add(TableNum::Messages,
                  {{"msgnum", std::int64_t{901}}, {"msgmsg", std::string("old and older")}});
        screen_.wanted.text = "old";
        screen_.wanted.replacement = "new";
        screen_.scope = "messages";
    }

    std::string Text(const char* message) {
        return desk_.Rows(TableNum::Messages, "msgmsg", std::string("msgnum=") + message).at(0);
    }

    test::Desk desk_;
    ReplaceScreen screen_{desk_.context};
};

TEST_F(ReplaceScreenTest, ReplacesWhatIsTickedAsOneStepOfUndo) {
    ASSERT_TRUE(screen_.Find());
    EXPECT_EQ(screen_.Status(), "3 places in 2 records.");
    ASSERT_EQ(screen_.Hits().size(), 3U);
    EXPECT_EQ(screen_.Hits()[0].place, "message 900");
    screen_.Hits()[2].ticked = false;
    EXPECT_TRUE(screen_.Replace());
    EXPECT_EQ(screen_.Status(), "Replaced 2 places in 2 records.");
    EXPECT_EQ(Text("900"), "the new lamp");
    EXPECT_EQ(Text("901"), "new and older");
    EXPECT_EQ(desk_.document.UndoName(), "replace old");
    desk_.document.Undo();
    EXPECT_EQ(Text("900"), "the old lamp");
    EXPECT_EQ(Text("901"), "old and older");
}

TEST_F(ReplaceScreenTest, ReplacesNothingThatItWasToldToForget) {
    ASSERT_TRUE(screen_.Find());
    screen_.Forget();
    EXPECT_TRUE(screen_.Hits().empty());
    EXPECT_EQ(screen_.Status(), "Find shows what is found now.");
    EXPECT_FALSE(screen_.Replace());
    EXPECT_EQ(desk_.document.Changes(), 0);
}

TEST_F(ReplaceScreenTest, DoesNotTickWhatACheckRefuses) {
    screen_.wanted.replacement = "<none>";
    ASSERT_TRUE(screen_.Find());
    EXPECT_FALSE(screen_.Hits()[0].ticked);
    EXPECT_FALSE(screen_.Replace());
    EXPECT_EQ(desk_.Boxes().back(), "Nothing is ticked that could be replaced.");
    EXPECT_EQ(desk_.document.Changes(), 0);
}

TEST_F(ReplaceScreenTest, TellsWhyItCannotLook) {
    screen_.wanted.text = "";
    EXPECT_FALSE(screen_.Find());
    EXPECT_EQ(desk_.Boxes().back(), "Type what is to be looked for.");
    screen_.wanted = {.text = "(", .expression = true};
    EXPECT_FALSE(screen_.Find());
    EXPECT_TRUE(desk_.Boxes().back().starts_with("The expression is not well formed: "));
}

}  // namespace
}  // namespace fabula::authoring
