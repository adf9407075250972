#include "text/encoding/scramble.h"

#include <stdexcept>

#include <gtest/gtest.h>

#include "text/random_text.h"

namespace fabula::text {
namespace {

constexpr std::string_view kPrintable =
    " !\"#$%&'()*+,-./0123456789:;<=>?@ABCDEFGHIJKLMNOPQRSTUVWXYZ[\\]^_`abcdefghijklmnopqrstuvwxyz{|}~";

/// Answers every draw with the same number.
class FixedRandom final : public platform::RandomSource {
  public:
    explicit FixedRandom(int number) : number_(number) {}

    int UpTo(int n) override {
        bound_ = n;
        return number_;
    }
    int Bound() const { return bound_; }

  private:
    int number_;
    int bound_ = 0;
};

std::string RandomMixture(platform::RandomSource& random) {
    return RandomText(
               random, 30,
               {" ", "~", "\t", "a", "Z", "\\", "\"", "é", "€", "\uE000", "\U0010FFFF", "\xFF", "\xC3"}) +
           RandomBytes(random, 10);
}

// The tables are part of the format of the files written with them.
TEST(ScrambleText, TheFirstTableIsFixed) {
    EXPECT_EQ(ScrambleText(kPrintable, ScrambleMode::kEncode),
              "SGh1J.:Pa>YLn/=Q56k%z*VM3H\\cvK2\"f?}7WN@`e_BTb^ "
              "{A<-)(rR[]Zoiqt0+uU'!x#m4O~&Ejd9Iw,yl;FpXgs|8CD$");
}

TEST(ScrambleText, TheSecondTableIsFixed) {
    EXPECT_EQ(ScrambleText(kPrintable, ScrambleMode::kEncodeC),
              "Eva<&xzPqWF[*$IiJ>;=@}#O\\A+3|_G/\"sTc{DhLbnd "
              "l0HV64NU!Bg,'~CwjeomX]-^kS`(prt)RQ87y9.Z2?15M%uY:Kf");
}

TEST(ScrambleText, CharactersOutside32To126PassModes0To3Unchanged) {
    const std::string kept = "\t\n\x1F\x7FÈ\u008C€\xC8";
    EXPECT_EQ(ScrambleText(kept, ScrambleMode::kEncode), kept);
    EXPECT_EQ(ScrambleText(kept, ScrambleMode::kDecode), kept);
    EXPECT_EQ(ScrambleText(kept, ScrambleMode::kEncodeC), kept);
    EXPECT_EQ(ScrambleText(kept, ScrambleMode::kDecodeC), kept);
}

TEST(ScrambleText, TheEmptyTextStaysEmptyInEveryMode) {
    EXPECT_EQ(ScrambleText("", ScrambleMode::kEncode), "");
    EXPECT_EQ(ScrambleText("", ScrambleMode::kDecode), "");
    EXPECT_EQ(ScrambleText("", ScrambleMode::kEncodeC), "");
    EXPECT_EQ(ScrambleText("", ScrambleMode::kDecodeC), "");
    EXPECT_EQ(ScrambleText("", Shift{3, true}), "");
    EXPECT_EQ(ScrambleText("", ScrambleMode::kDecodeShifted), "");
}

TEST(ScrambleText, Mode1UndoesMode0AndMode3UndoesMode2) {
    platform::SeededRandom random(5);
    for (int i = 0; i < 1000; ++i) {
        const std::string text = RandomMixture(random);
        EXPECT_EQ(ScrambleText(ScrambleText(text, ScrambleMode::kEncode), ScrambleMode::kDecode), text);
        EXPECT_EQ(ScrambleText(ScrambleText(text, ScrambleMode::kEncodeC), ScrambleMode::kDecodeC), text);
    }
}

TEST(ScrambleText, Mode5UndoesMode4ForEveryShiftAndBothLetterCases) {
    platform::SeededRandom random(6);
    for (int amount = 1; amount <= 15; ++amount) {
        for (const bool lowerCaseLetter : {false, true}) {
            for (int i = 0; i < 100; ++i) {
                const std::string text = RandomMixture(random);
                const std::string hidden = ScrambleText(text, Shift{amount, lowerCaseLetter});
                EXPECT_EQ(ScrambleText(hidden, ScrambleMode::kDecodeShifted), text)
                    << amount << lowerCaseLetter;
            }
        }
    }
}

TEST(ScrambleText, Mode4PutsTheShiftsLetterInFrontAndLowersEveryCode) {
    const std::string capital = ScrambleText("HAL", Shift{2, false});
    EXPECT_EQ(ScrambleText(capital, ScrambleMode::kDecode), "CF?J");
    const std::string small = ScrambleText("HAL", Shift{15, true});
    EXPECT_EQ(ScrambleText(small, ScrambleMode::kDecode), "p92=");
}

TEST(ScrambleText, Mode5TakesAnyTextWithoutFailing) {
    platform::SeededRandom random(7);
    for (int i = 0; i < 1000; ++i) {
        const std::string bytes = RandomBytes(random, 20);
        EXPECT_LE(ScrambleText(bytes, ScrambleMode::kDecodeShifted).size(), bytes.size() * 4);
    }
}

TEST(ScrambleText, AShiftOutside1To15IsAProgrammingError) {
    EXPECT_THROW(ScrambleText("a", Shift{0, false}), std::invalid_argument);
    EXPECT_THROW(ScrambleText("a", Shift{16, false}), std::invalid_argument);
}

TEST(DrawShift, DrawsUpTo15AndTakesTheLettersCaseFromTheSeconds) {
    FixedRandom random(9);
    const Shift even = DrawShift(random, platform::FixedClock({2001, 2, 3, 4, 5, 6}));
    EXPECT_EQ(random.Bound(), 15);
    EXPECT_EQ(even.amount, 9);
    EXPECT_FALSE(even.lowerCaseLetter);
    const Shift odd = DrawShift(random, platform::FixedClock({2001, 2, 3, 4, 5, 7}));
    EXPECT_TRUE(odd.lowerCaseLetter);
}

TEST(ScrambleText, AMegabyteIsHiddenAndComesBack) {
    const std::string text = Repeated("Ein Stück", 100'000);
    EXPECT_EQ(ScrambleText(ScrambleText(text, Shift{7, true}), ScrambleMode::kDecodeShifted), text);
}

}  // namespace
}  // namespace fabula::text
