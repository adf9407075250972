#include <random>

#include <gtest/gtest.h>

#include "pictures/drawing.h"
#include "pictures/drawstring_check.h"
#include "platform/error.h"
#include "test_book.h"

// Whatever drawstring passes the check is drawn: no failure, nothing beyond the planes (the sanitizers
// look), and only in colours that the language can make.

namespace fabula::pictures {
namespace {

class DrawstringMaker {
  public:
    explicit DrawstringMaker(unsigned seed) : random_(seed) {}

    /// A drawstring of so many commands, with values up to the ends of what the check lets pass.
    std::string Make(const CommandCatalogue& commands, int length) {
        std::string text;
        for (int i = 0; i < length; ++i) {
            const auto& all = commands.All();
            const Command& command =
                all[static_cast<std::size_t>(Between(0, static_cast<int>(all.size()) - 1))];
            text += command.name + ' ';
            for (int p = 0; p < command.drawnParameters; ++p) {
                text += Value(command.drawnCodes[static_cast<std::size_t>(p)]) + ' ';
            }
        }
        return text + "END";
    }

    int Between(int lowest, int highest) {
        return std::uniform_int_distribution<int>(lowest, highest)(random_);
    }

  private:
    std::string Value(const std::string& code) {
        if (code == "XP") return std::to_string(Between(0, 9) == 0 ? Between(-40000, -1) : Between(0, 255));
        if (code == "YP") return std::to_string(Between(0, 9) == 0 ? Between(-40000, -1) : Between(0, 175));
        if (code == "RX") return std::to_string(Between(0, 3) == 0 ? Between(-255, 255) : Between(-20, 20));
        if (code == "RY") return std::to_string(Between(0, 3) == 0 ? Between(-175, 175) : Between(-20, 20));
        if (code == "IO") return std::to_string(10 * Between(0, 1) + Between(0, 1));
        if (code == "SE") return "0";
        if (code == "CH") return Between(0, 1) == 0 ? "65" : "144";
        if (code == "CX" || code == "WI") return std::to_string(Between(0, 31));
        if (code == "RO" || code == "HE") return std::to_string(Between(0, 21));
        if (code == "CO") return std::to_string(Between(0, 8));
        if (code == "BO") return std::to_string(Between(0, 1));
        if (code == "R1") return std::to_string(Between(-1, 1));
        if (code == "QS") return std::to_string(Between(1, 255));
        if (code == "PA") return std::to_string(16 * Between(0, 4) + Between(0, 4));
        if (code == "SC") return "sc=" + std::to_string(Between(0, 7));
        return std::to_string(Between(5, 7));  // LO
    }

    std::mt19937 random_;
};

TEST(AnyDrawstringThatPasses, IsDrawn) {
    DrawstringMaker maker(21);
    for (int i = 0; i < 400; ++i) {
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
    DrawstringMaker maker(22);
    PictureBook book = TestBook();
    for (const int number : {5, 6, 7}) {
        AddPicture(book, number, "END");
    }
    for (int i = 0; i < 100; ++i) {
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
    DrawstringMaker maker(23);
    PictureBook book = TestBook();
    for (const int number : {5, 6, 7}) {
        AddPicture(book, number, "GOSUB sc=0 6 END");
    }
    int drawn = 0;
    for (int i = 0; i < 1000; ++i) {
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
