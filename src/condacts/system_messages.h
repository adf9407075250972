#pragma once

#include "condacts/numbers.h"

namespace fabula::condacts {

/// The system messages that the engine prints by itself. "_" in one stands for the object at hand.
namespace message {

inline constexpr SystemMessageNumber kDark{0};
inline constexpr SystemMessageNumber kAlsoHere{1};  ///< in front of the objects of a place

// One of four by chance asks for a sentence, unless flag 42 names another.
inline constexpr SystemMessageNumber kFirstPrompt{2};
inline constexpr SystemMessageNumber kSecondPrompt{3};
inline constexpr SystemMessageNumber kThirdPrompt{4};
inline constexpr SystemMessageNumber kLastPrompt{5};

inline constexpr SystemMessageNumber kNoExit{6};  ///< also for a line without a word that is known
inline constexpr SystemMessageNumber kCannotDo{7};
inline constexpr SystemMessageNumber kNoSuchThing{8};

inline constexpr SystemMessageNumber kCarrying{9};
inline constexpr SystemMessageNumber kIsWorn{10};  ///< behind an object that is worn
inline constexpr SystemMessageNumber kNothing{11};

inline constexpr SystemMessageNumber kReallyQuit{12};
inline constexpr SystemMessageNumber kPlayAgain{13};
inline constexpr SystemMessageNumber kOk{15};
inline constexpr SystemMessageNumber kPressKey{16};

// "You have taken n turns." and "You have scored n in all.", each ended by kCountEnd.
inline constexpr SystemMessageNumber kTurnsTaken{17};
inline constexpr SystemMessageNumber kTurn{18};
inline constexpr SystemMessageNumber kPlural{19};
inline constexpr SystemMessageNumber kCountEnd{20};
inline constexpr SystemMessageNumber kScored{21};
inline constexpr SystemMessageNumber kScoreEnd{22};

inline constexpr SystemMessageNumber kNotWearingAny{23};
inline constexpr SystemMessageNumber kStillWorn{24};
inline constexpr SystemMessageNumber kAlreadyCarried{25};
inline constexpr SystemMessageNumber kNotHere{26};
inline constexpr SystemMessageNumber kHandsFull{27};
inline constexpr SystemMessageNumber kDoNotHave{28};
inline constexpr SystemMessageNumber kAlreadyWorn{29};

// Their first letters are the answers.
inline constexpr SystemMessageNumber kYes{30};
inline constexpr SystemMessageNumber kNo{31};

inline constexpr SystemMessageNumber kInputPrompt{33};  ///< in front of the line being typed
inline constexpr SystemMessageNumber kCursor{34};       ///< behind it
inline constexpr SystemMessageNumber kTimePasses{35};

inline constexpr SystemMessageNumber kTaken{36};
inline constexpr SystemMessageNumber kPutOn{37};
inline constexpr SystemMessageNumber kTakenOff{38};
inline constexpr SystemMessageNumber kDropped{39};
inline constexpr SystemMessageNumber kCannotWear{40};
inline constexpr SystemMessageNumber kCannotTakeOff{41};
inline constexpr SystemMessageNumber kNoHandToTakeOff{42};
inline constexpr SystemMessageNumber kTooHeavy{43};

inline constexpr SystemMessageNumber kPutInto{44};    ///< the container follows, then kStop
inline constexpr SystemMessageNumber kNotInside{45};  ///< as above

// Between the objects of a list that runs on, and at its end.
inline constexpr SystemMessageNumber kComma{46};
inline constexpr SystemMessageNumber kAnd{47};
inline constexpr SystemMessageNumber kListEnd{48};

inline constexpr SystemMessageNumber kNotCarried{49};
inline constexpr SystemMessageNumber kNotWorn{50};
inline constexpr SystemMessageNumber kStop{51};
inline constexpr SystemMessageNumber kNoneInside{52};  ///< the container follows, then kStop
inline constexpr SystemMessageNumber kNothingThere{53};

}  // namespace message

}  // namespace fabula::condacts
