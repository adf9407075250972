#include "authoring/jobs/verify.h"

#include <vector>

#include <gtest/gtest.h>

#include "condacts/language/convert.h"
#include "condacts/language/load.h"
#include "support/games/template_adventure.h"

namespace fabula::authoring {
namespace {

using store::AdventureKind;
using store::Cursor;
using store::TableNum;

class ProgressRecorder final : public interchange::JobObserver {
  public:
    void StatusAdded(std::string_view) override {}
    void StatusCleared() override {}
    void ProgressLine(std::string_view text) override { lines.emplace_back(text); }
    void Progress(std::int64_t, std::int64_t) override {}
    bool CancelWanted() override { return false; }

    std::vector<std::string> lines;
};

/// An adventure and what a check of it says.
class Verified : public testing::Test {
  protected:
    explicit Verified(AdventureKind kind = AdventureKind::Fabula) : adventure_(kind) {}

    void SetNumber(const char* field, std::int64_t value) {
        Cursor& settings = adventure_->OpenTable(TableNum::Adventure, "def");
        settings.SetField(field, value);
        settings.Update();
        adventure_->ReadSettings();
    }

    void SetText(const char* field, const char* value) {
        Cursor& settings = adventure_->OpenTable(TableNum::Adventure, "def");
        settings.SetField(field, std::string(value));
        settings.Update();
        adventure_->ReadSettings();
    }

    void AddEntry(std::int64_t key, const char* w1, const char* w2, const char* condActs) {
        const condacts::WordIndex words = condacts::LoadWords(*adventure_);
        const auto numberOf = [&](const char* word) {
            const condacts::Word* found = words.Find(word);
            return std::int64_t{found == nullptr ? condacts::kNoWordNumber.value : found->number.value};
        };
        const std::string numbers =
            condacts::CondActsToNumeric(condActs, condacts::LoadCatalogue(*adventure_), words).line;
        Cursor& entries = adventure_->OpenTable(TableNum::ProcessTables, "def");
        entries.AddNew();
        entries.SetField("canum", key);
        entries.SetField("estype", std::int64_t{0});
        entries.SetField("w1", std::string(w1));
        entries.SetField("w2", std::string(w2));
        entries.SetField("condacts", std::string(condActs));
        entries.SetField("w1num", numberOf(w1));
        entries.SetField("w2num", numberOf(w2));
        entries.SetField("numericcondacts", numbers);
        entries.Update();
    }

    void AddNumbered(TableNum table, const char* key, std::int64_t number) {
        Cursor& records = adventure_->OpenTable(table, "def");
        records.AddNew();
        records.SetField(key, number);
        if (table == TableNum::Objects) {
            records.SetField("objnumnoun", std::int64_t{condacts::kNoWordNumber.value});
            records.SetField("objnumadject", std::int64_t{condacts::kNoWordNumber.value});
        }
        records.Update();
    }

    void AddWord(const char* word, std::int64_t number, std::int64_t type) {
        Cursor& words = adventure_->OpenTable(TableNum::Vocabulary, "def");
        words.AddNew();
        words.SetField("vocindex", number + 1000);
        words.SetField("vocnum", number);
        words.SetField("word", std::string(word));
        words.SetField("voctypen", type);
        words.Update();
    }

    /// The status text; `ok_` is the verdict.
    std::string Verify(VerifyTarget target = kForPlay) {
        interchange::JobStatus status(observer_);
        ok_ = VerifyAdventure(*adventure_, target, status);
        return status.Text();
    }

