// Files that come from strangers: each is refused with one sentence and left as it was, or opens cleanly.
// One way to damage a file is a test of a few lines; all of them share how a refusal is told.

#include "store/file/file_check.h"

#include <random>

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/stat.h>
#include <unistd.h>

#include "store/adventure.h"
#include "support/child_process.h"
#include "support/games/template_adventure.h"
#include "support/raw_database.h"
#include "support/trials.h"

namespace fabula::store {
namespace {

using test::ReadBytes;
using test::WriteBytes;

class FileCheck : public testing::Test {
  protected:
    FileCheck() { test::MakeAdventure(file_); }

    void Run(const std::string& sql) const { test::RawDatabase(file_).Run(sql); }

    /// Changes the schema's own table, as a file made with other tools may have it.
    void RunOnSchema(const std::string& sql) const {
        Run("PRAGMA writable_schema=ON;" + sql + ";PRAGMA writable_schema=OFF");
    }

    /// Why the file is refused, without the part that names it; the file must be as it was.
    std::string RefusalOf(const std::filesystem::path& file) const {
        const std::string before = ReadBytes(file);
        std::string message = "it was opened";
        try {
            Adventure::Open(file);
        } catch (const OpenError& error) {
            message = error.what();
            const std::string start = "Could not open " + file.string() + ": ";
            EXPECT_EQ(message.substr(0, start.size()), start);
            message = message.substr(start.size());
        }
        EXPECT_TRUE(ReadBytes(file) == before) << "a refused file was changed";
        return message;
    }
    std::string Refusal() const { return RefusalOf(file_); }

