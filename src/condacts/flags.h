#pragma once

#include "condacts/numbers.h"

namespace fabula::condacts {

/// The flags to which the engine gives a fixed meaning. All others are free for the game.
namespace flag {

inline constexpr FlagNumber kDark{0};          ///< non-zero: dark, unless object 0 is present
inline constexpr FlagNumber kCarriedCount{1};  ///< objects carried; worn ones do not count

// They count down to 0: by each description, and by each turn.
inline constexpr FlagNumber kDescriptions{2};
inline constexpr FlagNumber kDarkDescriptions{3};   ///< those in the dark
inline constexpr FlagNumber kUnlitDescriptions{4};  ///< those in the dark without a light
inline constexpr FlagNumber kTurns1{5};
inline constexpr FlagNumber kTurns2{6};
inline constexpr FlagNumber kTurns3{7};
inline constexpr FlagNumber kTurns4{8};
inline constexpr FlagNumber kDarkTurns{9};
inline constexpr FlagNumber kUnlitTurns{10};

inline constexpr FlagNumber kPauseFunction{28};
inline constexpr FlagNumber kGraphicsMode{29};
inline constexpr FlagNumber kScore{30};
inline constexpr FlagNumber kTurnLow{31};  ///< turns, wrapping at 256 into kTurnHigh
inline constexpr FlagNumber kTurnHigh{32};

// The words of the sentence, 255 for none.
inline constexpr FlagNumber kVerb{33};
inline constexpr FlagNumber kNoun{34};
inline constexpr FlagNumber kAdjective{35};
inline constexpr FlagNumber kAdverb{36};

inline constexpr FlagNumber kMaxObjects{37};
inline constexpr FlagNumber kLocation{38};
inline constexpr FlagNumber kClearMode{40};  ///< non-zero: the window is cleared before each description
inline constexpr FlagNumber kPrompt{42};     ///< system message used as prompt; 0: one of 2 to 5 by chance

inline constexpr FlagNumber kPreposition{43};
inline constexpr FlagNumber kNoun2{44};
inline constexpr FlagNumber kAdjective2{45};
inline constexpr FlagNumber kPronounNoun{46};
inline constexpr FlagNumber kPronounAdjective{47};

inline constexpr FlagNumber kTimeOut{48};
inline constexpr FlagNumber kTimeOutOptions{49};  ///< bit 2 arms the timer, bit 7: the time-out fired
inline constexpr FlagNumber kDoAllPlace{50};
inline constexpr FlagNumber kObject{51};  ///< the last object referred to; 54 to 57 tell of it
inline constexpr FlagNumber kMaxWeight{52};
inline constexpr FlagNumber kListOptions{53};  ///< bit 7: something was listed, bit 6: the list runs on
inline constexpr FlagNumber kObjectPlace{54};
inline constexpr FlagNumber kObjectWeight{55};
inline constexpr FlagNumber kIsContainer{56};  ///< 128 or 0
inline constexpr FlagNumber kIsWearable{57};   ///< 128 or 0
inline constexpr FlagNumber kMatchWords{58};   ///< bit 7: tables above 0 are matched against the words too

inline constexpr FlagNumber kYesNo{1000};   ///< 2 yes, 1 no
inline constexpr FlagNumber kScript{1001};  ///< bit 0 writing, bit 1 loaded
inline constexpr FlagNumber kWeightScratch{1002};
inline constexpr FlagNumber kLongText{1003};  ///< non-zero: always the long description
inline constexpr FlagNumber kTraceFile{1004};
inline constexpr FlagNumber kTrace{1005};

// The words of the player's own sentence, while PARSE reads what was said.
inline constexpr FlagNumber kKeptVerb{1006};
inline constexpr FlagNumber kKeptAdverb{1007};
inline constexpr FlagNumber kKeptNoun{1008};
inline constexpr FlagNumber kKeptAdjective{1009};
inline constexpr FlagNumber kKeptPronounNoun{1010};
inline constexpr FlagNumber kKeptPronounAdjective{1011};

inline constexpr FlagNumber kBeepPause{1012};  ///< PAUSE value run after each BEEP
inline constexpr FlagNumber kMarloGraphicsMode{1013};

// What the tables leave behind, 255 or 0.
inline constexpr FlagNumber kDescribe{1014};  ///< a description is pending
inline constexpr FlagNumber kActed{1015};     ///< an action ran in process 0
inline constexpr FlagNumber kEnded{1016};
inline constexpr FlagNumber kAsking{1017};  ///< an action waits for the player
inline constexpr FlagNumber kAnyKey{1018};  ///< and any key will do

}  // namespace flag

/// What SET gives a flag.
inline constexpr int kSet = 255;

}  // namespace fabula::condacts
