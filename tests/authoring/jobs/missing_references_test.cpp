#include "authoring/jobs/missing_references.h"

#include <algorithm>
#include <map>
#include <random>
#include <set>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "authoring/desk.h"
#include "authoring/jobs/verify.h"
#include "condacts/language/load.h"
#include "support/trials.h"

namespace fabula::authoring {
namespace {

using store::TableNum;
using test::Desk;
using testing::ElementsAre;
using testing::IsEmpty;

/// What Verify tells, "record: message", sorted.
std::vector<std::string> Told(Desk& desk) {
    interchange::NoObserver nobody;
    interchange::JobStatus status(nobody);
    VerifyAdventure(desk.Adventure(), kForPlay, status);
    std::vector<std::string> told;
    for (const interchange::Fault& fault : status.AllFaults())
        told.push_back(fault.Line());
    std::sort(told.begin(), told.end());
    return told;
}

void LocationWithExits(Desk& desk, int number, const std::string& exits = "",
                       const std::string& numbers = "") {
    const auto tokens = std::count(numbers.begin(), numbers.end(), ' ') + (numbers.empty() ? 0 : 1);
    desk.Add(TableNum::Locations, {{"locnum", std::int64_t{number}},
                                   {"exits", exits},
                                   {"numericexits", numbers},
                                   {"numexits", std::int64_t{tokens}}});
}

void AddObject(Desk& desk, int number, int place, int attributes = 0, int noun = 255, int adjective = 255) {
    desk.Add(TableNum::Objects, {{"objnum", std::int64_t{number}},
                                 {"objloc", std::int64_t{place}},
                                 {"objattrn", std::int64_t{attributes}},
                                 {"objnumnoun", std::int64_t{noun}},
                                 {"objnumadject", std::int64_t{adjective}}});
}

void SetStart(Desk& desk, int location) {
    store::Cursor& settings = desk.Adventure().OpenTable(TableNum::Adventure, "def");
    settings.SetField("startloc", std::int64_t{location});
    settings.Update();
}

/// A desk without locations but the start, 0.
class MissingReferences : public testing::Test {
  protected:
    MissingReferences() {
        desk_.Clear(TableNum::Locations);
        LocationWithExits(desk_, 0);
    }