    test::OpenedAdventure adventure_;
    ProgressRecorder observer_;
    bool ok_ = false;
};

class VerifiedVel : public Verified {
  protected:
    VerifiedVel() : Verified(AdventureKind::Vel) {}
};

class VerifiedMarlo : public Verified {
  protected:
    VerifiedMarlo() : Verified(AdventureKind::Marlo) {}
};

TEST_F(Verified, AnAdventureWithoutErrorsPasses) {
    EXPECT_EQ(Verify(), "Verifying Process/Response Tables \nNo Errors Found\nVerify Completed\n");
    EXPECT_TRUE(ok_);
}

TEST_F(Verified, GraphicsNeedADefaultPicture) {
    SetNumber("graphics", 1);
    EXPECT_EQ(Verify(),
              "No Default Picture defined. You MUST have a default picture.\n"
              "Use the black.gif or white.bmp distributed with the IDE.\n"
              "If you don't want graphics, turn it off in the Adventure Settings.\n"
              "Verifying Process/Response Tables \nVerify Completed\n");
    EXPECT_FALSE(ok_);
}

TEST_F(Verified, ADefaultPictureIsEnough) {
    SetNumber("graphics", 1);
    SetText("defpickey", "Default");
    Verify();
    EXPECT_TRUE(ok_);
}

TEST_F(Verified, ABadEntryIsTold) {
    AddEntry(5, "_", "_", "AT 0 MESSAGE 9 DONE");
    EXPECT_EQ(Verify(),
              "Verifying Process/Response Tables \n"
              "Process Table 0 Entry # 5 (_ _ AT 0 MESSAGE 9 DONE)\n"
              "MESSAGE 9 is an invalid Condition/Action\n"
              "    Invalid number for parameter 1\n"
              "Verify Completed\n");
    EXPECT_FALSE(ok_);
}

TEST_F(Verified, AnUnknownNameIsTold) {
    AddEntry(5, "_", "_", "DONE XYZ 3");
    EXPECT_EQ(Verify(),
              "Verifying Process/Response Tables \n"
              "Process Table 0 Entry # 5 (_ _ DONE XYZ 3)\n"
              "XYZ is an invalid Condition/Action\n"
              "Verify Completed\n");
}

TEST_F(Verified, AllFaultsOfAnEntryAreTold) {
    AddEntry(5, "_", "_", "GOTO 9 MESSAGE 9");
    EXPECT_EQ(Verify(),
              "Verifying Process/Response Tables \n"
              "Process Table 0 Entry # 5 (_ _ GOTO 9 MESSAGE 9)\n"
              "GOTO 9 is an invalid Condition/Action\n"
              "    Invalid number for parameter 1\n"
              "Process Table 0 Entry # 5 (_ _ GOTO 9 MESSAGE 9)\n"
              "MESSAGE 9 is an invalid Condition/Action\n"
              "    Invalid number for parameter 1\n"
              "Verify Completed\n");
}

TEST_F(Verified, AnEntryWhoseNumbersAreNotThoseOfItsTextIsTold) {
    AddWord("SATCHEL", 60, 2);
    AddEntry(5, "_", "_", "NOUN2 SATCHEL DONE");
    EXPECT_TRUE((Verify(), ok_));
    Cursor& entry = adventure_->OpenTable(TableNum::ProcessTables, "def");
    entry.SetField("numericcondacts", std::string("124 265"));
    entry.Update();
    EXPECT_EQ(Verify(),
              "Verifying Process/Response Tables \n"
              "Process Table 0 Entry # 5 (_ _ NOUN2 SATCHEL DONE)\n"
              "    The numbers of the entry are not those of its text.\n"
              "Verify Completed\n");
    EXPECT_FALSE(ok_);
}

TEST_F(Verified, AFaultOfASourceIsToldAtItsPlace) {
    AddEntry(5, "_", "_", "AT 0 GOTO 9");
    interchange::SourceMap places;
    places.Set(TableNum::ProcessTables, 5, "condacts", 3, {"games/game.sce", 36, "", 14});
    interchange::JobStatus status(observer_);
    EXPECT_FALSE(VerifyAdventure(*adventure_, kForPlay, status, &places));
    EXPECT_EQ(status.Text(),
              "Verifying Process/Response Tables \n"
              "games/game.sce:36:14: fault: Process Table 0 Entry # 5 (_ _ AT 0 GOTO 9): GOTO 9 is an "
              "invalid Condition/Action: Invalid number for parameter 1\n"
              "Verify Completed\n");
}

TEST_F(Verified, EveryFifthEntryShowsProgress) {
    for (int i = 0; i < 12; ++i)
        AddEntry(i, "_", "_", "DONE");
    Verify();
    EXPECT_EQ(observer_.lines, (std::vector<std::string>{"    Process 5", "    Process 10"}));
}

TEST_F(Verified, AFabulaAdventureHasNoLimits) {
    AddNumbered(TableNum::Locations, "locnum", 256);
    AddNumbered(TableNum::Flags, "flgnum", 1025);
    Verify();
    EXPECT_TRUE(ok_);
}

constexpr const char* kLimitSteps =
    "Verifying Locations\nVerifying Messages\nVerifying Objects\nVerifying System Messages\nVerifying "
    "Flags\n";

TEST_F(VerifiedVel, TheLimitsAreInclusive) {
    AddNumbered(TableNum::Locations, "locnum", 255);
    AddNumbered(TableNum::Messages, "msgnum", 255);
    AddNumbered(TableNum::Objects, "objnum", 255);
    AddNumbered(TableNum::SystemMessages, "smsgnum", 255);
    EXPECT_EQ(Verify(), std::string("Verifying Process/Response Tables \n") + kLimitSteps +
                            "No Errors Found\nVerify Completed\n")
        << "flag 1024 is there by default";
}

TEST_F(VerifiedVel, WhatIsOverItsLimitIsTold) {
    AddNumbered(TableNum::Locations, "locnum", 256);
    AddNumbered(TableNum::Messages, "msgnum", 300);
    AddNumbered(TableNum::Objects, "objnum", 256);
    AddNumbered(TableNum::SystemMessages, "smsgnum", 256);
    AddNumbered(TableNum::Flags, "flgnum", 1025);
    EXPECT_EQ(Verify(),
              "Verifying Process/Response Tables \n"
              "Verifying Locations\nExtended location 256 not allowed in VEL type Adventure\n"
              "Verifying Messages\nExtended message 300 not allowed in VEL type Adventure\n"
              "Verifying Objects\nExtended object 256 not allowed in VEL type Adventure\n"
              "Verifying System Messages\nExtended System Message 256 not allowed in VEL type Adventure\n"
              "Verifying Flags\nExtended Flags 1025 not allowed in VEL type Adventure\n"
              "Verify Completed\n");
}

constexpr const char* kMarloSteps =
    "Verifying Object table for weights > 63\nVerifying Vocabulary for Vocabulary Type > 7\n";

TEST_F(VerifiedMarlo, AGoodAdventurePasses) {
    EXPECT_EQ(Verify(), std::string(kMarloSteps) +
                            "Verifying Status/Response Tables\nVerifying Process/Response Tables \n" +
                            kLimitSteps + "No Errors Found\nVerify Completed\n");
}

TEST_F(VerifiedMarlo, AHeavyObjectIsTold) {
    Cursor& objects = adventure_->OpenTable(TableNum::Objects, "def");
    for (const std::int64_t number : {0, 1}) {
        objects.AddNew();
        objects.SetField("objnum", number);
        objects.SetField("objweight", 63 + number);
        objects.Update();
    }
    EXPECT_NE(Verify().find("Verifying Object table for weights > 63\nObject # 1 has a weight > 63.\n"
                            "Verifying Vocabulary"),
              std::string::npos);
    EXPECT_FALSE(ok_);
}

TEST_F(VerifiedMarlo, ABadTypeOfWordStopsTheCheckOfWordsButNotTheLaterSteps) {
    AddWord("ODD", 60, 8);
    AddEntry(1, "XYZ", "_", "MESSAGE 9");
    const std::string status = Verify();
    EXPECT_NE(status.find("Word ODD has an invalid Word Type.\n"
                          "Because of the Vocabulary errors, Process Tables were not checked.\n"
                          "There may be more errors in the Process Tables.\n"
                          "Verifying Process/Response Tables \n"
                          "Process Table 0 Entry # 1 (XYZ _ MESSAGE 9)\n"),
              std::string::npos)
        << status;
    EXPECT_FALSE(ok_);
}

TEST_F(VerifiedMarlo, AWordThatIsNoVerbOrNounIsTold) {
    AddWord("RED", 60, 3);
    AddWord("GET", 61, 0);
    AddWord("LAMP", 62, 2);
    AddEntry(1, "GET", "LAMP", "DONE");
    AddEntry(2, "GET", "RED", "DONE");
    AddEntry(3, "*", "_", "DONE");
    AddEntry(4, "XYZ", "_", "DONE");
    const std::string message =
        "The following Process Entry has an invalid word in Verb or Noun. The word shown is a NOT a Verb "
        "or Noun, which "
        "is not allowed.\n";
    EXPECT_NE(Verify().find("Verifying Status/Response Tables\n" + message +
                            "Process Table 0 Entry # 2 (GET RED DONE)\n" + message +
                            "Process Table 0 Entry # 4 (XYZ _ DONE)\nVerifying Process"),
              std::string::npos)
        << Verify();
    EXPECT_FALSE(ok_);
}

TEST_F(VerifiedMarlo, AGameOfADecompilerIsNotCheckedForWordsAndWeights) {
    SetNumber("unmarloed", 1);
    EXPECT_EQ(Verify(), std::string("Verifying Process/Response Tables \n") + kLimitSteps +
                            "No Errors Found\nVerify Completed\n");
}

TEST_F(Verified, AnExportChecksTheNamesAndNotTheEntries) {
    AddEntry(1, "_", "_", "MESSAGE 9 DONE");
    EXPECT_EQ(Verify(interchange::FindFileKind("pcvel")),
              "Verifying Process/Response Tables for PCVel export\nNo Errors Found\nVerify Completed\n");
}

TEST_F(Verified, CondactsOfThisSystemAloneAreToldOnceForAnExport) {
    AddEntry(1, "_", "_", "OOPS 1 AGAIN");
    AddEntry(2, "_", "_", "AGAIN DONE");
    EXPECT_EQ(Verify(interchange::FindFileKind("pcvel")),
              "Verifying Process/Response Tables for PCVel export\n"
              "Use of AGAIN Condition/Action. This is not a valid PCVel Condition/Action.\n"
              "Use of OOPS Condition/Action. This is not a valid PCVel Condition/Action.\n"
              "Verify Completed\n");
    EXPECT_FALSE(ok_);
}

TEST_F(Verified, AWordThatLooksLikeACondactIsNone) {
    AddWord("OVER", 60, 4);
    AddEntry(1, "_", "_", "PREP OVER DONE");
    Verify(interchange::FindFileKind("pcvel"));
    EXPECT_TRUE(ok_);
}

TEST_F(Verified, EverythingMayGoToAnExportFileAndAnAceSource) {
    AddEntry(1, "_", "_", "OOPS 1 AGAIN");
    EXPECT_EQ(Verify(interchange::FindFileKind("fabula")),
              "Verifying Process/Response Tables for Fabula export\n"
              "Verifying Graphics Tables for Fabula export\n"
              "No Errors Found\nVerify Completed\n");
    EXPECT_EQ(Verify(interchange::FindFileKind("ace")),
              "Verifying Process/Response Tables for ACE export\n"
              "Verifying Graphics Tables for ACE export\n"
              "No Errors Found\nVerify Completed\n");
}

TEST_F(VerifiedVel, AnExtractNeedsAsManyPicturesAsLocations) {
    EXPECT_NE(Verify(interchange::FindFileKind("unvel"))
                  .find("There are not the same number of Graphics records as Location records. This is "
                        "not allowed in "
                        "Vel\n"),
              std::string::npos);
    EXPECT_FALSE(ok_);
    AddNumbered(TableNum::Pictures, "locnum", 0);
    Verify(interchange::FindFileKind("unvel"));
    EXPECT_TRUE(ok_);
}

TEST_F(VerifiedVel, AnExtractTellsOfFurtherUserGraphicsAndPasses) {
    AddNumbered(TableNum::Pictures, "locnum", 0);
    adventure_->DeleteFrom(TableNum::Characters, "charnum>143");
    const std::string message = "There are more than 19 UDGs. Only the first 19 will be exported.\n";
    for (int i = 0; i < 19; ++i)
        AddNumbered(TableNum::Characters, "charnum", 144 + i);
    EXPECT_EQ(Verify(interchange::FindFileKind("unvel")).find(message), std::string::npos);
    AddNumbered(TableNum::Characters, "charnum", 163);
    EXPECT_NE(Verify(interchange::FindFileKind("unvel")).find(message), std::string::npos);
    EXPECT_TRUE(ok_);
}

TEST_F(VerifiedVel, AGraphicsCommandOfThisSystemAloneIsTold) {
    Cursor& command = adventure_->OpenTable(TableNum::Commands, "def", "coname='PLOT'");
    command.SetField("vel", std::int64_t{0});
    command.Update();
    Cursor& pictures = adventure_->OpenTable(TableNum::Pictures, "def");
    pictures.AddNew();
    pictures.SetField("locnum", std::int64_t{0});
    pictures.SetField("drawstring", std::string("PLOT 0 10 10 END"));
    pictures.Update();
    EXPECT_NE(Verify(interchange::FindFileKind("unvel"))
                  .find("Verifying Graphics Tables for Vel export\n"
                        "Use of PLOT Graphics command. This is not a valid Vel Graphics command.\n"),
              std::string::npos);
    EXPECT_FALSE(ok_);
}

}  // namespace
}  // namespace fabula::authoring
