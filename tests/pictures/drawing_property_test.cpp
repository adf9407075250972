#include <gtest/gtest.h>

#include "drawstring_maker.h"
#include "pictures/drawing.h"
#include "pictures/drawstring_check.h"
#include "platform/error.h"
#include "support/trials.h"
#include "test_book.h"

// Whatever drawstring passes the check is drawn: no failure, nothing beyond the planes (the sanitizers
// look), and only in colours that the language can make.

namespace fabula::pictures {
namespace {

TEST(AnyDrawstringThatPasses, IsDrawn) {
    const int drawstrings = test::Trials("FABULA_DRAWSTRINGS", 150);
    DrawstringMaker maker(21);
    for (int i = 0; i < drawstrings; ++i) {
        PictureBook book = TestBook();
        AddPicture(book, 7, "END");
        AddPicture(book, 6, "LINE 0 20 3 QFILL 1 1 END");
        AddPicture(book, 5, "INK 8 SHADE 10 3 3 18 GOSUB sc=0 6 END", PictureKind::Subroutine,
                   maker.Between(-1, 7));
        const std::string drawstring = maker.Make(book.commands, 60);
        ASSERT_EQ(ValidateDrawString(book, drawstring, PictureKind::Room).fault, "") << drawstring;
        ASSERT_NO_THROW(Draw(book, drawstring)) << drawstring;
    }
}

TEST(AnyDrawstringThatPasses, WithoutOverHasOnlyColoursOfThePalette) {
    const int drawstrings = test::Trials("FABULA_DRAWSTRINGS", 50);
    DrawstringMaker maker(22);
    PictureBook book = TestBook();
    for (const int number : {5, 6, 7}) {
        AddPicture(book, number, "END");
    }
    for (int i = 0; i < drawstrings; ++i) {
        std::string drawstring = maker.Make(book.commands, 60);
        for (const char* over : {" 10 ", " 11 "}) {
            for (std::size_t at = drawstring.find(over); at != std::string::npos;
                 at = drawstring.find(over, at)) {
                drawstring.replace(at, 4, " 1 ");
            }
        }
        const std::string rows = ColourRows(Draw(book, drawstring), {});
        ASSERT_EQ(rows.find('?'), std::string::npos) << drawstring;
    }
}

TEST(AnyTextAtAll, IsRefusedOrDrawnOrFailsWithASentence) {
    const int drawstrings = test::Trials("FABULA_DRAWSTRINGS", 400);
    DrawstringMaker maker(23);
    PictureBook book = TestBook();
    for (const int number : {5, 6, 7}) {
        AddPicture(book, number, "GOSUB sc=0 6 END");
    }
    int drawn = 0;
    for (int i = 0; i < drawstrings; ++i) {
        std::string text = maker.Make(book.commands, 12);
        for (int cut = 0; cut < 3; ++cut) {
            text.erase(static_cast<std::size_t>(maker.Between(0, static_cast<int>(text.size()) - 1)), 1);
        }
        ValidateDrawString(book, text, PictureKind::Room);
        try {
            Draw(book, text);
            ++drawn;
        } catch (const Error& error) {
            ASSERT_STRNE(error.what(), "");
        }
    }
    EXPECT_GT(drawn, 0);
}

}  // namespace
}  // namespace fabula::pictures