    Desk desk_;
};

TEST_F(MissingReferences, AGameThatNamesNothingMissingHasNone) {
    EXPECT_THAT(Told(desk_), IsEmpty());
}

TEST_F(MissingReferences, AreTheStart) {
    SetStart(desk_, 7);
    EXPECT_THAT(Told(desk_), ElementsAre("Start location: There is not a location with a number of 7"));
}

TEST_F(MissingReferences, AreTheDestinationsOfExits) {
    desk_.AddWord(500, "NORTH", 2, condacts::kNoun);
    LocationWithExits(desk_, 3, "NORTH 9 NORTH 0", "2 9 2 0");
    EXPECT_THAT(Told(desk_),
                ElementsAre("Location 3: There is not a location with a number of 9 for NORTH"));
}

TEST_F(MissingReferences, NoExitLeadsToAPlaceThatIsNoRoomWhateverRecordsThereAre) {
    desk_.AddWord(500, "NORTH", 2, condacts::kNoun);
    LocationWithExits(desk_, 254);
    LocationWithExits(desk_, 3, "NORTH 254", "2 254");
    EXPECT_THAT(Told(desk_),
                ElementsAre("Location 3: There is not a location with a number of 254 for NORTH"));
}

TEST_F(MissingReferences, AreTheWordsOfExits) {
    LocationWithExits(desk_, 3, "NORTH 0", "15 0");
    EXPECT_THAT(Told(desk_), ElementsAre("Location 3: NORTH is not a valid word"));
}

TEST_F(MissingReferences, AreThePlacesOfObjects) {
    AddObject(desk_, 0, 9);
    AddObject(desk_, 1, 252);
    AddObject(desk_, 2, 254);
    AddObject(desk_, 3, 255);
    EXPECT_THAT(Told(desk_), ElementsAre("Object 0: Invalid location", "Object 3: Invalid location"));
}

TEST_F(MissingReferences, AreTheWordsOfObjects) {
    desk_.AddWord(500, "RED", 60, condacts::kAdjective);
    AddObject(desk_, 0, 0, 0, 60, 60);
    AddObject(desk_, 1, 0, 0, 255, 61);
    EXPECT_THAT(Told(desk_), ElementsAre("Object 0: Noun shown for object 0 is not a Noun.",
                                         "Object 1: Adjective shown for object 1 is not an Adjective."));
}

TEST_F(MissingReferences, AreThePlacesInsideOfContainers) {
    AddObject(desk_, 5, 0, 1);
    EXPECT_THAT(Told(desk_), ElementsAre("Object 5: There is no location with this object number"));
}

TEST_F(MissingReferences, AContainerIsNotInsideItself) {
    for (const int place : {1, 2, 3})
        LocationWithExits(desk_, place);
    AddObject(desk_, 1, 2, 1);
    AddObject(desk_, 2, 1, 3);
    AddObject(desk_, 3, 1, 1);
    EXPECT_THAT(Told(desk_), ElementsAre("Object 1: A container cannot be inside itself.",
                                         "Object 2: A container cannot be inside itself."))
        << "object 3 is inside the ring, not of it";
}

TEST_F(MissingReferences, AreTheWordsOfEntries) {
    desk_.AddEntry(4, 0, {"GET", 20}, {"LAMP", 50}, "DONE");
    EXPECT_THAT(Told(desk_),
                ElementsAre("Process Table 0 Entry # 4 (GET LAMP DONE): Word1 (GET) not a verb",
                            "Process Table 0 Entry # 4 (GET LAMP DONE): Word2 (LAMP) is not a Noun"));
}

TEST_F(MissingReferences, AreThePicturesThatDrawingsCall) {
    desk_.Add(TableNum::Pictures, {{"locnum", std::int64_t{0}},
                                   {"loctype", std::string("Picture")},
                                   {"drawstring", std::string("GOSUB SC=0 7 GOSUB SC=0 0 END")}});
    EXPECT_THAT(Told(desk_), ElementsAre("Picture 0: 7 is an invalid location"));
}

TEST_F(MissingReferences, AreTheSubroutinesOfEntries) {
    desk_.AddEntry(4, 0, {"_", 255}, {"_", 255}, "PROCESS 9");
    EXPECT_THAT(Told(desk_),
                ElementsAre("Process Table 0 Entry # 4 (_ _ PROCESS 9): PROCESS 9 is an invalid "
                            "Condition/Action: There is not a Process table with that number"));
}

/// A game that is edited at random, and a list of what is missing in it that is kept without its help.
class RandomGame {
  public:
    explicit RandomGame(unsigned seed) : random_(seed) {
        desk_.Clear(TableNum::Locations);
        desk_.Clear(TableNum::SystemMessages);
        desk_.Adventure().DeleteFrom(TableNum::Vocabulary, "voctypen<>7");
        SetStart(desk_, 0);
    }

    void Edit() {
        switch (Below(9)) {
            case 0:
                return Toggle(locations_, TableNum::Locations, "locnum",
                              [&](int n) { AddRandomLocation(n); });
            case 1:
                return Toggle(objects_, TableNum::Objects, "objnum", [&](int n) { AddRandomObject(n); });
            case 2:
                return Toggle(messages_, TableNum::Messages, "msgnum",
                              [&](int n) { AddText(n, TableNum::Messages, "msgnum"); });
            case 3:
                return Toggle(systemMessages_, TableNum::SystemMessages, "smsgnum",
                              [&](int n) { AddText(n, TableNum::SystemMessages, "smsgnum"); });
            case 4:
                return Toggle(nouns_, TableNum::Vocabulary, "vocindex", [&](int n) { AddNoun(n); });
            case 5:
                return Toggle(pictures_, TableNum::Pictures, "locnum", [&](int n) { AddRandomPicture(n); });
            case 6:
                start_ = Number();
                return SetStart(desk_, start_);
            default:
                return Toggle(entries_, TableNum::ProcessTables, "canum",
                              [&](int n) { AddRandomEntry(n); });
        }
    }

