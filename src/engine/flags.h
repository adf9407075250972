#pragma once

namespace fabula::engine {

/// The flags to which the engine gives a fixed meaning. All others are free for the game.
namespace flag {

inline constexpr int kDark = 0;          ///< non-zero: dark, unless object 0 is present
inline constexpr int kCarriedCount = 1;  ///< objects carried; worn ones do not count
inline constexpr int kPauseFunction = 28;
inline constexpr int kGraphicsMode = 29;
inline constexpr int kScore = 30;
inline constexpr int kTurnLow = 31;  ///< turns, wrapping at 256 into kTurnHigh
inline constexpr int kTurnHigh = 32;

// The words of the sentence, 255 for none.
inline constexpr int kVerb = 33;
inline constexpr int kNoun = 34;
inline constexpr int kAdjective = 35;
inline constexpr int kAdverb = 36;

inline constexpr int kMaxObjects = 37;
inline constexpr int kLocation = 38;
inline constexpr int kClearMode = 40;  ///< non-zero: the window is cleared before each description
inline constexpr int kPrompt = 42;     ///< system message used as prompt; 0: one of 2 to 5 by chance

inline constexpr int kPreposition = 43;
inline constexpr int kNoun2 = 44;
inline constexpr int kAdjective2 = 45;
inline constexpr int kPronounNoun = 46;
inline constexpr int kPronounAdjective = 47;

inline constexpr int kTimeOut = 48;
inline constexpr int kTimeOutOptions = 49;  ///< bit 2 arms the timer, bit 7: the time-out fired
inline constexpr int kDoAllPlace = 50;
inline constexpr int kObject = 51;  ///< the last object referred to; 54 to 57 tell of it
inline constexpr int kMaxWeight = 52;
inline constexpr int kListOptions = 53;  ///< bit 7: something was listed, bit 6: the list runs on
inline constexpr int kObjectPlace = 54;
inline constexpr int kObjectWeight = 55;
inline constexpr int kIsContainer = 56;  ///< 128 or 0
inline constexpr int kIsWearable = 57;   ///< 128 or 0
inline constexpr int kMatchWords = 58;   ///< bit 7: tables above 0 are matched against the words too

inline constexpr int kYesNo = 1000;   ///< 2 yes, 1 no
inline constexpr int kScript = 1001;  ///< bit 0 writing, bit 1 loaded
inline constexpr int kWeightScratch = 1002;
inline constexpr int kLongText = 1003;  ///< non-zero: always the long description
inline constexpr int kTraceFile = 1004;
inline constexpr int kTrace = 1005;
inline constexpr int kBeepPause = 1012;  ///< PAUSE value run after each BEEP
inline constexpr int kMarloGraphicsMode = 1013;

// What the tables leave behind, 255 or 0.
inline constexpr int kDescribe = 1014;  ///< a description is pending
inline constexpr int kActed = 1015;     ///< an action ran in process 0
inline constexpr int kEnded = 1016;
inline constexpr int kAsking = 1017;  ///< an action waits for the player
inline constexpr int kAnyKey = 1018;  ///< and any key will do

}  // namespace flag

inline constexpr int kNoWord = 255;
inline constexpr int kSet = 255;

/// Places that are no room, in condact parameters and object locations.
namespace place {

inline constexpr int kNotCreated = 252;
inline constexpr int kWorn = 253;
inline constexpr int kCarried = 254;
inline constexpr int kHere = 255;  ///< and above: where the player is

}  // namespace place

/// Whether digit `bit` (0 the lowest) is set when a value is written as 8 binary digits, greedily from 128
/// down. A value above 255 thus has all digits set, a negative one none.
constexpr bool BitSet(int value, int bit) {
    for (int digit = 7; digit >= bit; --digit) {
        const int weight = 1 << digit;
        if (value < weight) continue;
        if (digit == bit) return true;
        value -= weight;
    }
    return false;
}

}  // namespace fabula::engine