    test::TempFolder folder_;
    std::filesystem::path file_ = folder_ / "game.fbd";
};

constexpr const char* kNotAnAdventure = "it is not an adventure file.";
constexpr const char* kDamaged = "it is damaged.";
constexpr const char* kNewer = "it was written by a newer version of Fabula.";
constexpr const char* kOlder = "it was made by an older version of Fabula and must be upgraded first.";
constexpr const char* kInUse = "it is in use by another program.";

TEST_F(FileCheck, ASoundFileIsOpened) {
    EXPECT_EQ(Refusal(), "it was opened");
}

TEST_F(FileCheck, OpeningDoesNotChangeTheFile) {
    const std::string before = ReadBytes(file_);
    { const auto adventure = Adventure::Open(file_); }
    { const auto adventure = Adventure::Open(file_, OpenMode::ReadOnly); }
    EXPECT_TRUE(ReadBytes(file_) == before);
}

TEST_F(FileCheck, AMissingFileIsMissing) {
    try {
        Adventure::Open(folder_ / "nothing.fbd");
        FAIL() << "it was opened";
    } catch (const OpenError& error) {
        EXPECT_EQ(error.Reason(), Refusal::Missing);
        EXPECT_EQ(error.what(),
                  "Could not open " + (folder_ / "nothing.fbd").string() + ": there is no such file.");
    }
    EXPECT_FALSE(std::filesystem::exists(folder_ / "nothing.fbd"));
}

TEST_F(FileCheck, AFolderIsNoAdventure) {
    try {
        Adventure::Open(folder_.Path());
        FAIL() << "it was opened";
    } catch (const OpenError& error) {
        EXPECT_EQ(error.Reason(), Refusal::NotAnAdventure);
    }
}

TEST_F(FileCheck, AnEmptyFileIsNoAdventure) {
    WriteBytes(file_, "");
    EXPECT_EQ(Refusal(), kNotAnAdventure);
}

TEST_F(FileCheck, AnotherKindOfFileIsNoAdventure) {
    WriteBytes(file_, "PK\3\4" + std::string(5000, 'x'));
    EXPECT_EQ(Refusal(), kNotAnAdventure);
}

TEST_F(FileCheck, ADatabaseOfAnotherProgramIsNoAdventure) {
    Run("PRAGMA application_id=252006673");
    EXPECT_EQ(Refusal(), kNotAnAdventure);
    Run("PRAGMA application_id=0");
    EXPECT_EQ(Refusal(), kNotAnAdventure);
}

TEST_F(FileCheck, AFileOfALaterFormIsNewer) {
    Run("PRAGMA user_version=" + std::to_string(kLatestStep + 1));
    EXPECT_EQ(Refusal(), kNewer);
    Run("PRAGMA user_version=-1");
    EXPECT_EQ(Refusal(), kNewer);
}

TEST_F(FileCheck, AHugeFileIsTooLarge) {
    std::filesystem::resize_file(file_, kLargestFile + 1);
    try {
        Adventure::Open(file_);
        FAIL() << "it was opened";
    } catch (const OpenError& error) {
        EXPECT_EQ(error.Reason(), Refusal::TooLarge);
    }
}

TEST_F(FileCheck, AFileWithAWriteAheadLogIsRefused) {
    Run("PRAGMA journal_mode=WAL");
    EXPECT_EQ(Refusal(),
              "another program keeps a write-ahead log for it; \"PRAGMA journal_mode=DELETE\" "
              "there ends that.");
    EXPECT_FALSE(std::filesystem::exists(folder_ / "game.fbd-shm"));
}

TEST_F(FileCheck, AHeaderThatOnlyReadersWouldTakeForAWriteAheadLogIsRefused) {
    std::string bytes = ReadBytes(file_);
    ASSERT_EQ(bytes.substr(18, 2), "\x01\x01");
    bytes[19] = 2;
    WriteBytes(file_, bytes);
    EXPECT_EQ(Refusal(), kDamaged);
}

TEST_F(FileCheck, AHeaderThatOnlyWritersWouldTakeForAWriteAheadLogIsDamaged) {
    std::string bytes = ReadBytes(file_);
    bytes[18] = 2;
    WriteBytes(file_, bytes);
    EXPECT_EQ(Refusal(), kDamaged);
}

TEST_F(FileCheck, ATruncatedFileIsRefusedWhereverItEnds) {
    const std::string whole = ReadBytes(file_);
    for (std::size_t length = 0; length < whole.size(); length += 4096 + 511) {
        WriteBytes(file_, whole.substr(0, length));
        EXPECT_NE(Refusal(), "it was opened") << "cut at " << length;
    }
}

TEST_F(FileCheck, ATriggerIsRefused) {
    Run("CREATE TRIGGER t AFTER INSERT ON Messages BEGIN DELETE FROM Flags; END");
    EXPECT_EQ(Refusal(), kDamaged);
}

TEST_F(FileCheck, AViewIsRefused) {
    Run("CREATE VIEW v AS SELECT * FROM Messages");
    EXPECT_EQ(Refusal(), kDamaged);
}

TEST_F(FileCheck, AViewInPlaceOfATableIsRefused) {
    Run("DROP TABLE Sounds; CREATE VIEW Sounds AS SELECT 1 AS storekey, 2 AS sndnum, 3 AS sndfreq");
    EXPECT_EQ(Refusal(), kDamaged);
}

TEST_F(FileCheck, AVirtualTableIsRefused) {
    Run("CREATE VIRTUAL TABLE v USING fts5(a)");
    EXPECT_EQ(Refusal(), kDamaged);
}

TEST_F(FileCheck, AVirtualTableInPlaceOfATableIsRefused) {
    Run("DROP TABLE Sounds; CREATE VIRTUAL TABLE Sounds USING fts5(sndnum, sndfreq)");
    EXPECT_EQ(Refusal(), kDamaged);
}

TEST_F(FileCheck, AVirtualTableOfAModuleThatIsNotThereIsRefused) {
    RunOnSchema(
        "INSERT INTO sqlite_schema VALUES ('table', 'v', 'v', 0, 'CREATE VIRTUAL TABLE v USING gone')");
    EXPECT_EQ(Refusal(), kDamaged);
}

TEST_F(FileCheck, AnExtraTableIsRefused) {
    Run("CREATE TABLE Extra (a)");
    EXPECT_EQ(Refusal(), kDamaged);
}

TEST_F(FileCheck, StatisticsAreRefused) {
    Run("ANALYZE");
    EXPECT_EQ(Refusal(), kDamaged);
}

TEST_F(FileCheck, AMissingTableIsRefused) {
    Run("DROP TABLE Sounds");
    EXPECT_EQ(Refusal(), kDamaged);
    Run("DROP TABLE Tables");
    EXPECT_EQ(Refusal(), kDamaged);
}

TEST_F(FileCheck, AMissingIndexOnlyMakesItSlower) {
    Run("DROP INDEX Messages_msgnum");
    EXPECT_EQ(Refusal(), "it was opened");
}

/// Puts a table of sounds with this column definition in place of the real one.
class ForeignColumn : public FileCheck, public testing::WithParamInterface<const char*> {
  protected:
    void Replace(const std::string& definition, const std::string& end = " STRICT") const {
        Run("DROP TABLE Sounds; CREATE TABLE Sounds (storekey INTEGER PRIMARY KEY, sndnum INTEGER, " +
            definition + ")" + end);
    }
};

TEST_P(ForeignColumn, IsRefused) {
    Replace(GetParam());
    EXPECT_EQ(Refusal(), kDamaged);
}

INSTANTIATE_TEST_SUITE_P(Definitions, ForeignColumn,
                         testing::Values("sndfreq INTEGER GENERATED ALWAYS AS (sndnum*2) VIRTUAL",
                                         "sndfreq INTEGER GENERATED ALWAYS AS (sndnum*2) STORED",
                                         "sndfreq INTEGER CHECK (length(hex(zeroblob(100000000))) > 0)",
                                         "sndfreq INTEGER DEFAULT (abs(random()))",
                                         "sndfreq INTEGER NOT NULL", "sndfreq INTEGER UNIQUE",
                                         "sndfreq INTEGER REFERENCES Flags(flgnum)", "sndfreq TEXT",
                                         "sndfreq ANY", "sndfreq INT", "\"sndfreq\" INTEGER",
                                         "sndfreq INTEGER, more INTEGER", "sndfreq INTEGER, CHECK (1)",
                                         "sndfreq INTEGER, comment TEXT DEFAULT (abs(random()))",
                                         "sndfreq INTEGER, comment ANY", "sndfreq INTEGER,comment TEXT",
                                         "sndfreq  INTEGER", "sndfreq INTEGER COLLATE fabula_nocase"));

TEST_F(ForeignColumn, WithTheRightDefinitionIsOpened) {
    Replace("sndfreq INTEGER");
    EXPECT_EQ(Refusal(), "it was opened");
}

TEST_F(ForeignColumn, InATableThatIsNotStrictIsRefused) {
    Replace("sndfreq INTEGER", "");
    EXPECT_EQ(Refusal(), kDamaged);
}

TEST_F(ForeignColumn, InATableWithoutRowidIsRefused) {
    Replace("sndfreq INTEGER", " WITHOUT ROWID, STRICT");
    EXPECT_EQ(Refusal(), kDamaged);
}

class ForeignIndex : public FileCheck, public testing::WithParamInterface<const char*> {};

TEST_P(ForeignIndex, IsRefused) {
    Run(GetParam());
    EXPECT_EQ(Refusal(), kDamaged);
}

INSTANTIATE_TEST_SUITE_P(
    Statements, ForeignIndex,
    testing::Values("CREATE INDEX i ON Sounds(sndnum)", "CREATE INDEX i ON Messages(length(msgmsg))",
                    "CREATE INDEX i ON Messages(msgnum) WHERE msgnum>5",
                    "CREATE UNIQUE INDEX i ON Messages(msgnum)",
                    "DROP INDEX Messages_msgnum; CREATE INDEX Messages_msgnum ON Messages(msgnum DESC)",
                    "DROP INDEX Messages_msgnum; CREATE INDEX Messages_msgnum ON Messages(msgnum, msgmsg)",
                    "DROP INDEX Vocabulary_word; CREATE INDEX Vocabulary_word ON Vocabulary(word)"));

TEST_F(FileCheck, ASchemaThatIsNoSqlIsRefused) {
    RunOnSchema("UPDATE sqlite_schema SET sql='CREATE TABLE Sounds (' WHERE name='Sounds'");
    EXPECT_EQ(Refusal(), kDamaged);
}

TEST_F(FileCheck, TwoTablesOnTheSamePagesAreRefused) {
    RunOnSchema(
        "UPDATE sqlite_schema SET rootpage=(SELECT rootpage FROM sqlite_schema WHERE name='Flags') "
        "WHERE name='Sounds'");
    EXPECT_EQ(Refusal(), kDamaged);
}

TEST_F(FileCheck, TheSameTableTwiceIsRefused) {
    RunOnSchema(
        "INSERT INTO sqlite_schema SELECT type, name, tbl_name, rootpage, sql FROM sqlite_schema "
        "WHERE name='Sounds'; DELETE FROM sqlite_schema WHERE name='Header'");
    EXPECT_EQ(Refusal(), kDamaged);
}

class ForeignField : public FileCheck, public testing::WithParamInterface<const char*> {};

TEST_P(ForeignField, IsRefused) {
    Run(GetParam());
    EXPECT_EQ(Refusal(), kDamaged);
}

INSTANTIATE_TEST_SUITE_P(
    Statements, ForeignField,
    testing::Values(
        // A column that does not exist, a statement, and a name that only folds to the column's.
        "UPDATE Tables SET fieldname='gone' WHERE tablenum=3 AND fieldname='sndfreq'",
        "UPDATE Tables SET fieldname='sndfreq FROM Sounds; DROP TABLE Flags; --' "
        "WHERE tablenum=3 AND fieldname='sndfreq'",
        "UPDATE Tables SET fieldname=char(0x212a) || 'ey' WHERE tablenum=3 AND fieldname='sndfreq'",
        "UPDATE Tables SET fieldname='ban' || char(0x212a) WHERE tablenum=1 AND fieldname='exits';"
        "ALTER TABLE Locations RENAME exits TO bank",
        "UPDATE Tables SET fieldname='' WHERE tablenum=3 AND fieldname='sndfreq'",
        "UPDATE Tables SET fieldname=NULL WHERE tablenum=3 AND fieldname='sndfreq'",
        "UPDATE Tables SET fieldname='storekey' WHERE tablenum=3 AND fieldname='sndfreq'",
        "UPDATE Tables SET fieldtype='advarwchar' WHERE tablenum=3 AND fieldname='sndfreq'",
        "UPDATE Tables SET fieldtype='adwhatever' WHERE tablenum=3 AND fieldname='sndfreq'",
        "DELETE FROM Tables WHERE tablenum=3 AND fieldname='sndfreq'", "DELETE FROM Tables",
        "INSERT INTO Tables (tablenum, fieldname, fieldtype) VALUES (3, 'more', 'adinteger')"));

TEST_F(FileCheck, TwoHundredThousandFieldsAreRefusedWithoutAWait) {
    Run("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM n WHERE i<200000)"
        "INSERT INTO Tables (tablenum, fieldname, fieldtype) SELECT 3, 'f' || i, 'adinteger' FROM n");
    EXPECT_EQ(Refusal(), kDamaged);
}

class ForeignSettings : public FileCheck, public testing::WithParamInterface<const char*> {};

TEST_P(ForeignSettings, AreRefused) {
    Run(GetParam());
    EXPECT_EQ(Refusal(), kDamaged);
}

INSTANTIATE_TEST_SUITE_P(
    Statements, ForeignSettings,
    testing::Values(
        "DELETE FROM Adventure", "INSERT INTO Adventure (advname) VALUES ('second')", "DELETE FROM System",
        "INSERT INTO System (systemnum) VALUES (2)",
        "ALTER TABLE Adventure DROP COLUMN startloc; DELETE FROM Tables WHERE fieldname='startloc'",
        "ALTER TABLE Adventure DROP COLUMN maxobj;"
        "DELETE FROM Tables WHERE tablenum=5 AND fieldname='maxobj'"));

TEST_F(FileCheck, AFileThatLacksAFieldTheProgramsReadIsRefused) {
    Run("ALTER TABLE Locations DROP COLUMN exits; DELETE FROM Tables WHERE fieldname='exits'");
    EXPECT_EQ(Refusal(), kDamaged);
}

/// What makes a sound file one of an older program.
class OlderForms : public FileCheck, public testing::WithParamInterface<const char*> {};

TEST_P(OlderForms, AreToldAndOpenedForUpgradesAlone) {
    Run(GetParam());
    EXPECT_EQ(Refusal(), kOlder);
    const auto adventure = Adventure::Open(file_, OpenMode::ReadOnly, Ages::Any);
    EXPECT_EQ(adventure->OpenTable(TableNum::Locations, "*").RecordCount(), 1);
}

INSTANTIATE_TEST_SUITE_P(
    Statements, OlderForms,
    testing::Values(
        "ALTER TABLE Locations DROP COLUMN locshortdesc; DELETE FROM Tables WHERE fieldname='locshortdesc'",
        "ALTER TABLE Adventure DROP COLUMN adventype; DELETE FROM Tables WHERE fieldname='adventype'",
        "ALTER TABLE Adventure DROP COLUMN charsets;"
        "DELETE FROM Tables WHERE tablenum=5 AND fieldname='charsets'",
        "ALTER TABLE Adventure DROP COLUMN sortobjects; DELETE FROM Tables WHERE fieldname='sortobjects'",
        "ALTER TABLE Tables DROP COLUMN tablekey; DELETE FROM Tables WHERE fieldname='tablekey'",
        "DROP TABLE System; DELETE FROM Tables WHERE tablenum=30",
        "DROP TABLE Pictures; DELETE FROM Tables WHERE tablenum=34",
        "DELETE FROM Tables WHERE tablenum=10 AND fieldname='PCVel'",
        "ALTER TABLE Adventure DROP COLUMN Font; ALTER TABLE Adventure ADD COLUMN Font TEXT;"
        "UPDATE Tables SET fieldtype='advarwchar' WHERE fieldname='Font' AND tablenum=5"));

TEST_F(FileCheck, AFileWhoseTablesDoNotTellOfThemselvesIsOlder) {
    Run("DELETE FROM Tables WHERE tablenum=12; ALTER TABLE Tables DROP COLUMN search");
    EXPECT_EQ(Refusal(), kOlder);
}

TEST_F(FileCheck, AnOlderFormWithAForeignFieldIsStillDamaged) {
    Run("DROP TABLE Pictures; DELETE FROM Tables WHERE tablenum=34; ALTER TABLE Flags ADD COLUMN x TEXT");
    EXPECT_EQ(Refusal(), kDamaged);
}

TEST_F(FileCheck, ATableThatLacksAFieldItWasMadeWithIsDamaged) {
    Run("ALTER TABLE ProcDesc DROP COLUMN pmsgmsg; DELETE FROM Tables WHERE fieldname='pmsgmsg'");
    EXPECT_EQ(Refusal(), kDamaged);
}

TEST_F(FileCheck, ATableNoFieldTellsOfIsDamaged) {
    Run("DELETE FROM Tables WHERE tablenum=34");
    EXPECT_EQ(Refusal(), kDamaged);
}

TEST_F(FileCheck, FieldsOfATableThatIsNotThereAreDamage) {
    Run("DROP TABLE Pictures");
    EXPECT_EQ(Refusal(), kDamaged);
}

TEST_F(FileCheck, AFileWithAFieldOfAnotherClassIsRefused) {
    Run("ALTER TABLE Messages DROP COLUMN msgmsg; ALTER TABLE Messages ADD COLUMN msgmsg INTEGER;"
        "UPDATE Tables SET fieldtype='adinteger' WHERE fieldname='msgmsg'");
    EXPECT_EQ(Refusal(), kDamaged);
}

TEST_F(FileCheck, AFileOfAProgramThatNotedNoVersionsIsOpened) {
    Run("ALTER TABLE System DROP COLUMN ideversion; ALTER TABLE System DROP COLUMN engversion;"
        "DELETE FROM Tables WHERE fieldname='ideversion' OR fieldname='engversion'");
    EXPECT_EQ(Refusal(), "it was opened");
}

TEST_F(FileCheck, OddSettingsAreOpenedAndHarmless) {
    Run("UPDATE Adventure SET adventype='x; drop', sortobjects=char(0) || 'a', sorttables='tablekey desc, "
        "'");
    const auto adventure = Adventure::Open(file_);
    EXPECT_EQ(adventure->AdventureType(), "x; drop");
    EXPECT_EQ(adventure->Sorts().objects, "objnum");
    EXPECT_EQ(adventure->Sorts().tables, "tablenum, fieldname");
}

TEST_F(FileCheck, AFileThatAnotherProgramHasLockedIsInUse) {
    const test::RawDatabase other(file_);
    other.Run("BEGIN EXCLUSIVE");
    EXPECT_EQ(Refusal(), kInUse);
    other.Run("ROLLBACK");
    EXPECT_EQ(Refusal(), "it was opened");
}

TEST_F(FileCheck, AFileThatMayNotBeReadIsAnError) {
    std::filesystem::permissions(file_, std::filesystem::perms::none);
    const auto path = file_;
    EXPECT_EQ(test::RunInChild([&] {
                  std::filesystem::permissions(folder_.Path(), std::filesystem::perms::all);
                  test::DropRights();
                  try {
                      Adventure::Open(path);
                  } catch (const Error& error) {
                      return error.what() == "Could not open " + path.string() + ": Permission denied." ? 0
                                                                                                        : 2;
                  }
                  return 1;
              }),
              0);
}

TEST_F(FileCheck, AFileThatMayNotBeWrittenIsOpenedForReading) {
    std::filesystem::permissions(file_, static_cast<std::filesystem::perms>(0444));
    const auto path = file_;
    EXPECT_EQ(test::RunInChild([&] {
                  std::filesystem::permissions(folder_.Path(), static_cast<std::filesystem::perms>(0555));
                  test::DropRights();
                  const auto adventure = Adventure::Open(path);
                  if (adventure->OpenTable(TableNum::Flags, "*").Eof()) return 1;
                  try {
                      adventure->DeleteFrom(TableNum::Flags);
                  } catch (const Error&) {
                      return 0;
                  }
                  return 2;
              }),
              0);
}

/// Leaves the file as a program does that is killed while it writes: half changed, with a journal beside
/// it.
void BreakOff(const std::filesystem::path& file) {
    const int result = test::RunInChild([&] {
        const test::RawDatabase raw(file);
        raw.Run("PRAGMA cache_size=1; BEGIN; DELETE FROM Flags; DELETE FROM CondActs; DELETE FROM Tables");
        kill(getpid(), SIGKILL);
        return 0;
    });
    ASSERT_EQ(result, -SIGKILL);
}

TEST_F(FileCheck, AJournalOfAKilledProgramMendsTheFile) {
    const std::string before = ReadBytes(file_);
    BreakOff(file_);
    ASSERT_FALSE(ReadBytes(file_) == before);
    { const auto adventure = Adventure::Open(file_, OpenMode::ReadOnly); }
    EXPECT_TRUE(ReadBytes(file_) == before);
    EXPECT_FALSE(std::filesystem::exists(file_.string() + "-journal"));
}

TEST_F(FileCheck, AFileThatCannotBeMendedWhereItLiesIsNotCalledDamaged) {
    BreakOff(file_);
    const auto path = file_;
    EXPECT_EQ(test::RunInChild([&] {
                  std::filesystem::permissions(folder_.Path(), static_cast<std::filesystem::perms>(0555));
                  test::DropRights();
                  try {
                      Adventure::Open(path);
                  } catch (const OpenError&) {
                      return 2;
                  } catch (const Error& error) {
                      return error.what() == "Could not open " + path.string() + ": it can't be read." ? 0
                                                                                                       : 3;
                  }
                  return 1;
              }),
              0);
}

TEST_F(FileCheck, AJournalThatIsNoneIsHarmless) {
    WriteBytes(file_.string() + "-journal", std::string(5000, 'x'));
    EXPECT_EQ(Refusal(), "it was opened");
}

TEST_F(FileCheck, APipeInPlaceOfAJournalIsRefusedWithoutAWait) {
    ASSERT_EQ(mkfifo((file_.string() + "-journal").c_str(), 0600), 0);
    EXPECT_EQ(Refusal(), kDamaged);
}

TEST_F(FileCheck, ALinkInPlaceOfAJournalIsRefusedAndNotFollowed) {
    const auto victim = folder_ / "victim";
    WriteBytes(victim, "precious");
    std::filesystem::create_symlink(victim, file_.string() + "-journal");
    EXPECT_EQ(Refusal(), kDamaged);
    EXPECT_EQ(ReadBytes(victim), "precious");
}

// At the end of a journal stands the name of a further journal, a file that the database would delete.
TEST_F(FileCheck, AJournalThatNamesAFurtherFileIsRefusedAndTheFileKept) {
    BreakOff(file_);
    const auto victim = (folder_ / "victim").string();
    WriteBytes(victim, "precious");
    const auto bigEndian = [](std::uint32_t number) {
        std::string bytes;
        for (int shift = 24; shift >= 0; shift -= 8)
            bytes += static_cast<char>(number >> shift & 0xff);
        return bytes;
    };
    std::uint32_t sum = 0;
    for (const char c : victim)
        sum += static_cast<std::uint32_t>(static_cast<signed char>(c));
    std::string journal = ReadBytes(file_.string() + "-journal");
    const std::string magic("\xd9\xd5\x05\xf9\x20\xa1\x63\xd7", 8);
    journal += bigEndian(0x40000000 / 4096 + 1) + victim +
               bigEndian(static_cast<std::uint32_t>(victim.size())) + bigEndian(sum) + magic;
    WriteBytes(file_.string() + "-journal", journal);
    EXPECT_EQ(Refusal(), kDamaged);
    EXPECT_EQ(ReadBytes(victim), "precious");
}

/// Uses an opened file as a game does: reads every record, changes something.
void UseEverything(Adventure& adventure) {
    for (const TableEntry& table : AllTables()) {
        for (Cursor& cursor = adventure.OpenTable(table.number, "*"); !cursor.Eof(); cursor.MoveNext()) {
            for (std::size_t column = 0; column < cursor.Fields().size(); ++column)
                cursor.Field(column);
        }
    }
    Cursor& messages = adventure.OpenTable(TableNum::Messages, "*");
    messages.AddNew();
    messages.SetField("msgnum", 1);
    messages.Update();
    messages.Delete();
}

class RandomDamage : public FileCheck, public testing::WithParamInterface<std::uint32_t> {};

TEST_P(RandomDamage, IsRefusedOrOpensCleanly) {
    const std::string whole = ReadBytes(file_);
    std::mt19937 random(GetParam());
    int opened = 0;
    int refused = 0;
    const int rounds = test::Trials("FABULA_DAMAGES", 40);
    for (int round = 0; round < rounds; ++round) {
        std::string bytes = whole;
        for (std::size_t flips = 1 + random() % 8; flips > 0; --flips) {
            // Every other byte is in the schema, where damage does most.
            const std::size_t at = random() % (random() % 2 ? bytes.size() : 16384);
            bytes[at] = static_cast<char>(bytes[at] ^ static_cast<char>(1 << random() % 8));
        }
        WriteBytes(file_, bytes);
        try {
            const auto adventure = Adventure::Open(file_);
            ++opened;
            UseEverything(*adventure);
        } catch (const OpenError&) {
            EXPECT_TRUE(ReadBytes(file_) == bytes) << "round " << round;
            ++refused;
        } catch (const Error&) {
            // Damage in an index shows only when it is used.
        }
    }
    EXPECT_GT(opened, 0);
    EXPECT_GT(refused, 0);
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomDamage, testing::Values(1u, 2u, 3u, 4u));

}  // namespace
}  // namespace fabula::store