    std::vector<std::string> Missing() const {
        std::vector<std::string> missing;
        if (!IsRoom(start_)) missing.push_back("Start location: " + NoLocation(start_));
        for (const auto& [number, exit] : exits_) {
            if (!locations_.contains(number)) continue;
            const std::string location = "Location " + std::to_string(number) + ": ";
            const std::string word = "N" + std::to_string(exit.first);
            if (!nouns_.contains(exit.first)) missing.push_back(location + word + " is not a valid word");
            if (!IsRoom(exit.second))
                missing.push_back(location + NoLocation(exit.second) + " for " + word);
        }
        for (const int object : objects_)
            AddMissingOf(object, missing);
        for (const int entry : entries_)
            AddMissingOfEntry(entry, missing);
        for (const int picture : pictures_) {
            const int called = calls_.at(picture);
            if (pictures_.contains(called)) continue;
            missing.push_back("Picture " + std::to_string(picture) + ": " + std::to_string(called) +
                              " is an invalid location");
        }
        std::sort(missing.begin(), missing.end());
        return missing;
    }

    std::vector<std::string> Told() { return authoring::Told(desk_); }

  private:
    struct Object {
        int place = 0;
        bool isContainer = false;
        int noun = 255;
    };
    struct Action {
        std::string name;
        int number = 0;
        int verb = 255;  ///< one of the nouns, or none
    };

    int Below(int end) { return static_cast<int>(random_() % static_cast<unsigned>(end)); }
    /// The numbers of things: few, so that they meet, with places that are no room among them.
    int Number() { return Below(10) < 8 ? Below(12) : 250 + Below(8); }

    static std::string NoLocation(int number) {
        return "There is not a location with a number of " + std::to_string(number);
    }
    bool IsRoom(int number) const { return locations_.contains(number) && (number < 252 || number > 255); }

    template <typename Add>
    void Toggle(std::set<int>& numbers, TableNum table, const char* key, Add add) {
        // Nouns that move the player have the numbers 2 to 13 and are their own keys, away from the others.
        const bool isNoun = table == TableNum::Vocabulary;
        const int number = isNoun ? 2 + Below(12) : Number();
        if (numbers.erase(number) > 0) {
            desk_.Adventure().DeleteFrom(
                table, std::string(key) + "=" + std::to_string(isNoun ? kFirstNounKey + number : number));
            return;
        }
        numbers.insert(number);
        add(number);
    }

    void AddRandomLocation(int number) {
        const auto exit = std::pair(2 + Below(12), Number());
        exits_[number] = exit;
        const std::string to = " " + std::to_string(exit.second);
        LocationWithExits(desk_, number, "N" + std::to_string(exit.first) + to,
                          std::to_string(exit.first) + to);
    }

    void AddRandomObject(int number) {
        Object& object = objectRecords_[number];
        object = {Number(), Below(2) == 0, Below(3) == 0 ? 255 : 2 + Below(12)};
        AddObject(desk_, number, object.place, object.isContainer ? 1 : 0, object.noun);
    }

    void AddText(int number, TableNum table, const char* key) {
        desk_.Add(table, {{key, std::int64_t{number}}});
    }

    void AddNoun(int number) {
        desk_.AddWord(kFirstNounKey + number, "N" + std::to_string(number), number, condacts::kNoun);
    }

    void AddRandomPicture(int number) {
        const int called = calls_[number] = Number();
        desk_.Add(TableNum::Pictures, {{"locnum", std::int64_t{number}},
                                       {"loctype", std::string("Picture")},
                                       {"drawstring", "GOSUB SC=0 " + std::to_string(called) + " END"}});
    }

    static std::string VerbOf(const Action& action) {
        return action.verb == 255 ? "_" : "N" + std::to_string(action.verb);
    }

    void AddRandomEntry(int number) {
        constexpr const char* kNames[] = {"AT",      "GOTO",    "PRESENT", "PLACE 0",
                                          "MESSAGE", "SYSMESS", "PROCESS"};
        const Action action{kNames[Below(std::size(kNames))], Number(),
                            Below(2) == 0 ? 255 : 2 + Below(12)};
        actions_[number] = action;
        desk_.AddEntry(number, 0, {VerbOf(action), action.verb}, {"_", 255},
                       action.name + " " + std::to_string(action.number));
    }

    void AddMissingOf(int number, std::vector<std::string>& missing) const {
        const Object& object = objectRecords_.at(number);
        const std::string name = "Object " + std::to_string(number) + ": ";
        const bool isPlace = (object.place >= 252 && object.place <= 254) || IsRoom(object.place);
        if (!isPlace) missing.push_back(name + "Invalid location");
        if (object.noun != 255 && !nouns_.contains(object.noun)) {
            missing.push_back(name + "Noun shown for object " + std::to_string(number) + " is not a Noun.");
        }
        if (!object.isContainer) return;
        if (!IsRoom(number)) missing.push_back(name + "There is no location with this object number");
        int around = object.place;
        for (int steps = 0; steps < 1000 && IsContainer(around); ++steps) {
            if (around == number) {
                missing.push_back(name + "A container cannot be inside itself.");
                break;
            }
            around = objectRecords_.at(around).place;
        }
    }

    bool IsContainer(int number) const {
        return (number < 252 || number > 255) && objects_.contains(number) &&
               objectRecords_.at(number).isContainer;
    }

    void AddMissingOfEntry(int number, std::vector<std::string>& missing) const {
        const Action& action = actions_.at(number);
        const auto& [name, parameter, verb] = action;
        const bool special = parameter >= 252 && parameter <= 255;
        const bool isSecond = name == "PLACE 0";
        bool isThere = true;
        std::string why = std::string("Invalid number for parameter ") + (isSecond ? "2" : "1");
        if (name == "AT" || isSecond) isThere = locations_.contains(parameter) || special;
        if (name == "GOTO") isThere = locations_.contains(parameter);
        if (name == "PRESENT") isThere = objects_.contains(parameter);
        if (name == "MESSAGE") isThere = messages_.contains(parameter);
        if (name == "SYSMESS") isThere = systemMessages_.contains(parameter) || special;
        if (name == "PROCESS") {
            isThere = parameter <= 2;
            why = "There is not a Process table with that number";
        }
        const std::string line = name + " " + std::to_string(parameter);
        const std::string entry = "Process Table 0 Entry # " + std::to_string(number) + " (" +
                                  VerbOf(action) + " _ " + line + "): ";
        if (verb != 255 && !nouns_.contains(verb))
            missing.push_back(entry + "Word1 (" + VerbOf(action) + ") not a verb");
        const std::string told = entry + line + " is an invalid Condition/Action: ";
        if (isSecond && !objects_.contains(0)) missing.push_back(told + "Invalid number for parameter 1");
        if (!isThere) missing.push_back(told + why);
    }

    static constexpr int kFirstNounKey = 1000;

    std::mt19937 random_;
    Desk desk_;
    int start_ = 0;
    std::set<int> locations_;
    std::set<int> objects_;
    std::set<int> messages_;
    std::set<int> systemMessages_;
    std::set<int> nouns_;
    std::set<int> entries_;
    std::set<int> pictures_;
    std::map<int, int> calls_;  ///< the picture that a picture calls
    std::map<int, std::pair<int, int>> exits_;
    std::map<int, Object> objectRecords_;
    std::map<int, Action> actions_;
};

TEST(VerifyOfARandomGame, TellsWhatAnIndependentListHasAfterEachEdit) {
    const int edits = test::Trials("FABULA_EDITS", 100);
    RandomGame game(20261122);
    for (int i = 0; i < edits; ++i) {
        game.Edit();
        ASSERT_EQ(game.Told(), game.Missing()) << "after edit " << i;
    }
}

}  // namespace
}  // namespace fabula::authoring
